// Tests of pages of reference, and of what all kinds call files and tell about a service.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/GeneratedWeb.h"
#include "support/Json.h"

namespace {

namespace toolkit = as::toolkit;
using namespace test::web;
using nlohmann::json;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

using GeneratePages = test::GenerateWebTest;

TEST_F(GeneratePages, ConditionsOfAnItemAreToldOfOnce) {
  const std::string twice = parameter("name='p' byType='in' dataType='int'", mapped("STATE")) +
                            parameter("name='q' byType='in' dataType='int'", mapped("STATE")) +
                            parameter("name='r' byType='in' dataType='decimal'", mapped("AMOUNT"));
  for (const char* const kind : {"xsd", "openapi"}) {
    const toolkit::Generated made =
        this->made(kind, {operation("op", twice), ""}, optionsOf({{"conditions", "enumerations"}}));
    std::vector<std::string> told;
    for (const toolkit::Finding& finding : made.findings) {
      if (finding.rule == "other-conditions") told.push_back(finding.place);
    }
    EXPECT_THAT(told, ElementsAre("op.p", "op.r")) << kind;
  }
}

TEST_F(GeneratePages, FilesAreCalledAsTheServiceInLettersThatAnyDiskTakes) {
  struct Row {
    std::string name;
    std::string stem;
  };
  for (const Row& row :
       {Row{"az_AZ-09.x", "az_AZ-09.x"}, Row{"-.a", "_.a"}, Row{"../x", "_._x"}, Row{"", "service"},
        Row{"ä b/c\\d", "__b_c_d"}, Row{std::string(100, 'n'), std::string(100, 'n')}}) {
    const toolkit::Generated made =
        this->made("markdown", {operation("op", ""), "", "name='" + row.name + "'"});
    ASSERT_THAT(made.files, SizeIs(1)) << row.name;
    EXPECT_EQ(made.files[0].name, row.stem + ".md");
  }
  const auto nameOf = [this](char last) {
    return made("markdown",
                {operation("op", ""), "", "name='" + std::string(200, 'n') + last + "'"})
        .files.at(0)
        .name;
  };
  EXPECT_EQ(nameOf('1').size(), 100U + 1U + 8U + 3U);
  EXPECT_NE(nameOf('1'), nameOf('2'));
}

TEST_F(GeneratePages, OperationsAndMessagesWithoutNamesHavePlaces) {
  const Service service = {
      operation("op", "",
                message("fault", parameter("name='f' byType='out'",
                                           "<mappings/>" + field("name='why'" + out)))),
      ""};
  EXPECT_THAT(text("markdown", service), HasSubstr("op, fault 1.f"));
}

// A name that would begin a list, or code, at the start of a list item.
TEST_F(GeneratePages, NamesOfPropertiesBeginNothing) {
  const std::string page = text("markdown", Service{operation("op", ""), "", "name='Tests'",
                                                    "<property name='1. one' value='x'/>"
                                                    "<property name='- two' value='y'/>"});
  EXPECT_THAT(page, HasSubstr("\n- **1. one**: x\n- **- two**: y\n"));
}

TEST_F(GeneratePages, PagesTellWhatLintFinds) {
  const std::string page = text("markdown", operation("op", parameter("name='p'" + in, "") +
                                                                parameter("name='q|r'" + in, "")));
  EXPECT_THAT(page, HasSubstr("## Findings\n\n- warning: op.p: it is mapped to no data item; add a "
                              "mapping or remove it\n"));
  EXPECT_THAT(page, HasSubstr("- warning: op.q\\|r: "));
  EXPECT_THAT(page, Not(HasSubstr("## Types")));
  EXPECT_THAT(text("markdown", operation("op", parameter("name='p'" + in))),
              Not(HasSubstr("## Findings")));
}

TEST_F(GeneratePages, PagesTellWhatStandsInItself) {
  const Service service = {
      operation("op", parameter("name='p' byType='in' ref='Node'", "")),
      parameter("name='Node'",
                "<mappings/>" + field("name='next' ref='Node'", "") + field("name='v'" + in)) +
          parameter("name='List' occurs='3'", "<mappings/>" + field("name='v'" + in)) +
          parameter("name='Mapped'", mapped("GROUP") + field("name='v'" + in))};
  const std::string page = text("markdown", service);
  EXPECT_THAT(page, HasSubstr("type Node\n\nIt stands in itself.\n"));
  // A field that stands in what it is need not be there.
  EXPECT_THAT(page, HasSubstr("| next | [Node](#type-1) | 0 to 1 |"));
  // What a type says beside its fields.
  EXPECT_THAT(page, HasSubstr("| List | [List](#type-2) | 3 |"));
  EXPECT_THAT(page, HasSubstr("| Mapped | [Mapped](#type-3) |  | R.GROUP |"));
  EXPECT_THAT(page, Not(HasSubstr("| Node | [Node]")));
}

TEST_F(GeneratePages, PagesAreOfOneLineAWord) {
  const Service service = {operation("a&#9;b&#10;c\x7F|d", ""), ""};
  EXPECT_THAT(text("markdown", service), HasSubstr("### a b c \\|d\n"));
}

TEST_F(GeneratePages, WhatIsMadeOfServicesIsNotMadeOfADictionary) {
  write("p.xml", test::dictionary(""));
  std::vector<std::string> refusing;
  for (const toolkit::GeneratorKind& kind : toolkit::generatorKinds()) {
    if (kind.takesDictionaries) continue;
    const std::string word = kind.word;
    try {
      toolkit::generateFrom(reader(), kind, {"p.xml"}, {});
    } catch (const toolkit::RefusedDocument& refused) {
      const toolkit::Refusal& refusal = refused.refusal();
      EXPECT_EQ(toolkit::textOf(refusal),
                "p.xml: " + word + " is made of services, this is a dictionary");
      EXPECT_EQ(refusal.hint, "make a service of it with 'new'");
      EXPECT_TRUE(refusal.isOfAnotherKind);
      refusing.push_back(word);
    }
  }
  EXPECT_THAT(refusing, testing::IsSupersetOf({"openapi", "wsdl"}));
}

// References that nothing stops.
TEST_F(GeneratePages, AReferenceThatLeadsNowhereMakesNothing) {
  const Service service = {operation("op", parameter("name='p' byType='in' ref='None'", "")),
                           "",
                           "name='Tests'",
                           "",
                           {"lost-type"}};
  const toolkit::Generated made = this->made("xsd", service);
  EXPECT_THAT(made.files, IsEmpty());
  // Lint is not asked to tell of it.
  ASSERT_EQ(made.findings.size(), 1u);
  EXPECT_EQ(
      toolkit::textOf(made.findings[0]),
      "error: service: the type definition that a parameter refers to does not stand in front of "
      "it; correct \"ref\" or add the definition");
}

}  // namespace
