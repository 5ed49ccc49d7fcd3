// Reads documents with the library and sorts what may go wrong into one kind of refusal.
#ifndef TOOLKIT_IO_DOCUMENTREADER_H_
#define TOOLKIT_IO_DOCUMENTREADER_H_

#include <memory>
#include <string>

namespace as {
class IAgentServices;
class IProgram;
class IService;
}  // namespace as

// Why a document was refused, and where. Thrown by DocumentReader.
struct Refusal {
  std::string file;  // As the user named it; or the schema file that the problem is in.
  int line = 0;      // Counted from 1; 0 when the problem has no place in the file.
  int column = 0;
  std::string text;
  std::string hint;  // What to do about it; may be empty.
};

// A document of either kind: one of the two is null.
struct Document {
  std::unique_ptr<as::IProgram> dictionary;
  std::unique_ptr<as::IService> service;
};

class DocumentReader {
 public:
  explicit DocumentReader(const std::string& schemaDirectory);
  ~DocumentReader();
  DocumentReader(const DocumentReader&) = delete;
  DocumentReader& operator=(const DocumentReader&) = delete;

  // The data dictionary or the service in `file`, whichever it is; a service comes without its
  // program. Throws Refusal.
  Document read(const std::string& file) const;

  // The service in `file`, never null, without its program. Throws Refusal.
  std::unique_ptr<as::IService> readService(const std::string& file) const;

  // The data dictionary in `file`, never null. Throws Refusal.
  std::unique_ptr<as::IProgram> readDictionary(const std::string& file) const;

  // The service in `text`, which is told of as `file`; never null, without its program. Throws
  // Refusal.
  std::unique_ptr<as::IService> readServiceText(const std::string& text,
                                                const std::string& file) const;

  // `service`, read from `file`, once more and with the program in the file `dictionary`, which
  // need not be the one that it names. Attributes "programName" and "dataDictFilename" of the
  // result tell that program. Throws Refusal, which is about the dictionary.
  std::unique_ptr<as::IService> withProgram(as::IService& service, const std::string& file,
                                            const std::string& dictionary) const;

 private:
  std::unique_ptr<as::IAgentServices> services_;
};

// The file that a name in `file` means: relative names count from the folder of that file.
std::string besideFile(const std::string& file, const std::string& name);

#endif  // TOOLKIT_IO_DOCUMENTREADER_H_
