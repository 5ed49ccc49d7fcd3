// A message of the XML parser about a document: not well formed, not valid, or not readable.
#ifndef AS_CASPARSEEXCEPTION_H_
#define AS_CASPARSEEXCEPTION_H_

#include <string>

#include "as/Export.h"

namespace as {

// A plain value. It derives from nothing, the standard exceptions included: catch it by this type.
class AS_EXPORT CASParseException {
 public:
  // Of what the operations below answer.
  CASParseException(int errorCode, int lineNum, int colNum, std::string errorText,
                    std::string publicId, std::string systemId);

  // A copy has texts of its own.
  CASParseException(const CASParseException& other);
  CASParseException& operator=(const CASParseException& other);
  ~CASParseException();

  // The XML parser's number for the message; 0 for a refusal of this library's own. The parser
  // counts its groups of messages apart from each other, so that one number may stand for several
  // messages; the text tells them apart.
  int getErrorCode() const;

  // Where in the document the problem was found, counted from 1; 0 when it has no place there (a
  // document that cannot be opened).
  int getLineNum() const;
  int getColNum() const;

  // The message, in UTF-8.
  std::string getErrorText() const;

  // The public identifier of the entity in which the problem was found; empty when it has none.
  std::string getPublicId() const;

  // The system identifier of that entity: the file name or buffer identifier of the parse request
  // (a relative file name made absolute), or the name of a schema file. Where the parser names no
  // entity, because it could not open one, the document's name as the request gave it.
  std::string getSystemId() const;

 private:
  int errorCode_;
  int lineNum_;
  int colNum_;
  std::string errorText_;
  std::string publicId_;
  std::string systemId_;
};

}  // namespace as

#endif  // AS_CASPARSEEXCEPTION_H_
