#include "toolkit/import/ReplaceStage.h"

#include <iterator>
#include <utility>

namespace as::toolkit {

ReplaceStage::ReplaceStage(TextWordSource& source, TextArena& arena, ImportBudget& budget,
                           SourceReport& report)
    : arena_(arena), budget_(budget), report_(report), input_(source) {}

void ReplaceStage::Input::read(TextWord& word) {
  readStatement(word);
  constexpr std::size_t sizeOfReplace = 7;
  if (word.text.size() != sizeOfReplace || !word.isRun("REPLACE")) return;
  TextWord next;
  source_.read(next);
  next_ = next;
  if (next.isMark("==") || next.kind == TextWord::Kind::literal || next.isRun("OFF") ||
      next.isRun("ALSO") || next.isRun("LAST") || next.isRun("LEADING") || next.isRun("TRAILING")) {
    word.kind = TextWord::Kind::barrier;
  }
}

void ReplaceStage::Input::readStatement(TextWord& word) {
  if (next_) {
    word = *next_;
    next_.reset();
  } else {
    source_.read(word);
  }
}

void ReplaceStage::read(TextWord& word) {
  while (true) {
    if (replacer_) {
      replacer_->read(word);
    } else {
      input_.read(word);
    }
    if (word.kind != TextWord::Kind::barrier) return;
    takeStatement(word.place);
  }
}

void ReplaceStage::takeStatement(const SourcePlace& place) {
  // What reads ahead for it has nothing left to give.
  replacer_.reset();
  TextWord word;
  input_.readStatement(word);
  const bool isLast = word.isRun("LAST");
  if (isLast) input_.readStatement(word);
  if (word.isRun("OFF")) {
    do {
      takeBack();
    } while (!isLast && !counts_.empty());
    input_.readStatement(word);
    if (word.kind != TextWord::Kind::period) {
      report_.add(SourceRule::copyPeriod, place, "REPLACE OFF ends without a period",
                  "write a period behind it");
      input_.pushBack(word);
    }
  } else {
    if (isLast) report_.add(SourceRule::copySyntax, word.place, "OFF is wanting behind LAST");
    if (word.isRun("ALSO")) {
      input_.readStatement(word);
    } else {
      replacements_.clear();
      counts_.clear();
    }
    add(readReplacements(input_.source(), word, place, report_));
  }
  if (!replacements_.empty()) {
    replacer_ = std::make_unique<Replacer>(input_, replacements_, arena_, budget_);
  }
}

void ReplaceStage::add(Replacements replacements) {
  counts_.push_back(replacements.size());
  replacements_.insert(replacements_.begin(), std::make_move_iterator(replacements.begin()),
                       std::make_move_iterator(replacements.end()));
}

void ReplaceStage::takeBack() {
  if (counts_.empty()) return;
  replacements_.erase(replacements_.begin(),
                      replacements_.begin() + static_cast<std::ptrdiff_t>(counts_.back()));
  counts_.pop_back();
}

}  // namespace as::toolkit
