#include "xml/PatternInspection.h"

#include <bitset>
#include <cstddef>
#include <set>
#include <utility>
#include <vector>

#include "xml/Limits.h"

namespace {

using Characters = std::bitset<0x10000>;
using Places = std::set<std::size_t>;

// What a part of a pattern is made of, seen as places where a character is matched.
struct Part {
  bool mayBeEmpty = true;
  bool isSingle = false;  // One character, always.
  Places first;
  Places last;
};

class Inspection {
 public:
  explicit Inspection(const XMLCh* pattern) : at_(pattern) {}

  bool leavesNoChoice() {
    const Part whole = choice();
    return isGood_ && *at_ == 0 && isDistinct(whole.first);
  }

 private:
  Part choice() {
    Part result = sequence();
    while (*at_ == u'|') {
      ++at_;
      const Part next = sequence();
      result.mayBeEmpty = result.mayBeEmpty || next.mayBeEmpty;
      result.first.insert(next.first.begin(), next.first.end());
      result.last.insert(next.last.begin(), next.last.end());
    }
    return result;
  }

  Part sequence() {
    Part result;
    while (isGood_ && *at_ != 0 && *at_ != u'|' && *at_ != u')') {
      const Part next = repeated();
      follow(result.last, next.first);
      if (result.mayBeEmpty) result.first.insert(next.first.begin(), next.first.end());
      if (!next.mayBeEmpty) result.last.clear();
      result.last.insert(next.last.begin(), next.last.end());
      result.mayBeEmpty = result.mayBeEmpty && next.mayBeEmpty;
    }
    return result;
  }

  Part repeated() {
    Part part = atom();
    bool isOptional = false;
    bool isRepeated = true;
    bool hasEnd = false;
    switch (*at_) {
      case u'*':
        isOptional = true;
        break;
      case u'+':
        break;
      case u'?':
        isOptional = true;
        isRepeated = false;
        break;
      case u'{':
        hasEnd = bounds(isOptional);
        break;
      default:
        return part;
    }
    if (!isGood_) return part;
    ++at_;
    if (isRepeated) {
      if (part.mayBeEmpty) isGood_ = false;
      if (!hasEnd && !part.isSingle) isGood_ = false;
      follow(part.last, part.first);
    }
    part.mayBeEmpty = part.mayBeEmpty || isOptional;
    return part;
  }

  // Reads up to the "}" and tells whether there is an upper bound.
  bool bounds(bool& isOptional) {
    ++at_;
    const XMLSize_t least = number();
    isOptional = least == 0;
    XMLSize_t most = least;
    bool hasEnd = true;
    if (*at_ == u',') {
      ++at_;
      hasEnd = *at_ != u'}';
      if (hasEnd) most = number();
    }
    repeats_ *= most == 0 ? 1 : most;
    if (*at_ != u'}' || least > most || repeats_ > limits::schemaPattern) {
      isGood_ = false;
      skipToEnd();
    }
    return hasEnd;
  }

  XMLSize_t number() {
    XMLSize_t value = 0;
    if (*at_ < u'0' || *at_ > u'9') isGood_ = false;
    for (; *at_ >= u'0' && *at_ <= u'9'; ++at_) {
      value = value * 10 + static_cast<XMLSize_t>(*at_ - u'0');
      if (value > limits::schemaPattern) isGood_ = false;
      if (!isGood_) return 0;
    }
    return value;
  }

  Part atom() { return *at_ == u'(' ? group() : character(); }

  Part group() {
    ++at_;
    if (++depth_ > limits::schemaPattern) isGood_ = false;
    Part part = isGood_ ? choice() : Part();
    --depth_;
    if (*at_ == u')') {
      ++at_;
    } else {
      isGood_ = false;
    }
    return part;
  }

