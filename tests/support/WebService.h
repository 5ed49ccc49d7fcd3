// Web service documents for tests.
#ifndef TESTS_SUPPORT_WEBSERVICE_H_
#define TESTS_SUPPORT_WEBSERVICE_H_

#include <string>

#include "support/Flavours.h"

namespace test {

// The root of a Web service document around `content`.
inline std::string webService(const std::string& attributes, const std::string& content) {
  const std::string ns = flavours::webNamespace;
  return "<service xmlns=\"" + ns +
         "\" xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\" xsi:schemaLocation=\"" + ns +
         " " + ns + "\" " + attributes + ">" + content + "</service>";
}

}  // namespace test

#endif  // TESTS_SUPPORT_WEBSERVICE_H_
