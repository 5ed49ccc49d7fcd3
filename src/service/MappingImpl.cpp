#include "service/MappingImpl.h"

#include <algorithm>
#include <charconv>
#include <string_view>
#include <vector>

#include "as/IGroup.h"
#include "service/JoinedBackwards.h"
#include "service/ParameterImpl.h"
#include "service/SSVocabulary.h"
#include "service/ServiceImpl.h"
#include "xml/WordTable.h"

AS_DEFINE_IDENTITY2(CMappingImpl, as::IMapping, CElementImpl)

namespace {

constexpr WordCode types[] = {
    {SS::command_line, as::IMapping::MAP_COMMAND_LINE},
    {SS::stdout_, as::IMapping::MAP_STDOUT},
    {SS::stdin_, as::IMapping::MAP_STDIN},
    {SS::return_code, as::IMapping::MAP_RETURN_CODE},
};

// What a caller's array of subscripts holds.
constexpr int everyOccurrence = -1;

bool isTable(as::IDataItem* item) { return item->getMaxOccurs() != 0; }

// Reads a whole token as a signed decimal integer.
bool readInteger(std::string_view token, int& value) {
  if (token.size() > 1 && token[0] == '+' && token[1] != '-') token.remove_prefix(1);
  const auto [end, error] = std::from_chars(token.data(), token.data() + token.size(), value);
  return error == std::errc() && end == token.data() + token.size();
}

// Cuts a list of subscripts into the caller's array; returns how many there are, 0 when one is
// neither "*" nor a number.
int readSubscripts(std::string_view list, int* subscripts) {
  int count = 0;
  for (;;) {
    const std::size_t comma = list.find(',');
    const std::string_view token = list.substr(0, comma);
    if (token != "*") {
      int value = 0;
      if (!readInteger(token, value)) return 0;
      if (count < as::IMapping::MAX_SUBSCRIPTS) subscripts[count] = value;
    }
    count++;
    if (comma == std::string_view::npos) return count;
    list.remove_prefix(comma + 1);
  }
}

}  // namespace

std::string GetNormalizedName(as::IDataItem* item) {
  if (item == nullptr) return {};
  std::vector<std::string> names = {item->getName()};
  for (as::IGroup* parent = item->getParent(); parent != nullptr; parent = parent->getParent()) {
    names.push_back(parent->getName() + ".");
  }
  return joinedBackwards(names);
}

as::IDataItem* CMappingImpl::getDataItem() {
  // A special name is none, also where an item is called so.
  if (getType() != MAP_DATA_ITEM) return nullptr;
  CServiceImpl* const service = getService();
  if (service == nullptr) return nullptr;
  return CParameterImpl::GetDataItem(getRawMapping(), service->getProgram());
}

void CMappingImpl::setDataItem(as::IDataItem* item) {
  if (item == nullptr) return;
  int dimensions = isTable(item) ? 1 : 0;
  for (as::IGroup* parent = item->getParent(); parent != nullptr; parent = parent->getParent()) {
    if (isTable(parent)) dimensions++;
  }
  std::string path = GetNormalizedName(item);
  if (dimensions > 0) {
    std::string all = "*";
    for (int i = 1; i < dimensions; i++) all += ",*";
    write(SS::subscript, all);
    path += "(" + all + ")";
  }
  // Subscripts of an earlier table item stay: whoever re-maps decides about them.
  write(SS::item, path);
}

int CMappingImpl::getInterfaceSubscripts(int* subscripts) {
  if (subscripts == nullptr) return 0;
  std::fill_n(subscripts, as::IMapping::MAX_SUBSCRIPTS, everyOccurrence);
  const std::string list = text(SS::subscript);
  return list.empty() ? 0 : readSubscripts(list, subscripts);
}

int CMappingImpl::getDataItemSubscripts(int* subscripts) {
  if (subscripts == nullptr) return 0;
  std::fill_n(subscripts, as::IMapping::MAX_SUBSCRIPTS, everyOccurrence);
  const std::string item = getRawMapping();
  const std::size_t open = item.find('(');
  const std::size_t close = item.find(')');
  if (open == std::string::npos || close != item.size() - 1) return 0;
  return readSubscripts(std::string_view(item).substr(open + 1, close - open - 1), subscripts);
}

std::string CMappingImpl::getFullyQualifiedName() {
  return CParameterImpl::GetFullyQualifiedName(getRawMapping());
}

std::string CMappingImpl::getRawMapping() { return text(SS::item); }

as::IMapping::TYPE CMappingImpl::getType() {
  return static_cast<TYPE>(codeOfWord(types, wide(SS::item), MAP_DATA_ITEM));
}
