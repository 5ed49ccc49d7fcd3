#include "toolkit/import/HostVariables.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <utility>

#include "toolkit/import/EntryWords.h"

namespace as::toolkit {

namespace {

enum class Kind {
  lob,      // The length in four bytes, and so many bytes,
  wideLob,  // or characters of two bytes.
  locator,  // Four bytes.
  file,     // The name of a file, with its length and what is to be done.
  rowId,
  bytes,
  varying,  // The length in two bytes, and so many bytes.
  date,
  time,
  timestamp,
};

constexpr std::int64_t mostLength = 2'147'483'647;
constexpr std::int64_t sizeOfRowId = 40;
constexpr int levelOfMembers = 49;

constexpr const char* wordPicture = "S9(9)";
constexpr const char* halfWordPicture = "S9(4)";

std::string textPicture(std::int64_t length) { return "X(" + std::to_string(length) + ")"; }

// "16", "2M": a number, and what it is to be multiplied by.
std::optional<std::int64_t> multiplied(const std::string& text) {
  if (text.empty()) return std::nullopt;
  constexpr std::int64_t kilo = 1024;
  std::int64_t factor = 1;
  switch (text.back()) {
    case 'K':
    case 'k':
      factor = kilo;
      break;
    case 'M':
    case 'm':
      factor = kilo * kilo;
      break;
    case 'G':
    case 'g':
      factor = kilo * kilo * kilo;
      break;
    default:
      return readInteger(text);
  }
  const std::optional<std::int64_t> number = readInteger(text.substr(0, text.size() - 1));
  if (!number || *number < 0 || *number > mostLength) return std::nullopt;
  return *number * factor;
}

}  // namespace

struct HostVariables::Shape {
  const char* word;
  Kind kind;
};

const HostVariables::Shape* HostVariables::find(const std::string& type) {
  static constexpr Shape shapes[] = {
#define AS_SQL_TYPE(word, kind) {word, Kind::kind},
#include "toolkit/import/SqlTypes.def"
  };
  const auto* const found = std::find_if(std::begin(shapes), std::end(shapes),
                                         [&](const Shape& shape) { return type == shape.word; });
  return found == std::end(shapes) ? nullptr : found;
}

bool HostVariables::bad(const DataEntry& entry, const std::string& text) {
  problems_.tell(EntryRule::badClause, words_.peek().token.place, entry.name + ": " + text);
  return false;
}

bool HostVariables::isAtType() {
  return words_.peek().is(Keyword::sql) && words_.peek(1).is(TokenKind::word) &&
         !words_.peek(1).is(Keyword::isWord);
}

// The type in one word: of "CHARACTER LARGE OBJECT" its short name, of "XML AS CLOB" what follows
// AS.
std::string HostVariables::takeTypeName() {
  std::string type = inCapitals(words_.take().token.text);
  std::replace(type.begin(), type.end(), '_', '-');
  if (type == "XML" && words_.accept(Keyword::as)) return takeTypeName();
  if (inCapitals(words_.peek().token.text) == "LARGE") {
    words_.skip();
    words_.skip();
    return type == "BINARY" ? "BLOB" : type == "DBCHAR" ? "DBCLOB" : "CLOB";
  }
  if (type == "CHARACTER") type = "CHAR";
  const bool canVary = type == "BINARY" || type == "CHAR";
  if (!canVary || !words_.accept(Keyword::varying)) return type;
  return type == "BINARY" ? "VARBINARY" : "CHAR-VARYING";
}

// What stands in parentheses; nothing when there are none, or no length in them.
std::optional<std::int64_t> HostVariables::takeLength() {
  const bool hasParentheses = words_.acceptMark("(");
  std::string text = words_.peek().is(TokenKind::word) || words_.peek().is(TokenKind::number)
                         ? words_.peek().token.text
                         : std::string();
  std::optional<std::int64_t> length = multiplied(text);
  if (length) {
    words_.skip();
    const std::string& unit = words_.peek().token.text;
    if (hasParentheses && words_.peek().is(TokenKind::word) && unit.size() == 1) {
      length = multiplied(text + unit);
      words_.skip();
    }
  } else {
    length = constants_.takeInteger();
  }
  if (hasParentheses && !words_.acceptMark(")")) return std::nullopt;
  return length && *length > 0 && *length <= mostLength ? length : std::nullopt;
}

void HostVariables::addMember(const DataEntry& entry, const char* suffix,
                              const std::string& picture, Usage usage) {
  DataEntry member;
  member.name = entry.name;
  if (entry.nameId != none) {
    member.name += suffix;
    member.nameId = names_.idOf(member.name);
  }
  member.place = entry.place;
  member.level = std::max(levelOfMembers, entry.level == levelOfMembers ? entry.level + 1 : 0);
  member.picture = pictures_.indexOf(picture, entry.place);
  member.ownUsage = usage;
  members_.push_back(std::move(member));
}

// "RESULT-SET-LOCATOR VARYING", "TABLE LIKE A AS LOCATOR".
void HostVariables::skipLocatorPhrase() {
  words_.accept(Keyword::varying);
  while (words_.peek().is(Keyword::like) || words_.peek().is(Keyword::as)) {
    words_.skip();
    words_.skip();
  }
}

// Gives an entry the members, or the picture and usage, of a type.
void HostVariables::expand(DataEntry& entry, const Shape& shape, std::int64_t length) {
  const auto beText = [&](std::int64_t size) {
    entry.picture = pictures_.indexOf(textPicture(size), entry.place);
    entry.ownUsage = Usage::display;
  };
  switch (shape.kind) {
    case Kind::lob:
      addMember(entry, "-LENGTH", wordPicture, Usage::comp5);
      addMember(entry, "-DATA", textPicture(length), Usage::display);
      break;
    case Kind::wideLob:
      addMember(entry, "-LENGTH", wordPicture, Usage::comp5);
      addMember(entry, "-DATA", "G(" + std::to_string(length) + ")", Usage::display1);
      break;
    case Kind::locator:
      entry.picture = pictures_.indexOf(wordPicture, entry.place);
      entry.ownUsage = Usage::comp5;
      break;
    case Kind::file: {
      constexpr std::int64_t longestName = 255;
      addMember(entry, "-NAME-LENGTH", wordPicture, Usage::comp5);
      addMember(entry, "-DATA-LENGTH", wordPicture, Usage::comp5);
      addMember(entry, "-FILE-OPTIONS", wordPicture, Usage::comp5);
      addMember(entry, "-NAME", textPicture(longestName), Usage::display);
      break;
    }
    case Kind::rowId:
      addMember(entry, "-LEN", halfWordPicture, Usage::comp5);
      addMember(entry, "-DATA", textPicture(sizeOfRowId), Usage::display);
      break;
    case Kind::varying:
      addMember(entry, "-LEN", halfWordPicture, Usage::comp5);
      addMember(entry, "-TEXT", textPicture(length), Usage::display);
      break;
    case Kind::bytes:
      beText(length);
      break;
    case Kind::date:
      beText(10);  // NOLINT(readability-magic-numbers): "2001-02-03"
      break;
    case Kind::time:
      beText(8);  // NOLINT(readability-magic-numbers): "04.05.06"
      break;
    case Kind::timestamp:
      beText(26);  // NOLINT(readability-magic-numbers): both, and six places of a second
      break;
  }
}

bool HostVariables::readType(DataEntry& entry) {
  const SourcePlace place = words_.peek().token.place;
  if (entry.ownUsage || entry.picture != none || !members_.empty()) {
    return bad(entry, "SQL TYPE stands there together with another USAGE or PICTURE");
  }
  words_.skip();
  words_.accept(Keyword::type);
  words_.accept(Keyword::isWord);
  const std::string type = takeTypeName();
  const Shape* const shape = find(type);
  if (shape == nullptr) return bad(entry, "SQL TYPE IS " + type + " is not known");
  const Kind kind = shape->kind;
  const bool hasLength =
      kind == Kind::lob || kind == Kind::wideLob || kind == Kind::bytes || kind == Kind::varying;
  std::int64_t length = 0;
  if (hasLength || words_.peek().isMark("(")) {
    const std::optional<std::int64_t> told = takeLength();
    if (!told) return bad(entry, "SQL TYPE IS " + type + " has no length that is known");
    length = *told;
  }
  if (kind == Kind::locator) skipLocatorPhrase();
  expand(entry, *shape, length);
  problems_.tell(
      EntryRule::hostVariable, place,
      entry.name + " is expanded as the precompiler of Db2 does with SQL TYPE IS " + type);
  return true;
}

void HostVariables::readVarying(const DataEntry& entry) {
  problems_.tell(EntryRule::hostVariable, words_.peek().token.place,
                 entry.name + " is expanded as the precompiler of Oracle does with VARYING");
  words_.skip();
  isVarying_ = true;
}

std::vector<DataEntry> HostVariables::takeMembers(DataEntry& entry) {
  if (isVarying_ && entry.picture != none) {
    addMember(entry, "-LEN", halfWordPicture, Usage::comp5);
    addMember(entry, "-ARR", "X", entry.ownUsage.value_or(Usage::display));
    members_.back().ownUsage = entry.ownUsage;
    members_.back().picture = std::exchange(entry.picture, none);
  }
  isVarying_ = false;
  if (!members_.empty()) entry.ownUsage.reset();
  return std::exchange(members_, {});
}

}  // namespace as::toolkit
