// Changes a service that exists: renames an operation, fixes a value that callers do not see, and
// writes it. Comments, prefixes and layout of the document stay.
// usage: edit SCHEMAS SERVICE OUTPUT   (where the dictionary is that the service names)
#include <as/AgentServices.h>

#include <iostream>
#include <memory>
#include <string>

namespace {

// A member of the first record that the entry point is called with; null when there is none.
as::IDataItem* memberOf(as::IEntryPoint* entry, const std::string& name) {
  auto* linkage = as::interface_cast<as::ILinkageItem>(entry->getItem(0));
  as::IList* members = as::interface_cast<as::IGroup>(linkage->getDataItem())->getChildren();
  for (int i = 0; i < members->getLength(); i++) {
    auto* item = as::interface_cast<as::IDataItem>(members->getItem(i));
    if (item->getName() == name) return item;
  }
  return nullptr;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 4) return 2;
  std::unique_ptr<as::IAgentServices> services(as::CAgentServicesFactory::CreateAgentServices());
  services->setSchemaLocation(argv[1]);
  try {
    std::unique_ptr<as::IService> service(services->parseService(argv[2], true));
    auto* operation = as::interface_cast<as::IOperation>(service->getOperations()->getItem(0));
    operation->setName("getQuote");

    // A hidden parameter is added empty: what it maps to and its value are set.
    as::IHiddenParameter* hidden = operation->addHiddenParameter(nullptr, nullptr);
    hidden->setDataItem(memberOf(operation->getEntryPoint(), "LK-REQ-PAYMENT"));
    hidden->setValue("M");
    std::cout << operation->getName() << " always hands over " << hidden->getValue() << " as "
              << hidden->getRawMapping() << '\n';

    as::CAgentServicesFactory::Serialize(service.get(), argv[3]);
  } catch (const as::CASParseException& problem) {
    std::cerr << problem.getSystemId() << ':' << problem.getLineNum() << ": "
              << problem.getErrorText() << '\n';
    return 1;
  } catch (const as::CASException& problem) {
    std::cerr << problem.getErrorText() << '\n';
    return 1;
  }
}
