// Tests of what only reads a model when memory runs out half-way: everything that it answers, and
// writing it. The model stays as it was, and nothing is lost.
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>

#include "fuzz/DictionaryWalk.h"
#include "memory/Allocations.h"
#include "memory/Attempts.h"
#include "memory/Models.h"
#include "service/OperationImpl.h"
#include "service/ParameterImpl.h"
#include "support/Labels.h"
#include "support/ServiceSamples.h"
#include "support/TempDirectory.h"

namespace {

using memory::End;
using memory::Failing;
using test::ServiceSample;

constexpr char serializing[] = "AgentServices: An error occurred serializing the XML to file ";

class ReadingOutOfMemory : public testing::TestWithParam<ServiceSample> {
 protected:
  ReadingOutOfMemory() { directory_.write("PAY.xml", test::payProgram()); }

  std::unique_ptr<as::IService> service() const {
    return test::parseService(
        test::rootOf(GetParam(), test::everything(GetParam()), "dataDictFilename=\"PAY.xml\""),
        true);
  }

 private:
  const test::CurrentDirectory directory_;
};

INSTANTIATE_TEST_SUITE_P(Flavours, ReadingOutOfMemory, testing::ValuesIn(test::samples::all),
                         [](const auto& value) { return std::string(value.param.flavour.label); });

TEST_P(ReadingOutOfMemory, EveryAnswerIsWholeOrNone) {
  const auto model = service();
  const std::string expected = test::modelText(*model);
  const long held = memory::held();
  const int failures = memory::untilNothingFails([&] { test::modelText(*model); },
                                                 [&](End end) {
                                                   EXPECT_EQ(end, End::inBadAlloc);
                                                   EXPECT_EQ(memory::held(), held);
                                                 });
  EXPECT_GT(failures, 100);
  EXPECT_EQ(test::modelText(*model), expected);
}

TEST_P(ReadingOutOfMemory, ATextIsWholeOrNone) {
  const auto model = service();
  const std::string before = test::modelText(*model);
  const long held = memory::held();
  std::string text;
  const int failures = memory::untilNothingFails(
      [&] { text = as::CAgentServicesFactory::SerializeToString(model.get()); },
      [&](End end) {
        EXPECT_EQ(end, End::inException);
        EXPECT_EQ(memory::held(), held);
      },
      Failing::ours);
  EXPECT_GT(failures, 5);
  EXPECT_EQ(test::modelText(*model), before);
  EXPECT_EQ(text, test::written(*service()));
}

// The parser's writer may lose what it has made, but not the model.
TEST_P(ReadingOutOfMemory, ATextIsWholeOrNoneWhenTheParserHasNoMemory) {
  const auto model = service();
  const std::string before = test::modelText(*model);
  std::string text;
  memory::untilNothingFails(
      [&] { text = as::CAgentServicesFactory::SerializeToString(model.get()); },
      [&](End end) { EXPECT_EQ(end, End::inException); });
  EXPECT_EQ(test::modelText(*model), before);
  EXPECT_EQ(text, test::written(*service()));
}

TEST_P(ReadingOutOfMemory, AFileIsWrittenOrTold) {
  const auto model = service();
  const long held = memory::held();
  memory::untilNothingFails([&] { as::CAgentServicesFactory::Serialize(model.get(), "out.xml"); },
                            [&](End end) {
                              EXPECT_EQ(end, End::inException);
                              EXPECT_EQ(memory::held(), held);
                            },
                            Failing::ours);
  EXPECT_EQ(test::contentOf("out.xml"), test::written(*model));
}

TEST(WritingOutOfMemory, IsToldWithTheName) {
  const auto model = test::parseService(test::payService(""));
  const Failing failing(1);
  try {
    as::CAgentServicesFactory::Serialize(model.get(), "out.xml");
    ADD_FAILURE() << "nothing was told";
  } catch (const as::CASException& exception) {
    EXPECT_EQ(exception.getErrorText(), std::string(serializing) + "out.xml");
  }
}

// A little of everything that a program has.
std::string everyItem() {
  return test::dictionary(
      "<properties><property name='a' value='1'/></properties>"
      "<fileSection><fd name='F'><dataItems><group name='R'><numeric name='N'/></group></dataItems>"
      "</fd></fileSection><dataItems><numeric name='COUNTER' usage='comp' digits='4' sign='true'/>"
      "<group name='TABLE' minOccurs='1' maxOccurs='9' odo='COUNTER'>"
      "<alphanumeric name='A' picture='X(4)'/>"
      "<numericEdited name='E' picture='ZZ9'/><national name='W'/><pointer name='P'/>"
      "<cobolObject name='O'/><index name='I'/></group></dataItems>"
      "<entryPoints><entryPoint name='E1' callConvention='3'><parameter dataItem='TABLE'/>"
      "</entryPoint></entryPoints>");
}

TEST(DictionaryOutOfMemory, EveryAnswerIsWholeOrNone) {
  const std::unique_ptr<as::IProgram> program = test::parse(everyItem());
  const auto sum = [&] {
    fuzz::DictionaryWalk walk(fuzz::Schemas::shipped);
    walk.walk(*program);
    return walk.sum();
  };
  const std::size_t expected = sum();
  const long held = memory::held();
  memory::untilNothingFails(sum, [&](End end) {
    EXPECT_EQ(end, End::inBadAlloc);
    EXPECT_EQ(memory::held(), held);
  });
  EXPECT_EQ(sum(), expected);
}

// The first look-up of a program prepares for all others.
TEST(LookUpOutOfMemory, LosesNothingAndIsDoneAnew) {
  using LookUp = std::function<as::IElement*(as::IProgram&)>;
  const struct {
    const char* label;
    LookUp lookUp;
    const char* found;
  } rows[] = {
      {"what an item depends on",
       [](as::IProgram& program) { return test::topItem<as::IDataItem>(program, 1)->getODO(); },
       "COUNTER"},
      {"a linkage item",
       [](as::IProgram& program) {
         return test::itemOf<as::ILinkageItem>(test::entryPointOf(program), 0)->getDataItem();
       },
       "TABLE"},
      {"a path",
       [](as::IProgram& program) { return CParameterImpl::GetDataItem("TABLE.W", &program); }, "W"},
      {"an entry point",
       [](as::IProgram& program) { return COperationImpl::GetEntryPoint(&program, "E1"); }, "E1"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.label);
    const std::unique_ptr<as::IProgram> program = test::parse(everyItem());
    const long before = memory::held();
    long kept = before;
    // All that was prepared is kept, or nothing.
    const auto look = [&] {
      const long held = memory::held();
      if (kept == before) kept = held;
      EXPECT_TRUE(held == before || held == kept) << held;
    };
    as::IElement* found = nullptr;
    const int failures = memory::untilNothingFails([&] { found = row.lookUp(*program); },
                                                   [&](End end) {
                                                     EXPECT_EQ(end, End::inBadAlloc);
                                                     look();
                                                   });
    EXPECT_GT(failures, 1);
    ASSERT_NE(found, nullptr);
    EXPECT_EQ(found->getAttributeValue("name"), row.found);
    EXPECT_EQ(row.lookUp(*program), found);
    look();
    EXPECT_GT(kept, before);
  }
}

}  // namespace
