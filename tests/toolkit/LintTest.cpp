// Tests of lint: every rule, word for word.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <ostream>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "as/toolkit/Lint.h"
#include "support/Documents.h"
#include "support/Flavours.h"
#include "support/SchemasOfMoreWords.h"
#include "support/Toolkit.h"

namespace {

namespace toolkit = as::toolkit;
using test::payService;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

// A service with one defect at most, and what lint says of it.
struct Row {
  std::string label;
  std::string rule;  // The rule that finds it; empty when nothing is found.
  std::string document;
  std::string text;
  std::string program = test::payProgram();
  bool moreWords = false;  // Read with test::writeSchemasOfMoreWords().
};

Row withMoreWords(Row row) {
  row.moreWords = true;
  return row;
}

// Services with such type definitions and operations.
Row java(const std::string& label, const std::string& rule, const std::string& content,
         const std::string& text, const std::string& program = test::payProgram()) {
  return {label, rule, payService(content), text, program};
}

Row com(const std::string& label, const std::string& rule, const std::string& content,
        const std::string& text) {
  return {label, rule,
          test::serviceDocument(as::namespaces::com.uri,
                                "name='Pay' implementation='com' programName='PAYROLL' "
                                "dataDictFilename='PAY.xml'",
                                content),
          text};
}

Row web(const std::string& label, const std::string& rule, const std::string& content,
        const std::string& text, const std::string& program = test::payProgram()) {
  return {label, rule,
          test::webService("name='Pay' implementation='ws' programName='PAYROLL' "
                           "dataDictFilename='PAY.xml'",
                           content),
          text, program};
}

// A Java service with such attributes.
Row attributes(const std::string& label, const std::string& rule, const std::string& attributes,
               const std::string& text) {
  return {label, rule, test::javaService(attributes, ""), text};
}

// The program, with its entry point called with something else.
std::string programWith(const std::string& linkage) {
  std::string program = test::payProgram();
  const std::string start = "<entryPoint name=\"PAY\">";
  const std::size_t from = program.find(start) + start.size();
  return program.replace(from, program.find("</entryPoint>") - from, linkage);
}

std::string operation(const std::string& members) {
  return "<operations><operation name='pay' entryPoint='PAY'>" + members +
         "</operation></operations>";
}

std::string parameters(const std::string& members) {
  return operation("<parameters>" + members + "</parameters>");
}

std::string mapped(const std::string& attributes, const std::string& mapping) {
  return parameters("<parameter name='p' " + attributes + "><mappings><mapping " + mapping +
                    "/></mappings></parameter>");
}

std::string hidden(const std::string& attributes) {
  return operation("<hiddenParameters><hiddenParameter " + attributes + "/></hiddenParameters>");
}

// A header or fault with a parameter that is mapped to the item.
std::string message(const std::string& kind, const std::string& attributes,
                    const std::string& item) {
  return "<" + kind + " use='literal' namespace='urn:m' " + attributes +
         "><parameters><parameter name='p' dataType='int'><mappings><mapping item='" + item +
         "'/></mappings></parameter></parameters></" + kind + ">";
}

// An operation of a Web service.
std::string webOperation(const std::string& attributes, const std::string& members = "") {
  return "<operations><operation name='pay' entryPoint='PAY' " + attributes + ">" + members +
         "</operation></operations>";
}

const char goodDocument[] =
    "style='document' inputUse='literal' outputUse='literal' inputNamespace='urn:i' "
    "outputNamespace='urn:o'";

const char goodParameter[] =
    "<parameters><parameter name='p' dataType='int'><mappings><mapping item='REQ.ID'/></mappings>"
    "</parameter></parameters>";

std::string webParameter(const std::string& attributes, const std::string& mapping) {
  return webOperation(goodDocument, "<parameters><parameter name='p' " + attributes +
                                        "><mappings><mapping " + mapping +
                                        "/></mappings></parameter></parameters>");
}

struct Family {
  std::string label;
  std::vector<Row> rows;
};

std::vector<Family> families() {
  return {
      {"Services",
       {attributes("Good", "",
                   "name='Pay' implementation='java' programName='PAYROLL' "
                   "dataDictFilename='PAY.xml'",
                   ""),
        attributes("Unnamed", "unnamed-service",
                   "implementation='java' programName='PAYROLL' dataDictFilename='PAY.xml'",
                   "warning: service: the service has no name; write \"name\""),
        attributes("NoDictionary", "no-dictionary", "name='Pay' implementation='java'",
                   "error: service: the service names no dictionary; write \"dataDictFilename\""),
        attributes("OfAnotherFlavour", "wrong-implementation",
                   "name='Pay' implementation='com' dataDictFilename='PAY.xml'",
                   "error: service: implementation 'com' is not that of a Java service; correct "
                   "\"implementation\""),
        attributes(
            "LostDictionary", "unusable-dictionary",
            "name='Pay' implementation='java' dataDictFilename='NONE.xml'",
            "error: service: the dictionary cannot be used: NONE.xml: cannot be read: No such "
            "file or directory; mappings and entry points were not checked"),
        attributes("NoDictionaryInTheFile", "unusable-dictionary",
                   "name='Pay' implementation='java' dataDictFilename='s.xml'",
                   std::string("error: service: the dictionary cannot be used: s.xml: not a data "
                               "dictionary: its root element is not in the namespace ") +
                       as::namespaces::dd.uri + "; mappings and entry points were not checked"),
        attributes(
            "OtherProgram", "other-program",
            "name='Pay' implementation='java' programName='OTHER' dataDictFilename='PAY.xml'",
            "warning: service: it names program 'OTHER', the dictionary is of 'PAYROLL'; "
            "correct \"programName\" or \"dataDictFilename\"")}},
      {"Comments",
       {java("Good", "", "<!-- lint: off lost-type same-name --><operations/>", ""),
        java("UnknownRule", "lint-comment", "<!-- lint: off lost-tpye --><operations/>",
             "warning: comment: there is no rule 'lost-tpye'; did you mean 'lost-type'?")}},
      {"Mappings",
       {
           java("Good", "", mapped("dataType='int'", "item='REQ.ID'"), ""),
           java("GoodSpecial", "", mapped("dataType='String'", "item='$stdin'"), ""),
           java("GoodTable", "",
                mapped("occurs='3' dataType='BigDecimal'",
                       "item='REQ.LINE.AMOUNT(*)' subscript='*'"),
                ""),
           java("GoodOccurrence", "", mapped("dataType='BigDecimal'", "item='REQ.LINE.AMOUNT(3)'"),
                ""),
           java("NoItem", "empty-mapping", mapped("dataType='int'", "subscript='1'"),
                "error: pay.p: the mapping names no data item; name one in \"item\""),
           java("UnknownItem", "lost-data-item", mapped("dataType='int'", "item='REQ.IDX'"),
                "error: pay.p: PAYROLL has no data item 'REQ.IDX'; did you mean 'REQ.ID'?"),
           java("NearItemElsewhere", "lost-data-item",
                mapped("dataType='int'", "item='REQ.AMONUT'"),
                "error: pay.p: PAYROLL has no data item 'REQ.AMONUT'; did you mean "
                "'REQ.LINE.AMOUNT'?"),
           java("NoItemNear", "lost-data-item", mapped("dataType='int'", "item='REQ.WEIGHT'"),
                "error: pay.p: PAYROLL has no data item 'REQ.WEIGHT'; correct the name"),
           java("BelowANearGroup", "lost-data-item", mapped("dataType='int'", "item='RQE.CELLS'"),
                "error: pay.p: PAYROLL has no data item 'RQE.CELLS'; did you mean "
                "'REQ.LINE.CELL'?"),
           java("ItemElsewhere", "lost-data-item", mapped("dataType='int'", "item='ID'"),
                "error: pay.p: PAYROLL has no data item 'ID'; did you mean 'REQ.ID'?"),
           java("UnknownSpecialName", "lost-data-item", mapped("dataType='int'", "item='$input'"),
                "error: pay.p: PAYROLL has no data item '$input'; use $command_line, $return_code, "
                "$stdin or $stdout"),
           java("HiddenUnknownItem", "lost-data-item", hidden("item='REQ.X' value='1'"),
                "error: pay, hidden parameter 1: PAYROLL has no data item 'REQ.X'; correct the "
                "name"),
           java("HiddenWithoutValue", "no-hidden-value", hidden("item='REQ.ID'"),
                "warning: pay, hidden parameter 1: it has no value; give it one"),
           java("HiddenValueNoNumber", "hidden-value-no-number",
                hidden("item='REQ.ID' value='abc'"),
                "error: pay, hidden parameter 1: value 'abc' is no number, ID is; write a number"),
           java("HiddenValueOfSeveralNumbers", "hidden-value-no-number",
                hidden("item='REQ.ID' value='1-2'"),
                "error: pay, hidden parameter 1: value '1-2' is no number, ID is; write a number"),
           java("HiddenValueWithAnExponent", "", hidden("item='REQ.ID' value='-1.5E+3'"), ""),
           java("HiddenValueWithHalfAnExponent", "hidden-value-no-number",
                hidden("item='REQ.ID' value='1E'"),
                "error: pay, hidden parameter 1: value '1E' is no number, ID is; write a number"),
           java("NoMapping", "unmapped-field", parameters("<parameter name='p' dataType='int'/>"),
                "warning: pay.p: it is mapped to no data item; add a mapping or remove it"),
       }},
      {"Subscripts",
       {
           java("Missing", "subscript-count",
                mapped("dataType='BigDecimal'", "item='REQ.LINE.AMOUNT'"),
                "error: pay.p: 'REQ.LINE.AMOUNT' has 0 subscripts but stands in 1 table; write "
                "'REQ.LINE.AMOUNT(*)' or the occurrences meant"),
           java("TooFew", "subscript-count", mapped("dataType='int'", "item='REQ.LINE.CELL(1)'"),
                "error: pay.p: 'REQ.LINE.CELL' has 1 subscript but stands in 2 tables; write "
                "'REQ.LINE.CELL(*,*)' or the occurrences meant"),
           java("NoTable", "subscript-count", mapped("dataType='int'", "item='REQ.ID(1)'"),
                "error: pay.p: 'REQ.ID' has 1 subscript but stands in 0 tables; write 'REQ.ID'"),
           java("OutOfRange", "subscript-range",
                mapped("dataType='BigDecimal'", "item='REQ.LINE.AMOUNT(4)'"),
                "error: pay.p: subscript 4 of 'REQ.LINE.AMOUNT' is outside of LINE, which occurs 3 "
                "times; write a number from 1 to 3, or *"),
           java("Zero", "subscript-range",
                mapped("dataType='BigDecimal'", "item='REQ.LINE.AMOUNT(0)'"),
                "error: pay.p: subscript 0 of 'REQ.LINE.AMOUNT' is outside of LINE, which occurs 3 "
                "times; write a number from 1 to 3, or *"),
           java("OutOfTheInnerRange", "subscript-range",
                mapped("dataType='int'", "item='REQ.LINE.CELL(1,3)'"),
                "error: pay.p: subscript 3 of 'REQ.LINE.CELL' is outside of CELL, which occurs 2 "
                "times; write a number from 1 to 2, or *"),
           java("Unreadable", "unreadable-subscripts",
                mapped("dataType='BigDecimal'", "item='REQ.LINE.AMOUNT(x)'"),
                "error: pay.p: the subscripts of 'REQ.LINE.AMOUNT(x)' cannot be read; write "
                "numbers or * with commas between, as in ITEM(1,*)"),
           java("InterfaceUnreadable", "unreadable-subscripts",
                mapped("dataType='BigDecimal'", "item='REQ.LINE.AMOUNT(1)' subscript='x'"),
                "error: pay.p: subscript 'x' cannot be read; write numbers or * with commas "
                "between, as in 1,*"),
           java("InterfaceLeftOver", "interface-subscript-count",
                mapped("dataType='int'", "item='REQ.ID' subscript='*'"),
                "error: pay.p: subscript '*' is left over: the item stands in no table; remove it"),
           java("InterfaceMissing", "interface-subscript-count",
                mapped("occurs='3' dataType='BigDecimal'", "item='REQ.LINE.AMOUNT(*)'"),
                "error: pay.p: the mapping has no subscripts of the interface for 1 table; write "
                "'*' in \"subscript\""),
           // A field for each line and cell, and only one of the two tables of the item is open.
           java("InterfaceClosed", "interface-subscript-open",
                mapped("occurs='3' dataType='BigDecimal'",
                       "item='REQ.LINE.AMOUNT(*)' subscript='2'"),
                "error: pay.p: all occurrences (*) of the item go to occurrence 2 of the "
                "interface; open both or neither"),
           java("InterfaceCrossed", "interface-subscript-open",
                mapped("occurs='3' dataType='byte'", "item='REQ.LINE.CELL(1,*)' subscript='*,1'"),
                "error: pay.p: all occurrences (*) of the item go to occurrence 1 of the "
                "interface; open both or neither"),
           java("FieldOfTooManyTables", "too-many-field-tables",
                mapped("occurs='5' dataType='int'", "item='REQ.ID'"),
                "error: pay.p: the field stands in 1 table, the item in 0 open ones; take "
                "\"occurs\" away, or map to the table's items"),
           java("FieldWithAFixedPlaceInItsTable", "",
                mapped("occurs='5' dataType='BigDecimal'",
                       "item='REQ.LINE.AMOUNT(1)' subscript='3'"),
                ""),
           java("InterfaceOpen", "interface-subscript-open",
                mapped("dataType='BigDecimal'", "item='REQ.LINE.AMOUNT(1)' subscript='*'"),
                "error: pay.p: subscript '*' is open (*) where the item's is a number; open both "
                "or neither"),
           java("InterfaceBeyondTheField", "interface-subscript-range",
                mapped("occurs='3' dataType='BigDecimal'",
                       "item='REQ.LINE.AMOUNT(1)' subscript='4'"),
                "error: pay.p: subscript 4 is beyond the 3 occurrences of the field; write a "
                "smaller "
                "number or raise \"occurs\""),
           java("InterfaceZero", "interface-subscript-range",
                mapped("dataType='BigDecimal'", "item='REQ.LINE.AMOUNT(1)' subscript='0'"),
                "error: pay.p: subscript 0 is outside of every table; count from 1, or write *"),
           java("TableIntoOneField", "too-few-field-tables",
                mapped("dataType='BigDecimal'", "item='REQ.LINE.AMOUNT(*)' subscript='*'"),
                "error: pay.p: all occurrences in 1 table are mapped to a single field; give "
                "\"occurs\" to the field or one around it, or name the occurrence"),
           java("TableTooLong", "small-field-table",
                mapped("occurs='2' dataType='BigDecimal'",
                       "item='REQ.LINE.AMOUNT(*)' subscript='*'"),
                "warning: pay.p: a table of 3 occurrences is mapped to 2; raise \"occurs\""),
       }},
      {"EntryPoints",
       {
           java("NoEntryPoint", "unbound-operation",
                "<operations><operation name='o'/></operations>",
                "error: o: the operation is bound to no entry point; name one in \"entryPoint\""),
           java("NearEntryPoint", "lost-entry-point",
                "<operations><operation name='o' entryPoint='pya'/></operations>",
                "error: o: PAYROLL has no entry point 'pya'; did you mean 'PAY'?"),
           java("UnknownEntryPoint", "lost-entry-point",
                "<operations><operation name='o' entryPoint='GO'/></operations>",
                "error: o: PAYROLL has no entry point 'GO'; bind the operation to one of the "
                "program's"),
           java("NotHandedOver", "unreachable-storage", mapped("dataType='int'", "item='WS-COUNT'"),
                "error: pay.p: WS-COUNT is nothing that entry point 'PAY' is called with; map to "
                "something within REQ, RC"),
           java("OnlyReturned", "nothing-goes-in",
                mapped("byType='in' dataType='int'", "item='RC'"),
                "warning: pay.p: RC is only returned: nothing goes in; make the parameter \"out\""),
           java("LinkageNotInTheDictionary", "lost-linkage-record", operation(""),
                "error: pay: entry point 'PAY' is called with 'NONE', which is no record of the "
                "dictionary; make the dictionary anew",
                programWith("<parameter dataItem='REQ'/><parameter dataItem='NONE'/>")),
           java("NothingIsSaidOfStorageThen", "lost-linkage-record",
                mapped("dataType='int'", "item='WS-COUNT'"),
                "error: pay: entry point 'PAY' is called with 'NONE', which is no record of the "
                "dictionary; make the dictionary anew",
                programWith("<parameter dataItem='NONE'/>")),
           java("NothingIsHandedOver", "unreachable-storage",
                mapped("dataType='int'", "item='REQ.ID'"),
                "error: pay.p: REQ is nothing that entry point 'PAY' is called with; it takes no "
                "parameters",
                programWith("")),
           java("ByValue", "nothing-comes-back",
                mapped("byType='out' dataType='int'", "item='REQ.ID'"),
                "warning: pay.p: REQ is handed over by value: nothing comes back; make the "
                "parameter "
                "\"in\"",
                programWith("<parameter dataItem='REQ' byType='value'/>")),
           java("ByValueAndIn", "", mapped("byType='in' dataType='int'", "item='REQ.ID'"), "",
                programWith("<parameter dataItem='REQ' byType='value'/>")),
           java("HiddenOnlyReturned", "nothing-goes-in", hidden("item='RC' value='1'"),
                "warning: pay, hidden parameter 1: RC is only returned: nothing goes in; map to "
                "another record"),
           java("HiddenNotHandedOver", "unreachable-storage", hidden("item='WS-COUNT' value='1'"),
                "error: pay, hidden parameter 1: WS-COUNT is nothing that entry point 'PAY' is "
                "called "
                "with; map to something within REQ, RC"),
       }},
      {"References",
       {
           java("NearOne", "lost-type",
                "<parameterTypeDefs><parameter name='Street' dataType='int'><mappings><mapping "
                "item='REQ.ID'/></mappings></parameter></parameterTypeDefs>" +
                    parameters("<parameter name='p' ref='Stret'/>"),
                "error: pay.p: there is no type definition 'Stret'; did you mean 'Street'?"),
           java("Unknown", "lost-type", parameters("<parameter name='p' ref='X'/>"),
                "error: pay.p: there is no type definition 'X'; correct \"ref\" or add the "
                "definition"),
           java(
               "Forward", "late-type",
               "<parameterTypeDefs><parameter name='A' ref='B'/><parameter name='B' "
               "dataType='int'><mappings><mapping "
               "item='REQ.ID'/></mappings></parameter></parameterTypeDefs>",
               "error: type A: type definition 'B' comes only later; move it in front of this one"),
           java("WithWordsOfItsOwn", "ignored-beside-reference",
                "<parameterTypeDefs><parameter name='A' dataType='int'><mappings><mapping "
                "item='REQ.ID'/></mappings></parameter></parameterTypeDefs>" +
                    parameters("<parameter name='p' ref='A' occurs='2'/>"),
                "warning: pay.p: it refers to 'A': its own occurs and data type do not count; "
                "remove them"),
           java("Itself", "recursive-type",
                "<parameterTypeDefs><parameter name='A' ref='A'/></parameterTypeDefs>",
                "error: type A: type definition 'A' refers to itself; refer to another definition "
                "or spell the fields out"),
           java("FieldToItsOwnDefinition", "recursive-type",
                "<parameterTypeDefs><parameter name='A'><field name='f' "
                "ref='A'/></parameter></parameterTypeDefs>",
                "error: type A.f: type definition 'A' refers to itself; refer to another "
                "definition or spell the fields out"),
           java("NotHandedOver", "unreachable-storage",
                "<parameterTypeDefs><parameter name='A' dataType='int'><mappings><mapping "
                "item='WS-COUNT'/></mappings></parameter></parameterTypeDefs>" +
                    parameters("<parameter name='p' ref='A'/>"),
                "error: pay.p: WS-COUNT is nothing that entry point 'PAY' is called with; map to "
                "something within REQ, RC"),
           java("LongWayToWhatIsNotHandedOver", "unreachable-storage",
                "<parameterTypeDefs><parameter name='A' dataType='int'><mappings><mapping "
                "item='WS-COUNT'/></mappings></parameter><parameter name='B'><field name='f' "
                "ref='A'/><field name='g' ref='A'/></parameter><parameter name='C' "
                "ref='B'/></parameterTypeDefs>" +
                    parameters("<parameter name='p' ref='C'/>"),
                "error: pay.p: WS-COUNT is nothing that entry point 'PAY' is called with; map to "
                "something within REQ, RC"),
       }},
      {"Names",
       {
           java("Operations", "same-name",
                "<operations><operation name='o' entryPoint='PAY'/><operation name='o' "
                "entryPoint='PAY'/></operations>",
                "error: o: another operation beside it has the same name; rename one of them"),
           java("UnnamedOperation", "unnamed-member",
                "<operations><operation entryPoint='PAY'/></operations>",
                "error: (unnamed): the operation has no name; give it one"),
           java("Parameters", "same-name",
                parameters(
                    "<parameter name='p' dataType='int'><mappings><mapping "
                    "item='REQ.ID'/></mappings></parameter><parameter name='p' "
                    "dataType='int'><mappings><mapping item='REQ.ID'/></mappings></parameter>"),
                "error: pay.p: another parameter beside it has the same name; rename one of them"),
           java("Fields", "same-name",
                parameters("<parameter name='q'><field name='f' dataType='int'><mappings><mapping "
                           "item='REQ.ID'/></mappings></field><field name='f' "
                           "dataType='int'><mappings><mapping "
                           "item='REQ.ID'/></mappings></field></parameter>"),
                "error: pay.q.f: another field beside it has the same name; rename one of them"),
           java("Definitions", "same-name",
                "<parameterTypeDefs><parameter name='p' dataType='int'><mappings><mapping "
                "item='REQ.ID'/></mappings></parameter><parameter name='p' "
                "dataType='int'><mappings><mapping "
                "item='REQ.ID'/></mappings></parameter></parameterTypeDefs>",
                "error: type p: another type definition beside it has the same name; rename one of "
                "them"),
       }},
      {"DataTypes",
       {
           java("Digits", "narrow-data-type", mapped("dataType='short'", "item='REQ.ID'"),
                "error: pay.p: data type 'short' cannot hold ID: it holds 4 digits, the item has "
                "9; use 'int'"),
           java("Scale", "narrow-data-type", mapped("dataType='long'", "item='REQ.LINE.AMOUNT(1)'"),
                "error: pay.p: data type 'long' cannot hold AMOUNT: it holds no decimal places, "
                "the item has 2; use 'BigDecimal'"),
           java("ScaleOfABigInteger", "narrow-data-type",
                mapped("dataType='BigInteger'", "item='REQ.LINE.AMOUNT(1)'"),
                "error: pay.p: data type 'BigInteger' cannot hold AMOUNT: it holds no decimal "
                "places, the item has 2; use 'BigDecimal'"),
           java("FloatDigits", "narrow-data-type",
                mapped("dataType='float'", "item='REQ.LINE.AMOUNT(1)'"),
                "error: pay.p: data type 'float' cannot hold AMOUNT: it holds 6 digits, the item "
                "has 9; use 'BigDecimal'"),
           java("Bits", "narrow-data-type", mapped("byType='out' dataType='short'", "item='RC'"),
                "error: pay.p: data type 'short' cannot hold RC: it has 16 bits, the item needs "
                "32; use 'int'"),
           java("Text", "narrow-data-type", mapped("dataType='int'", "item='REQ.TITLE'"),
                "error: pay.p: data type 'int' cannot hold TITLE: it is a number, the item is "
                "alphanumeric; use 'String'"),
           java("Absent", "default-data-type", mapped("", "item='REQ.LINE.CELL(1,1)'"),
                "warning: pay.p: it has no data type and reads as 'short'; write \"dataType\""),
           java("AnythingAsText", "", mapped("dataType='String'", "item='REQ.ID'"), ""),
           java("GroupAsBytes", "", mapped("dataType='byteArray'", "item='REQ'"), ""),
           com("WordByAlias", "word-by-alias", mapped("dataType='object'", "item='REQ.TITLE'"),
               "warning: pay.p: dataType 'object' reads as 'string'; write 'string'"),
           withMoreWords(java(
               "UnknownWord", "unknown-word", mapped("dataType='Int'", "item='REQ.LINE.CELL(1,1)'"),
               "error: pay.p: dataType 'Int' is unknown and reads as 'short'; use a word of Java "
               "services")),
           withMoreWords(java(
               "UnknownWordOfAnOperation", "unknown-word",
               "<operations><operation name='pay' entryPoint='PAY' "
               "transactionType='sometimes'/></operations>",
               "error: pay: transactionType 'sometimes' is unknown and reads as 'never'; use a "
               "word of "
               "Java services")),
           web("WebAbsent", "no-data-type", webParameter("", "item='REQ.ID'"),
               "error: pay.p: it has no data type; write \"dataType\""),
           withMoreWords(web(
               "WebUnknown", "unknown-data-type", webParameter("dataType='Int'", "item='REQ.ID'"),
               "error: pay.p: data type 'Int' is unknown; use a word of Web services")),
           web("WebGood", "", webParameter("dataType='int'", "item='REQ.ID'"), ""),
       }},
      {"Web",
       {web("Good", "", webOperation(goodDocument, goodParameter), ""),
        web("NoStyle", "no-style", webOperation("inputUse='literal' outputUse='literal'"),
            "error: pay: the operation has no style; write \"rpc\" or \"document\""),
        web("NoInputUse", "no-use", webOperation("style='document' outputUse='literal'"),
            "error: pay: the operation has no inputUse; write \"literal\" or \"encoded\""),
        web("NoOutputUse", "no-use", webOperation("style='document' inputUse='literal'"),
            "error: pay: the operation has no outputUse; write \"literal\" or \"encoded\""),
        web("EncodedDocument", "encoded-document",
            webOperation("style='document' inputUse='encoded' outputUse='literal'"),
            "error: pay: inputUse is encoded, but the style is document; make it literal, or the "
            "style rpc"),
        web("EncodedRpc", "",
            webOperation(
                "style='rpc' inputUse='encoded' outputUse='encoded' inputNamespace='urn:i' "
                "outputNamespace='urn:o'"),
            ""),
        web("RpcWithoutANamespace", "no-operation-namespace",
            webOperation(
                "style='rpc' inputUse='literal' outputUse='literal' inputNamespace='urn:i'"),
            "error: pay: style rpc needs a namespace, and there is no outputNamespace; write "
            "\"outputNamespace\""),
        web("DocumentWithoutANamespace", "no-element-namespace",
            webOperation("style='document' inputUse='literal' outputUse='literal' "
                         "outputNamespace='urn:o'",
                         goodParameter),
            "error: pay.p: style document needs a namespace, and there is none, nor an "
            "inputNamespace; write \"namespace\", or that of the operation"),
        web("EmptyHeader", "empty-message",
            webOperation(goodDocument,
                         "<header use='literal' namespace='urn:h'><parameters/></header>"),
            "error: pay, header 1: it has no parameters; add one or remove it"),
        web("HeaderWithoutANamespace", "no-message-namespace",
            webOperation(goodDocument,
                         std::string("<header use='literal'>") + goodParameter + "</header>"),
            "error: pay, header 1: it has no namespace; write \"namespace\""),
        web("FaultWithoutAUse", "no-use",
            webOperation(goodDocument,
                         std::string("<fault namespace='urn:f'>") + goodParameter + "</fault>"),
            "error: pay, fault 1: it has no use; write \"literal\" or \"encoded\""),
        web("EncodedFault", "encoded-document",
            webOperation(goodDocument, std::string("<fault namespace='urn:f' use='encoded'>") +
                                           goodParameter + "</fault>"),
            "error: pay, fault 1: its use is encoded, but the style is document; make it literal, "
            "or the style rpc"),
        web("ParameterOfAHeader", "unreachable-storage",
            webOperation(goodDocument, message("header", "", "WS-COUNT")),
            "error: pay, header 1.p: WS-COUNT is nothing that entry point 'PAY' is called with; "
            "map "
            "to something within REQ, RC"),
        web("HeaderThatGoesIn", "nothing-goes-in",
            webOperation(goodDocument, message("header", "byType='in'", "RC")),
            "warning: pay, header 1.p: RC is only returned: nothing goes in; make the header "
            "\"out\""),
        web("HeaderThatComesBack", "",
            webOperation(goodDocument, message("header", "byType='out'", "RC")), ""),
        web("HeaderOfACopy", "nothing-comes-back",
            webOperation(goodDocument, message("header", "byType='out'", "REQ.ID")),
            "warning: pay, header 1.p: REQ is handed over by value: nothing comes back; make the "
            "header \"in\"",
            programWith("<parameter dataItem='REQ' byType='value'/>")),
        web("FaultOfACopy", "nothing-comes-back",
            webOperation(goodDocument, message("fault", "", "REQ.ID")),
            "warning: pay, fault 1.p: REQ is handed over by value: nothing comes back; map to "
            "another record",
            programWith("<parameter dataItem='REQ' byType='value'/>")),
        web("NamesOfFieldAttributes", "unnamed-member",
            webOperation(goodDocument,
                         "<parameters><parameter name='p' dataType='int'><mappings><mapping "
                         "item='REQ.ID'/></mappings><fieldAttribute "
                         "dataType='int'><mappings><mapping item='REQ.ID'/></mappings>"
                         "</fieldAttribute></parameter></parameters>"),
            "error: pay.p.(unnamed): the field attribute has no name; give it one"),
        web("FieldAttributesHaveNoParts", "structured-attribute",
            webOperation(goodDocument,
                         "<parameters><parameter name='p' dataType='int'><mappings/>"
                         "<fieldAttribute name='a'><mappings><mapping item='REQ.ID'/></mappings>"
                         "<field/><fieldAttribute/></fieldAttribute></parameter></parameters>"),
            "error: pay.p.a: it is a field attribute and has fields or field attributes inside it; "
            "make it a field, or move what is inside it"),
        web("FieldAttributesReferToNoParts", "structured-attribute",
            "<parameterTypeDefs><parameter name='T'><field name='f' dataType='int'><mappings>"
            "<mapping item='REQ.ID'/></mappings></field></parameter><parameter name='U' "
            "ref='T'/></parameterTypeDefs>" +
                webOperation(goodDocument,
                             "<parameters><parameter name='p' dataType='int'><mappings/>"
                             "<fieldAttribute name='a' ref='U'/></parameter></parameters>"),
            "error: pay.p.a: it is a field attribute and refers to 'U', which has fields or field "
            "attributes; make it a field, or refer to the definition of a value"),
        web("FieldAttributesReferToAttributes", "structured-attribute",
            "<parameterTypeDefs><parameter name='T' dataType='int'><mappings><mapping "
            "item='REQ.ID'/></mappings><fieldAttribute name='f' dataType='int'><mappings><mapping "
            "item='REQ.ID'/></mappings></fieldAttribute></parameter></parameterTypeDefs>" +
                webOperation(goodDocument,
                             "<parameters><parameter name='p' dataType='int'><mappings/>"
                             "<fieldAttribute name='a' ref='T'/></parameter></parameters>"),
            "error: pay.p.a: it is a field attribute and refers to 'T', which has fields or field "
            "attributes; make it a field, or refer to the definition of a value"),
        web("FieldAttributesReferToValues", "",
            "<parameterTypeDefs><parameter name='T' dataType='int'><mappings><mapping "
            "item='REQ.ID'/></mappings></parameter></parameterTypeDefs>" +
                webOperation(goodDocument,
                             "<parameters><parameter name='p' dataType='int'><mappings><mapping "
                             "item='REQ.ID'/></mappings><fieldAttribute name='a' ref='T'/>"
                             "</parameter></parameters>"),
            ""),
        web("FieldAttributesAreMappings", "",
            webOperation(
                goodDocument,
                "<parameters><parameter name='p' dataType='int'><mappings/><fieldAttribute "
                "name='a' dataType='int'><mappings><mapping item='REQ.ID'/></mappings>"
                "</fieldAttribute></parameter></parameters>"),
            "")}},
  };
}

std::vector<Row> allRows() {
  std::vector<Row> all;
  for (const Family& family : families()) {
    for (Row row : family.rows) {
      row.label = family.label + row.label;
      all.push_back(std::move(row));
    }
  }
  return all;
}

class LintTest : public test::ToolkitTest {
 protected:
  // Of the service in s.xml.
  std::vector<std::string> found() const {
    std::vector<std::string> texts;
    for (const toolkit::Finding& finding : toolkit::lintFile(reader(), "s.xml")) {
      texts.push_back(textOf(finding));
    }
    return texts;
  }
};

class LintRuleTest : public LintTest, public testing::WithParamInterface<Row> {};

TEST_P(LintRuleTest, FindsIt) {
  const Row& row = GetParam();
  write("PAY.xml", row.program);
  write("s.xml", row.document);
  const test::TempDirectory schemas;
  if (row.moreWords) test::writeSchemasOfMoreWords(schemas);
  const toolkit::DocumentReader reader(row.moreWords ? schemas.path() : AS_SCHEMA_DIR);
  const toolkit::Findings findings = toolkit::lintFile(reader, "s.xml");
  std::vector<std::string> texts;
  for (const toolkit::Finding& finding : findings) texts.push_back(textOf(finding));
  if (row.rule.empty()) {
    EXPECT_THAT(texts, IsEmpty());
    return;
  }
  ASSERT_THAT(texts, ElementsAre(row.text));
  EXPECT_EQ(findings[0].rule, row.rule);
  const auto& rules = toolkit::lintRules();
  const auto rule = std::find_if(rules.begin(), rules.end(), [&](const toolkit::LintRule& known) {
    return known.id == row.rule;
  });
  ASSERT_NE(rule, rules.end()) << "not in the table";
  EXPECT_EQ(findings[0].severity, rule->severity);
}

INSTANTIATE_TEST_SUITE_P(Rows, LintRuleTest, testing::ValuesIn(allRows()), test::labelOf<Row>);

TEST(LintRules, EachIsTheOnlyOneThatFindsARowOfTheTable) {
  std::set<std::string> tested;
  for (const Row& row : allRows()) tested.insert(row.rule);
  for (const toolkit::LintRule& rule : toolkit::lintRules()) {
    EXPECT_EQ(tested.count(rule.id), 1U) << rule.id;
  }
}

TEST(LintRules, HaveIdsOfTheirOwnAndSayWhatIsWanted) {
  std::set<std::string> ids;
  for (const toolkit::LintRule& rule : toolkit::lintRules()) {
    EXPECT_TRUE(ids.insert(rule.id).second) << rule.id;
    EXPECT_STRNE(rule.summary, "") << rule.id;
    EXPECT_NE(rule.severity, toolkit::Severity::note) << rule.id;
  }
  EXPECT_FALSE(ids.empty());
}

TEST_F(LintTest, FindingsComeInTheOrderOfTheDocument) {
  write("PAY.xml", test::payProgram());
  write("s.xml",
        payService("<parameterTypeDefs><parameter name='A' dataType='int'/></parameterTypeDefs>"
                   "<operations><operation name='o' entryPoint='GO'><hiddenParameters>"
                   "<hiddenParameter item='X'/></hiddenParameters><parameters>"
                   "<parameter name='q'><field name='f' dataType='int'><mappings>"
                   "<mapping item='Y'/><mapping item='REQ.LINE.AMOUNT(9)'/></mappings></field>"
                   "<field name='f' ref='NONE'/></parameter>"
                   "<parameter name='q' ref='A' occurs='2'/></parameters></operation>"
                   "<operation/></operations>"));
  EXPECT_THAT(found(),
              ElementsAre(HasSubstr("type A: it is mapped to no data item"),
                          HasSubstr("(unnamed): the operation has no name"),
                          HasSubstr("o: PAYROLL has no entry point 'GO'"),
                          HasSubstr("o, hidden parameter 1: PAYROLL has no data item 'X'"),
                          HasSubstr("o, hidden parameter 1: it has no value"),
                          HasSubstr("o.q: another parameter beside it has the same name"),
                          HasSubstr("o.q.f: another field beside it has the same name"),
                          HasSubstr("o.q.f: PAYROLL has no data item 'Y'"),
                          HasSubstr("o.q.f: subscript 9 of 'REQ.LINE.AMOUNT' is outside of LINE"),
                          HasSubstr("o.q.f: data type 'int' cannot hold AMOUNT"),
                          HasSubstr("o.q.f: there is no type definition 'NONE'"),
                          HasSubstr("o.q: it refers to 'A'"),
                          HasSubstr("(unnamed): the operation is bound to no entry point")));
}

TEST_F(LintTest, WithoutADictionaryTheServiceIsLookedAtByItself) {
  write("s.xml", payService(parameters("<parameter name='p' ref='NONE'/>")));
  EXPECT_THAT(found(), ElementsAre("error: service: the dictionary cannot be used: PAY.xml: cannot "
                                   "be read: No such file or directory; mappings and entry points "
                                   "were not checked",
                                   "error: pay.p: there is no type definition 'NONE'; correct "
                                   "\"ref\" or add the definition"));
}

TEST_F(LintTest, AModelIsLookedAtWithTheProgramThatItHas) {
  write("PAY.xml", test::payProgram());
  write("s.xml", payService(mapped("dataType='int'", "item='REQ.IDX'")));
  const auto alone = reader().readService("s.xml");
  EXPECT_THAT(toolkit::lint(*alone), IsEmpty());
  const toolkit::ServiceDocument complete = reader().readServiceWithProgram("s.xml");
  const toolkit::Findings findings = toolkit::lint(*complete.service);
  ASSERT_EQ(findings.size(), 1U);
  EXPECT_EQ(findings[0].rule, "lost-data-item");
}

TEST_F(LintTest, TheDictionaryMayBeNamed) {
  write("elsewhere/OTHER.xml", test::payProgram());
  write("s.xml", payService(mapped("dataType='int'", "item='REQ.ID'")));
  EXPECT_THAT(toolkit::lintFile(reader(), "s.xml", "elsewhere/OTHER.xml"), IsEmpty());
}

TEST_F(LintTest, AServiceThatNamesNoDictionaryMayBeGivenOne) {
  write("PAY.xml", test::payProgram());
  write("s.xml", test::javaService("name='Pay' implementation='java'",
                                   "<operations><operation name='pay' entryPoint='NONE'/>"
                                   "</operations>"));
  EXPECT_THAT(test::textsOf(toolkit::lintFile(reader(), "s.xml", "PAY.xml")),
              testing::Contains(HasSubstr("PAYROLL has no entry point 'NONE'")));
  EXPECT_THAT(test::textsOf(toolkit::lintFile(reader(), "s.xml")),
              ElementsAre("service: the service names no dictionary; write \"dataDictFilename\""));
}

TEST_F(LintTest, TheDictionaryIsLookedForBesideTheService) {
  write("services/s.xml", payService(mapped("dataType='int'", "item='REQ.ID'")));
  write("services/PAY.xml", test::payProgram());
  EXPECT_THAT(toolkit::lintFile(reader(), "services/s.xml"), IsEmpty());
}

TEST_F(LintTest, ARefusedServiceIsNoFinding) {
  write("s.xml", test::payProgram());
  EXPECT_THAT(test::refusalOf([this] { toolkit::lintFile(reader(), "s.xml"); }).text,
              HasSubstr("not a service"));
}

// A period at the end of a path separates nothing, and the first of a name is the one that is
// meant.
TEST_F(LintTest, ItemsAreFoundAsTheModelFindsThem) {
  write("PAY.xml",
        test::dictionary("<dataItems><numeric name='N' offset='0' length='1' digits='1'/>"
                         "<group name='G' offset='0' length='2'>"
                         "<numeric name='A' offset='0' length='1' digits='1'/></group>"
                         "<group name='G' offset='0' length='2'>"
                         "<numeric name='A' offset='0' length='1' digits='1'/>"
                         "<numeric name='B' offset='0' length='1' digits='1'/></group>"
                         "</dataItems>"));
  for (const char* const path : {"N", "N.", "N..", ".N", ".", "", "G.A", "G.B", "G.C", "G", "G.A.",
                                 "G.A..", "A", "(1)", "G(1).A", "n", "N ", "$N"}) {
    SCOPED_TRACE(path);
    write("s.xml", payService("<operations><operation name='pay'><parameters><parameter name='p' "
                              "dataType='String'><mappings><mapping item='" +
                              std::string(path) +
                              "'/></mappings></parameter></parameters></operation></operations>"));
    const toolkit::ServiceDocument document = reader().readServiceWithProgram("s.xml");
    auto* const operation =
        as::interface_cast<as::IOperation>(document.service->getOperations()->getItem(0));
    auto* const parameter =
        as::interface_cast<as::IParameter>(operation->getParameters()->getItem(0));
    auto* const mapping = as::interface_cast<as::IMapping>(parameter->getMappings()->getItem(0));
    const toolkit::Findings findings = toolkit::lint(*document.service);
    const bool isLost =
        std::any_of(findings.begin(), findings.end(), [](const toolkit::Finding& finding) {
          return finding.rule == "lost-data-item" || finding.rule == "empty-mapping";
        });
    EXPECT_EQ(isLost, mapping->getDataItem() == nullptr);
  }
}

// Long chains of definitions

class LintChainTest : public LintTest {
 protected:
  static constexpr int links = 40000;

