// The sample dictionaries against COBOL's own rules: every length and offset is worked out anew
// from picture, usage, sign, occurrences, redefinitions and synchronisation, and every entry is
// held against the line of the program it claims to stand for. The rules are those that
// examples/README.md tells under "How sizes and offsets are counted". They stand here a second
// time, apart from the toolkit's (as/toolkit/Storage.h), so that neither is its own witness.
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstddef>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <map>
#include <memory>
#include <regex>
#include <set>
#include <string>
#include <vector>

#include "as/CAgentServicesFactory.h"
#include "as/IAgentServices.h"
#include "as/IAlphanumeric.h"
#include "as/ICondition.h"
#include "as/IConditionValue.h"
#include "as/IDataItem.h"
#include "as/IEntryPoint.h"
#include "as/IFD.h"
#include "as/IGroup.h"
#include "as/ILinkageItem.h"
#include "as/IList.h"
#include "as/INational.h"
#include "as/INumeric.h"
#include "as/INumericEdited.h"
#include "as/IProgram.h"

namespace {

using as::IDataItem;
using as::IGroup;
using as::IList;
using as::INumeric;

const char* const kExamples[] = {"DEPINT01", "MOTPREM", "WHSLOTS", "PAYSLIP"};

// The platform of the examples, as their README tells it: 64 bits.
constexpr int kPointerSize = 8;
constexpr int kObjectSize = 8;
constexpr int kIndexSize = 4;
constexpr int kGreatestBoundary = 8;

// The kinds of items, cobolObject told from alphanumeric.
enum class Kind {
  kGroup,
  kNumeric,
  kAlphanumeric,
  kObject,
  kPointer,
  kNational,
  kNumericEdited,
  kIndex,
};

Kind kindOf(IDataItem* item) {
  switch (item->getDataType()) {
    case IDataItem::TYPE_GROUP:
      return Kind::kGroup;
    case IDataItem::TYPE_NUMERIC:
      return Kind::kNumeric;
    case IDataItem::TYPE_POINTER:
      return Kind::kPointer;
    case IDataItem::TYPE_NATIONAL:
      return Kind::kNational;
    case IDataItem::TYPE_NUMERIC_EDITED:
      return Kind::kNumericEdited;
    case IDataItem::TYPE_INDEX:
      return Kind::kIndex;
    default:
      // An object reference answers the alphanumeric type but has no alphanumeric interface.
      return as::interface_cast<as::IAlphanumeric>(item) == nullptr ? Kind::kObject
                                                                    : Kind::kAlphanumeric;
  }
}

// "S9(3)V99" as "S999V99".
std::string spelledOut(const std::string& picture) {
  std::string result;
  for (std::size_t i = 0; i < picture.size(); i++) {
    if (picture[i] != '(') {
      result += picture[i];
      continue;
    }
    const std::size_t close = picture.find(')', i);
    if (close == std::string::npos || result.empty()) return std::string();
    const int times = std::atoi(picture.substr(i + 1, close - i - 1).c_str());
    result.append(static_cast<std::size_t>(std::max(times - 1, 0)), result.back());
    i = close;
  }
  return result;
}

int countOf(const std::string& text, const std::string& characters) {
  return static_cast<int>(std::count_if(
      text.begin(), text.end(), [&](char c) { return characters.find(c) != std::string::npos; }));
}

struct Digits {
  int all;
  int behindPoint;
};

bool isExternalFloat(const std::string& picture) { return picture.find('E') != std::string::npos; }

// What a numeric picture says; P counts as a digit.
Digits digitsOfNumeric(const std::string& picture) {
  const std::string text = spelledOut(picture);
  if (isExternalFloat(text)) {
    const std::string mantissa = text.substr(0, text.find('E'));
    const std::size_t point = mantissa.find_first_of(".V");
    return {countOf(mantissa, "9"),
            point == std::string::npos ? 0 : countOf(mantissa.substr(point), "9")};
  }
  if (countOf(text, "X") > 0) {  // COMP-X by bytes: the digits of the largest value
    const int bytes = countOf(text, "X");
    return {static_cast<int>(std::floor(bytes * 8 * std::log10(2.0))) + 1, 0};
  }
  const int all = countOf(text, "9P");
  const std::size_t point = text.find('V');
  if (point != std::string::npos) return {all, countOf(text.substr(point), "9P")};
  // Without a V the P tells where the point is assumed: before leading ones, behind trailing ones.
  const std::size_t first = text.find_first_of("9P");
  const bool isFraction = first != std::string::npos && text[first] == 'P';
  return {all, isFraction ? all : 0};
}

// What a numeric edited picture has room for: a floating string gives one digit less than it has
// characters.
Digits digitsOfEdited(const std::string& picture) {
  std::string text = spelledOut(picture);
  for (const char* const suffix : {"CR", "DB"}) {
    const std::size_t at = text.find(suffix);
    if (at != std::string::npos) text.erase(at);
  }
  std::string places = "9Z*";
  int all = 0;
  for (const char floating : {'+', '-', '$'}) {
    if (std::count(text.begin(), text.end(), floating) < 2) continue;
    places += floating;
    all = -1;
  }
  all += countOf(text, places);
  const std::size_t point = text.find('.');
  return {all, point == std::string::npos ? 0 : countOf(text.substr(point), places)};
}

int binarySize(int digits) {
  if (digits <= 4) return 2;
  return digits <= 9 ? 4 : 8;
}

int numericSize(INumeric* item) {
  const std::string text = spelledOut(item->getPicture());
  const int stored = countOf(text, "9");
  const bool isSeparate = item->getSign() == INumeric::SIGN_LEADING_SEPARATE ||
                          item->getSign() == INumeric::SIGN_TRAILING_SEPARATE;
  switch (item->getUsage()) {
    case INumeric::USAGE_COMP:
    case INumeric::USAGE_COMP_4:
    case INumeric::USAGE_COMP_5:
      return binarySize(stored);
    case INumeric::USAGE_COMP_X: {
      const int bytes = countOf(text, "X");
      return bytes > 0 ? bytes : static_cast<int>(std::ceil(stored * std::log2(10.0) / 8));
    }
    case INumeric::USAGE_COMP_1:
      return 4;
    case INumeric::USAGE_COMP_2:
      return 8;
    case INumeric::USAGE_COMP_3:
      return stored / 2 + 1;
    case INumeric::USAGE_COMP_6:
      return (stored + 1) / 2;
    case INumeric::USAGE_EXTERNAL_FLOAT:
      return static_cast<int>(text.size());
    default:
      return stored + (isSeparate ? 1 : 0);
  }
}

int elementarySize(IDataItem* item) {
  const int characters = static_cast<int>(spelledOut(item->getPicture()).size());
  switch (kindOf(item)) {
    case Kind::kNumeric:
      return numericSize(as::interface_cast<INumeric>(item));
    case Kind::kNational:
      return 2 * characters;
    case Kind::kPointer:
      return kPointerSize;
    case Kind::kObject:
      return kObjectSize;
    case Kind::kIndex:
      return kIndexSize;
    default:
      return characters;
  }
}

bool hasBoundary(IDataItem* item) {
  const Kind kind = kindOf(item);
  if (kind == Kind::kPointer || kind == Kind::kObject || kind == Kind::kIndex) return true;
  auto* const numeric = as::interface_cast<INumeric>(item);
  if (numeric == nullptr) return false;
  switch (numeric->getUsage()) {
    case INumeric::USAGE_COMP:
    case INumeric::USAGE_COMP_1:
    case INumeric::USAGE_COMP_2:
    case INumeric::USAGE_COMP_4:
    case INumeric::USAGE_COMP_5:
      return true;
    default:
      return false;
  }
}

int roundedUp(int value, int boundary) { return (value + boundary - 1) / boundary * boundary; }

std::vector<IDataItem*> membersOf(IList* list) {
  std::vector<IDataItem*> result;
  for (int i = 0; list != nullptr && i < list->getLength(); i++)
    result.push_back(as::interface_cast<IDataItem>(list->getItem(i)));
  return result;
}

std::vector<IDataItem*> childrenOf(IDataItem* item) {
  auto* const group = as::interface_cast<IGroup>(item);
  return group == nullptr ? std::vector<IDataItem*>() : membersOf(group->getChildren());
}

void forEachItem(IDataItem* item, const std::function<void(IDataItem*)>& visit) {
  visit(item);
  for (IDataItem* const child : childrenOf(item)) forEachItem(child, visit);
}

struct Extent {
  int offset;
  int length;
};

// Where COBOL puts the items of one record.
class RecordLayout {
 public:
  explicit RecordLayout(IDataItem* record) { place(record, 0); }

