#include "toolkit/import/ProgramReader.h"

#include <cstddef>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "toolkit/import/DataDivisionReader.h"
#include "toolkit/import/EntryWords.h"
#include "toolkit/import/EnvironmentReader.h"
#include "toolkit/import/ProcedureReader.h"

namespace as::toolkit {

namespace {

// What begins something that is no program, and what its end is called.
struct OtherUnit {
  Keyword begin;
  Keyword end;
  const char* what;
};

constexpr OtherUnit otherUnits[] = {
    {Keyword::functionId, Keyword::function, "function"},
    {Keyword::classId, Keyword::classWord, "class"},
    {Keyword::interfaceId, Keyword::interface, "interface"},
    {Keyword::methodId, Keyword::method, "method"},
    {Keyword::enumId, Keyword::name, "enumeration"},
    {Keyword::delegateId, Keyword::name, "delegate"},
    {Keyword::valuetypeId, Keyword::name, "value type"},
    {Keyword::operatorId, Keyword::name, "operator"},
};

constexpr std::size_t mostNested = 50;

// What CICS hands over to the programs that it starts, whether they say so or not.
constexpr const char* commarea = "DFHCOMMAREA";

bool isOfCics(const std::string& name) {
  return sameWord(name, "DFHEIBLK") || sameWord(name, commarea);
}

bool isEnvironmentSection(const std::string& name) {
  return sameWord(name, "CONFIGURATION") || sameWord(name, "INPUT-OUTPUT");
}

const OtherUnit* otherUnit(const Word& word) {
  if (word.meaning.keyword == Keyword::name) return nullptr;
  for (const OtherUnit& unit : otherUnits) {
    if (word.is(unit.begin)) return &unit;
  }
  return nullptr;
}

}  // namespace

std::vector<std::unique_ptr<CobolProgram>> ProgramReader::read() {
  while (words_.peek().is(TokenKind::period)) words_.skip();
  if (holdsStatements()) {
    problems_.tell(EntryRule::statementsAlone, words_.peek().token.place,
                   "the source begins with statements: there is no dictionary of it");
    while (!words_.atEnd()) words_.skip();
    return {};
  }
  if (form_ == Form::copybook || isCopybook()) {
    readCopybook();
  } else {
    readDivisions();
  }
  while (!open_.empty()) readEnd();
  if (programs_.empty() && problems_.wasNoted(EntryRule::passedProgram)) {
    problems_.tell(EntryRule::nothingLeft, words_.peek().token.place,
                   "the source holds no program: there is no dictionary of it");
  } else if (programs_.empty() && problems_.errors() == 0) {
    problems_.tell(EntryRule::noProgram, words_.peek().token.place,
                   "the source holds neither a program nor data description entries");
  }
  return std::move(programs_);
}

// Whether the source is a copybook of the procedure division: it begins with a statement, a
// paragraph or a section.
bool ProgramReader::holdsStatements() {
  const Word& word = words_.peek();
  const Word& next = words_.peek(1);
  if (!word.is(TokenKind::word) || levelOf(word) >= 0) return false;
  if (word.meaning.role == KeywordRole::verb || word.meaning.usage == Usage::display) {
    return !next.is(Keyword::division);
  }
  if (word.meaning.keyword != Keyword::name || word.meaning.usage) return false;
  if (next.is(TokenKind::period)) return words_.peek(2).meaning.role == KeywordRole::verb;
  // Sections of the data division have names that are known.
  return next.is(Keyword::section) && !isEnvironmentSection(word.token.text);
}

// What begins with entries is a copybook.
bool ProgramReader::isCopybook() {
  const Word& word = words_.peek();
  const Word& next = words_.peek(1);
  if (levelOf(word) >= 0 || word.is(Keyword::fd) || word.is(Keyword::sd) ||
      word.is(Keyword::select)) {
    return true;
  }
  return next.is(Keyword::section) ||
         (next.is(Keyword::division) && (word.is(Keyword::data) || word.is(Keyword::environment)));
}

CobolProgram& ProgramReader::begin(std::string name, const SourcePlace& place) {
  auto program = std::make_unique<CobolProgram>();
  program->name = std::move(name);
  program->place = place;
  // Names are looked for in what contains a program; nobody nests programs deeper than by
  // forgetting to end them.
  program->outer = open_.empty() || open_.size() > mostNested ? nullptr : open_.back();
  if (program->outer != nullptr) {
    program->isDecimalPointComma = program->outer->isDecimalPointComma;
  }
  programs_.push_back(std::move(program));
  return *programs_.back();
}

void ProgramReader::readCopybook() {
  if (words_.atEnd()) return;
  const SourcePlace place = words_.peek().token.place;
  CobolProgram& program = begin(stem_, place);
  program.isCopybook = true;
  problems_.tell(EntryRule::copybook, place,
                 "there is no PROGRAM-ID: the entries become the dictionary of a program " + stem_);
  open_.push_back(&program);
  const std::size_t errors = problems_.errors();
  readBody(program, "", errors);
  if (problems_.errors() == errors && holdsNothing(program)) {
    problems_.tell(EntryRule::noProgram, place,
                   "the source holds neither a program nor data description entries");
    program.isRefused = true;
  }
}

// Whether there was nothing of a copybook, not even what dictionaries do not hold.
bool ProgramReader::holdsNothing(const CobolProgram& program) const {
  return program.entries.empty() && program.files.empty() && program.constants.empty() &&
         words_.source().passedCopybooks().empty() &&
         !problems_.wasNoted(EntryRule::passedSection) &&
         !problems_.wasNoted(EntryRule::badConstant);
}

// Everything of a source: programs begin with PROGRAM-ID and end with END PROGRAM, or with the
// source.
void ProgramReader::readDivisions() {
  while (!words_.atEnd()) {
    const Word& word = words_.peek();
    if (word.is(Keyword::programId)) {
      readProgramId();
    } else if (const OtherUnit* const unit = otherUnit(word)) {
      passOver(unit->what);
    } else if (word.is(Keyword::end) && words_.peek(1).is(Keyword::program)) {
      words_.skipSentence();
      readEnd();
    } else {
      words_.skip();
    }
  }
}

void ProgramReader::readEnd() {
  if (!open_.empty()) open_.pop_back();
}

// What stands inside other units ends with the END of the outermost one, or with the source.
void ProgramReader::passOver(const char* what) {
  problems_.tell(EntryRule::passedProgram, words_.peek().token.place,
                 std::string("a ") + what + " is passed over");
  std::vector<Keyword> ends;
  while (!words_.atEnd()) {
    const OtherUnit* const unit = otherUnit(words_.peek());
    if (unit != nullptr) ends.push_back(unit->end);
    if (words_.peek().is(Keyword::programId) && !words_.peek(1).is(TokenKind::literal)) return;
    if (words_.peek().is(Keyword::end) && !ends.empty() && words_.peek(1).is(TokenKind::word) &&
        words_.peek(1).is(ends.back()) && ends.back() != Keyword::name) {
      ends.pop_back();
      words_.skipSentence();
      if (ends.empty()) return;
      continue;
    }
    words_.skip();
  }
}

// PROGRAM-ID. NAME [AS "NAME"] [IS COMMON INITIAL RECURSIVE PROGRAM].
void ProgramReader::readProgramId() {
  const SourcePlace place = words_.peek().token.place;
  words_.skip();
  if (words_.peek().is(TokenKind::period)) words_.skip();
  std::string name;
  if (words_.peek().is(TokenKind::word) || words_.peek().is(TokenKind::literal)) {
    name = words_.take().token.text;
  }
  std::string entryName = name;
  if (words_.accept(Keyword::as) && words_.peek().is(TokenKind::literal)) {
    entryName = words_.take().token.text;
  }
  while (!words_.peek().is(TokenKind::period) && !words_.atEnd() &&
         !words_.peek(1).is(Keyword::division)) {
    words_.skip();
  }
  const std::size_t errors = problems_.errors();
  if (name.empty() || entryName.empty()) {
    problems_.tell(EntryRule::noName, place, "PROGRAM-ID names nothing");
    name = entryName = "UNNAMED";
  }
  CobolProgram& program = begin(std::move(name), place);
  open_.push_back(&program);
  readBody(program, entryName, errors);
}

// Everything of a program up to the next PROGRAM-ID or END PROGRAM.
void ProgramReader::readBody(CobolProgram& program, const std::string& entryName,
                             std::size_t errors) {
  EnvironmentReader(words_, program, names_).read();
  RecordBuilder records(dialect_, program, problems_, budget_, passed_);
  DataDivisionReader(words_, program, names_, records, budget_, problems_)
      .read(program.isCopybook ? stem_ : std::string());
  if (words_.peek().is(Keyword::procedure)) {
    ProcedureReader procedure(words_, program, names_, problems_);
    procedure.readHeader(entryName.empty() ? program.name : entryName);
    procedure.readStatements();
  }
  records.finish();
  findParameters(program, records);
  program.isRefused = problems_.errors() > errors;
}

// A program of CICS does not say in its source what it takes: that its translator adds.
void ProgramReader::takeCommarea(CobolProgram& program) {
  if (program.entryPoints.empty() || !program.entryPoints.front().parameters.empty()) return;
  for (const Index record : program.records) {
    const DataEntry& entry = program.entries[static_cast<std::size_t>(record)];
    if (entry.section != DataSection::linkage || !sameWord(entry.name, commarea)) continue;
    ParameterEntry parameter;
    parameter.name = {entry.name, entry.nameId};
    parameter.place = entry.place;
    problems_.tell(EntryRule::systemParameter, entry.place,
                   entry.name + " is what CICS hands over, and is taken as the parameter");
    program.entryPoints.front().parameters.push_back(std::move(parameter));
    return;
  }
}

void ProgramReader::findParameters(CobolProgram& program, RecordBuilder& records) {
  std::unordered_map<Index, Index> byName;
  for (const Index record : program.records) {
    const DataEntry& entry = program.entries[static_cast<std::size_t>(record)];
    if (entry.nameId != none) byName.emplace(entry.nameId, record);
  }
  takeCommarea(program);
  for (EntryPointEntry& entryPoint : program.entryPoints) {
    std::vector<ParameterEntry> found;
    for (ParameterEntry& parameter : entryPoint.parameters) {
      const auto item = byName.find(parameter.name.id);
      if (item != byName.end()) {
        parameter.item = item->second;
        found.push_back(std::move(parameter));
        continue;
      }
      if (isOfCics(parameter.name.text)) {
        problems_.tell(EntryRule::systemParameter, parameter.place,
                       parameter.name.text + " is what CICS hands over, and is left out");
        continue;
      }
      const Index member = records.find({parameter.name}).entry;
      problems_.tell(member == none ? EntryRule::lostParameter : EntryRule::partOfParameter,
                     parameter.place,
                     parameter.name.text + (member == none ? " is no item of the program"
                                                           : " is no item of level 01 or 77"));
    }
    entryPoint.parameters = std::move(found);
  }
}

}  // namespace as::toolkit
