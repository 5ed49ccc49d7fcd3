// Pins the fixed texts: namespaces, schema files and the words of each schema.
#include <gtest/gtest.h>

#include <set>
#include <string>

#include "cobol/DDVocabulary.h"
#include "xml/Vocabulary.h"

namespace {

using Text = std::u16string;

struct Row {
  const XMLCh* constant;
  const char16_t* text;
};

#define HOST u"http://agentservices.example"

TEST(Vocabulary, SharedTexts) {
  const Row rows[] = {
      {XSDNS::xmlURI, u"http://www.w3.org/2000/xmlns/"},
      {XSDNS::xsiURI, u"http://www.w3.org/2001/XMLSchema-instance"},
      {XSDNS::serviceURI, HOST u"/schema/service/v2.0/vorservice.xsd"},
      {XSDNS::serviceName, u"vorservice.xsd"},
      {XSDNS::ddURI, HOST u"/schema/cobol/v2.0/vorcobol.xsd"},
      {XSDNS::ddName, u"vorcobol.xsd"},
      {XSDNS::wsURI, HOST u"/schema/ws/v1.0/vorws.xsd"},
      {XSDNS::wsName, u"vorws.xsd"},
      {XSDNS::wsSchemaLocation,
       HOST u"/schema/ws/v1.0/vorws.xsd " HOST u"/schema/ws/v1.0/vorws.xsd"},
      {XSDNS::comURI, HOST u"/schema/com/v1.0/vorcom.xsd"},
      {XSDNS::comName, u"vorcom.xsd"},
      {XSDNS::comSchemaLocation,
       HOST u"/schema/com/v1.0/vorcom.xsd " HOST u"/schema/com/v1.0/vorcom.xsd"},
      {XSDNS::javaURI, HOST u"/schema/java/v2.0/vorjava.xsd"},
      {XSDNS::javaName, u"vorjava.xsd"},
      {XSDNS::javaSchemaLocation,
       HOST u"/schema/java/v2.0/vorjava.xsd " HOST u"/schema/java/v2.0/vorjava.xsd"},
      {XSDNS::dotnetURI, HOST u"/schema/dotnet/v1.0/vordotnet.xsd"},
      {XSDNS::dotnetName, u"vordotnet.xsd"},
      {XSDNS::dotnetSchemaLocation,
       HOST u"/schema/dotnet/v1.0/vordotnet.xsd " HOST u"/schema/dotnet/v1.0/vordotnet.xsd"},
      {XMLNS::xmlns, u"xmlns"},
      {XMLNS::core, u"Core"},
      {XMLNS::xsi, u"xsi"},
      {XMLNS::xmlnsxsi, u"xmlns:xsi"},
      {XMLNS::schemaLocation, u"schemaLocation"},
      {XMLNS::xsischemaLocation, u"xsi:schemaLocation"},
      {XMLNS::xmlnsws, u"xmlns:ws"},
      {XMLNS::xmlnscom, u"xmlns:com"},
      {XMLNS::type, u"type"},
      {APIDATA_KEY, u"ASAPI"},
  };
  for (const Row& row : rows) EXPECT_EQ(Text(row.constant), row.text);
}

TEST(Vocabulary, DictionaryConstantsAreNamedLikeTheirText) {
  const std::set<std::string> renamed = {"comp1", "comp2", "comp3", "comp4",
                                         "comp5", "comp6", "compx", "true_"};
#define AS_WORD(constant, text)                                                           \
  {                                                                                       \
    EXPECT_EQ(Text(DD::constant), u##text);                                               \
    EXPECT_EQ(std::string(#constant) != text, renamed.count(#constant) > 0) << #constant; \
  }
#include "cobol/DDVocabulary.def"
}

TEST(Vocabulary, DictionaryHasTheseWords) {
  const std::set<std::string> expected = {"accessMode",
                                          "alignment",
                                          "all",
                                          "alphanumeric",
                                          "alphanumericCondition",
                                          "alphanumericConstant",
                                          "alphanumericEdited",
                                          "alphanumericRange",
                                          "blankWhenZero",
                                          "byType",
                                          "callConvention",
                                          "cobolObject",
                                          "comp",
                                          "comp-1",
                                          "comp-2",
                                          "comp-3",
                                          "comp-4",
                                          "comp-5",
                                          "comp-6",
                                          "comp-x",
                                          "display",
                                          "externalFloat",
                                          "dataItem",
                                          "dataItems",
                                          "digits",
                                          "dynamic",
                                          "entryPoint",
                                          "entryPoints",
                                          "fd",
                                          "file",
                                          "fileSection",
                                          "from",
                                          "group",
                                          "index",
                                          "indexed",
                                          "isFalse",
                                          "justified",
                                          "left",
                                          "length",
                                          "li",
                                          "line",
                                          "lineSequential",
                                          "linkage",
                                          "ls",
                                          "minOccurs",
                                          "maxOccurs",
                                          "name",
                                          "national",
                                          "nullConditionValue",
                                          "numeric",
                                          "numericCondition",
                                          "numericConstant",
                                          "numericEdited",
                                          "numericRange",
                                          "object",
                                          "odo",
                                          "offset",
                                          "parameter",
                                          "picture",
                                          "pointer",
                                          "program",
                                          "properties",
                                          "property",
                                          "random",
                                          "redefines",
                                          "reference",
                                          "relative",
                                          "renames",
                                          "returning",
                                          "right",
                                          "sequential",
                                          "sign",
                                          "sync",
                                          "ti",
                                          "ts",
                                          "usage",
                                          "unicode",
                                          "to",
                                          "true",
                                          "value"};
  std::multiset<std::string> words;
#define AS_WORD(constant, text) words.insert(text);
#include "cobol/DDVocabulary.def"
  EXPECT_EQ(std::set<std::string>(words.begin(), words.end()), expected);
  EXPECT_EQ(words.size(), expected.size()) << "a word stands in the table twice";
}

}  // namespace
