// Tests of what conversions do with documents that few write: several schema locations, groups with
// data types, items that no type holds, items that are not there.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "support/Documents.h"
#include "support/Toolkit.h"

namespace {

namespace toolkit = as::toolkit;
using test::textsOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

// A program with an object reference and a number as its records.
std::string program() {
  return test::dictionary(
      "<dataItems><cobolObject name='OBJ' linkage='true' length='4'/>"
      "<numeric name='NUM' linkage='true' digits='4' length='4' picture='9(4)'/></dataItems>"
      "<entryPoints><entryPoint name='GO'><parameter dataItem='OBJ' byType='reference'/>"
      "<parameter dataItem='NUM' byType='reference'/></entryPoint></entryPoints>");
}

class ConvertEdge : public test::ToolkitTest {
 protected:
  // What is told when a service for the program, with such a parameter, gets another flavour.
  toolkit::Findings convert(const std::string& uri, const std::string& from,
                            const std::string& parameter, const std::string& to) const {
    write("P.xml", program());
    write("s.xml", test::serviceDocument(uri,
                                         "name='S' implementation='" + from +
                                             "' programName='PAYROLL' dataDictFilename='P.xml'",
                                         "<operations><operation name='o' entryPoint='GO'>"
                                         "<parameters>" +
                                             parameter + "</parameters></operation></operations>"));
    return toolkit::convertServiceFile(reader(), "s.xml", "out.xml", *toolkit::findFlavour(to))
        .notes;
  }

  toolkit::Findings convertJava(const std::string& parameter, const std::string& to) const {
    return convert(as::namespaces::java.uri, "java", parameter, to);
  }

  static std::string output() { return test::contentOf("out.xml"); }
};

std::string parameterFor(const std::string& item, const std::string& type) {
  return "<parameter name='p' dataType='" + type + "'><mappings><mapping item='" + item +
         "'/></mappings></parameter>";
}

TEST_F(ConvertEdge, OtherSchemaLocationsStay) {
  const auto twice = [](const as::Namespace& space) {
    return std::string(space.uri) + " " + space.uri;
  };
  const std::string front = twice(as::namespaces::dd) + " ";
  const std::string back = " " + twice(as::namespaces::dotnet);
  const std::string java = as::namespaces::java.uri;
  write("s.xml",
        test::element("service", "",
                      test::declarations(java, front + twice(as::namespaces::java) + back) +
                          " name='S' implementation='java' programName='P'"));
  toolkit::convertServiceFile(reader(), "s.xml", "out.xml", *toolkit::findFlavour("com"));
  EXPECT_THAT(output(), HasSubstr("\"" + front + twice(as::namespaces::com) + back + "\""));
}

TEST_F(ConvertEdge, AnItemThatNoTypeHoldsLeavesTheFieldWithout) {
  EXPECT_THAT(textsOf(convertJava(parameterFor("OBJ", "BigDecimal"), "dotnet")),
              ElementsAre("o.p: data type 'BigDecimal' has no equivalent in .NET services: left "
                          "without one, which reads as 'Byte'"));
  EXPECT_THAT(output(), Not(HasSubstr("dataType")));
}

// What a document writes with a prefix is written with it.
TEST_F(ConvertEdge, FieldAttributesOfPrefixedDocumentsBecomePrefixedFields) {
  const std::string ws = as::namespaces::ws.uri;
  write(
      "s.xml",
      test::element("w:service",
                    "<w:operations><w:operation name='o'><w:parameters><w:parameter name='p' "
                    "dataType='string'><w:fieldAttribute name='a' dataType='string'/></w:parameter>"
                    "</w:parameters></w:operation></w:operations>",
                    test::declarations(ws, ws + " " + ws, "w") + " name='S' implementation='ws'"));
  toolkit::convertServiceFile(reader(), "s.xml", "out.xml", *toolkit::findFlavour("java"));
  EXPECT_THAT(output(), HasSubstr("<w:field dataType=\"String\" name=\"a\"/>"));
  EXPECT_THAT(output(), Not(HasSubstr("fieldAttribute")));
}

// What a document says of an element for schemas is no longer true of another one.
TEST_F(ConvertEdge, FieldAttributesLoseTheirSchemaTypesWhenTheyBecomeFields) {
  const std::string attributes =
      "<fieldAttribute name='a' dataType='string' xsi:type='fieldAttribute'/>"
      "<fieldAttribute name='b' dataType='string' xmlns:i='http://www.w3.org/2001/"
      "XMLSchema-instance' i:type='fieldAttribute'/>";
  write("s.xml",
        test::webService("name='S' implementation='ws'",
                         "<operations><operation name='o'><parameters><parameter name='p' "
                         "xsi:type='parameter'>" +
                             attributes + "</parameter></parameters></operation></operations>"));
  for (const char* const flavour : {"java", "com", "dotnet"}) {
    toolkit::convertServiceFile(reader(), "s.xml", "out.xml", *toolkit::findFlavour(flavour));
    EXPECT_THAT(output(), HasSubstr("xsi:type=\"parameter\"")) << flavour;
    EXPECT_THAT(output(), Not(HasSubstr("fieldAttribute"))) << flavour;
  }
}

TEST_F(ConvertEdge, PlacesAreNoLongerThanTheyAreRead) {
  const toolkit::Findings notes =
      convertJava("<parameter name='" + std::string(5000, 'p') +
                      "'><field name='f' dataType='BigDecimal'/></parameter>",
                  "dotnet");
  ASSERT_EQ(notes.size(), 1U);
  EXPECT_THAT(notes[0].place,
              testing::AllOf(testing::StartsWith("o.ppp"), testing::EndsWith("p.f")));
  EXPECT_EQ(notes[0].place.size(), 4003U);
}

TEST_F(ConvertEdge, WithoutADefaultNothingIsReadInstead) {
  EXPECT_THAT(textsOf(convertJava(parameterFor("OBJ", "byteArray"), "ws")),
              ElementsAre("o.p: data type 'byteArray' has no equivalent in Web services: left "
                          "without one"));
  EXPECT_THAT(output(), Not(HasSubstr("dataType")));
}

TEST_F(ConvertEdge, AnItemThatIsNotThereCountsForNothing) {
  EXPECT_THAT(textsOf(convertJava(parameterFor("GONE", "BigDecimal"), "dotnet")),
              ElementsAre("o.p: data type 'BigDecimal' has no equivalent in .NET services: made "
                          "'String'"));
}

TEST_F(ConvertEdge, ATypeIsNotHelpedByAnItemThatItDoesNotHold) {
  EXPECT_THAT(textsOf(convertJava("<parameter name='p' dataType='BigDecimal'><mappings><mapping "
                                  "item='OBJ'/><mapping item='NUM'/></mappings></parameter>",
                                  "dotnet")),
              ElementsAre(HasSubstr(": left without one")));
}

TEST_F(ConvertEdge, TheDataTypeOfAGroupIsToldUnlessItIsAGroups) {
  const std::string field = "<field name='f' dataType='int'/>";
  EXPECT_THAT(
      textsOf(convertJava("<parameter name='p' dataType='int'>" + field + "</parameter>", "com")),
      ElementsAre("service: the data type of a group has no equivalent in COM services: "
                  "left out (1 time)"));
  EXPECT_THAT(
      textsOf(convert(as::namespaces::ws.uri, "ws",
                      "<parameter name='p' dataType='Array'>" + field + "</parameter>", "com")),
      IsEmpty());
}

}  // namespace
