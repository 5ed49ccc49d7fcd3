#include "xml/SchemaInspection.h"

#include <algorithm>
#include <cstddef>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <utility>
#include <vector>
#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/framework/XMLAttr.hpp>
#include <xercesc/framework/XMLElementDecl.hpp>
#include <xercesc/framework/XMLErrorCodes.hpp>
#include <xercesc/framework/XMLNotationDecl.hpp>
#include <xercesc/internal/XMLScanner.hpp>
#include <xercesc/parsers/SAXParser.hpp>
#include <xercesc/sax/HandlerBase.hpp>
#include <xercesc/util/SecurityManager.hpp>
#include <xercesc/util/XMLChar.hpp>
#include <xercesc/util/XMLResourceIdentifier.hpp>
#include <xercesc/util/XMLString.hpp>
#include <xercesc/util/XMLUni.hpp>
#include <xercesc/validators/schema/SchemaSymbols.hpp>

#include "xml/DtdGauge.h"
#include "xml/GrammarMemory.h"
#include "xml/Limits.h"
#include "xml/PatternInspection.h"
#include "xml/Position.h"
#include "xml/Refusals.h"
#include "xml/StreamSource.h"
#include "xml/XStr.h"

using xercesc::DTDElementDecl;
using xercesc::DTDEntityDecl;
using xercesc::InputSource;
using xercesc::MemBufInputSource;
using xercesc::RefVectorOf;
using xercesc::SchemaSymbols;
using xercesc::XMLAttr;
using xercesc::XMLChar1_0;
using xercesc::XMLElementDecl;
using xercesc::XMLErrs;
using xercesc::XMLString;
using xercesc::XMLUni;

namespace {

std::string narrow(const XMLCh* text) { return CXStr(text, false); }

using Name = std::basic_string<XMLCh>;
using Counts = SchemaInspection::Counts;
using GroupName = SchemaInspection::GroupName;

// Numbers that are too large for every limit, be it by how much.
constexpr XMLSize_t tooMany = 1000000;

XMLSize_t product(XMLSize_t a, XMLSize_t b) {
  return a >= tooMany || b >= tooMany ? tooMany : std::min(a * b, tooMany);
}

// The whole number in `text`; 0 when it is none.
XMLSize_t numberIn(const XMLCh* text) {
  XMLSize_t value = 0;
  while (XMLChar1_0::isWhitespace(*text)) ++text;
  if (*text == u'+') ++text;
  for (; *text >= u'0' && *text <= u'9'; ++text) {
    value = std::min(value * 10 + static_cast<XMLSize_t>(*text - u'0'), tooMany);
  }
  return value;
}

// Adds up the elements of groups wherever they are referred to.
class Sum {
 public:
  explicit Sum(const Counts& counts) : counts_(counts) {}

  XMLSize_t all() {
    XMLSize_t sum = 0;
    for (const auto& [name, elements] : counts_.elements) sum += of(name, elements);
    return sum;
  }

 private:
  using Elements = SchemaInspection::Elements;

  XMLSize_t of(const GroupName& group, const Elements& elements) {
    // A group that holds itself the parser refuses, but only after it has laid out what it met
    // on the way, and from wherever it comes in.
    const auto [entry, isNew] = sums_.try_emplace(group, tooMany);
    if (!isNew) return entry->second;
    XMLSize_t sum = elements.own;
    for (const auto& [name, times] : elements.groups) {
      sum = std::min(sum + product(referredTo(name), times), tooMany);
    }
    return sums_[group] = sum;
  }

  // All that the name may stand for.
  XMLSize_t referredTo(const GroupName& name) {
    XMLSize_t sum = 0;
    for (auto at = counts_.elements.lower_bound({name.local, {}});
         at != counts_.elements.end() && at->first.local == name.local; ++at) {
      const auto& [group, elements] = *at;
      if (name.uri.empty() || group.uri.empty() || group.uri == name.uri) {
        sum = std::min(sum + of(group, elements), tooMany);
      }
    }
    return sum;
  }

