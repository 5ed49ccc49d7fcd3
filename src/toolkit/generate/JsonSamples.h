// Samples in JSON of the data of a service.
#ifndef TOOLKIT_GENERATE_JSONSAMPLES_H_
#define TOOLKIT_GENERATE_JSONSAMPLES_H_

#include <cstddef>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "toolkit/generate/JsonMembers.h"
#include "toolkit/generate/SampleMaker.h"
#include "toolkit/generate/TypeTable.h"

namespace as::toolkit::gen {

class JsonSamples {
 public:
  using Json = nlohmann::ordered_json;

  // Both must outlive it.
  JsonSamples(const ServiceModel& model, const JsonMembers& members);

  Json sampleOf(const Field& field) const;
  Json sampleOfObject(const std::vector<const Field*>& members,
                      const std::vector<std::string>& names) const;

  // How many values a sample of the field has; `most` when there are more.
  std::size_t countOf(const Field& field, std::size_t most) { return maker_.countOf(field, most); }

 private:
  Json sampleOfOne(const Field& field) const;
  Json sampleOfValue(const Field& field) const;

  const JsonMembers& members_;
  SampleMaker maker_;
  TypeLookup types_;
};

}  // namespace as::toolkit::gen

#endif  // TOOLKIT_GENERATE_JSONSAMPLES_H_
