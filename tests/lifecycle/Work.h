// What a client does with the library, in short: reads, edits, writes, is refused something.
#ifndef TESTS_LIFECYCLE_WORK_H_
#define TESTS_LIFECYCLE_WORK_H_

#include <cstdlib>
#include <memory>
#include <stdexcept>
#include <string>

#include "as/AgentServices.h"
#include "support/TempDirectory.h"

namespace lifecycle {

inline std::unique_ptr<as::IProgram> parseDictionary(as::IAgentServices& services) {
  services.setSchemaLocation(AS_SCHEMA_DIR);
  return std::unique_ptr<as::IProgram>(services.parseCobolDD(AS_EXAMPLES_DIR "/PAYSLIP.xml"));
}

inline std::unique_ptr<as::IService> parseService(as::IAgentServices& services) {
  services.setSchemaLocation(AS_SCHEMA_DIR);
  return std::unique_ptr<as::IService>(
      services.parseService(AS_EXAMPLES_DIR "/PAYSLIP-ws.xml", false));
}

// What the parser says of a document that ends too early.
inline std::string refusal(as::IAgentServices& services) {
  const unsigned char text[] = {'<', 'a', '>'};
  std::string message;
  services.parseService("a.xml", text, sizeof(text), message, false);
  return message;
}

// An environment variable says how many, for runs in which each takes its time.
inline int rounds() {
  const char* const given = std::getenv("AS_LIFECYCLE_ROUNDS");
  return given == nullptr ? 100 : std::atoi(given);
}

// The service as `serialize`, called with it and the name of a file, writes it.
template <class Serialize>
std::string written(as::IService& service, const Serialize& serialize) {
  const test::TempDirectory directory;
  const std::string file = directory.path() + "/service.xml";
  serialize(service, file.c_str());
  return test::contentOf(file);
}

// Reads the examples and a document that is refused, edits one and writes it: the text written.
// Throws when anything is not as it always is.
template <class Serialize>
std::string work(as::IAgentServices& services, const Serialize& serialize) {
  const std::unique_ptr<as::IProgram> program = parseDictionary(services);
  if (program->getName() != "PAYSLIP") throw std::runtime_error("another program");
  const std::unique_ptr<as::IService> service = parseService(services);
  service->setName("Z\u00fcrich");
  if (refusal(services).empty()) throw std::runtime_error("not refused");
  const std::string text = written(*service, serialize);
  if (text.find("name=\"Z\u00fcrich\"") == std::string::npos) throw std::runtime_error(text);
  return text;
}

}  // namespace lifecycle

#endif  // TESTS_LIFECYCLE_WORK_H_
