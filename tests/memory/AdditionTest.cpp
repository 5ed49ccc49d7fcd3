// Tests of additions to services when memory runs out half-way: the model stays as it was, the next
// addition succeeds, and nothing is lost.
#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

#include "memory/Allocations.h"
#include "memory/Attempts.h"
#include "memory/DomMemory.h"
#include "memory/Models.h"

namespace {

using memory::Failing;
using memory::Model;
using memory::stateOf;
using test::Flavour;

as::IProgram& program() {
  static const auto shared = test::parse(test::payProgram());
  return *shared;
}

as::IDataItem* tableItem() {
  auto* const record = test::itemOf<as::IGroup>(program().getDataItems(), 1);
  auto* const table = test::itemOf<as::IGroup>(record->getChildren(), 2);
  return test::itemOf<as::IDataItem>(table->getChildren(), 1);
}

as::IWSOperation* webOperation(const Model& model) {
  return as::interface_cast<as::IWSOperation>(model.operation());
}

struct Addition {
  const char* label;
  bool onlyWeb;
  void (*add)(const Model&);
};

const Addition additions[] = {
    {"Operation", false,
     [](const Model& m) {
       m.service->addOperation("added",
                               test::itemOf<as::IEntryPoint>(program().getEntryPoints(), 0));
     }},
    {"Parameter", false,
     [](const Model& m) { m.operation()->addParameter(as::IParameter::BY_OUT, "added", 12); }},
    {"HiddenParameter", false,
     [](const Model& m) { m.operation()->addHiddenParameter(nullptr, nullptr); }},
    {"Field", false, [](const Model& m) { m.parameter()->addField("added", 34); }},
    {"Mapping", false, [](const Model& m) { m.parameter()->addMapping(tableItem()); }},
    {"Header", true, [](const Model& m) { webOperation(m)->addHeader(as::IWSHeader::BY_OUT); }},
    {"Fault", true, [](const Model& m) { webOperation(m)->addFault(); }},
    {"FieldAttribute", true,
     [](const Model& m) { m.parameter<as::IWSParameter>()->addFieldAttribute("added"); }},
    {"ParameterOfAHeader", true,
     [](const Model& m) {
       test::itemOf<as::IWSHeader>(webOperation(m)->getHeaders(), 0)
           ->addParameter(as::IParameter::BY_OUT, "added", 56);
     }},
    {"ParameterOfAFault", true,
     [](const Model& m) {
       test::itemOf<as::IWSFault>(webOperation(m)->getFaults(), 0)
           ->addParameter(as::IParameter::BY_OUT, "added", 78);
     }},
};

struct Case {
  const Flavour* flavour;
  const char* origin;
  Model (*make)(const Flavour&);
  const Addition* addition;

  Model model() const { return make(*flavour); }
};

void PrintTo(const Case& of, std::ostream* out) {
  *out << of.addition->label << " to a " << of.origin << " " << of.flavour->label << " service";
}

std::vector<Case> cases() {
  std::vector<Case> all;
  for (const Flavour& flavour : test::flavours::all) {
    for (const Addition& addition : additions) {
      if (addition.onlyWeb && flavour.implementation != as::IService::TYPE_WS) continue;
      all.push_back({&flavour, "new", memory::newModel, &addition});
      all.push_back({&flavour, "parsed", memory::parsedModel, &addition});
    }
  }
  return all;
}

class AdditionOutOfMemory : public testing::TestWithParam<Case> {
 protected:
  // Adds again and again, `arm` having made another allocation fail each time, until none does.
  // Returns how many additions failed.
  template <class Arm>
  static int addUntilNothingFails(const Model& model, const Arm& arm) {
    const std::string before = stateOf(model);
    return memory::untilNothingFails(
        arm, [&] { GetParam().addition->add(model); },
        [&](memory::End end) {
          EXPECT_EQ(end, memory::End::inBadAlloc);
          EXPECT_EQ(stateOf(model), before);
        });
  }

  static std::string stateAfterAnAddition() {
    const Model model = GetParam().model();
    GetParam().addition->add(model);
    return stateOf(model);
  }
};

INSTANTIATE_TEST_SUITE_P(All, AdditionOutOfMemory, testing::ValuesIn(cases()),
                         [](const auto& value) {
                           return std::string(value.param.flavour->label) + "_" +
                                  value.param.origin + "_" + value.param.addition->label;
                         });

TEST_P(AdditionOutOfMemory, LeavesTheModelAsItWas) {
  const std::string expected = stateAfterAnAddition();
  const long held = memory::held();
  {
    const Model model = GetParam().model();
    const int failures = addUntilNothingFails(model, [](long n) { return Failing(n); });
    EXPECT_GE(failures, 3);
    EXPECT_EQ(stateOf(model), expected);
  }
  EXPECT_EQ(memory::held(), held) << "blocks are lost";
}

TEST_P(AdditionOutOfMemory, OfTheDomLeavesTheModelAsItWas) {
  const std::string expected = stateAfterAnAddition();
  const long held = memory::held();
  {
    const Model model = GetParam().model();
    memory::DomMemory dom(*model.service);
    const int failures = addUntilNothingFails(model, [&dom](long n) { return dom.failingAt(n); });
    EXPECT_GE(failures, 3);
    EXPECT_EQ(stateOf(model), expected);
  }
  EXPECT_EQ(memory::held(), held) << "blocks are lost";
}

}  // namespace
