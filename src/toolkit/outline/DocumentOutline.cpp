#include "toolkit/outline/DocumentOutline.h"

#include <utility>

#include "toolkit/outline/EntityTexts.h"
#include "toolkit/text/Utf8Text.h"

namespace as::toolkit {

namespace {

constexpr std::size_t nowhere = std::string_view::npos;

// The library reads no document with more references to entities that it declares.
constexpr int mostExpansions = 1000;

// Tells lines and columns of a text, from its start to its end.
class PlaceCounter {
 public:
  explicit PlaceCounter(std::string_view text) : text_(text) {}

  // Not in front of the place that was asked for last.
  TextPlace at(std::size_t offset) {
    for (; at_ < offset && at_ < text_.size(); ++at_) {
      const char c = text_[at_];
      const bool isFirstOfTwo = text_.substr(at_, 2) == "\r\n";
      if (c == '\n' || (c == '\r' && !isFirstOfTwo)) {
        ++place_.line;
        place_.column = 1;
      } else if (!isWithinCharacter(c)) {
        ++place_.column;
      }
    }
    return place_;
  }

 private:
  std::string_view text_;
  std::size_t at_ = 0;
  TextPlace place_{1, 1};
};

}  // namespace

// Goes through the text of a document, and of its entities where it refers to them.
class OutlineScanner {
 public:
  explicit OutlineScanner(DocumentOutline& outline)
      : outline_(outline), entities_(outline.entityTexts_), places_(outline.text_) {}

  // False when the text is not that of a document.
  bool run() { return scan(outline_.text_, nullptr) && open_.empty(); }

 private:
  // `reference` is where the document refers to the entity whose text this is; null for its own.
  bool scan(std::string_view text, const TextPlace* reference) {
    const std::size_t depth = open_.size();
    for (std::size_t at = text.find_first_of("<&"); at != nowhere;
         at = text.find_first_of("<&", at)) {
      const TextPlace place = reference != nullptr ? *reference : places_.at(at);
      at = text[at] == '&' ? behindReference(text, at, place)
                           : behindMarkup(text, at, place, reference != nullptr);
      if (at == nowhere || open_.size() < depth) return false;
    }
    return open_.size() == depth;
  }

  std::size_t behindReference(std::string_view text, std::size_t at, const TextPlace& place) {
    const std::size_t end = text.find(';', at);
    if (end == nowhere) return nowhere;
    const std::string* const entity = entities_.find(text.substr(at + 1, end - at - 1));
    if (entity != nullptr && (++expansions_ > mostExpansions || !scan(*entity, &place))) {
      return nowhere;
    }
    return end + 1;
  }

  std::size_t behindMarkup(std::string_view text, std::size_t at, const TextPlace& place,
                           bool isEntity) {
    const auto starts = [&](std::string_view with) { return text.substr(at, with.size()) == with; };
    if (starts("<!--")) return behindComment(text, at, place, isEntity);
    if (starts("<![CDATA[")) return behind(text, at, "]]>");
    if (starts("<!DOCTYPE")) return entities_.read(text, at);
    if (starts("<?")) return behind(text, at, "?>");
    if (!starts("</")) return behindStartTag(text, at, place);
    if (open_.empty()) return nowhere;
    close();
    return behind(text, at, ">");
  }

  static std::size_t behind(std::string_view text, std::size_t at, std::string_view end) {
    const std::size_t found = text.find(end, at);
    return found == nowhere ? nowhere : found + end.size();
  }

  std::size_t behindComment(std::string_view text, std::size_t at, const TextPlace& place,
                            bool isEntity) {
    constexpr std::size_t mark = 4;
    const std::size_t end = text.find("-->", at + mark);
    if (end == nowhere) return nowhere;
    if (!isEntity) {
      outline_.comments_.push_back(
          {text.substr(at + mark, end - at - mark), place, parent(), outline_.elements_.size()});
    }
    return end + 3;
  }

  std::size_t behindStartTag(std::string_view text, std::size_t at, const TextPlace& place) {
    const std::size_t nameEnd = text.find_first_of(" \t\r\n/>", at);
    if (nameEnd == nowhere) return nowhere;
    std::string_view name = text.substr(at + 1, nameEnd - at - 1);
    name.remove_prefix(name.find(':') + 1);
    open_.push_back(outline_.elements_.size());
    outline_.elements_.push_back({name, place, open_.size() > 1 ? open_[open_.size() - 2] : none});
    for (std::size_t end = nameEnd; end < text.size();) {
      end = text.find_first_of("'\">", end);
      if (end == nowhere) return nowhere;
      if (text[end] == '>') {
        if (text[end - 1] == '/') close();
        return end + 1;
      }
      end = behind(text, end + 1, text.substr(end, 1));
    }
    return nowhere;
  }

  void close() {
    outline_.elements_[open_.back()].end = outline_.elements_.size();
    open_.pop_back();
  }

  std::size_t parent() const { return open_.empty() ? none : open_.back(); }

  static constexpr std::size_t none = DocumentOutline::none;

  DocumentOutline& outline_;
  EntityTexts entities_;
  PlaceCounter places_;
  std::vector<std::size_t> open_;  // The elements around, outermost first.
  int expansions_ = 0;
};

DocumentOutline::DocumentOutline(std::string text) : text_(std::move(text)) {
  if (OutlineScanner(*this).run()) return;
  elements_.clear();
  comments_.clear();
}

std::vector<std::size_t> DocumentOutline::childrenOf(std::size_t element,
                                                     std::string_view name) const {
  std::vector<std::size_t> children;
  if (element >= elements_.size()) return children;
  for (std::size_t at = element + 1; at < elements_[element].end; at = elements_[at].end) {
    if (elements_[at].name == name) children.push_back(at);
  }
  return children;
}

std::size_t DocumentOutline::childOf(std::size_t element, std::string_view name) const {
  if (element >= elements_.size()) return none;
  for (std::size_t at = element + 1; at < elements_[element].end; at = elements_[at].end) {
    if (elements_[at].name == name) return at;
  }
  return none;
}

}  // namespace as::toolkit
