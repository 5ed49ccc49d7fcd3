// Tells how a program is called: its entry points, and what each is called with.
// usage: entries SCHEMAS DICTIONARY
#include <as/AgentServices.h>

#include <iostream>
#include <memory>

int main(int argc, char** argv) {
  if (argc < 3) return 2;
  std::unique_ptr<as::IAgentServices> services(as::CAgentServicesFactory::CreateAgentServices());
  services->setSchemaLocation(argv[1]);
  try {
    std::unique_ptr<as::IProgram> program(services->parseCobolDD(argv[2]));
    as::IList* entries = program->getEntryPoints();
    for (int i = 0; i < entries->getLength(); i++) {
      auto* entry = as::interface_cast<as::IEntryPoint>(entries->getItem(i));
      std::cout << "CALL " << entry->getName() << '\n';
      // An entry point is a list: of what it is called with.
      for (int p = 0; p < entry->getLength(); p++) {
        auto* linkage = as::interface_cast<as::ILinkageItem>(entry->getItem(p));
        as::IDataItem* item = linkage->getDataItem();
        if (item == nullptr) continue;  // Its record is not in the dictionary.
        std::cout << "  " << item->getName() << ", " << item->getLength() << " bytes, "
                  << (linkage->getByType() == as::ILinkageItem::BY_VALUE       ? "by value"
                      : linkage->getByType() == as::ILinkageItem::BY_RETURNING ? "returned"
                                                                               : "by reference")
                  << '\n';
      }
    }
  } catch (const as::CASParseException& problem) {
    std::cerr << problem.getSystemId() << ':' << problem.getLineNum() << ": "
              << problem.getErrorText() << '\n';
    return 1;
  }
}
