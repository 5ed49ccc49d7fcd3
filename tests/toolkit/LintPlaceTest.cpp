// Tests of where findings of lint stand in the text of documents, and of comments to lint.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "as/toolkit/Lint.h"
#include "support/Documents.h"
#include "support/Toolkit.h"

namespace {

namespace toolkit = as::toolkit;
using testing::ElementsAre;
using testing::IsEmpty;

class LintPlaceTest : public test::ToolkitTest {
 protected:
  void SetUp() override { write("PAY.xml", test::payProgram()); }

  // "LINE:COLUMN RULE" of each finding in a document.
  std::vector<std::string> placesIn(const std::string& document,
                                    const toolkit::LintOptions& options = {}) const {
    write("s.xml", document);
    const toolkit::Findings findings = toolkit::lintDocument(reader(), {"s.xml"}, options);
    const toolkit::Findings ofText = toolkit::lintDocument(reader(), {"s.xml", document}, options);
    EXPECT_EQ(placesOf(findings), placesOf(ofText));
    return placesOf(findings);
  }

  static std::vector<std::string> placesOf(const toolkit::Findings& findings) {
    std::vector<std::string> places;
    for (const toolkit::Finding& finding : findings) {
      places.push_back(std::to_string(finding.line) + ":" + std::to_string(finding.column) + " " +
                       finding.rule);
    }
    return places;
  }

  // A service whose root stands in a line of its own, the first.
  static std::string service(const std::string& content) { return test::payService(content); }

  static constexpr char unmapped[] = "<parameter name='p' dataType='int'/>";

