// Types whose names have been made short: what they are called, and that they are still found.
#include <gtest/gtest.h>

#include <string>
#include <vector>
#include <xercesc/framework/XMLGrammarPoolImpl.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/validators/schema/ComplexTypeInfo.hpp>
#include <xercesc/validators/schema/SchemaGrammar.hpp>

#include "as/Globals.h"
#include "support/Dom.h"
#include "xml/BuiltInSchemas.h"
#include "xml/GrammarMemory.h"
#include "xml/SchemaCompiler.h"
#include "xml/TypeNames.h"
#include "xml/Vocabulary.h"

namespace {

using test::narrow;
using xercesc::ComplexTypeInfo;
using Types = xercesc::RefHashTableOf<ComplexTypeInfo>;

class TypeNamesTest : public testing::Test {
 protected:
  // Compiles a schema with elements of a type that has a name, of one that has none, and of
  // no type.
  void SetUp() override {
    grammar_ = compileSchema(u"urn:a",
                             "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema' xmlns='urn:a' "
                             "targetNamespace='urn:a' blockDefault='#all'>"
                             "<xs:complexType name='named'/><xs:element name='a' type='named'/>"
                             "<xs:element name='b'><xs:complexType/></xs:element>"
                             "<xs:element name='c'/>"
                             "</xs:schema>",
                             grammars_);
    ASSERT_NE(grammar_, nullptr);
    shortenTypeNames(*grammar_, &memory_);
  }

  Types& types() {
    return *static_cast<xercesc::SchemaGrammar&>(*grammar_).getComplexTypeRegistry();
  }
  ComplexTypeInfo* typeOf(const XMLCh* element) {
    return static_cast<xercesc::SchemaElementDecl*>(
               grammar_->getElemDecl(grammars_.getURIStringPool()->getId(u"urn:a"), element,
                                     element, xercesc::Grammar::TOP_LEVEL_SCOPE))
        ->getComplexTypeInfo();
  }

 private:
  GrammarMemory memory_;
  xercesc::XMLGrammarPoolImpl grammars_{xercesc::XMLPlatformUtils::fgMemoryManager};
  xercesc::Grammar* grammar_ = nullptr;
};

TEST_F(TypeNamesTest, TheNameOfATypeHasNoNamespace) {
  EXPECT_EQ(narrow(typeOf(u"a")->getTypeName()), "named");
}

TEST_F(TypeNamesTest, ATypeIsFoundByItsWholeName) {
  EXPECT_EQ(types().get(u"urn:a,named"), typeOf(u"a"));
}

TEST_F(TypeNamesTest, NoTypeIsFoundByItsNameAlone) { EXPECT_EQ(types().get(u"named"), nullptr); }

TEST_F(TypeNamesTest, PartsOfTheNameStay) {
  EXPECT_EQ(narrow(typeOf(u"a")->getTypeLocalName()), "named");
  EXPECT_EQ(narrow(typeOf(u"a")->getTypeUri()), "urn:a");
}

TEST_F(TypeNamesTest, TypesWithoutANameOfTheirOwnHaveNoNamespaceEither) {
  const std::string name = narrow(typeOf(u"b")->getTypeName());
  EXPECT_NE(name, "");
  EXPECT_EQ(name.find(','), std::string::npos) << name;
}

// What the names of the built-in schemas' types are made short for.
class BuiltInTypesTest : public testing::TestWithParam<const XMLCh*> {};

TEST_P(BuiltInTypesTest, NoTypeIsMadeFromAnother) {
  GrammarMemory memory;
  const auto grammars = readBuiltIn(*builtInSchema(GetParam()), &memory);
  ASSERT_NE(grammars, nullptr);
  auto* const grammar = static_cast<xercesc::SchemaGrammar*>(grammarIn(*grammars, GetParam()));
  xercesc::RefHashTableOfEnumerator<ComplexTypeInfo> each(grammar->getComplexTypeRegistry());
  ASSERT_TRUE(each.hasMoreElements());
  while (each.hasMoreElements()) {
    const ComplexTypeInfo& type = each.nextElement();
    const ComplexTypeInfo* const base = type.getBaseComplexTypeInfo();
    EXPECT_TRUE(base == nullptr || narrow(base->getTypeLocalName()) == "anyType")
        << narrow(type.getTypeName());
  }
}

INSTANTIATE_TEST_SUITE_P(Schemas, BuiltInTypesTest,
                         testing::Values(XSDNS::ddURI, XSDNS::wsURI, XSDNS::comURI, XSDNS::javaURI,
                                         XSDNS::dotnetURI));

}  // namespace
