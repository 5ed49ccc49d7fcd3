// The names of a document, each once.
#include <gtest/gtest.h>

#include <array>
#include <memory>
#include <string>
#include <vector>
#include <xercesc/dom/DOM.hpp>

#include "cobol/DDVocabulary.h"
#include "cobol/VorDDHandler.h"
#include "com/CSVocabulary.h"
#include "com/VorCHandler.h"
#include "dotnet/VorDotNETHandler.h"
#include "java/JSVocabulary.h"
#include "java/VorJHandler.h"
#include "service/SSVocabulary.h"
#include "support/Dom.h"
#include "ws/VorWSHandler.h"
#include "ws/WSSVocabulary.h"
#include "xml/DocumentPointer.h"
#include "xml/NamePool.h"

namespace {

using Name = std::basic_string<XMLCh>;

class NamePoolTest : public testing::Test {
 protected:
  const XMLCh* pooled(const Name& name) { return pool_.pooled(name.c_str(), document()); }
  void expect(std::span<const XMLCh* const> names) { pool_.expect(names); }
  NamePool& pool() { return pool_; }
  xercesc::DOMDocumentImpl& document() {
    return static_cast<xercesc::DOMDocumentImpl&>(*document_);
  }

 private:
  DocumentPointer document_{
      xercesc::DOMImplementationRegistry::getDOMImplementation(u"Core")->createDocument(
          nullptr, u"root", nullptr)};
  NamePool pool_;
};

TEST_F(NamePoolTest, ANameThatIsExpectedIsKeptAsTheTextThatItIsExpectedAs) {
  expect(DD::words);
  EXPECT_EQ(pooled(u"picture"), DD::picture);
}

TEST_F(NamePoolTest, AnyOtherNameIsPooledByTheDocument) {
  expect(DD::words);
  EXPECT_EQ(pooled(u"colour"), document().getPooledString(u"colour"));
}

TEST_F(NamePoolTest, ANameThatWasReadBeforeItIsExpectedIsKeptFromThenOn) {
  EXPECT_EQ(pooled(u"name"), document().getPooledString(u"name"));
  expect(DD::words);
  EXPECT_EQ(pooled(u"name"), DD::name);
}

TEST_F(NamePoolTest, NamesAreToldApartWhateverTheyHaveInCommon) {
  const std::vector<Name> names = {u"a",     u"ab", u"abc", u"abcd", u"abce",
                                   u"abcde", u"b",  u"ba",  u"é"};
  std::vector<const XMLCh*> kept;
  for (const Name& name : names) kept.push_back(pooled(name));
  for (std::size_t i = 0; i < names.size(); i++) {
    EXPECT_EQ(Name(kept[i]), names[i]);
    EXPECT_EQ(pooled(names[i]), kept[i]);
  }
}

TEST_F(NamePoolTest, MoreNamesThanItHasPlacesForAreTheDocuments) {
  for (int i = 0; i < 1000; i++) {
    const std::string number = "abc" + std::to_string(i);
    const Name name(number.begin(), number.end());
    EXPECT_EQ(pooled(name), document().getPooledString(name.c_str()));
  }
}

// The words that a handler tells.
struct Vocabulary {
  const char* of;
  std::shared_ptr<CElementHandler> (*make)();
  std::vector<std::span<const XMLCh* const>> words;
};

template <class Handler>
std::shared_ptr<CElementHandler> made() {
  return std::make_shared<Handler>();
}

class VocabularyPoolTest : public NamePoolTest, public testing::WithParamInterface<Vocabulary> {};

TEST_P(VocabularyPoolTest, EveryWordHasAPlace) {
  GetParam().make()->tellNames(pool());
  for (const auto words : GetParam().words) {
    for (const XMLCh* const word : words) {
      EXPECT_NE(pooled(word), document().getPooledString(word)) << test::narrow(word);
    }
  }
}

INSTANTIATE_TEST_SUITE_P(
    Handlers, VocabularyPoolTest,
    testing::Values(Vocabulary{"Dictionary", made<CVorDDHandler>, {DD::words}},
                    Vocabulary{"WebService", made<CVorWSHandler>, {SS::words, WSS::words}},
                    Vocabulary{"Com", made<CVorCHandler>, {SS::words, CS::words}},
                    Vocabulary{"Java", made<CVorJHandler>, {SS::words, JS::words}},
                    Vocabulary{"DotNET", made<CVorDotNETHandler>, {SS::words}}),
    [](const auto& row) { return std::string(row.param.of); });

}  // namespace
