// A service that was looked at, with what it was looked at with.
#ifndef TOOLKIT_LINT_LINTEDSERVICE_H_
#define TOOLKIT_LINT_LINTEDSERVICE_H_

#include <memory>

#include "as/IProgram.h"
#include "as/IService.h"
#include "as/toolkit/DocumentReader.h"
#include "as/toolkit/Finding.h"
#include "as/toolkit/Lint.h"
#include "toolkit/walk/ItemIndex.h"

namespace as::toolkit {

struct LintedService {
  std::shared_ptr<as::IProgram> program;  // Null when none is named, and when it is refused.
  Findings findings;
  std::shared_ptr<const ItemIndex> index;  // Of the program's items; null when none was made.
};

// What lintDocument() does of a service that was read from `source` already.
LintedService lintRead(const DocumentReader& reader, as::IService& service,
                       const DocumentSource& source, const LintOptions& options = {});

// What lint() does with that program, null for none, in place of the service's own. Only what it
// answers of findings and items is told.
LintedService lintWith(as::IService& service, as::IProgram* program);

}  // namespace as::toolkit

#endif  // TOOLKIT_LINT_LINTEDSERVICE_H_
