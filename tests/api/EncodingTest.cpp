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
using test::encoded;
using test::encodingDeclaration;
using test::latin1;
using test::outcomeOf;
using test::Result;
using test::topItem;
using test::utf16;

std::string item(const std::string& name) { return dictionaryOf("<numeric name='" + name + "'/>"); }

// In the encoding that it declares.
std::string declaredAs(const std::string& encoding, const std::string& name) {
  return encoded(encodingDeclaration(encoding) + item(name), encoding);
}

// As far behind as the parser looks for it.
std::string toldLate(const std::string& encoding) {
  return encodingDeclaration(encoding).insert(encodingDeclaration("").find(" encoding"),
                                              std::string(15000, ' '));
}

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
      {"UTF-16LE without a byte order mark", declaredAs("UTF-16LE", umlauts)},
      {"UTF-16BE without a byte order mark", declaredAs("UTF-16BE", umlauts)},
      {"UTF-16 without a byte order mark",
       encoded(encodingDeclaration("UTF-16") + item(umlauts), "UTF-16LE")},
      {"UCS-4 with a byte order mark",
       encoded("\xEF\xBB\xBF" + encodingDeclaration("UCS-4") + item(umlauts), "UCS-4BE")},
      {"UCS-4 without a byte order mark",
       encoded(encodingDeclaration("UCS-4") + item(umlauts), "UCS-4LE")},
      {"UTF-32",
       encoded("\xEF\xBB\xBF" + encodingDeclaration("UTF-32") + item(umlauts), "UCS-4LE")},
      {"IBM037", declaredAs("IBM037", umlauts)},
      {"IBM1047", declaredAs("IBM1047", umlauts)},
      {"IBM1140", declaredAs("IBM1140", umlauts)},
      {"IBM01140", encoded(encodingDeclaration("IBM01140") + item(umlauts), "IBM1140")},
      {"ebcdic-cp-us", encoded(encodingDeclaration("ebcdic-cp-us") + item(umlauts), "IBM037")},
      {"ISO-8859-15", declaredAs("ISO-8859-15", umlauts)},
      {"XML 1.1", "<?xml version='1.1'?>" + item(umlauts)},
      {"ISO-8859-1 told late", latin1(toldLate("ISO-8859-1") + item(umlauts))},
      {"UTF-16 told late", utf16(toldLate("UTF-16") + item(umlauts), false)},
      {"IBM037 told late", encoded(toldLate("IBM037") + item(umlauts), "IBM037")},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.what);
    const auto outcome = outcomeOf(row.document);
    ASSERT_EQ(outcome.result, Result::root) << outcome.text;
    EXPECT_EQ(topItem<as::IDataItem>(*outcome.root)->getName(), umlauts);
  }
}

}  // namespace
