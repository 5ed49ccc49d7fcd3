// The copybooks of an import, each asked for, decoded and kept once.
#ifndef TOOLKIT_IMPORT_COPYBOOKLIBRARY_H_
#define TOOLKIT_IMPORT_COPYBOOKLIBRARY_H_

#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>

#include "as/toolkit/Copybooks.h"
#include "toolkit/import/SourceText.h"

namespace as::toolkit {

class CopybookLibrary {
 public:
  struct Entry {
    std::string name;
    std::string bytes;  // Until it is decoded.
    SourceText text;
    bool isDecoded = false;
    std::string error;  // Why it cannot be used, if so.
  };

  // `provider` may be null and must outlive it.
  explicit CopybookLibrary(CopybookProvider* provider) : provider_(provider) {}

  // Null when there is none. Entries live as long as this.
  Entry* find(const std::string& name, const std::string& library);

 private:
  CopybookProvider* provider_;
  std::unordered_map<std::string, Entry*> asked_;
  // By the names that their provider gives them: one text may be found by several.
  std::unordered_map<std::string, std::unique_ptr<Entry>> entries_;
};

// Whether a copybook comes with a precompiler, with CICS or with MQ, or with a compiler that has
// screens: such are rarely at hand where sources are imported, and programs seldom hand on what is
// in them.
bool isSystemCopybook(std::string_view name);

// Whether the folders in the name of a copybook are those that it was found in.
bool standsWhereNamed(std::string name, const std::string& library, std::string found);

}  // namespace as::toolkit

#endif  // TOOLKIT_IMPORT_COPYBOOKLIBRARY_H_
