#include <cstddef>
#include <ostream>
#include <string>
#include <vector>

#include "as/IAlphanumeric.h"
#include "as/ICondition.h"
#include "as/IConditionValue.h"
#include "as/IDataItem.h"
#include "as/IEntryPoint.h"
#include "as/IFD.h"
#include "as/ILinkageItem.h"
#include "as/IList.h"
#include "as/INational.h"
#include "as/INumeric.h"
#include "as/INumericEdited.h"
#include "as/IProgram.h"
#include "as/toolkit/Render.h"
#include "as/toolkit/Text.h"
#include "toolkit/render/PrinterParts.h"
#include "toolkit/text/Phrases.h"
#include "toolkit/text/ShownPlace.h"
#include "toolkit/text/TextTable.h"
#include "toolkit/text/Words.h"
#include "toolkit/walk/ItemWalk.h"

namespace as::toolkit {

namespace {

using Row = TextTable::Row;

// The columns of data items; conditions fill the first four.
TextTable itemTable() {
  return TextTable({{"line", true},
                    {"name", false},
                    {"offset", true},
                    {"length", true},
                    {"picture", false, 30},
                    {"type", false},
                    {"usage", false},
                    {"digits", true},
                    {"scale", true},
                    {"clauses", false}});
}

// Empty for 0: in a dictionary that says that there is nothing to tell.
std::string unlessZero(int number) { return number == 0 ? "" : std::to_string(number); }

// Empty when the item lacks the attribute that the number is read from: there 0 has a meaning of
// its own.
std::string unlessAbsent(as::IDataItem& item, const char* attribute, int number) {
  return item.getAttributeValue(attribute).empty() ? "" : std::to_string(number);
}

std::string quoted(const std::string& text) {
  std::string result = "\"";
  for (const char c : text) result.append(c == '"' ? 2 : 1, c);
  result += '"';
  return result;
}

// A condition's value as COBOL would write it: whatever is no number is quoted, except for the
// words of figurative constants.
std::string literal(const std::string& text) {
  for (const char* word : {"ZERO", "ZEROS", "ZEROES", "SPACE", "SPACES", "HIGH-VALUE",
                           "HIGH-VALUES", "LOW-VALUE", "LOW-VALUES", "QUOTE", "QUOTES", "NULL"}) {
    if (text == word) return text;
  }
  return isNumeral(text) ? text : quoted(printable(text));
}

std::string valueText(as::IConditionValue& value) {
  if (value.getType() == as::IConditionValue::TYPE_CONSTANT) return literal(value.getConstant());
  return literal(value.getFrom()) + " thru " + literal(value.getTo());
}

std::string occursClause(as::IDataItem& item) {
  const int least = item.getMinOccurs();
  const int most = item.getMaxOccurs();
  if (least == 0 && most == 0 && !item.hasODO()) return "";
  std::string clause = "occurs ";
  // A fixed table may leave the least number out.
  const bool fixed = least == most || (least == 0 && !item.hasODO());
  if (!fixed) clause += std::to_string(least) + "..";
  clause += std::to_string(most);
  if (item.hasODO()) {
    as::IDataItem* const object = item.getODO();
    clause += " depending on " +
              printable(object != nullptr ? dottedPath(*object) : item.getAttributeValue("odo"));
    if (object == nullptr) clause += " (not found)";
  }
  return clause;
}

// The rows of the data items of one list, one after the other. Visits the list anew on every call,
// so that a dictionary of any size can be measured before it is printed.
class ItemRows {
 public:
  // Calls take(Row) for each row.
  template <class Take>
  static void forEach(as::IList* items, const Take& take) {
    ItemRows rows;
    walkItems(
        items,
        [&](as::IDataItem& item, std::size_t depth) {
          take(rows.itemRow(item, depth));
          forEachMember<as::ICondition>(item.getConditions(), [&](as::ICondition& condition) {
            take(conditionRow(condition, depth + 1));
          });
        },
        [](as::IDataItem&) {});
  }

