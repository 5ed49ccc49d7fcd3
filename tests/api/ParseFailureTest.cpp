// Tests of what a failure to parse a document tells.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "support/Documents.h"
#include "support/Requests.h"
#include "support/TempDirectory.h"

namespace {

using test::dictionary;
using test::dictionaryOf;
using test::dictionaryWithHint;
using test::outcomeOf;
using test::outcomeOfFile;
using test::Result;
using test::TempDirectory;
using testing::HasSubstr;

const std::string ns = as::namespaces::dd.uri;

TEST(ParseFailure, NamesTheBuffer) {
  for (const char* id : {"payroll.xml", "some buffer", "memory:1",
                         "Stra\xC3\x9F"
                         "e",
                         "/no/such/directory/d.xml", ""}) {
    SCOPED_TRACE(id);
    const auto outcome = outcomeOf(*test::newServices(), dictionaryOf("<bogus/>"), id);
    ASSERT_EQ(outcome.result, Result::parseException);
    EXPECT_EQ(outcome.message.getSystemId(), id);
    EXPECT_EQ(outcome.message.getPublicId(), "");
  }
}

TEST(ParseFailure, NamesTheFile) {
  const TempDirectory directory;
  const std::string file = directory.write("Pr\xC3\xA4mie.xml", dictionaryOf("<bogus/>"));
  const auto outcome = outcomeOfFile(file);
  ASSERT_EQ(outcome.result, Result::parseException);
  EXPECT_EQ(outcome.message.getSystemId(), file);
  EXPECT_EQ(outcome.message.getPublicId(), "");
}

// Documents with an error in a known place. Lines are counted from the root's.
TEST(ParseFailure, TellsThePlaceAndTheMessage) {
  const struct {
    const char* what;
    const char* before;  // In front of the root.
    const char* content;
    int line;
    int column;
    int code;
    const char* text;
  } rows[] = {
      {"second < in a row", "\n", "\n  <<dataItems/>", 3, 4, 163, "element name expected"},
      {"the same to the right", "\n", "\n      <<dataItems/>", 3, 8, 163, "element name expected"},
      {"the same further down", "\n\n\n", "\n\n  <<dataItems/>", 6, 4, 163,
       "element name expected"},
      {"Windows line ends", "\r\n", "\r\n\r\n  <<dataItems/>", 4, 4, 163, "element name expected"},
      {"wrong end tag", "", "\n<dataItems></dataItem>", 2, 14, 180,
       "expected end of tag 'dataItems'"},
      {"unknown entity", "", "\n &undefined;", 2, 13, 202, "entity 'undefined' not found"},
      {"undeclared element", "", "\n<dataItems>\n<bogus/></dataItems>", 3, 9, 2,
       "no declaration found for element 'bogus'"},
      {"undeclared attribute", "", "\n\n<dataItems><group name='G' lenght='2'/></dataItems>", 3, 40,
       17, "attribute 'lenght' is not declared for element 'group'"},
      {"invalid value", "", "<dataItems>\n<group name='G' line='x'/></dataItems>", 2, 27, 210,
       "'x'"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.what);
    const auto outcome = outcomeOf(row.before + dictionary(row.content));
    ASSERT_EQ(outcome.result, Result::parseException);
    EXPECT_EQ(outcome.message.getLineNum(), row.line);
    EXPECT_EQ(outcome.message.getColNum(), row.column);
    EXPECT_EQ(outcome.message.getErrorCode(), row.code);
    EXPECT_THAT(outcome.message.getErrorText(), HasSubstr(row.text));
    EXPECT_EQ(outcome.message.getSystemId(), "test.xml");
  }
}

TEST(ParseFailure, TextIsUtf8) {
  EXPECT_THAT(outcomeOf(dictionaryOf("<gr\xC3\xB6\xC3\x9F"
                                     "er/>"))
                  .text,
              HasSubstr("'gr\xC3\xB6\xC3\x9F"
                        "er'"));
}

TEST(ParseFailure, TellsTheFirstErrorOnly) {
  const struct {
    const char* content;
    const char* first;
  } rows[] = {
      {"<dataItems><one/><two/></dataItems>", "one"},
      {"<dataItems><group name='G' one='1'/><group name='H' two='2'/></dataItems>", "one"},
      {"<dataItems><one/></dataItems><broken", "one"},
      {"<dataItems></broken><one/></dataItems>", "expected end of tag"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.content);
    EXPECT_THAT(outcomeOf(dictionary(row.content)).text, HasSubstr(row.first));
  }
}

// The schema of a namespace that is never used is missing: no more than a warning.
TEST(ParseFailure, IsThrownForWarningsToo) {
  const auto outcome = outcomeOf(dictionaryWithHint(ns + " urn:unused no-such-file.xsd"), "buffer");
  EXPECT_EQ(outcome.result, Result::parseException);
  EXPECT_THAT(outcome.text, HasSubstr("no-such-file.xsd"));
}

TEST(ParseFailure, TellsAMissingFile) {
  const TempDirectory directory;
  for (const std::string& file :
       {directory.path() + "/missing.xml", directory.path() + "/no/such/directory/d.xml"}) {
    SCOPED_TRACE(file);
    const auto outcome = outcomeOfFile(file);
    ASSERT_EQ(outcome.result, Result::parseException);
    EXPECT_EQ(outcome.message.getErrorCode(), 66);
    EXPECT_EQ(outcome.text, "unable to open primary document entity '" + file + "'");
    EXPECT_EQ(outcome.message.getLineNum(), 0);
    EXPECT_EQ(outcome.message.getColNum(), 0);
    EXPECT_EQ(outcome.message.getPublicId(), "");
    EXPECT_EQ(outcome.message.getSystemId(), file);
  }
}

TEST(ParseFailure, IsThrownForADirectory) {
  const TempDirectory directory;
  const auto outcome = outcomeOfFile(directory.path());
  EXPECT_EQ(outcome.result, Result::parseException);
  EXPECT_NE(outcome.text, "");
}

TEST(ParseFailure, IsThrownForAnEmptyFile) {
  const TempDirectory directory;
  const std::string file = directory.write("empty.xml", "");
  const auto outcome = outcomeOfFile(file);
  ASSERT_EQ(outcome.result, Result::parseException);
  EXPECT_EQ(outcome.message.getSystemId(), file);
}

}  // namespace
