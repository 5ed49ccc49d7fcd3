// What the schemas let a document hold: which elements stand in which, with which attributes and
// words. Read from the schema files themselves, so that it is never out of date.
#ifndef FUZZ_VOCABULARY_H_
#define FUZZ_VOCABULARY_H_

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace fuzz {

struct AttributeRule {
  std::string name;
  std::string type;                // The type that it is declared with ...
  std::string base;                // ... and the built-in type that its values are of: "xs:string".
  std::vector<std::string> words;  // The values that the schema enumerates, if it does.
  bool required = false;
};

struct ChildRule {
  std::string name;
  std::string type;
  int rank = 0;         // Children of a lower rank stand in front of those of a higher one.
  bool isOnce = false;  // There is room for one.
};

// What elements of one type hold.
struct ElementRule {
  std::vector<AttributeRule> attributes;
  std::vector<ChildRule> children;

  const ChildRule* child(std::string_view name) const;
};

struct SchemaRules {
  std::string uri;
  std::string root;      // The name of the document element ...
  std::string rootType;  // ... and its type.
  std::map<std::string, ElementRule, std::less<>> types;

  // The rule of that type; null when there is none.
  const ElementRule* type(std::string_view name) const;
  // The rule of some element of that name, wherever it stands; null when there is none.
  const ElementRule* anywhere(std::string_view elementName) const;
};

class Vocabulary {
 public:
  // That of the shipped schemas, and of schemas themselves.
  static const Vocabulary& shipped();

  const std::vector<SchemaRules>& schemas() const { return schemas_; }
  // Null when no schema is of that namespace.
  const SchemaRules* schema(std::string_view uri) const;
  // Every name of an element or attribute, and every enumerated word, each once.
  const std::vector<std::string>& words() const { return words_; }

 private:
  Vocabulary();

  std::vector<SchemaRules> schemas_;
  std::vector<std::string> words_;
};

// The name of the file of the schema of that namespace.
std::string fileNameOf(const std::string& uri);

constexpr char xsdUri[] = "http://www.w3.org/2001/XMLSchema";
constexpr char xsiUri[] = "http://www.w3.org/2001/XMLSchema-instance";

}  // namespace fuzz

#endif  // FUZZ_VOCABULARY_H_
