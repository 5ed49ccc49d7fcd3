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
               Findings& findings) {
  look(WebUse{place, "the operation", attribute, attribute, use != unknownCode,
              use == Operation::USE_ENCODED, isDocument},
       findings);
}

// Headers and faults.
template <class T>
void lookAtMessages(as::IList* messages, const std::string& kind, bool isDocument,
                    const Place& operation, Findings& findings) {
  int number = 0;
  forEachMember<T>(messages, [&](T& message) {
    const Place place(", " + kind + " " + std::to_string(++number), operation);
    look(WebMessage{place, message.getParameters()->getLength(), message.getNamespace()}, findings);
    const int use = message.getUse();
    look(WebUse{place, "it", "use", "its use", use != unknownCode, use == T::USE_ENCODED,
                isDocument},
         findings);
  });
}

}  // namespace

void lintWebOperation(Operation& operation, const Place& place, Findings& findings) {
  const int style = operation.getStyle();
  const bool isDocument = style == Operation::STYLE_DOCUMENT;
  look(WebStyle{place, style}, findings);
  lookAtUse("inputUse", operation.getInputUse(), isDocument, place, findings);
  lookAtUse("outputUse", operation.getOutputUse(), isDocument, place, findings);
  const std::string input = operation.getInputNamespace();
  const std::string output = operation.getOutputNamespace();
  if (style == Operation::STYLE_RPC) {
    look(WebRpcNamespace{place, "inputNamespace", input}, findings);
    look(WebRpcNamespace{place, "outputNamespace", output}, findings);
  }
  if (isDocument) {
    forEachMember<as::IWSParameter>(operation.getParameters(), [&](as::IWSParameter& parameter) {
      const Place element("." + parameter.getName(), place);
      look(WebElement{element, parameter.getNamespace(), parameter.getByType(), input, output},
           findings);
    });
  }
  lookAtMessages<as::IWSHeader>(operation.getHeaders(), "header", isDocument, place, findings);
  lookAtMessages<as::IWSFault>(operation.getFaults(), "fault", isDocument, place, findings);
}

}  // namespace as::toolkit
