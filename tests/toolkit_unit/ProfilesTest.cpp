// Tests of what flavours know of objects that are not theirs, and of which type holds what another
// one does.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "as/IList.h"
#include "as/IOperation.h"
#include "as/IParameter.h"
#include "as/IService.h"
#include "as/toolkit/DocumentReader.h"
#include "support/Documents.h"
#include "toolkit/flavour/Capacity.h"
#include "toolkit/flavour/FlavourProfile.h"
#include "toolkit/flavour/Profiles.h"
#include "toolkit/io/ServiceText.h"

namespace as::toolkit {
namespace {

using testing::IsEmpty;

const std::vector<const FlavourProfile*>& profiles() {
  static const std::vector<const FlavourProfile*> all = {
#define AS_PROFILE(name) &name(),
#include "toolkit/flavour/Profiles.def"
  };
  return all;
}

// A service of the flavour with an operation and a parameter.
std::unique_ptr<as::IService> serviceOf(const FlavourProfile& profile) {
  const Flavour& flavour = profile.flavour();
  return DocumentReader(AS_SCHEMA_DIR)
      .readServiceText(
          test::serviceDocument(flavour.documents.uri,
                                std::string("name='S' implementation='") + flavour.word + "'",
                                "<operations><operation name='o'><parameters><parameter name='p'/>"
                                "</parameters></operation></operations>"),
          "s.xml");
}

as::IOperation& operationOf(as::IService& service) {
  return *as::interface_cast<as::IOperation>(service.getOperations()->getItem(0));
}

as::IField& parameterOf(as::IService& service) {
  return *as::interface_cast<as::IField>(operationOf(service).getParameters()->getItem(0));
}

std::string textOf(as::IService& service) { return documentOf(service, "s.xml"); }

// Each flavour with each other one.
template <class Visit>
void forEachPair(const Visit& visit) {
  for (const FlavourProfile* const profile : profiles()) {
    for (const FlavourProfile* const other : profiles()) {
      if (profile == other) continue;
      SCOPED_TRACE(profile->name() + std::string(" of ") + other->name());
      const std::unique_ptr<as::IService> service = serviceOf(*other);
      visit(*profile, *service);
    }
  }
}

TEST(Profiles, OwnTheirServicesAlone) {
  for (const FlavourProfile* const profile : profiles()) {
    EXPECT_TRUE(profile->owns(*serviceOf(*profile))) << profile->name();
  }
  forEachPair([](const FlavourProfile& profile, as::IService& service) {
    EXPECT_FALSE(profile.owns(service));
  });
}

TEST(Profiles, FindNothingOfTheirsInOthers) {
  forEachPair([](const FlavourProfile& profile, as::IService& service) {
    EXPECT_THAT(profile.traitsOf(operationOf(service)), IsEmpty());
    EXPECT_THAT(profile.traitsOf(parameterOf(service)), IsEmpty());
  });
}

TEST(Profiles, WriteNothingOfTheirsIntoOthers) {
  forEachPair([](const FlavourProfile& profile, as::IService& service) {
    const std::string before = textOf(service);
    profile.complete(service, operationOf(service));
    profile.setDataType(parameterOf(service), profile.dataTypes().front());
    profile.markReturned(parameterOf(service));
    EXPECT_EQ(textOf(service), before);
  });
}

// Those of Web services are read by the words, whatever wrote them.
TEST(Profiles, HaveDataTypesOfTheirOwn) {
  forEachPair([](const FlavourProfile& profile, as::IService& service) {
    if (profile.flavour().word == std::string("dotnet")) return;
    EXPECT_EQ(profile.dataTypeOf(parameterOf(service)), std::nullopt);
  });
}

TEST(Profiles, CompleteNothingThatIsTold) {
  for (const FlavourProfile* const profile : profiles()) {
    const std::unique_ptr<as::IService> service = serviceOf(*profile);
    profile->complete(*service, operationOf(*service));
    const std::string once = textOf(*service);
    profile->complete(*service, operationOf(*service));
    EXPECT_EQ(textOf(*service), once) << profile->name();
  }
}

TEST(Profiles, AreFoundByTheNamespacesOfTheirDocuments) {
  for (const FlavourProfile* const profile : profiles()) {
    EXPECT_EQ(findProfileOfDocuments(profile->flavour().documents.uri), profile);
  }
  EXPECT_EQ(findProfileOfDocuments("urn:none"), nullptr);
  EXPECT_EQ(findProfileOfDocuments(""), nullptr);
}

using Kind = Capacity::Kind;

struct Row {
  const char* label;
  Capacity larger;
  Capacity smaller;
  bool contains;
};

void PrintTo(const Row& row, std::ostream* out) { *out << row.label; }

class CapacityContains : public testing::TestWithParam<Row> {};

TEST_P(CapacityContains, WhatCanBeHeld) {
  EXPECT_EQ(contains(GetParam().larger, GetParam().smaller), GetParam().contains);
}

const Row rows[] = {
    {"SameKind", {Kind::text}, {Kind::text}, true},
    {"OtherKind", {Kind::text}, {Kind::bytes}, false},
    {"TextOfANumber", {Kind::text}, {Kind::integer, 4, 16}, false},
    {"NumberOfAText", {Kind::decimal}, {Kind::text}, false},
    {"LongerFloat", {Kind::floating, 15}, {Kind::floating, 6}, true},
    {"ShorterFloat", {Kind::floating, 6}, {Kind::floating, 15}, false},
    {"FloatInDecimalsOfAnySize", {Kind::decimal}, {Kind::floating, 15}, true},
    {"FloatInDecimalsOfASize", {Kind::decimal, 28}, {Kind::floating, 15}, false},
    {"FloatInIntegersOfAnySize", {Kind::decimal, 0, 0, true, 0}, {Kind::floating, 15}, false},
    {"FloatInAnInteger", {Kind::integer, 18, 64}, {Kind::floating, 6}, false},
    {"WiderInteger", {Kind::integer, 9, 32}, {Kind::integer, 4, 16}, true},
    {"NarrowerInteger", {Kind::integer, 4, 16}, {Kind::integer, 9, 32}, false},
    {"UnsignedInSignedOfOneSize", {Kind::integer, 4, 16}, {Kind::integer, 4, 16, false}, false},
    {"UnsignedInSignedOfMore", {Kind::integer, 9, 32}, {Kind::integer, 4, 16, false}, true},
    {"SignedInUnsigned", {Kind::integer, 9, 32, false}, {Kind::integer, 4, 16}, false},
    {"IntegerInDecimal", {Kind::decimal, 28}, {Kind::integer, 18, 64}, true},
    {"IntegerInShortDecimal", {Kind::decimal, 5}, {Kind::integer, 9, 32}, false},
    {"IntegerInFloat", {Kind::floating, 15}, {Kind::integer, 9, 32}, true},
    {"EndlessIntegerInAnInteger", {Kind::integer, 18, 64}, {Kind::integer}, false},
    {"EndlessIntegerInAnEndlessOne", {Kind::integer}, {Kind::integer}, true},
    {"EndlessIntegerInDecimals", {Kind::decimal, 0, 0, true, 0}, {Kind::integer}, true},
    {"EndlessIntegerInDecimalsOfASize", {Kind::decimal, 28}, {Kind::integer}, false},
    {"EndlessIntegerInSoManyWholeDigits",
     {Kind::decimal, 0, 0, true, 4, 15},
     {Kind::integer},
     false},
    {"EndlessIntegerInAFloat", {Kind::floating, 15}, {Kind::integer}, false},
    {"IntegerOfDigitsAlone", {Kind::integer, 9, 32}, {Kind::integer, 4}, true},
    {"DecimalInDecimals", {Kind::decimal}, {Kind::decimal, 28}, true},
    {"EndlessDecimalInDecimalsOfASize", {Kind::decimal, 28}, {Kind::decimal}, false},
    {"EndlessDecimalInAnInteger", {Kind::integer, 18, 64}, {Kind::decimal, 0, 0, true, 0}, false},
    {"EndlessDecimalInWholeDigits", {Kind::decimal, 0, 0, true, 4, 15}, {Kind::decimal}, false},
    {"AnyPlacesInSome", {Kind::decimal, 0, 0, true, 4}, {Kind::decimal, 28}, false},
    {"SomePlacesInFewer", {Kind::decimal, 0, 0, true, 2}, {Kind::decimal, 9, 0, true, 4}, false},
    {"SomePlacesInMore", {Kind::decimal, 0, 0, true, 4}, {Kind::decimal, 9, 0, true, 2}, true},
    {"WholeDigitsThatFit",
     {Kind::decimal, 0, 0, true, 4, 15},
     {Kind::decimal, 0, 0, true, 2, 15},
     true},
    {"WholeDigitsThatDoNot",
     {Kind::decimal, 0, 0, true, 4, 15},
     {Kind::decimal, 0, 0, true, 2, 16},
     false},
    {"WholeNumberInAnInteger", {Kind::integer, 9, 32}, {Kind::decimal, 9, 0, true, 0}, true},
    {"FractionInAnInteger", {Kind::integer, 9, 32}, {Kind::decimal, 9, 0, true, 2}, false},
};

INSTANTIATE_TEST_SUITE_P(Rows, CapacityContains, testing::ValuesIn(rows),
                         [](const auto& row) { return std::string(row.param.label); });

}  // namespace
}  // namespace as::toolkit
