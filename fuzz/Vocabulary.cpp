#include "Vocabulary.h"

#include <fstream>
#include <set>
#include <sstream>
#include <stdexcept>

#include "XmlTree.h"
#include "as/Namespaces.h"

namespace fuzz {

namespace {

std::string textOf(const std::string* attribute) {
  return attribute == nullptr ? std::string() : *attribute;
}

// Reads one schema file. Knows what our schemas are made of and nothing else.
class SchemaReader {
 public:
  SchemaReader(const Node& schema, const std::string& uri) {
    rules_.uri = uri;
    for (const Node& child : schema.children) {
      if (child.isElement()) named_[std::string(child.localName())][nameOf(child)] = &child;
    }
    for (const auto& [name, type] : named_["complexType"]) {
      ElementRule rule;
      int rank = 0;
      collect(*type, rule, rank, Particle());
      rules_.types[name] = std::move(rule);
    }
    for (const auto& [name, root] : named_["element"]) {
      rules_.root = name;
      rules_.rootType = textOf(root->attribute("type"));
    }
  }

  SchemaRules take() { return std::move(rules_); }

 private:
  // What a declaration stands in.
  struct Particle {
    bool isChoice = false;
    bool repeats = false;
  };

  static std::string nameOf(const Node& node) { return textOf(node.attribute("name")); }

  void collect(const Node& from, ElementRule& rule, int& rank, Particle outer) {
    for (const Node& child : from.children) {
      if (!child.isElement()) continue;
      const std::string_view what = child.localName();
      const std::string most = textOf(child.attribute("maxOccurs"));
      const Particle own = {outer.isChoice || what == "choice",
                            outer.repeats || !(most.empty() || most == "1")};
      if (what == "element") {
        rule.children.push_back(
            {nameOf(child), textOf(child.attribute("type")), rank, !own.repeats});
        if (!outer.isChoice) rank++;
      } else if (what == "attribute") {
        rule.attributes.push_back(attributeRule(child));
      } else if (what == "group" || what == "attributeGroup") {
        const Node* const definition = named_[std::string(what)][textOf(child.attribute("ref"))];
        if (definition != nullptr) collect(*definition, rule, rank, own);
      } else if (what == "choice") {
        collect(child, rule, rank, own);
        if (!outer.isChoice) rank++;
      } else {
        collect(child, rule, rank, own);
      }
    }
  }

  AttributeRule attributeRule(const Node& attribute) {
    AttributeRule rule;
    rule.name = nameOf(attribute);
    rule.base = rule.type = textOf(attribute.attribute("type"));
    rule.required = textOf(attribute.attribute("use")) == "required";
    if (const Node* const type = named_["simpleType"][rule.base]) {
      for (const Node& restriction : type->children) {
        if (restriction.localName() != "restriction") continue;
        rule.base = textOf(restriction.attribute("base"));
        for (const Node& facet : restriction.children) {
          const std::string value = textOf(facet.attribute("value"));
          if (facet.localName() == "enumeration") rule.words.push_back(value);
          // The only pattern of words is that of flags.
          if (facet.localName() == "pattern" && value.find("[Tt]") != value.npos) {
            rule.words = {"true", "false", "TRUE", "False"};
          }
        }
      }
    }
    return rule;
  }

