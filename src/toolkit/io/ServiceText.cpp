#include "toolkit/io/ServiceText.h"

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
                           "has too many attributes, a name holds control characters, or memory "
                           "ran out",
                           ""});
  }
}

}  // namespace as::toolkit
