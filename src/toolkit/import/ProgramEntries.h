// What the entries of a program say, and where its items stand. Plain data: others fill it in.
#ifndef TOOLKIT_IMPORT_PROGRAMENTRIES_H_
#define TOOLKIT_IMPORT_PROGRAMENTRIES_H_

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "as/toolkit/Picture.h"
#include "as/toolkit/Storage.h"
#include "toolkit/import/CurrencyTable.h"
#include "toolkit/import/Token.h"

namespace as::toolkit {

class EntryFinder;

// Where something stands in a vector; negative when there is none.
using Index = std::int32_t;
inline constexpr Index none = -1;

// The elements that stand for items in a dictionary.
enum class ItemElement : std::uint8_t {
  group,
  numeric,
  alphanumeric,
  numericEdited,
  national,
  pointer,
  object,
  index,
};

enum class SignClause : std::uint8_t {
  absent,
  leading,
  leadingSeparate,
  trailing,
  trailingSeparate,
};

enum class DataSection : std::uint8_t { file, workingStorage, localStorage, linkage };

struct DataEntry {
  std::string name;  // "FILLER" for an entry without one.
  Index nameId = none;
  SourcePlace place;
  int level = 0;
  DataSection section = DataSection::workingStorage;

  // The tree. Entries of a record stand one behind the other, groups in front of their members.
  Index parent = none;
  Index nextSibling = none;
  Index end = none;  // Behind the last entry below this one.
  bool hasMembers = false;

  // Clauses.
  Index picture = none;                     // In CobolProgram::pictures.
  std::optional<Usage> ownUsage;            // Its own USAGE clause,
  SignClause ownSign = SignClause::absent;  // SIGN clause,
  bool hasOwnSync = false;                  // and SYNCHRONIZED clause.
  bool isUnsigned = false;                  // USAGE ... UNSIGNED.
  bool isJustified = false;
  bool isBlankWhenZero = false;
  bool isRedefinition = false;
  bool isRenaming = false;
  bool isTypedef = false;
  bool isGlobal = false;
  bool isUnbounded = false;
  bool isDamaged = false;  // Something of it was not understood, and told.
  // The size that an item without a PICTURE has by its VALUE, or by ANY LENGTH; 0 when by neither.
  int impliedSize = 0;
  bool isImpliedNumeric = false;   // ANY NUMERIC.
  bool hasImpliedPicture = false;  // `picture` follows from these.
  int byteLength = none;           // BYTE-LENGTH, of UTF-8 items.
  int likeChange = 0;              // LIKE X (+5): how much longer it is than X.
  int minOccurs = none;
  int maxOccurs = none;
  // In CobolProgram::references.
  Index reference = none;  // REDEFINES or RENAMES.
  Index type = none;       // TYPE or LIKE.
  Index depending = none;
  Index firstCondition = none;
  Index conditionCount = 0;

  // What follows from them.
  ItemElement element = ItemElement::group;
  Usage usage = Usage::display;          // Of elementary items, handed down from groups.
  Index usageFrom = none;                // The entry with that USAGE clause.
  SignClause sign = SignClause::absent;  // Of items that a SIGN clause counts for.
  Index signFrom = none;
  bool isSync = false;       // The clause, its own or that of its record.
  Index original = none;     // What is redefined, or renamed first,
  Index lastRenamed = none;  // or last.
  Index dependsOn = none;
  Index copyOf = none;  // The entry of a type, or the one that it is like.

  // Its place, in bytes from the start of the record.
  int offset = 0;
  int length = 0;    // Of one occurrence.
  int boundary = 1;  // The greatest that an item inside asks for.
  int slackBefore = 0;
  int slackBehind = 0;  // Inside, behind the last member.
  bool isPlaced = false;

  bool isTable() const { return maxOccurs != none; }
  bool isElementary() const { return !hasMembers && !isRenaming; }
};

// A name of the source with those that qualify it, the innermost first.
struct NameReference {
  enum class Kind : std::uint8_t { redefines, renames, type, like, depending };
  struct Name {
    std::string text;
    Index id = none;
  };
  Kind kind = Kind::redefines;
  std::vector<Name> names;
  std::vector<Name> through;  // RENAMES ... THRU.
  SourcePlace place;
};

struct ConditionValueEntry {
  std::string first;
  std::string last;  // Of a range.
  bool isRange = false;
};

struct ConditionEntry {
  std::string name;
  SourcePlace place;
  Index firstValue = 0;
  Index valueCount = 0;
};

struct PictureEntry {
  std::string text;
  std::optional<Picture> picture;
};

enum class FileOrganization : std::uint8_t { sequential, relative, indexed, lineSequential };
enum class FileAccess : std::uint8_t { sequential, random, dynamic };

struct FileEntry {
  std::string name;
  Index nameId = none;
  std::optional<FileOrganization> organization;
  std::optional<FileAccess> access;
  bool isSelected = false;
  bool isDescribed = false;
  bool isGlobal = false;
  std::vector<Index> records;
};

enum class HandedOver : std::uint8_t { byReference, byValue, returning };

struct ParameterEntry {
  NameReference::Name name;
  HandedOver how = HandedOver::byReference;
  SourcePlace place;
  Index item = none;
};

struct EntryPointEntry {
  std::string name;
  std::optional<int> convention;
  std::vector<ParameterEntry> parameters;
  SourcePlace place;
};

// A level 78 entry, or one of level 01 with CONSTANT.
struct ConstantEntry {
  std::string text;
  std::optional<std::int64_t> number;  // Of a whole one.
  bool isNumeric = false;
};

struct CobolProgram {
  std::string name;
  SourcePlace place;
  CobolProgram* outer = nullptr;  // The program that it is contained in.
  bool isCopybook = false;
  bool isRefused = false;
  // Finds the items that contained programs may use, too; null when there are none.
  std::shared_ptr<EntryFinder> globals;

  std::vector<DataEntry> entries;
  std::vector<NameReference> references;
  std::vector<ConditionEntry> conditions;
  std::vector<ConditionValueEntry> values;
  std::vector<PictureEntry> pictures;
  std::vector<FileEntry> files;
  std::vector<Index> describedFiles;  // In the order of the file section.
  std::vector<Index> records;         // Of the other sections.
  std::vector<EntryPointEntry> entryPoints;

  std::unordered_map<Index, ConstantEntry> constants;  // By name id.
  std::unordered_map<Index, Index> types;              // The entry of a TYPEDEF by name id.
  // What its own SPECIAL-NAMES says: contained programs, which it counts for, too, look for it
  // here.
  std::unordered_map<Index, int> conventions;  // By name id.
  CurrencyTable currencies;
  bool isDecimalPointComma = false;  // By its own or that of a program around it.
};

}  // namespace as::toolkit

#endif  // TOOLKIT_IMPORT_PROGRAMENTRIES_H_
