// The storage that type definitions map to, references followed.
#ifndef TOOLKIT_LINT_TYPESTORAGE_H_
#define TOOLKIT_LINT_TYPESTORAGE_H_

#include <cstddef>
#include <functional>
#include <map>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

namespace as {
class IDataItem;
}

namespace as::toolkit {

struct CallInterface;

// Definitions are numbers in the order of the document. Long chains of them are followed step by
// step, and none twice: neither where nothing was found nor where all that there is are references.
class TypeStorage {
 public:
  // Answers the number of the next one.
  std::size_t addDefinition();

  // Something in the definition is mapped to that record.
  void addRecord(std::size_t definition, as::IDataItem& record);
  // Something in it refers to `other`. One that does not stand in front of it defines nothing.
  void addReference(std::size_t definition, std::size_t other);

  // Those of the records below `definition` that `isWrong` answers true for, each once, in the
  // order in which they are met. `interface` and `direction` are all that the answers depend on.
  using IsWrong = std::function<bool(as::IDataItem&)>;
  std::vector<as::IDataItem*> wrongOnes(std::size_t definition, const CallInterface& interface,
                                        int direction, const IsWrong& isWrong);

 private:
  struct Part {
    as::IDataItem* record;  // Null for a reference.
    std::size_t reference;
  };
  using Known = std::unordered_set<std::size_t>;

  // Where the definition's records are told: itself, unless it is nothing but a reference.
  std::size_t sourceOf(std::size_t definition);
  std::vector<as::IDataItem*> follow(std::size_t definition, Known& good, const IsWrong& isWrong);

  std::vector<std::vector<Part>> parts_;
  // What has been asked: the wrong records, where there are some, and the definitions without any.
  struct Answers {
    std::unordered_map<std::size_t, std::vector<as::IDataItem*>> wrong;
    Known good;
  };
  std::map<std::pair<const CallInterface*, int>, Answers> answers_;
};

}  // namespace as::toolkit

#endif  // TOOLKIT_LINT_TYPESTORAGE_H_
