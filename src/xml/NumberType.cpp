#include "xml/NumberType.h"

#include <algorithm>
#include <array>
#include <xercesc/util/RefHashTableOf.hpp>
#include <xercesc/util/XMLException.hpp>
#include <xercesc/util/XMLString.hpp>
#include <xercesc/validators/schema/ComplexTypeInfo.hpp>
#include <xercesc/validators/schema/SchemaAttDef.hpp>
#include <xercesc/validators/schema/SchemaGrammar.hpp>
#include <xercesc/validators/schema/SchemaSymbols.hpp>

using xercesc::ComplexTypeInfo;
using xercesc::DatatypeValidator;
using xercesc::Grammar;
using xercesc::KVStringPair;
using xercesc::MemoryManager;
using xercesc::RefArrayVectorOf;
using xercesc::RefHashTableOf;
using xercesc::RefHashTableOfEnumerator;
using xercesc::SchemaAttDef;
using xercesc::SchemaGrammar;
using xercesc::SchemaSymbols;
using xercesc::ValidationContext;
using xercesc::XMLString;

namespace {

constexpr const XMLCh* smallest = u"0";
constexpr const XMLCh* largest = u"999999999";
constexpr int digitsOfLargest = 9;

bool isShort(const XMLCh* text) {
  int digits = 0;
  for (; text[digits] >= u'0' && text[digits] <= u'9'; digits++) {
    if (digits == digitsOfLargest) return false;
  }
  return digits > 0 && text[digits] == 0;
}

bool isInteger(const DatatypeValidator* type) {
  return type != nullptr &&
         XMLString::equals(type->getTypeLocalName(), SchemaSymbols::fgDT_INTEGER) &&
         XMLString::equals(type->getTypeUri(), SchemaSymbols::fgURI_SCHEMAFORSCHEMA);
}

bool isBound(const XMLCh* facet) {
  static const std::array bounds = {
      SchemaSymbols::fgELT_MININCLUSIVE, SchemaSymbols::fgELT_MINEXCLUSIVE,
      SchemaSymbols::fgELT_MAXINCLUSIVE, SchemaSymbols::fgELT_MAXEXCLUSIVE};
  return std::any_of(bounds.begin(), bounds.end(),
                     [&](const XMLCh* bound) { return XMLString::equals(facet, bound); });
}

bool hasOnlyBounds(const DatatypeValidator& type) {
  if (type.getEnumString() != nullptr) return false;
  RefHashTableOf<KVStringPair>* const facets = type.getFacets();
  if (facets == nullptr) return true;
  RefHashTableOfEnumerator<KVStringPair> each(facets);
  while (each.hasMoreElements()) {
    if (!isBound(each.nextElement().getKey())) return false;
  }
  return true;
}

bool takes(DatatypeValidator& type, const XMLCh* text, MemoryManager* memory) {
  try {
    type.validate(text, nullptr, memory);
    return true;
  } catch (const xercesc::XMLException&) {
    return false;
  }
}

}  // namespace

NumberType::NumberType(DatatypeValidator* type, MemoryManager* memory)
    : DatatypeValidator(type->getBaseValidator(), nullptr, type->getFinalSet(), type->getType(),
                        memory),
      type_(*type) {
  setWhiteSpace(type->getWSFacet());
}

NumberType::~NumberType() = default;

bool NumberType::canStandFor(DatatypeValidator& type) {
  MemoryManager* const memory = type.getMemoryManager();
  return type.getType() == Decimal && isInteger(type.getBaseValidator()) && hasOnlyBounds(type) &&
         takes(type, smallest, memory) && takes(type, largest, memory);
}

void NumberType::validate(const XMLCh* text, ValidationContext* context, MemoryManager* memory) {
  if (!isShort(text)) type_.validate(text, context, memory);
}

const RefArrayVectorOf<XMLCh>* NumberType::getEnumString() const { return type_.getEnumString(); }

const XMLCh* NumberType::getCanonicalRepresentation(const XMLCh* text, MemoryManager* memory,
                                                    bool toValidate) const {
  return type_.getCanonicalRepresentation(text, memory, toValidate);
}

bool NumberType::isSubstitutableBy(const DatatypeValidator* other) {
  return type_.isSubstitutableBy(other);
}

int NumberType::compare(const XMLCh* one, const XMLCh* other, MemoryManager* memory) {
  return type_.compare(one, other, memory);
}

DatatypeValidator* NumberType::newInstance(RefHashTableOf<KVStringPair>* facets,
                                           RefArrayVectorOf<XMLCh>* enums, int finalSet,
                                           MemoryManager* memory) {
  return type_.newInstance(facets, enums, finalSet, memory);
}

void quickenNumbers(Grammar& grammar, NumberTypes& made, MemoryManager* memory) {
  const auto standInFor = [&](DatatypeValidator* type) {
    const auto [entry, isNew] = made.try_emplace(type);
    if (isNew && NumberType::canStandFor(*type)) {
      entry->second.reset(new (memory) NumberType(type, memory));
    }
    return entry->second.get();
  };
  RefHashTableOf<ComplexTypeInfo>* const types =
      static_cast<SchemaGrammar&>(grammar).getComplexTypeRegistry();
  if (types == nullptr) return;
  RefHashTableOfEnumerator<ComplexTypeInfo> each(types);
  while (each.hasMoreElements()) {
    const ComplexTypeInfo& type = each.nextElement();
    if (!type.hasAttDefs()) continue;
    xercesc::XMLAttDefList& attributes = type.getAttDefList();
    for (XMLSize_t i = 0; i < attributes.getAttDefCount(); i++) {
      auto& attribute = static_cast<SchemaAttDef&>(attributes.getAttDef(i));
      DatatypeValidator* const validator = attribute.getDatatypeValidator();
      if (validator == nullptr) continue;
      if (NumberType* const quick = standInFor(validator)) attribute.setDatatypeValidator(quick);
    }
  }
}
