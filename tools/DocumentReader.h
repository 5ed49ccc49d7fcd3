// Reads documents with the library and sorts what may go wrong into one kind of refusal.
#ifndef TOOLS_DOCUMENTREADER_H_
#define TOOLS_DOCUMENTREADER_H_

#include <memory>
#include <string>

namespace as {
class IAgentServices;
class IProgram;
}  // namespace as

// Why a document was refused, and where. Thrown by DocumentReader.
struct Refusal {
  std::string file;  // As the user named it; or the schema file that the problem is in.
  int line = 0;      // Counted from 1; 0 when the problem has no place in the file.
  int column = 0;
  std::string text;
  std::string hint;  // What to do about it; may be empty.
};

class DocumentReader {
 public:
  explicit DocumentReader(const std::string& schemaDirectory);
  ~DocumentReader();
  DocumentReader(const DocumentReader&) = delete;
  DocumentReader& operator=(const DocumentReader&) = delete;

  // The data dictionary in `file`, never null. Throws Refusal.
  std::unique_ptr<as::IProgram> readDictionary(const std::string& file) const;

 private:
  std::unique_ptr<as::IAgentServices> services_;
};

#endif  // TOOLS_DOCUMENTREADER_H_
