#include "toolkit/text/Words.h"

#include <algorithm>
#include <cstddef>
#include <vector>

#include "as/IDataItem.h"
#include "as/IGroup.h"
#include "toolkit/text/Phrases.h"

namespace as::toolkit {

namespace {

// `words` in the order of their code numbers, from 0 on.
template <std::size_t count>
std::string wordFor(int code, const char* const (&words)[count]) {
  const bool known = code >= 0 && static_cast<std::size_t>(code) < count;
  return known ? words[static_cast<std::size_t>(code)] : "unknown";
}

}  // namespace

std::string dataTypeWord(int type) {
  return wordFor(type, {"group", "numeric", "alphanumeric", "object", "pointer", "national",
                        "numeric edited", "alphanumeric edited", "index"});
}

std::string numericUsageWord(int usage) {
  return wordFor(usage, {"comp", "comp-x", "comp-1", "comp-2", "comp-3", "comp-4", "comp-5",
                         "comp-6", "external float", "display"});
}

std::string signWord(int sign) {
  return wordFor(
      sign, {"leading", "leading separate", "trailing", "trailing separate", "signed", "none"});
}

std::string justificationWord(int justification) {
  return wordFor(justification, {"left", "right"});
}

std::string nationalUsageWord(int usage) { return wordFor(usage, {"display", "unicode"}); }

std::string conditionValueTypeWord(int type) { return wordFor(type, {"constant", "range"}); }

std::string byTypeWord(int byType) { return wordFor(byType, {"reference", "value", "returning"}); }

std::string implementationWord(int implementation) {
  return wordFor(implementation, {"Web service", "Java", "COM", "xd", ".NET"});
}

std::string directionWord(int byType) { return wordFor(byType, {"in", "out", "io"}); }

std::string mappingTypeWord(int type) {
  return wordFor(type,
                 {"data item", "command line", "return code", "standard input", "standard output"});
}

std::string dottedPath(as::IDataItem& item) {
  std::vector<std::string> names = {item.getName()};
  for (as::IGroup* group = item.getParent(); group != nullptr; group = group->getParent()) {
    names.push_back(group->getName());
  }
  std::reverse(names.begin(), names.end());
  return dotted(names);
}

}  // namespace as::toolkit
