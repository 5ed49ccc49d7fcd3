#include "toolkit/generate/JsonSamples.h"

#include <cstdlib>
#include <string_view>

#include "toolkit/generate/JsonText.h"
#include "toolkit/generate/JsonTypes.h"

namespace as::toolkit::gen {

JsonSamples::JsonSamples(const ServiceModel& model, const JsonMembers& members)
    : members_(members), maker_(model), types_(jsonTypes()) {}

JsonSamples::Json JsonSamples::sampleOf(const Field& field) const {
  if (!field.isTable()) return sampleOfOne(field);
  Json array = Json::array();
  const std::size_t times = SampleMaker::occurrencesOf(field);
  for (std::size_t i = 0; i < times; ++i) array.push_back(sampleOfOne(field));
  return array;
}

JsonSamples::Json JsonSamples::sampleOfOne(const Field& field) const {
  if (field.structure == none) return sampleOfValue(field);
  return sampleOfObject(members_.membersOf(field.structure), members_.namesOf(field.structure));
}

JsonSamples::Json JsonSamples::sampleOfObject(const std::vector<const Field*>& members,
                                              const std::vector<std::string>& names) const {
  Json object = objectFor(members.size());
  for (std::size_t i = 0; i < members.size(); ++i) {
    if (SampleMaker::occurrencesOf(*members[i]) > 0) {
      append(object, names[i], sampleOf(*members[i]));
    }
  }
  return object;
}

JsonSamples::Json JsonSamples::sampleOfValue(const Field& field) const {
  const TypeRow* const row = types_.rowFor(field);
  const std::string_view type = row == nullptr ? anything : row->type;
  const std::string value = maker_.valueOf(field);
  if (type == "integer") return std::strtoll(value.c_str(), nullptr, 10);
  if (type == "number") return std::strtod(value.c_str(), nullptr);
  return value;
}

}  // namespace as::toolkit::gen
