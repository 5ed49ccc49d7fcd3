// Tests of the shipped dictionary schema: what it lets through and what it refuses.
#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <memory>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "as/AgentServices.h"
#include "support/Documents.h"
#include "support/Model.h"
#include "support/Requests.h"

namespace {

using test::dictionary;
using test::dictionaryOf;
using test::Result;

using Words = std::vector<std::string>;

// Texts of attributes, by type.
struct Type {
  Words valid;
  Words invalid;
};

const Type nameType = {{"A", "FILLER", " ", "a-b c", "\xC3\x84", "0"}, {""}};
const Type textType = {{"", " ", "S9(7)V99", "\xC3\x84&lt;&#10;"}, {}};
const Type countType = {{"0", "1", "2147483647", "007", "+1", "-0", " 5 "},
                        {"", " ", "-1", "2147483648", "99999999999999999999", "1.0", "1e3", "0x10",
                         "ten", "1 2", "1,000", "+", "--1", "\xD9\xA3"}};
const Type flagType = {{"true", "false", "TRUE", "FALSE", "True", "fAlSe"},
                       {"", "1", "0", "yes", "no", "true ", " true", "truefalse", "t", "tru",
                        "falsetrue", "true&#10;", "wahr"}};

// The words and nothing else: also not in another case or with blanks around.
Type wordsType(const Words& words) {
  Type type = {words, {"", " ", "other", "0", words.front() + "x", words.front() + " " + "x"}};
  for (std::string word : words) {
    type.invalid.push_back(" " + word);
    type.invalid.push_back(word + " ");
    word[0] = static_cast<char>(word[0] - 'a' + 'A');
    type.invalid.push_back(word);
  }
  return type;
}

struct Attribute {
  std::string name;
  bool required;
  Type type;
};

// An element, the document around it, and the attributes that it may have.
struct Element {
  std::string name;
  std::string before;
  std::string content;  // What it must hold at least.
  std::string after;
  std::vector<Attribute> attributes;

