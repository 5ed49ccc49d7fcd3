// What the numbers of files in places of a source stand for.
#ifndef TOOLKIT_IMPORT_SOURCEMAP_H_
#define TOOLKIT_IMPORT_SOURCEMAP_H_

#include <cstddef>
#include <string>
#include <unordered_map>
#include <vector>

#include "toolkit/import/Token.h"

namespace as::toolkit {

class SourceMap {
 public:
  // A file that is read from now on, because of the statement at `from`. The first is the source
  // itself, for which `from` says nothing.
  std::int32_t add(const std::string& name, const SourcePlace& from = {});

  // REQUIRES: a file that was added.
  const std::string& name(std::int32_t file) const;
  SourcePlace from(std::int32_t file) const { return at(file).from; }

  std::size_t size() const { return inclusions_.size(); }

  // "CUST.cpy:12:8, copied at MAIN.cbl:40:12"; without line and column when there are none.
  std::string textOf(const SourcePlace& place) const;

 private:
  struct Inclusion {
    std::size_t name = 0;
    SourcePlace from;
  };

  const Inclusion& at(std::int32_t file) const {
    return inclusions_[static_cast<std::size_t>(file)];
  }

  // Files are copied many times, and have their names once.
  std::vector<std::string> names_;
  std::unordered_map<std::string, std::size_t> numbers_;
  std::vector<Inclusion> inclusions_;
};

}  // namespace as::toolkit

#endif  // TOOLKIT_IMPORT_SOURCEMAP_H_
