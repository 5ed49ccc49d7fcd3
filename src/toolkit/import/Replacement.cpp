#include "toolkit/import/Replacement.h"

#include <utility>

#include "toolkit/import/Characters.h"
#include "toolkit/import/JoinedNames.h"
#include "toolkit/import/Token.h"

namespace as::toolkit {

LiteralParts partsOf(const TextWord& literal) {
  const std::size_t opening = literal.text.find_first_of("\"'");
  LiteralParts parts;
  parts.prefix = literal.text.substr(0, opening);
  parts.quote = literal.text[opening];
  parts.content = literal.text.substr(opening + 1);
  // The quotes behind the first come in pairs, and the last one closes.
  std::size_t quotes = 0;
  while (quotes < parts.content.size() &&
         parts.content[parts.content.size() - 1 - quotes] == parts.quote) {
    quotes++;
  }
  if (quotes % 2 == 1) parts.content.remove_suffix(1);
  return parts;
}

bool isSame(const TextWord& one, const TextWord& other) {
  if (one.kind != other.kind) return false;
  if (one.kind == TextWord::Kind::run) return sameWord(one.text, other.text);
  if (one.text == other.text) return true;
  if (one.kind != TextWord::Kind::literal) return false;
  const LiteralParts first = partsOf(one);
  const LiteralParts second = partsOf(other);
  if (!sameWord(first.prefix, second.prefix) || first.content != second.content) return false;
  return first.quote == second.quote ||
         first.content.find_first_of("\"'") == std::string_view::npos;
}

namespace {

class ReplacementReader {
 public:
  // `ofCopy` is the source where replacements end in front of JOINING, too; else null.
  ReplacementReader(TextWordSource& source, TextWord& word, const SourcePlace& place,
                    SourceReport& report, ReturnableWords* ofCopy)
      : source_(source), word_(word), place_(place), report_(report), ofCopy_(ofCopy) {}

  Replacements read() {
    Replacements all;
    while (word_.kind != TextWord::Kind::period && !isAtEnd()) {
      Replacement one;
      if (word_.isRun("LEADING")) one.part = Replacement::Part::leading;
      if (word_.isRun("TRAILING")) one.part = Replacement::Part::trailing;
      if (one.part != Replacement::Part::whole) source_.read(word_);
      if (!operand(one.words)) return skip(all, "a text, a word or a literal is wanting");
      if (isJoint(one)) {
        ofCopy_->giveBack(word_);
        word_ = one.words.front();
        return all;
      }
      if (one.words.empty()) return skip(all, "the text to be replaced is empty");
      if (!word_.isRun("BY")) return skip(all, "BY is wanting");
      source_.read(word_);
      if (!operand(one.by)) return skip(all, "the text behind BY is wanting");
      all.push_back(std::move(one));
    }
    if (isAtEnd())
      report_.add(SourceRule::copyPeriod, place_, "the statement ends without a period");
    return all;
  }

 private:
  bool isAtEnd() const {
    return word_.kind == TextWord::Kind::end || word_.kind == TextWord::Kind::barrier;
  }

  // Whether it is no replacement but what may stand behind them; words of that name can be
  // replaced.
  bool isJoint(const Replacement& one) const {
    return ofCopy_ != nullptr && one.part == Replacement::Part::whole && one.words.size() == 1 &&
           beginsJoint(one.words.front()) && !word_.isRun("BY");
  }

  // Pseudo-text, or a word with its qualifiers and subscripts; the word behind is read.
  bool operand(std::vector<TextWord>& words) {
    if (word_.isMark("==")) return pseudoText(words);
    if (word_.kind != TextWord::Kind::run && word_.kind != TextWord::Kind::literal) return false;
    const bool isIdentifier = word_.kind == TextWord::Kind::run;
    words.push_back(word_);
    source_.read(word_);
    while (isIdentifier && (word_.isRun("OF") || word_.isRun("IN"))) {
      words.push_back(word_);
      source_.read(word_);
      if (word_.kind != TextWord::Kind::run) return false;
      words.push_back(word_);
      source_.read(word_);
    }
    if (!isIdentifier || !word_.isMark("(")) return true;
    std::size_t open = 0;
    do {
      if (word_.isMark("(")) open++;
      if (word_.isMark(")")) open--;
      if (isAtEnd() || word_.kind == TextWord::Kind::period) return false;
      words.push_back(word_);
      source_.read(word_);
    } while (open > 0);
    return true;
  }

  bool pseudoText(std::vector<TextWord>& words) {
    const SourcePlace begin = word_.place;
    for (source_.read(word_); !word_.isMark("=="); source_.read(word_)) {
      if (isAtEnd()) {
        report_.add(SourceRule::unterminatedText, begin, "the pseudo-text does not end",
                    "end it with ==");
        return true;
      }
      words.push_back(word_);
    }
    source_.read(word_);
    return true;
  }

  Replacements& skip(Replacements& all, const char* problem) {
    report_.add(SourceRule::copySyntax, word_.place,
                std::string(problem) + (word_.text.empty() ? "" : " in front of ") +
                    (word_.text.empty() ? "" : quoted(word_.text)),
                "what follows up to the period is passed over");
    while (word_.kind != TextWord::Kind::period && !isAtEnd()) source_.read(word_);
    return all;
  }

  TextWordSource& source_;
  TextWord& word_;
  const SourcePlace place_;
  SourceReport& report_;
  ReturnableWords* const ofCopy_;
};

}  // namespace

Replacements readReplacements(TextWordSource& source, TextWord& word, const SourcePlace& place,
                              SourceReport& report) {
  return ReplacementReader(source, word, place, report, nullptr).read();
}

Replacements readCopyReplacements(ReturnableWords& source, TextWord& word, const SourcePlace& place,
                                  SourceReport& report) {
  return ReplacementReader(source, word, place, report, &source).read();
}

}  // namespace as::toolkit
