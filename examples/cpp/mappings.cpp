// Reads a service with its program and follows every mapping to the storage that it means.
// usage: mappings SCHEMAS SERVICE   (where the dictionary is that it names)
#include <as/AgentServices.h>

#include <iostream>
#include <memory>

namespace {

// A field and those inside it; a parameter is a field.
void show(as::IField* field) {
  as::IList* mappings = field->getMappings();
  for (int i = 0; i < mappings->getLength(); i++) {
    auto* mapping = as::interface_cast<as::IMapping>(mappings->getItem(i));
    as::IDataItem* item = mapping->getDataItem();
    std::cout << "  " << field->getQualifiedName() << " is ";
    if (item != nullptr) {
      std::cout << mapping->getFullyQualifiedName() << " at " << item->getOffset() << '\n';
    } else {
      std::cout << mapping->getRawMapping() << ", which the program has not\n";
    }
  }
  as::IList* children = field->getChildren();
  for (int i = 0; i < children->getLength(); i++) {
    show(as::interface_cast<as::IField>(children->getItem(i)));
  }
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 3) return 2;
  std::unique_ptr<as::IAgentServices> services(as::CAgentServicesFactory::CreateAgentServices());
  services->setSchemaLocation(argv[1]);
  try {
    // true: the dictionary that the service names is read, too, from the current directory.
    std::unique_ptr<as::IService> service(services->parseService(argv[2], true));
    as::IList* operations = service->getOperations();
    for (int i = 0; i < operations->getLength(); i++) {
      auto* operation = as::interface_cast<as::IOperation>(operations->getItem(i));
      std::cout << operation->getName() << '\n';
      as::IList* parameters = operation->getParameters();
      for (int p = 0; p < parameters->getLength(); p++) {
        show(as::interface_cast<as::IField>(parameters->getItem(p)));
      }
    }
  } catch (const as::CASParseException& problem) {
    std::cerr << problem.getSystemId() << ':' << problem.getLineNum() << ": "
              << problem.getErrorText() << '\n';
    return 1;
  }
}
