// Makes a COM service and a .NET service for the same program: what is each flavour's own is an
// interface of the flavour, asked for with interface_cast.
// usage: flavours SCHEMAS DICTIONARY OUTPUT
#include <as/AgentServices.h>

#include <iostream>
#include <memory>
#include <string>

namespace {

// Adds an operation with a parameter that is mapped to the first record of the first entry point.
as::IParameter* addQuote(as::IService* service) {
  service->setName("Quotes");
  as::IList* entries = service->getProgram()->getEntryPoints();
  auto* entry = as::interface_cast<as::IEntryPoint>(entries->getItem(0));
  auto* linkage = as::interface_cast<as::ILinkageItem>(entry->getItem(0));
  as::IOperation* operation = service->addOperation("quote", entry);
  as::IParameter* parameter = operation->addParameter(as::IParameter::BY_IO, "request", 1);
  parameter->addMapping(linkage->getDataItem());
  return parameter;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 4) return 2;
  std::unique_ptr<as::IAgentServices> services(as::CAgentServicesFactory::CreateAgentServices());
  services->setSchemaLocation(argv[1]);
  try {
    // Each service owns its program: it is read twice.
    std::unique_ptr<as::IProgram> program(services->parseCobolDD(argv[2]));
    std::unique_ptr<as::IService> com(as::CAgentServicesFactory::NewCOMService(program.get()));
    static_cast<void>(program.release());
    auto* comParameter = as::interface_cast<as::ICOMParameter>(addQuote(com.get()));
    comParameter->setType(as::ICOMField::COM_STRING);
    comParameter->setReturnParameter(true);

    program.reset(services->parseCobolDD(argv[2]));
    std::unique_ptr<as::IDotNET> net(as::CAgentServicesFactory::NewDotNETService(program.get()));
    static_cast<void>(program.release());
    auto* netParameter = as::interface_cast<as::IDotNETParameter>(addQuote(net.get()));
    netParameter->setType(as::IDotNETField::NET_STRING);

    const std::string output = argv[3];
    as::CAgentServicesFactory::Serialize(com.get(), (output + ".com.xml").c_str());
    as::CAgentServicesFactory::Serialize(net.get(), (output + ".dotnet.xml").c_str());
    std::cout << "COM returns " << comParameter->getName() << ", .NET has a "
              << netParameter->getTypeToString() << '\n';
  } catch (const as::CASParseException& problem) {
    std::cerr << problem.getSystemId() << ':' << problem.getLineNum() << ": "
              << problem.getErrorText() << '\n';
    return 1;
  }
}
