#include "toolkit/import/CopyExpander.h"

#include <algorithm>
#include <utility>

#include "toolkit/import/Characters.h"
#include "toolkit/import/FormatRecognition.h"
#include "toolkit/import/StatementWords.h"

namespace as::toolkit {

namespace {

std::string nameOf(const TextWord& word) {
  return std::string(word.kind == TextWord::Kind::literal ? partsOf(word).content : word.text);
}

bool isName(const TextWord& word) {
  return word.kind == TextWord::Kind::run || word.kind == TextWord::Kind::literal;
}

}  // namespace

// A file that is being read.
class CopyExpander::Frame : public TextWordSource {
 public:
  Frame(CopyExpander& expander, std::size_t depth, const SourceText& text, SourceFormat format,
        std::string fileName, std::int32_t file, CopyChanges changes)
      : lines(text, format, file, expander.arena_, expander.report_),
        scanner(lines, file, expander.directives_, expander.report_),
        name(std::move(fileName)),
        expander_(expander),
        depth_(depth),
        replacements_(std::move(changes.replacements)) {
    lines.setDebugging(expander.debugging_);
    TextWordSource* words = this;
    if (!replacements_.empty()) {
      replacer_.emplace(*words, replacements_, expander.arena_, expander.budget_);
      words = &*replacer_;
    }
    if (!changes.joint.isNothing()) {
      joined_.emplace(*words, std::move(changes.joint), expander.arena_, expander.budget_);
    }
  }

  // For what changes it: what the file says, copies put in.
  void read(TextWord& word) override { expander_.readRaw(depth_, word); }

  // The same with its changes.
  void readChanged(TextWord& word) {
    if (joined_) {
      joined_->read(word);
    } else if (replacer_) {
      replacer_->read(word);
    } else {
      read(word);
    }
  }

  // A word of the file itself.
  void readOwn(TextWord& word) {
    if (pushed_) {
      word = *pushed_;
      pushed_.reset();
    } else {
      scanner.read(word);
    }
  }
  void pushBack(const TextWord& word) { pushed_ = word; }

  SourceLines lines;
  WordScanner scanner;
  const std::string name;

