#include "XmlTree.h"

#include <cstdint>
#include <utility>

namespace fuzz {

namespace {

bool isSpace(char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; }

bool startsName(char c) {
  const auto lower = static_cast<char>(c | 0x20);
  return (lower >= 'a' && lower <= 'z') || c == '_' || c == ':' ||
         static_cast<unsigned char>(c) >= 0x80;
}

bool endsName(char c) {
  return isSpace(c) || c == '/' || c == '>' || c == '=' || c == '<' || c == '"' || c == '\'' ||
         c == '?';
}

std::string replaced(std::string_view text, char what, std::string_view by) {
  std::string result;
  for (const char c : text) {
    if (c == what) {
      result += by;
    } else {
      result += c;
    }
  }
  return result;
}

void appendUtf8(std::string& out, std::uint32_t code) {
  const auto tail = [&](unsigned shift) {
    out += static_cast<char>(0x80 | ((code >> shift) & 0x3F));
  };
  if (code < 0x80) {
    out += static_cast<char>(code);
  } else if (code < 0x800) {
    out += static_cast<char>(0xC0 | (code >> 6));
    tail(0);
  } else if (code < 0x10000) {
    out += static_cast<char>(0xE0 | (code >> 12));
    tail(6);
    tail(0);
  } else {
    out += static_cast<char>(0xF0 | (code >> 18));
    tail(12);
    tail(6);
    tail(0);
  }
}

// Lone surrogates become UTF-8 of their own, so that they come back when printed.
std::string fromUtf16(std::string_view text, bool bigEndian) {
  std::string result;
  const auto unitAt = [&](std::size_t i) {
    const auto first = static_cast<unsigned char>(text[i]);
    const auto second = static_cast<unsigned char>(text[i + 1]);
    return static_cast<std::uint32_t>(bigEndian ? first << 8 | second : second << 8 | first);
  };
  for (std::size_t i = 0; i + 1 < text.size(); i += 2) {
    std::uint32_t code = unitAt(i);
    if (code >= 0xD800 && code < 0xDC00 && i + 3 < text.size()) {
      const std::uint32_t low = unitAt(i + 2);
      if (low >= 0xDC00 && low < 0xE000) {
        code = 0x10000 + ((code - 0xD800) << 10) + (low - 0xDC00);
        i += 2;
      }
    }
    appendUtf8(result, code);
  }
  return result;
}

// Bytes that are no UTF-8 become the characters of the same numbers.
std::string toUtf16(std::string_view text, bool bigEndian) {
  std::string result;
  const auto unit = [&](std::uint32_t code) {
    const char high = static_cast<char>(code >> 8);
    const char low = static_cast<char>(code & 0xFF);
    result += bigEndian ? high : low;
    result += bigEndian ? low : high;
  };
  unit(0xFEFF);
  for (std::size_t i = 0; i < text.size();) {
    const auto first = static_cast<unsigned char>(text[i]);
    const std::size_t length = first < 0xC0 ? 1 : first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
    std::uint32_t code = first;
    if (length > 1 && i + length <= text.size()) {
      code = first & (0xFFU >> (length + 1));
      for (std::size_t k = 1; k < length; k++) {
        code = code << 6 | (static_cast<unsigned char>(text[i + k]) & 0x3FU);
      }
      i += length;
    } else {
      i++;
    }
    if (code >= 0x10000) {
      unit(0xD800 + (((code - 0x10000) >> 10) & 0x3FF));
      unit(0xDC00 + ((code - 0x10000) & 0x3FF));
    } else {
      unit(code);
    }
  }
  return result;
}

class Reader {
 public:
  explicit Reader(std::string_view text) : text_(text) {}

  std::vector<Node> read() {
    std::vector<Node> open(1);
    while (at_ < text_.size()) step(open);
    while (open.size() > 1) close(open);
    return std::move(open.front().children);
  }

 private:
  bool comes(std::string_view what) const { return text_.substr(at_, what.size()) == what; }

