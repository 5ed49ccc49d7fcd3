// What COBOL items say of the values of many fields, with the values of their conditions, which are
// read once for each item: both may be many.
#ifndef TOOLKIT_GENERATE_FACETLOOKUP_H_
#define TOOLKIT_GENERATE_FACETLOOKUP_H_

#include <cstddef>
#include <map>
#include <memory>
#include <string>
#include <tuple>
#include <vector>

#include "toolkit/generate/Facets.h"

namespace as::toolkit::gen {

class FacetLookup {
 public:
  // The model must outlive it.
  explicit FacetLookup(const ServiceModel& model) : model_(model) {}

  // Of a field that has a value. `withConditions`: the values of its item's conditions (level 88)
  // are the only ones, where these are single values of the field's kind.
  Facets facetsOf(const Field& field, bool withConditions) const;

  // Whether the item has conditions of which facetsOf() makes no values, for ranges are among them
  // or words like SPACES.
  bool hasOtherConditions(const Field& field) const;

 private:
  // An item, and what a field can hold of it, member by member.
  using Key = std::tuple<std::size_t, Capacity::Kind, int, int, bool, int, int>;

  const ServiceModel& model_;
  mutable std::map<Key, std::shared_ptr<const std::vector<std::string>>> values_;
};

}  // namespace as::toolkit::gen

#endif  // TOOLKIT_GENERATE_FACETLOOKUP_H_
