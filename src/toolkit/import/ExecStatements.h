// Reads EXEC statements, of which none but INCLUDE is looked at.
#ifndef TOOLKIT_IMPORT_EXECSTATEMENTS_H_
#define TOOLKIT_IMPORT_EXECSTATEMENTS_H_

#include <cstddef>
#include <map>
#include <optional>
#include <string>

#include "toolkit/import/SourceReport.h"
#include "toolkit/import/TextWord.h"
#include "toolkit/import/WordScanner.h"

namespace as::toolkit {

class ExecStatements {
 public:
  // The report must outlive it.
  explicit ExecStatements(SourceReport& report) : report_(report) {}

  struct Read {
    bool isWhole = false;              // Otherwise told.
    std::optional<TextWord> included;  // The name of a copybook.
  };

  // Reads on behind EXEC, which stands at that place, up to END-EXEC.
  Read read(WordScanner& words, const SourcePlace& place);

  // Tells how many were passed over, of each kind.
  void finish();

 private:
  void count(const TextWord& kind, const SourcePlace& place);

  struct Passed {
    SourcePlace first;
    std::size_t count = 0;
  };

  SourceReport& report_;
  std::map<std::string, Passed> passed_;
};

}  // namespace as::toolkit

#endif  // TOOLKIT_IMPORT_EXECSTATEMENTS_H_
