#include "toolkit/import/ProcedureReader.h"

#include <utility>

#include "toolkit/import/EntryWords.h"

namespace as::toolkit {

namespace {

bool isVerb(const Word& word) {
  return word.meaning.role == KeywordRole::verb || word.meaning.usage == Usage::display;
}

}  // namespace

bool ProcedureReader::isAtProgramEnd() {
  const Word& word = words_.peek();
  if (word.is(TokenKind::end)) return true;
  if (word.meaning.role == KeywordRole::unit) {
    return words_.peek(1).is(TokenKind::period) || words_.peek(1).is(TokenKind::word);
  }
  switch (word.meaning.keyword) {
    case Keyword::identification:
    case Keyword::id:
      return words_.peek(1).is(Keyword::division);
    default:
      return isAtEndOfUnit(words_);
  }
}

void ProcedureReader::readHeader(const std::string& name) {
  EntryPointEntry entryPoint;
  entryPoint.name = name;
  entryPoint.place = words_.peek().token.place;
  words_.skip();
  const SourcePlace division = words_.take().token.place;
  const Word& next = words_.peek();
  const bool isParagraphOrSection =
      next.is(TokenKind::word) && next.meaning.keyword == Keyword::name &&
      next.token.place.line != division.line &&
      (words_.peek(1).is(TokenKind::period) || words_.peek(1).is(Keyword::section));
  if (isParagraphOrSection) {
    problems_.tell(EntryRule::noPeriod, division, "there is no period behind PROCEDURE DIVISION");
    program_.entryPoints.push_back(std::move(entryPoint));
    return;
  }
  readConvention(entryPoint);
  readParameters(entryPoint);
  if (words_.peek().is(TokenKind::period)) words_.skip();
  program_.entryPoints.push_back(std::move(entryPoint));
}

void ProcedureReader::readStatements() {
  // What stands behind TO is the address of an entry point: SET P TO ENTRY "X".
  bool isBehindTo = false;
  while (!isAtProgramEnd()) {
    if (words_.peek().is(Keyword::entry) && !isBehindTo) {
      readEntry();
    } else {
      isBehindTo = words_.peek().is(Keyword::to);
      words_.skip();
    }
  }
}

void ProcedureReader::readEntry() {
  EntryPointEntry entryPoint;
  entryPoint.place = words_.peek().token.place;
  words_.skip();
  // Of "ENTRY FOR GO TO" nobody calls from outside.
  const bool isNamed = words_.peek().is(TokenKind::word) && !words_.peek().is(Keyword::forWord) &&
                       words_.peek(1).is(TokenKind::literal);
  if (isNamed) readConvention(entryPoint);
  if (!words_.peek().is(TokenKind::literal)) return;
  entryPoint.name = words_.take().token.text;
  readParameters(entryPoint);
  if (!entryPoint.name.empty()) program_.entryPoints.push_back(std::move(entryPoint));
}

// What SPECIAL-NAMES says counts for contained programs, too.
std::optional<int> ProcedureReader::findConvention(Index name) const {
  for (const CobolProgram* program = &program_; program != nullptr; program = program->outer) {
    const auto found = program->conventions.find(name);
    if (found != program->conventions.end()) return found->second;
  }
  return std::nullopt;
}

// A name of CALL-CONVENTION in front of USING or the name of the entry point.
void ProcedureReader::readConvention(EntryPointEntry& entryPoint) {
  const Word& word = words_.peek();
  if (!word.is(TokenKind::word) || word.meaning.keyword != Keyword::name) return;
  entryPoint.convention = findConvention(names_.idOf(word.token.text));
  if (!entryPoint.convention) {
    problems_.tell(EntryRule::lostConvention, word.token.place,
                   word.token.text + " is no calling convention of SPECIAL-NAMES");
  }
  words_.skip();
}

bool ProcedureReader::isAtParametersEnd() {
  const Word& word = words_.peek();
  return !word.is(TokenKind::word) || isVerb(word) || word.is(Keyword::raising) ||
         words_.peek(1).is(Keyword::section);
}

void ProcedureReader::readParameters(EntryPointEntry& entryPoint) {
  HandedOver how = HandedOver::byReference;
  bool isInList = false;
  while (!isAtParametersEnd()) {
    const Word& word = words_.peek();
    const SourcePlace place = word.token.place;
    switch (word.meaning.keyword) {
      case Keyword::usingWord:
      case Keyword::chaining:
        isInList = true;
        how = HandedOver::byReference;
        words_.skip();
        break;
      case Keyword::returning:
      case Keyword::giving:
        isInList = true;
        how = HandedOver::returning;
        words_.skip();
        break;
      case Keyword::reference:
        how = HandedOver::byReference;
        words_.skip();
        break;
      case Keyword::value:
        how = HandedOver::byValue;
        words_.skip();
        break;
      case Keyword::content:
        how = HandedOver::byReference;
        words_.skip();
        problems_.tell(EntryRule::contentParameter, place,
                       entryPoint.name + " takes a parameter BY CONTENT: taken for BY REFERENCE");
        break;
      case Keyword::optional:
        words_.skip();
        problems_.tell(EntryRule::optionalParameter, place,
                       "OPTIONAL of a parameter is not held by dictionaries");
        break;
      case Keyword::size:
        // SIZE IS 4, AUTO or DEFAULT.
        words_.skip();
        words_.accept(Keyword::isWord);
        words_.skip();
        break;
      case Keyword::by:
      case Keyword::unsignedWord:
      case Keyword::any:
      case Keyword::omitted:
        words_.skip();
        break;
      default:
        if (!isInList) return;
        readParameter(entryPoint, how);
    }
  }
  // RAISING names exceptions.
  if (words_.peek().is(Keyword::raising)) {
    while (!words_.peek().is(TokenKind::period) && !words_.atEnd()) words_.skip();
  }
}

void ProcedureReader::readParameter(EntryPointEntry& entryPoint, HandedOver how) {
  ParameterEntry parameter;
  parameter.place = words_.peek().token.place;
  parameter.name = names_.nameOf(words_.take().token.text);
  parameter.how = how;
  entryPoint.parameters.push_back(std::move(parameter));
}

}  // namespace as::toolkit
