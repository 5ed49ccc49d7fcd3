// Tests of the words of Web services that no valid document holds, and of what only the
// implementation offers.
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "service/ServiceImpl.h"
#include "support/Dom.h"
#include "support/Wrappers.h"
#include "ws/VorWSHandler.h"
#include "ws/WSFaultImpl.h"
#include "ws/WSHeaderImpl.h"
#include "ws/WSOperationImpl.h"
#include "ws/WSParameterImpl.h"

namespace {

constexpr int unknown = -1;

TEST(WebWords, DataTypesAreReadExactly) {
  const struct {
    const char16_t* text;
    int type;
  } rows[] = {{u"integer", 11},    {u"decimal", 10},  {u"int", 4},         {u"string", 12},
              {u"Array", 13},      {u"XML", 14},      {u"byte", 0},        {u"Integer", unknown},
              {u"array", unknown}, {u"xml", unknown}, {u"ARRAY", unknown}, {u"int ", unknown},
              {u" int", unknown},  {u"", unknown},    {u"in", unknown},    {u"ints", unknown}};
  for (const auto& row : rows) {
    EXPECT_EQ(CWSParameterImpl::StringToDataType(row.text), row.type) << test::narrow(row.text);
  }
}

TEST(WebWords, DataTypesAndTheirTextsBelongTogether) {
  for (int type = 0; type < 15; type++) {
    const XMLCh* const word =
        CWSParameterImpl::DataTypeToString(static_cast<as::IWSField::TYPE>(type));
    EXPECT_EQ(CWSParameterImpl::StringToDataType(word), type) << test::narrow(word);
  }
}

TEST(WebWords, OfOperationsAreReadExactly) {
  for (const char* const text : {"", "Literal", "RPC", "encoded ", "literals", "Document"}) {
    const std::string word = text;
    test::Dom dom("<operation style='" + word + "' inputUse='" + word + "' outputUse='" + word +
                  "'/>");
    CWSOperationImpl operation(dom.root());
    EXPECT_EQ(static_cast<int>(operation.getStyle()), unknown) << word;
    EXPECT_EQ(static_cast<int>(operation.getInputUse()), unknown) << word;
    EXPECT_EQ(static_cast<int>(operation.getOutputUse()), unknown) << word;
  }
}

// The words of one attribute are none of the other's.
TEST(WebWords, OfOperationsAreNotMixedUp) {
  test::Dom dom("<operation style='literal' inputUse='rpc' outputUse='document'/>");
  CWSOperationImpl operation(dom.root());
  EXPECT_EQ(static_cast<int>(operation.getStyle()), unknown);
  EXPECT_EQ(static_cast<int>(operation.getInputUse()), unknown);
  EXPECT_EQ(static_cast<int>(operation.getOutputUse()), unknown);
}

TEST(WebWords, OfFormsAreReadExactly) {
  for (const char* const text : {"", "Qualified", "qualified ", "unQualified", "yes"}) {
    const std::string word = text;
    test::Dom dom("<parameter elementForm='" + word + "' attributeForm='" + word + "'/>");
    CWSParameterImpl parameter(dom.root());
    EXPECT_EQ(static_cast<int>(parameter.getElementForm()), unknown) << word;
    EXPECT_EQ(static_cast<int>(parameter.getAttributeForm()), unknown) << word;
  }
}

TEST(WebWords, OfHeadersAndFaultsAreReadExactly) {
  test::Dom header("<header byType='In' use='Literal'/>");
  CWSHeaderImpl wrapped(header.root());
  EXPECT_EQ(wrapped.getByType(), as::IWSHeader::BY_IO);
  EXPECT_EQ(static_cast<int>(wrapped.getUse()), unknown);
  test::Dom fault("<fault use='Encoded'/>");
  CWSFaultImpl wrappedFault(fault.root());
  EXPECT_EQ(static_cast<int>(wrappedFault.getUse()), unknown);
}

TEST(WebWords, DirectionsOfHeadersHaveTheirTexts) {
  const struct {
    int direction;
    const char* word;
  } rows[] = {{0, "in"}, {1, "out"}, {2, "io"}, {7, "io"}, {-1, "io"}};
  for (const auto& row : rows) {
    EXPECT_EQ(test::narrow(CWSHeaderImpl::ByTypeToString(
                  static_cast<as::IWSHeader::BY_TYPE>(row.direction))),
              row.word);
  }
}

// The service of a document around one operation with that content.
std::unique_ptr<CServiceImpl> serviceOf(test::Dom& dom) {
  CVorWSHandler handler;
  test::buildWrappers(handler, dom.root());
  handler.endParse(dom.document());
  return handler.takeService();
}

std::string document(const std::string& operation) {
  return "<service><operations><operation>" + operation + "</operation></operations></service>";
}

template <class T>
T* firstOf(as::IList* list) {
  return as::interface_cast<T>(list->getItem(0));
}

TEST(WebOperationImpl, HeadersAndFaultsAreDirectChildrenOnly) {
  test::Dom dom(document("<parameters><fault/><header/></parameters><fault/><header/>"));
  const auto service = serviceOf(dom);
  auto* const operation = firstOf<as::IWSOperation>(service->getOperations());
  ASSERT_EQ(operation->getFaults()->getLength(), 1);
  ASSERT_EQ(operation->getHeaders()->getLength(), 1);
  auto* const fault = firstOf<CElementImpl>(operation->getFaults());
  EXPECT_EQ(fault->getElement()->getParentNode(), dom.find(u"operation"));
}

// The lists stand on the operation's element, which stays the operation's.
TEST(WebOperationImpl, ListsLeaveTheElementToTheOperation) {
  test::Dom dom(document("<header/><fault/>"));
  const auto service = serviceOf(dom);
  EXPECT_EQ(test::classAt(dom.find(u"operation")), "CWSOperationImpl");
}

TEST(WebMessageImpl, AddingNothingChangesNothing) {
  test::Dom dom(document("<header><parameters/></header><fault><parameters/></fault>"));
  const auto service = serviceOf(dom);
  auto* const operation = firstOf<as::IWSOperation>(service->getOperations());
  auto* const header = firstOf<CWSHeaderImpl>(operation->getHeaders());
  auto* const fault = firstOf<CWSFaultImpl>(operation->getFaults());
  header->addParameter(nullptr);
  fault->addParameter(nullptr);
  EXPECT_EQ(header->getParameters()->getLength(), 0);
  EXPECT_EQ(fault->getParameters()->getLength(), 0);
}

// What a nested element asks for, whatever the element is.
TEST(WebParameterImpl, NothingNestedHasANamespaceOrFormsOfItsOwn) {
  test::Dom dom("<parameter namespace='urn:x' elementForm='qualified' attributeForm='qualified'/>");
  CWSParameterImpl parameter(dom.root());
  EXPECT_EQ(parameter.getNamespaceForField(), "");
  EXPECT_EQ(static_cast<int>(parameter.getElementFormForField()), unknown);
  EXPECT_EQ(static_cast<int>(parameter.getAttributeFormForField()), unknown);
  EXPECT_EQ(parameter.getNamespaceForParam(), "urn:x");
}

}  // namespace
