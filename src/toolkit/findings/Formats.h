// The makers of writers of findings, one for each format.
#ifndef TOOLKIT_FINDINGS_FORMATS_H_
#define TOOLKIT_FINDINGS_FORMATS_H_

#include <iosfwd>
#include <memory>

#include "as/toolkit/FindingsWriter.h"

namespace as::toolkit {

#define AS_FINDINGS_FORMAT(function, word, summary) \
  std::unique_ptr<FindingsWriter> function(std::ostream& out, const FindingsOptions& options);
#include "toolkit/findings/Formats.def"

}  // namespace as::toolkit

#endif  // TOOLKIT_FINDINGS_FORMATS_H_