  SchemaRules rules_;
  std::map<std::string, std::map<std::string, const Node*>> named_;
};

// The vocabulary of schemas, as far as documents can bring harm with them: a row for each element,
// with its attributes and the elements that stand in it.
SchemaRules rulesOfSchemas() {
  struct Row {
    const char* element;
    const char* attributes;
    const char* children;
  };
  constexpr char particles[] = "element any choice sequence group all";
  static const Row rows[] = {
      {"schema",
       "targetNamespace elementFormDefault attributeFormDefault blockDefault finalDefault xmlns",
       "import include redefine element complexType simpleType group attributeGroup attribute "
       "notation annotation"},
      {"import", "namespace schemaLocation", "annotation"},
      {"include", "schemaLocation", "annotation"},
      {"redefine", "schemaLocation", "complexType simpleType group attributeGroup"},
      {"element",
       "name ref type minOccurs maxOccurs default fixed nillable abstract substitutionGroup form "
       "block final",
       "complexType simpleType key keyref unique"},
      {"complexType", "name mixed abstract block final",
       "sequence choice all group attribute attributeGroup anyAttribute simpleContent "
       "complexContent"},
      {"complexContent", "mixed", "extension restriction"},
      {"simpleContent", "", "extension restriction"},
      {"extension", "base", "sequence choice all attribute attributeGroup anyAttribute"},
      {"restriction", "base",
       "sequence choice attribute anyAttribute enumeration pattern minLength maxLength "
       "minInclusive maxInclusive whiteSpace"},
      {"sequence", "minOccurs maxOccurs", particles},
      {"choice", "minOccurs maxOccurs", particles},
      {"all", "minOccurs maxOccurs", "element"},
      {"any", "namespace processContents minOccurs maxOccurs", ""},
      {"anyAttribute", "namespace processContents", ""},
      {"group", "name ref minOccurs maxOccurs", particles},
      {"attributeGroup", "name ref", "attribute anyAttribute"},
      {"attribute", "name ref type use default fixed form", "simpleType"},
      {"simpleType", "name final", "restriction list union"},
      {"list", "itemType", ""},
      {"union", "memberTypes", ""},
      {"enumeration", "value", ""},
      {"pattern", "value", ""},
      {"minLength", "value", ""},
      {"maxLength", "value", ""},
      {"minInclusive", "value", ""},
      {"maxInclusive", "value", ""},
      {"whiteSpace", "value", ""},
      {"key", "name", "selector field"},
      {"unique", "name", "selector field"},
      {"keyref", "name refer", "selector field"},
      {"selector", "xpath", ""},
      {"field", "xpath", ""},
      {"notation", "name public system", ""},
      {"annotation", "", "documentation appinfo"},
      {"documentation", "source", ""},
      {"appinfo", "source", ""},
  };
  static const std::map<std::string, std::vector<std::string>> words = {
      {"minOccurs", {"0", "1", "2", "3000000"}},
      {"maxOccurs", {"1", "unbounded", "0", "5000"}},
      {"processContents", {"lax", "skip", "strict"}},
      {"namespace", {"##any", "##other", "##local", "##targetNamespace"}},
      {"use", {"optional", "required", "prohibited"}},
      {"nillable", {"true", "false"}},
      {"abstract", {"true", "false"}},
      {"mixed", {"true", "false"}},
      {"form", {"qualified", "unqualified"}},
      {"elementFormDefault", {"qualified", "unqualified"}},
      {"block", {"#all", "extension", "restriction", "substitution"}},
      {"type", {"xs:string", "xs:int", "xs:anyType", "xs:ID", "xs:IDREF", "xs:QName", "xs:token"}},
      {"base", {"xs:string", "xs:int", "xs:anyType", "xs:decimal"}},
      {"xpath", {".//*", "*", "@name", ".", "self::node()", "a|b"}},
      {"schemaLocation", {"own.xsd", "other.xsd", "document.xml", "missing.xsd", ""}},
  };
  SchemaRules rules;
  rules.uri = xsdUri;
  rules.root = rules.rootType = "schema";
  for (const Row& row : rows) {
    ElementRule& rule = rules.types[row.element];
    std::string name;
    for (std::istringstream names(row.attributes); names >> name;) {
      const auto known = words.find(name);
      rule.attributes.push_back({name, "xs:string", "xs:string",
                                 known == words.end() ? std::vector<std::string>() : known->second,
                                 name == "xpath"});
    }
    for (std::istringstream names(row.children); names >> name;) {
      rule.children.push_back({name, name, 0, false});
    }
  }
  return rules;
}

}  // namespace

const ChildRule* ElementRule::child(std::string_view name) const {
  for (const ChildRule& rule : children) {
    if (rule.name == name) return &rule;
  }
  return nullptr;
}

const ElementRule* SchemaRules::type(std::string_view name) const {
  const auto found = types.find(name);
  return found == types.end() ? nullptr : &found->second;
}

const ElementRule* SchemaRules::anywhere(std::string_view elementName) const {
  if (elementName == root) return type(rootType);
  for (const auto& [name, rule] : types) {
    if (const ChildRule* const found = rule.child(elementName)) return type(found->type);
  }
  return nullptr;
}

const Vocabulary& Vocabulary::shipped() {
  static const Vocabulary vocabulary;
  return vocabulary;
}

Vocabulary::Vocabulary() {
  static constexpr as::Namespace namespaces[] = {
#define AS_NAMESPACE(name, uri, schemaFile) as::namespaces::name,
#include "as/Namespaces.def"
  };
  for (const as::Namespace& each : namespaces) {
    const std::string file = std::string(AS_SCHEMA_DIR "/") + each.schemaFile;
    std::ifstream in(file, std::ios::binary);
    std::ostringstream content;
    content << in.rdbuf();
    const Document document = readTree(content.str());
    if (document.root() == nullptr) throw std::runtime_error("no schema: " + file);
    schemas_.push_back(SchemaReader(*document.root(), each.uri).take());
  }
  schemas_.push_back(rulesOfSchemas());

  std::set<std::string> words;
  for (const SchemaRules& schema : schemas_) {
    words.insert(schema.root);
    for (const auto& [name, rule] : schema.types) {
      for (const ChildRule& child : rule.children) words.insert(child.name);
      for (const AttributeRule& attribute : rule.attributes) {
        words.insert(attribute.name);
        words.insert(attribute.words.begin(), attribute.words.end());
      }
    }
  }
  words_.assign(words.begin(), words.end());
}

const SchemaRules* Vocabulary::schema(std::string_view uri) const {
  for (const SchemaRules& candidate : schemas_) {
    if (candidate.uri == uri) return &candidate;
  }
  return nullptr;
}

std::string fileNameOf(const std::string& uri) { return uri.substr(uri.rfind('/') + 1); }

}  // namespace fuzz
