// Where findings tell of something. A few of many are told: only those are put into words.
#ifndef TOOLKIT_GENERATE_SPOT_H_
#define TOOLKIT_GENERATE_SPOT_H_

#include <string>
#include <utility>

namespace as::toolkit::gen {

struct ServiceModel;
struct Type;

class Spot {
 public:
  // Of those words; ...
  Spot(std::string text) : rest_(std::move(text)) {}
  Spot(const char* text) : rest_(text) {}
  // ... or where a type of the model stands, as ServiceModel::placeOf() tells it. Both must outlive
  // it.
  Spot(const ServiceModel& model, const Type& type) : model_(&model), type_(&type) {}

  // The same with those words behind it.
  Spot with(const std::string& words) const;
  // That of what is called so and stands in it. Names are told as shortName() has them.
  Spot of(const std::string& name) const;

  std::string text() const;

 private:
  const ServiceModel* model_ = nullptr;
  const Type* type_ = nullptr;
  std::string rest_;
};

}  // namespace as::toolkit::gen

#endif  // TOOLKIT_GENERATE_SPOT_H_
