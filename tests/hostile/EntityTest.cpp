// Tests of documents with internal entities: they are what they stand for, and do not blow up.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstddef>
#include <string>

#include "hostile/Texts.h"
#include "support/Documents.h"
#include "support/Model.h"
#include "support/Requests.h"

namespace {

using hostile::doctype;
using hostile::laughs;
using hostile::repeated;
using test::dictionary;
using test::dictionaryOf;
using test::itemOf;
using test::outcomeOf;
using test::Result;
using test::topItem;

TEST(HostileEntity, StandsForItsTextAsIfWrittenThere) {
  const auto outcome = outcomeOf(
      doctype("<!ENTITY name 'PR\xC3\x84MIE'><!ENTITY item '<numeric name=\"&name;\" line=\"7\">"
              "<numericCondition name=\"C\">&value;</numericCondition></numeric>'>"
              "<!ENTITY value '<numericConstant value=\"1\"/>'><!ENTITY nothing ''>"
              "<!ENTITY pair '&item;<group name=\"INNER\">&item;</group>'>") +
      dictionaryOf("<group name='G-&name;'>&item;&nothing;<alphanumeric name='A'/> &pair;</group>"
                   "&item;&nothing;"));
  ASSERT_EQ(outcome.result, Result::root) << outcome.text;
  ASSERT_EQ(outcome.root->getDataItems()->getLength(), 2);
  auto* const group = topItem<as::IGroup>(*outcome.root);
  EXPECT_EQ(group->getName(), "G-PR\xC3\x84MIE");
  as::IList* const children = group->getChildren();
  ASSERT_EQ(children->getLength(), 4);
  auto* const inner = itemOf<as::IGroup>(children, 3);
  ASSERT_NE(inner, nullptr);
  ASSERT_EQ(inner->getChildren()->getLength(), 1);
  EXPECT_EQ(itemOf<as::IDataItem>(children, 1)->getName(), "A");
  as::IDataItem* const copies[] = {
      itemOf<as::IDataItem>(children, 0), itemOf<as::IDataItem>(children, 2),
      itemOf<as::IDataItem>(inner->getChildren(), 0), topItem<as::IDataItem>(*outcome.root, 1)};
  as::IGroup* const parents[] = {group, group, inner, nullptr};
  for (int i = 0; i < 4; i++) {
    SCOPED_TRACE(i);
    ASSERT_NE(copies[i], nullptr);
    EXPECT_EQ(copies[i]->getName(), "PR\xC3\x84MIE");
    EXPECT_EQ(copies[i]->getLine(), 7);
    EXPECT_EQ(copies[i]->getParent(), parents[i]);
    ASSERT_EQ(copies[i]->getConditions()->getLength(), 1);
    EXPECT_EQ(itemOf<as::ICondition>(copies[i]->getConditions(), 0)->getLength(), 1);
  }
}

TEST(HostileEntity, IsValidatedAsIfWrittenThere) {
  for (const char* text : {"<bogus/>", "text", "<alphanumericEdited name=\"A\"/>",
                           "<numeric name=\"N\" length=\"ten\"/>", "<numeric name=\"N\">"}) {
    SCOPED_TRACE(text);
    EXPECT_EQ(outcomeOf(doctype("<!ENTITY e '" + std::string(text) + "'>") +
                        dictionaryOf("<group name='G'>&e;</group>"))
                  .result,
              Result::parseException);
  }
}

TEST(HostileEntity, ThatHoldsItselfIsRefused) {
  for (const char* declarations : {"<!ENTITY e '&e;'>", "<!ENTITY e '&f;'><!ENTITY f '&e;'>",
                                   "<!ENTITY e 'x&f;'><!ENTITY f '&g;&g;'><!ENTITY g '&e;'>",
                                   "<!ENTITY % e '&#37;e;'> %e;<!ENTITY e ''>"}) {
    SCOPED_TRACE(declarations);
    EXPECT_EQ(outcomeOf(doctype(declarations) + dictionaryOf("<group name='&e;'/>")).result,
              Result::parseException);
    EXPECT_EQ(outcomeOf(doctype(declarations) + dictionaryOf("<group name='G'>&e;</group>")).result,
              Result::parseException);
  }
}

TEST(HostileEntity, ThatGrowsWithoutEndIsRefused) {
  const std::string item = "<numeric name=\"N\"/>";
  const struct {
    const char* what;
    std::string document;
  } rows[] = {
      {"in an attribute",
       doctype(laughs("&", "", 12, "ha")) + dictionaryOf("<group name='&e12;'/>")},
      {"as content",
       doctype(laughs("&", "", 12, item)) + dictionaryOf("<group name='G'>&e12;</group>")},
      {"as blanks",
       doctype(laughs("&", "", 12, " ")) + dictionaryOf("<group name='G'>&e12;</group>")},
      {"as nothing",
       doctype(laughs("&", "", 12, "")) + dictionaryOf("<group name='G'>&e12;</group>")},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.what);
    EXPECT_EQ(outcomeOf(row.document).result, Result::parseException);
  }
}

// The same within a DTD: ten thousand of them from a few lines.
TEST(HostileEntity, OfADtdThatGrowsWithoutEndIsRefused) {
  const struct {
    const char* what;
    std::string declarations;
  } rows[] = {
      {"parameter entity", laughs("&#37;", "% ", 4, "<!-- ha -->") + " %e4;"},
      {"default of an attribute", laughs("&", "", 4, "ha") + "<!ATTLIST program x CDATA '&e4;'>"},
      {"default of a declared attribute",
       laughs("&", "", 4, "ha") + "<!ELEMENT program ANY><!ATTLIST program x CDATA #FIXED '&e4;'>"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.what);
    EXPECT_EQ(outcomeOf(doctype(row.declarations) + dictionary("")).result, Result::parseException);
    // Not before a foreign root either: that is told only once the growing is over.
    EXPECT_EQ(outcomeOf(doctype(row.declarations) + "<program/>").result, Result::parseException);
  }
}

// Many times a long text: as much as the limits let through is read, and more refused.
TEST(HostileEntity, RepeatedIsBounded) {
  const auto document = [](int length, int times) {
    return doctype("<!ENTITY e '" + std::string(static_cast<std::size_t>(length), 'x') + "'>") +
           dictionaryOf("<group name='" + repeated("&e;", times) + "'/>");
  };
  const auto good = outcomeOf(document(60000, 100));
  ASSERT_EQ(good.result, Result::root) << good.text;
  EXPECT_EQ(topItem<as::IDataItem>(*good.root)->getName(), std::string(6000000, 'x'));
  EXPECT_EQ(outcomeOf(document(60000, 20000)).result, Result::parseException);
  EXPECT_EQ(outcomeOf(document(1000000, 2)).result, Result::parseException);
}

// A hundred kilobytes in every one of a thousand items.
TEST(HostileEntity, DtdDefaultRepeatedIsBounded) {
  EXPECT_EQ(outcomeOf(doctype("<!ELEMENT program ANY><!ELEMENT dataItems ANY><!ELEMENT numeric ANY>"
                              "<!ATTLIST numeric picture CDATA '" +
                              std::string(100000, 'X') + "'>") +
                      dictionaryOf(repeated("<numeric name='N'/>", 1000)))
                .result,
            Result::parseException);
}

}  // namespace
