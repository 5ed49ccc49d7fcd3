#include "toolkit/import/UsageReader.h"

#include <optional>
#include <string_view>

#include "toolkit/import/EntryWords.h"

namespace as::toolkit {

namespace {

bool isUnsignedUsage(const std::string& word) {
  constexpr std::string_view prefix = "UNSIGNED-";
  return inCapitals(word).compare(0, prefix.size(), prefix) == 0;
}

}  // namespace

bool UsageReader::read(DataEntry& entry) {
  const SourcePlace place = words_.peek().token.place;
  if (words_.accept(Keyword::usage)) words_.accept(Keyword::isWord);
  if (entry.ownUsage) return readAgain(entry, place);
  if (hostVariables_.isAtType()) return hostVariables_.readType(entry);
  const Word& next = words_.peek();
  if (next.is(Keyword::handle)) return readHandle(entry);
  if (next.is(TokenKind::word) && next.is(Keyword::name) && !next.meaning.usage) {
    return references_.read(entry, NameReference::Kind::type);
  }
  const Word word = words_.take();
  std::optional<Usage> usage = word.meaning.usage;
  if (word.is(Keyword::object)) {
    if (!words_.accept(Keyword::reference)) {
      return problems_.badClause(entry.name, place, "OBJECT is not followed by REFERENCE");
    }
    usage = Usage::objectReference;
  }
  if (!usage)
    return problems_.badClause(entry.name, place, word.token.text + " is no USAGE that is known");
  entry.ownUsage = usage;
  if (isUnsignedUsage(word.token.text)) entry.isUnsigned = true;
  readPhrases(entry);
  return true;
}

// "BINARY COMP" says the same twice.
bool UsageReader::readAgain(const DataEntry& entry, const SourcePlace& place) {
  const auto plain = [](Usage usage) { return usage == Usage::comp4 ? Usage::comp : usage; };
  const std::optional<Usage> again = words_.peek().meaning.usage;
  if (!again || plain(*again) != plain(*entry.ownUsage)) {
    return problems_.badClause(entry.name, place, "USAGE stands there twice");
  }
  words_.skip();
  problems_.tell(EntryRule::usageTwice, place, entry.name + ": USAGE stands there twice");
  return true;
}

// "HANDLE OF FONT LARGE-FONT": what stands for a window, font, thread and the like, in four bytes.
bool UsageReader::readHandle(DataEntry& entry) {
  if (entry.ownUsage)
    return problems_.badClause(entry.name, words_.peek().token.place, "USAGE stands there twice");
  words_.skip();
  entry.ownUsage = Usage::binaryLong;
  if (!words_.accept(Keyword::of)) return true;
  while (words_.peek().is(TokenKind::word) && !isAtNextEntry(words_) && !isClause(words_.peek())) {
    words_.skip();
  }
  return true;
}

// What the usages of objects, pointers and binary items say besides.
void UsageReader::readPhrases(DataEntry& entry) {
  words_.accept(Keyword::native);
  if (words_.accept(Keyword::unsignedWord)) {
    entry.isUnsigned = true;
    return;
  }
  if (words_.accept(Keyword::signedWord)) return;
  const Usage usage = *entry.ownUsage;
  if (usage == Usage::comp3 && words_.peek().is(Keyword::with) && words_.peek(1).is(Keyword::no)) {
    words_.skip();
  }
  if (usage == Usage::comp3 && words_.peek().is(Keyword::no) && words_.peek(1).is(Keyword::sign)) {
    words_.skip();
    words_.skip();
    entry.ownUsage = Usage::comp6;
    return;
  }
  const bool isPointer = usage == Usage::pointer || usage == Usage::pointer32 ||
                         usage == Usage::procedurePointer || usage == Usage::functionPointer;
  if (isPointer && words_.accept(Keyword::to)) {
    words_.skip();
    return;
  }
  if (usage != Usage::objectReference) return;
  if (words_.accept(Keyword::factory)) words_.accept(Keyword::of);
  const bool isClass =
      words_.peek().is(TokenKind::word) && !isClause(words_.peek()) && !isAtNextEntry(words_);
  if (isClass) words_.skip();
  words_.accept(Keyword::only);
}

}  // namespace as::toolkit
