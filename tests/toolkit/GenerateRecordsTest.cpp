// Tests of which records and items of a dictionary become structures, and of what is without a
// name.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/Documents.h"
#include "support/Generated.h"
#include "support/Json.h"

namespace {

namespace toolkit = as::toolkit;
using nlohmann::json;
using test::textsOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

class GenerateRecords : public test::GenerateTest {
 protected:
  // The JSON Schema of a dictionary with those top-level items.
  json schema(const std::string& items, const toolkit::GenerateOptions& options = {}) const {
    return test::parsedJson(textOf(made("jsonschema", items, options)));
  }
  toolkit::Generated made(const char* kind, const std::string& items,
                          const toolkit::GenerateOptions& options = {}) const {
    write("p.xml", test::dictionaryOf(items));
    return toolkit::generateFrom(reader(), *toolkit::findGeneratorKind(kind), {"p.xml"}, options);
  }

  static std::vector<std::string> keysOf(const json& object) {
    std::vector<std::string> keys;
    for (const auto& member : object.items()) keys.push_back(member.key());
    return keys;
  }
};

const std::string text = "<alphanumeric name='T' offset='0' length='4' picture='X(4)'/>";

std::string group(const std::string& attributes, const std::string& items) {
  return "<group offset='0' length='8' " + attributes + ">" + items + "</group>";
}

TEST_F(GenerateRecords, UnnamedRecordsAreNone) {
  const std::string items = group("name='FILLER'", text) + group("name='R'", text);
  EXPECT_THAT(keysOf(schema(items)["$defs"]), ElementsAre("R"));
  EXPECT_THAT(textsOf(made("xsd", group("name='FILLER'", text)).findings),
              ElementsAre("dictionary: there are no records; name another one"));
}

TEST_F(GenerateRecords, RenamesAreNoRecords) {
  EXPECT_THAT(
      keysOf(schema(group("name='R'", text) +
                    "<alphanumeric name='V' offset='0' length='4' renames='true'/>")["$defs"]),
      ElementsAre("R"));
}

TEST_F(GenerateRecords, RecordsOfFilesAreRecords) {
  write("p.xml",
        test::dictionary("<fileSection><fd name='F'><dataItems>" + group("name='R'", text) +
                         "</dataItems></fd></fileSection><dataItems>" + group("name='S'", text) +
                         "</dataItems>"));
  const toolkit::Generated made =
      toolkit::generateFrom(reader(), *toolkit::findGeneratorKind("jsonschema"), {"p.xml"});
  EXPECT_THAT(keysOf(test::parsedJson(textOf(made))["$defs"]), ElementsAre("R", "S"));
}

TEST_F(GenerateRecords, AWantedRecordIsWhatTheSchemaIsAbout) {
  const std::string items = group("name='R'", text) + group("name='S'", text);
  toolkit::GenerateOptions options;
  options.record = "S";
  EXPECT_EQ(schema(items, options)["$ref"], "#/$defs/S");
  EXPECT_THAT(keysOf(schema(items, options)["$defs"]), ElementsAre("S"));
  EXPECT_FALSE(schema(items).contains("$ref"));
}

// What a group without a name holds belongs to the one around, unless it repeats.
TEST_F(GenerateRecords, UnnamedGroupsGiveTheirItemsToTheOneAround) {
  const std::string filler = "<alphanumeric name='FILLER' offset='0' length='1' picture='X'/>";
  const auto propertiesOf = [&](const std::string& items) {
    return keysOf(schema(group("name='R'", items))["$defs"]["R"]["properties"]);
  };
  EXPECT_THAT(propertiesOf(filler + text), ElementsAre("T"));
  EXPECT_THAT(propertiesOf(group("name='FILLER'", text)), ElementsAre("T"));
  EXPECT_THAT(propertiesOf(group("name='FILLER' minOccurs='2' maxOccurs='2'", text)),
              ElementsAre("FILLER"));
}

TEST_F(GenerateRecords, WhatStandsInTheSamePlaceIsLeftOutAndTold) {
  const toolkit::Generated made = this->made(
      "xsd",
      group("name='R'", text +
                            group("name='G' redefines='true'",
                                  "<alphanumeric name='IN-IT' "
                                  "offset='0' length='2'/>") +
                            "<alphanumeric name='V' offset='0' length='4' renames='true'/>"));
  EXPECT_THAT(textsOf(made.findings),
              ElementsAre("R.G: it redefines other items, which are there already: left out",
                          "R.V: it renames other items, which are there already: left out"));
  EXPECT_THAT(textOf(made), testing::Not(HasSubstr("IN-IT")));
}

// A group of nothing that has a name has a value all the same: its text.
TEST_F(GenerateRecords, GroupsWithoutMembersAreValues) {
  const std::string filler = "<alphanumeric name='FILLER' offset='0' length='8' picture='X(8)'/>";
  const std::string items =
      group("name='R'", text + group("name='G'", filler)) + group("name='ALONE'", filler);
  const toolkit::Generated java = made("java", items);
  EXPECT_THAT(textOf(java), HasSubstr("record RG(String value) {}"));
  EXPECT_THAT(textOf(java), HasSubstr("record ALONE(String value) {}"));
  EXPECT_THAT(textOf(java), HasSubstr(" * @param value the value\n"));
  EXPECT_THAT(
      textsOf(java.findings),
      testing::Contains(HasSubstr("a group without parts is no value: String stands for it")));
  const toolkit::Generated csharp = made("csharp", items);
  EXPECT_THAT(textOf(csharp), HasSubstr("public string value { get; set; }"));
}

TEST_F(GenerateRecords, PropertiesOfTheProgramAreTold) {
  write("p.xml", test::dictionary("<properties><property name='owner' value='Claims'/></properties>"
                                  "<dataItems>" +
                                  text + "</dataItems>"));
  const toolkit::Generated made =
      toolkit::generateFrom(reader(), *toolkit::findGeneratorKind("markdown"), {"p.xml"});
  EXPECT_THAT(textOf(made), HasSubstr("- **owner**: Claims\n"));
  EXPECT_THAT(textOf(made), HasSubstr("## Records\n"));
}

struct ItemRow {
  const char* item;
  const char* schema;  // What JSON Schema says of it, but for its description.
};

// Dictionaries may leave out what another part of them tells.
const ItemRow items[] = {
    // Digits from the bytes.
    {"<numeric length='4' usage='comp-3'/>",
     R"({"type": "integer", "minimum": 0, "maximum": 9999999})"},
    {"<numeric length='3'/>", R"({"type": "integer", "minimum": 0, "maximum": 999})"},
    {"<numeric/>", R"({"type": "string", "pattern": "^-?[0-9]+$"})"},
    // All bits of a binary item, unless digits stand behind the point.
    {"<numeric length='2' usage='comp-5' sign='true' digits='4'/>",
     R"({"type": "integer", "minimum": -32768, "maximum": 32767})"},
    {"<numeric length='2' usage='comp-5' picture='9(2)V99' digits='4' alignment='2'/>",
     R"({"type": "string", "pattern": "^[0-9]{1,3}([.][0-9]{1,2})?$"})"},
    // Zeros in front of the point, and behind it.
    {"<numeric length='3' picture='9(3)P(2)' digits='5'/>",
     R"({"type": "integer", "minimum": 0, "maximum": 99900})"},
    {"<numeric length='3' picture='9(3)P(2)'/>",
     R"({"type": "integer", "minimum": 0, "maximum": 99900})"},
    {"<numeric length='1' usage='comp-5' picture='9(2)P(2)' digits='4'/>",
     R"({"type": "integer", "minimum": 0, "maximum": 25500})"},
    {"<numeric length='3' picture='VP(2)9(3)' digits='5' alignment='5'/>",
     R"({"type": "string", "pattern": "^(0|0?[.][0-9]{1,5})$"})"},
    // Texts of which no picture tells the length.
    {"<alphanumeric length='7'/>", R"({"type": "string", "maxLength": 7})"},
    {"<alphanumeric/>", R"({"type": "string"})"},
    {"<national length='10'/>", R"({"type": "string", "maxLength": 10})"},
    {"<national length='10' picture='N(5)' usage='unicode'/>",
     R"({"type": "string", "maxLength": 5})"},
    {"<numericEdited length='6' picture='ZZ9.99' digits='5' alignment='2'/>",
     R"({"type": "string", "maxLength": 6})"},
    {"<numericEdited length='6' digits='5'/>", R"({"type": "string", "maxLength": 6})"},
    {"<index length='4'/>", R"({"type": "integer", "minimum": 0, "maximum": 4294967295})"},
    {"<pointer length='8'/>", R"({"type": "string", "pattern": "^[0-9]{1,20}$"})"},
    {"<index/>", R"({"type": "string", "pattern": "^-?[0-9]+$"})"},
};

class GenerateRecordItems : public GenerateRecords, public testing::WithParamInterface<ItemRow> {};

void PrintTo(const ItemRow& row, std::ostream* out) { *out << row.item; }

TEST_P(GenerateRecordItems, HaveTheLimitsThatTheirDictionaryTells) {
  std::string item = GetParam().item;
  item.insert(item.find_first_of(" /"), " name='I' offset='0'");
  json made = schema(group("name='R'", item))["$defs"]["R"]["properties"]["I"];
  made.erase("description");
  EXPECT_EQ(made, test::parsedJson(GetParam().schema));
}

INSTANTIATE_TEST_SUITE_P(Items, GenerateRecordItems, testing::ValuesIn(items));

// Each item is told with its path: in full, these have many times the size of the document.
TEST_F(GenerateRecords, PathsAreNoLongerThanAnybodyReads) {
  constexpr int levels = 150;
  constexpr int leaves = 100;
  const std::string name(300, 'N');
  std::string nested;
  for (int i = 0; i < levels; ++i) nested += "<group name='" + name + "'>";
  for (int i = 0; i < leaves; ++i) {
    nested += "<numeric name='A" + std::to_string(i) + "' digits='4' length='4'/>";
  }
  for (int i = 0; i < levels; ++i) nested += "</group>";
  for (const char* const kind : {"xsd", "jsonschema", "markdown"}) {
    const toolkit::Generated made = this->made(kind, nested);
    const std::string content = textOf(made);
    EXPECT_THAT(content, HasSubstr(name.substr(0, 200) + "....A7")) << kind;
    EXPECT_LE(content.size(), 2'000'000U) << kind;
    for (const toolkit::Finding& finding : made.findings) ASSERT_LE(finding.place.size(), 5000U);
  }
}

}  // namespace
