// The members of the exception classes, in one place so that their type information is the
// library's.
#include <utility>

#include "as/CASException.h"
#include "as/CASParseException.h"

namespace as {

CASException::CASException(std::string text) : text_(std::move(text)) {}
CASException::CASException(const CASException& other) = default;
CASException& CASException::operator=(const CASException& other) = default;
CASException::~CASException() = default;

std::string CASException::getErrorText() const { return text_; }

CASParseException::CASParseException(int errorCode, int lineNum, int colNum, std::string errorText,
                                     std::string publicId, std::string systemId)
    : errorCode_(errorCode),
      lineNum_(lineNum),
      colNum_(colNum),
      errorText_(std::move(errorText)),
      publicId_(std::move(publicId)),
      systemId_(std::move(systemId)) {}
CASParseException::CASParseException(const CASParseException& other) = default;
CASParseException& CASParseException::operator=(const CASParseException& other) = default;
CASParseException::~CASParseException() = default;

int CASParseException::getErrorCode() const { return errorCode_; }
int CASParseException::getLineNum() const { return lineNum_; }
int CASParseException::getColNum() const { return colNum_; }
std::string CASParseException::getErrorText() const { return errorText_; }
std::string CASParseException::getPublicId() const { return publicId_; }
std::string CASParseException::getSystemId() const { return systemId_; }

}  // namespace as
