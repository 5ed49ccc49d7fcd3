#include "toolkit/import/EntryNames.h"

#include <cstddef>

namespace as::toolkit {

const NameReference* referenceOf(const CobolProgram& program, const DataEntry& entry,
                                 NameReference::Kind kind) {
  if (entry.reference == none) return nullptr;
  const NameReference& reference = program.references[static_cast<std::size_t>(entry.reference)];
  return reference.kind == kind ? &reference : nullptr;
}

std::string textOf(const std::vector<NameReference::Name>& names) {
  std::string text;
  for (const NameReference::Name& name : names) {
    if (!text.empty()) text += " OF ";
    text += name.text;
  }
  return text;
}

}  // namespace as::toolkit
