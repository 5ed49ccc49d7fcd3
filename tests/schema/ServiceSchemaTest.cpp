// Tests of what the schemas of services let through: elements in their order, attributes, words.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <memory>
#include <ostream>
#include <regex>
#include <set>
#include <string>
#include <vector>

#include "as/AgentServices.h"
#include "support/Documents.h"
#include "support/Labels.h"
#include "support/Requests.h"

namespace {

using Names = std::set<std::string>;

struct Schema {
  const char* label;
  const char* ns;
  bool isWeb;
  std::vector<std::string> dataTypes;
};

void PrintTo(const Schema& schema, std::ostream* out) { *out << schema.label; }

const std::vector<std::string> netWords = {"Byte",   "SByte",  "Int16",   "Int32",
                                           "Int64",  "UInt16", "UInt32",  "UInt64",
                                           "Single", "Double", "Decimal", "String"};

const std::vector<Schema>& schemas() {
  static const std::vector<Schema> all = {
      {"Com",
       as::namespaces::com.uri,
       false,
       {"byte", "short", "int", "long", "float", "double", "currency", "string", "date", "object"}},
      {"DotNet", as::namespaces::dotnet.uri, false, netWords},
      {"Java",
       as::namespaces::java.uri,
       false,
       {"byte", "short", "int", "long", "float", "double", "BigDecimal", "String", "byteArray",
        "BigInteger"}},
      // New .NET services stand in this namespace, too.
      {"Web", as::namespaces::ws.uri, true, {"byte",   "unsignedByte", "short",   "unsignedShort",
                                             "int",    "unsignedInt",  "long",    "unsignedLong",
                                             "float",  "double",       "decimal", "integer",
                                             "string", "Array",        "XML",     "Byte",
                                             "SByte",  "Int16",        "Int32",   "Int64",
                                             "UInt16", "UInt32",       "UInt64",  "Single",
                                             "Double", "Decimal",      "String"}},
  };
  return all;
}

// The way from the root to each element, and what it may have.
struct Element {
  std::vector<std::string> parents;
  Names attributes;
};

class ServiceSchema : public testing::TestWithParam<Schema> {
 protected:
  static void SetUpTestSuite() { services_ = test::newServices(); }
  static void TearDownTestSuite() { services_.reset(); }

  static std::map<std::string, Element> elements() {
    const std::string label = GetParam().label;
    const std::vector<std::string> operation = {"service", "operations", "operation"};
    const auto below = [](std::vector<std::string> parents, std::vector<std::string> more) {
      parents.insert(parents.end(), more.begin(), more.end());
      return parents;
    };
    Names parameter = {"name", "occurs", "byType", "ref", "dataType"};
    Names field = {"name", "occurs", "byType", "ref", "dataType"};
    Names operationAttributes = {"name", "entryPoint", "exitPoints"};
    if (label == "Com") {
      parameter.insert("returnParameter");
      field.insert("returnParameter");
    }
    if (label == "Java") operationAttributes.insert("transactionType");
    if (GetParam().isWeb) {
      for (Names* const names : {&parameter, &field}) {
        names->insert({"namespace", "elementForm", "attributeForm"});
      }
      operationAttributes.insert(
          {"style", "inputUse", "outputUse", "inputNamespace", "outputNamespace"});
    }
    std::map<std::string, Element> all = {
        {"service",
         {{}, {"name", "implementation", "programName", "dataDictFilename", "exitProgramName"}}},
        {"properties", {{"service"}, {}}},
        {"property", {{"service", "properties"}, {"name", "value"}}},
        {"parameterTypeDefs", {{"service"}, {}}},
        {"operations", {{"service"}, {}}},
        {"operation", {{"service", "operations"}, operationAttributes}},
        {"hiddenParameters", {operation, {}}},
        {"hiddenParameter",
         {below(operation, {"hiddenParameters"}), {"item", "subscript", "value"}}},
        {"parameters", {operation, {}}},
        {"parameter", {below(operation, {"parameters"}), parameter}},
        {"field", {below(operation, {"parameters", "parameter"}), field}},
        {"mappings", {below(operation, {"parameters", "parameter"}), {}}},
        {"mapping",
         {below(operation, {"parameters", "parameter", "mappings"}), {"item", "subscript"}}}};
    if (GetParam().isWeb) {
      all["fieldAttribute"] = {below(operation, {"parameters", "parameter"}), field};
      all["header"] = {operation, {"byType", "namespace", "use"}};
      all["fault"] = {operation, {"namespace", "use"}};
    }
    return all;
  }

