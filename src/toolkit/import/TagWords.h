// Text words with tags that nothing replaced, as in ":TAG:-NAME" and "'TAG'-NAME", read as the
// words in them: what is copied with REPLACING elsewhere is to be read by itself, too.
#ifndef TOOLKIT_IMPORT_TAGWORDS_H_
#define TOOLKIT_IMPORT_TAGWORDS_H_

#include <algorithm>
#include <deque>
#include <set>
#include <string>
#include <string_view>

#include "toolkit/import/Characters.h"
#include "toolkit/import/Replacement.h"
#include "toolkit/import/SourceReport.h"
#include "toolkit/import/TextWord.h"

namespace as::toolkit {

// Tells each tag once. Reads ahead behind colons and literals alone, and not beyond a barrier.
class TagWords : public TextWordSource {
 public:
  // Both must outlive it.
  TagWords(TextWordSource& source, SourceReport& report) : source_(source), report_(report) {}

  void read(TextWord& word) override {
    take(word);
    if (word.kind == TextWord::Kind::literal) takeLiteral(word);
    if (word.isMark(":")) takeBetween(word, ":");
    if (word.isMark("(") && word.space) takeBetween(word, ")");
  }

 private:
  // ":TAG:", and "(TAG)-NAME", which could be nothing else.
  void takeBetween(TextWord& word, const char* end) {
    const TextWord& tag = ahead(0);
    if (tag.kind != TextWord::Kind::run || !tag.simple || tag.space) return;
    const TextWord& mark = ahead(1);
    if (!mark.isMark(end) || mark.space) return;
    if (word.isMark("(")) {
      const TextWord& rest = ahead(2);
      if (rest.kind != TextWord::Kind::run || rest.space || !rest.simple ||
          !beginsPart(rest.text)) {
        return;
      }
    }
    tell(std::string(word.text) + std::string(tag.text) + end, tag.place);
    word.kind = TextWord::Kind::run;
    word.text = tag.text;
    word.simple = true;
    ahead_.pop_front();
    ahead_.pop_front();
  }

  // A hyphen, and a letter behind it.
  static bool beginsPart(std::string_view text) {
    return text.size() > 1 && text.front() == '-' && isWordCharacter(text[1]) && !isDigit(text[1]);
  }

  // "'TAG'-NAME"
  void takeLiteral(TextWord& word) {
    const TextWord& rest = ahead(0);
    if (rest.kind != TextWord::Kind::run || rest.space || rest.text.front() != '-' ||
        rest.text.size() == 1) {
      return;
    }
    const LiteralParts parts = partsOf(word);
    const bool isWord = parts.prefix.empty() && !parts.content.empty() &&
                        std::all_of(parts.content.begin(), parts.content.end(), isWordCharacter);
    if (!isWord) return;
    tell(std::string(word.text), word.place);
    word.kind = TextWord::Kind::run;
    word.text = parts.content;
    word.simple = true;
  }

  void take(TextWord& word) {
    if (ahead_.empty()) {
      source_.read(word);
    } else {
      word = ahead_.front();
      ahead_.pop_front();
    }
  }

  // The word that comes so many words behind the last one. REQUIRES: those in front are no ends.
  const TextWord& ahead(std::size_t number) {
    while (ahead_.size() <= number) {
      ahead_.emplace_back();
      source_.read(ahead_.back());
    }
    return ahead_[number];
  }

  void tell(const std::string& tag, const SourcePlace& place) {
    if (told_.size() >= mostTold || !told_.insert(tag).second) return;
    report_.add(SourceRule::unreplacedTag, place,
                "nothing replaces the tag " + tag + ", which is read as a part of names");
  }

  static constexpr std::size_t mostTold = 100;

  TextWordSource& source_;
  SourceReport& report_;
  std::deque<TextWord> ahead_;
  std::set<std::string> told_;
};

}  // namespace as::toolkit

#endif  // TOOLKIT_IMPORT_TAGWORDS_H_
