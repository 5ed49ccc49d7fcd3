#include "toolkit/import/OccursReader.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <utility>

#include "toolkit/import/EntryWords.h"

namespace as::toolkit {

namespace {

constexpr std::int64_t mostOccurrences = std::numeric_limits<int>::max();

}  // namespace

bool OccursReader::bad(EntryRule rule, const SourcePlace& place, const std::string& text) {
  problems_.tell(rule, place, text);
  return false;
}

bool OccursReader::read(DataEntry& entry) {
  const SourcePlace place = words_.peek().token.place;
  words_.skip();
  if (entry.isTable()) {
    return bad(EntryRule::badClause, place, entry.name + ": OCCURS stands there twice");
  }
  if (words_.accept(Keyword::dynamic)) {
    readDynamic(entry);
  } else if (!readOccurrences(entry)) {
    return false;
  }
  if (!readPhrases(entry)) return false;
  if (entry.isUnbounded) {
    problems_.tell(EntryRule::notThatLong, place,
                   entry.name + " has no greatest number of occurrences: it counts with " +
                       std::to_string(entry.maxOccurs));
  } else if (entry.depending == none && entry.minOccurs != entry.maxOccurs) {
    problems_.tell(EntryRule::noDepending, place,
                   entry.name + " occurs " + std::to_string(entry.minOccurs) + " to " +
                       std::to_string(entry.maxOccurs) + " times, but depends on nothing");
  } else if (entry.level == 1 || entry.level == 77) {
    problems_.tell(EntryRule::tableOnTop, place, entry.name + " is a table of records");
  }
  return true;
}

void OccursReader::readDynamic(DataEntry& entry) {
  entry.isUnbounded = true;
  entry.minOccurs = 0;
  if (words_.accept(Keyword::capacity)) {
    words_.accept(Keyword::in);
    words_.skip();
  }
  if (words_.accept(Keyword::from)) {
    entry.minOccurs = static_cast<int>(
        std::clamp<std::int64_t>(constants_.takeInteger().value_or(0), 0, mostOccurrences));
  }
  if (words_.accept(Keyword::to)) constants_.takeInteger();
  words_.accept(Keyword::initialized);
  entry.maxOccurs = std::max(entry.minOccurs, 1);
}

bool OccursReader::readOccurrences(DataEntry& entry) {
  const SourcePlace place = words_.peek().token.place;
  const auto tell = [&](const std::string& text) {
    return bad(EntryRule::badOccurs, place, entry.name + " " + text);
  };
  // "OCCURS UNBOUNDED" goes without a least number.
  const bool isUnbounded = words_.peek().is(Keyword::unbounded);
  const std::optional<std::int64_t> first =
      isUnbounded ? std::optional<std::int64_t>(0) : constants_.takeInteger();
  if (!first) return tell("occurs a number of times that is not known");
  std::optional<std::int64_t> last = first;
  const bool isRange = words_.accept(Keyword::to) || isUnbounded;
  if (isRange && words_.accept(Keyword::unbounded)) {
    entry.isUnbounded = true;
    last = std::max<std::int64_t>(*first, 1);
  } else if (isRange) {
    last = constants_.takeInteger();
  }
  if (!last) return tell("occurs a number of times that is not known");
  if (*first < 0 || *last < 1) return tell("occurs " + std::to_string(*last) + " times");
  if (*last > mostOccurrences) return tell("occurs more often than 2147483647 times");
  if (*first > *last) {
    return tell("occurs at least " + std::to_string(*first) + " times, but at most " +
                std::to_string(*last));
  }
  entry.minOccurs = static_cast<int>(*first);
  entry.maxOccurs = static_cast<int>(*last);
  words_.accept(Keyword::times);
  if (words_.peek().is(Keyword::depending) && !isRange) entry.minOccurs = 1;
  return true;
}

bool OccursReader::readPhrases(DataEntry& entry) {
  for (;;) {
    const SourcePlace place = words_.peek().token.place;
    if (words_.accept(Keyword::times)) continue;
    if (words_.accept(Keyword::depending)) {
      words_.accept(Keyword::on);
      NameReference reference;
      reference.kind = NameReference::Kind::depending;
      reference.place = words_.peek().token.place;
      reference.names = constants_.takeName();
      if (reference.names.empty()) {
        return bad(EntryRule::badClause, place, entry.name + ": DEPENDING ON names nothing");
      }
      program_.references.push_back(std::move(reference));
      entry.depending = static_cast<Index>(program_.references.size() - 1);
    } else if (words_.peek().is(Keyword::ascending) || words_.peek().is(Keyword::descending)) {
      words_.skip();
      words_.accept(Keyword::key);
      words_.accept(Keyword::isWord);
      words_.accept(Keyword::are);
      skipNames();
    } else if (words_.accept(Keyword::indexed)) {
      words_.accept(Keyword::by);
      skipNames();
    } else {
      return true;
    }
  }
}

// Indexes and keys stand in no dictionary.
void OccursReader::skipNames() {
  for (;;) {
    const Word& word = words_.peek();
    const bool isName = word.is(TokenKind::word) && !isClause(word) &&
                        word.meaning.role != KeywordRole::filling && !word.is(Keyword::ascending) &&
                        !word.is(Keyword::descending) && !word.is(Keyword::indexed) &&
                        !word.is(Keyword::depending);
    if (!isName || isAtNextEntry(words_)) return;
    words_.skip();
  }
}

}  // namespace as::toolkit