  // RENAMES entries have no place of their own and are not in here.
  const std::map<IDataItem*, Extent>& extents() const { return extents_; }

 private:
  struct Placed {
    int end;       // behind the last occurrence
    int boundary;  // the greatest that a SYNCHRONIZED item inside asks for
  };

  Placed place(IDataItem* item, int at) {
    return kindOf(item) == Kind::kGroup ? placeGroup(item, at) : placeElementary(item, at);
  }

  Placed placeElementary(IDataItem* item, int at) {
    const int size = elementarySize(item);
    int boundary = 1;
    if (item->isSync() && hasBoundary(item)) boundary = std::min(size, kGreatestBoundary);
    return {occupy(item, roundedUp(at, boundary), size), boundary};
  }

  Placed placeGroup(IDataItem* item, int at) {
    int end = at;
    int redefined = at;  // where the latest entry that is no redefinition starts
    int boundary = 1;
    for (IDataItem* const child : childrenOf(item)) {
      if (child->isRenamed()) continue;
      const Placed placed = place(child, child->isRedefined() ? redefined : end);
      if (!child->isRedefined()) redefined = extents_.at(child).offset;
      boundary = std::max(boundary, placed.boundary);
      end = std::max(end, placed.end);
    }
    int size = end - at;
    // Slack behind each occurrence keeps the next one on its boundary.
    if (item->getMaxOccurs() > 0) size = roundedUp(size, boundary);
    return {occupy(item, at, size), boundary};
  }

