// Numbers of the shapes of fields: fields of one shape (see FieldShape.h) have the same, others
// hardly ever. Of many fields so those alone are compared that may be of one.
#ifndef TOOLKIT_GENERATE_SHAPEHASHES_H_
#define TOOLKIT_GENERATE_SHAPEHASHES_H_

#include <cstddef>
#include <vector>

#include "toolkit/generate/ServiceModel.h"

namespace as::toolkit::gen {

class ShapeHashes {
 public:
  // The model must outlive it.
  explicit ShapeHashes(const ServiceModel& model);

  std::size_t of(const Field& field) const;

 private:
  std::size_t of(const Type& type) const;

  const ServiceModel& model_;
  std::vector<std::size_t> types_;
};

}  // namespace as::toolkit::gen

#endif  // TOOLKIT_GENERATE_SHAPEHASHES_H_