  const Counts& counts_;
  std::map<GroupName, XMLSize_t> sums_;
};

// Without the blanks around it, which a name may have.
Name trimmed(const XMLCh* text) {
  while (XMLChar1_0::isWhitespace(*text)) ++text;
  XMLSize_t size = XMLString::stringLen(text);
  while (size > 0 && XMLChar1_0::isWhitespace(text[size - 1])) --size;
  return {text, size};
}

XMLSize_t wordsIn(const XMLCh* text) {
  XMLSize_t words = 0;
  for (bool inWord = false; *text != 0; ++text) {
    const bool isBlank = XMLChar1_0::isWhitespace(*text);
    if (!isBlank && !inWord) ++words;
    inWord = !isBlank;
  }
  return words;
}

XMLSize_t alternativesIn(const XMLCh* path) {
  XMLSize_t alternatives = 1;
  for (; *path != 0; ++path) alternatives += *path == u'|' ? 1 : 0;
  return alternatives;
}

// Made in front of the parser.
struct SchemaMemory {
  GrammarMemory memory;
};

class SchemaParser final : private SchemaMemory, public xercesc::SAXParser {
 public:
  explicit SchemaParser(Counts& counts) : SAXParser(nullptr, &memory), counts_(counts) {
    limits_.setEntityExpansionLimit(limits::entityExpansions);
    setSecurityManager(&limits_);
    setValidationScheme(Val_Never);
    setDoNamespaces(true);
    // Without these it would call nobody.
    setDocumentHandler(&nobody_);
    setDTDHandler(&nobody_);
    setEntityResolver(&nobody_);
    setErrorHandler(&nobody_);
  }

  // From the parser's document side.
  void XMLDecl(const XMLCh* version, const XMLCh* /*encoding*/, const XMLCh* /*standalone*/,
               const XMLCh* /*actualEncoding*/) override {
    refuse(refusals::ofVersion(version));
  }
  void startElement(const XMLElementDecl& declaration, unsigned int uriId, const XMLCh* /*prefix*/,
                    const RefVectorOf<XMLAttr>& attributes, XMLSize_t attributeCount, bool isEmpty,
                    bool /*isRoot*/) override {
    check("levels of elements", open_.size() + 1, limits::schemaDepth);
    if (attributeCount > limits::attributes) refuse(refusals::ofTooManyAttributes());
    const bool isSchemas =
        XMLString::equals(getScanner().getURIText(uriId), SchemaSymbols::fgURI_SCHEMAFORSCHEMA);
    const XMLCh* const name = declaration.getBaseName();
    const auto is = [&](const XMLCh* other) { return isSchemas && XMLString::equals(name, other); };
    Open here = open_.empty() ? Open() : open_.back();
    if (here.isUnion) countUnionMembers(1);
    here.isUnion = is(SchemaSymbols::fgELT_UNION);
    const bool isPattern = is(SchemaSymbols::fgELT_PATTERN);
    const bool isGroup = is(SchemaSymbols::fgELT_GROUP);
    const bool isWildcard = is(SchemaSymbols::fgELT_ANY) || is(SchemaSymbols::fgELT_ANYATTRIBUTE);
    const bool isEnumeration = is(SchemaSymbols::fgELT_ENUMERATION);
    XMLSize_t namespaces = 0;
    XMLSize_t times = 1;
    std::optional<Name> group;
    std::optional<Name> reference;
    here.prefixes = prefixes_.size();
    here.isRedefined = here.isRedefined || is(SchemaSymbols::fgELT_REDEFINE);
    for (XMLSize_t i = 0; i < attributeCount; ++i) {
      const XMLCh* const value = attributes.elementAt(i)->getValue();
      countCharacters(XMLString::stringLen(value));
      const XMLCh* const attribute = attributes.elementAt(i)->getName();
      const XMLCh* const whole = attributes.elementAt(i)->getQName();
      const bool isDefault = XMLString::equals(whole, XMLUni::fgXMLNSString);
      if (isDefault || XMLString::startsWith(whole, XMLUni::fgXMLNSColonString)) {
        here.namespaces += XMLString::stringLen(whole) + XMLString::stringLen(value);
        declare(isDefault ? Name() : attribute, trimmed(value));
      }
      const auto isNamed = [&](const XMLCh* other) { return XMLString::equals(attribute, other); };
      if (isNamed(SchemaSymbols::fgATT_MINOCCURS) || isNamed(SchemaSymbols::fgATT_MAXOCCURS)) {
        times = std::max(times, numberIn(value));
      } else if (isGroup && isNamed(SchemaSymbols::fgATT_NAME)) {
        group = trimmed(value);
      } else if (isGroup && isNamed(SchemaSymbols::fgATT_REF)) {
        reference = trimmed(value);
      } else if (open_.empty() && isNamed(SchemaSymbols::fgATT_TARGETNAMESPACE)) {
        target_ = trimmed(value);
      } else if (isPattern && isNamed(SchemaSymbols::fgATT_VALUE)) {
        check("characters in a pattern", XMLString::stringLen(value), limits::schemaPattern);
        if (!leavesNoChoice(value)) refuse(refusals::ofPattern(narrow(value)));
      } else if (isWildcard && isNamed(SchemaSymbols::fgATT_NAMESPACE)) {
        namespaces = wordsIn(value);
      } else if (isEnumeration && isNamed(SchemaSymbols::fgATT_VALUE)) {
        check("words of enumerated values",
              counts_.values += std::max<XMLSize_t>(wordsIn(value), 1), limits::schemaValues);
      } else if (isNamed(SchemaSymbols::fgATT_SUBSTITUTIONGROUP)) {
        check("elements that stand for others", ++counts_.substitutes, limits::schemaSubstitutes);
      } else if (here.isUnion && isNamed(SchemaSymbols::fgATT_MEMBERTYPES)) {
        countUnionMembers(wordsIn(value));
      } else if (isNamed(SchemaSymbols::fgATT_DEFAULT) || isNamed(SchemaSymbols::fgATT_FIXED)) {
        check("characters in a default or fixed value", XMLString::stringLen(value),
              limits::schemaDefault);
      } else if (isNamed(SchemaSymbols::fgATT_XPATH)) {
        check("paths of keys, references to keys and unique values",
              counts_.constraints += alternativesIn(value), limits::schemaConstraints);
      }
    }
    // A type has a content model of its own, and a group one that others refer to.
    if (is(SchemaSymbols::fgELT_COMPLEXTYPE)) here.times = 1;
    if (group) {
      here.times = 1;
      here.group = {*group, target_};
      here.hasOriginal = here.isRedefined;
    }
    if (is(SchemaSymbols::fgELT_ANNOTATION)) countCharacters(here.namespaces);
    here.times = product(here.times, times);
    SchemaInspection::Elements& elements = counts_.elements[here.group];
    // A namespace in a list is a wildcard of its own.
    elements.own += product(here.times, 1 + namespaces);
    checkElements(++counts_.elementsRead);
    checkElements(elements.own);
    if (reference) {
      Reference made = referenceTo(*reference, here);
      // A group that is redefined holds, once, what it was; that is counted where it stands.
      const bool isOriginal = here.hasOriginal && made.group == here.group;
      if (isOriginal) forgetOriginal();
      made.counts = !isOriginal || here.times != 1;
      references_.push_back(std::move(made));
    }
    if (isEmpty) {
      prefixes_.resize(here.prefixes);
    } else {
      open_.push_back(std::move(here));
    }
  }
  void endElement(const XMLElementDecl& /*declaration*/, unsigned int /*uriId*/, bool /*isRoot*/,
                  const XMLCh* /*prefix*/) override {
    prefixes_.resize(open_.back().prefixes);
    open_.pop_back();
    if (!open_.empty()) return;
    for (const Reference& reference : references_) add(reference);
    checkElements(Sum(counts_).all());
  }
  void docCharacters(const XMLCh* /*text*/, XMLSize_t length, bool /*isCData*/) override {
    countCharacters(length);
  }
  void ignorableWhitespace(const XMLCh* /*text*/, XMLSize_t length, bool /*isCData*/) override {
    countCharacters(length);
  }
  void entityDecl(const DTDEntityDecl& entity, bool isParameterEntity,
                  bool /*isIgnored*/) override {
    refuse(refusals::ofEntity(entity, isParameterEntity));
    refuse(dtd_.reasonAfterDeclaration());
  }
  void elementDecl(const DTDElementDecl& /*element*/, bool /*isIgnored*/) override {
    refuse(dtd_.reasonAfterDeclaration());
  }
  void notationDecl(const xercesc::XMLNotationDecl& /*notation*/, bool /*isIgnored*/) override {
    refuse(dtd_.reasonAfterDeclaration());
  }
  void doctypeDecl(const DTDElementDecl& /*root*/, const XMLCh* /*publicId*/,
                   const XMLCh* /*systemId*/, bool /*hasInternal*/, bool /*hasExternal*/) override {
    dtd_.begin();
  }
  void endIntSubset() override {
    refuse(dtd_.reasonSoFar());
    dtd_.end();
  }
  void startAttList(const DTDElementDecl& element) override {
    refuse(refusals::ofAttributeDeclarations(element));
  }

