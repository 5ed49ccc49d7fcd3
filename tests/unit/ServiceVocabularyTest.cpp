// Pins the words of service definitions: the plain ones and those that each flavour adds.
#include <gtest/gtest.h>

#include <map>
#include <string>

#include "com/CSVocabulary.h"
#include "dotnet/DNSVocabulary.h"
#include "java/JSVocabulary.h"
#include "service/SSVocabulary.h"
#include "ws/WSSVocabulary.h"

namespace {

using Text = std::u16string;
using Words = std::map<std::string, Text>;

struct Row {
  const char* name;
  const XMLCh* constant;
  const char16_t* text;
};

// A row of a table that constants are made from.
struct Word {
  const char* name;
  const char16_t* text;
};

// Every constant has its text, and `table`, from which the constants are made, has no others.
template <std::size_t N, std::size_t M>
void expectWords(const Row (&rows)[N], const Word (&table)[M]) {
  Words expected;
  for (const Row& row : rows) {
    EXPECT_EQ(Text(row.constant), row.text) << row.name;
    EXPECT_TRUE(expected.emplace(row.name, row.text).second) << row.name << " stands here twice";
  }
  Words found;
  for (const Word& word : table) {
    EXPECT_TRUE(found.emplace(word.name, word.text).second) << word.name << " stands in it twice";
  }
  EXPECT_EQ(found, expected);
}

TEST(ServiceVocabulary, PlainServices) {
#define WORD(constant, text) \
  { #constant, SS::constant, u##text }
  const Row rows[] = {
      WORD(service, "service"),
      WORD(name, "name"),
      WORD(implementation, "implementation"),
      WORD(programName, "programName"),
      WORD(dataDictFilename, "dataDictFilename"),
      WORD(exitProgramName, "exitProgramName"),
      WORD(properties, "properties"),
      WORD(property, "property"),
      WORD(parameterTypeDefs, "parameterTypeDefs"),
      WORD(operations, "operations"),
      WORD(operation, "operation"),
      WORD(entryPoint, "entryPoint"),
      WORD(exitPoints, "exitPoints"),
      WORD(hiddenParameters, "hiddenParameters"),
      WORD(hiddenParameter, "hiddenParameter"),
      WORD(parameters, "parameters"),
      WORD(parameter, "parameter"),
      WORD(field, "field"),
      WORD(occurs, "occurs"),
      WORD(byType, "byType"),
      WORD(ref, "ref"),
      WORD(mappings, "mappings"),
      WORD(mapping, "mapping"),
      WORD(item, "item"),
      WORD(subscript, "subscript"),
      WORD(value, "value"),
      WORD(in, "in"),
      WORD(out, "out"),
      WORD(io, "io"),
      WORD(ws, "ws"),
      WORD(java, "java"),
      WORD(com, "com"),
      WORD(xd, "xd"),
      WORD(dotnet, "dotnet"),
      WORD(command_line, "$command_line"),
      WORD(return_code, "$return_code"),
      WORD(stdin_, "$stdin"),
      WORD(stdout_, "$stdout"),
  };
#undef WORD
  const Word table[] = {
#define AS_WORD(constant, text) {#constant, u##text},
#include "service/SSVocabulary.def"
  };
  expectWords(rows, table);
}

TEST(ServiceVocabulary, WebServices) {
#define WORD(constant, text) \
  { #constant, WSS::constant, u##text }
  const Row rows[] = {
      WORD(address, "address"),
      WORD(Array, "Array"),
      WORD(attributeForm, "attributeForm"),
      WORD(byte, "byte"),
      WORD(dataType, "dataType"),
      WORD(decimal, "decimal"),
      WORD(document, "document"),
      WORD(double_, "double"),
      WORD(elementForm, "elementForm"),
      WORD(encoded, "encoded"),
      WORD(fault, "fault"),
      WORD(fieldAttribute, "fieldAttribute"),
      WORD(float_, "float"),
      WORD(header, "header"),
      WORD(inputNamespace, "inputNamespace"),
      WORD(inputUse, "inputUse"),
      WORD(int_, "int"),
      WORD(integer, "integer"),
      WORD(literal, "literal"),
      WORD(long_, "long"),
      WORD(namespace_, "namespace"),
      WORD(outputNamespace, "outputNamespace"),
      WORD(outputUse, "outputUse"),
      WORD(qualified, "qualified"),
      WORD(rpc, "rpc"),
      WORD(short_, "short"),
      WORD(string, "string"),
      WORD(style, "style"),
      WORD(unqualified, "unqualified"),
      WORD(unsignedByte, "unsignedByte"),
      WORD(unsignedInt, "unsignedInt"),
      WORD(unsignedLong, "unsignedLong"),
      WORD(unsignedShort, "unsignedShort"),
      WORD(use, "use"),
      WORD(XML, "XML"),
  };
#undef WORD
  const Word table[] = {
#define AS_WORD(constant, text) {#constant, u##text},
#include "ws/WSSVocabulary.def"
  };
  expectWords(rows, table);
}

TEST(ServiceVocabulary, ComServices) {
#define WORD(constant, text) \
  { #constant, CS::constant, u##text }
  const Row rows[] = {
      WORD(dataType, "dataType"), WORD(returnParameter, "returnParameter"),
      WORD(byte, "byte"),         WORD(short_, "short"),
      WORD(int_, "int"),          WORD(long_, "long"),
      WORD(float_, "float"),      WORD(double_, "double"),
      WORD(currency, "currency"), WORD(string, "string"),
      WORD(date, "date"),         WORD(object, "object"),
  };
#undef WORD
  const Word table[] = {
#define AS_WORD(constant, text) {#constant, u##text},
#include "com/CSVocabulary.def"
  };
  expectWords(rows, table);
}

TEST(ServiceVocabulary, JavaServices) {
#define WORD(constant, text) \
  { #constant, JS::constant, u##text }
  const Row rows[] = {
      WORD(byte, "byte"),
      WORD(byteArray, "byteArray"),
      WORD(bigDecimal, "BigDecimal"),
      WORD(bigInteger, "BigInteger"),
      WORD(dataType, "dataType"),
      WORD(double_, "double"),
      WORD(float_, "float"),
      WORD(int_, "int"),
      WORD(long_, "long"),
      WORD(short_, "short"),
      WORD(string, "String"),
      WORD(transactionType, "transactionType"),
      WORD(requires_, "requires"),  // The bare word is one of the language's.
      WORD(requiresNew, "requiresNew"),
      WORD(supports, "supports"),
      WORD(notSupported, "notSupported"),
      WORD(mandatory, "mandatory"),
      WORD(never, "never"),
  };
#undef WORD
  const Word table[] = {
#define AS_WORD(constant, text) {#constant, u##text},
#include "java/JSVocabulary.def"
  };
  expectWords(rows, table);
}

TEST(ServiceVocabulary, DotNetServices) {
#define WORD(constant, text) \
  { #constant, DNS::constant, u##text }
  const Row rows[] = {
      WORD(byte, "Byte"),      WORD(dataType, "dataType"), WORD(decimal, "Decimal"),
      WORD(double_, "Double"), WORD(int16, "Int16"),       WORD(int32, "Int32"),
      WORD(int64, "Int64"),    WORD(sByte, "SByte"),       WORD(single_, "Single"),
      WORD(string, "String"),  WORD(uint16, "UInt16"),     WORD(uint32, "UInt32"),
      WORD(uint64, "UInt64"),
  };
#undef WORD
  const Word table[] = {
#define AS_WORD(constant, text) {#constant, u##text},
#include "dotnet/DNSVocabulary.def"
  };
  expectWords(rows, table);
}

}  // namespace