  int occupy(IDataItem* item, int offset, int length) {
    extents_[item] = {offset, length};
    return offset + length * std::max(item->getMaxOccurs(), 1);
  }

  std::map<IDataItem*, Extent> extents_;
};

// A program in fixed format, by line.
class Source {
 public:
  explicit Source(const std::string& file) {
    std::ifstream stream(file);
    std::string line;
    while (std::getline(stream, line)) lines_.push_back(line);
  }

  bool isEmpty() const { return lines_.empty(); }

  // Line `number`, counted from 1, without its first 7 columns; empty for a comment or no line.
  std::string code(int number) const {
    if (number < 1 || number > static_cast<int>(lines_.size())) return std::string();
    const std::string& line = lines_[static_cast<std::size_t>(number) - 1];
    return line.size() < 8 || line[6] != ' ' ? std::string() : line.substr(7);
  }

  // The words of the entry that starts on line `number`, single blanks between them, without the
  // final period.
  std::string entry(int number) const {
    std::string text;
    for (int i = number; i <= static_cast<int>(lines_.size()); i++) {
      for (const char c : code(i) + ' ') {
        if (!std::isspace(static_cast<unsigned char>(c)))
          text += c;
        else if (!text.empty() && text.back() != ' ')
          text += ' ';
      }
      if (text.size() >= 2 && text[text.size() - 2] == '.') return text.substr(0, text.size() - 2);
    }
    return text;
  }

  // The level number of the entry on line `number`, -1 when none starts there.
  int level(int number) const {
    std::smatch match;
    const std::string text = code(number);
    return std::regex_search(text, match, std::regex("^ *([0-9][0-9]) ")) ? std::stoi(match[1])
                                                                          : -1;
  }

  // The lines of the data division on which data description entries start, conditions excepted.
  std::set<int> dataEntries() const {
    std::set<int> result;
    for (int i = lineOf("DATA DIVISION."); i < lineOf("PROCEDURE DIVISION"); i++)
      if (level(i) != -1 && level(i) != 88) result.insert(i);
    return result;
  }

  // The names of the level 88 entries, in order.
  std::vector<std::string> conditions() const {
    std::vector<std::string> result;
    for (int i = lineOf("DATA DIVISION."); i < lineOf("PROCEDURE DIVISION"); i++) {
      if (level(i) != 88) continue;
      const std::string text = entry(i);
      result.push_back(text.substr(3, text.find(' ', 3) - 3));
    }
    return result;
  }

  // The first line whose code begins with `words`; behind the last line when there is none.
  int lineOf(const std::string& words) const {
    int number = 1;
    while (number <= static_cast<int>(lines_.size()) && code(number).find(words) != 0) number++;
    return number;
  }

 private:
  std::vector<std::string> lines_;
};

// What `expression` captures in the entry `text`; empty when it does not match.
std::string captured(const std::string& text, const std::string& expression) {
  std::smatch match;
  return std::regex_search(text, match, std::regex(expression)) ? match[1].str() : std::string();
}

bool hasWord(const std::string& text, const std::string& word) {
  return std::regex_search(text, std::regex("(^| )" + word + "( |$)"));
}

class Dictionary {
 public:
  explicit Dictionary(const std::string& name)
      : services_(as::CAgentServicesFactory::CreateAgentServices()) {
    services_->setSchemaLocation(AS_SCHEMA_DIR);
    program_.reset(
        services_->parseCobolDD((std::string(AS_EXAMPLES_DIR) + "/" + name + ".xml").c_str()));
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
  std::unique_ptr<as::IAgentServices> services_;
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
