// Tests of the filters of the service model, and of the lists that show children through them.
#include <gtest/gtest.h>

#include <memory>
#include <ostream>
#include <string>

#include "cobol/ConditionList.h"
#include "service/FieldList.h"
#include "support/Dom.h"
#include "support/Wrappers.h"
#include "ws/FaultList.h"
#include "ws/FieldAttributeList.h"
#include "ws/HeaderList.h"
#include "ws/VorWSHandler.h"

namespace {

using xercesc::DOMNode;
using xercesc::DOMNodeFilter;

struct Filter {
  const char* label;
  const DOMNodeFilter* filter;
  const char* name;  // Of the elements that it accepts.
};

void PrintTo(const Filter& filter, std::ostream* out) { *out << filter.label; }

class NodeFilter : public testing::TestWithParam<Filter> {
 protected:
  static void expectAction(const DOMNode* node, bool accepted, const std::string& what) {
    ASSERT_NE(node, nullptr) << what;
    EXPECT_EQ(GetParam().filter->acceptNode(node),
              accepted ? DOMNodeFilter::FILTER_ACCEPT : DOMNodeFilter::FILTER_REJECT)
        << what;
  }
};

INSTANTIATE_TEST_SUITE_P(
    Filters, NodeFilter,
    testing::Values(Filter{"Field", &CFieldNodeFilter::filter, "field"},
                    Filter{"FieldAttribute", &CFieldAttributeNodeFilter::filter, "fieldAttribute"},
                    Filter{"Header", &CHeaderNodeFilter::filter, "header"},
                    Filter{"Fault", &CFaultNodeFilter::filter, "fault"}),
    [](const auto& value) { return std::string(value.param.label); });

TEST_P(NodeFilter, GoesByTheLocalNameOfElements) {
  for (const std::string name :
       {"field", "fieldAttribute", "header", "fault", "Field", "fieldattribute", "HEADER", "faults",
        "fiel", "parameter", "parameters", "mappings", "operation", "service"}) {
    for (const std::string& document :
         {"<" + name + "/>", "<" + name + " xmlns='urn:any'/>",
          "<x:" + name + " xmlns:x='urn:any'/>", "<" + name + ">text<other/></" + name + ">"}) {
      test::Dom dom(document);
      expectAction(dom.root(), name == GetParam().name, document);
    }
  }
}

TEST_P(NodeFilter, APrefixIsNoName) {
  const std::string name = GetParam().name;
  test::Dom dom("<" + name + ":other xmlns:" + name + "='urn:any'/>");
  expectAction(dom.root(), false, "an element with the name as its prefix");
}

TEST_P(NodeFilter, RejectsWhateverIsNoElement) {
  const std::string name = GetParam().name;
  test::Dom dom("<" + name + " " + name + "='" + name + "'>" + name + "<!--" + name + "--><?" +
                name + " " + name + "?><![CDATA[" + name + "]]></" + name + ">");
  const DOMNode* const root = dom.root();
  expectAction(root, true, "the element around the rest");
  const DOMNode::NodeType types[] = {DOMNode::TEXT_NODE, DOMNode::COMMENT_NODE,
                                     DOMNode::PROCESSING_INSTRUCTION_NODE,
                                     DOMNode::CDATA_SECTION_NODE};
  const DOMNode* child = root->getFirstChild();
  for (const DOMNode::NodeType type : types) {
    ASSERT_NE(child, nullptr);
    EXPECT_EQ(child->getNodeType(), type);
    expectAction(child, false, "child of type " + std::to_string(type));
    child = child->getNextSibling();
  }
  EXPECT_EQ(child, nullptr);
  expectAction(root->getAttributes()->item(0), false, "attribute");
  expectAction(dom.document(), false, "document");
  expectAction(dom.document()->createDocumentFragment(), false, "fragment");
}

// The lists.

constexpr char operationDocument[] =
    "<x:operation xmlns:x='urn:any'><x:header/>text<x:fault/><!-- comment --><x:header><x:fault/>"
    "</x:header><x:field><x:fieldAttribute/><x:field/></x:field><x:fieldAttribute/>"
    "<x:fieldAttribute/><x:fault><x:header/></x:fault><x:header/><x:parameters/></x:operation>";

template <class List>
class FilteredList : public testing::Test {};

using UnboundLists =
    testing::Types<CHeaderList, CFaultList, CFieldAttributeList, CFieldList, CConditionList>;
TYPED_TEST_SUITE(FilteredList, UnboundLists);

TYPED_TEST(FilteredList, LeavesTheElementToItsOwner) {
  test::Dom dom("<operation/>");
  const TypeParam alone(dom.root());
  EXPECT_EQ(CElementImpl::wrapperOf(dom.root()), nullptr);
  EXPECT_EQ(alone.getElement(), dom.root()) << "though it shows the children of that";
  CElementImpl owner(dom.root());
  const TypeParam list(dom.root());
  EXPECT_EQ(CElementImpl::wrapperOf(dom.root()), &owner);
}

// The numbers in document order, from 0, of those children of the operation that `list` holds.
std::string membersOf(CList& list) {
  list.addChildren();
  std::string members;
  for (int i = 0; i < list.getLength(); i++) {
    int number = 0;
    for (auto* before = list.getNode(i)->getPreviousElementSibling(); before != nullptr;
         before = before->getPreviousElementSibling()) {
      number++;
    }
    members += std::to_string(number) + " ";
  }
  return members;
}

TEST(FilteredLists, HoldDirectChildrenInOrder) {
  test::Dom dom(operationDocument);
  CVorWSHandler handler;
  test::buildWrappers(handler, dom.root());
  {
    CHeaderList headers(dom.root());
    CFaultList faults(dom.root());
    CFieldAttributeList attributes(dom.root());
    CFieldList fields(dom.root());
    EXPECT_EQ(headers.getLength(), 0) << "not filled yet";
    EXPECT_EQ(membersOf(headers), "0 2 7 ");
    EXPECT_EQ(membersOf(faults), "1 6 ");
    EXPECT_EQ(membersOf(attributes), "4 5 ");
    EXPECT_EQ(membersOf(fields), "3 ");
  }
}

}  // namespace
