#include "toolkit/import/DataDivisionReader.h"

#include <cstddef>
#include <optional>
#include <utility>
#include <vector>

#include "toolkit/import/EntryWords.h"

namespace as::toolkit {

namespace {

constexpr int renamesLevel = 66;
constexpr int noncontiguousLevel = 77;
constexpr int constantLevel = 78;
constexpr int conditionLevel = 88;

bool isItemLevel(int level) {
  return (level >= 1 && level <= 49) || level == renamesLevel || level == noncontiguousLevel;
}

// What clauses of a file have numbers of.
bool isCounted(const std::string& word) {
  return sameWord(word, "RECORDS") || sameWord(word, "CHARACTERS") || sameWord(word, "LINES");
}

}  // namespace

DataDivisionReader::DataDivisionReader(WordReader& words, CobolProgram& program, NameTable& names,
                                       RecordBuilder& records, EntryBudget& budget,
                                       EntryProblems& problems)
    : words_(words),
      program_(program),
      names_(names),
      records_(records),
      problems_(problems),
      constants_(
          words, program, names, budget,
          [&records](const NameReference& reference) { return records.lengthOf(reference); }),
      clauses_(words, program, names, constants_, problems),
      conditions_(words, program, constants_, problems) {
  for (std::size_t i = 0; i < program.files.size(); ++i) files_[program.files[i].nameId] = i;
}

bool DataDivisionReader::isAtSection() {
  return words_.peek().is(TokenKind::word) && words_.peek(1).is(Keyword::section);
}

bool DataDivisionReader::isAtEnd() {
  const Word& word = words_.peek();
  if (word.is(TokenKind::end) || word.meaning.role == KeywordRole::unit) return true;
  if (isAtEndOfUnit(words_)) return true;
  const bool isDivision = word.is(Keyword::procedure) || word.is(Keyword::identification) ||
                          word.is(Keyword::id) || word.is(Keyword::environment);
  return isDivision && words_.peek(1).is(Keyword::division);
}

void DataDivisionReader::read(const std::string& recordName) {
  std::string wanted = recordName;
  while (!isAtEnd()) {
    const Word& word = words_.peek();
    const bool isLast = word.is(Keyword::end) && words_.peek(1).is(TokenKind::end);
    if (word.is(TokenKind::period) || isLast) {
      words_.skip();
    } else if (word.is(Keyword::data) && words_.peek(1).is(Keyword::division)) {
      words_.skipSentence();
    } else if (isAtSection()) {
      readSection();
    } else if (word.is(Keyword::fd) || word.is(Keyword::sd)) {
      readFile();
    } else if (levelOf(word) >= 0) {
      readEntry(wanted);
      wanted.clear();
    } else {
      problems_.tell(EntryRule::unknownText, word.token.place,
                     word.token.text + " begins no section and no entry");
      words_.skipSentence();
    }
  }
  records_.closeRecord();
}

void DataDivisionReader::readSection() {
  const Word section = words_.take();
  words_.skip();
  if (words_.peek().is(TokenKind::period)) words_.skip();
  switch (section.meaning.keyword) {
    case Keyword::file:
      return records_.enter(DataSection::file);
    case Keyword::workingStorage:
      return records_.enter(DataSection::workingStorage);
    case Keyword::localStorage:
      return records_.enter(DataSection::localStorage);
    case Keyword::linkage:
      return records_.enter(DataSection::linkage);
    case Keyword::basedStorage:
      problems_.tell(EntryRule::passedClause, section.token.place,
                     "that items are BASED is not held by dictionaries");
      return records_.enter(DataSection::workingStorage);
    case Keyword::constant:
      return records_.enter(DataSection::workingStorage);
    case Keyword::screen:
    case Keyword::report:
    case Keyword::communication:
      problems_.tell(EntryRule::passedSection, section.token.place,
                     "the " + section.token.text + " SECTION is passed over");
      break;
    default:
      problems_.tell(EntryRule::unknownText, section.token.place,
                     section.token.text + " SECTION is no section of a data division");
  }
  records_.closeRecord();
  skipSection();
}

void DataDivisionReader::skipSection() {
  while (!isAtEnd() && !isAtSection()) words_.skip();
}

// What FD and SD entries say besides the name stands in no dictionary.
void DataDivisionReader::readFile() {
  records_.enter(DataSection::file);
  words_.skip();
  const Word name = words_.peek();
  const bool isNamed = name.is(TokenKind::word);
  if (isNamed) {
    words_.skip();
  } else {
    problems_.tell(EntryRule::unknownText, name.token.place, "FD is followed by no name");
  }
  bool isGlobal = false;
  while (!words_.peek().is(TokenKind::period) && !isAtEnd() && !isAtSection()) {
    const Word& word = words_.peek();
    if (isAtRecord()) {
      problems_.tell(
          EntryRule::noPeriod, word.token.place,
          "there is no period in front of " + word.token.text + " " + words_.peek(1).token.text);
      break;
    }
    isGlobal = isGlobal || word.is(Keyword::global);
    words_.skip();
  }
  if (words_.peek().is(TokenKind::period)) words_.skip();
  const Index id = names_.idOf(name.token.text);
  const auto known = files_.find(id);
  std::size_t at = known == files_.end() ? program_.files.size() : known->second;
  if (known == files_.end()) {
    FileEntry file;
    file.name = name.token.text;
    file.nameId = id;
    program_.files.push_back(std::move(file));
    files_[id] = at;
    if (isNamed && !program_.isCopybook) {
      problems_.tell(EntryRule::noSelect, name.token.place,
                     name.token.text + " has no SELECT entry");
    }
  }
  FileEntry& file = program_.files[at];
  if (!file.isDescribed) program_.describedFiles.push_back(static_cast<Index>(at));
  file.isDescribed = true;
  file.isGlobal = isGlobal;
  records_.enterFile(&file);
}

// Whether a record begins where clauses of a file may stand: "01 RECORD-NAME PIC X(80)". Numbers
// stand in those clauses, too ("RECORD CONTAINS 01 TO 80 CHARACTERS").
bool DataDivisionReader::isAtRecord() {
  if (levelOf(words_.peek()) != 1) return false;
  const Word& name = words_.peek(1);
  if (name.is(Keyword::pic) || name.is(Keyword::picture)) return true;
  if (!name.is(TokenKind::word) || isCounted(name.token.text)) return false;
  if (name.meaning.keyword != Keyword::name && !name.is(Keyword::filler)) return false;
  const Word& next = words_.peek(2);
  return next.is(TokenKind::period) || isClause(next);
}

bool DataDivisionReader::isConstant() {
  if (!words_.peek().is(Keyword::constant)) return false;
  // "CONSTANT RECORD" is a clause; AS may be left out.
  const Word& next = words_.peek(1);
  return !next.is(TokenKind::period) && !next.is(Keyword::record);
}

void DataDivisionReader::readEntry(const std::string& recordName) {
  const Word number = words_.take();
  const int level = levelOf(number);
  DataEntry entry;
  entry.place = number.token.place;
  entry.level = level;
  if (level == conditionLevel) {
    conditions_.read(records_.conditionHolder());
    return;
  }
  if (level != constantLevel && !isItemLevel(level)) {
    problems_.tell(EntryRule::unknownLevel, entry.place, number.token.text + " is no level");
    words_.skipSentence();
    return;
  }
  clauses_.readName(entry);
  if (level == constantLevel || isConstant()) {
    readConstant(entry, level == constantLevel);
    return;
  }
  entry.isRenaming = level == renamesLevel;
  if (!recordName.empty() && level > 1 && level < renamesLevel) {
    DataEntry record;
    record.name = recordName;
    record.nameId = names_.idOf(recordName);
    record.place = entry.place;
    record.level = 1;
    problems_.tell(
        EntryRule::copybook, entry.place,
        "the first level is " + number.token.text + ": " + recordName + " is put above it");
    records_.add(std::move(record));
  }
  clauses_.readClauses(entry);
  if (entry.isRenaming && entry.reference == none && !entry.isDamaged) {
    problems_.tell(EntryRule::badClause, entry.place, entry.name + " renames nothing");
  }
  std::vector<DataEntry> members = clauses_.takeMembers(entry);
  if (!records_.add(std::move(entry))) return;
  for (DataEntry& member : members) records_.add(std::move(member));
}

void DataDivisionReader::readConstant(const DataEntry& entry, bool isLevel78) {
  if (!isLevel78) words_.skip();
  while (words_.accept(Keyword::isWord) || words_.accept(Keyword::global)) {
  }
  const bool isFrom = words_.accept(Keyword::from);
  if (isLevel78) {
    if (!words_.accept(Keyword::value)) words_.accept(Keyword::values);
    words_.accept(Keyword::isWord);
  } else if (!isFrom) {
    words_.accept(Keyword::as);
  }
  const SourcePlace place = words_.peek().token.place;
  const std::optional<ConstantEntry> value =
      isFrom ? constants_.takeDefinition() : constants_.takeValue();
  const bool isWhole = words_.peek().is(TokenKind::period) || isAtNextEntry(words_);
  if (entry.nameId != none && value && isWhole) {
    program_.constants[entry.nameId] = *value;
    clauses_.endEntry(entry);
    return;
  }
  problems_.tell(EntryRule::badConstant, place, "the value of " + entry.name + " is not known");
  words_.skipSentence();
}

}  // namespace as::toolkit