  // From the parser's entity handler.
  InputSource* resolveEntity(xercesc::XMLResourceIdentifier* reference) override {
    refuse(refusals::ofExternalEntity(narrow(reference->getSystemId())));
    return nullptr;
  }

  // From the parser's error reporter. It tells again, except that there were too many expansions.
  void error(unsigned int code, const XMLCh* /*domain*/, ErrTypes /*type*/, const XMLCh* text,
             const XMLCh* systemId, const XMLCh* publicId, XMLFileLoc line,
             XMLFileLoc column) override {
    if (code != XMLErrs::EntityExpansionLimitExceeded) return;
    throw as::CASParseException(static_cast<int>(code), position(line), position(column),
                                narrow(text), narrow(publicId), narrow(systemId));
  }

  // To be called in front of each piece of the schema.
  XMLSize_t pieceAt(XMLFilePos place) const {
    refuse(dtd_.reasonSoFar());
    return DtdGauge::pieceAt(place);
  }

 private:
  // An element that is open.
  struct Open {
    bool isUnion = false;
    XMLSize_t times = 1;  // That it is laid out.
    GroupName group;      // That it stands in.
    // Whether it stands in a redefinition, and may yet refer to the group that this redefines.
    bool isRedefined = false;
    bool hasOriginal = false;
    // The characters of the declarations of namespaces that count here: the parser writes them all
    // into each annotation.
    XMLSize_t namespaces = 0;
    std::size_t prefixes = 0;  // That are declared around it.
  };