  // Whether a document with one such element is read.
  static bool isRead(const std::string& element, const std::string& attributes,
                     const std::string& content = "") {
    const std::map<std::string, Element> all = elements();
    const std::string root = "service " + test::declarations(GetParam().ns);
    std::string open;
    std::string close;
    for (const std::string& parent : all.at(element).parents) {
      open += "<" + (parent == "service" ? root : parent) + ">";
      close.insert(0, "</" + parent + ">");
    }
    return isRead(open + "<" + (element == "service" ? root : element) + " " + attributes + ">" +
                  content + "</" + element + ">" + close);
  }

  static bool isRead(const std::string& document) {
    const auto outcome = test::serviceOutcomeOf(*services_, document);
    EXPECT_TRUE(outcome.result == test::Result::root ||
                outcome.result == test::Result::parseException)
        << outcome.text;
    return outcome.result == test::Result::root;
  }

 private:
  static std::unique_ptr<as::IAgentServices> services_;
};

std::unique_ptr<as::IAgentServices> ServiceSchema::services_;

INSTANTIATE_TEST_SUITE_P(Flavours, ServiceSchema, testing::ValuesIn(schemas()),
                         test::labelOf<Schema>);

TEST_P(ServiceSchema, ElementsHaveTheirAttributesAndNoOthers) {
  const std::map<std::string, std::string> values = {{"name", "n"},
                                                     {"implementation", "ws"},
                                                     {"programName", "p"},
                                                     {"dataDictFilename", "d"},
                                                     {"exitProgramName", "e"},
                                                     {"value", "v"},
                                                     {"entryPoint", "e"},
                                                     {"exitPoints", "1"},
                                                     {"transactionType", "never"},
                                                     {"item", "A"},
                                                     {"subscript", "1"},
                                                     {"occurs", "1"},
                                                     {"byType", "in"},
                                                     {"ref", "r"},
                                                     {"dataType", GetParam().dataTypes[0]},
                                                     {"returnParameter", "1"},
                                                     {"style", "rpc"},
                                                     {"inputUse", "literal"},
                                                     {"outputUse", "literal"},
                                                     {"inputNamespace", "u"},
                                                     {"outputNamespace", "u"},
                                                     {"namespace", "u"},
                                                     {"use", "literal"},
                                                     {"elementForm", "qualified"},
                                                     {"attributeForm", "qualified"}};
  for (const auto& [name, element] : elements()) {
    // A property without a name is none.
    const std::string needed = name == "property" ? "name='n'" : "";
    std::string all = needed;
    for (const std::string& attribute : element.attributes) {
      if (name != "property" || attribute != "name") {
        all += " " + attribute + "='" + values.at(attribute) + "'";
      }
    }
    EXPECT_TRUE(isRead(name, needed)) << name;
    EXPECT_TRUE(isRead(name, all)) << name << " " << all;
    for (const auto& [attribute, value] : values) {
      if (element.attributes.count(attribute) != 0) continue;
      EXPECT_FALSE(isRead(name, needed + " " + attribute + "='" + value + "'"))
          << name << " " << attribute;
    }
    EXPECT_FALSE(isRead(name, needed + " xsi:nil='true'")) << name;
    const std::string other = name == "mapping" ? "property" : "mapping";
    EXPECT_FALSE(isRead(name, needed + " xsi:type='" + other + "'")) << name;
  }
  EXPECT_FALSE(isRead("property", ""));
}

// What an element may hold: the letters of its children, in a regular expression.
struct Content {
  const char* element;
  const char* letters;
  const char* plain;
  const char* web;  // For Web services.
};

TEST_P(ServiceSchema, ElementsHoldTheirPartsInOrder) {
  const std::map<char, std::string> parts = {{'p', "<properties/>"},
                                             {'t', "<parameterTypeDefs/>"},
                                             {'o', "<operations/>"},
                                             {'O', "<operation/>"},
                                             {'h', "<hiddenParameters/>"},
                                             {'a', "<parameters/>"},
                                             {'H', "<header/>"},
                                             {'F', "<fault/>"},
                                             {'m', "<mappings/>"},
                                             {'f', "<field/>"},
                                             {'A', "<fieldAttribute/>"},
                                             {'q', "<parameter/>"},
                                             {'d', "<hiddenParameter/>"},
                                             {'M', "<mapping/>"},
                                             {'r', "<property name='n'/>"},
                                             {'x', "text"}};
  const Content contents[] = {{"service", "ptoOx", "p?t?o?", "p?t?o?"},
                              {"operation", "haHFx", "h?a?", "h?a?[HF]*"},
                              {"parameter", "mfAqx", "m?f*", "m?[fA]*"},
                              {"field", "mfAqx", "m?f*", "m?[fA]*"},
                              {"fieldAttribute", "mfAx", nullptr, "m?[fA]*"},
                              {"header", "aqhx", nullptr, "a?"},
                              {"fault", "aqhx", nullptr, "a?"},
                              {"properties", "rqx", "r*", "r*"},
                              {"parameterTypeDefs", "qfOx", "q*", "q*"},
                              {"operations", "Oqx", "O*", "O*"},
                              {"parameters", "qfdx", "q*", "q*"},
                              {"hiddenParameters", "dqMx", "d*", "d*"},
                              {"mappings", "Mdx", "M*", "M*"},
                              {"mapping", "Mx", "", ""},
                              {"hiddenParameter", "dx", "", ""}};
  for (const Content& content : contents) {
    const char* const pattern = GetParam().isWeb ? content.web : content.plain;
    if (pattern == nullptr) continue;
    const std::regex allowed(pattern);
    std::vector<std::string> sequences = {""};
    for (std::size_t i = 0; i < sequences.size(); i++) {
      const std::string sequence = sequences[i];
      std::string text;
      for (const char letter : sequence) text += parts.at(letter);
      const bool isAllowed = std::regex_match(sequence, allowed);
      EXPECT_EQ(isRead(content.element, "", text), isAllowed) << content.element << " " << text;
      // What cannot be read becomes no better behind; of the rest, three in a row tell enough.
      if (!isAllowed || sequence.size() == 3) continue;
      for (const char* letter = content.letters; *letter != '\0'; letter++) {
        sequences.push_back(sequence + *letter);
      }
    }
  }
}

TEST_P(ServiceSchema, BlanksAndCommentsMayStandAnywhere) {
  for (const auto& [name, element] : elements()) {
    const std::string needed = name == "property" ? "name='n'" : "";
    EXPECT_TRUE(isRead(name, needed, " \n\t<!-- c --> <?pi x?>\n")) << name;
  }
}

// Attributes of fixed words.
TEST_P(ServiceSchema, WordsAreTakenExactly) {
  const std::vector<std::string> uses = {"literal", "encoded"};
  const std::vector<std::string> forms = {"qualified", "unqualified"};
  const std::map<std::string, std::vector<std::string>> words = {
      {"implementation", {"ws", "java", "com", "xd", "dotnet"}},
      {"byType", {"in", "out", "io"}},
      {"transactionType",
       {"notSupported", "mandatory", "never", "requires", "requiresNew", "supports"}},
      {"style", {"rpc", "document"}},
      {"inputUse", uses},
      {"outputUse", uses},
      {"use", uses},
      {"elementForm", forms},
      {"attributeForm", forms}};
  for (const auto& [name, element] : elements()) {
    for (const auto& [attribute, good] : words) {
      if (element.attributes.count(attribute) == 0) continue;
      for (const std::string& word : good) {
        EXPECT_TRUE(isRead(name, attribute + "='" + word + "'")) << name << " " << word;
      }
      std::string capital = good[0];
      capital[0] = static_cast<char>(capital[0] - 'a' + 'A');
      for (const std::string& bad : {std::string(), capital, good[0] + " ", " " + good[0],
                                     good[0] + good[1], std::string("other")}) {
        EXPECT_FALSE(isRead(name, attribute + "='" + bad + "'"))
            << name << " " << attribute << " '" << bad << "'";
      }
    }
  }
}

TEST_P(ServiceSchema, DataTypesAreThoseOfTheFlavour) {
  Names all = {"", "other", "Integer", "STRING", "int "};
  for (const Schema& schema : schemas()) {
    all.insert(schema.dataTypes.begin(), schema.dataTypes.end());
  }
  const std::vector<std::string>& own = GetParam().dataTypes;
  for (const char* const element : {"parameter", "field", "fieldAttribute"}) {
    if (element == std::string("fieldAttribute") && !GetParam().isWeb) continue;
    for (const std::string& word : all) {
      EXPECT_EQ(isRead(element, "dataType='" + word + "'"),
                std::find(own.begin(), own.end(), word) != own.end())
          << element << " '" << word << "'";
    }
  }
}

// A client's array has room for sixteen.
TEST_P(ServiceSchema, SubscriptsAreSixteenAtMost) {
  for (const char* const element : {"mapping", "hiddenParameter"}) {
    std::string subscripts = "1";
    for (int count = 1; count <= 19; count++) {
      EXPECT_EQ(isRead(element, "subscript='" + subscripts + "'"), count <= 16) << count;
      EXPECT_EQ(isRead(element, "item='A.B(" + subscripts + ")'"), count <= 16) << count;
      subscripts += count % 2 == 0 ? ",1" : ",*";
    }
    EXPECT_TRUE(isRead(element, "subscript='' item=''"));
    EXPECT_TRUE(isRead(element, "subscript='any, text' item='A(any, text)x'"));
    // As readers find subscripts, these have none.
    const std::string seventeen = "1,1,1,1,1,1,1,1,1,1,1,1,1,1,1,1,1";
    for (const std::string& item :
         {"A(" + seventeen, "A(" + seventeen + ")x", "A(" + seventeen + ")&#10;",
          "A)(" + seventeen + ")", "A(1)&#10;(" + seventeen + ")", seventeen + ")",
          std::string("A)&#10;B"), std::string("(&#13;)&#10;")}) {
      EXPECT_TRUE(isRead(element, "item='" + item + "'")) << item;
    }
  }
}

TEST_P(ServiceSchema, ReturnParametersAreTruthsInAnyCase) {
  if (GetParam().label != std::string("Com")) {
    EXPECT_FALSE(isRead("parameter", "returnParameter='1'"));
    return;
  }
  for (const char* const good : {"0", "1", "true", "false", "TRUE", "False", "TrUe"}) {
    EXPECT_TRUE(isRead("parameter", "returnParameter='" + std::string(good) + "'")) << good;
    EXPECT_TRUE(isRead("field", "returnParameter='" + std::string(good) + "'")) << good;
  }
  for (const char* const bad : {"", "2", "yes", "01", "true ", "tru"}) {
    EXPECT_FALSE(isRead("parameter", "returnParameter='" + std::string(bad) + "'")) << bad;
  }
}

TEST_P(ServiceSchema, NumbersAreWhole) {
  const struct {
    const char* element;
    const char* attribute;
    std::vector<std::string> good;
    std::vector<std::string> bad;
  } rows[] = {
      {"parameter",
       "occurs",
       {"0", "1", "-1", "2147483647", "-2147483648"},
       {"", "one", "1.5", "2147483648"}},
      {"operation", "exitPoints", {"0", "3", "4294967295"}, {"", "three", "4294967296", "1.0"}}};
  for (const auto& row : rows) {
    const std::string start = row.attribute + std::string("='");
    for (const std::string& good : row.good) {
      EXPECT_TRUE(isRead(row.element, start + good + "'")) << row.attribute << " " << good;
    }
    for (const std::string& bad : row.bad) {
      EXPECT_FALSE(isRead(row.element, start + bad + "'")) << row.attribute << " " << bad;
    }
  }
}

TEST_P(ServiceSchema, OnlyAServiceIsARoot) {
  for (const auto& [name, element] : elements()) {
    EXPECT_EQ(isRead(test::element(name, "", test::declarations(GetParam().ns))), name == "service")
        << name;
  }
}

// What no getter has a number for does not get into a model through a document.
TEST(WebWord, ThatIsNoneOfItsAttributeIsRefusedByTheParser) {
  const struct {
    const char* element;
    const char* attribute;
    const char* word;
    const char* wrong[4];
  } rows[] = {
      {"operation", "style", "rpc", {"", "RPC", "literal", "documents"}},
      {"operation", "inputUse", "literal", {"", "Literal", "rpc", " literal"}},
      {"operation", "outputUse", "encoded", {"", "Encoded", "document", "encoded "}},
      {"header", "use", "literal", {"", "Literal", "in", "literals"}},
      {"header", "byType", "io", {"", "IN", "inout", "io "}},
      {"fault", "use", "encoded", {"", "Encoded", "out", "encode"}},
      {"parameter", "dataType", "integer", {"", "Integer", "array", "xml"}},
      {"parameter", "elementForm", "qualified", {"", "Qualified", "encoded", "yes"}},
      {"parameter", "attributeForm", "unqualified", {"", "UNQUALIFIED", "true", "un"}},
  };
  for (const auto& row : rows) {
    const auto outcomeOf = [&row](const char* word) {
      const std::string element = row.element;
      const std::string attribute = std::string(row.attribute) + "='" + word + "'";
      const std::string inner = "<" + element + " " + attribute + "/>";
      const std::string document = test::webService(
          "", "<operations>" +
                  (element == "operation"   ? inner
                   : element == "parameter" ? "<operation><fault><parameters>" + inner +
                                                  "</parameters></fault></operation>"
                                            : "<operation>" + inner + "</operation>") +
                  "</operations>");
      return test::serviceOutcomeOf(document).result;
    };
    EXPECT_EQ(outcomeOf(row.word), test::Result::root) << row.element << " " << row.attribute;
    for (const char* const wrong : row.wrong) {
      EXPECT_EQ(outcomeOf(wrong), test::Result::parseException)
          << row.element << " " << row.attribute << " '" << wrong << "'";
    }
  }
}

}  // namespace
