#include "toolkit/import/ReferenceReader.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <utility>

#include "toolkit/import/EntryWords.h"

namespace as::toolkit {

bool ReferenceReader::read(DataEntry& entry, NameReference::Kind kind) {
  if (kind == NameReference::Kind::redefines || words_.peek().is(Keyword::like)) words_.skip();
  if (kind == NameReference::Kind::like) {
    words_.accept(Keyword::isWord);
    words_.accept(Keyword::as);
  }
  NameReference reference;
  reference.kind = kind;
  reference.place = words_.peek().token.place;
  if (!isAtNextEntry(words_)) reference.names = constants_.takeName();
  if (reference.names.empty())
    return problems_.badClause(entry.name, reference.place, "a name is missing");
  if (kind == NameReference::Kind::like && words_.peek().isMark("(") && !readLikeChange(entry)) {
    return problems_.badClause(entry.name, reference.place,
                               "LIKE has no length in its parentheses that is known");
  }
  Index& slot = kind == NameReference::Kind::redefines ? entry.reference : entry.type;
  if (slot != none)
    return problems_.badClause(entry.name, reference.place, "it has a type already");
  program_.references.push_back(std::move(reference));
  slot = static_cast<Index>(program_.references.size() - 1);
  return true;
}

bool ReferenceReader::isType(Index name) const {
  for (const CobolProgram* program = &program_; program != nullptr; program = program->outer) {
    if (program->types.contains(name)) return true;
  }
  // The record in front is not closed yet.
  if (program_.entries.empty()) return false;
  const auto at = [this](Index entry) -> const DataEntry& {
    return program_.entries[static_cast<std::size_t>(entry)];
  };
  auto record = static_cast<Index>(program_.entries.size() - 1);
  while (at(record).parent != none) record = at(record).parent;
  return at(record).isTypedef && at(record).nameId == name;
}

// LIKE X (+5) makes an item longer, LIKE X (-5) shorter.
bool ReferenceReader::readLikeChange(DataEntry& entry) {
  constexpr std::int64_t most = 1'000'000;
  words_.skip();
  const std::optional<std::int64_t> change = constants_.takeInteger();
  if (!change || *change < -most || *change > most) return false;
  entry.likeChange = static_cast<int>(*change);
  return words_.acceptMark(")");
}

bool ReferenceReader::readRenames(DataEntry& entry) {
  const SourcePlace place = words_.peek().token.place;
  if (!entry.isRenaming || entry.reference != none) {
    return problems_.badClause(entry.name, place, "RENAMES stands at level 66 alone");
  }
  words_.skip();
  NameReference reference;
  reference.kind = NameReference::Kind::renames;
  reference.place = words_.peek().token.place;
  reference.names = constants_.takeName();
  if (words_.accept(Keyword::thru) || words_.accept(Keyword::through)) {
    reference.through = constants_.takeName();
    if (reference.through.empty())
      return problems_.badClause(entry.name, place, "a name is missing behind THRU");
  }
  if (reference.names.empty())
    return problems_.badClause(entry.name, place, "RENAMES names nothing");
  program_.references.push_back(std::move(reference));
  entry.reference = static_cast<Index>(program_.references.size() - 1);
  return true;
}

}  // namespace as::toolkit
