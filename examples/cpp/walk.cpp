// Walks through a dictionary: every item with its place, its tables and its conditions.
// usage: walk SCHEMAS DICTIONARY
#include <as/AgentServices.h>

#include <iostream>
#include <memory>
#include <string>

namespace {

// `list` holds data items: those of a section, of a file or of a group.
void show(as::IList* list, int level) {
  for (int i = 0; i < list->getLength(); i++) {
    auto* item = as::interface_cast<as::IDataItem>(list->getItem(i));
    std::cout << std::string(2 * static_cast<std::size_t>(level), ' ') << item->getName() << " at "
              << item->getOffset() << ", " << item->getLength() << " bytes";
    if (item->getMaxOccurs() > 0) std::cout << ", " << item->getMaxOccurs() << " times";
    if (as::IDataItem* count = item->getODO()) std::cout << " depending on " << count->getName();
    if (item->isRedefined()) std::cout << ", redefines";
    if (auto* number = as::interface_cast<as::INumeric>(item)) {
      std::cout << ", " << number->getDigits() << " digits";
    }
    std::cout << '\n';

    as::IList* conditions = item->getConditions();
    for (int c = 0; c < conditions->getLength(); c++) {
      auto* condition = as::interface_cast<as::ICondition>(conditions->getItem(c));
      std::cout << std::string(2 * static_cast<std::size_t>(level) + 2, ' ') << "when "
                << condition->getName() << '\n';
    }
    if (auto* group = as::interface_cast<as::IGroup>(item)) show(group->getChildren(), level + 1);
  }
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 3) return 2;
  std::unique_ptr<as::IAgentServices> services(as::CAgentServicesFactory::CreateAgentServices());
  services->setSchemaLocation(argv[1]);
  try {
    std::unique_ptr<as::IProgram> program(services->parseCobolDD(argv[2]));
    as::IList* files = program->getFileSection();
    for (int i = 0; i < files->getLength(); i++) {
      auto* file = as::interface_cast<as::IFD>(files->getItem(i));
      std::cout << "file " << file->getName() << '\n';
      show(file->getDataItems(), 1);
    }
    show(program->getDataItems(), 0);
  } catch (const as::CASParseException& problem) {
    std::cerr << problem.getSystemId() << ':' << problem.getLineNum() << ": "
              << problem.getErrorText() << '\n';
    return 1;
  }
}
