// Reads documents with the library and explains why one is refused.
#ifndef AS_TOOLKIT_DOCUMENTREADER_H_
#define AS_TOOLKIT_DOCUMENTREADER_H_

#include <memory>
#include <optional>
#include <stdexcept>
#include <string>

#include "as/Export.h"
#include "as/IAgentServices.h"
#include "as/IProgram.h"
#include "as/IService.h"

namespace as::toolkit {

// Why a document was refused, and where. All text is UTF-8 and may hold whatever the document or
// its name holds.
struct Refusal {
  std::string file;  // As the caller named it; or the schema file that the problem is in.
  int line = 0;      // Counted from 1; 0 when the problem has no place in the file.
  int column = 0;    // Likewise, in characters.
  std::string text;  // Why, without a full stop.
  std::string hint;  // What to do about it; may be empty.
  // Whether it is a document of another kind than was asked for: there may be nothing wrong with
  // it.
  bool isOfAnotherKind = false;
};

// "FILE:LINE:COLUMN: TEXT", or "FILE: TEXT" for a problem without a place; without the hint.
AS_EXPORT std::string textOf(const Refusal& refusal);

// Thrown by everything that reads or writes a document for a document that is not to be used.
// what() is textOf() of the refusal.
class AS_EXPORT RefusedDocument : public std::runtime_error {
 public:
  // For that reason.
  explicit RefusedDocument(Refusal refusal);

  // A copy says the same.
  RefusedDocument(const RefusedDocument& other);
  RefusedDocument& operator=(const RefusedDocument& other);
  ~RefusedDocument() override;

  // Why, in its parts.
  const Refusal& refusal() const noexcept { return refusal_; }

 private:
  Refusal refusal_;
};

// Where a document is read from: the file `name`, or else `text`, its bytes, which messages call
// so.
struct DocumentSource {
  std::string name;                   // What messages call it.
  std::optional<std::string> text{};  // In any encoding that a document may have.
};

// What a stream of bytes from the descriptor holds to its end, called `name`: standard input, a
// pipe. Throws RefusedDocument when it cannot be read, or is more than 2^30 bytes.
AS_EXPORT DocumentSource documentFrom(int descriptor, const std::string& name);

// A document of either kind: exactly one of the two is set.
struct Document {
  std::unique_ptr<as::IProgram> dictionary;  // Null for a service.
  std::unique_ptr<as::IService> service;     // Without its program; null for a dictionary.
};

// A service with its program, and what its document says of that. Attaching a program writes the
// program's own name into the model, so whoever wants to check the document's needs it from here.
struct ServiceDocument {
  // Its "dataDictFilename" is the document's unless that has none.
  std::unique_ptr<as::IService> service;
  std::string programName;  // Attribute "programName"; empty when absent.
  std::string dictionary;   // Attribute "dataDictFilename"; empty when absent.
};

// Which program a service is read with.
struct ProgramChoice {
  // The dictionary to use in place of the one that the document names; counts from the current
  // directory, while the document's own counts from the document's folder.
  std::optional<std::string> dictionary;
};

// Every operation reads anew; the caller owns what it returns. Serves one thread at a time, like
// the library.
class AS_EXPORT DocumentReader {
 public:
  // `schemaDirectory` holds the schema files (see as/Namespaces.h). Throws as::CASException when
  // the library could not be started.
  explicit DocumentReader(const std::string& schemaDirectory);
  ~DocumentReader();
  DocumentReader(const DocumentReader&) = delete;
  DocumentReader& operator=(const DocumentReader&) = delete;

  // The data dictionary or the service in `file`, whichever it is; a service comes without its
  // program. A pipe is read once, to its end, as documentFrom() has it. Throws RefusedDocument.
  Document read(const std::string& file) const;
  Document read(const DocumentSource& source) const;

  // The data dictionary in `file`; never null. Throws RefusedDocument.
  std::unique_ptr<as::IProgram> readDictionary(const std::string& file) const;

  // The service in `file`, without its program; never null. Throws RefusedDocument.
  std::unique_ptr<as::IService> readService(const std::string& file) const;

  // The same from either source.
  std::unique_ptr<as::IService> readService(const DocumentSource& source) const;

  // The service in `text`, which messages call `file`; never null, without its program. Throws
  // RefusedDocument.
  std::unique_ptr<as::IService> readServiceText(const std::string& text,
                                                const std::string& file) const;

  // The service in `file` with its program: `service` is never null and has a program. Throws
  // RefusedDocument about the service, about the dictionary, or about a service that names none
  // when `choice` names none either.
  ServiceDocument readServiceWithProgram(const std::string& file,
                                         const ProgramChoice& choice = {}) const;

  // The same of `service`, which was read from `file`. `service` stays the caller's and keeps what
  // it says.
  ServiceDocument withProgram(as::IService& service, const std::string& file,
                              const ProgramChoice& choice = {}) const;

  // That program by itself, for whoever does not need `service` to know it: `service` is not read
  // again. Never null. Throws RefusedDocument likewise.
  std::shared_ptr<as::IProgram> programOf(as::IService& service, const std::string& file,
                                          const ProgramChoice& choice = {}) const;

 private:
  std::unique_ptr<as::IAgentServices> services_;
};

}  // namespace as::toolkit

#endif  // AS_TOOLKIT_DOCUMENTREADER_H_
