// The four forms of the request for a service.
#ifndef TESTS_SUPPORT_SERVICEFORMS_H_
#define TESTS_SUPPORT_SERVICEFORMS_H_

#include <ostream>
#include <string>

#include "as/AgentServices.h"
#include "support/Requests.h"

namespace test {

struct ServiceForm {
  const char* label;
  bool tellsText;  // It tells a failure by its text in place of an exception.
  // Requests the service in the file named `file`, or in `document` under that name.
  as::IService* (*request)(as::IAgentServices& services, const std::string& file,
                           const std::string& document, std::string& errorText, bool loadProgram);
};

inline void PrintTo(const ServiceForm& form, std::ostream* out) { *out << form.label; }

inline constexpr ServiceForm serviceForms[] = {
    {"File", false,
     [](as::IAgentServices& services, const std::string& file, const std::string&, std::string&,
        bool loadProgram) { return services.parseService(file.c_str(), loadProgram); }},
    {"FileWithText", true,
     [](as::IAgentServices& services, const std::string& file, const std::string&,
        std::string& errorText,
        bool loadProgram) { return services.parseService(file.c_str(), errorText, loadProgram); }},
    {"Buffer", false,
     [](as::IAgentServices& services, const std::string& file, const std::string& document,
        std::string&, bool loadProgram) {
       return services.parseService(file.c_str(), bytesOf(document), lengthOf(document),
                                    loadProgram);
     }},
    {"BufferWithText", true,
     [](as::IAgentServices& services, const std::string& file, const std::string& document,
        std::string& errorText, bool loadProgram) {
       return services.parseService(file.c_str(), bytesOf(document), lengthOf(document), errorText,
                                    loadProgram);
     }},
};

// What a document of no namespace that is asked for comes to.
inline constexpr char namespaceText[] =
    "The parser encountered an unexpected or unsupported namespace";

}  // namespace test

#endif  // TESTS_SUPPORT_SERVICEFORMS_H_