 private:
  Row itemRow(as::IDataItem& item, std::size_t depth) {
    const std::string name = printable(item.getName());
    Row row;
    row.cells = {unlessZero(item.getLine()),
                 indented(depth, name),
                 unlessAbsent(item, "offset", item.getOffset()),
                 unlessAbsent(item, "length", item.getLength()),
                 printable(item.getPicture()),
                 dataTypeWord(item.getDataType()),
                 "",
                 "",
                 ""};
    constexpr std::size_t usage = 6;
    constexpr std::size_t digits = 7;
    constexpr std::size_t scale = 8;
    Clauses clauses;

    // What was said of deeper levels is over; this level may be new.
    redefinable_.resize(depth + 1);
    const bool redefines = item.isRedefined();
    if (redefines) {
      const std::string& target = redefinable_.back();
      clauses.add(target.empty() ? "redefines" : "redefines " + target);
    }
    const bool renames = item.isRenamed();
    clauses.addIf(renames, "renames");
    if (!redefines && !renames) redefinable_.back() = shownPlace({name});

    const std::string occurs = occursClause(item);
    if (!occurs.empty()) clauses.add(occurs);
    if (auto* const numeric = as::interface_cast<as::INumeric>(&item)) {
      row.cells[usage] = numericUsageWord(numeric->getUsage());
      row.cells[digits] = unlessZero(numeric->getDigits());
      row.cells[scale] = unlessZero(numeric->getAlignment());
      const int sign = numeric->getSign();
      if (sign == as::INumeric::SIGN_SIGNED) {
        clauses.add("signed");
      } else if (sign != as::INumeric::SIGN_NONE) {
        clauses.add("sign " + signWord(sign));
      }
    } else if (auto* const edited = as::interface_cast<as::INumericEdited>(&item)) {
      row.cells[digits] = unlessZero(edited->getDigits());
      clauses.addIf(edited->isBlankWhenZero(), "blank when zero");
    } else if (auto* const alphanumeric = as::interface_cast<as::IAlphanumeric>(&item)) {
      clauses.addIf(alphanumeric->getJustification() == as::IAlphanumeric::JUSTIFIED_RIGHT,
                    "justified right");
    } else if (auto* const national = as::interface_cast<as::INational>(&item)) {
      row.cells[usage] = nationalUsageWord(national->getUsage());
    }
    clauses.addIf(item.isSync(), "sync");
    // Every level of a linkage record says so; once is enough.
    as::IGroup* const parent = item.getParent();
    clauses.addIf(item.isLinkage() && (parent == nullptr || !parent->isLinkage()), "linkage");
    row.rest = clauses.text();
    return row;
  }

  static Row conditionRow(as::ICondition& condition, std::size_t depth) {
    Row row;
    row.cells = {"", indented(depth, "88 " + printable(condition.getName())), "", ""};
    Clauses values;
    forEachMember<as::IConditionValue>(
        &condition, [&](as::IConditionValue& value) { values.add(valueText(value)); });
    row.rest = "value " + values.text();
    return row;
  }

  // For each level on the way to the current item: the entry that a REDEFINES clause would be
  // about there, which is the last one that neither redefines nor renames. The model tells only
  // that an entry redefines.
  std::vector<std::string> redefinable_;
};

class DictionaryPrinter {
 public:
  DictionaryPrinter(std::ostream& out, as::IProgram& program)
      : out_(out), program_(program), items_(itemTable()) {}

  void print() {
    out_ << "PROGRAM " << printable(program_.getName()) << "\n";
    printProperties(out_, program_.getProperties());
    measureItems();
    printFiles();
    if (program_.getDataItems()->getLength() > 0) {
      out_ << "\nDATA ITEMS\n";
      printItems(program_.getDataItems());
    }
    printEntryPoints();
  }

 private:
  // All sections share one layout, so that their columns stand below each other.
  void measureItems() {
    const auto measure = [this](const Row& row) { items_.measure(row); };
    forEachMember<as::IFD>(program_.getFileSection(),
                           [&](as::IFD& file) { ItemRows::forEach(file.getDataItems(), measure); });
    ItemRows::forEach(program_.getDataItems(), measure);
  }

  void printItems(as::IList* items) {
    if (items == nullptr || items->getLength() == 0) return;
    out_ << "\n";
    items_.printHeader(out_);
    ItemRows::forEach(items, [this](const Row& row) { items_.print(out_, row); });
  }

  void printFiles() {
    as::IList* const files = program_.getFileSection();
    if (files->getLength() == 0) return;
    out_ << "\nFILE SECTION\n";
    forEachMember<as::IFD>(files, [this](as::IFD& file) {
      // The accessors for these two answer the same for every file.
      const std::string organization = file.getAttributeValue("organization");
      const std::string access = file.getAttributeValue("accessMode");
      Clauses clauses;
      if (organization == "lineSequential") {
        clauses.add("organization line sequential");
      } else if (!organization.empty()) {
        clauses.add("organization " + printable(organization));
      }
      if (!access.empty()) clauses.add("access " + printable(access));
      out_ << "\n  fd " << printable(file.getName());
      if (!clauses.text().empty()) out_ << "  " << clauses.text();
      out_ << "\n";
      printItems(file.getDataItems());
    });
  }

  void printEntryPoints() {
    as::IList* const entryPoints = program_.getEntryPoints();
    if (entryPoints->getLength() == 0) return;
    out_ << "\nENTRY POINTS\n";
    forEachMember<as::IEntryPoint>(entryPoints, [this](as::IEntryPoint& entryPoint) {
      out_ << "\n  " << printable(entryPoint.getName()) << "  call convention "
           << entryPoint.getCallConv() << "\n";
      forEachMember<as::ILinkageItem>(&entryPoint, [this](as::ILinkageItem& parameter) {
        const int byType = parameter.getByType();
        out_ << "    "
             << (byType == as::ILinkageItem::BY_REFERENCE ? "by reference  "
                 : byType == as::ILinkageItem::BY_VALUE   ? "by value      "
                                                          : "returning     ")
             << printable(parameter.getAttributeValue("dataItem"));
        if (parameter.getDataItem() == nullptr) out_ << " (not found)";
        out_ << "\n";
      });
    });
  }

  std::ostream& out_;
  as::IProgram& program_;
  TextTable items_;
};

}  // namespace

void renderText(std::ostream& out, as::IProgram& program) {
  DictionaryPrinter(out, program).print();
}

}  // namespace as::toolkit
