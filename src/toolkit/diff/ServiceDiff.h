// Compares two services.
#ifndef TOOLKIT_DIFF_SERVICEDIFF_H_
#define TOOLKIT_DIFF_SERVICEDIFF_H_

#include <string>
#include <utility>
#include <vector>

#include "toolkit/diff/ChangeList.h"
#include "toolkit/facts/ServiceFacts.h"

namespace as::toolkit {

class ServiceDiff {
 public:
  ServiceDiff(const ServiceFacts& before, const ServiceFacts& after);

  std::vector<Change> take() { return changes_.take(); }

 private:
  using Place = ChangeList::Place;
  using Hidden = std::vector<std::pair<std::string, std::string>>;
  enum class Level { definition, parameter, field, attribute };

  void compareService(const ServiceFacts& before, const ServiceFacts& after);
  void compareOperations(const std::vector<OperationFacts>& before,
                         const std::vector<OperationFacts>& after);
  void compareOperation(const OperationFacts& before, const OperationFacts& after);
  void compareHidden(const Place& place, const Hidden& before, const Hidden& after);
  void compareMessages(const Place& place, const std::vector<MessageFacts>& before,
                       const std::vector<MessageFacts>& after);
  void compareAttributes(const Place& place, const std::vector<AttributeFacts>& before,
                         const std::vector<AttributeFacts>& after);
  // `separator` stands between the place and the names of the fields.
  void compareFields(const Place& place, const char* separator, Level level,
                     const std::vector<FieldFacts>& before, const std::vector<FieldFacts>& after);
  void compareField(const Place& place, const FieldFacts& before, const FieldFacts& after);
  void compareMappings(const Place& place, const std::vector<std::string>& before,
                       const std::vector<std::string>& after);

  ChangeList changes_;
};

}  // namespace as::toolkit

#endif  // TOOLKIT_DIFF_SERVICEDIFF_H_
