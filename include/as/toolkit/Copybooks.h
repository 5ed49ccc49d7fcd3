// Where the texts come from that the COPY statements of a COBOL source name.
#ifndef AS_TOOLKIT_COPYBOOKS_H_
#define AS_TOOLKIT_COPYBOOKS_H_

#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "as/Export.h"

namespace as::toolkit {

// A text for COPY.
struct Copybook {
  std::string name;  // What messages call it, in UTF-8; one text has one name.
  std::string text;  // Its bytes as they are stored, in any encoding that sources may have.
};

// A copybook is there and cannot be used; what() says why.
class AS_EXPORT CopybookError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;

  // A copy says the same.
  CopybookError(const CopybookError& other);
  CopybookError& operator=(const CopybookError& other);
  ~CopybookError() override;
};

// Clients derive their own to bring texts from memory or from a library system. Asked at most once
// for each name in the course of an import.
class AS_EXPORT CopybookProvider {
 public:
  CopybookProvider() = default;
  CopybookProvider(const CopybookProvider&) = delete;
  CopybookProvider& operator=(const CopybookProvider&) = delete;
  virtual ~CopybookProvider();

  // The text for COPY `name` OF `library`, both UTF-8 as the source writes them, without quotes;
  // `library` is empty when the statement names none. Nothing when there is none. Throws
  // CopybookError.
  virtual std::optional<Copybook> find(const std::string& name, const std::string& library) = 0;
};

// Finds copybooks in folders: in `folders`, one after the other, then in that of the file `source`.
// In each the name as written is looked for, then with .cpy, .cbl, .cob, .copy, .inc, .dcl and
// .cpb, in small and in capital letters; one in mixed letters as whatever letters it has. A library
// is a folder in these. Names may have folders in front, with "/" or "\" between; what is not found
// there, or leads out of the folder it is looked for in
// ("C:\LIB\CUST.CPY", "../lib/CUST"), is looked for by its last part. Names that lead out and are
// not found so are errors, and so are files that are not to be read. Threads may share one.
class AS_EXPORT FolderCopybooks : public CopybookProvider {
 public:
  // None of the folders has to be there.
  FolderCopybooks(std::vector<std::string> folders, const std::string& source);
  ~FolderCopybooks() override;

  std::optional<Copybook> find(const std::string& name, const std::string& library) override;

 private:
  std::optional<Copybook> findBelow(const std::string& before, const std::string& name,
                                    const std::string& library) const;

  std::vector<std::string> folders_;
};

}  // namespace as::toolkit

#endif  // AS_TOOLKIT_COPYBOOKS_H_