 private:
  CopyExpander& expander_;
  const std::size_t depth_;
  const Replacements replacements_;
  std::optional<Replacer> replacer_;
  std::optional<JoinedNames> joined_;
  std::optional<TextWord> pushed_;
};

CopyExpander::CopyExpander(const SourceOptions& options, CopybookProvider* copybooks,
                           SourceMap& map, TextArena& arena, ImportBudget& budget,
                           SourceReport& report)
    : options_(options),
      map_(map),
      arena_(arena),
      budget_(budget),
      report_(report),
      directives_(options.definitions, report),
      library_(copybooks),
      exec_(report) {}

CopyExpander::~CopyExpander() = default;

void CopyExpander::open(std::string bytes, const std::string& name) {
  const std::int32_t file = map_.add(name);
  if (bytes.size() > importLimits::sourceText) {
    report_.add(SourceRule::limit, {file, 0, 0},
                "the source is longer than " + std::to_string(importLimits::sourceText) +
                    " bytes, and is not read");
    bytes.clear();
  }
  text_ = decodeSource(std::move(bytes), options_.encoding, file, report_);
  format_ = options_.format != SourceFormat::recognised
                ? options_.format
                : recognisedFormat(text_.text, SourceFormat::fixed);
  push(text_, format_, name, file, {});
}

void CopyExpander::push(const SourceText& text, SourceFormat format, const std::string& name,
                        std::int32_t file, CopyChanges changes) {
  frames_.push_back(
      std::make_unique<Frame>(*this, frames_.size(), text, format, name, file, std::move(changes)));
}

void CopyExpander::setDebugging() {
  debugging_ = true;
  for (const auto& frame : frames_) frame->lines.setDebugging(true);
}

void CopyExpander::finish() {
  directives_.finish();
  exec_.finish();
}

// Calls itself as deep as copybooks nest, of which there is a limit.
void CopyExpander::readFrame(std::size_t depth, TextWord& word) {
  frames_[depth]->readChanged(word);
}

void CopyExpander::readRaw(std::size_t depth, TextWord& word) {
  while (true) {
    if (frames_.size() > depth + 1) {
      readFrame(depth + 1, word);
      if (word.kind != TextWord::Kind::end) return;
      frames_.resize(depth + 1);
    }
    Frame& frame = *frames_[depth];
    frame.readOwn(word);
    if (budget_.isExhausted()) word.kind = TextWord::Kind::end;
    if (word.kind == TextWord::Kind::run) {
      const Statement statement = statementOf(word);
      if (statement != Statement::none && takeStatement(frame, statement, word)) continue;
    }
    division_.follow(word);
    sentenceOpen_ = word.kind != TextWord::Kind::period;
    return;
  }
}

// Whether the word is done with; otherwise it is a word as any other.
bool CopyExpander::takeStatement(Frame& frame, Statement statement, const TextWord& word) {
  const std::string_view rest = frame.scanner.restOfLine();
  switch (statement) {
    case Statement::copy:
      return takeCopy(frame, word);
    case Statement::exec:
      return takeExec(frame, word);
    case Statement::include:
      takeInclude(frame, word);
      return true;
    case Statement::eject:
      if (!rest.empty() && rest != ".") return false;
      frame.scanner.skipRestOfLine();
      return true;
    case Statement::title:
      if (rest.empty() || !isQuote(rest.front())) return false;
      frame.scanner.skipRestOfLine();
      return true;
    case Statement::basis:
    case Statement::insert:
      if (sentenceOpen_ || (statement == Statement::insert && !basisSeen_)) return false;
      basisSeen_ = true;
      report_.add(SourceRule::unsupported, word.place,
                  std::string(word.text) + " is not supported, and is passed over",
                  "import the source that it makes");
      frame.scanner.skipRestOfLine();
      return true;
    case Statement::identification:
      if (sameWord(word.text, "PROGRAM-ID") || sameWord(firstWord(rest), "DIVISION")) {
        inIdentification_ = true;
      }
      return false;
    case Statement::otherDivision:
      if (sameWord(firstWord(rest), "DIVISION")) inIdentification_ = false;
      return false;
    case Statement::commentEntry:
      return inIdentification_ && takeCommentEntry(frame);
    case Statement::none:
      break;
  }
  return false;
}

bool CopyExpander::takeCommentEntry(Frame& frame) {
  TextWord next;
  frame.readOwn(next);
  if (next.kind != TextWord::Kind::period) {
    frame.pushBack(next);
    return false;
  }
  frame.scanner.skipLinesUntil(endsCommentEntry);
  return true;
}

bool CopyExpander::takeCopy(Frame& frame, const TextWord& word) {
  const SourcePlace place = word.place;
  TextWord name;
  frame.readOwn(name);
  if (!isName(name)) {
    if (name.kind != TextWord::Kind::mark) {
      report_.add(SourceRule::copySyntax, place, "COPY names no copybook");
    }
    frame.pushBack(name);
    return false;
  }
  std::string library;
  TextWord next;
  frame.readOwn(next);
  if (name.isRun("RESOURCE") && next.kind == TextWord::Kind::literal) {
    // A picture or the like, which is put into the program's file.
    skipPeriod(frame);
    return true;
  }
  if (next.isRun("OF") || next.isRun("IN")) {
    frame.readOwn(next);
    if (isName(next)) {
      library = nameOf(next);
      frame.readOwn(next);
    } else {
      report_.add(SourceRule::copySyntax, next.place, "COPY names no library behind OF");
    }
  }
  if (next.isRun("SUPPRESS")) {
    frame.readOwn(next);
    if (next.isRun("PRINTING")) frame.readOwn(next);
  }
  CopyChanges changes;
  ReturnableWords words(frame.scanner);
  changes.joint = readJoint(words, next, place, report_);
  const bool isReplacing = next.isRun("REPLACING");
  if (isReplacing) {
    words.read(next);
    changes.replacements = changes.joint.isNothing()
                               ? readCopyReplacements(words, next, place, report_)
                               : readReplacements(words, next, place, report_);
  }
  const bool isJoinedBehind = isReplacing && beginsJoint(next);
  if (isJoinedBehind) changes.joint = readJoint(words, next, place, report_);
  if ((!isReplacing || isJoinedBehind) && next.kind != TextWord::Kind::period) {
    report_.add(SourceRule::copyPeriod, place, "COPY " + nameOf(name) + " ends without a period",
                "write a period behind it");
    frame.pushBack(next);
  }
  include(name, library, place, std::move(changes));
  return true;
}

// "++INCLUDE NAME" and "-INC NAME", as library systems have them.
void CopyExpander::takeInclude(Frame& frame, const TextWord& word) {
  const SourcePlace place = word.place;
  if (frame.scanner.restOfLine().empty()) {
    report_.add(SourceRule::copySyntax, place, std::string(word.text) + " names no copybook");
    return;
  }
  TextWord name;
  frame.readOwn(name);
  frame.scanner.skipRestOfLine();
  if (isName(name)) {
    include(name, "", place, {});
  } else {
    report_.add(SourceRule::copySyntax, place, "a name is wanting");
  }
}

void CopyExpander::skipPeriod(Frame& frame) const {
  TextWord next;
  frame.readOwn(next);
  // Within a sentence the period is that of the sentence.
  if (next.kind != TextWord::Kind::period || sentenceOpen_) frame.pushBack(next);
}

bool CopyExpander::takeExec(Frame& frame, const TextWord& word) {
  const SourcePlace place = word.place;
  const ExecStatements::Read statement = exec_.read(frame.scanner, place);
  if (!statement.isWhole) return true;
  skipPeriod(frame);
  if (statement.included) include(*statement.included, "", place, {});
  return true;
}

bool CopyExpander::isOpen(const std::string& name) const {
  return std::any_of(frames_.begin(), frames_.end(),
                     [&](const auto& frame) { return frame->name == name; });
}

std::string CopyExpander::chainTo(const std::string& name) const {
  std::string chain;
  bool isWithin = false;
  for (const auto& frame : frames_) {
    isWithin = isWithin || frame->name == name;
    if (isWithin) chain += frame->name + " copies ";
  }
  return chain + name;
}

// Items are in copybooks of other divisions. Those of the procedure division may have entry points,
// but few do; sections that are passed over have none.
void CopyExpander::tellMissing(SourceRule rule, const std::string& problem,
                               const std::string& advice, const SourcePlace& place) {
  if (division_.isProcedureBody()) {
    report_.add(SourceRule::procedureCopybook, place, problem + ": entry points in it are left out",
                advice);
  } else if (division_.isPassedSection()) {
    report_.add(SourceRule::sectionCopybook, place, problem + ": its section is passed over",
                advice);
  } else {
    report_.add(rule, place, problem, advice);
  }
}

void CopyExpander::include(const TextWord& name, const std::string& library,
                           const SourcePlace& place, CopyChanges changes) {
  budget_.addInclusion(place);
  if (budget_.isExhausted()) return;
  if (frames_.size() > importLimits::nesting) {
    report_.add(SourceRule::limit, place,
                "copybooks nest deeper than " + std::to_string(importLimits::nesting) +
                    "; this one is not read");
    return;
  }
  const std::string text = nameOf(name);
  const bool canBeFile = text.size() <= importLimits::copybookName &&
                         library.size() <= importLimits::copybookName && !text.empty() &&
                         text.find('\0') == std::string::npos &&
                         library.find('\0') == std::string::npos;
  CopybookLibrary::Entry* const entry = canBeFile ? library_.find(text, library) : nullptr;
  if (entry == nullptr) {
    if (isSystemCopybook(text)) {
      passedCopybooks_.push_back(place);
      report_.add(
          SourceRule::systemCopybook, place,
          "the copybook " + text + " comes with the system; it was not found and is passed over",
          "");
      return;
    }
    tellMissing(SourceRule::copybookMissing,
                "the copybook " + quoted(text) +
                    (library.empty() ? "" : " of the library " + quoted(library)) +
                    " was not found",
                "name its folder", place);
    return;
  }
  if (!entry->error.empty()) {
    tellMissing(SourceRule::copybookUnreadable,
                "the copybook " + quoted(text) + " cannot be read: " + entry->error, "", place);
    return;
  }
  if (!standsWhereNamed(text, library, entry->name)) {
    report_.add(SourceRule::copybookElsewhere, place,
                "the copybook " + quoted(text) + " is taken from " + entry->name);
  }
  if (isOpen(entry->name)) {
    report_.add(SourceRule::copybookCycle, place,
                "the copybook copies itself: " + chainTo(entry->name));
    return;
  }
  budget_.addText(entry->isDecoded ? entry->text.text.size() : entry->bytes.size(), place);
  if (budget_.isExhausted()) return;
  const std::int32_t file = map_.add(entry->name, place);
  if (!entry->isDecoded) {
    entry->text = decodeSource(std::exchange(entry->bytes, {}), options_.encoding, file, report_);
    entry->isDecoded = true;
  }
  const SourceFormat around = frames_.back()->lines.format();
  const SourceFormat entryFormat =
      copybookFormat(entry->text.text, around, options_.format != SourceFormat::recognised);
  push(entry->text, entryFormat, entry->name, file, std::move(changes));
}

}  // namespace as::toolkit
