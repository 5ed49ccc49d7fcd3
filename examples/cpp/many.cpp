// Reads many documents, whatever they are, and tells of each what it is or why it is refused. The
// entry object keeps what was made of the schemas, on which small documents spend most of the time.
// usage: many SCHEMAS DOCUMENT...
#include <as/AgentServices.h>

#include <iostream>
#include <memory>

namespace {

void tell(as::IAgentServices& services, const char* file) {
  try {
    std::unique_ptr<as::IProgram> program(services.parseCobolDD(file));
    if (program != nullptr) {
      std::cout << file << ": the dictionary of " << program->getName() << '\n';
      return;
    }
  } catch (const as::CASInvalidNamespaceException&) {
    // No dictionary: it may be a service.
  }
  std::unique_ptr<as::IService> service(services.parseService(file, false));
  if (service != nullptr) {
    std::cout << file << ": a service of " << service->getOperations()->getLength()
              << " operations\n";
  }
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 3) return 2;
  int refused = 0;
  std::unique_ptr<as::IAgentServices> services(
      as::CAgentServicesFactory::CreateCachingAgentServices());
  services->setSchemaLocation(argv[1]);
  for (int i = 2; i < argc; i++) {
    // None of the three derives from another, nor from std::exception.
    try {
      tell(*services, argv[i]);
    } catch (const as::CASParseException& problem) {
      refused++;
      std::cout << problem.getSystemId() << ':' << problem.getLineNum() << ':'
                << problem.getColNum() << ": " << problem.getErrorText() << '\n';
    } catch (const as::CASInvalidNamespaceException&) {
      refused++;
      std::cout << argv[i] << ": neither a dictionary nor a service\n";
    } catch (const as::CASException& problem) {
      refused++;
      std::cout << argv[i] << ": " << problem.getErrorText() << '\n';
    }
  }
  std::cout << refused << " refused\n";
}
