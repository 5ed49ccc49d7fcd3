// Tests of documents that are large in one way or another.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "hostile/Texts.h"
#include "support/Documents.h"
#include "support/Model.h"
#include "support/Requests.h"

namespace {

using hostile::doctype;
using hostile::repeated;
using test::dictionaryOf;
using test::itemOf;
using test::outcomeOf;
using test::Result;
using test::topItem;
using testing::AnyOf;
using testing::HasSubstr;

TEST(HostileSize, ThousandLevelsAreRead) {
  constexpr int levels = 1000;
  const auto outcome =
      outcomeOf(dictionaryOf(repeated("<group name='G'>", levels) + "<numeric name='INNERMOST'/>" +
                             repeated("</group>", levels)));
  ASSERT_EQ(outcome.result, Result::root) << outcome.text;
  auto* item = topItem<as::IDataItem>(*outcome.root);
  int depth = 0;
  while (auto* const group = as::interface_cast<as::IGroup>(item)) {
    ASSERT_EQ(group->getChildren()->getLength(), 1);
    item = itemOf<as::IDataItem>(group->getChildren(), 0);
    EXPECT_EQ(item->getParent(), group);
    depth++;
  }
  EXPECT_EQ(depth, levels);
  EXPECT_EQ(item->getName(), "INNERMOST");
}

TEST(HostileSize, ManyMoreLevelsAreRefused) {
  for (const int levels : {5000, 100000}) {
    SCOPED_TRACE(levels);
    const std::string open = repeated("<group name='G'>", levels);
    const auto closed = outcomeOf(dictionaryOf(open + repeated("</group>", levels)));
    EXPECT_EQ(closed.result, Result::parseException);
    EXPECT_THAT(closed.text, HasSubstr("nested"));
    EXPECT_EQ(outcomeOf(dictionaryOf(open)).result, Result::parseException);
    // Levels of no document of ours.
    EXPECT_THAT(outcomeOf(repeated("<x>", levels)).result, Result::namespaceException);
  }
}

TEST(HostileSize, LevelsMadeByEntitiesCountToo) {
  std::string declarations = "<!ENTITY e0 ''>";
  for (int i = 1; i <= 100; i++) {
    declarations += "<!ENTITY e" + std::to_string(i) + " '" + repeated("<group name=\"G\">", 50) +
                    "&e" + std::to_string(i - 1) + ";" + repeated("</group>", 50) + "'>";
  }
  EXPECT_EQ(outcomeOf(doctype(declarations) + dictionaryOf("&e100;")).result,
            Result::parseException);
}

TEST(HostileSize, WhatIsNoElementIsPassedOver) {
  for (const char* filler : {"<!-- x -->", "<?target data?>", "\n ", "<![CDATA[]]>"}) {
    SCOPED_TRACE(filler);
    const std::string many = repeated(filler, 200000);
    const auto outcome =
        outcomeOf(dictionaryOf("<numeric name='A'/>" + many + "<numeric name='B'/>"));
    if (filler == std::string("<![CDATA[]]>")) {
      // No text is allowed there, not even none.
      EXPECT_EQ(outcome.result, Result::parseException);
      continue;
    }
    ASSERT_EQ(outcome.result, Result::root) << outcome.text;
    ASSERT_EQ(outcome.root->getDataItems()->getLength(), 2);
    EXPECT_EQ(topItem<as::IDataItem>(*outcome.root, 0)->getName(), "A");
    EXPECT_EQ(topItem<as::IDataItem>(*outcome.root, 1)->getName(), "B");
  }
}

// `count` different attributes whose names start with `prefix`.
std::string attributes(const std::string& prefix, int count) {
  std::string text;
  for (int i = 0; i < count; i++) text += " " + prefix + std::to_string(i) + "='urn:x'";
  return text;
}

TEST(HostileSize, ManyAttributesAreRefused) {
  constexpr int many = 50000;
  for (const std::string& text : {attributes("a", many), repeated(" length='1'", many)}) {
    EXPECT_EQ(outcomeOf(dictionaryOf("<group name='G'" + text + "/>")).result,
              Result::parseException);
  }
}

// Attributes that no schema decides about.
TEST(HostileSize, ManyNamespaceDeclarationsAreReadOrRefused) {
  constexpr int many = 5000;
  EXPECT_THAT(
      outcomeOf(dictionaryOf("<group name='G'" + attributes("xmlns:a", many) + "/>")).result,
      AnyOf(Result::root, Result::parseException));
  for (const char* prefix : {"a", "xmlns:a"}) {
    EXPECT_THAT(outcomeOf("<r" + attributes(prefix, many) + "/>").result,
                AnyOf(Result::namespaceException, Result::parseException));
  }
}

// The DOM looks for each among those before it.
TEST(HostileSize, ManyDifferentPrefixesOrNamespacesAreRefused) {
  const auto document = [](const std::string& name, const std::string& uri, int count) {
    std::string items;
    for (int i = 0; i < count; i++) {
      const std::string number = std::to_string(i);
      items += "<numeric name='N' xmlns:";
      items += name == "#" ? "p" + number : name;
      items += "='" + (uri == "#" ? "u" + number : uri) + "'/>";
    }
    return dictionaryOf(items);
  };
  for (const char* const name : {"#", "p"}) {
    SCOPED_TRACE(name);
    const char* const uri = name == std::string("p") ? "#" : "u";
    EXPECT_EQ(outcomeOf(document(name, uri, 1500)).result, Result::root);
    const auto outcome = outcomeOf(document(name, uri, 200000));
    EXPECT_EQ(outcome.result, Result::parseException);
    EXPECT_THAT(outcome.text, HasSubstr("more than 2000 different"));
  }
  // The same ones over and over are what many programs write.
  EXPECT_EQ(outcomeOf(document("p", "u", 20000)).result, Result::root);
}

// Each is looked for among the others before the parser tells of the element.
TEST(HostileSize, ManyPrefixesOfOneElementAreRefusedInTime) {
  for (const int count : {3000, 150000}) {
    SCOPED_TRACE(count);
    std::string uses;
    const std::string last = " a" + std::to_string(count - 1) + ":b";
    for (int i = 0; i < count; i++) uses += last + std::to_string(i) + "=''";
    const auto outcome =
        outcomeOf(dictionaryOf("<numeric name='N'" + attributes("xmlns:a", count) + uses + "/>"));
    EXPECT_EQ(outcome.result, Result::parseException);
    EXPECT_THAT(outcome.text, HasSubstr("more than 1000 attributes"));
  }
}

// The parser looks for a prefix among all that are declared around a name.
TEST(HostileSize, ManyNamespaceDeclarationsAroundEachOtherAreRefused) {
  const std::string group = "<group name='G'" + attributes("xmlns:a", 500) + ">";
  const std::string items = repeated("<numeric name='N'/>", 1000);
  EXPECT_EQ(outcomeOf(dictionaryOf(repeated(group + items + "</group>", 20))).result, Result::root);
  const auto outcome =
      outcomeOf(dictionaryOf(repeated(group, 1000) + items + repeated("</group>", 1000)));
  EXPECT_EQ(outcome.result, Result::parseException);
  EXPECT_THAT(outcome.text, HasSubstr("more than 4000 namespace declarations"));
}

// The parser reads the content models of a DTD though nothing is ever judged by them: in a time
// that grew with their square, or with a stack that it did not have to free what was half made.
TEST(HostileSize, DtdsAreBounded) {
  std::string names = "#PCDATA";
  for (int i = 0; i < 100000; i++) names += "|e" + std::to_string(i);
  std::string entities;
  std::string notations;
  for (int i = 0; i < 100000; i++) {
    entities += "<!ENTITY e" + std::to_string(i) + " ''>";
    notations += "<!NOTATION n" + std::to_string(i) + " SYSTEM 'n'>";
  }
  const struct {
    const char* what;
    std::string declarations;
    const char* text;
  } rows[] = {
      {"names", "<!ELEMENT a (" + names + ")*>", "more than 50000 parts"},
      {"the same name", "<!ELEMENT a (b" + repeated(",b", 500000) + ")>", "more than 50000 parts"},
      {"levels", "<!ELEMENT a " + repeated("(b,", 500000) + "b" + repeated(")", 500000) + ">", ""},
      {"a model that breaks off", "<!ELEMENT a (b" + repeated(",b", 500000) + "!",
       "more than 50000 parts"},
      {"entities", entities, "more than 5000 declarations"},
      {"notations", notations, "more than 5000 declarations"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.what);
    const auto outcome = outcomeOf(doctype(row.declarations) + dictionaryOf(""));
    EXPECT_EQ(outcome.result, Result::parseException);
    EXPECT_THAT(outcome.text, HasSubstr(row.text));
  }
  const auto outcome =
      outcomeOf(doctype("<!ELEMENT b ANY><!ELEMENT a (b" + repeated(",b", 1000) + ")>" +
                        entities.substr(0, entities.find("<!ENTITY e900 "))) +
                dictionaryOf("<numeric name='N'/>"));
  EXPECT_EQ(outcome.result, Result::root) << outcome.text;
}

TEST(HostileSize, LongTextsAreReadWhole) {
  const std::string text = repeated("PICTURE\xC3\x84", 500000);
  const auto outcome =
      outcomeOf(dictionaryOf("<numeric name='N' picture='" + text + "'/><!--" + text + "-->"));
  ASSERT_EQ(outcome.result, Result::root) << outcome.text;
  EXPECT_EQ(topItem<as::IDataItem>(*outcome.root)->getPicture(), text);
}

TEST(HostileSize, LongNamesAreRefused) {
  const std::string name(1000000, 'n');
  EXPECT_EQ(outcomeOf(dictionaryOf("<" + name + "/>")).result, Result::parseException);
  EXPECT_EQ(outcomeOf(dictionaryOf("<group name='G' " + name + "='1'/>")).result,
            Result::parseException);
  EXPECT_EQ(outcomeOf(dictionaryOf("&" + name + ";")).result, Result::parseException);
  EXPECT_EQ(outcomeOf("<" + name + "/>").result, Result::namespaceException);
}

TEST(HostileSize, DeepPathsAndManyNamesakesAreSearched) {
  constexpr int levels = 500;
  std::string path = "G";
  for (int i = 1; i < levels; i++) path += ".G";
  const auto outcome = outcomeOf(dictionaryOf(
      repeated("<group name='G'>", levels) + repeated("</group>", levels) +
      "<numeric name='N' odo='" + path + "'/><numeric name='M' odo='" + path + ".X'/>"));
  ASSERT_EQ(outcome.result, Result::root) << outcome.text;
  as::IDataItem* found = topItem<as::IDataItem>(*outcome.root, 1)->getODO();
  int depth = 0;
  for (; found != nullptr; found = found->getParent()) depth++;
  EXPECT_EQ(depth, levels);
  EXPECT_EQ(topItem<as::IDataItem>(*outcome.root, 2)->getODO(), nullptr);
}

}  // namespace
