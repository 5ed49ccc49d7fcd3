// Values that fit: what examples show, and tests send.
#ifndef TOOLKIT_GENERATE_SAMPLEMAKER_H_
#define TOOLKIT_GENERATE_SAMPLEMAKER_H_

#include <cstddef>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "toolkit/generate/FacetLookup.h"
#include "toolkit/generate/ServiceModel.h"

namespace as::toolkit::gen {

class SampleMaker {
 public:
  // The model must outlive it.
  explicit SampleMaker(const ServiceModel& model);

  // A value for a field that has one: a numeral, text, bytes in base 64, a point in time. One of
  // the item's conditions, where these are single values; else digits and letters that fill the
  // item, or as much of it as is of use.
  std::string valueOf(const Field& field) const;

  // How often a field occurs in a sample: as rarely as it may, but once. Never where it would stand
  // in itself.
  static std::size_t occurrencesOf(const Field& field);

  // How many values a sample of the field has, all occurrences counted; `most` when there are more,
  // or more levels of structures than anybody reads.
  std::size_t countOf(const Field& field, std::size_t most);

 private:
  // What a sample of a type holds. One that stands in itself is there no more than it must.
  struct Size {
    std::size_t values = 0;
    std::size_t levels = 0;  // Of structures, its own included.
  };

  void readCounter(const Field& field);
  void measure(std::size_t type);
  std::size_t valuesOf(const Field& field) const;
  Size sizeOf(const Type& type) const;

  const ServiceModel& model_;
  FacetLookup facets_;
  // The paths of items that tell how often a table occurs, with how often that is.
  std::unordered_map<std::string, std::size_t> counters_;
  std::vector<std::optional<Size>> sizes_;  // Of types.
};

}  // namespace as::toolkit::gen

#endif  // TOOLKIT_GENERATE_SAMPLEMAKER_H_