  // Definitions T0, T1 and so on: `first`, and others that refer to the one in front.
  static std::string chain(const std::string& first) {
    std::string definitions = "<parameterTypeDefs>" + first;
    for (int i = 1; i < links; ++i) {
      definitions +=
          "<parameter name='T" + std::to_string(i) + "' ref='T" + std::to_string(i - 1) + "'/>";
    }
    return definitions + "</parameterTypeDefs>";
  }

  static std::string mappedTo(const std::string& item) {
    return "<parameter name='T0' dataType='int'><mappings><mapping item='" + item +
           "'/></mappings></parameter>";
  }
};

TEST_F(LintChainTest, IsFollowedToItsEnd) {
  write("PAY.xml", test::payProgram());
  write("s.xml",
        payService(chain(mappedTo("WS-COUNT")) +
                   parameters("<parameter name='p' ref='T" + std::to_string(links - 1) + "'/>")));
  EXPECT_THAT(found(), ElementsAre("error: pay.p: WS-COUNT is nothing that entry point 'PAY' is "
                                   "called with; map to something within REQ, RC"));
}

// Parameters that refer to the links, p0 to T0 and so on.
std::string referringToEach(int links) {
  std::string referring;
  for (int i = 0; i < links; ++i) {
    const std::string number = std::to_string(i);
    referring.append("<parameter name='p").append(number).append("' ref='T").append(number);
    referring.append("'/>");
  }
  return referring;
}

TEST_F(LintChainTest, IsFollowedFromEachOfItsLinks) {
  write("PAY.xml", test::payProgram());
  write("s.xml", payService(chain(mappedTo("REQ.ID")) + parameters(referringToEach(links))));
  EXPECT_THAT(found(), IsEmpty());
}

TEST_F(LintChainTest, IsToldOfAtEachOfItsLinks) {
  write("PAY.xml", test::payProgram());
  write("s.xml", payService(chain(mappedTo("WS-COUNT")) + parameters(referringToEach(links))));
  const std::vector<std::string> told = found();
  ASSERT_EQ(told.size(), static_cast<std::size_t>(links));
  for (int i = 0; i < links; ++i) {
    ASSERT_THAT(told[static_cast<std::size_t>(i)],
                testing::StartsWith("error: pay.p" + std::to_string(i) + ": WS-COUNT is nothing"));
  }
}

}  // namespace
