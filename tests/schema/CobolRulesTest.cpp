// The sample dictionaries against COBOL's own rules: every length and offset is worked out anew
// from picture, usage, sign, occurrences, redefinitions and synchronisation, and every entry is
// held against the line of the program it claims to stand for. The rules are those that
// examples/README.md tells under "How sizes and offsets are counted". They stand here a second
// time, apart from the toolkit's (as/toolkit/Storage.h), so that neither is its own witness.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdlib>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "as/AgentServices.h"
#include "schema/CobolLayout.h"
#include "schema/CobolSource.h"
#include "support/Requests.h"

namespace {

using as::IDataItem;
using as::IGroup;
using as::IList;
using as::INumeric;
using cobol::captured;
using cobol::childrenOf;
using cobol::Digits;
using cobol::digitsOfEdited;
using cobol::digitsOfNumeric;
using cobol::Extent;
using cobol::forEachItem;
using cobol::hasWord;
using cobol::isExternalFloat;
using cobol::Kind;
using cobol::kindOf;
using cobol::membersOf;
using cobol::RecordLayout;
using cobol::Source;

const char* const kExamples[] = {"DEPINT01", "MOTPREM", "WHSLOTS", "PAYSLIP"};

class Dictionary {
 public:
  explicit Dictionary(const std::string& name)
      : program_(test::outcomeOfFile(std::string(AS_EXAMPLES_DIR) + "/" + name + ".xml").root) {
    if (program_ == nullptr) return;
    IList* const files = program_->getFileSection();
    for (int i = 0; i < files->getLength(); i++) {
      auto* const fd = as::interface_cast<as::IFD>(files->getItem(i));
      for (IDataItem* const record : membersOf(fd->getDataItems())) records_.push_back(record);
    }
    for (IDataItem* const record : membersOf(program_->getDataItems())) records_.push_back(record);
  }

  as::IProgram* program() const { return program_.get(); }

  // The records of all files, then the top-level items of the program.
  const std::vector<IDataItem*>& records() const { return records_; }

  std::vector<IDataItem*> allItems() const {
    std::vector<IDataItem*> result;
    for (IDataItem* const record : records_)
      forEachItem(record, [&](IDataItem* item) { result.push_back(item); });
    return result;
  }

 private:
  std::unique_ptr<as::IProgram> program_;
  std::vector<IDataItem*> records_;
};

std::string describe(IDataItem* item) {
  return item->getName() + " of line " + std::to_string(item->getLine());
}

class CobolRules : public testing::TestWithParam<const char*> {
 protected:
  CobolRules()
      : dictionary_(GetParam()),
        source_(std::string(AS_EXAMPLES_DIR) + "/" + GetParam() + ".cbl") {}

  void SetUp() override {
    ASSERT_NE(dictionary_.program(), nullptr);
    ASSERT_FALSE(source_.isEmpty());
    ASSERT_FALSE(dictionary_.records().empty());
    for (IDataItem* const item : dictionary_.allItems()) ASSERT_NE(item, nullptr);
  }

  // Offset and length of every item, RENAMES entries included.
  std::map<IDataItem*, Extent> expectedExtents() const {
    std::map<IDataItem*, Extent> result;
    for (IDataItem* const record : dictionary_.records()) {
      const RecordLayout layout(record);
      result.insert(layout.extents().begin(), layout.extents().end());
      for (IDataItem* const item : childrenOf(record)) {
        if (item->isRenamed()) result[item] = renamedExtent(item, layout);
      }
    }
    return result;
  }

  Extent renamedExtent(IDataItem* item, const RecordLayout& layout) const {
    const std::string entry = source_.entry(item->getLine());
    const std::string first = captured(entry, " RENAMES ([^ ]+)");
    std::string last = captured(entry, " THRU ([^ ]+)");
    if (last.empty()) last = first;
    Extent result{-1, -1};
    int end = -1;
    for (const auto& [other, extent] : layout.extents()) {
      if (other->getName() == first) result.offset = extent.offset;
      if (other->getName() == last)
        end = extent.offset + extent.length * std::max(other->getMaxOccurs(), 1);
    }
    EXPECT_TRUE(result.offset >= 0 && end >= 0) << describe(item) << " renames nothing";
    result.length = end - result.offset;
    return result;
  }

