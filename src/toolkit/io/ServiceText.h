// Services on their way to files.
#ifndef TOOLKIT_IO_SERVICETEXT_H_
#define TOOLKIT_IO_SERVICETEXT_H_

#include <string>

#include "as/IService.h"

namespace as::toolkit {

// The document of `service`. Throws RefusedDocument, about `file`, when XML cannot hold it.
std::string documentOf(as::IService& service, const std::string& file);

// Throws RefusedDocument when the output would take the place of the dictionary that it is made
// from.
void checkOutput(const std::string& output, const std::string& dictionary);

}  // namespace as::toolkit

#endif  // TOOLKIT_IO_SERVICETEXT_H_