  // What stands until `end`, which is skipped; everything that is left when there is none.
  std::string_view until(std::string_view end) {
    const std::size_t found = text_.find(end, at_);
    const std::string_view result = text_.substr(at_, found == text_.npos ? found : found - at_);
    at_ = found == text_.npos ? text_.size() : found + end.size();
    return result;
  }

  void skipSpace() {
    while (at_ < text_.size() && isSpace(text_[at_])) at_++;
  }

  std::string name() {
    const std::size_t from = at_;
    while (at_ < text_.size() && !endsName(text_[at_])) at_++;
    return std::string(text_.substr(from, at_ - from));
  }

  static void close(std::vector<Node>& open) {
    Node done = std::move(open.back());
    open.pop_back();
    open.back().children.push_back(std::move(done));
  }

  void step(std::vector<Node>& open) {
    std::vector<Node>& siblings = open.back().children;
    const auto skip = [&](std::size_t count) { at_ += count; };
    if (comes("<!--")) {
      skip(4);
      siblings.push_back(node(Node::Kind::comment, std::string(until("-->"))));
    } else if (comes("<![CDATA[")) {
      skip(9);
      siblings.push_back(node(Node::Kind::cdata, std::string(until("]]>"))));
    } else if (comes("<?")) {
      skip(2);
      std::string target = name();
      skipSpace();
      siblings.push_back(instruction(std::move(target), std::string(until("?>"))));
    } else if (comes("<!")) {
      skip(2);
      siblings.push_back(node(Node::Kind::doctype, doctype()));
    } else if (comes("</")) {
      skip(2);
      const std::string ended = name();
      until(">");
      for (std::size_t i = open.size(); i-- > 1;) {
        if (open[i].name != ended) continue;
        while (open.size() > i) close(open);
        break;
      }
    } else if (comes("<") && at_ + 1 < text_.size() && startsName(text_[at_ + 1])) {
      startTag(open);
    } else {
      const std::size_t from = at_++;
      while (at_ < text_.size() && text_[at_] != '<') at_++;
      siblings.push_back(node(Node::Kind::text, std::string(text_.substr(from, at_ - from))));
    }
  }

  // From behind "<!" to behind the ">" that belongs to it.
  std::string doctype() {
    const std::size_t from = at_;
    bool inSubset = false;
    char quote = 0;
    for (; at_ < text_.size(); at_++) {
      const char c = text_[at_];
      if (quote != 0) {
        if (c == quote) quote = 0;
      } else if (c == '"' || c == '\'') {
        quote = c;
      } else if (c == '[') {
        inSubset = true;
      } else if (c == ']') {
        inSubset = false;
      } else if (c == '>' && !inSubset) {
        return std::string(text_.substr(from, at_++ - from));
      }
    }
    return std::string(text_.substr(from));
  }

  void startTag(std::vector<Node>& open) {
    at_++;
    Node made = element(name());
    bool isEmpty = false;
    while (at_ < text_.size()) {
      skipSpace();
      if (at_ >= text_.size() || text_[at_] == '<') break;
      if (text_[at_] == '>') {
        at_++;
        break;
      }
      if (text_[at_] == '/') {
        isEmpty = true;
        at_++;
        continue;
      }
      std::string attributeName = name();
      if (attributeName.empty()) {
        at_++;
        continue;
      }
      skipSpace();
      std::string_view value;
      if (at_ < text_.size() && text_[at_] == '=') {
        at_++;
        skipSpace();
        const char quote = at_ < text_.size() ? text_[at_] : ' ';
        if (quote == '"' || quote == '\'') {
          at_++;
          value = until(std::string_view(&quote, 1));
        }
      }
      made.attributes.push_back({std::move(attributeName), std::string(value)});
    }
    if (isEmpty || open.size() > maxTreeDepth) {
      open.back().children.push_back(std::move(made));
    } else {
      open.push_back(std::move(made));
    }
  }

