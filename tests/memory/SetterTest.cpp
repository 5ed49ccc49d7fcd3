// Tests of setters when memory runs out half-way: each attribute has its old or its new value, the
// next call succeeds, and nothing is lost.
#include <gtest/gtest.h>

#include <cstddef>
#include <map>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "memory/Allocations.h"
#include "memory/Attempts.h"
#include "memory/DomMemory.h"
#include "support/Calls.h"
#include "support/Labels.h"
#include "support/ServiceSamples.h"
#include "xml/AttributeValue.h"
#include "xml/XStr.h"

namespace {

using memory::End;
using memory::Failing;
using test::ServiceSample;
using test::calls::Call;
using Attributes = std::map<std::string, std::string>;

std::unique_ptr<as::IService> serviceOf(const ServiceSample& sample) {
  return test::parseService(test::rootOf(sample, test::everything(sample)));
}

// Leaves the attributes as they are: the DOM may have no nodes of them yet.
Attributes attributesOf(as::IElement* object) {
  Attributes all;
  visitAttributes(*as::interface_cast<CElementImpl>(object)->getElement(),
                  [&all](const XMLCh* name, const XMLCh* text) {
                    all[CXStr(name, false)] = std::string(CXStr(text, false));
                  });
  return all;
}

struct Case {
  std::string label;
  const ServiceSample* sample;
  Call call;
  std::size_t object;  // The number of the first one that takes the call.
};

void PrintTo(const Case& of, std::ostream* out) { *out << of.label; }

// Values that are in no sample.
constexpr std::size_t value = 4;

std::vector<Case> cases() {
  std::vector<Case> all;
  for (const ServiceSample& sample : test::samples::all) {
    const auto service = serviceOf(sample);
    const std::vector<test::calls::Object> objects = test::calls::Walk(*service).objects;
    for (const Call& call : test::calls::setters()) {
      std::size_t at = 0;
      while (at < objects.size() && !call.make(objects[at], value)) at++;
      if (at == objects.size()) continue;
      const std::size_t colons = call.name.find("::");
      all.push_back({std::string(sample.flavour.label) + "_" + call.name.substr(0, colons) + "_" +
                         call.name.substr(colons + 2),
                     &sample, call, at});
    }
  }
  return all;
}

class SetterOutOfMemory : public testing::TestWithParam<Case> {
 protected:
  static test::calls::Object objectOf(as::IService& service) {
    return test::calls::Walk(service).objects.at(GetParam().object);
  }

  static Attributes attributesAfterTheCall() {
    const auto service = serviceOf(*GetParam().sample);
    const test::calls::Object object = objectOf(*service);
    GetParam().call.make(object, value);
    return attributesOf(object.element);
  }

  // Calls until nothing fails.
  template <class Arm>
  static void expectOldOrNew(as::IService& service, const Arm& arm) {
    const Attributes after = attributesAfterTheCall();
    const test::calls::Object object = objectOf(service);
    const Attributes before = attributesOf(object.element);
    memory::untilNothingFails(
        arm, [&] { GetParam().call.make(object, value); },
        [&](End end) {
          EXPECT_EQ(end, End::inBadAlloc);
          for (const auto& [name, text] : attributesOf(object.element)) {
            const auto old = before.find(name);
            const bool isOld = old != before.end() && text == old->second;
            EXPECT_TRUE(isOld || text == after.at(name)) << name << "=\"" << text << '"';
          }
          for (const auto& [name, text] : before) {
            EXPECT_EQ(attributesOf(object.element).count(name), 1u) << name;
          }
        });
    EXPECT_EQ(attributesOf(object.element), after);
  }
};

INSTANTIATE_TEST_SUITE_P(All, SetterOutOfMemory, testing::ValuesIn(cases()), test::labelOf<Case>);

TEST_P(SetterOutOfMemory, LeavesOldOrNewValues) {
  const long held = memory::held();
  {
    const auto service = serviceOf(*GetParam().sample);
    expectOldOrNew(*service, [](long n) { return Failing(n); });
  }
  EXPECT_EQ(memory::held(), held) << "blocks are lost";
}

TEST_P(SetterOutOfMemory, OfTheDomLeavesOldOrNewValues) {
  const long held = memory::held();
  {
    const auto service = serviceOf(*GetParam().sample);
    memory::DomMemory dom(*service);
    expectOldOrNew(*service, [&dom](long n) { return dom.failingAt(n); });
  }
  EXPECT_EQ(memory::held(), held) << "blocks are lost";
}

}  // namespace
