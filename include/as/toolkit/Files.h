// Files written so that nothing is lost, files found in folders, and names of files in documents.
#ifndef AS_TOOLKIT_FILES_H_
#define AS_TOOLKIT_FILES_H_

#include <stdexcept>
#include <string>
#include <vector>

#include "as/Export.h"
#include "as/IService.h"
#include "as/toolkit/DocumentReader.h"

namespace as::toolkit {

// A file could not be written; what() says which, why, and what became of the old one.
class AS_EXPORT FileError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;

  // A copy says the same.
  FileError(const FileError& other);
  FileError& operator=(const FileError& other);
  ~FileError() override;
};

// Makes `content` what the file named `file` holds. The file that was there keeps what it held
// until the new one is complete on the disk, and for good when that fails; its permissions stay,
// and links stay links. A name that leads to something other than a file, a device for one, is
// written to as it is. Throws FileError.
AS_EXPORT void replaceFile(const std::string& file, const std::string& content);

// What a file is to hold.
struct FileContent {
  std::string file;     // Its name.
  std::string content;  // Its bytes.
};

// The same for several files: all of them get what they are to hold or, when one of them cannot,
// none does. Those that hold it already are left alone, with their times. Returns the names of the
// others. Throws FileError.
AS_EXPORT std::vector<std::string> replaceFiles(const std::vector<FileContent>& files);

// Writes the document of `service` so. Throws RefusedDocument when XML cannot hold it (elements
// nest too deep, a name holds control characters), and FileError.
AS_EXPORT void writeService(as::IService& service, const std::string& file);

// What a search came to.
struct FoundFiles {
  std::vector<std::string> files;  // As seen from the folder, sorted.
  std::vector<Refusal> refusals;   // The folders that could not be read, sorted.
};

// The files in a folder and those below it whose names end in one of `extensions` (".xml"), in
// letters of any case. Links to files are files, links to folders are not followed.
AS_EXPORT FoundFiles filesIn(const std::string& folder, const std::vector<std::string>& extensions);

// The file that a relative or absolute `name` in the document `file` means: relative names count
// from the folder of that document.
AS_EXPORT std::string besideFile(const std::string& file, const std::string& name);

// The other way round: the name by which a document in the file `from` refers to the file `to`,
// counted from the folder of the document. Folders may be links; the file's own name stays.
AS_EXPORT std::string nameSeenFrom(const std::string& from, const std::string& to);

}  // namespace as::toolkit

#endif  // AS_TOOLKIT_FILES_H_