  static std::string operation(const std::string& parameters) {
    return "<operations>\n<operation name='pay' entryPoint='PAY'>\n<parameters>\n" + parameters +
           "</parameters></operation></operations>";
  }
};

// What stands in front of a parameter in line 4, and the place of its finding.
struct PlaceRow {
  std::string label;
  std::string before;
  std::string place;
};

void PrintTo(const PlaceRow& row, std::ostream* out) { *out << row.label; }

class LintPlaceRowTest : public LintPlaceTest, public testing::WithParamInterface<PlaceRow> {};

TEST_P(LintPlaceRowTest, IsThatOfTheStartTag) {
  EXPECT_THAT(placesIn(service(operation(GetParam().before + unmapped))),
              ElementsAre(GetParam().place + " unmapped-field"));
}

INSTANTIATE_TEST_SUITE_P(
    Rows, LintPlaceRowTest,
    testing::Values(PlaceRow{"AtTheStartOfALine", "", "4:1"}, PlaceRow{"BehindBlanks", "  ", "4:3"},
                    PlaceRow{"BehindTabs", "\t\t", "4:3"},
                    PlaceRow{"BehindLineFeeds", "\n\n ", "6:2"},
                    PlaceRow{"BehindCarriageReturnsAndLineFeeds", "\r\n\r\n ", "6:2"},
                    PlaceRow{"BehindCarriageReturns", "\r\r ", "6:2"},
                    PlaceRow{"BehindALineFeedAndACarriageReturn", "\n\r ", "6:2"},
                    PlaceRow{"BehindLettersOfMoreBytes", "<!-- ä€𝄞 -->", "4:13"},
                    PlaceRow{"BehindACommentWithTags", "<!-- <parameter> -> > '\" \n -->", "5:5"},
                    PlaceRow{"BehindAnInstruction", "<?what <parameter> '?>", "4:23"}),
    test::labelOf<PlaceRow>);

TEST_F(LintPlaceTest, AttributesMayHoldWhatLooksLikeMarkup) {
  EXPECT_THAT(placesIn(service(operation(
                  "<parameter name='a>b/>' dataType='int' ><mappings>\n <mapping item=\"'>REQ.IDX\""
                  "/>\n\n  <mapping item='REQ.X'/></mappings></parameter >" +
                  std::string(unmapped)))),
              ElementsAre("5:2 lost-data-item", "7:3 lost-data-item", "7:50 unmapped-field"));
}

TEST_F(LintPlaceTest, EveryKindOfElementHasOne) {
  EXPECT_THAT(
      placesIn(test::webService(
          "implementation='ws' dataDictFilename='PAY.xml'",
          "<properties>\n<property name='a'/></properties>\n"
          "<parameterTypeDefs>\n<parameter name='T' dataType='int'/>\n</parameterTypeDefs>\n"
          "<operations>\n<operation name='o' style='document' inputUse='literal' "
          "outputUse='literal'>\n<hiddenParameters>\n<hiddenParameter item='RC'/>\n"
          "</hiddenParameters>\n<parameters>\n<parameter name='p' namespace='u'>\n"
          "<field name='f' dataType='int'>\n<fieldAttribute name='x' dataType='int'/>\n</field>\n"
          "</parameter>\n</parameters>\n<fault use='literal' namespace='u'>\n<parameters>\n"
          "<parameter name='fp' dataType='int'/>\n</parameters></fault>\n"
          "<header namespace='u' use='literal'/>\n</operation></operations>")),
      ElementsAre("1:1 unnamed-service", "4:1 unmapped-field", "7:1 unbound-operation",
                  "22:1 empty-message", "9:1 no-hidden-value", "14:1 unmapped-field",
                  "20:1 unmapped-field"));
}

TEST_F(LintPlaceTest, ElementsFromEntitiesStandWhereTheDocumentRefersToThem) {
  const std::string start =
      "<?xml version='1.0'?>\n<!DOCTYPE service [\n<!---> <!ENTITY p ''> ]> -->\n<?x ]>?>\n"
      "<!ELEMENT a EMPTY>\n<!ENTITY n \"name='n' dataType='int'\">\n"
      "<!ENTITY p \"<parameter name='p' dataType='int'/>&#60;!-- x -->\">\n"
      "<!ENTITY p ''>\n<!ENTITY two '&p; <parameter name=\"q\" dataType=\"int\"/>'>\n]>\n";
  EXPECT_THAT(placesIn(start + service(operation(" &two;  " + std::string(unmapped)))),
              ElementsAre("14:9 same-name", "14:2 unmapped-field", "14:2 unmapped-field",
                          "14:9 unmapped-field"));
}

TEST_F(LintPlaceTest, DocumentsMayBeInAnyEncoding) {
  const std::string text = service(operation("<!-- \xC3\xA4 --> " + std::string(unmapped)));
  const auto wide = [&text](bool isBigEnd) {
    std::string bytes;
    const auto add = [&](unsigned int unit) {
      const char high = static_cast<char>(unit >> 8U);
      const char low = static_cast<char>(unit & 0xFFU);
      bytes += isBigEnd ? high : low;
      bytes += isBigEnd ? low : high;
    };
    add(0xFEFF);
    for (std::size_t i = 0; i < text.size(); ++i) {
      const auto byte = static_cast<unsigned char>(text[i]);
      add(byte < 0x80 ? byte : 0xE4);
      if (byte >= 0x80) ++i;
    }
    return bytes;
  };
  std::string latin = "<?xml version='1.0' encoding='ISO-8859-1'?>" + text;
  latin.replace(latin.find("\xC3\xA4"), 2, "\xE4");
  for (const std::string& document :
       {text, "\xEF\xBB\xBF" + text, wide(true), wide(false), latin}) {
    EXPECT_THAT(placesIn(document), ElementsAre("4:12 unmapped-field"));
  }
}

// Comments to lint

TEST_F(LintPlaceTest, ACommentSwitchesRulesOffAtTheElementThatFollows) {
  const std::string off = "<!-- lint: off unmapped-field, lost-data-item -->\n";
  EXPECT_THAT(placesIn(service(operation(off + unmapped))), IsEmpty());
  EXPECT_THAT(placesIn(service(operation(
                  off + "<parameter name='p'>\n<field name='f' dataType='int'/></parameter>\n" +
                  "<parameter name='q' dataType='int'/>"))),
              ElementsAre("7:1 unmapped-field"));
  EXPECT_THAT(placesIn(off + service(operation(unmapped))), IsEmpty());
  EXPECT_THAT(placesIn(service(off + operation(unmapped))), IsEmpty());
}

TEST_F(LintPlaceTest, ACommentGivesRulesAnotherSeverity) {
  write("s.xml", service(operation("<!--lint: error unmapped-field-->" + std::string(unmapped))));
  const toolkit::Findings findings = toolkit::lintDocument(reader(), {"s.xml"});
  ASSERT_EQ(findings.size(), 1U);
  EXPECT_EQ(findings[0].severity, toolkit::Severity::error);
}

TEST_F(LintPlaceTest, TheInnermostCommentCounts) {
  EXPECT_THAT(
      placesIn("<!-- lint: off unmapped-field -->\n" +
               service(operation("<!-- lint: note unmapped-field -->\n" + std::string(unmapped)))),
      ElementsAre("6:1 unmapped-field"));
}

TEST_F(LintPlaceTest, OptionsSwitchRules) {
  toolkit::LintOptions options;
  options.rules["unmapped-field"] = *toolkit::findRuleSetting("off");
  EXPECT_THAT(placesIn(service(operation(unmapped)), options), IsEmpty());
  EXPECT_THAT(
      placesIn(service(operation("<!-- lint: warning unmapped-field -->" + std::string(unmapped))),
               options),
      ElementsAre("4:38 unmapped-field"));
}

TEST_F(LintPlaceTest, WhatACommentSaysWrongIsTold) {
  const struct {
    const char* comment;
    const char* text;
  } rows[] = {
      {"<!-- lint: off unmaped-field -->",
       "there is no rule 'unmaped-field'; did you mean 'unmapped-field'?"},
      {"<!-- lint: off x -->", "there is no rule 'x'; correct the name"},
      {"<!-- lint: on same-name -->",
       "'on' is nothing that can be said of rules; begin with one of off, note, warning, error"},
      {"<!-- lint: -->", "it says nothing; begin with one of off, note, warning, error"},
      {"<!-- lint: off -->", "it names no rule; write rules behind 'off'"},
  };
  for (const auto& row : rows) {
    write("s.xml", service(row.comment + std::string("<operations/>")));
    EXPECT_THAT(test::textsOf(toolkit::lintDocument(reader(), {"s.xml"})),
                ElementsAre("comment: " + std::string(row.text)));
  }
  write("s.xml", service("<operations/><!-- lint: off same-name -->"));
  EXPECT_THAT(
      test::textsOf(toolkit::lintDocument(reader(), {"s.xml"})),
      ElementsAre("comment: no element follows it, for which it could hold; move it in front "
                  "of the element that it is about"));
  EXPECT_THAT(placesIn(service("\n<operations/><!-- lint: off same-name -->")),
              ElementsAre("2:14 lint-comment"));
  EXPECT_THAT(placesIn(service("") + "<!-- lint: off same-name -->"),
              ElementsAre(testing::EndsWith(" lint-comment")));
}

// A comment is judged like what stands beside it.
TEST_F(LintPlaceTest, CommentsHoldForCommentsToo) {
  const std::string off = "<!-- lint: off lint-comment -->";
  const std::string wrong = "<!-- lint: off x -->";
  EXPECT_THAT(placesIn(off + service(wrong + "<operations/>")), IsEmpty());
  EXPECT_THAT(placesIn(off + wrong + service("") + wrong), IsEmpty());
  EXPECT_THAT(placesIn(service(off + "<operations>" + wrong + "</operations>")), IsEmpty());
  EXPECT_THAT(placesIn(service("\n" + wrong + off + "<operations/>")),
              ElementsAre("2:1 lint-comment"));
}

TEST_F(LintPlaceTest, OtherCommentsSayNothing) {
  EXPECT_THAT(placesIn(service("<!-- lint off x --><!-- a lint: off x --><!-- --><!-- lint: "
                               "error: so it says --><operations/>")),
              IsEmpty());
}

TEST_F(LintPlaceTest, ManyOfThemTakeTimeInProportion) {
  std::string parameters;
  for (int i = 0; i < 20000; ++i) {
    parameters += "<!-- lint: off unmapped-field --><parameter name='p" + std::to_string(i) +
                  "' dataType='int'/>\n";
  }
  EXPECT_THAT(placesIn(service(operation(parameters))), IsEmpty());
}

// Each of many fields is told with all that it stands in.
TEST_F(LintPlaceTest, PlacesAreNoLongerThanTheyAreRead) {
  std::string fields = "<field name='f'/>";
  for (int level = 0; level < 200; ++level) {
    fields = "<field name='" + std::string(100, 'n') + "'>" + fields + "</field>";
  }
  write("s.xml", service(operation("<parameter name='p'>" + fields + "</parameter>")));
  const toolkit::Findings findings = toolkit::lintFile(reader(), "s.xml");
  ASSERT_FALSE(findings.empty());
  EXPECT_THAT(findings.back().place,
              testing::AllOf(testing::StartsWith("pay.p.nnn"), testing::EndsWith("nnn.f")));
  for (const toolkit::Finding& finding : findings) EXPECT_LE(finding.place.size(), 4003U);
}

}  // namespace
