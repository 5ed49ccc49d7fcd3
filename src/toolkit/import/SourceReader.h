// Reads a COBOL source into words: from bytes of any encoding and lines of any format, with COPY,
// REPLACE and compiler directives done, and without what is no part of the entries: comments,
// EXEC statements, listing statements.
#ifndef TOOLKIT_IMPORT_SOURCEREADER_H_
#define TOOLKIT_IMPORT_SOURCEREADER_H_

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "as/toolkit/Copybooks.h"
#include "as/toolkit/SourceFormat.h"
#include "toolkit/import/ImportBudget.h"
#include "toolkit/import/SourceMap.h"
#include "toolkit/import/SourceReport.h"
#include "toolkit/import/Token.h"

namespace as::toolkit {

struct SourceOptions {
  SourceFormat format = SourceFormat::recognised;

  // A name that iconv knows of a code page with one byte a character ("IBM-273", "WINDOWS-1252"),
  // or "UTF-8"; empty: recognised, for each file by itself.
  std::string encoding;

  // Names that ">>IF" and ">>DEFINE ... PARAMETER" know from outside.
  struct Definition {
    std::string name;
    std::string value;
  };
  std::vector<Definition> definitions;

  ImportBudget::Most most;
};

class SourceReader : public TokenSource {
 public:
  // The source with these bytes, which messages call `name`. Copybooks come from `copybooks`, if
  // there are any. What is found goes to the end of `findings`. All references must outlive it.
  SourceReader(std::string bytes, const std::string& name, const SourceOptions& options,
               CopybookProvider* copybooks, SourceMap& map, SourceFindings& findings);
  ~SourceReader() override;
  SourceReader(const SourceReader&) = delete;
  SourceReader& operator=(const SourceReader&) = delete;

  void read(Token& token) override;
  std::optional<Definition> definition(const std::string& name) const override;
  const std::vector<SourcePlace>& passedCopybooks() const override;

  // The format that the source begins with: the one that was told, or recognised.
  SourceFormat format() const;

  // Whether DECIMAL-POINT IS COMMA was read; numbers have "." all the same, pictures are as
  // written.
  bool decimalPointIsComma() const;

 private:
  class Impl;
  std::unique_ptr<Impl> impl_;
};

}  // namespace as::toolkit

#endif  // TOOLKIT_IMPORT_SOURCEREADER_H_
