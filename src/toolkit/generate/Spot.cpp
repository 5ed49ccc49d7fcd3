#include "toolkit/generate/Spot.h"

#include "toolkit/generate/ServiceModel.h"
#include "toolkit/generate/ShortPath.h"

namespace as::toolkit::gen {

Spot Spot::with(const std::string& words) const {
  Spot spot = *this;
  spot.rest_ += words;
  return spot;
}

Spot Spot::of(const std::string& name) const { return with("." + shortName(name)); }

std::string Spot::text() const {
  return type_ == nullptr ? rest_ : model_->placeOf(*type_) + rest_;
}

}  // namespace as::toolkit::gen
