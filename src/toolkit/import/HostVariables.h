// Reads what precompilers of SQL make data items of: SQL TYPE IS, and VARYING behind a PICTURE.
#ifndef TOOLKIT_IMPORT_HOSTVARIABLES_H_
#define TOOLKIT_IMPORT_HOSTVARIABLES_H_

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "toolkit/import/ConstantReader.h"
#include "toolkit/import/EntryProblems.h"
#include "toolkit/import/NameTable.h"
#include "toolkit/import/PictureTable.h"
#include "toolkit/import/ProgramEntries.h"
#include "toolkit/import/WordReader.h"

namespace as::toolkit {

class HostVariables {
 public:
  // All must outlive it.
  HostVariables(WordReader& words, NameTable& names, ConstantReader& constants,
                PictureTable& pictures, EntryProblems& problems)
      : words_(words),
        names_(names),
        constants_(constants),
        pictures_(pictures),
        problems_(problems) {}

  // Whether SQL comes next with a type behind it.
  bool isAtType();

  // Reads "SQL TYPE IS BLOB(1M)", from SQL on. False for a type that is not known, which is told.
  bool readType(DataEntry& entry);

  // Reads "VARYING".
  void readVarying(const DataEntry& entry);

  // To be called behind the clauses of an entry: the members that the precompiler gives it.
  std::vector<DataEntry> takeMembers(DataEntry& entry);

 private:
  struct Shape;
  static const Shape* find(const std::string& type);
  std::string takeTypeName();
  std::optional<std::int64_t> takeLength();
  void skipLocatorPhrase();
  void expand(DataEntry& entry, const Shape& shape, std::int64_t length);
  void addMember(const DataEntry& entry, const char* suffix, const std::string& picture,
                 Usage usage);
  bool bad(const DataEntry& entry, const std::string& text);

  WordReader& words_;
  NameTable& names_;
  ConstantReader& constants_;
  PictureTable& pictures_;
  EntryProblems& problems_;
  std::vector<DataEntry> members_;
  bool isVarying_ = false;
};

}  // namespace as::toolkit

#endif  // TOOLKIT_IMPORT_HOSTVARIABLES_H_
