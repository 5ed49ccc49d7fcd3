// A failure told by a text.
#ifndef AS_CASEXCEPTION_H_
#define AS_CASEXCEPTION_H_

#include <string>

#include "as/Export.h"

namespace as {

// A plain value. It derives from nothing, the standard exceptions included: catch it by this type.
class AS_EXPORT CASException {
 public:
  // Of that text, in UTF-8.
  explicit CASException(std::string text);

  // A copy has a text of its own.
  CASException(const CASException& other);
  CASException& operator=(const CASException& other);
  ~CASException();

  // What went wrong, in UTF-8.
  std::string getErrorText() const;

 private:
  std::string text_;
};

}  // namespace as

#endif  // AS_CASEXCEPTION_H_
