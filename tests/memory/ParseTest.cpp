// Tests of the entry object, of parse requests and of new services when memory runs out half-way:
// there is a whole model or none, and nothing is lost. What the XML parser does when it is refused
// memory itself is not ours: it may end the process.
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "memory/Allocations.h"
#include "memory/Attempts.h"
#include "memory/Models.h"
#include "support/Labels.h"
#include "support/ServiceForms.h"
#include "support/ServiceSamples.h"
#include "support/TempDirectory.h"

namespace {

using memory::End;
using memory::Failing;
using test::Flavour;
using test::ServiceSample;

// A request, made in a directory with the dictionary PAY.xml and the document doc.xml.
struct Request {
  std::string label;
  std::string document;
  std::function<as::IElement*(as::IAgentServices&, const std::string& document)> run;
  bool isRefused = false;  // The document is.
};

void PrintTo(const Request& request, std::ostream* out) { *out << request.label; }

std::vector<Request> requests() {
  std::vector<Request> all;
  const auto program = [&all](const std::string& label, const std::string& document,
                              bool isRefused) {
    all.push_back({label + "FromMemory", document,
                   [](as::IAgentServices& services, const std::string& text) -> as::IElement* {
                     return services.parseCobolDD("doc.xml", test::bytesOf(text),
                                                  test::lengthOf(text));
                   },
                   isRefused});
    all.push_back({label + "FromFile", document,
                   [](as::IAgentServices& services, const std::string&) -> as::IElement* {
                     return services.parseCobolDD("doc.xml");
                   },
                   isRefused});
  };
  program("Program", test::payProgram(), false);
  program("RefusedProgram", test::dictionaryOf("<unknown/>"), true);
  const auto service = [&all](const std::string& label, const std::string& document,
                              bool isRefused) {
    for (const test::ServiceForm& form : test::serviceForms) {
      for (const bool loadProgram : {false, true}) {
        all.push_back({label + form.label + (loadProgram ? "WithProgram" : ""), document,
                       [&form, loadProgram](as::IAgentServices& services,
                                            const std::string& text) -> as::IElement* {
                         std::string errorText;
                         return form.request(services, "doc.xml", text, errorText, loadProgram);
                       },
                       isRefused});
      }
    }
  };
  for (const ServiceSample& sample : test::samples::all) {
    service(sample.flavour.label,
            test::rootOf(sample, test::everything(sample), "dataDictFilename='PAY.xml'"), false);
  }
  service("Refused", test::payService("<unknown/>"), true);
  return all;
}

class ParseOutOfMemory : public testing::TestWithParam<Request> {
 protected:
  ParseOutOfMemory() {
    directory_.write("PAY.xml", test::payProgram());
    directory_.write("doc.xml", GetParam().document);
  }

  std::unique_ptr<as::IElement> run() const {
    return std::unique_ptr<as::IElement>(GetParam().run(*services_, GetParam().document));
  }

  static std::string treeOf(as::IElement& root) {
    return memory::treeText(as::interface_cast<CElementImpl>(&root)->getElement());
  }

 private:
  const test::CurrentDirectory directory_;
  const std::unique_ptr<as::IAgentServices> services_ = test::newServices();
};

INSTANTIATE_TEST_SUITE_P(Requests, ParseOutOfMemory, testing::ValuesIn(requests()),
                         test::labelOf<Request>);

TEST_P(ParseOutOfMemory, GivesAWholeModelOrNone) {
  std::string expected;
  if (!GetParam().isRefused) expected = treeOf(*run());
  const long held = memory::held();
  std::unique_ptr<as::IElement> root;
  const auto attempt = [&] {
    try {
      root = run();
    } catch (const as::CASParseException&) {
      if (!GetParam().isRefused) throw;
    }
  };
  const int failures = memory::untilNothingFails(
      attempt,
      [&](End end) {
        // The parser swallows what it does not know: there is nothing then.
        EXPECT_TRUE(end == End::well || end == End::inException);
        EXPECT_EQ(root, nullptr);
        EXPECT_EQ(memory::held(), held) << "blocks are lost";
      },
      Failing::ours);
  EXPECT_GT(failures, 3);
  EXPECT_EQ(root == nullptr, GetParam().isRefused);
  if (root != nullptr) {
    EXPECT_EQ(treeOf(*root), expected);
  }
  root.reset();
  EXPECT_EQ(memory::held(), held) << "blocks are lost";
}

TEST(EntryObjectOutOfMemory, IsToldByItsException) {
  const long held = memory::held();
  std::unique_ptr<as::IAgentServices> services;
  const int failures = memory::untilNothingFails(
      [&] { services.reset(as::CAgentServicesFactory::CreateAgentServices()); },
      [&](End end) {
        EXPECT_EQ(end, End::inException);
        EXPECT_EQ(memory::held(), held);
      });
  EXPECT_GE(failures, 1);
  EXPECT_NE(services, nullptr);
}

TEST(SchemaDirectoryOutOfMemory, IsTheOldOneOrTheNewOne) {
  const std::unique_ptr<as::IAgentServices> services = test::newServices();
  const std::string elsewhere(100, 'x');
  const int failures = memory::untilNothingFails(
      [&] { services->setSchemaLocation(elsewhere.c_str()); },
      [&](End end) {
        EXPECT_EQ(end, End::inBadAlloc);
        EXPECT_EQ(test::outcomeOf(*services, test::payProgram()).result, test::Result::root);
      });
  EXPECT_GE(failures, 1);
  EXPECT_NE(test::outcomeOf(*services, test::payProgram()).result, test::Result::root);
}

class NewServiceOutOfMemory : public testing::TestWithParam<Flavour> {};

INSTANTIATE_TEST_SUITE_P(Flavours, NewServiceOutOfMemory, testing::ValuesIn(test::flavours::all),
                         [](const auto& value) { return std::string(value.param.label); });

TEST_P(NewServiceOutOfMemory, LeavesTheProgramToTheCaller) {
  auto program = test::parse(test::payProgram());
  const long held = memory::held();
  std::unique_ptr<as::IService> service;
  const int failures =
      memory::untilNothingFails([&] { service.reset(GetParam().make(program.get())); },
                                [&](End end) {
                                  EXPECT_EQ(end, End::inException);
                                  EXPECT_EQ(service, nullptr);
                                  EXPECT_EQ(memory::held(), held) << "blocks are lost";
                                });
  EXPECT_GT(failures, 10);
  EXPECT_EQ(service->getProgram(), program.release());
}

}  // namespace
