// Feeds arbitrary bytes to the dictionary parser and walks whatever comes out of it.
#include <cstddef>
#include <cstdint>
#include <memory>

#include "as/AgentServices.h"

namespace {

void walk(as::IList* list, std::size_t& sum);

void walkItem(as::IElement* element, std::size_t& sum) {
  if (auto* const item = as::interface_cast<as::IDataItem>(element)) {
    sum += item->getName().size() + item->getPicture().size();
    sum += static_cast<std::size_t>(item->getLength() ^ item->getOffset() ^ item->getDataType());
    sum += item->hasODO() && item->getODO() != nullptr ? 1 : 0;
    walk(item->getConditions(), sum);
    if (auto* const group = as::interface_cast<as::IGroup>(item)) walk(group->getChildren(), sum);
  } else if (auto* const value = as::interface_cast<as::IConditionValue>(element)) {
    sum += value->getConstant().size() + value->getFrom().size() + value->getTo().size();
  } else if (auto* const fd = as::interface_cast<as::IFD>(element)) {
    if (fd->getDataItems() != nullptr) walk(fd->getDataItems(), sum);
  } else if (auto* const parameter = as::interface_cast<as::ILinkageItem>(element)) {
    sum += parameter->getDataItem() != nullptr ? 1 : 0;
  } else if (auto* const list = as::interface_cast<as::IList>(element)) {
    walk(list, sum);
  }
}

void walk(as::IList* list, std::size_t& sum) {
  for (int i = 0; i < list->getLength(); i++) walkItem(list->getItem(i), sum);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const std::unique_ptr<as::IAgentServices> services = [] {
    std::unique_ptr<as::IAgentServices> made(as::CAgentServicesFactory::CreateAgentServices());
    made->setSchemaLocation(AS_SCHEMA_DIR);
    return made;
  }();
  try {
    const std::unique_ptr<as::IProgram> program(
        services->parseCobolDD("fuzz", data, static_cast<unsigned int>(size)));
    if (!program) return 0;
    std::size_t sum = 0;
    walk(program->getProperties(), sum);
    walk(program->getFileSection(), sum);
    walk(program->getDataItems(), sum);
    walk(program->getEntryPoints(), sum);
  } catch (const as::CASParseException&) {
  } catch (const as::CASInvalidNamespaceException&) {
  }
  return 0;
}
