// Tests of the kinds of data items: what each kind adds and which interfaces it has.
#include <gtest/gtest.h>

#include <memory>
#include <ostream>
#include <string>

#include "as/AgentServices.h"
#include "support/Documents.h"
#include "support/Model.h"
#include "support/Requests.h"

namespace {

using test::dictionaryOf;
using test::element;
using test::parse;
using test::topItem;

// A document with one item.
std::string oneItem(const std::string& kind, const std::string& attributes) {
  return dictionaryOf("<" + kind + " name='ITEM' " + attributes + "/>");
}

// Codes of words. A row with a null word leaves the attribute out.

struct Code {
  const char* word;
  int code;
};

template <class Interface, std::size_t N>
void expectCodes(const char* kind, const char* attribute, int (Interface::*get)(),
                 const Code (&rows)[N]) {
  for (const Code& row : rows) {
    const std::string text =
        row.word == nullptr ? "" : std::string(attribute) + "='" + row.word + "'";
    SCOPED_TRACE(std::string(kind) + " " + text);
    const auto program = parse(oneItem(kind, text));
    auto* const item = topItem<Interface>(*program);
    ASSERT_NE(item, nullptr);
    EXPECT_EQ((item->*get)(), row.code);
  }
}

TEST(Numeric, UsageIsTheCodeOfTheWord) {
  expectCodes("numeric", "usage", &as::INumeric::getUsage,
              {{"comp", 0},
               {"comp-x", 1},
               {"comp-1", 2},
               {"comp-2", 3},
               {"comp-3", 4},
               {"comp-4", 5},
               {"comp-5", 6},
               {"comp-6", 7},
               {"externalFloat", 8},
               {"display", 9},
               {nullptr, 9}});
}

TEST(Numeric, SignIsTheCodeOfTheWord) {
  expectCodes(
      "numeric", "sign", &as::INumeric::getSign,
      {{"li", 0}, {"ls", 1}, {"ti", 2}, {"ts", 3}, {"true", 4}, {"false", 5}, {nullptr, 5}});
}

TEST(Alphanumeric, JustificationIsTheCodeOfTheWord) {
  expectCodes("alphanumeric", "justified", &as::IAlphanumeric::getJustification,
              {{"left", 0}, {"right", 1}, {nullptr, 0}});
}

TEST(National, UsageIsTheCodeOfTheWord) {
  expectCodes("national", "usage", &as::INational::getUsage,
              {{"display", 0}, {"unicode", 1}, {nullptr, 0}});
}

constexpr Code numbers[] = {
    {"0", 0}, {"18", 18}, {"007", 7}, {"2147483647", 2147483647}, {nullptr, 0}};

TEST(Numeric, DigitsAreTheNumber) {
  expectCodes("numeric", "digits", &as::INumeric::getDigits, numbers);
}

TEST(Numeric, AlignmentIsTheNumber) {
  expectCodes("numeric", "alignment", &as::INumeric::getAlignment, numbers);
}

TEST(NumericEdited, DigitsAreTheNumber) {
  expectCodes("numericEdited", "digits", &as::INumericEdited::getDigits, numbers);
}

TEST(Numeric, EachAttributeIsItsOwn) {
  const auto program =
      parse(oneItem("numeric", "usage='comp-3' sign='ts' digits='9' alignment='2' length='5'"));
  auto* const item = topItem<as::INumeric>(*program);
  EXPECT_EQ(item->getUsage(), as::INumeric::USAGE_COMP_3);
  EXPECT_EQ(item->getSign(), as::INumeric::SIGN_TRAILING_SEPARATE);
  EXPECT_EQ(item->getDigits(), 9);
  EXPECT_EQ(item->getAlignment(), 2);
  EXPECT_EQ(item->getLength(), 5);
}

// It has no accessor in the interface.
TEST(NumericEdited, AlignmentIsReadByItsAttribute) {
  const auto program = parse(oneItem("numericEdited", "digits='9' alignment='2'"));
  EXPECT_EQ(topItem<as::INumericEdited>(*program)->getDigits(), 9);
  EXPECT_EQ(topItem<as::INumericEdited>(*program)->getAttributeValue("alignment"), "2");
}

TEST(NumericEdited, BlankWhenZeroIsTrueInAnyCase) {
  const struct {
    const char* attribute;
    bool value;
  } rows[] = {
      {"", false},
      {"blankWhenZero='true'", true},
      {"blankWhenZero='TRUE'", true},
      {"blankWhenZero='tRuE'", true},
      {"blankWhenZero='false'", false},
      {"blankWhenZero='FALSE'", false},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.attribute);
    const auto program = parse(oneItem("numericEdited", row.attribute));
    EXPECT_EQ(topItem<as::INumericEdited>(*program)->isBlankWhenZero(), row.value);
  }
}

// Interfaces.

// The ten interfaces of items, each with a cast that looks through the result.
struct Interface {
  const char* name;
  const RTTITypeinfo* record;
  // The name of the item when it casts, else an empty text.
  std::string (*nameThrough)(as::IElement*);
};

template <class T>
std::string nameThrough(as::IElement* element) {
  T* const item = as::interface_cast<T>(element);
  return item == nullptr ? std::string() : item->getName();
}

