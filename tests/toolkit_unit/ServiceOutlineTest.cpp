// Tests of where the objects of a service stand in its document, and in one that is another by now.
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "as/IList.h"
#include "as/IOperation.h"
#include "as/IService.h"
#include "as/IWSOperation.h"
#include "as/toolkit/DocumentReader.h"
#include "support/Documents.h"
#include "toolkit/outline/DocumentOutline.h"
#include "toolkit/outline/ServiceOutline.h"

namespace {

using as::toolkit::DocumentOutline;
using as::toolkit::ServiceOutline;

constexpr std::size_t none = DocumentOutline::none;

std::string serviceOf(const std::string& operations) {
  return test::javaService("", "<operations>" + operations + "</operations>");
}

struct Row {
  std::string document;
  std::size_t service;  // The number of its element.
  std::size_t first;    // That of its first operation.
};

TEST(ServiceOutline, KnowsTheElementsOfItsDocument) {
  const std::string text = serviceOf("<operation name='A'/><operation name='B'/>");
  const as::toolkit::DocumentReader reader(AS_SCHEMA_DIR);
  const std::unique_ptr<as::IService> service = reader.readServiceText(text, "s.xml");
  auto* const first = as::interface_cast<as::IOperation>(service->getOperations()->getItem(0));
  ASSERT_NE(first, nullptr);
  for (const Row& row : {Row{text, 0, 2}, Row{serviceOf("<operation name='A'/>"), 0, none},
                         Row{serviceOf(""), 0, none}, Row{"<service/>", 0, none},
                         Row{"<program/>", none, none}, Row{"", none, none}}) {
    const DocumentOutline document(row.document);
    const ServiceOutline outline(*service, document);
    EXPECT_EQ(outline.elementOf(*service), row.service) << row.document;
    EXPECT_EQ(outline.elementOf(*first), row.first) << row.document;
  }
}

// Headers and faults that another document has fewer of are not known.
TEST(ServiceOutline, KnowsTheMessagesThatTheDocumentHas) {
  const auto textOf = [](const std::string& messages) {
    return test::webService(
        "", "<operations><operation name='A'>" + messages + "</operation></operations>");
  };
  const std::string text = textOf("<header/><fault/><fault/>");
  const as::toolkit::DocumentReader reader(AS_SCHEMA_DIR);
  const std::unique_ptr<as::IService> service = reader.readServiceText(text, "s.xml");
  auto* const operation =
      as::interface_cast<as::IWSOperation>(service->getOperations()->getItem(0));
  ASSERT_NE(operation, nullptr);
  const auto elementsIn = [&](const std::string& other) {
    const DocumentOutline document(other);
    const ServiceOutline outline(*service, document);
    std::string elements;
    for (as::IList* const list : {operation->getHeaders(), operation->getFaults()}) {
      for (int i = 0; i < list->getLength(); ++i) {
        const std::size_t element =
            outline.elementOf(*as::interface_cast<as::IElement>(list->getItem(i)));
        elements += element == none ? "-" : std::to_string(element);
      }
    }
    return elements;
  };
  EXPECT_EQ(elementsIn(text), "345");
  EXPECT_EQ(elementsIn(textOf("<header/><fault/>")), "34-");
  EXPECT_EQ(elementsIn(textOf("")), "---");
}

}  // namespace
