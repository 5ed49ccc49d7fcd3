// Writes whole files so that nothing is lost when writing fails.
#ifndef TOOLKIT_IO_FILEREPLACEMENT_H_
#define TOOLKIT_IO_FILEREPLACEMENT_H_

#include <string>

// Makes `content` what the file named `file` holds. The file that was there keeps what it held
// until the new one is complete on the disk, and for good when that fails; its permissions stay. A
// name that leads to something other than a file, a device for one, is written to as it is. Throws
// std::runtime_error, which tells why.
void replaceFile(const std::string& file, const std::string& content);

// The name by which a document in the file `from` refers to the file `to`: counted from the folder
// of the document.
std::string nameSeenFrom(const std::string& from, const std::string& to);

#endif  // TOOLKIT_IO_FILEREPLACEMENT_H_
