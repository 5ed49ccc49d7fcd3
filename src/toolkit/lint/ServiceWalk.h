// Goes through a service and has the rules of lint look at everything in it.
#ifndef TOOLKIT_LINT_SERVICEWALK_H_
#define TOOLKIT_LINT_SERVICEWALK_H_

#include <memory>

namespace as {
class IProgram;
class IService;
}  // namespace as

namespace as::toolkit {

class ItemIndex;
class LintReport;

// Looks at type definitions and operations, with the program of the service; null when it is
// unknown. Takes time in proportion to service and program. Answers how the program's items are
// found; null when none was looked for.
std::shared_ptr<const ItemIndex> lintMembers(as::IService& service, as::IProgram* program,
                                             LintReport& report);

}  // namespace as::toolkit

#endif  // TOOLKIT_LINT_SERVICEWALK_H_
