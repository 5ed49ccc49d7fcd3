// Tests of the entry object that keeps schemas when memory runs out half-way: what it keeps stays
// good or goes, and nothing is lost. And that it saves what it is there to save.
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <ostream>
#include <string>

#include "memory/Allocations.h"
#include "memory/Attempts.h"
#include "memory/Models.h"
#include "support/Labels.h"
#include "support/SchemaCopy.h"
#include "support/TempDirectory.h"

namespace {

using memory::End;
using memory::Failing;

struct Request {
  std::string label;
  std::function<as::IElement*(as::IAgentServices&)> run;
  bool isRefused = false;
};

void PrintTo(const Request& request, std::ostream* out) { *out << request.label; }

as::IElement* parseDictionary(as::IAgentServices& services, const std::string& document) {
  return services.parseCobolDD("d.xml", test::bytesOf(document), test::lengthOf(document));
}

const Request requests[] = {
    {"Dictionary",
     [](as::IAgentServices& services) { return parseDictionary(services, test::payProgram()); }},
    {"DictionaryFromFile",
     [](as::IAgentServices& services) { return services.parseCobolDD("PAY.xml"); }},
    {"ServiceWithItsDictionary",
     [](as::IAgentServices& services) { return services.parseService("pay-java.xml", true); }},
    // Read by itself.
    {"DictionaryWithADtd",
     [](as::IAgentServices& services) {
       return parseDictionary(services, "<!DOCTYPE program [<!ENTITY e 'E'>]>" +
                                            test::dictionaryOf("<numeric name='&e;'/>"));
     }},
    {"RefusedDictionary",
     [](as::IAgentServices& services) {
       return parseDictionary(services, test::dictionaryOf("<unknown/>"));
     },
     true},
};

class CachingOutOfMemory : public testing::TestWithParam<Request> {
 protected:
  CachingOutOfMemory() {
    directory_.write("PAY.xml", test::payProgram());
    directory_.write("pay-java.xml", test::payService(""));
    expected_ = answer(*test::newServices());
  }

  static std::unique_ptr<as::IAgentServices> newServices() {
    auto services = test::cachingServices();
    services->setSchemaLocation(AS_SCHEMA_DIR);
    return services;
  }

  // The model as text, or why there is none. Throws what a refused document is not.
  static std::string answer(as::IAgentServices& services) {
    try {
      const std::unique_ptr<as::IElement> root(GetParam().run(services));
      if (root == nullptr) return "nothing";
      return memory::treeText(as::interface_cast<CElementImpl>(root.get())->getElement());
    } catch (const as::CASParseException& refusal) {
      return refusal.getErrorText();
    }
  }

  const std::string& expected() const { return expected_; }

 private:
  const test::CurrentDirectory directory_;
  std::string expected_;
};

INSTANTIATE_TEST_SUITE_P(Requests, CachingOutOfMemory, testing::ValuesIn(requests),
                         test::labelOf<Request>);

// Reserved in front, so that it takes no memory while memory runs out.
void keep(std::string& kept, const std::string& text) {
  if (text.size() <= kept.capacity()) kept = text;
}

TEST_P(CachingOutOfMemory, OfTheFirstRequestIsSurvivedByTheNext) {
  std::string first;
  first.reserve(100000);
  const long held = memory::held();
  std::unique_ptr<as::IAgentServices> services;
  const int failures = memory::untilNothingFails(
      [&] {
        first.clear();
        services = newServices();
        keep(first, answer(*services));
      },
      [&](End end) {
        EXPECT_TRUE(end == End::well || end == End::inException || end == End::inBadAlloc);
        EXPECT_TRUE(first.empty() || first == "nothing" || first == expected()) << first;
        if (services != nullptr) {
          services->setSchemaLocation(AS_SCHEMA_DIR);
          EXPECT_EQ(answer(*services), expected());
          EXPECT_EQ(answer(*services), expected());
        }
        services.reset();
        EXPECT_EQ(memory::held(), held) << "blocks are lost";
      },
      Failing::ours);
  EXPECT_GT(failures, 10);
  EXPECT_EQ(first, expected());
  services.reset();
  EXPECT_EQ(memory::held(), held) << "blocks are lost";
}

TEST_P(CachingOutOfMemory, OfALaterRequestIsSurvivedByTheNext) {
  const long held = memory::held();
  {
    const auto services = newServices();
    answer(*services);
    std::string later;
    later.reserve(100000);
    const int failures = memory::untilNothingFails(
        [&] {
          later.clear();
          keep(later, answer(*services));
        },
        [&](End end) {
          EXPECT_TRUE(end == End::well || end == End::inException || end == End::inBadAlloc);
          EXPECT_TRUE(later.empty() || later == "nothing" || later == expected()) << later;
          EXPECT_EQ(answer(*services), expected());
        },
        Failing::ours);
    EXPECT_GT(failures, 3);
    EXPECT_EQ(later, expected());
  }
  EXPECT_EQ(memory::held(), held) << "blocks are lost";
}

TEST(CachingEntryObjectOutOfMemory, IsToldByItsException) {
  const long held = memory::held();
  std::unique_ptr<as::IAgentServices> services;
  const int failures = memory::untilNothingFails([&] { services = test::cachingServices(); },
                                                 [&](End end) {
                                                   EXPECT_EQ(end, End::inException);
                                                   EXPECT_EQ(memory::held(), held);
                                                 });
  EXPECT_GE(failures, 1);
  EXPECT_NE(services, nullptr);
}

// The blocks that the parser asks for in the midst of `request`.
template <class Request>
long givenBy(const Request& request) {
  const long before = memory::givenToParser();
  request();
  return memory::givenToParser() - before;
}

TEST(Caching, SparesLaterRequestsTheSchema) {
  const test::SchemaCopy schemas;
  const auto plain = test::plainServices();
  const auto caching = test::cachingServices();
  for (as::IAgentServices* services : {plain.get(), caching.get()}) {
    services->setSchemaLocation(schemas.path().c_str());
  }
  const auto parse = [](as::IAgentServices& services) {
    EXPECT_EQ(test::outcomeOf(services, test::payProgram()).result, test::Result::root);
  };
  const long byPlain = givenBy([&] { parse(*plain); });
  parse(*caching);
  const long byCaching = givenBy([&] { parse(*caching); });
  EXPECT_LT(2 * byCaching, byPlain);
  // And after a document that goes its own way.
  EXPECT_NE(test::outcomeOf(*caching, "<!DOCTYPE program>" + test::payProgram()).result,
            test::Result::exception);
  EXPECT_EQ(givenBy([&] { parse(*caching); }), byCaching);
}

// Nothing gathers.
TEST(Caching, HoldsNoMoreAfterManyRequests) {
  const auto services = test::cachingServices();
  services->setSchemaLocation(AS_SCHEMA_DIR);
  const auto parse = [&](const std::string& document) { test::outcomeOf(*services, document); };
  const auto parseAll = [&](const std::string& mark) {
    parse(test::payProgram());
    parse(test::dictionaryOf("<unknown" + mark + "/>"));
    parse(test::dictionaryOf("<o:x xmlns:o='urn:" + mark + "'/>"));
    parse("<!DOCTYPE p [<!ENTITY e" + mark + " ''>]>" + test::payProgram());
  };
  parseAll("first");
  const long held = memory::held();
  for (int i = 0; i < 20; i++) parseAll(std::to_string(i));
  EXPECT_EQ(memory::held(), held);
}

}  // namespace
