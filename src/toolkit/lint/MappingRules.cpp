// Rules about mappings: that there are some, and that they lead to data items with the subscripts
// that these need.
#include "as/IList.h"
#include "toolkit/lint/Rules.h"
#include "toolkit/lint/SubscriptText.h"
#include "toolkit/text/Phrases.h"
#include "toolkit/walk/FieldWalk.h"
#include "toolkit/walk/Subscripts.h"

namespace as::toolkit::rules {

void unmappedField(const FieldSubject& subject, const Tell& tell) {
  if (!subject.isElementary || subject.field.getMappings()->getLength() > 0) return;
  tell("it is mapped to no data item", "add a mapping or remove it");
}

void structuredAttribute(const FieldSubject& subject, const Tell& tell) {
  if (!subject.isAttribute || subject.isElementary) return;
  const std::string type = referenceOf(subject.field);
  if (type.empty()) {
    tell("it is a field attribute and has fields or field attributes inside it",
         "make it a field, or move what is inside it");
  } else {
    tell("it is a field attribute and refers to " + quote(type) +
             ", which has fields or field attributes",
         "make it a field, or refer to the definition of a value");
  }
}

void emptyMapping(const MappingSubject& subject, const Tell& tell) {
  if (subject.text.empty()) tell("the mapping names no data item", R"(name one in "item")");
}

void unreadableSubscripts(const MappingSubject& subject, const Tell& tell) {
  if (subject.text.empty()) return;
  if (!subject.isInnerReadable) {
    tell("the subscripts of " + quote(subject.text) + " cannot be read",
         "write numbers or * with commas between, as in ITEM(1,*)");
  }
  if (!subject.isOuterReadable) {
    tell("subscript " + quote(subject.outerText) + " cannot be read",
         "write numbers or * with commas between, as in 1,*");
  }
}

void lostDataItem(const MappingSubject& subject, const Tell& tell) {
  if (subject.text.empty() || subject.program == nullptr || subject.item != nullptr) return;
  const std::string& path = subject.path;
  std::string advice = "correct the name";
  if (path.rfind('$', 0) == 0) {
    advice = "use $command_line, $return_code, $stdin or $stdout";
  } else if (const std::string meant = subject.program->pathMeant(path); !meant.empty()) {
    advice = didYouMean(meant);
  }
  tell(subject.program->name() + " has no data item " + quote(path), advice);
}

void subscriptCount(const MappingSubject& subject, const Tell& tell) {
  if (subject.item == nullptr || !subject.isInnerReadable || subject.fits()) return;
  const std::size_t tables = subject.tables.size();
  tell(quote(subject.path) + " has " + count(subject.inner.size(), "subscript") +
           " but stands in " + count(tables, "table"),
       tables == 0 ? "write " + quote(subject.path)
                   : "write " + quote(subject.path + "(" + openSubscripts(tables) + ")") +
                         " or the occurrences meant");
}

void subscriptRange(const MappingSubject& subject, const Tell& tell) {
  if (!subject.fits()) return;
  for (std::size_t i = 0; i < subject.tables.size(); ++i) {
    const int subscript = subject.inner[i];
    const int most = subject.tables[i]->getMaxOccurs();
    if (subscript == everyOccurrence || (subscript >= 1 && subscript <= most)) continue;
    tell("subscript " + std::to_string(subscript) + " of " + quote(subject.path) +
             " is outside of " + subject.tables[i]->getName() + ", which occurs " +
             std::to_string(most) + " times",
         "write a number from 1 to " + std::to_string(most) + ", or *");
  }
}

}  // namespace as::toolkit::rules
