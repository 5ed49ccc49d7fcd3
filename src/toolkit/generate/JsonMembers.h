// The members that objects of JSON have for structures, and what these are called.
#ifndef TOOLKIT_GENERATE_JSONMEMBERS_H_
#define TOOLKIT_GENERATE_JSONMEMBERS_H_

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "toolkit/generate/Generator.h"
#include "toolkit/generate/TypeTable.h"

namespace as::toolkit::gen {

class JsonMembers {
 public:
  explicit JsonMembers(const Job& job);

  // Of a structure: fields, field attributes and the value, in this order.
  std::vector<const Field*> membersOf(std::size_t type) const;
  const std::vector<std::string>& namesOf(std::size_t type) const { return typeNames_[type]; }

  // The names of fields that stand in something else, at `place`.
  std::vector<std::string> namesOf(const std::vector<const Field*>& fields, const Spot& place);

 private:
  void keepValue(const Field& field, const TypeLookup& types);

  const ServiceModel& model_;
  NameGiver names_;
  std::vector<std::optional<Field>> values_;  // Of structures that have one.
  std::vector<std::vector<std::string>> typeNames_;
};

}  // namespace as::toolkit::gen

#endif  // TOOLKIT_GENERATE_JSONMEMBERS_H_
