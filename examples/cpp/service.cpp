#include <as/AgentServices.h>

#include <iostream>
#include <memory>

int main(int argc, char** argv) {
  if (argc < 4) return 2;
  std::unique_ptr<as::IAgentServices> services(as::CAgentServicesFactory::CreateAgentServices());
  services->setSchemaLocation(argv[1]);
  try {
    std::unique_ptr<as::IProgram> program(services->parseCobolDD(argv[2]));
    std::unique_ptr<as::IService> service(as::CAgentServicesFactory::NewJavaService(program.get()));
    as::IProgram* cobol = program.release();  // The service owns it from now on.
    service->setName("Quotes");

    auto* entry = as::interface_cast<as::IEntryPoint>(cobol->getEntryPoints()->getItem(0));
    as::IOperation* operation = service->addOperation("quote", entry);
    for (int i = 0; i < entry->getLength(); i++) {
      auto* linkage = as::interface_cast<as::ILinkageItem>(entry->getItem(i));
      as::IDataItem* item = linkage->getDataItem();
      as::IParameter* parameter =
          operation->addParameter(as::IParameter::BY_IO, item->getName().c_str(), 1);
      as::interface_cast<as::IJavaParameter>(parameter)->setType(as::IJavaField::JAVA_STRING);
      as::IMapping* mapping = parameter->addMapping(item);
      std::cout << parameter->getQualifiedName() << " is " << mapping->getRawMapping() << '\n';
    }
    as::CAgentServicesFactory::Serialize(service.get(), argv[3]);
  } catch (const as::CASParseException& problem) {
    std::cerr << problem.getSystemId() << ':' << problem.getLineNum() << ':' << problem.getColNum()
              << ": " << problem.getErrorText() << '\n';
    return 1;
  } catch (const as::CASException& problem) {
    std::cerr << problem.getErrorText() << '\n';
    return 1;
  }
}
