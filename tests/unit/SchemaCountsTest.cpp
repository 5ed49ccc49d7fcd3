// Tests of what schemas that documents bring come to: each count at its limit and behind it.
#include <gtest/gtest.h>

#include <string>

#include "as/CASParseException.h"
#include "xml/SchemaInspection.h"

namespace {

bool isRefused(const std::string& content, const std::string& attributes = "") {
  SchemaInspection inspection;
  return inspection
      .refusalOf("<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema' " + attributes + ">" +
                     content + "</xs:schema>",
                 u"s.xsd")
      .has_value();
}

// The schema is an element itself: 2000 are allowed.
TEST(SchemaCounts, CountsElementsAsOftenAsTheyOccur) {
  for (const char* const name : {"minOccurs", "maxOccurs"}) {
    const auto occurring = [&](const char* times) {
      return isRefused("<xs:element name='a' " + std::string(name) + "='" + times + "'/>");
    };
    for (const char* const few : {"1999", "+1999", " 1999 ", "01999", "unbounded", "", "-2000"}) {
      EXPECT_FALSE(occurring(few)) << few;
    }
    for (const char* const many :
         {"2000", "+2000", " +2000", "\t\n2000", "02000", "2000x", "99999999999999999999"}) {
      EXPECT_TRUE(occurring(many)) << many;
    }
  }
}

TEST(SchemaCounts, CountsWhatIsWithinAsOftenAsBothSay) {
  const auto sequence = [](int times) {
    return "<xs:sequence maxOccurs='" + std::to_string(times) + "'>";
  };
  const std::string element = "<xs:element name='a' maxOccurs='20'/>";
  // 1 and 95 and 20 * 95; one more is 2001 and more.
  EXPECT_FALSE(isRefused(sequence(95) + element + "</xs:sequence>"));
  EXPECT_TRUE(isRefused(sequence(96) + element + "</xs:sequence>"));
  // A type within counts once.
  EXPECT_FALSE(
      isRefused(sequence(96) + "<xs:complexType>" + element + "</xs:complexType></xs:sequence>"));
}

TEST(SchemaCounts, CountsGroupsWhereTheyAreReferredTo) {
  const auto schema = [](const std::string& times, const std::string& reference) {
    return "<xs:group name='g'><xs:element name='a' maxOccurs='98'/></xs:group><xs:group ref='" +
           reference + "' maxOccurs='" + times + "'/>";
  };
  // 1 for the schema, and for each time that it is referred to 1 and the group with its elements.
  EXPECT_FALSE(isRefused(schema("19", "g")));
  EXPECT_FALSE(isRefused(schema("19", "p:g")));
  EXPECT_TRUE(isRefused(schema("20", "g")));
  EXPECT_TRUE(isRefused(schema("20", "p:g")));
  EXPECT_FALSE(isRefused(schema("20", "other")));
}

const std::string groupOf98 = "<xs:group name='g'><xs:element name='a' maxOccurs='98'/></xs:group>";

// To the parser a prefix is what it was declared to be last, be it on the way through another type.
TEST(SchemaCounts, CountsGroupsOfAnyNamespaceWhereAPrefixIsUnsure) {
  const auto isHeavy = [](const std::string& root, const std::string& above,
                          const std::string& reference) {
    return isRefused(groupOf98 + "<xs:sequence " + above + "><xs:group maxOccurs='20' " +
                         reference + "/></xs:sequence>",
                     "targetNamespace='t' " + root);
  };
  EXPECT_TRUE(isHeavy("xmlns:p='t'", "", "ref='p:g'"));
  EXPECT_FALSE(isHeavy("xmlns:p='u'", "", "ref='p:g'"));
  EXPECT_FALSE(isHeavy("xmlns:p='u'", "xmlns:p=' u'", "ref='p:g'"));
  EXPECT_FALSE(isHeavy("xmlns:p='u'", "xmlns:q='t'", "ref='p:g'"));
  EXPECT_TRUE(isHeavy("xmlns:p='t'", "xmlns:p='u'", "ref='p:g'"));
  EXPECT_TRUE(isHeavy("xmlns:p='u'", "xmlns:p='t'", "ref='p:g'"));
  EXPECT_TRUE(isHeavy("xmlns='u'", "xmlns='v'", "ref='g'"));
  // One that a schema which includes it may have declared.
  EXPECT_TRUE(isHeavy("", "", "ref='p:g'"));
  EXPECT_TRUE(isHeavy("", "xmlns:p='u'", "ref='p:g'"));
  // What the element itself says holds.
  EXPECT_FALSE(isHeavy("", "", "ref='p:g' xmlns:p='u'"));
  EXPECT_FALSE(isHeavy("xmlns:p='t'", "", "ref='p:g' xmlns:q='v' xmlns:p='u'"));
  EXPECT_TRUE(isHeavy("xmlns:p='u'", "", "ref='p:g' xmlns:q='v' xmlns:p='t'"));
}

// Behind the reference, too: components are read when they are first needed.
TEST(SchemaCounts, CountsGroupsOfAnyNamespaceWhereAPrefixIsSomethingElseLater) {
  const auto isHeavy = [](const std::string& later) {
    return isRefused(groupOf98 + "<xs:group maxOccurs='20' ref='p:g'/><xs:sequence " + later + "/>",
                     "targetNamespace='t' xmlns:p='u'");
  };
  EXPECT_FALSE(isHeavy("xmlns:p='u'"));
  EXPECT_TRUE(isHeavy("xmlns:p='v'"));
}

// A group that is redefined may hold what it was, once; whether it does must be sure.
TEST(SchemaCounts, CountsWhatAGroupWasWhereAPrefixIsUnsure) {
  const auto isRefusedWith = [](const std::string& later) {
    return isRefused(
        "<xs:redefine><xs:group name='g'><xs:group ref='p:g'/></xs:group></xs:redefine>"
        "<xs:sequence " +
            later + "/>",
        "targetNamespace='t' xmlns:p='t'");
  };
  EXPECT_FALSE(isRefusedWith("xmlns:p='t'"));
  EXPECT_TRUE(isRefusedWith("xmlns:p='v'"));
}

TEST(SchemaCounts, CountsMembersOfUnions) {
  const auto members = [](const std::string& types, int simple) {
    std::string text = "<xs:simpleType><xs:union memberTypes='" + types + "'>";
    for (int i = 0; i < simple; ++i) text += "<xs:simpleType/>";
    return text + "</xs:union></xs:simpleType>";
  };
  EXPECT_FALSE(isRefused(members(" a  b\tc\n", 13)));
  EXPECT_TRUE(isRefused(members(" a  b\tc\n", 14)));
  EXPECT_FALSE(isRefused(members("", 16)));
  EXPECT_TRUE(isRefused(members("", 17)));
}

TEST(SchemaCounts, CountsAlternativesOfPaths) {
  const auto path = [](const std::string& alternatives) {
    return "<xs:selector xpath='" + alternatives + "'/>";
  };
  const std::string fifteen = "a|a|a|a|a|a|a|a|a|a|a|a|a|a|a";
  EXPECT_FALSE(isRefused(path(fifteen + "|a")));
  EXPECT_TRUE(isRefused(path(fifteen + "|a|a")));
  EXPECT_FALSE(isRefused(path(fifteen) + path("a")));
  EXPECT_TRUE(isRefused(path(fifteen) + path("a") + path("a")));
}

TEST(SchemaCounts, CountsWhatEarlierOnesHeld) {
  SchemaInspection inspection;
  const std::string half = "<xs:element xmlns:xs='http://www.w3.org/2001/XMLSchema' maxOccurs='";
  EXPECT_FALSE(inspection.refusalOf(half + "1000'/>", u"a.xsd"));
  EXPECT_FALSE(inspection.refusalOf(half + "1000'/>", u"b.xsd"));
  const auto refusal = inspection.refusalOf(half + "1'/>", u"c.xsd");
  ASSERT_TRUE(refusal);
  EXPECT_EQ(refusal->getErrorText(),
            "the schemas that the document brings are refused: there are more than 2000 "
            "elements, as many times as they are laid out");
}

}  // namespace