  std::string_view text_;
  std::size_t at_ = 0;
};

// The text without anything that ends the construct it stands in.
std::string without(std::string text, std::string_view end) {
  for (std::size_t at = 0; (at = text.find(end, at)) != text.npos;) text.erase(at, end.size());
  return text;
}

void print(const Node& node, std::string& out) {
  switch (node.kind) {
    case Node::Kind::text:
      out += replaced(node.text, '<', "&lt;");
      return;
    case Node::Kind::cdata:
      out += "<![CDATA[" + without(node.text, "]]>") + "]]>";
      return;
    case Node::Kind::comment:
      out += "<!--" + without(node.text, "-->") + "-->";
      return;
    case Node::Kind::instruction:
      out += "<?" + node.name + " " + without(node.text, "?>") + "?>";
      return;
    case Node::Kind::doctype:
      out += "<!" + node.text + ">";
      return;
    case Node::Kind::element:
      break;
  }
  out += "<" + node.name;
  for (const Attribute& attribute : node.attributes) {
    out += " " + attribute.name + "=\"" +
           replaced(replaced(attribute.value, '"', "&quot;"), '<', "&lt;") + "\"";
  }
  if (node.children.empty()) {
    out += "/>";
    return;
  }
  out += ">";
  for (const Node& child : node.children) print(child, out);
  out += "</" + node.name + ">";
}

}  // namespace

std::string* Node::attribute(std::string_view wanted) {
  for (Attribute& candidate : attributes) {
    if (candidate.name == wanted) return &candidate.value;
  }
  return nullptr;
}

const std::string* Node::attribute(std::string_view wanted) const {
  return const_cast<Node*>(this)->attribute(wanted);
}

void Node::setAttribute(const std::string& attributeName, const std::string& value) {
  if (std::string* const present = attribute(attributeName)) {
    *present = value;
  } else {
    attributes.push_back({attributeName, value});
  }
}

std::string_view Node::localName() const {
  const std::string_view whole = name;
  return whole.substr(whole.find(':') + 1);  // npos wraps to 0: there is no prefix.
}

std::string_view Node::prefix() const {
  const std::size_t colon = name.find(':');
  return std::string_view(name).substr(0, colon == name.npos ? 0 : colon);
}

Node element(std::string name, std::vector<Attribute> attributes, std::vector<Node> children) {
  Node made;
  made.kind = Node::Kind::element;
  made.name = std::move(name);
  made.attributes = std::move(attributes);
  made.children = std::move(children);
  return made;
}

Node node(Node::Kind kind, std::string text) {
  Node made;
  made.kind = kind;
  made.text = std::move(text);
  return made;
}

Node instruction(std::string name, std::string text) {
  Node made = node(Node::Kind::instruction, std::move(text));
  made.name = std::move(name);
  return made;
}

Node* Document::root() {
  for (Node& candidate : nodes) {
    if (candidate.isElement()) return &candidate;
  }
  return nullptr;
}

const Node* Document::root() const { return const_cast<Document*>(this)->root(); }

bool Document::isOtherXml() const {
  return !nodes.empty() && nodes.front().name == "xml" &&
         nodes.front().text.find("1.1") != std::string::npos;
}

Node* Document::instruction(std::string_view name) {
  for (Node& candidate : nodes) {
    if (candidate.kind == Node::Kind::instruction && candidate.name == name) return &candidate;
  }
  return nullptr;
}

const Node* Document::instruction(std::string_view name) const {
  return const_cast<Document*>(this)->instruction(name);
}

Document readTree(std::string_view text) {
  Document document;
  const std::string_view start = text.substr(0, 2);
  std::string converted;
  if (start == "\xFE\xFF" || start == "\xFF\xFE") {
    const bool bigEndian = start == "\xFE\xFF";
    document.encoding = bigEndian ? Encoding::utf16BigEndian : Encoding::utf16LittleEndian;
    converted = fromUtf16(text.substr(2), bigEndian);
    text = converted;
  }
  document.nodes = Reader(text).read();
  return document;
}

std::string printTree(const Document& document) {
  std::string text;
  for (const Node& node : document.nodes) print(node, text);
  if (document.encoding == Encoding::bytes) return text;
  return toUtf16(text, document.encoding == Encoding::utf16BigEndian);
}

}  // namespace fuzz
