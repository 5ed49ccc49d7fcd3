// Rules about the messages of Web services: style, uses and namespaces.
#include "as/IParameter.h"
#include "toolkit/flavour/WebParts.h"
#include "toolkit/lint/Rules.h"

namespace as::toolkit::rules {

void noStyle(const WebStyle& subject, const Tell& tell) {
  if (subject.style != unknownCode) return;
  tell("the operation has no style", R"(write "rpc" or "document")");
}

void noUse(const WebUse& subject, const Tell& tell) {
  if (subject.isKnown) return;
  tell(subject.owner + " has no " + subject.name, R"(write "literal" or "encoded")");
}

void encodedDocument(const WebUse& subject, const Tell& tell) {
  if (!subject.isEncoded || !subject.isDocument) return;
  tell(subject.words + " is encoded, but the style is document",
       "make it literal, or the style rpc");
}

void noOperationNamespace(const WebRpcNamespace& subject, const Tell& tell) {
  if (!subject.uri.empty()) return;
  tell("style rpc needs a namespace, and there is no " + subject.attribute,
       "write \"" + subject.attribute + "\"");
}

// An element has a namespace of its own or else the operation's.
void noElementNamespace(const WebElement& subject, const Tell& tell) {
  if (!subject.uri.empty()) return;
  const bool lacksInput =
      subject.direction != as::IParameter::BY_OUT && subject.inputNamespace.empty();
  const bool lacksOutput =
      subject.direction != as::IParameter::BY_IN && subject.outputNamespace.empty();
  if (!lacksInput && !lacksOutput) return;
  tell(std::string("style document needs a namespace, and there is none, nor an ") +
           (lacksInput ? "inputNamespace" : "outputNamespace"),
       R"(write "namespace", or that of the operation)");
}

void emptyMessage(const WebMessage& subject, const Tell& tell) {
  if (subject.parameters == 0) tell("it has no parameters", "add one or remove it");
}

void noMessageNamespace(const WebMessage& subject, const Tell& tell) {
  if (subject.uri.empty()) tell("it has no namespace", R"(write "namespace")");
}

}  // namespace as::toolkit::rules
