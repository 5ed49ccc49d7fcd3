// Which element of a document each object of a service's model stands for.
#ifndef TOOLKIT_OUTLINE_SERVICEOUTLINE_H_
#define TOOLKIT_OUTLINE_SERVICEOUTLINE_H_

#include <cstddef>
#include <unordered_map>

#include "as/IElement.h"
#include "as/IField.h"
#include "as/IList.h"
#include "as/IOperation.h"
#include "as/IService.h"
#include "toolkit/flavour/FlavourProfile.h"
#include "toolkit/outline/DocumentOutline.h"

namespace as::toolkit {

class ServiceOutline {
 public:
  // `outline` is that of the document that `service` was read from; both must outlive this. Lists
  // that the two do not have alike are left out: the file may have been another when it was read.
  ServiceOutline(as::IService& service, const DocumentOutline& outline);

  const DocumentOutline& document() const { return outline_; }

  // The number of its element; DocumentOutline::none when it is not known.
  std::size_t elementOf(const as::IElement& object) const;

 private:
  void addOperation(as::IOperation& operation, std::size_t element);
  void addMessages(as::IOperation& operation, std::size_t element);
  void addParameters(as::IList* parameters, std::size_t around);
  void addFields(as::IField& parameter, std::size_t element);
  void addMappings(as::IField& field, std::size_t element);

  const DocumentOutline& outline_;
  const FlavourProfile& profile_;
  std::unordered_map<const as::IElement*, std::size_t> elements_;
};

}  // namespace as::toolkit

#endif  // TOOLKIT_OUTLINE_SERVICEOUTLINE_H_
