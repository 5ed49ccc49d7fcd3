#include <as/AgentServices.h>

#include <iostream>
#include <memory>

int main(int argc, char** argv) {
  if (argc < 3) return 2;
  std::unique_ptr<as::IAgentServices> services(as::CAgentServicesFactory::CreateAgentServices());
  services->setSchemaLocation(argv[1]);
  try {
    std::unique_ptr<as::IProgram> program(services->parseCobolDD(argv[2]));
    as::IList* items = program->getDataItems();
    for (int i = 0; i < items->getLength(); i++) {
      auto* item = as::interface_cast<as::IDataItem>(items->getItem(i));
      std::cout << item->getName() << " at " << item->getOffset() << '\n';
      if (auto* group = as::interface_cast<as::IGroup>(item)) {
        std::cout << "  a group of " << group->getChildren()->getLength() << '\n';
      }
    }
  } catch (const as::CASParseException& problem) {
    std::cerr << problem.getSystemId() << ':' << problem.getLineNum() << ':' << problem.getColNum()
              << ": " << problem.getErrorText() << '\n';
    return 1;
  }
}
