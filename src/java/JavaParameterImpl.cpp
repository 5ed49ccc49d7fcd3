#include "java/JavaParameterImpl.h"

#include "java/JSVocabulary.h"
#include "xml/WordTable.h"

AS_DEFINE_IDENTITY2(CJavaParameterImpl, as::IJavaParameter, CParameterImpl)

namespace {

constexpr WordCode dataTypes[] = {
    {JS::short_, as::IJavaField::JAVA_SHORT},
    {JS::int_, as::IJavaField::JAVA_INT},
    {JS::long_, as::IJavaField::JAVA_LONG},
    {JS::float_, as::IJavaField::JAVA_FLOAT},
    {JS::double_, as::IJavaField::JAVA_DOUBLE},
    {JS::bigDecimal, as::IJavaField::JAVA_BIG_DECIMAL},
    {JS::string, as::IJavaField::JAVA_STRING},
    {JS::byteArray, as::IJavaField::JAVA_BYTE_ARRAY},
    {JS::bigInteger, as::IJavaField::JAVA_BIG_INTEGER},
    {JS::byte, as::IJavaField::JAVA_BYTE},
};

}  // namespace

as::IJavaField::TYPE CJavaParameterImpl::getType() {
  return static_cast<TYPE>(codeOfWord(dataTypes, wideAtSource(JS::dataType), JAVA_SHORT));
}

void CJavaParameterImpl::setType(TYPE type) { write(JS::dataType, wordOfCode(dataTypes, type)); }
