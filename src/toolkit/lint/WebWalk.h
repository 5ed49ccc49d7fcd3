// Has lint look at what a Web service's operation has beyond a plain one.
#ifndef TOOLKIT_LINT_WEBWALK_H_
#define TOOLKIT_LINT_WEBWALK_H_

namespace as {
class IWSOperation;
}

namespace as::toolkit {

class LintReport;
class Place;

void lintWebOperation(as::IWSOperation& operation, const Place& place, LintReport& report);

}  // namespace as::toolkit

#endif  // TOOLKIT_LINT_WEBWALK_H_
