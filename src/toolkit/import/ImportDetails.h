// What an import keeps of a program to explain its items.
#ifndef TOOLKIT_IMPORT_IMPORTDETAILS_H_
#define TOOLKIT_IMPORT_IMPORTDETAILS_H_

#include <memory>
#include <vector>

#include "as/toolkit/Import.h"
#include "as/toolkit/Storage.h"
#include "toolkit/import/ProgramEntries.h"
#include "toolkit/import/SourceMap.h"

namespace as::toolkit {

// All of a source, which its programs share.
struct ImportedSource {
  SourceMap map;
  Dialect dialect{};
  std::vector<std::unique_ptr<CobolProgram>> programs;
};

class ImportDetails {
 public:
  ImportDetails(std::shared_ptr<const ImportedSource> source, const CobolProgram& program)
      : source_(std::move(source)), program_(program) {}

  const CobolProgram& program() const { return program_; }
  const Dialect& dialect() const { return source_->dialect; }
  SourceLocation locationOf(const SourcePlace& place) const;

 private:
  std::shared_ptr<const ImportedSource> source_;
  const CobolProgram& program_;
};

// The place in words of the source's files.
SourceLocation locationOf(const SourceMap& map, const SourcePlace& place);

// Those that the file of a place was copied at, from the inside out.
std::vector<SourceLocation> copiedAt(const SourceMap& map, const SourcePlace& place);

}  // namespace as::toolkit

#endif  // TOOLKIT_IMPORT_IMPORTDETAILS_H_
