#include "dotnet/DotNETParameterImpl.h"

#include "dotnet/DNSVocabulary.h"
#include "xml/Assertion.h"
#include "xml/WordTable.h"
#include "xml/XStr.h"

AS_DEFINE_IDENTITY3(CDotNETParameterImpl, as::IDotNETParameter, CParameterImpl, as::IDotNETField)

namespace {

// clang-format off
constexpr WordCode dataTypes[] = {
    {DNS::byte, as::IDotNETField::NET_BYTE},
    {DNS::sByte, as::IDotNETField::NET_SBYTE},
    {DNS::int16, as::IDotNETField::NET_INT16},
    {DNS::int32, as::IDotNETField::NET_INT32},
    {DNS::int64, as::IDotNETField::NET_INT64},
    {DNS::uint16, as::IDotNETField::NET_UINT16},
    {DNS::uint32, as::IDotNETField::NET_UINT32},
    {DNS::uint64, as::IDotNETField::NET_UINT64},
    {DNS::single_, as::IDotNETField::NET_SINGLE},
    {DNS::double_, as::IDotNETField::NET_DOUBLE},
    {DNS::decimal, as::IDotNETField::NET_DECIMAL},
    {DNS::string, as::IDotNETField::NET_STRING},
};
// clang-format on

}  // namespace

as::IDotNETField::TYPE CDotNETParameterImpl::getType() {
  return StringToDataType(wideAtSource(DNS::dataType));
}

void CDotNETParameterImpl::setType(TYPE type) { write(DNS::dataType, DataTypeToString(type)); }

std::string CDotNETParameterImpl::getTypeToString() {
  return CXStr(DataTypeToString(getType()), false);
}

const XMLCh* CDotNETParameterImpl::DataTypeToString(TYPE type) {
  const XMLCh* const word = wordOfCode(dataTypes, type);
  if (word != nullptr) return word;
  // Clients' log watchers match this message to the letter: what stands in for line and signature
  // never changes, wherever the check itself may move.
  assertionFailed("false", "DotnetParameterImpl", 68,
                  "static const XMLCh* "
                  "CDotNETParameterImpl::DataTypeToString(as::IDotNETField::TYPE)");
}

as::IDotNETField::TYPE CDotNETParameterImpl::StringToDataType(const XMLCh* word) {
  return static_cast<TYPE>(codeOfWord(dataTypes, word, NET_BYTE));
}
