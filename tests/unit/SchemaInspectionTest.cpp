// Tests of what is refused in the schemas that documents bring: one reason a row.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>
#include <ostream>
#include <string>

#include "as/CASParseException.h"
#include "xml/SchemaInspection.h"

namespace {

std::string reasonIn(SchemaInspection& inspection, const std::string& schema) {
  const std::optional<as::CASParseException> refusal = inspection.refusalOf(schema, u"s.xsd");
  return refusal ? refusal->getErrorText() : "";
}

std::string schemaOf(const std::string& content) {
  return "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema'>" + content + "</xs:schema>";
}

std::string repeated(const std::string& text, int times) {
  std::string result;
  for (int i = 0; i < times; ++i) result += text;
  return result;
}

std::string patternOf(const std::string& value) {
  return schemaOf("<xs:simpleType name='t'><xs:restriction base='xs:string'><xs:pattern value='" +
                  value + "'/></xs:restriction></xs:simpleType>");
}

std::string sequenceOf(const std::string& attributes, const std::string& content) {
  return "<xs:sequence " + attributes + ">" + content + "</xs:sequence>";
}

std::string attributes(int count) {
  std::string text;
  for (int i = 0; i < count; ++i) text += " a" + std::to_string(i) + "='x'";
  return text;
}

std::string anyOf(const std::string& namespaces) {
  return "<xs:any namespace='" + namespaces + "'/>";
}

struct Row {
  const char* name;
  std::string schema;
  std::string reason;  // What it holds; empty where nothing is refused.
};

void PrintTo(const Row& row, std::ostream* out) { *out << row.name; }

const std::string element = "<xs:element name='e'/>";
const std::string tooManyElements = "2000 elements, as many times as they are laid out";
const std::string tooManyMembers = "16 members of unions";
const std::string tooManyValues = "256 words of enumerated values";
const std::string tooManySubstitutes = "16 elements that stand for others";
const std::string tooManyPaths = "16 paths of keys";

const Row rows[] = {
    {"Nothing", schemaOf(""), ""},
    {"NoXml", "<xs:schema", ""},
    {"OtherVersion", "<?xml version='1.1'?>" + schemaOf(""), ""},

    {"Pattern", patternOf("[0-9]+"), ""},
    {"PatternWithAChoice", patternOf("a*a"),
     "the pattern 'a*a' is refused: a schema that a document"},
    {"LongPattern", patternOf(std::string(257, 'a')), "256 characters in a pattern"},
    {"PatternOfAnotherNamespace", "<xs:a xmlns:xs='urn:a'><xs:pattern value='a*a'/></xs:a>", ""},
    {"ValueOfAnotherElement", schemaOf("<xs:enumeration value='a*a'/>"), ""},

    {"Attributes", schemaOf("<xs:element" + attributes(1000) + "/>"), ""},
    {"TooManyAttributes", schemaOf("<xs:element" + attributes(1001) + "/>"),
     "more than 1000 attributes"},
    {"Levels", schemaOf(repeated("<xs:all>", 99) + repeated("</xs:all>", 99)), ""},
    {"TooManyLevels", schemaOf(repeated("<xs:all>", 100) + repeated("</xs:all>", 100)),
     "100 levels of elements"},
    {"TooManyCharacters", schemaOf(std::string(1048577, ' ')), "1048576 characters"},
    {"TooManyCharactersOfText", schemaOf(std::string(1048577, 'x')), "1048576 characters"},

    {"Occurrences", schemaOf(sequenceOf("maxOccurs='1998'", "")), ""},
    {"TooManyOccurrences", schemaOf(sequenceOf("maxOccurs='2001'", "")), tooManyElements},
    {"OccurrencesBehindBlanks", schemaOf(sequenceOf("maxOccurs=' \t+2001'", "")), tooManyElements},
    {"AnyNumberOfOccurrences", schemaOf(sequenceOf("maxOccurs='unbounded'", "")), ""},
    {"TooManyLeastOccurrences", schemaOf(sequenceOf("minOccurs='2001'", "")), tooManyElements},
    {"OccurrencesThatMultiply",
     schemaOf(sequenceOf("maxOccurs='50'", sequenceOf("maxOccurs='50'", ""))), tooManyElements},
    {"HugeOccurrences",
     schemaOf("<xs:complexType name='t'>" +
              sequenceOf("maxOccurs='99999999999999999999999'", element) + "</xs:complexType>"),
     tooManyElements},
    {"OccurrencesOfTypesDoNotMultiply",
     schemaOf(sequenceOf("maxOccurs='50'", "<xs:element name='e'><xs:complexType>" +
                                               sequenceOf("maxOccurs='50'", "") +
                                               "</xs:complexType></xs:element>")),
     ""},
    {"NamespacesOfAWildcard", schemaOf(anyOf(repeated("u ", 1998))), ""},
    {"TooManyNamespacesOfAWildcard", schemaOf(anyOf(repeated("u ", 1999))), tooManyElements},
    {"NamespacesOfAWildcardThatMultiply", schemaOf(sequenceOf("maxOccurs='50'", anyOf("a b c d"))),
     ""},
    {"TooManyNamespacesOfAWildcardThatMultiply",
     schemaOf(sequenceOf("maxOccurs='500'", anyOf("a b c"))), tooManyElements},
    {"NamespacesOfAWildcardForAttributes",
     schemaOf("<xs:anyAttribute namespace='" + repeated("u ", 1999) + "'/>"), tooManyElements},
    {"NamespacesOfAnotherElement",
     schemaOf("<xs:import namespace='" + repeated("u ", 1999) + "'/>"), ""},

    {"EnumeratedValues", schemaOf(repeated("<xs:enumeration value='a'/>", 256)), ""},
    {"TooManyEnumeratedValues", schemaOf(repeated("<xs:enumeration value='a'/>", 257)),
     tooManyValues},
    {"EnumeratedListOfTooManyWords",
     schemaOf("<xs:enumeration value='" + repeated(" a", 257) + "'/>"), tooManyValues},
    {"EnumeratedValuesWithoutWords", schemaOf(repeated("<xs:enumeration value=''/>", 257)),
     tooManyValues},
    {"WordsOfAnotherElement", schemaOf("<xs:length value='" + repeated(" a", 257) + "'/>"), ""},

    {"Substitutes", schemaOf(repeated("<xs:element substitutionGroup='a'/>", 16)), ""},
    {"TooManySubstitutes", schemaOf(repeated("<xs:element substitutionGroup='a'/>", 17)),
     tooManySubstitutes},

    {"GroupsThatMultiply",
     schemaOf("<xs:group name='g'>" + sequenceOf("maxOccurs='50'", element) + "</xs:group>" +
              sequenceOf("maxOccurs='50'", "<xs:group ref='x:g'/>")),
     tooManyElements},
    {"GroupThatIsNotThere", schemaOf("<xs:group ref='none' maxOccurs='1000'/>"), ""},
    // The parser says so only after it has laid out what it met on the way.
    {"GroupThatHoldsItself",
     schemaOf("<xs:group name='g'>" + sequenceOf("", "<xs:group ref='g'/>") + "</xs:group>"),
     tooManyElements},
    {"GroupThatHoldsOneOfTheSameName",
     schemaOf("<xs:group name='g'>" +
              sequenceOf("",
                         "<xs:group xmlns:o='urn:o' ref='o:g'/><xs:group ref='o:g' "
                         "xmlns:o='urn:o'/>") +
              "</xs:group>")
         .insert(sizeof("<xs:schema"), "targetNamespace='urn:a' "),
     ""},
    {"GroupThatHoldsItselfByAPrefix",
     schemaOf("<xs:group name='g'>" + sequenceOf("", "<xs:group ref='a:g' xmlns:a='urn:a'/>") +
              "</xs:group>")
         .insert(sizeof("<xs:schema"), "targetNamespace=' urn:a' "),
     tooManyElements},
    // What the prefix meant inside is gone.
    {"GroupThatHoldsItselfByAPrefixDeclaredTwice",
     schemaOf("<xs:group name='g'>" +
              sequenceOf("xmlns:a='urn:a'",
                         "<xs:element xmlns:a='urn:o'/><xs:element xmlns:a='urn:o'></xs:element>"
                         "<xs:group ref='a:g'/>") +
              "</xs:group>")
         .insert(sizeof("<xs:schema"), "targetNamespace='urn:a' "),
     tooManyElements},
    // A schema without a namespace takes that of whoever includes it.
    {"GroupsThatMayBeTakenOver",
     schemaOf("<xs:group name='g'>" + sequenceOf("maxOccurs='50'", element) + "</xs:group>" +
              sequenceOf("maxOccurs='50'", "<xs:group ref='o:g' xmlns:o='urn:o'/>")),
     tooManyElements},

    {"Union",
     schemaOf("<xs:union memberTypes=' a  b\tc '>" + repeated("<xs:simpleType/>", 13) +
              "</xs:union>"),
     ""},
    {"TooManyMembers", schemaOf("<xs:union memberTypes='" + repeated("a ", 17) + "'/>"),
     tooManyMembers},
    {"TooManyTypesInAUnion",
     schemaOf("<xs:union memberTypes='a'>" + repeated("<xs:simpleType/>", 16) + "</xs:union>"),
     tooManyMembers},
    {"MemberTypesOfAnotherElement", schemaOf("<xs:list memberTypes='" + repeated("a ", 17) + "'/>"),
     ""},

    {"Default", schemaOf("<xs:element default='" + std::string(256, 'x') + "'/>"), ""},
    {"LongDefault", schemaOf("<xs:element default='" + std::string(257, 'x') + "'/>"),
     "256 characters in a default or fixed value"},
    {"LongFixedValue", schemaOf("<xs:element fixed='" + std::string(257, 'x') + "'/>"),
     "256 characters in a default or fixed value"},
    {"Paths", schemaOf("<xs:selector xpath='a" + repeated("|a", 15) + "'/>"), ""},
    {"TooManyPaths", schemaOf("<xs:selector xpath='a" + repeated("|a", 16) + "'/>"), tooManyPaths},
    {"TooManyConstraints", schemaOf(repeated("<xs:field xpath='a'/>", 17)), tooManyPaths},

    {"Entity", "<!DOCTYPE xs:schema [<!ENTITY e 'x'>]>" + schemaOf("&e;"), ""},
    {"LongEntity",
     "<!DOCTYPE xs:schema [<!ENTITY e '" + std::string(65537, 'x') + "'>]>" + schemaOf(""),
     "the entity 'e' is longer than 65536 characters"},
    {"ParameterEntity", "<!DOCTYPE xs:schema [<!ENTITY % e 'x'>]>" + schemaOf(""),
     "parameter entity 'e'"},
    {"ExternalEntity", "<!DOCTYPE xs:schema [<!ENTITY e SYSTEM 'e.xml'>]>" + schemaOf("&e;"),
     "external entity 'e.xml'"},
    {"TooManyEntities", "<!DOCTYPE xs:schema [<!ENTITY e 'x'>]>" + schemaOf(repeated("&e;", 1001)),
     "entity expansion"},
    {"AttributeDeclarations",
     "<!DOCTYPE xs:schema [<!ATTLIST xs:schema a CDATA 'x'>]>" + schemaOf(""),
     "the attribute declarations for 'xs:schema' are refused"},
};

class InspectedSchema : public testing::TestWithParam<Row> {};

TEST_P(InspectedSchema, IsRefusedForTheReason) {
  SchemaInspection inspection;
  const std::string reason = reasonIn(inspection, GetParam().schema);
  EXPECT_EQ(reason.empty(), GetParam().reason.empty()) << reason;
  EXPECT_THAT(reason, testing::HasSubstr(GetParam().reason));
}

INSTANTIATE_TEST_SUITE_P(Rows, InspectedSchema, testing::ValuesIn(rows),
                         [](const auto& row) { return std::string(row.param.name); });

// All schemas of a document count together.
TEST(InspectedSchemas, AddUp) {
  SchemaInspection inspection;
  const std::string nine = schemaOf("<xs:union memberTypes='" + repeated("a ", 9) + "'/>");
  EXPECT_EQ(reasonIn(inspection, nine), "");
  EXPECT_THAT(reasonIn(inspection, nine), testing::HasSubstr(tooManyMembers));
}

TEST(InspectedSchemas, AreRefusedAtTheirPlace) {
  const std::optional<as::CASParseException> refusal = SchemaInspection().refusalOf(
      schemaOf("\n" + repeated("<xs:field xpath='a'/>\n", 17)), u"s.xsd");
  ASSERT_TRUE(refusal);
  EXPECT_EQ(refusal->getLineNum(), 18);
  EXPECT_EQ(refusal->getSystemId(), "s.xsd");
}

}  // namespace