  std::string document(const std::string& attributeText) const {
    if (name == "program") {
      // The document's own root, with its name left to the row.
      std::string text = dictionary("");
      const std::string own = "name=\"PAYROLL\"";
      return text.replace(text.find(own), own.size(), attributeText);
    }
    return dictionary(before + "<" + name + " " + attributeText + ">" + content + "</" + name +
                      ">" + after);
  }
  // Texts for the required attributes except `but`.
  std::string required(const std::string& but = "") const {
    std::string text;
    for (const Attribute& attribute : attributes) {
      if (attribute.required && attribute.name != but) text += attribute.name + "='X' ";
    }
    return text;
  }
};

void PrintTo(const Element& element, std::ostream* out) { *out << element.name; }

std::vector<Attribute> itemAttributes(std::vector<Attribute> more) {
  std::vector<Attribute> all = {
      {"name", true, nameType},        {"picture", false, textType},
      {"odo", false, textType},        {"length", false, countType},
      {"minOccurs", false, countType}, {"maxOccurs", false, countType},
      {"offset", false, countType},    {"line", false, countType},
      {"linkage", false, flagType},    {"sync", false, flagType},
      {"redefines", false, flagType},  {"renames", false, flagType},
  };
  all.insert(all.end(), more.begin(), more.end());
  return all;
}

std::vector<Element> elements() {
  const std::string items = "<dataItems>";
  const std::string itemsEnd = "</dataItems>";
  const std::string inNumeric = items + "<numeric name='N'>";
  const std::string numericEnd = "</numeric>" + itemsEnd;
  const std::string inCondition = inNumeric + "<numericCondition name='C'>";
  const std::string conditionEnd = "</numericCondition>" + numericEnd;
  const std::string inText = inNumeric + "<alphanumericCondition name='C'>";
  const std::string textEnd = "</alphanumericCondition>" + numericEnd;
  const std::vector<Attribute> constant = {{"value", true, textType}};
  const std::vector<Attribute> range = {{"from", true, textType}, {"to", true, textType}};
  return {
      {"program", "", "", "", {{"name", true, nameType}}},
      {"properties", "", "", "", {}},
      {"property",
       "<properties>",
       "",
       "</properties>",
       {{"name", true, nameType}, {"value", false, textType}}},
      {"fileSection", "", "", "", {}},
      {"fd",
       "<fileSection>",
       "",
       "</fileSection>",
       {{"name", true, nameType},
        {"accessMode", false, wordsType({"sequential", "random", "dynamic"})},
        {"organization", false,
         wordsType({"sequential", "relative", "indexed", "lineSequential"})}}},
      {"dataItems", "", "", "", {}},
      {"entryPoints", "", "", "", {}},
      {"entryPoint",
       "<entryPoints>",
       "",
       "</entryPoints>",
       {{"name", true, nameType},
        {"callConvention",
         false,
         {{"0", "3", "-1", "+1", "2147483647", "-2147483648", " 5 "},
          {"", "2147483648", "-2147483649", "1.0", "C", "0x1", "99999999999999999999"}}}}},
      {"parameter",
       "<entryPoints><entryPoint name='E'>",
       "",
       "</entryPoint></entryPoints>",
       {{"dataItem", true, nameType},
        {"byType", false, wordsType({"reference", "value", "returning"})}}},
      {"group", items, "", itemsEnd, itemAttributes({})},
      {"numeric", items, "", itemsEnd,
       itemAttributes({{"usage", false,
                        wordsType({"display", "comp", "comp-1", "comp-2", "comp-3", "comp-4",
                                   "comp-5", "comp-6", "comp-x", "externalFloat"})},
                       {"sign", false, wordsType({"li", "ls", "ti", "ts", "true", "false"})},
                       {"digits", false, countType},
                       {"alignment", false, countType}})},
      {"alphanumeric", items, "", itemsEnd,
       itemAttributes({{"justified", false, wordsType({"left", "right"})}})},
      {"numericEdited", items, "", itemsEnd,
       itemAttributes({{"digits", false, countType},
                       {"alignment", false, countType},
                       {"blankWhenZero", false, flagType}})},
      {"national", items, "", itemsEnd,
       itemAttributes({{"usage", false, wordsType({"display", "unicode"})}})},
      {"pointer", items, "", itemsEnd, itemAttributes({})},
      {"cobolObject", items, "", itemsEnd, itemAttributes({})},
      {"index", items, "", itemsEnd, itemAttributes({})},
      {"numericCondition",
       inNumeric,
       "<numericConstant value='1'/>",
       numericEnd,
       {{"name", true, nameType}}},
      {"alphanumericCondition",
       inNumeric,
       "<alphanumericConstant value='1'/>",
       numericEnd,
       {{"name", true, nameType}}},
      {"numericConstant", inCondition, "", conditionEnd, constant},
      {"numericRange", inCondition, "", conditionEnd, range},
      {"alphanumericConstant", inText, "", textEnd, constant},
      {"alphanumericRange", inText, "", textEnd, range},
  };
}

class SchemaElement : public testing::TestWithParam<Element> {
 protected:
  // The result with one attribute of that text beside the required ones.
  test::Outcome<as::IProgram> with(const std::string& attribute, const std::string& text) const {
    return test::outcomeOf(*services_, GetParam().document(GetParam().required(attribute) +
                                                           attribute + "='" + text + "'"));
  }
  std::unique_ptr<as::IAgentServices> services_ = test::newServices();
};

TEST_P(SchemaElement, IsFineWithItsRequiredAttributesOnly) {
  const auto outcome = test::outcomeOf(*services_, GetParam().document(GetParam().required()));
  EXPECT_EQ(outcome.result, Result::root) << outcome.text;
}

TEST_P(SchemaElement, TakesEveryValidText) {
  for (const Attribute& attribute : GetParam().attributes) {
    for (const std::string& text : attribute.type.valid) {
      const auto outcome = with(attribute.name, text);
      EXPECT_EQ(outcome.result, Result::root)
          << attribute.name << "='" << text << "': " << outcome.text;
    }
  }
}

TEST_P(SchemaElement, RefusesEveryInvalidText) {
  for (const Attribute& attribute : GetParam().attributes) {
    for (const std::string& text : attribute.type.invalid) {
      EXPECT_EQ(with(attribute.name, text).result, Result::parseException)
          << attribute.name << "='" << text << "'";
    }
  }
}

TEST_P(SchemaElement, MissesEveryRequiredAttribute) {
  for (const Attribute& attribute : GetParam().attributes) {
    if (!attribute.required) continue;
    SCOPED_TRACE(attribute.name);
    const auto outcome =
        test::outcomeOf(*services_, GetParam().document(GetParam().required(attribute.name)));
    EXPECT_EQ(outcome.result, Result::parseException);
    EXPECT_NE(outcome.text.find("'" + attribute.name + "'"), std::string::npos) << outcome.text;
  }
}

TEST_P(SchemaElement, RefusesEveryOtherAttribute) {
  std::vector<std::string> names = {"bogus",   "Name",     "lenght", "level",    "occurs",
                                    "isFalse", "all",      "type",   "comment",  "nil",
                                    "id",      "xml:lang", "xml:id", "xsi:bogus"};
  for (const Element& element : elements()) {
    for (const Attribute& attribute : element.attributes) names.push_back(attribute.name);
  }
  std::sort(names.begin(), names.end());
  names.erase(std::unique(names.begin(), names.end()), names.end());
  for (const std::string& name : names) {
    SCOPED_TRACE(name);
    const auto& own = GetParam().attributes;
    if (std::any_of(own.begin(), own.end(), [&](const Attribute& a) { return a.name == name; })) {
      continue;
    }
    const auto outcome = with(name, "1");
    EXPECT_EQ(outcome.result, Result::parseException);
    // A known prefix may be told as its namespace.
    EXPECT_NE(outcome.text.find(name.substr(name.find(':') + 1) + "'"), std::string::npos)
        << outcome.text;
  }
}

TEST_P(SchemaElement, RefusesItsAttributesInTheDictionaryNamespace) {
  for (const Attribute& attribute : GetParam().attributes) {
    const std::string& text = attribute.type.valid.front();
    const auto outcome = test::outcomeOf(
        *services_,
        GetParam().document(GetParam().required() + "xmlns:d='" + as::namespaces::dd.uri +
                            "' d:" + attribute.name + "='" + text + "'"));
    EXPECT_EQ(outcome.result, Result::parseException) << attribute.name;
  }
}

TEST_P(SchemaElement, RefusesTextBetweenItsChildren) {
  for (const char* text : {"text", "&#160;", "<![CDATA[x]]>", "&lt;", "0"}) {
    Element element = GetParam();
    element.content += text;
    const std::string document =
        element.name == "program" ? dictionary(text) : element.document(element.required());
    EXPECT_EQ(test::outcomeOf(*services_, document).result, Result::parseException) << text;
  }
}

TEST_P(SchemaElement, CannotBeMadeNil) {
  for (const char* nil : {"true", "1", "false", "0"}) {
    EXPECT_EQ(with("xsi:nil", nil).result, Result::parseException) << nil;
  }
}

TEST_P(SchemaElement, CannotBeGivenAnotherType) {
  for (const char* type :
       {"program", "properties", "dataItems", "group", "numeric", "elementaryItem", "constant",
        "range", "name", "unknown", "anyType", "xs:anyType", "xs:string", ""}) {
    // Its own type is none but its own; the one type that elements of several names share is
    // theirs.
    const std::string& name = GetParam().name;
    const bool own =
        name == type ||
        (type == std::string("elementaryItem") &&
         (name == "pointer" || name == "cobolObject" || name == "index")) ||
        (type == std::string("constant") && name.find("Constant") != std::string::npos) ||
        (type == std::string("range") && name.find("Range") != std::string::npos);
    const auto outcome = test::outcomeOf(
        *services_,
        GetParam().document(GetParam().required() +
                            "xmlns:xs='http://www.w3.org/2001/XMLSchema' xsi:type='" + type + "'"));
    EXPECT_EQ(outcome.result, own ? Result::root : Result::parseException)
        << "'" << type << "' " << outcome.text;
  }
}

// Which elements may stand directly in an element.
const struct Content {
  const char* parent;
  Words children;
} contents[] = {
    {"program", {"properties", "fileSection", "dataItems", "entryPoints"}},
    {"properties", {"property"}},
    {"property", {}},
    {"fileSection", {"fd"}},
    {"fd", {"dataItems"}},
    {"dataItems",
     {"group", "numeric", "alphanumeric", "numericEdited", "national", "pointer", "cobolObject",
      "index"}},
    {"group",
     {"group", "numeric", "alphanumeric", "numericEdited", "national", "pointer", "cobolObject",
      "index", "numericCondition", "alphanumericCondition"}},
    {"numeric", {"numericCondition", "alphanumericCondition"}},
    {"alphanumeric", {"numericCondition", "alphanumericCondition"}},
    {"numericEdited", {"numericCondition", "alphanumericCondition"}},
    {"national", {"numericCondition", "alphanumericCondition"}},
    {"pointer", {"numericCondition", "alphanumericCondition"}},
    {"cobolObject", {"numericCondition", "alphanumericCondition"}},
    {"index", {"numericCondition", "alphanumericCondition"}},
    {"numericCondition", {"numericConstant", "numericRange"}},
    {"alphanumericCondition", {"alphanumericConstant", "alphanumericRange"}},
    {"numericConstant", {}},
    {"numericRange", {}},
    {"alphanumericConstant", {}},
    {"alphanumericRange", {}},
    {"entryPoints", {"entryPoint"}},
    {"entryPoint", {"parameter"}},
    {"parameter", {}},
};

TEST_P(SchemaElement, HoldsItsChildrenOnly) {
  const auto* const content =
      std::find_if(std::begin(contents), std::end(contents),
                   [](const Content& row) { return row.parent == GetParam().name; });
  ASSERT_NE(content, std::end(contents));
  std::vector<std::pair<std::string, std::string>> children = {
      {"alphanumericEdited", "<alphanumericEdited name='X'/>"},
      {"nullConditionValue", "<nullConditionValue/>"},
      {"object", "<object name='X'/>"},
      {"file", "<file name='X'/>"},
      {"bogus", "<bogus/>"},
      {"Group", "<Group name='X'/>"},
      {"unqualified", "<numeric name='X' xmlns=''/>"},
      {"foreign", "<f:numeric name='X' xmlns:f='urn:f'/>"},
      {"schema", "<s:schema xmlns:s='http://www.w3.org/2001/XMLSchema'/>"},
  };
  for (const Element& child : elements()) {
    children.emplace_back(child.name, "<" + child.name + " " + child.required() + ">" +
                                          child.content + "</" + child.name + ">");
  }
  for (const auto& [name, text] : children) {
    SCOPED_TRACE(name);
    Element element = GetParam();
    element.content += text;
    const std::string document =
        element.name == "program" ? dictionary(text) : element.document(element.required());
    const auto outcome = test::outcomeOf(*services_, document);
    const bool allowed = std::find(content->children.begin(), content->children.end(), name) !=
                         content->children.end();
    EXPECT_EQ(outcome.result, allowed ? Result::root : Result::parseException) << outcome.text;
  }
}

INSTANTIATE_TEST_SUITE_P(All, SchemaElement, testing::ValuesIn(elements()),
                         [](const auto& row) { return row.param.name; });

// Order and number.

constexpr const char* sections[] = {"properties", "fileSection", "dataItems", "entryPoints"};

TEST(SchemaProgram, HoldsEachSectionOnceAndInOrder) {
  for (const char* const firstName : sections) {
    for (const char* const secondName : sections) {
      const std::string first = firstName;
      const std::string second = secondName;
      SCOPED_TRACE(first);
      SCOPED_TRACE(second);
      const auto at = [](const std::string& section) {
        return std::find(std::begin(sections), std::end(sections), section);
      };
      const auto outcome = test::outcomeOf(dictionary("<" + first + "/><" + second + "/>"));
      EXPECT_EQ(outcome.result, at(first) < at(second) ? Result::root : Result::parseException)
          << outcome.text;
    }
  }
}

TEST(SchemaProgram, MayHaveAllSectionsOrNone) {
  EXPECT_EQ(test::outcomeOf(dictionary("")).result, Result::root);
  EXPECT_EQ(
      test::outcomeOf(dictionary("<properties/><fileSection/><dataItems/><entryPoints/>")).result,
      Result::root);
}

TEST(SchemaProgram, IsTheOnlyRoot) {
  for (const Element& element : elements()) {
    if (element.name == "program") continue;
    const std::string root = dictionary("");
    std::string document = "<" + element.name + root.substr(std::string("<program").size());
    const std::string end = "</program>";
    document.replace(document.rfind(end), end.size(), "</" + element.name + ">");
    EXPECT_EQ(test::outcomeOf(document).result, Result::parseException) << element.name;
  }
}

TEST(SchemaProgram, MayBePrefixed) {
  const std::string ns = as::namespaces::dd.uri;
  const auto outcome =
      test::outcomeOf("<d:program " + test::declarations(ns, ns + " " + ns, "d") +
                      " name='P'><d:dataItems><d:group name='G'><e:numeric xmlns:e='" + ns +
                      "' name='N'/></d:group></d:dataItems></d:program>");
  ASSERT_EQ(outcome.result, Result::root) << outcome.text;
  as::IList* const children = test::topItem<as::IGroup>(*outcome.root)->getChildren();
  ASSERT_EQ(children->getLength(), 1);
  EXPECT_EQ(test::itemOf<as::INumeric>(children, 0)->getName(), "N");
}

TEST(SchemaFile, HoldsItsRecordsOnce) {
  EXPECT_EQ(test::outcomeOf(dictionary("<fileSection><fd name='F'><dataItems/><dataItems/></fd>"
                                       "</fileSection>"))
                .result,
            Result::parseException);
}

TEST(SchemaCondition, HoldsOneValueAtLeast) {
  for (const char* kind : {"numericCondition", "alphanumericCondition"}) {
    const std::string name = kind;
    EXPECT_EQ(test::outcomeOf(dictionaryOf("<numeric name='N'><" + name + " name='C'></" + name +
                                           "></numeric>"))
                  .result,
              Result::parseException)
        << kind;
  }
}

TEST(SchemaGroup, MixesItemsAndConditionsInAnyOrder) {
  const auto outcome = test::outcomeOf(dictionaryOf(
      "<group name='G'><numericCondition name='C'><numericConstant value='1'/></numericCondition>"
      "<index name='I'/><alphanumericCondition name='D'><alphanumericRange from='' to=''/>"
      "</alphanumericCondition><group name='H'/><numeric name='N'/><group name='H'/>"
      "<numericCondition name='C'><numericRange from='1' to='2'/></numericCondition></group>"));
  EXPECT_EQ(outcome.result, Result::root) << outcome.text;
}

// What the model knows no wrapper for must be stopped by the schema; wherever it stands.
TEST(Schema, RefusesWhatTheModelDoesNotKnow) {
  const struct {
    const char* element;
    std::string document;
  } rows[] = {
      {"alphanumericEdited", dictionaryOf("<alphanumericEdited name='A'/>")},
      {"alphanumericEdited",
       dictionaryOf("<group name='G'><alphanumericEdited name='A'/></group>")},
      {"alphanumericEdited",
       dictionary("<fileSection><fd name='F'><dataItems><alphanumericEdited name='A'/></dataItems>"
                  "</fd></fileSection>")},
      {"nullConditionValue",
       dictionaryOf("<numeric name='N'><numericCondition name='C'><nullConditionValue/>"
                    "</numericCondition></numeric>")},
      {"nullConditionValue",
       dictionaryOf("<numeric name='N'><numericCondition name='C'><numericConstant value='1'/>"
                    "<nullConditionValue/></numericCondition></numeric>")},
      {"nullConditionValue",
       dictionaryOf("<alphanumeric name='N'><alphanumericCondition name='C'>"
                    "<nullConditionValue isFalse='true'/></alphanumericCondition></alphanumeric>")},
      {"object", dictionaryOf("<object name='O'/>")},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.document);
    const auto outcome = test::outcomeOf(row.document);
    EXPECT_EQ(outcome.result, Result::parseException);
    EXPECT_NE(outcome.text.find("'" + std::string(row.element) + "'"), std::string::npos)
        << outcome.text;
  }
}

}  // namespace
