// Where copybooks that come with a system were passed over in a source.
#ifndef TOOLKIT_IMPORT_PASSEDCOPYBOOKS_H_
#define TOOLKIT_IMPORT_PASSEDCOPYBOOKS_H_

#include <cstddef>
#include <cstdint>
#include <unordered_map>
#include <vector>

#include "toolkit/import/Token.h"

namespace as::toolkit {

class PassedCopybooks {
 public:
  // The source must outlive it.
  explicit PassedCopybooks(const TokenSource& source) : source_(source) {}

  // Whether one was passed over behind `begin`, in the same file, and in front of `end`; one that
  // stands in another file, or has no line, ends nothing.
  bool isOneBetween(const SourcePlace& begin, const SourcePlace& end);

 private:
  const TokenSource& source_;
  // Those of each file, in their order: as many as were passed over so far.
  std::unordered_map<std::int32_t, std::vector<SourcePlace>> byFile_;
  std::size_t known_ = 0;
};

}  // namespace as::toolkit

#endif  // TOOLKIT_IMPORT_PASSEDCOPYBOOKS_H_
