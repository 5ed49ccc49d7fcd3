// The pictures of a program, each text read once.
#ifndef TOOLKIT_IMPORT_PICTURETABLE_H_
#define TOOLKIT_IMPORT_PICTURETABLE_H_

#include <string>
#include <unordered_map>

#include "toolkit/import/ConstantReader.h"
#include "toolkit/import/EntryProblems.h"
#include "toolkit/import/ProgramEntries.h"

namespace as::toolkit {

class PictureTable {
 public:
  PictureTable(CobolProgram& program, const ConstantReader& constants, EntryProblems& problems)
      : program_(program), constants_(constants), problems_(problems) {}

  // Where the picture of that text stands in CobolProgram::pictures. One that cannot be read is
  // told at each place where it is written.
  Index indexOf(const std::string& written, const SourcePlace& place);
  // Whether it can be read.
  bool isPicture(const std::string& written) const;

 private:
  PictureRules rulesFor(const std::string& text, const std::string& written) const;
  std::string withConstants(const std::string& picture) const;
  std::optional<Picture> read(const std::string& text, const std::string& written,
                              const SourcePlace& place);

  CobolProgram& program_;
  const ConstantReader& constants_;
  EntryProblems& problems_;
  std::unordered_map<std::string, Index> known_;
};

}  // namespace as::toolkit

#endif  // TOOLKIT_IMPORT_PICTURETABLE_H_
