// What stands in for a schema's types of numbers: for which of them, and that nothing is different.
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <xercesc/framework/XMLGrammarPoolImpl.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/XMLException.hpp>
#include <xercesc/validators/schema/ComplexTypeInfo.hpp>
#include <xercesc/validators/schema/SchemaAttDef.hpp>
#include <xercesc/validators/schema/SchemaGrammar.hpp>

#include "xml/NumberType.h"
#include "xml/SchemaCompiler.h"

namespace {

using xercesc::DatatypeValidator;
using xercesc::SchemaAttDef;
using xercesc::XMLPlatformUtils;

// The type of an attribute, of a schema with nothing else in it.
class NumberTypeTest : public testing::Test {
 protected:
  // Compiles xs:`base` with these facets.
  void compile(const std::string& base, const std::string& facets) {
    ASSERT_EQ(attribute_, nullptr);
    xercesc::Grammar* const grammar = compileSchema(
        u"urn:a",
        "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema' targetNamespace='urn:a'>"
        "<xs:element name='item'><xs:complexType><xs:attribute name='number'><xs:simpleType>" +
            ("<xs:restriction base='xs:" + base + "'>" + facets) +
            "</xs:restriction></xs:simpleType></xs:attribute></xs:complexType></xs:element>"
            "</xs:schema>",
        grammars_);
    ASSERT_NE(grammar, nullptr);
    auto* const types = static_cast<xercesc::SchemaGrammar*>(grammar)->getComplexTypeRegistry();
    xercesc::RefHashTableOfEnumerator<xercesc::ComplexTypeInfo> each(types);
    attribute_ = &static_cast<SchemaAttDef&>(each.nextElement().getAttDefList().getAttDef(0));
    type_ = attribute_->getDatatypeValidator();
    quickenNumbers(*grammar, made_, XMLPlatformUtils::fgMemoryManager);
  }

  bool isQuick() const { return attribute_->getDatatypeValidator() != type_; }
  // The type as it was, and as it is.
  DatatypeValidator& type() { return *type_; }
  DatatypeValidator& quick() { return *attribute_->getDatatypeValidator(); }

 private:
  xercesc::XMLGrammarPoolImpl grammars_{XMLPlatformUtils::fgMemoryManager};
  NumberTypes made_;
  SchemaAttDef* attribute_ = nullptr;
  DatatypeValidator* type_ = nullptr;
};

std::string answer(DatatypeValidator& type, const XMLCh* text) {
  try {
    type.validate(text, nullptr, XMLPlatformUtils::fgMemoryManager);
    return "taken";
  } catch (const xercesc::XMLException& refusal) {
    return std::to_string(refusal.getCode()) + " " +
           std::string(refusal.getMessage(),
                       refusal.getMessage() + xercesc::XMLString::stringLen(refusal.getMessage()));
  }
}

constexpr char count[] = "<xs:minInclusive value='0'/><xs:maxInclusive value='2147483647'/>";

struct Candidate {
  const char* name;
  const char* base;
  const char* facets;
  bool isQuick;
};

const Candidate candidates[] = {
    {"no bounds", "integer", "", true},
    {"bounds that are in it", "integer", count, true},
    {"bounds that are not", "integer",
     "<xs:minExclusive value='-1'/><xs:maxExclusive value='1000000000'/>", true},
    {"not 0", "integer", "<xs:minInclusive value='1'/>", false},
    {"no 0 either", "integer", "<xs:minExclusive value='0'/>", false},
    {"not the largest", "integer", "<xs:maxInclusive value='999999998'/>", false},
    {"only so many digits", "integer", "<xs:totalDigits value='12'/>", false},
    {"a pattern", "integer", "<xs:pattern value='[0-9]+'/>", false},
    {"some of them", "integer", "<xs:enumeration value='0'/><xs:enumeration value='999999999'/>",
     false},
    {"of a type below", "int", "", false},
    {"of a type above", "decimal", "", false},
    {"texts", "string", "", false},
};

class CandidateTest : public NumberTypeTest, public testing::WithParamInterface<Candidate> {};

TEST_P(CandidateTest, StandsInForTypesOfAllShortNumbers) {
  ASSERT_NO_FATAL_FAILURE(compile(GetParam().base, GetParam().facets));
  EXPECT_EQ(isQuick(), GetParam().isQuick) << GetParam().name;
}

INSTANTIATE_TEST_SUITE_P(NumberType, CandidateTest, testing::ValuesIn(candidates));

TEST_F(NumberTypeTest, AnswersAsTheTypeDoes) {
  ASSERT_NO_FATAL_FAILURE(compile("integer", count));
  for (const XMLCh* const text : {u"0",          u"7",          u"007",
                                  u"999999999",  u"0999999999", u"1000000000",
                                  u"2147483647", u"2147483648", u"0000000000",
                                  u"",           u" ",          u" 7",
                                  u"7 ",         u"+7",         u"-0",
                                  u"-1",         u"7.0",        u"7.",
                                  u"0x7",        u"7a",         u"1e3",
                                  u"\u0667",     u"/",          u":",
                                  u"99999999a",  u"999999999a", u"99999999999999999999",
                                  u"-"}) {
    EXPECT_EQ(answer(quick(), text), answer(type(), text));
  }
}

TEST_F(NumberTypeTest, RefusesWithTheWordsOfTheType) {
  ASSERT_NO_FATAL_FAILURE(compile("integer", count));
  EXPECT_NE(answer(quick(), u"2147483648").find("2147483647"), std::string::npos);
}

TEST_F(NumberTypeTest, IsToTheParserWhatTheTypeIs) {
  ASSERT_NO_FATAL_FAILURE(compile("integer", count));
  EXPECT_EQ(quick().getType(), type().getType());
  EXPECT_EQ(quick().getWSFacet(), type().getWSFacet());
  EXPECT_EQ(quick().getFinalSet(), type().getFinalSet());
  EXPECT_EQ(quick().getBaseValidator(), type().getBaseValidator());
  EXPECT_EQ(quick().getEnumString(), type().getEnumString());
  xercesc::MemoryManager* const memory = XMLPlatformUtils::fgMemoryManager;
  EXPECT_EQ(quick().compare(u"007", u"7", memory), 0);
  EXPECT_EQ(quick().isSubstitutableBy(&type()), type().isSubstitutableBy(&type()));
  const auto canonical = [&](const DatatypeValidator& of) {
    const XMLCh* const made = of.getCanonicalRepresentation(u"007", memory, true);
    const std::basic_string<XMLCh> copied(made);
    memory->deallocate(const_cast<XMLCh*>(made));
    return copied;
  };
  EXPECT_EQ(canonical(quick()), canonical(type()));
  const std::unique_ptr<DatatypeValidator> further(
      quick().newInstance(nullptr, nullptr, 0, memory));
  EXPECT_EQ(answer(*further, u"-1"), answer(type(), u"-1"));
}

}  // namespace
