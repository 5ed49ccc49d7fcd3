// Tests of the encodings of documents.
#include <gtest/gtest.h>

#include <string>

#include "as/AgentServices.h"
#include "support/Documents.h"
#include "support/Encodings.h"
#include "support/Model.h"
#include "support/Requests.h"

namespace {

using test::dictionaryOf;
using test::encodingDeclaration;
using test::latin1;
using test::outcomeOf;
using test::Result;
using test::topItem;
using test::utf16;

std::string item(const std::string& name) { return dictionaryOf("<numeric name='" + name + "'/>"); }

TEST(Encoding, ManyAreRead) {
  const std::string umlauts = "\xC3\x84\xC3\xA9";  // UTF-8
  const struct {
    const char* what;
    std::string document;
  } rows[] = {
      {"UTF-8 without a declaration", item(umlauts)},
      {"UTF-8 declared", encodingDeclaration("UTF-8") + item(umlauts)},
      {"UTF-8 declared in small letters", encodingDeclaration("utf-8") + item(umlauts)},
      {"UTF-8 with a byte order mark", "\xEF\xBB\xBF" + item(umlauts)},
      {"UTF-8 with both", "\xEF\xBB\xBF" + encodingDeclaration("UTF-8") + item(umlauts)},
      {"ISO-8859-1", latin1(encodingDeclaration("ISO-8859-1") + item(umlauts))},
      {"windows-1252", latin1(encodingDeclaration("windows-1252") + item(umlauts))},
      {"US-ASCII", encodingDeclaration("US-ASCII") + item("&#xC4;&#233;")},
      {"UTF-16 little endian", utf16(encodingDeclaration("UTF-16") + item(umlauts), false)},
      {"UTF-16 big endian", utf16(encodingDeclaration("UTF-16") + item(umlauts), true)},
      {"UTF-16 without a declaration", utf16(item(umlauts), false)},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.what);
    const auto outcome = outcomeOf(row.document);
    ASSERT_EQ(outcome.result, Result::root) << outcome.text;
    EXPECT_EQ(topItem<as::IDataItem>(*outcome.root)->getName(), umlauts);
  }
}

TEST(Encoding, WrongOnesAreRefused) {
  const struct {
    const char* what;
    std::string document;
  } rows[] = {
      {"unknown", encodingDeclaration("EBCDIC-XX-77") + item("N")},
      {"ISO-8859-1 taken for UTF-8", item("\xC4 \xE9")},
      {"lone continuation byte", item("\x80")},
      {"overlong sequence", item("\xC0\xAF")},
      {"surrogate", item("\xED\xA0\x80")},
      {"beyond Unicode", item("\xF4\x90\x80\x80")},
      {"cut sequence", item("\xE2\x82")},
      {"half a UTF-16 unit", utf16(item("N"), false).substr(0, 99)},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.what);
    EXPECT_EQ(outcomeOf(row.document).result, Result::parseException);
  }
}

TEST(Encoding, ZeroBytesAreRefused) {
  const std::string zero(1, '\0');
  const std::string document = dictionaryOf("<numeric name='N'/>");
  for (const char* before : {"<program", " name=", "PAYROLL", "<dataItems", "dataItems>",
                             "numeric ", "N'", "</program>"}) {
    SCOPED_TRACE(before);
    std::string text = document;
    text.insert(text.find(before), zero);
    EXPECT_EQ(outcomeOf(text).result, Result::parseException);
  }
  EXPECT_EQ(outcomeOf(std::string(100, '\0')).result, Result::parseException);
}

}  // namespace
