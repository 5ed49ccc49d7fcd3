// Works without files: a dictionary in memory, a service made for it, and the text of that service.
// usage: memory SCHEMAS
#include <as/AgentServices.h>

#include <iostream>
#include <memory>
#include <string>

int main(int argc, char** argv) {
  if (argc < 2) return 2;
  const std::string uri = as::namespaces::dd.uri;
  const std::string dictionary =
      "<program name='TOTALS' xmlns='" + uri +
      "' xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance' xsi:schemaLocation='" + uri + " " +
      uri +
      "'><dataItems><numeric name='TOTAL' offset='0' length='4' picture='9(9)' usage='comp' "
      "digits='9' linkage='true'/></dataItems><entryPoints><entryPoint name='TOTALS'>"
      "<parameter dataItem='TOTAL' byType='reference'/></entryPoint></entryPoints></program>";

  std::unique_ptr<as::IAgentServices> services(as::CAgentServicesFactory::CreateAgentServices());
  services->setSchemaLocation(argv[1]);
  try {
    // The name stands for the file in messages, and in what the service says of its dictionary.
    std::unique_ptr<as::IProgram> program(services->parseCobolDD(
        "TOTALS.xml", reinterpret_cast<const unsigned char*>(dictionary.data()),
        static_cast<unsigned int>(dictionary.size())));
    std::unique_ptr<as::IService> service(as::CAgentServicesFactory::NewJavaService(program.get()));
    static_cast<void>(program.release());
    service->setName("Totals");
    std::cout << as::CAgentServicesFactory::SerializeToString(service.get());
  } catch (const as::CASParseException& problem) {
    std::cerr << problem.getSystemId() << ':' << problem.getLineNum() << ": "
              << problem.getErrorText() << '\n';
    return 1;
  }
}
