// Checks of what generators make, by readers that know nothing of these. Each ends the process when
// the text is not what it is to be.
#ifndef FUZZ_GENERATEDTEXT_H_
#define FUZZ_GENERATEDTEXT_H_

#include <vector>

#include "as/toolkit/Generate.h"

namespace fuzz {

// The files that a kind has made of one input: XML is well-formed, schemas are schemas, JSON is
// JSON, and in code nothing of the document stands but as a name, a text or a comment.
void requireGood(const std::vector<as::toolkit::GeneratedFile>& files);

}  // namespace fuzz

#endif  // FUZZ_GENERATEDTEXT_H_