const Interface interfaces[] = {
    {"IDataItem", &as::IDataItem::RTTI_obj, nameThrough<as::IDataItem>},
    {"IGroup", &as::IGroup::RTTI_obj, nameThrough<as::IGroup>},
    {"INumeric", &as::INumeric::RTTI_obj, nameThrough<as::INumeric>},
    {"IAlphanumeric", &as::IAlphanumeric::RTTI_obj, nameThrough<as::IAlphanumeric>},
    {"INumericEdited", &as::INumericEdited::RTTI_obj, nameThrough<as::INumericEdited>},
    {"IAlphanumericEdited", &as::IAlphanumericEdited::RTTI_obj,
     nameThrough<as::IAlphanumericEdited>},
    {"IPointer", &as::IPointer::RTTI_obj, nameThrough<as::IPointer>},
    {"IObject", &as::IObject::RTTI_obj, nameThrough<as::IObject>},
    {"INational", &as::INational::RTTI_obj, nameThrough<as::INational>},
    {"IIndex", &as::IIndex::RTTI_obj, nameThrough<as::IIndex>},
};

struct Kind {
  const char* element;
  const char* interface;  // Its own, beside IDataItem; empty for none.
  const char* className;
};

void PrintTo(const Kind& kind, std::ostream* out) { *out << kind.element; }

constexpr Kind kinds[] = {
    {"group", "IGroup", "CGroupImpl"},
    {"numeric", "INumeric", "CNumericImpl"},
    {"alphanumeric", "IAlphanumeric", "CAlphanumericImpl"},
    {"numericEdited", "INumericEdited", "CNumericEditedImpl"},
    {"national", "INational", "CNationalImpl"},
    {"pointer", "", "CDataItemImpl"},
    {"cobolObject", "", "CDataItemImpl"},
    {"index", "", "CDataItemImpl"},
};

class DataItemKind : public testing::TestWithParam<Kind> {
 protected:
  static bool has(const Interface& interface) {
    return interface.name == std::string("IDataItem") ||
           interface.name == std::string(GetParam().interface);
  }
  as::IElement* element() { return program_->getDataItems()->getItem(0); }

 private:
  std::unique_ptr<as::IProgram> program_ = parse(oneItem(GetParam().element, ""));
};

TEST_P(DataItemKind, CastsToItsInterfacesOnly) {
  for (const Interface& interface : interfaces) {
    EXPECT_EQ(interface.nameThrough(element()), has(interface) ? "ITEM" : "") << interface.name;
  }
}

TEST_P(DataItemKind, CastsByTheNameOfAForeignRecordAsByItsOwn) {
  for (const Interface& interface : interfaces) {
    std::string name = interface.name;
    const RTTITypeinfo foreign = {name.data(), nullptr, 0, nullptr, 0, nullptr};
    EXPECT_EQ(element()->RTTI_cast(RTTItypeid(&foreign)),
              element()->RTTI_cast(RTTItypeid(interface.record)))
        << interface.name;
    EXPECT_EQ(element()->RTTI_cast(RTTItypeid(&foreign)) != nullptr, has(interface))
        << interface.name;
  }
}

TEST_P(DataItemKind, CastsToNothingElse) {
  EXPECT_EQ(as::interface_cast<as::IService>(element()), nullptr);
  EXPECT_EQ(as::interface_cast<as::IList>(element()), nullptr);
  EXPECT_EQ(as::interface_cast<as::IProgram>(element()), nullptr);
  EXPECT_EQ(as::interface_cast<as::ICondition>(element()), nullptr);
  EXPECT_EQ(as::interface_cast<as::IField>(element()), nullptr);
  EXPECT_EQ(element()->RTTI_cast(RTTItypeid(&RTTITypeinfo::null_type)), nullptr);
  EXPECT_EQ(element()->RTTI_cast(RTTItypeid(nullptr)), nullptr);
  for (const char* text : {"", "IGrou", "IGroups", "igroup", "as::IGroup", "IDataItem "}) {
    std::string name = text;
    const RTTITypeinfo foreign = {name.data(), nullptr, 0, nullptr, 0, nullptr};
    EXPECT_EQ(element()->RTTI_cast(RTTItypeid(&foreign)), nullptr) << text;
  }
}

TEST_P(DataItemKind, CastsToTheObjectThatTheListHolds) {
  EXPECT_EQ(as::interface_cast<as::IElement>(element()), element());
  auto* const item = as::interface_cast<as::IDataItem>(element());
  EXPECT_EQ(as::interface_cast<as::IElement>(item), element());
  EXPECT_EQ(as::interface_cast<as::IDataItem>(item), item);
}

TEST_P(DataItemKind, CastsToTheClassThatItNames) {
  const RTTITypeinfo* const own = element()->RTTI_vinfo().record();
  ASSERT_NE(own, nullptr);
  EXPECT_STREQ(own->name, GetParam().className);
  EXPECT_NE(element()->RTTI_cast(element()->RTTI_vinfo()), nullptr);
  EXPECT_NE(element()->RTTI_cast(RTTItypeid(own)), nullptr);
}

TEST_P(DataItemKind, CastsToTheClassOfAnotherOnlyWhenItIsOne) {
  for (const Kind& other : kinds) {
    const auto program = parse(oneItem(other.element, ""));
    const RTTItypeid theirs = program->getDataItems()->getItem(0)->RTTI_vinfo();
    const bool same = other.className == std::string(GetParam().className);
    const bool base = other.className == std::string("CDataItemImpl");
    EXPECT_EQ(element()->RTTI_cast(theirs) != nullptr, same || base) << other.element;
  }
}

INSTANTIATE_TEST_SUITE_P(All, DataItemKind, testing::ValuesIn(kinds),
                         [](const auto& row) { return row.param.element; });

}  // namespace
