// Documents that are read more than once.
#ifndef TOOLKIT_IO_HELDSOURCE_H_
#define TOOLKIT_IO_HELDSOURCE_H_

#include <optional>

#include "as/toolkit/DocumentReader.h"

namespace as::toolkit {

// A pipe gives its document only once; whoever opens it again waits for ever, or gets nothing. So
// what comes through one is read here, to its end, and held.
class HeldSource {
 public:
  // `source` has to outlive this object. Throws RefusedDocument when it is a pipe that cannot be
  // read.
  explicit HeldSource(const DocumentSource& source);

  // `source`, or its text.
  const DocumentSource& get() const { return piped_ ? *piped_ : *source_; }

 private:
  const DocumentSource* source_;
  std::optional<DocumentSource> piped_;
};

}  // namespace as::toolkit

#endif  // TOOLKIT_IO_HELDSOURCE_H_
