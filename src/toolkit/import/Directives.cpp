#include "toolkit/import/Directives.h"

#include <algorithm>

#include "toolkit/import/Characters.h"
#include "toolkit/import/Token.h"

namespace as::toolkit {

namespace {

// Those that change nothing about the data.
constexpr std::string_view withoutBearing[] = {
    "CALL-CONVENTION",    "COBOL-WORDS", "DISPLAY", "EJECT", "FLAG-02",   "FLAG-14", "FLAG-85",
    "LEAP-SECOND",        "LISTING",     "PAGE",    "POP",   "PROPAGATE", "PUSH",    "REGION",
    "REPOSITORY",         "SKIP1",       "SKIP2",   "SKIP3", "TITLE",     "TURN",    "END-REGION",
    "REF-MOD-ZERO-LENGTH"};

bool isAny(std::string_view word, std::initializer_list<std::string_view> words) {
  return std::any_of(words.begin(), words.end(),
                     [&](std::string_view one) { return sameWord(one, word); });
}

}  // namespace

Directives::Directives(const std::vector<SourceOptions::Definition>& parameters,
                       SourceReport& report)
    : report_(report), tellUndefined_([this](std::string_view name) {
        report_.add(SourceRule::undefinedName, place_,
                    quoted(name) + " is not defined: what compares with it is not so");
      }) {
  for (const SourceOptions::Definition& parameter : parameters) {
    DirectiveText text(parameter.value);
    DirectivePart part = text.take();
    const bool isNumber = part.kind == DirectivePart::Kind::number && text.isAtEnd();
    part = {isNumber ? DirectivePart::Kind::number : DirectivePart::Kind::literal, parameter.value};
    parameters_.define(parameter.name, DirectiveValue::of(part), true);
    definitions_.define(parameter.name, DirectiveValue::of(part), true);
  }
}

void Directives::noteOnce(SourceRule rule, std::string_view key, const std::string& problem) {
  constexpr std::size_t most = 1000;
  if (noted_.size() < most && noted_.emplace(key.substr(0, most)).second) {
    report_.add(rule, place_, problem);
  }
}

void Directives::take(const SourceLine& line, std::int32_t file, SourceLines& lines) {
  place_ = {file, line.number, line.column};
  const std::string_view mark =
      line.text.substr(0, 2) == ">>" ? line.text.substr(0, 2) : line.text.substr(0, 1);
  const bool isCard = mark != ">>" && mark != "$";
  if (isCard) {
    if (!isSkipping()) {
      noteOnce(SourceRule::compilerOptions, line.text,
               "the compiler options " + quoted(line.text) + " are passed over");
    }
    return;
  }
  DirectiveText text(line.text.substr(mark.size()));
  try {
    const std::string_view word = text.take().text;
    if (takeConditional(word, text) || isSkipping()) return;
    if (isAny(word, {"DEFINE"})) {
      takeDefine(text);
    } else if (isAny(word, {"SOURCE"})) {
      takeSource(text, lines);
    } else if (isAny(word, {"SET"})) {
      takeSet(line.text, text, lines);
    } else if (std::none_of(std::begin(withoutBearing), std::end(withoutBearing),
                            [&](std::string_view known) { return sameWord(known, word); })) {
      noteOnce(SourceRule::directive, word,
               "the directive " + quoted(line.text) + " is not known and passed over");
    }
  } catch (const DirectiveError& error) {
    report_.add(SourceRule::directiveSyntax, place_, error.what());
  }
}

bool Directives::takeConditional(std::string_view word, DirectiveText& text) {
  if (isAny(word, {"IF"})) {
    open(false);
    if (!branches_.back().isWithinSkipped) turn(definitions_.isTrue(text, tellUndefined_));
  } else if (isAny(word, {"ELIF", "ELSE-IF"}) || (isAny(word, {"ELSE"}) && text.accept("IF"))) {
    Branch& branch = current("ELIF", false);
    branch.isActive = false;
    if (!branch.isWithinSkipped && !branch.wasActive) {
      turn(definitions_.isTrue(text, tellUndefined_));
    }
  } else if (isAny(word, {"ELSE"})) {
    current("ELSE", false);
    turn(true);
  } else if (isAny(word, {"EVALUATE"})) {
    open(true);
    Branch& branch = branches_.back();
    if (branch.isWithinSkipped) return true;
    branch.comparesWithTrue = text.accept("TRUE");
    if (!branch.comparesWithTrue) branch.subject = definitions_.valueOf(text, tellUndefined_);
  } else if (isAny(word, {"WHEN"})) {
    Branch& branch = current("WHEN", true);
    branch.isActive = false;
    if (!branch.isWithinSkipped && !branch.wasActive) turn(text.accept("OTHER") || whenHolds(text));
  } else if (isAny(word, {"END-EVALUATE"})) {
    current("END-EVALUATE", true);
    branches_.pop_back();
  } else if (isAny(word, {"END-IF", "END"})) {
    current("END-IF", false);
    branches_.pop_back();
  } else {
    return false;
  }
  return true;
}

void Directives::open(bool isEvaluate) {
  Branch branch;
  branch.place = place_;
  branch.isWithinSkipped = isSkipping();
  branch.isEvaluate = isEvaluate;
  branches_.push_back(std::move(branch));
}

// What stands behind is read if `isTrue`, unless what was in front of it was.
void Directives::turn(bool isTrue) {
  Branch& branch = branches_.back();
  branch.isActive = isTrue && !branch.wasActive && !branch.isWithinSkipped;
  branch.wasActive = branch.wasActive || branch.isActive;
}

Directives::Branch& Directives::current(const char* word, bool isEvaluate) {
  if (branches_.empty() || branches_.back().isEvaluate != isEvaluate) {
    throw DirectiveError(std::string(word) + " stands without " +
                         (isEvaluate ? "an EVALUATE" : "an IF"));
  }
  return branches_.back();
}

bool Directives::whenHolds(DirectiveText& text) {
  const Branch& branch = branches_.back();
  if (branch.comparesWithTrue) return definitions_.isTrue(text, tellUndefined_);
  const auto first = definitions_.valueOf(text, tellUndefined_);
  const bool isRange = text.accept("THRU") || text.accept("THROUGH");
  const auto last = isRange ? definitions_.valueOf(text, tellUndefined_) : first;
  return branch.subject && first && last && compare(*branch.subject, *first) >= 0 &&
         compare(*branch.subject, *last) <= 0;
}

void Directives::takeDefine(DirectiveText& text) {
  text.accept("CONSTANT");
  const DirectivePart name = text.take();
  if (name.kind != DirectivePart::Kind::word) throw DirectiveError("DEFINE names nothing");
  text.accept("AS");
  if (text.accept("OFF")) {
    definitions_.remove(name.text);
    return;
  }
  if (text.accept("PARAMETER")) {
    if (const DirectiveValue* value = parameters_.find(name.text)) {
      definitions_.define(name.text, *value, true);
    }
    return;
  }
  const auto value =
      text.isAtEnd() ? DirectiveValue{} : definitions_.resultOf(text, tellUndefined_);
  const bool overrides = text.accept("OVERRIDE");
  if (!text.isAtEnd()) {
    throw DirectiveError("DEFINE takes one literal; " + quoted(text.peek().text) +
                         " is not understood");
  }
  if (value) definitions_.define(name.text, *value, overrides);
}

void Directives::takeSource(DirectiveText& text, SourceLines& lines) {
  text.accept("FORMAT");
  text.accept("IS");
  setFormat(text.take().text, lines);
}

void Directives::setFormat(std::string_view word, SourceLines& lines) {
  if (sameWord(word, "FREE")) {
    lines.setFormat(SourceFormat::free);
  } else if (sameWord(word, "FIXED")) {
    lines.setFormat(SourceFormat::fixed);
  } else if (sameWord(word, "VARIABLE")) {
    lines.setFormat(SourceFormat::variable);
  } else {
    throw DirectiveError("the source format " + quoted(word) + " is not known");
  }
}

void Directives::takeSet(std::string_view line, DirectiveText& text, SourceLines& lines) {
  bool isTold = false;
  while (!text.isAtEnd()) {
    // An option with its value: NAME"VALUE", NAME(VALUE), NAME=VALUE, NAME VALUE.
    const auto skipMarks = [&] {
      while (text.accept("(") || text.accept(")") || text.accept("=")) {
      }
    };
    if (text.accept("SOURCEFORMAT")) {
      skipMarks();
      setFormat(text.take().text, lines);
    } else if (text.accept("CONSTANT")) {
      const std::string_view name = text.take().text;
      skipMarks();
      if (const auto value = definitions_.valueOf(text, tellUndefined_)) {
        definitions_.define(name, *value, true);
      }
    } else {
      if (!isTold) {
        noteOnce(SourceRule::compilerOptions, line,
                 "the compiler options " + quoted(line) + " are passed over");
      }
      isTold = true;
      text.take();
    }
    skipMarks();
  }
}

void Directives::finish() {
  for (const Branch& branch : branches_) {
    report_.add(SourceRule::directiveSyntax, branch.place,
                branch.isEvaluate ? "the EVALUATE does not end" : "the IF does not end");
  }
  branches_.clear();
}

}  // namespace as::toolkit
