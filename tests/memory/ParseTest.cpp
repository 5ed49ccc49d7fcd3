// Tests of parse requests and of new services when memory runs out half-way: there is a whole model
// or none, and nothing is lost.
#include <gtest/gtest.h>

#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "memory/Allocations.h"
#include "memory/Models.h"

namespace {

using memory::Failing;
using test::Flavour;

struct Request {
  std::string label;
  std::unique_ptr<as::IElement> (*run)(const Flavour&);
  const Flavour* flavour;
};

void PrintTo(const Request& request, std::ostream* out) { *out << request.label; }

std::unique_ptr<as::IElement> parseService(const Flavour& flavour) {
  return memory::parsedModel(flavour).service;
}

std::unique_ptr<as::IElement> parseProgram(const Flavour& /*flavour*/) {
  return test::parse(test::payProgram());
}

std::vector<Request> requests() {
  std::vector<Request> all = {{"Program", parseProgram, &test::flavours::all.front()}};
  for (const Flavour& flavour : test::flavours::all) {
    all.push_back({flavour.label, parseService, &flavour});
  }
  return all;
}

class ParseOutOfMemory : public testing::TestWithParam<Request> {
 protected:
  static std::string treeOf(as::IElement& root) {
    return memory::treeText(as::interface_cast<CElementImpl>(&root)->getElement());
  }
};

INSTANTIATE_TEST_SUITE_P(Requests, ParseOutOfMemory, testing::ValuesIn(requests()),
                         [](const auto& value) { return value.param.label; });

TEST_P(ParseOutOfMemory, GivesAWholeModelOrNone) {
  const auto run = [] { return GetParam().run(*GetParam().flavour); };
  const std::string expected = treeOf(*run());
  const long held = memory::held();
  int failures = 0;
  for (bool failed = true; failed; failures++) {
    std::unique_ptr<as::IElement> root;
    {
      const Failing failing(failures + 1, Failing::ours);
      try {
        root = run();
      } catch (...) {
        root.reset();
      }
    }
    failed = Failing::happened();
    if (root != nullptr) {
      EXPECT_EQ(treeOf(*root), expected) << failures;
    }
    EXPECT_EQ(root == nullptr, failed) << failures;
    root.reset();
    ASSERT_EQ(memory::held(), held) << "blocks are lost at allocation " << failures;
  }
  EXPECT_GT(failures, 10);
}

class NewServiceOutOfMemory : public testing::TestWithParam<Flavour> {};

INSTANTIATE_TEST_SUITE_P(Flavours, NewServiceOutOfMemory, testing::ValuesIn(test::flavours::all),
                         [](const auto& value) { return std::string(value.param.label); });

TEST_P(NewServiceOutOfMemory, LeavesTheProgramToTheCaller) {
  auto program = test::parse(test::payProgram());
  const long held = memory::held();
  int failures = 0;
  std::unique_ptr<as::IService> service;
  for (bool failed = true; failed; failures++) {
    {
      const Failing failing(failures + 1);
      try {
        service.reset(GetParam().make(program.get()));
      } catch (...) {
        service.reset();
      }
    }
    failed = Failing::happened();
    ASSERT_EQ(service == nullptr, failed) << failures;
    if (failed) {
      ASSERT_EQ(memory::held(), held) << "blocks are lost at allocation " << failures;
    }
  }
  EXPECT_GT(failures, 10);
  EXPECT_EQ(service->getProgram(), program.release());
}

}  // namespace