  Dictionary dictionary_;
  Source source_;
};

TEST_P(CobolRules, LengthsFollowFromPicturesAndUsages) {
  for (const auto& [item, extent] : expectedExtents())
    EXPECT_EQ(item->getLength(), extent.length) << describe(item);
}

TEST_P(CobolRules, OffsetsFollowFromTheItemsBefore) {
  const std::map<IDataItem*, Extent> extents = expectedExtents();
  EXPECT_EQ(extents.size(), dictionary_.allItems().size());
  for (const auto& [item, extent] : extents)
    EXPECT_EQ(item->getOffset(), extent.offset) << describe(item);
}

TEST_P(CobolRules, DigitsAndScaleFollowFromThePicture) {
  for (IDataItem* const item : dictionary_.allItems()) {
    SCOPED_TRACE(describe(item));
    if (auto* const numeric = as::interface_cast<INumeric>(item)) {
      const Digits digits = digitsOfNumeric(item->getPicture());
      EXPECT_EQ(numeric->getDigits(), digits.all);
      EXPECT_EQ(numeric->getAlignment(), digits.behindPoint);
      EXPECT_EQ(numeric->getUsage() == INumeric::USAGE_EXTERNAL_FLOAT,
                isExternalFloat(item->getPicture()));
    } else if (auto* const edited = as::interface_cast<as::INumericEdited>(item)) {
      const Digits digits = digitsOfEdited(item->getPicture());
      EXPECT_EQ(edited->getDigits(), digits.all);
      EXPECT_EQ(item->getAttributeValue("alignment"), std::to_string(digits.behindPoint));
    }
  }
}

TEST_P(CobolRules, RedefinitionsStartWhereTheyBelong) {
  for (IDataItem* const item : dictionary_.allItems()) {
    IDataItem* redefined = nullptr;
    for (IDataItem* const child : childrenOf(item)) {
      SCOPED_TRACE(describe(child));
      if (child->isRenamed()) continue;
      if (!child->isRedefined()) {
        redefined = child;
        continue;
      }
      ASSERT_NE(redefined, nullptr) << "nothing to redefine";
      EXPECT_EQ(child->getOffset(), redefined->getOffset());
      EXPECT_EQ(captured(source_.entry(child->getLine()), " REDEFINES ([^ ]+)"),
                redefined->getName());
      EXPECT_LE(child->getLength() * std::max(child->getMaxOccurs(), 1),
                redefined->getLength() * std::max(redefined->getMaxOccurs(), 1));
    }
  }
}

TEST_P(CobolRules, RenamesEntriesStandLastInTheirRecord) {
  for (IDataItem* const record : dictionary_.records()) {
    bool isSeen = false;
    forEachItem(record, [&](IDataItem* item) {
      SCOPED_TRACE(describe(item));
      EXPECT_EQ(item->isRenamed(), source_.level(item->getLine()) == 66);
      if (item->isRenamed()) {
        EXPECT_EQ(as::interface_cast<IDataItem>(item->getParent()), record);
      }
      EXPECT_TRUE(item->isRenamed() || !isSeen);
      isSeen = isSeen || item->isRenamed();
    });
  }
}

TEST_P(CobolRules, EveryEntryOfTheSourceIsThereOnItsLine) {
  std::set<int> lines;
  for (IDataItem* const item : dictionary_.allItems()) {
    SCOPED_TRACE(describe(item));
    EXPECT_TRUE(lines.insert(item->getLine()).second) << "two items of one line";
    const std::string entry = source_.entry(item->getLine());
    const std::string name = captured(entry, "^[0-9][0-9] (PIC |REDEFINES |[A-Z0-9-]+)");
    const bool isUnnamed = name == "PIC " || name == "REDEFINES " || name == "FILLER";
    EXPECT_EQ(item->getName(), isUnnamed ? "FILLER" : name);
  }
  EXPECT_EQ(lines, source_.dataEntries());
}

TEST_P(CobolRules, LevelsOfTheSourceGiveTheNesting) {
  for (IDataItem* const record : dictionary_.records()) {
    const int level = source_.level(record->getLine());
    EXPECT_TRUE(level == 1 || level == 77) << describe(record);
    EXPECT_EQ(record->getParent(), nullptr) << describe(record);
    forEachItem(record, [&](IDataItem* item) {
      int common = 0;  // the level of all children that are no RENAMES entries
      for (IDataItem* const child : childrenOf(item)) {
        SCOPED_TRACE(describe(child));
        EXPECT_EQ(as::interface_cast<IDataItem>(child->getParent()), item);
        if (child->isRenamed()) continue;
        const int childLevel = source_.level(child->getLine());
        EXPECT_GT(childLevel, source_.level(item->getLine()));
        EXPECT_TRUE(common == 0 || childLevel == common);
        common = childLevel;
      }
    });
  }
}

TEST_P(CobolRules, ClausesAreThoseOfTheSource) {
  const int linkage = source_.lineOf("LINKAGE SECTION.");
  for (IDataItem* const item : dictionary_.allItems()) {
    SCOPED_TRACE(describe(item));
    const std::string entry = source_.entry(item->getLine());
    EXPECT_EQ(item->isLinkage(), item->getLine() > linkage);
    if (item->isRenamed()) continue;  // takes its description from what it renames

    EXPECT_EQ(item->getPicture(), captured(entry, " PIC ([^ ]+)"));
    EXPECT_EQ(item->isSync(), hasWord(entry, "SYNC"));
    EXPECT_EQ(item->isRedefined(), hasWord(entry, "REDEFINES"));
    EXPECT_EQ(item->hasODO(), hasWord(entry, "DEPENDING"));

    const std::string least = captured(entry, " OCCURS ([0-9]+)");
    const std::string greatest = captured(entry, " OCCURS [0-9]+ TO ([0-9]+)");
    EXPECT_EQ(item->getMinOccurs(), std::atoi(least.c_str()));
    EXPECT_EQ(item->getMaxOccurs(), std::atoi((greatest.empty() ? least : greatest).c_str()));

    if (auto* const numeric = as::interface_cast<INumeric>(item)) {
      const std::map<std::string, int> usages = {
          {"COMP", INumeric::USAGE_COMP},     {"BINARY", INumeric::USAGE_COMP},
          {"COMP-1", INumeric::USAGE_COMP_1}, {"COMP-2", INumeric::USAGE_COMP_2},
          {"COMP-3", INumeric::USAGE_COMP_3}, {"PACKED-DECIMAL", INumeric::USAGE_COMP_3},
          {"COMP-4", INumeric::USAGE_COMP_4}, {"COMP-5", INumeric::USAGE_COMP_5},
          {"COMP-6", INumeric::USAGE_COMP_6}, {"COMP-X", INumeric::USAGE_COMP_X}};
      int usage = isExternalFloat(item->getPicture()) ? INumeric::USAGE_EXTERNAL_FLOAT
                                                      : INumeric::USAGE_DISPLAY;
      for (const auto& [word, code] : usages)
        if (hasWord(entry, word)) usage = code;
      EXPECT_EQ(numeric->getUsage(), usage);

      const std::string side = captured(entry, " SIGN (?:IS )?(LEADING|TRAILING)");
      const bool isSeparate = hasWord(entry, "SEPARATE");
      const bool isFloat = usage == INumeric::USAGE_COMP_1 || usage == INumeric::USAGE_COMP_2 ||
                           usage == INumeric::USAGE_EXTERNAL_FLOAT;
      const bool isSigned = isFloat || item->getPicture().find('S') != std::string::npos;
      int sign = isSigned ? INumeric::SIGN_SIGNED : INumeric::SIGN_NONE;
      if (side == "LEADING")
        sign = isSeparate ? INumeric::SIGN_LEADING_SEPARATE : INumeric::SIGN_LEADING;
      if (side == "TRAILING")
        sign = isSeparate ? INumeric::SIGN_TRAILING_SEPARATE : INumeric::SIGN_TRAILING;
      EXPECT_EQ(numeric->getSign(), sign);
    }
    if (auto* const edited = as::interface_cast<as::INumericEdited>(item)) {
      EXPECT_EQ(edited->isBlankWhenZero(), hasWord(entry, "BLANK WHEN ZERO"));
    }
    if (auto* const text = as::interface_cast<as::IAlphanumeric>(item)) {
      EXPECT_EQ(text->getJustification(), hasWord(entry, "JUSTIFIED RIGHT") ? 1 : 0);
    }
    if (auto* const national = as::interface_cast<as::INational>(item)) {
      EXPECT_EQ(national->getUsage(), hasWord(entry, "NATIONAL") ? 1 : 0);
    }
    EXPECT_EQ(kindOf(item) == Kind::kPointer, hasWord(entry, "(PROCEDURE-)?POINTER"));
    EXPECT_EQ(kindOf(item) == Kind::kObject, hasWord(entry, "OBJECT REFERENCE"));
    EXPECT_EQ(kindOf(item) == Kind::kIndex, hasWord(entry, "USAGE INDEX"));
    EXPECT_EQ(kindOf(item) == Kind::kGroup,
              item->getPicture().empty() && !hasWord(entry, "(USAGE|COMP-1|COMP-2)"));
  }
}

TEST_P(CobolRules, EveryDependingOnFindsItsCount) {
  int found = 0;
  for (IDataItem* const item : dictionary_.allItems()) {
    if (!item->hasODO()) continue;
    SCOPED_TRACE(describe(item));
    found++;
    IDataItem* const count = item->getODO();
    ASSERT_NE(count, nullptr);
    auto* const numeric = as::interface_cast<INumeric>(count);
    ASSERT_NE(numeric, nullptr);
    EXPECT_EQ(numeric->getAlignment(), 0);
    EXPECT_EQ(count->getMaxOccurs(), 0);
    EXPECT_LT(item->getMaxOccurs(), std::pow(10.0, numeric->getDigits()));
    EXPECT_EQ(count->getName(), captured(source_.entry(item->getLine()), " DEPENDING ON ([^ ]+)"));

    // The attribute names every group on the way.
    std::string path = count->getName();
    for (IGroup* group = count->getParent(); group != nullptr; group = group->getParent())
      path = group->getName() + "." + path;
    EXPECT_EQ(item->getAttributeValue("odo"), path);
  }
  EXPECT_GT(found, 0);
}

// Numeric conditions are all that an item tells of its condition names.
TEST_P(CobolRules, NumericConditionsStandUnderTheirItems) {
  const std::vector<std::string> names = source_.conditions();
  const std::set<std::string> known(names.begin(), names.end());
  int found = 0;
  for (IDataItem* const item : dictionary_.allItems()) {
    IList* const conditions = item->getConditions();
    for (int i = 0; i < conditions->getLength(); i++) {
      auto* const condition = as::interface_cast<as::ICondition>(conditions->getItem(i));
      ASSERT_NE(condition, nullptr) << describe(item);
      SCOPED_TRACE(condition->getName());
      found++;
      EXPECT_EQ(kindOf(item), Kind::kNumeric);
      EXPECT_EQ(known.count(condition->getName()), 1u);
      EXPECT_GT(condition->getLength(), 0);
      for (int j = 0; j < condition->getLength(); j++) {
        auto* const value = as::interface_cast<as::IConditionValue>(condition->getItem(j));
        ASSERT_NE(value, nullptr);
        const bool isRange = value->getType() == 1;
        EXPECT_EQ(value->getConstant().empty(), isRange);
        EXPECT_EQ(value->getFrom().empty(), !isRange);
        EXPECT_EQ(value->getTo().empty(), !isRange);
        if (isRange) {
          EXPECT_LT(std::stod(value->getFrom()), std::stod(value->getTo()));
        }
      }
    }
  }
  EXPECT_GT(found, 0);
}

TEST_P(CobolRules, ParametersAreItemsOfTheLinkageSection) {
  IList* const entryPoints = dictionary_.program()->getEntryPoints();
  EXPECT_GT(entryPoints->getLength(), 0);
  for (int i = 0; i < entryPoints->getLength(); i++) {
    auto* const entryPoint = as::interface_cast<as::IEntryPoint>(entryPoints->getItem(i));
    ASSERT_NE(entryPoint, nullptr);
    for (int j = 0; j < entryPoint->getLength(); j++) {
      auto* const parameter = as::interface_cast<as::ILinkageItem>(entryPoint->getItem(j));
      ASSERT_NE(parameter, nullptr) << entryPoint->getName();
      IDataItem* const item = parameter->getDataItem();
      ASSERT_NE(item, nullptr) << entryPoint->getName() << " parameter " << j;
      EXPECT_TRUE(item->isLinkage()) << describe(item);
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Examples, CobolRules, testing::ValuesIn(kExamples),
                         [](const auto& example) { return std::string(example.param); });

TEST(CobolExamples, TogetherShowEveryKindUsageAndSign) {
  std::size_t count = 0;
  std::set<Kind> kinds;
  std::set<int> usages;
  std::set<int> signs;
  std::set<int> nationalUsages;
  std::set<int> justifications;
  std::set<int> byTypes;
  for (const char* const name : kExamples) {
    const Dictionary dictionary(name);
    ASSERT_NE(dictionary.program(), nullptr) << name;
    for (IDataItem* const item : dictionary.allItems()) {
      count++;
      kinds.insert(kindOf(item));
      if (auto* const numeric = as::interface_cast<INumeric>(item)) {
        usages.insert(numeric->getUsage());
        signs.insert(numeric->getSign());
      } else if (auto* const national = as::interface_cast<as::INational>(item)) {
        nationalUsages.insert(national->getUsage());
      } else if (auto* const text = as::interface_cast<as::IAlphanumeric>(item)) {
        justifications.insert(text->getJustification());
      }
    }
    IList* const entryPoints = dictionary.program()->getEntryPoints();
    for (int i = 0; i < entryPoints->getLength(); i++) {
      auto* const entryPoint = as::interface_cast<as::IEntryPoint>(entryPoints->getItem(i));
      for (int j = 0; j < entryPoint->getLength(); j++)
        byTypes.insert(as::interface_cast<as::ILinkageItem>(entryPoint->getItem(j))->getByType());
    }
  }
  EXPECT_GE(count, 400u);
  EXPECT_EQ(kinds.size(), 8u);
  EXPECT_EQ(usages, (std::set<int>{0, 1, 2, 3, 4, 5, 6, 7, 8, 9}));
  EXPECT_EQ(signs, (std::set<int>{0, 1, 2, 3, 4, 5}));
  EXPECT_EQ(nationalUsages, (std::set<int>{0, 1}));
  EXPECT_EQ(justifications, (std::set<int>{0, 1}));
  EXPECT_EQ(byTypes, (std::set<int>{0, 1, 2}));
}

}  // namespace
