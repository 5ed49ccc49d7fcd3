#include "com/COMParameterImpl.h"

#include "com/CSVocabulary.h"
#include "xml/WordTable.h"

AS_DEFINE_IDENTITY3(CCOMParameterImpl, as::ICOMParameter, CParameterImpl, as::ICOMField)

namespace {

// clang-format off
constexpr WordCode dataTypes[] = {
    {CS::byte, as::ICOMField::COM_BYTE},
    {CS::short_, as::ICOMField::COM_SHORT},
    {CS::int_, as::ICOMField::COM_INT},
    {CS::long_, as::ICOMField::COM_LONG},
    {CS::float_, as::ICOMField::COM_FLOAT},
    {CS::double_, as::ICOMField::COM_DOUBLE},
    {CS::currency, as::ICOMField::COM_CURRENCY},
    {CS::date, as::ICOMField::COM_DATE},
    {CS::string, as::ICOMField::COM_STRING},
};
// clang-format on

}  // namespace

as::ICOMField::TYPE CCOMParameterImpl::getType() {
  const XMLCh* const word = wideAtSource(CS::dataType);
  // No type at all is an object, but the word "object" is not read: it counts as unknown.
  if (*word == 0) return COM_OBJECT;
  return static_cast<TYPE>(codeOfWord(dataTypes, word, COM_STRING));
}

void CCOMParameterImpl::setType(TYPE type) { write(CS::dataType, DataTypeToString(type)); }

bool CCOMParameterImpl::isReturnParameter() {
  // What setReturnParameter() writes, and what people write by hand.
  return truth(CS::returnParameter) || text(CS::returnParameter) == "1";
}

void CCOMParameterImpl::setReturnParameter(bool isReturn) {
  write(CS::returnParameter, isReturn ? "1" : "0");
}

const XMLCh* CCOMParameterImpl::DataTypeToString(TYPE type) {
  if (type == COM_OBJECT) return CS::object;
  const XMLCh* const word = wordOfCode(dataTypes, type);
  return word == nullptr ? CS::string : word;
}
