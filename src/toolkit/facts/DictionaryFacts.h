// What a dictionary tells, as plain values that are looked at many times: reading the model is
// conversions of text.
#ifndef TOOLKIT_FACTS_DICTIONARYFACTS_H_
#define TOOLKIT_FACTS_DICTIONARYFACTS_H_

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "as/IDataItem.h"
#include "as/IProgram.h"
#include "as/toolkit/DocumentReader.h"

namespace as::toolkit {

// The number of an item, in document order; none for no item.
using ItemNumber = std::size_t;
inline constexpr ItemNumber noItem = static_cast<ItemNumber>(-1);

// A number that the document does not tell.
inline constexpr int unknownNumber = -1;

struct ConditionFacts {
  std::string name;
  std::vector<std::string> values;  // "1", "1 THRU 12"
};

struct ItemFacts {
  std::string name;
  int category = as::IDataItem::TYPE_GROUP;
  std::string picture;
  std::string usage;  // Words of the toolkit; empty where the category has none.
  std::string sign;
  int digits = 0;
  int scale = 0;
  bool isJustified = false;
  bool isBlankWhenZero = false;
  bool isSync = false;
  bool redefines = false;
  bool renames = false;
  bool isLinkage = false;
  int offset = unknownNumber;
  int length = unknownNumber;
  int minOccurs = 0;
  int maxOccurs = 0;
  int line = 0;
  std::string odo;                // As the document names it.
  ItemNumber odoItem = noItem;    // What that leads to.
  ItemNumber redefined = noItem;  // The sibling that a redefinition is about.
  ItemNumber parent = noItem;
  std::vector<ItemNumber> children;
  std::vector<ConditionFacts> conditions;

  bool isGroup() const { return category == as::IDataItem::TYPE_GROUP; }
  bool isUnnamed() const { return name == "FILLER"; }
  bool isTable() const { return maxOccurs > 0; }
  // What it adds to what it stands in, in bytes.
  long long extent() const;
};

// A list of records: those of a file, of working storage, of the linkage section.
struct SectionFacts {
  enum class Kind { file, workingStorage, linkage };
  Kind kind = Kind::workingStorage;
  std::string file;  // The name of the file.
  std::string organization;
  std::string access;
  std::vector<ItemNumber> records;

  std::string title() const;
};

struct EntryParameterFacts {
  std::string item;
  std::string passing;  // "reference", "value", "returning"
  ItemNumber number = noItem;
};

struct EntryPointFacts {
  std::string name;
  int convention = 0;
  std::vector<EntryParameterFacts> parameters;
};

class DictionaryFacts {
 public:
  // Conditions are those that the model tells, ...
  explicit DictionaryFacts(as::IProgram& program);
  // ... or all those of the document that the program was read from.
  DictionaryFacts(as::IProgram& program, const DocumentSource& source);

  const std::string& name() const { return name_; }
  const std::vector<std::pair<std::string, std::string>>& properties() const { return properties_; }
  const std::vector<ItemFacts>& items() const { return items_; }
  const ItemFacts& operator[](ItemNumber number) const { return items_[number]; }
  // Files first, then working storage and linkage section; these two are always there.
  const std::vector<SectionFacts>& sections() const { return sections_; }
  const std::vector<EntryPointFacts>& entryPoints() const { return entryPoints_; }

  // The names from the record down with periods between. In the middle of a way that is longer than
  // any program's names are left out: paths grow with the square of depth. As shownPlace() has it.
  std::string pathOf(ItemNumber number) const;
  ItemNumber recordOf(ItemNumber number) const;

 private:
  void addItems(as::IList* list, SectionFacts* file);
  void addEntryPoints(as::IProgram& program);
  void findRedefined(const std::vector<ItemNumber>& siblings);

  std::string name_;
  std::vector<std::pair<std::string, std::string>> properties_;
  std::vector<ItemFacts> items_;
  std::vector<SectionFacts> sections_;
  std::vector<EntryPointFacts> entryPoints_;
};

}  // namespace as::toolkit

#endif  // TOOLKIT_FACTS_DICTIONARYFACTS_H_
