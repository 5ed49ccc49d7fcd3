// Types of whole numbers of a schema, made quick for the texts that documents have.
#ifndef XML_NUMBERTYPE_H_
#define XML_NUMBERTYPE_H_

#include <map>
#include <memory>
#include <xercesc/validators/common/Grammar.hpp>
#include <xercesc/validators/datatype/DatatypeValidator.hpp>

// Stands in for a type that is xs:integer but for its bounds: takes a few digits as they are, which
// is what lengths and offsets are written in, and asks the type itself about every other text. To
// do it for all of them, with a pattern and numbers of any length, is a tenth of a parse.
class NumberType final : public xercesc::DatatypeValidator {
 public:
  // `type` has to live as long. REQUIRES: canStandFor(*type).
  NumberType(xercesc::DatatypeValidator* type, xercesc::MemoryManager* memory);
  ~NumberType() override;

  // Whether that is a type of all whole numbers between bounds, in which the short ones are.
  static bool canStandFor(xercesc::DatatypeValidator& type);

  void validate(const XMLCh* text, xercesc::ValidationContext* context,
                xercesc::MemoryManager* memory) override;

  // As the type has it.
  const xercesc::RefArrayVectorOf<XMLCh>* getEnumString() const override;
  const XMLCh* getCanonicalRepresentation(const XMLCh* text, xercesc::MemoryManager* memory,
                                          bool toValidate) const override;
  bool isSubstitutableBy(const xercesc::DatatypeValidator* other) override;
  int compare(const XMLCh* one, const XMLCh* other, xercesc::MemoryManager* memory) override;
  xercesc::DatatypeValidator* newInstance(xercesc::RefHashTableOf<xercesc::KVStringPair>* facets,
                                          xercesc::RefArrayVectorOf<XMLCh>* enums, int finalSet,
                                          xercesc::MemoryManager* memory) override;

 private:
  xercesc::DatatypeValidator& type_;
};

// What stands in for which type; null for none.
using NumberTypes = std::map<xercesc::DatatypeValidator*, std::unique_ptr<NumberType>>;

// Puts one in the place of each type of attributes that it can stand for. Those that are made are
// added to `made`, which has to live as long as the grammar is used.
void quickenNumbers(xercesc::Grammar& grammar, NumberTypes& made, xercesc::MemoryManager* memory);

#endif  // XML_NUMBERTYPE_H_
