#include "toolkit/io/ServiceText.h"

#include <filesystem>
#include <system_error>

#include "as/CASException.h"
#include "as/CAgentServicesFactory.h"
#include "as/toolkit/DocumentReader.h"

namespace as::toolkit {

std::string documentOf(as::IService& service, const std::string& file) {
  try {
    return as::CAgentServicesFactory::SerializeToString(&service);
  } catch (const as::CASException&) {
    throw RefusedDocument({file, 0, 0,
                           "the service cannot be written as XML: its elements nest too deep, one "
                           "has too many attributes, or a name holds control characters",
                           ""});
  }
}

void checkOutput(const std::string& output, const std::string& dictionary) {
  std::error_code ignored;
  if (!std::filesystem::equivalent(output, dictionary, ignored)) return;
  throw RefusedDocument({output, 0, 0, "this is the dictionary", "name another file"});
}

}  // namespace as::toolkit
