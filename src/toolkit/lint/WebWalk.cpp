#include "toolkit/lint/WebWalk.h"

#include "as/IWSFault.h"
#include "as/IWSHeader.h"
#include "as/IWSOperation.h"
#include "as/IWSParameter.h"
#include "toolkit/flavour/WebParts.h"
#include "toolkit/lint/Rules.h"
#include "toolkit/walk/TreeWalk.h"

namespace as::toolkit {

namespace {

using Operation = as::IWSOperation;

void lookAtUse(const char* attribute, int use, bool isDocument, const Place& place,
               LintReport& report) {
  look(WebUse{place, "the operation", attribute, attribute, use != unknownCode,
              use == Operation::USE_ENCODED, isDocument},
       report);
}

// Headers and faults.
template <class T>
void lookAtMessages(as::IList* messages, const std::string& kind, bool isDocument,
                    const Place& operation, LintReport& report) {
  int number = 0;
  forEachMember<T>(messages, [&](T& message) {
    const Place place(", " + kind + " " + std::to_string(++number), operation, message);
    look(WebMessage{place, message.getParameters()->getLength(), message.getNamespace()}, report);
    const int use = message.getUse();
    look(WebUse{place, "it", "use", "its use", use != unknownCode, use == T::USE_ENCODED,
                isDocument},
         report);
  });
}

}  // namespace

void lintWebOperation(Operation& operation, const Place& place, LintReport& report) {
  const int style = operation.getStyle();
  const bool isDocument = style == Operation::STYLE_DOCUMENT;
  look(WebStyle{place, style}, report);
  lookAtUse("inputUse", operation.getInputUse(), isDocument, place, report);
  lookAtUse("outputUse", operation.getOutputUse(), isDocument, place, report);
  const std::string input = operation.getInputNamespace();
  const std::string output = operation.getOutputNamespace();
  if (style == Operation::STYLE_RPC) {
    look(WebRpcNamespace{place, "inputNamespace", input}, report);
    look(WebRpcNamespace{place, "outputNamespace", output}, report);
  }
  if (isDocument) {
    forEachMember<as::IWSParameter>(operation.getParameters(), [&](as::IWSParameter& parameter) {
      const Place element("." + parameter.getName(), place, parameter);
      look(WebElement{element, parameter.getNamespace(), parameter.getByType(), input, output},
           report);
    });
  }
  lookAtMessages<as::IWSHeader>(operation.getHeaders(), "header", isDocument, place, report);
  lookAtMessages<as::IWSFault>(operation.getFaults(), "fault", isDocument, place, report);
}

}  // namespace as::toolkit