  // By itself: a set of characters is large, and groups nest on the stack.
  [[gnu::noinline]] Part character() {
    Characters characters;
    switch (*at_) {
      case u'.':
        characters.set();
        ++at_;
        break;
      case u'[':
        ++at_;
        characters = members();
        break;
      case u'\\':
        ++at_;
        characters = escaped();
        break;
      case u'*':
      case u'+':
      case u'?':
      case u'{':
      case u'}':
      case u']':
        isGood_ = false;
        skipToEnd();
        break;
      default:
        characters.set(*at_);
        ++at_;
        break;
    }
    const std::size_t place = places_.size();
    places_.push_back(characters);
    followers_.emplace_back();
    Part part;
    part.mayBeEmpty = false;
    part.isSingle = true;
    part.first = {place};
    part.last = {place};
    return part;
  }

  // What stands between "[" and "]".
  Characters members() {
    Characters result;
    isExact_ = true;
    const bool isNegated = *at_ == u'^';
    if (isNegated) ++at_;
    if (*at_ == u']') isGood_ = false;
    while (*at_ != u']') {
      if (*at_ == 0 || *at_ == u'[') {
        isGood_ = false;
        skipToEnd();
        return result;
      }
      if (*at_ == u'\\') {
        ++at_;
        result |= escaped();
        if (*at_ == u'-' && at_[1] != u']') isGood_ = false;
        continue;
      }
      const XMLCh from = *at_++;
      XMLCh to = from;
      if (*at_ == u'-' && at_[1] != u']' && at_[1] != 0) {
        to = at_[1];
        if (to == u'[' || to == u'\\' || to < from) isGood_ = false;
        at_ += 2;
      }
      for (std::size_t c = from; isGood_ && c <= to; ++c) result.set(c);
    }
    ++at_;
    if (!isNegated) return result;
    // What is left out may be more than is known here.
    return isExact_ ? ~result : result.set();
  }

  // What follows a "\".
  Characters escaped() {
    Characters result;
    const XMLCh c = *at_;
    if (c == 0) {
      isGood_ = false;
      return result;
    }
    ++at_;
    switch (c) {
      case u'n':
        return result.set(u'\n');
      case u'r':
        return result.set(u'\r');
      case u't':
        return result.set(u'\t');
      case u's':
        return result.set(u' ').set(u'\t').set(u'\n').set(u'\r');
      default:
        break;
    }
    const bool isLetterOrDigit =
        (c >= u'0' && c <= u'9') || (c >= u'A' && c <= u'Z') || (c >= u'a' && c <= u'z');
    if (!isLetterOrDigit) return result.set(c);
    // A class with a name: any character, for all that is known here; a digit is one of ours or of
    // another script.
    isExact_ = false;
    if (c == u'd') {
      for (std::size_t other = 0; other < result.size(); ++other) {
        if (other >= 0x80 || (other >= u'0' && other <= u'9')) result.set(other);
      }
      return result;
    }
    if (c == u'p' || c == u'P') {
      while (*at_ != u'}' && *at_ != 0) ++at_;
      if (*at_ == u'}') ++at_;
    }
    return result.set();
  }

  void skipToEnd() {
    while (*at_ != 0) ++at_;
  }

  // What is at `places` may come next to what is at `from`.
  void follow(const Places& from, const Places& places) {
    for (const std::size_t place : from) {
      for (const std::size_t next : places) {
        // To the same place in two ways is a choice, too.
        if (!followers_[place].insert(next).second) isGood_ = false;
      }
      if (!isDistinct(followers_[place])) isGood_ = false;
    }
  }

  bool isDistinct(const Places& places) const {
    Characters seen;
    for (const std::size_t place : places) {
      if ((seen & places_[place]).any()) return false;
      seen |= places_[place];
    }
    return true;
  }

  const XMLCh* at_;
  bool isGood_ = true;
  bool isExact_ = true;  // Whether the last characters read are no more than the pattern's.
  XMLSize_t depth_ = 0;
  XMLSize_t repeats_ = 1;
  std::vector<Characters> places_;
  std::vector<Places> followers_;
};

}  // namespace

bool leavesNoChoice(const XMLCh* pattern) { return Inspection(pattern).leavesNoChoice(); }
