// Finds what is well-formed but broken in a service.
#ifndef TOOLKIT_LINT_LINT_H_
#define TOOLKIT_LINT_LINT_H_

namespace as {
class IService;
}
class Findings;

// Looks at the service's own attributes, as the document has them.
void lintService(as::IService& service, Findings& findings);

// Looks at definitions and operations. Without its program a service is looked at by itself.
void lintMembers(as::IService& service, Findings& findings);

#endif  // TOOLKIT_LINT_LINT_H_
