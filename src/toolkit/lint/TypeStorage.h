// The storage that type definitions map to, references followed.
#ifndef TOOLKIT_LINT_TYPESTORAGE_H_
#define TOOLKIT_LINT_TYPESTORAGE_H_

#include <cstddef>
#include <functional>
#include <map>
#include <memory>
#include <unordered_map>
#include <utility>
#include <vector>

namespace as {
class IDataItem;
}

namespace as::toolkit {

struct CallInterface;

// Definitions are numbers in the order of the document. What a definition leads to may be as much
// as the whole document, and as much again for each one that refers to it; so no more is kept of it
// than the first few records, and that is what makes it fast to find them: those of a definition
// are the first few of what its references lead to, whatever lies behind.
class TypeStorage {
 public:
  // Answers the number of the next one.
  std::size_t addDefinition();

  // Something in the definition is mapped to that record.
  void addRecord(std::size_t definition, as::IDataItem& record);
  // Something in it refers to `other`. One that does not stand in front of it defines nothing.
  void addReference(std::size_t definition, std::size_t other);

  struct WrongOnes {
    std::vector<as::IDataItem*> told;
    bool areMore;
  };
  // Those of the records below `definition` that `isWrong` answers true for, each once, in the
  // order in which they are met, `mostTold` at most. `interface` and `direction` are all that the
  // answers depend on. Everything has been added by then.
  using IsWrong = std::function<bool(as::IDataItem&)>;
  WrongOnes wrongOnes(std::size_t definition, const CallInterface& interface, int direction,
                      const IsWrong& isWrong);

 private:
  struct Part {
    as::IDataItem* record;  // Null for a reference.
    std::size_t reference;
  };
  using Records = std::vector<as::IDataItem*>;
  // The first records of definitions. Those that lead to the same share them.
  using Known = std::unordered_map<std::size_t, std::shared_ptr<const Records>>;

  // Where the definition's records are told: itself, unless it is nothing but a reference.
  std::size_t sourceOf(std::size_t definition);
  // The first records below the definition that `counts` answers true for, so many at most.
  const Records& firstRecords(std::size_t definition, std::size_t limit, const IsWrong& counts,
                              Known& known) const;
  // The same where those of all that it refers to are known.
  std::shared_ptr<const Records> together(const std::vector<Part>& parts, std::size_t limit,
                                          const IsWrong& counts, const Known& known) const;

  std::vector<std::vector<Part>> parts_;
  Known all_;  // Wrong or not.
  std::map<std::pair<const CallInterface*, int>, Known> wrong_;
};

}  // namespace as::toolkit

#endif  // TOOLKIT_LINT_TYPESTORAGE_H_
