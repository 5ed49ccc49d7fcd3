// Services on their way to files.
#ifndef TOOLKIT_IO_SERVICETEXT_H_
#define TOOLKIT_IO_SERVICETEXT_H_

#include <string>

#include "as/IService.h"

namespace as::toolkit {

// The document of `service`. Throws RefusedDocument, about `file`, when XML cannot hold it.
std::string documentOf(as::IService& service, const std::string& file);

}  // namespace as::toolkit

#endif  // TOOLKIT_IO_SERVICETEXT_H_
