// Tests of outlines of documents that the library would refuse: nothing comes of them, whatever
// they are.
#include <gtest/gtest.h>

#include <cstddef>
#include <string>

#include "toolkit/outline/DocumentOutline.h"

namespace {

using as::toolkit::DocumentOutline;

TEST(DocumentOutline, KnowsElementsAndComments) {
  const DocumentOutline outline("<x:a><!--c--><b/><c><![CDATA[<no>]]><b></b></c></x:a><!--d-->");
  ASSERT_EQ(outline.elements().size(), 4U);
  EXPECT_EQ(outline.elements()[0].name, "a");
  EXPECT_EQ(outline.elements()[0].end, 4U);
  EXPECT_EQ(outline.elements()[3].parent, 2U);
  EXPECT_EQ(outline.childrenOf(0, "b").size(), 1U);
  EXPECT_EQ(outline.childOf(0, "c"), 2U);
  EXPECT_EQ(outline.childOf(0, "d"), DocumentOutline::none);
  EXPECT_EQ(outline.childOf(DocumentOutline::none, "d"), DocumentOutline::none);
  ASSERT_EQ(outline.comments().size(), 2U);
  EXPECT_EQ(outline.comments()[0].text, "c");
  EXPECT_EQ(outline.comments()[0].next, 1U);
  EXPECT_EQ(outline.comments()[1].parent, DocumentOutline::none);
}

TEST(DocumentOutline, HasNothingOfWhatIsNoDocument) {
  for (const char* const text : {"",
                                 "<",
                                 "</a>",
                                 "<a>",
                                 "<a></a></a>",
                                 "<a",
                                 "<a b='>",
                                 "<!--",
                                 "<a><![CDATA[</a>",
                                 "<?a",
                                 "<!DOCTYPE",
                                 "<!DOCTYPE a [",
                                 "<!DOCTYPE a [<!ENTITY",
                                 "<!DOCTYPE a [<!ENTITY b \"",
                                 "<!DOCTYPE a [ <",
                                 "<!DOCTYPE a [%b;",
                                 "<a>&",
                                 "<a>&b",
                                 "\xFF\xFE<",
                                 "\x4C\x6F\xA7\x94",
                                 "<?xml encoding='",
                                 "<?xml encoding="}) {
    EXPECT_TRUE(DocumentOutline(text).elements().empty()) << text;
    EXPECT_TRUE(DocumentOutline(text).comments().empty()) << text;
  }
}

TEST(DocumentOutline, TellsPlacesWhateverLinesEndIn) {
  const DocumentOutline outline("<a>\r\n<b/>\r<c/>\n\xC3\xA4<d/></a>\r");
  ASSERT_EQ(outline.elements().size(), 4U);
  const int lines[] = {1, 2, 3, 4};
  const int columns[] = {1, 1, 1, 2};
  for (std::size_t i = 0; i < 4; ++i) {
    EXPECT_EQ(outline.elements()[i].place.line, lines[i]) << i;
    EXPECT_EQ(outline.elements()[i].place.column, columns[i]) << i;
  }
}

// Declarations in front of an element, which are passed over, and the elements that there are.
struct DeclarationRow {
  const char* declarations;
  std::size_t elements;
};

TEST(DocumentOutline, PassesOverDeclarations) {
  for (const DeclarationRow& row :
       {DeclarationRow{"<!DOCTYPE a>", 1}, DeclarationRow{"<!DOCTYPE a SYSTEM 'x[>.dtd'>", 1},
        DeclarationRow{"<!DOCTYPE a PUBLIC \"[>'\" '>['>", 1},
        DeclarationRow{"<!DOCTYPE a SYSTEM 'x", 0}, DeclarationRow{"<!DOCTYPE a []>", 1},
        DeclarationRow{"<!DOCTYPE a [<!-- ]> --><?b ]>?><!ELEMENT a ANY>] >", 1},
        DeclarationRow{"<!DOCTYPE a [<!ATTLIST a b CDATA '>]'>]>", 1},
        DeclarationRow{"<!DOCTYPE a [<!-- ]>", 0}, DeclarationRow{"<!DOCTYPE a [<?b ]>", 0},
        DeclarationRow{"<!DOCTYPE a [<!ENTITY e '<b/>'>]>", 2},
        DeclarationRow{"<!DOCTYPE a [<!ENTITY e \"<b/>\"><!ENTITY e ''>]>", 2},
        DeclarationRow{"<!DOCTYPE a [<!ENTITY e '&#x3C;b/&#x3e;&#60;b/>'>]>", 3},
        DeclarationRow{"<!DOCTYPE a [<!ENTITY e SYSTEM 'b.xml'>]>", 1},
        DeclarationRow{"<!DOCTYPE a [<!ENTITY e>]>", 1},
        DeclarationRow{"<!DOCTYPE a [<!ENTITY e >]>", 1},
        DeclarationRow{"<!DOCTYPE a [<!ENTITY f '<b/>'>]>", 1}}) {
    const DocumentOutline outline(std::string(row.declarations) + "<a>&e;</a>");
    EXPECT_EQ(outline.elements().size(), row.elements) << row.declarations;
  }
}

TEST(DocumentOutline, EndsWithEntitiesThatDoNot) {
  for (const char* const entities :
       {"<!ENTITY e '&e;'>", "<!ENTITY e '&f;'><!ENTITY f '&e;&e;'>", "<!ENTITY e '<b>'>",
        "<!ENTITY e '</a>'>", "<!ENTITY e '&#60;'>", "<!ENTITY e '&#x110000;&#99999999999;&#<'>"}) {
    const DocumentOutline outline("<!DOCTYPE a [" + std::string(entities) + "]><a>&e;</a>");
    EXPECT_LE(outline.elements().size(), 1U) << entities;
  }
  std::string many = "<!DOCTYPE a [<!ENTITY e '<b/>'>]><a>";
  for (int i = 0; i < 1001; ++i) many += "&e;";
  EXPECT_TRUE(DocumentOutline(many + "</a>").elements().empty());
}

TEST(DocumentOutline, HasNoCommentOfWhatIsNoDocument) {
  EXPECT_TRUE(DocumentOutline("<a><!--b--><c></a>").comments().empty());
  EXPECT_TRUE(DocumentOutline("<a><!--b--><c></a>").elements().empty());
}

std::string namesOf(const DocumentOutline& outline) {
  std::string names;
  for (const auto& element : outline.elements()) names += std::string(element.name) + " ";
  return names;
}

TEST(DocumentOutline, KnowsTheElementsOfEntities) {
  struct Row {
    const char* type;  // Behind <!DOCTYPE a, and up to its >.
    const char* names;
  };
  for (const Row& row : {
           Row{"[<!ENTITY e '<b/>'>]", "a b "},
           Row{"[<!ENTITY e \"<b c='d'/>\">]", "a b "},
           Row{"[\n<!ENTITY\te\r'<b/>'\n>\t]", "a b "},
           Row{"[<!ENTITY e '&#60;b/&#62;'>]", "a b "},
           Row{"[<!ENTITY e '&#x3C;&#x62;/&#x3e;'>]", "a b "},
           Row{"[<!ENTITY e '&#x3c;&#98;&#57;&#x2F;&#x3E;'>]", "a b9 "},
           Row{"[<!ENTITY e '<b/>'><!ENTITY e '<c/>'>]", "a b "},
           Row{"[<!ENTITY e '&f;'><!ENTITY f '<b/>'>]", "a b "},
           Row{"[<!ENTITY f '<b/>'>]", "a "},
           Row{"[<!ENTITY e SYSTEM '<b/>'>]", "a "},
           Row{"[<!ENTITY e PUBLIC '<b/>P' 'x'>]", "a "},
           Row{"[<!ENTITY % e '<b/>'>]", "a "},
           Row{"[<!ENTITY e><!ENTITY f '<b/>'>]", "a "},
           Row{"[<!ENTITY e ><!ENTITY f '<b/>'>]", "a "},
           Row{"[<!-- ' <!ENTITY e '<c/>'> --><!ENTITY e '<b/>'>]", "a b "},
           Row{"[<?p ' <!ENTITY e '<c/>'> ?><!ENTITY e '<b/>'>]", "a b "},
           Row{"[<!ATTLIST a b CDATA '>'><!ENTITY e '<b/>'>]", "a b "},
           Row{"[<!NOTATION n SYSTEM \"]>\"> <!ENTITY e '<b/>'>]", "a b "},
           Row{"SYSTEM 'x[>y' [<!ENTITY e '<b/>'>]", "a b "},
           Row{"SYSTEM \"x'[\"", "a "},
           Row{"", "a "},
       }) {
    EXPECT_EQ(namesOf(DocumentOutline("<!DOCTYPE a " + std::string(row.type) + "><a>&e;</a>")),
              row.names)
        << row.type;
  }
}

TEST(DocumentOutline, TellsPlaces) {
  const DocumentOutline outline("<a>\n\xC3\xA4<b/>\r\n <c/>\r<d/><!--e--></a>");
  std::string places;
  for (const auto& element : outline.elements()) {
    places += std::string(element.name) + std::to_string(element.place.line) + ":" +
              std::to_string(element.place.column) + " ";
  }
  EXPECT_EQ(places, "a1:1 b2:2 c3:2 d4:1 ");
  ASSERT_EQ(outline.comments().size(), 1U);
  EXPECT_EQ(outline.comments()[0].place.column, 5);
}

TEST(DocumentOutline, HasAsManyExpansionsAsTheLibraryReads) {
  std::string text = "<!DOCTYPE a [<!ENTITY e '<b/>'>]><a>";
  for (int i = 0; i < 1000; ++i) text += "&e;";
  EXPECT_EQ(DocumentOutline(text + "</a>").elements().size(), 1001U);
  EXPECT_TRUE(DocumentOutline(text + "&e;</a>").elements().empty());
}

// What stands in an entity has no place of its own.
TEST(DocumentOutline, PlacesWhatEntitiesHoldWhereTheyAreReferredTo) {
  const DocumentOutline outline("<!DOCTYPE a [<!ENTITY e '\n\n<b/><!--c-->'>]>\n<a> &e;</a>");
  ASSERT_EQ(outline.elements().size(), 2U);
  EXPECT_EQ(outline.elements()[1].place.line, 4);
  EXPECT_EQ(outline.elements()[1].place.column, 5);
  EXPECT_TRUE(outline.comments().empty());
}

}  // namespace
