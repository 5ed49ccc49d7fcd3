// Makes a Web service for the first entry point of a program: style, uses and namespaces, a header
// and a fault.
// usage: web SCHEMAS DICTIONARY OUTPUT
#include <as/AgentServices.h>

#include <iostream>
#include <memory>

namespace {

// The first elementary item of a record.
as::IDataItem* firstOf(as::IDataItem* item) {
  auto* group = as::interface_cast<as::IGroup>(item);
  if (group == nullptr || group->getChildren()->getLength() == 0) return item;
  return firstOf(as::interface_cast<as::IDataItem>(group->getChildren()->getItem(0)));
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 4) return 2;
  std::unique_ptr<as::IAgentServices> services(as::CAgentServicesFactory::CreateAgentServices());
  services->setSchemaLocation(argv[1]);
  try {
    std::unique_ptr<as::IProgram> program(services->parseCobolDD(argv[2]));
    std::unique_ptr<as::IWebService> service(
        as::CAgentServicesFactory::NewWebService(program.get()));
    as::IProgram* cobol = program.release();  // The service owns it from now on.
    service->setName("Quotes");

    auto* entry = as::interface_cast<as::IEntryPoint>(cobol->getEntryPoints()->getItem(0));
    auto* linkage = as::interface_cast<as::ILinkageItem>(entry->getItem(0));
    as::IDataItem* item = firstOf(linkage->getDataItem());

    auto* operation = as::interface_cast<as::IWSOperation>(service->addOperation("quote", entry));
    operation->setStyle(as::IWSOperation::STYLE_DOCUMENT);
    operation->setInputUse(as::IWSOperation::USE_LITERAL);
    operation->setOutputUse(as::IWSOperation::USE_LITERAL);
    operation->setInputNamespace("urn:quotes:in");
    operation->setOutputNamespace("urn:quotes:out");

    auto* parameter = as::interface_cast<as::IWSParameter>(
        operation->addParameter(as::IParameter::BY_IO, "version", 1));
    parameter->setType(as::IWSField::WS_STRING);
    parameter->addMapping(item);

    as::IWSHeader* header = operation->addHeader(as::IWSHeader::BY_IN);
    header->setNamespace("urn:quotes:header");
    header->setUse(as::IWSHeader::USE_LITERAL);
    as::IWSParameter* caller = header->addParameter(as::IParameter::BY_IN, "caller", 1);
    caller->setType(as::IWSField::WS_STRING);
    caller->addMapping(item);

    as::IWSFault* fault = operation->addFault();
    fault->setNamespace("urn:quotes:fault");
    fault->setUse(as::IWSFault::USE_LITERAL);
    as::IWSParameter* reason = fault->addParameter(as::IParameter::BY_OUT, "reason", 1);
    reason->setType(as::IWSField::WS_STRING);
    reason->addMapping(item);

    as::CAgentServicesFactory::Serialize(service.get(), argv[3]);
    std::cout << "quote: " << operation->getHeaders()->getLength() << " header, "
              << operation->getFaults()->getLength() << " fault\n";
  } catch (const as::CASParseException& problem) {
    std::cerr << problem.getSystemId() << ':' << problem.getLineNum() << ": "
              << problem.getErrorText() << '\n';
    return 1;
  }
}