  struct Prefix {
    Name name;  // Empty for the default namespace.
    Name uri;
  };

  // A reference to a group.
  struct Reference {
    GroupName from;
    GroupName group;  // As it stands.
    XMLSize_t times;
    Name prefix;
    bool isSure;         // That the parser takes the prefix for what it is where it stands.
    bool counts = true;  // If it is sure.
  };

  void declare(const Name& prefix, const Name& uri) {
    prefixes_.push_back({prefix, uri});
    // All that a prefix is declared to be counts, and one that the root knows nothing of may be one
    // of a schema that includes this one.
    const auto [first, isNew] = namespaces_.try_emplace(prefix, uri);
    if (isNew ? !open_.empty() : first->second != uri) unsure_.insert(prefix);
  }

  // One from `here`, whose declarations have been noted.
  Reference referenceTo(const Name& name, const Open& here) const {
    const auto colon = name.find(u':');
    const bool isQualified = colon != Name::npos;
    Name prefix = isQualified ? name.substr(0, colon) : Name();
    const auto found =
        std::find_if(prefixes_.rbegin(), prefixes_.rend(),
                     [&](const Prefix& declared) { return declared.name == prefix; });
    const bool isDeclared = found != prefixes_.rend();
    const GroupName group = {isQualified ? name.substr(colon + 1) : name,
                             isDeclared ? found->uri : Name()};
    const bool isHere =
        isDeclared &&
        found - prefixes_.rbegin() < static_cast<std::ptrdiff_t>(prefixes_.size() - here.prefixes);
    return {here.group, group, here.times, std::move(prefix), isHere};
  }

  // To the parser a prefix is what it was declared to be last on its way to where it is looked up,
  // be it somewhere else in the schema: unless that is always the same, or the element itself
  // tells, a reference may be one to any group of that name.
  void add(const Reference& reference) {
    const bool isSure = reference.isSure || !unsure_.contains(reference.prefix);
    if (isSure && !reference.counts) return;
    const Name uri = isSure ? reference.group.uri : Name();
    counts_.elements[reference.from].groups.emplace_back(GroupName{reference.group.local, uri},
                                                         reference.times);
  }

  void forgetOriginal() {
    for (Open& open : open_) open.hasOriginal = false;
  }

  void checkElements(XMLSize_t number) const {
    check("elements, as many times as they are laid out", number, limits::schemaElements);
  }
  void countCharacters(XMLSize_t number) {
    check("characters", counts_.characters += number, limits::schemaBytes);
  }
  void countUnionMembers(XMLSize_t number) {
    check("members of unions", counts_.unionMembers += number, limits::schemaUnionMembers);
  }
  void check(const char* what, XMLSize_t number, XMLSize_t limit) const {
    refuse(refusals::ofSchemas(what, number, limit));
  }
  void refuse(const std::string& reason) const {
    if (reason.empty()) return;
    const xercesc::Locator* const at = getScanner().getLocator();
    throw as::CASParseException(0, position(at->getLineNumber()), position(at->getColumnNumber()),
                                reason, narrow(at->getPublicId()), narrow(at->getSystemId()));
  }

  Counts& counts_;
  DtdGauge dtd_{memory};
  xercesc::SecurityManager limits_;
  xercesc::HandlerBase nobody_;
  std::vector<Open> open_;
  std::vector<Prefix> prefixes_;     // That are declared, the innermost last.
  std::map<Name, Name> namespaces_;  // What each prefix is declared to be first.
  std::set<Name> unsure_;            // The prefixes that may be something else, too.
  std::vector<Reference> references_;
  Name target_;  // The namespace of the schema.
};

}  // namespace

std::optional<as::CASParseException> SchemaInspection::refusalOf(const std::string& schema,
                                                                 const XMLCh* name) {
  const MemBufInputSource bytes(reinterpret_cast<const XMLByte*>(schema.data()), schema.size(),
                                name);
  try {
    SchemaParser parser(counts_);
    parser.parse(StreamSource(name, [&] {
      return std::make_unique<WatchedStream>(
          StreamSource::Stream(bytes.makeStream()),
          [&](XMLFilePos place) { return parser.pieceAt(place); });
    }));
  } catch (const as::CASParseException& refusal) {
    return as::CASParseException(refusal);
  } catch (...) {  // NOLINT(bugprone-empty-catch)
    // The parser will tell.
  }
  return std::nullopt;
}
