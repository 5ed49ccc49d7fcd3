#include "toolkit/import/Replacer.h"

#include <algorithm>

#include "toolkit/import/Characters.h"
#include "toolkit/import/Token.h"

namespace as::toolkit {

namespace {

bool isSimple(std::string_view text) {
  return std::all_of(text.begin(), text.end(), isWordCharacter);
}

}  // namespace

Replacer::Replacer(TextWordSource& source, const Replacements& replacements, TextArena& arena,
                   ImportBudget& budget)
    : replacements_(replacements), budget_(budget), words_(source, arena) {}

// Reads until there are so many words in the window. No text matches a barrier or the end, so that
// none is looked for behind them.
void Replacer::fill(std::size_t count) {
  while (window_.size() - first_ < count) {
    // What was given is left behind when it is as much as what was not.
    if (first_ > window_.size() / 2) {
      window_.erase(window_.begin(), window_.begin() + static_cast<std::ptrdiff_t>(first_));
      first_ = 0;
    }
    words_.read(window_.emplace_back());
  }
}

void Replacer::drop(std::size_t count) { first_ += count; }

bool Replacer::matches(const Replacement& replacement) {
  const std::vector<TextWord>& wanted = replacement.words;
  for (std::size_t i = 0; i < wanted.size(); i++) {
    comparisons_++;
    fill(i + 1);
    const TextWord& word = window_[first_ + i];
    const bool isLeading = replacement.part == Replacement::Part::leading && i + 1 == wanted.size();
    const bool isTrailing = replacement.part == Replacement::Part::trailing && i == 0;
    if (word.kind == TextWord::Kind::run && wanted[i].kind == TextWord::Kind::run &&
        (isLeading || isTrailing)) {
      const std::size_t size = wanted[i].text.size();
      if (word.text.size() < size) return false;
      const std::size_t from = isLeading ? 0 : word.text.size() - size;
      if (!sameWord(word.text.substr(from, size), wanted[i].text)) return false;
    } else if (!isSame(word, wanted[i])) {
      return false;
    }
  }
  return true;
}

void Replacer::put(TextWord word) {
  word.space = word.space || owesSpace_;
  owesSpace_ = false;
  output_.push_back(word);
}

void Replacer::replace(const Replacement& replacement) {
  const std::size_t count = replacement.words.size();
  const TextWord first = window_[first_];
  const TextWord last = window_[first_ + count - 1];
  output_.clear();
  given_ = 0;
  owesSpace_ = owesSpace_ || first.space;
  const auto putPart = [&](const TextWord& word, std::string_view text) {
    if (text.empty() || word.kind != TextWord::Kind::run) return;
    TextWord part = word;
    part.text = text;
    part.simple = isSimple(text);
    part.space = false;
    put(part);
  };
  if (replacement.part == Replacement::Part::trailing) {
    putPart(first, first.text.substr(0, first.text.size() - replacement.words.front().text.size()));
  }
  std::size_t bytes = 0;
  for (std::size_t i = 0; i < replacement.by.size(); i++) {
    TextWord word = replacement.by[i];
    word.place = first.place;
    word.areaA = false;
    if (i == 0) word.space = false;
    bytes += word.text.size() + 1;
    put(word);
  }
  if (replacement.part == Replacement::Part::leading) {
    putPart(last, last.text.substr(replacement.words.back().text.size()));
  }
  budget_.addText(bytes, first.place);
  drop(count);
}

void Replacer::read(TextWord& word) {
  while (true) {
    if (given_ < output_.size()) {
      word = output_[given_++];
      return;
    }
    fill(1);
    const TextWord& next = window_[first_];
    if (next.kind == TextWord::Kind::end || next.kind == TextWord::Kind::barrier ||
        budget_.isExhausted()) {
      word = next;
      if (budget_.isExhausted()) word.kind = TextWord::Kind::end;
      drop(1);
      return;
    }
    comparisons_ = 0;
    const SourcePlace place = next.place;
    const auto found = std::find_if(replacements_.begin(), replacements_.end(),
                                    [&](const Replacement& one) { return matches(one); });
    budget_.addComparisons(comparisons_, place);
    if (found != replacements_.end()) {
      replace(*found);
      continue;
    }
    output_.clear();
    given_ = 0;
    put(window_[first_]);
    drop(1);
  }
}

}  // namespace as::toolkit
