// Java services around parameters, for tests of what all flavours have in common.
#ifndef TESTS_SUPPORT_PARSEDJAVA_H_
#define TESTS_SUPPORT_PARSEDJAVA_H_

#include <memory>
#include <string>

#include "as/AgentServices.h"
#include "support/Documents.h"
#include "support/Requests.h"

namespace test {

// A service with one operation, "op", around `parameters`, and `definitions` of types.
inline std::unique_ptr<as::IService> parsedJava(const std::string& parameters,
                                                const std::string& definitions = "") {
  return parseService(parameterDocument(as::namespaces::java.uri, parameters, definitions));
}

}  // namespace test

#endif  // TESTS_SUPPORT_PARSEDJAVA_H_
