#include "toolkit/import/JoinedNames.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "toolkit/import/Characters.h"
#include "toolkit/import/Keywords.h"
#include "toolkit/import/Replacement.h"

namespace as::toolkit {

namespace {

class JointReader {
 public:
  JointReader(TextWordSource& source, TextWord& word, const SourcePlace& place,
              SourceReport& report)
      : source_(source), word_(word), place_(place), report_(report) {}

  NameJoint read() {
    NameJoint joint;
    if (word_.isRun("PREFIXING") || word_.isRun("SUFFIXING")) {
      joint.isBehind = word_.isRun("SUFFIXING");
      joint.added = operand();
      return joint;
    }
    if (word_.isRun("DISJOINING")) joint.removed = operand();
    if (word_.isRun("JOINING")) joint.added = operand();
    if (joint.isNothing()) return joint;
    if (word_.isRun("AS")) source_.read(word_);
    joint.isBehind = word_.isRun("SUFFIX");
    if (!joint.isBehind && !word_.isRun("PREFIX")) {
      report_.add(SourceRule::copySyntax, place_,
                  "JOINING is followed by neither PREFIX nor SUFFIX");
      return {};
    }
    source_.read(word_);
    for (std::string* const part : {&joint.removed, &joint.added}) {
      if (!part->empty()) part->insert(joint.isBehind ? 0 : part->size(), 1, '-');
    }
    return joint;
  }

 private:
  // The word behind the one that was read last; the one behind that is read.
  std::string operand() {
    const std::string phrase(word_.text);
    source_.read(word_);
    std::string text;
    if (word_.kind == TextWord::Kind::literal) text = partsOf(word_).content;
    if (word_.kind == TextWord::Kind::run) text = word_.text;
    const bool isWord = !text.empty() && std::all_of(text.begin(), text.end(), isWordCharacter);
    if (!isWord) {
      report_.add(SourceRule::copySyntax, place_, phrase + " is followed by no word");
      return {};
    }
    source_.read(word_);
    return text;
  }

  TextWordSource& source_;
  TextWord& word_;
  const SourcePlace place_;
  SourceReport& report_;
};

bool isPicture(const TextWord& word) { return word.isRun("PIC") || word.isRun("PICTURE"); }

bool isLevel(const TextWord& word) {
  return word.kind == TextWord::Kind::run && word.text.size() <= 2 &&
         std::all_of(word.text.begin(), word.text.end(), isDigit);
}

bool beginsClause(const TextWord& word) {
  if (word.kind == TextWord::Kind::period) return true;
  if (word.kind != TextWord::Kind::run) return false;
  const KeywordRole role = meaningOf(word.text).role;
  return role == KeywordRole::clause || role == KeywordRole::usage ||
         role == KeywordRole::softClause || role == KeywordRole::filling;
}

}  // namespace

NameJoint readJoint(TextWordSource& source, TextWord& word, const SourcePlace& place,
                    SourceReport& report) {
  return JointReader(source, word, place, report).read();
}

void JoinedNames::read(TextWord& word) {
  if (read_.empty()) readAll();
  word = read_[given_];
  if (given_ + 1 < read_.size()) ++given_;
}

void JoinedNames::readAll() {
  do {
    words_.read(read_.emplace_back());
  } while (read_.back().kind != TextWord::Kind::end);
  if (findDefinitions()) join();
}

// Whether the second word of the entry is its name: none is, or FILLER, where a clause begins.
bool JoinedNames::isNamed(std::size_t entry) const {
  const TextWord& name = read_[entry + 1];
  if (name.kind != TextWord::Kind::run || name.isRun("FILLER")) return false;
  switch (meaningOf(name.text).role) {
    case KeywordRole::clause:
    case KeywordRole::filling:
    case KeywordRole::usage:
      return false;
    case KeywordRole::softClause:
      return beginsClause(read_[entry + 2]);
    default:
      return true;
  }
}

bool JoinedNames::findDefinitions() {
  bool beginsSentence = true;
  for (std::size_t i = 0; i + 2 < read_.size(); ++i) {
    if (beginsSentence && isLevel(read_[i]) && isNamed(i)) {
      defined_.insert(inCapitals(read_[i + 1].text));
    }
    beginsSentence = read_[i].kind == TextWord::Kind::period;
  }
  return !defined_.empty();
}

void JoinedNames::join() {
  std::size_t added = 0;
  for (std::size_t i = 0; i < read_.size(); ++i) {
    if (isPicture(read_[i])) {
      // A picture goes on up to a blank. The last word of all is the end.
      if (read_[i + 1].isRun("IS")) ++i;
      do {
        ++i;
      } while (i + 1 < read_.size() && !read_[i + 1].space);
      continue;
    }
    TextWord& word = read_[i];
    if (word.kind != TextWord::Kind::run || !defined_.contains(inCapitals(word.text))) continue;
    word.text = arena_.keep(joined(word.text));
    added += joint_.added.size();
  }
  budget_.addText(added, read_.front().place);
}

std::string JoinedNames::joined(std::string_view name) const {
  std::string text(name);
  if (!joint_.removed.empty()) {
    const std::size_t size = joint_.removed.size();
    if (text.size() <= size) return text;
    const std::size_t at = joint_.isBehind ? text.size() - size : 0;
    if (!sameWord(std::string_view(text).substr(at, size), joint_.removed)) return text;
    text.erase(at, size);
  }
  return text.insert(joint_.isBehind ? text.size() : 0, joint_.added);
}

}  // namespace as::toolkit
