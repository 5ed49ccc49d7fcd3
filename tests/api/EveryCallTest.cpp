// Tests that no call loses what it writes: every setter and adder of the public interface, with
// every kind of value, on every object that takes it, in new and in parsed services of each
// flavour. The service is written and read again after the calls, and must be the same.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <memory>
#include <ostream>
#include <regex>
#include <set>
#include <string>
#include <vector>

#include "support/Calls.h"
#include "support/Labels.h"
#include "support/ModelText.h"
#include "support/Requests.h"
#include "support/ServiceSamples.h"
#include "support/TempDirectory.h"
#include "support/XmlText.h"

namespace {

using test::QualifiedNames;
using test::ServiceSample;
using test::written;
using test::calls::adders;
using test::calls::Call;
using test::calls::makeOnAll;
using test::calls::setters;

// Services to call.

struct Origin {
  std::string label;
  ServiceSample sample;
  bool isNew;
  std::string prefix;  // Of the elements of a parsed document.

  std::unique_ptr<as::IService> service() const {
    if (isNew) {
      auto made = test::newService(sample.flavour);
      made->addOperation("op", nullptr);
      return made;
    }
    const std::string document = test::rootOf(sample, test::everything(sample));
    return test::parseService(prefix.empty()
                                  ? document
                                  : test::replaced(test::prefixed(document, prefix + ":"),
                                                   "xmlns=", "xmlns:" + prefix + "="));
  }
};

void PrintTo(const Origin& origin, std::ostream* out) { *out << origin.label; }

// New services, and parsed ones with each of the prefixes.
std::vector<Origin> origins(const std::vector<std::string>& prefixes) {
  std::vector<Origin> all;
  for (const ServiceSample& sample : test::samples::all) {
    const std::string flavour = sample.flavour.label;
    all.push_back({"New" + flavour, sample, true, ""});
    for (const std::string& prefix : prefixes) {
      all.push_back({prefix + "Parsed" + flavour, sample, false, prefix});
    }
  }
  return all;
}

class EveryCall : public testing::TestWithParam<Origin> {
 protected:
  static void SetUpTestSuite() { services_ = test::newServices(); }
  static void TearDownTestSuite() { services_.reset(); }

  // What is wrong with the service that is read when this one is written; empty when nothing is.
  static std::string lossOf(as::IService& service) {
    std::string text;
    try {
      text = written(service);
    } catch (const as::CASException& exception) {
      return "not written: " + exception.getErrorText();
    }
    const auto outcome = test::serviceOutcomeOf(*services_, text);
    if (!outcome.root) return "refused: " + outcome.text;
    if (written(*outcome.root) != text) return "written otherwise, once read";
    // What the program adds to the model is not read here.
    if (service.getProgram() != nullptr) return "";
    const bool isSame = test::modelText(*outcome.root, QualifiedNames::leftOut) ==
                        test::modelText(service, QualifiedNames::leftOut);
    return isSame ? "" : "read as another model";
  }

  // Tells which of the calls, each by itself, with the value of that number is to blame.
  static void expectNoLossOfAny(const std::vector<Call>& calls, std::size_t number) {
    for (const Call& call : calls) {
      const auto service = GetParam().service();
      makeOnAll(call, *service, number);
      EXPECT_EQ(lossOf(*service), "") << call.name << ", value " << number % call.values;
    }
  }

  // Adds with the value of that number to every object.
  static void addToAll(as::IService& service, std::size_t number) {
    for (const Call& adder : adders()) makeOnAll(adder, service, number);
  }

 private:
  static std::unique_ptr<as::IAgentServices> services_;
};

std::unique_ptr<as::IAgentServices> EveryCall::services_;

INSTANTIATE_TEST_SUITE_P(Services, EveryCall, testing::ValuesIn(origins({"", "p"})),
                         test::labelOf<Origin>);

TEST_P(EveryCall, ThatAddsIsReadBack) {
  for (const Call& adder : adders()) {
    for (std::size_t number = 0; number < adder.values; number++) {
      const auto service = GetParam().service();
      if (!makeOnAll(adder, *service, number)) break;
      EXPECT_EQ(lossOf(*service), "") << adder.name << ", value " << number;
    }
  }
}

TEST_P(EveryCall, ThatAddsToWhatWasAddedIsReadBack) {
  const auto service = GetParam().service();
  addToAll(*service, 0);
  addToAll(*service, 1);
  EXPECT_EQ(lossOf(*service), "");
}

class EverySetter : public EveryCall {};

INSTANTIATE_TEST_SUITE_P(Services, EverySetter, testing::ValuesIn(origins({""})),
                         test::labelOf<Origin>);

TEST_P(EverySetter, IsReadBackWithEveryValue) {
  const auto service = GetParam().service();
  addToAll(*service, 0);
  const std::vector<Call> calls = setters();
  std::size_t rounds = 0;
  for (const Call& call : calls) rounds = std::max(rounds, call.values);
  for (std::size_t round = 0; round < rounds; round++) {
    for (const Call& call : calls) makeOnAll(call, *service, round);
    const std::string loss = lossOf(*service);
    if (loss.empty()) continue;
    ADD_FAILURE() << loss << " with the values of round " << round;
    return expectNoLossOfAny(calls, round);
  }
}

// Every call of the tables is one that some service takes.
TEST(EveryCallOfTheTables, IsMade) {
  std::set<std::string> made;
  for (const Origin& origin : origins({""})) {
    const auto service = origin.service();
    for (const std::vector<Call>& calls : {adders(), setters()}) {
      for (const Call& call : calls) {
        if (makeOnAll(call, *service, 0)) made.insert(call.name);
      }
    }
  }
  std::set<std::string> known;
  for (const std::vector<Call>& calls : {adders(), setters()}) {
    for (const Call& call : calls) known.insert(call.name);
  }
  EXPECT_EQ(made, known);
}

// What the headers of the model declare, by the names of their files: "IField::setName".
TEST(EveryCallOfTheTables, IsEveryOneOfTheHeaders) {
  const std::regex operation(R"(virtual [^(;]*\b((?:set|add)[A-Z]\w*)\()");
  std::set<std::string> declared;
  for (const auto& entry : std::filesystem::directory_iterator(AS_EXAMPLES_DIR "/../include/as")) {
    const std::string interface = entry.path().stem();
    // The entry object is none of a model.
    if (entry.is_directory() || interface == "IAgentServices") continue;
    const std::string header = test::contentOf(entry.path());
    for (std::sregex_iterator at(header.begin(), header.end(), operation), end; at != end; ++at) {
      declared.insert(interface + "::" + at->str(1));
    }
  }
  std::set<std::string> known;
  for (const std::vector<Call>& calls : {adders(), setters()}) {
    for (const Call& call : calls) known.insert(call.name);
  }
  EXPECT_EQ(known, declared);
}

}  // namespace
