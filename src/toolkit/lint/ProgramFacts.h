// What lint asks of a program, answered without going through it again.
#ifndef TOOLKIT_LINT_PROGRAMFACTS_H_
#define TOOLKIT_LINT_PROGRAMFACTS_H_

#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "toolkit/text/NearNames.h"
#include "toolkit/walk/ItemFinder.h"

namespace as {
class IDataItem;
class IEntryPoint;
class IProgram;
}  // namespace as

namespace as::toolkit {

// What a caller of an entry point hands over. The names are told with each of many mappings: they
// are as shownPlace() has them.
struct CallInterface {
  std::string entryPoint;
  std::unordered_map<as::IDataItem*, int> records;  // With how they are handed over.
  std::string names;                                // Those of the first; empty for none.
  std::vector<std::string> lost;                    // Names that no record has.
};

class ProgramFacts {
 public:
  explicit ProgramFacts(as::IProgram& program);

  // As shownPlace() has it.
  const std::string& name() const { return name_; }

  // How items are found; null as long as none was looked for.
  std::shared_ptr<const ItemIndex> index() const { return finder_ ? finder_->index() : nullptr; }

  // The item that a mapping with that text leads to; null when there is none.
  as::IDataItem* find(const std::string& mapping);

  // The path of the item that a mapping may have meant that leads nowhere: the first one of the
  // name, wherever it stands, or else one whose name is nearly that, the one that stands where the
  // rest of the path leads before others. As shownPlace() has it; empty when there is none.
  std::string pathMeant(const std::string& path);

  // The entry point whose name is nearly that; empty when there is none.
  std::string entryPointMeant(const std::string& name);

  // The record whose storage `item` lies in. The same storage under another name is the same
  // record.
  as::IDataItem* recordOf(as::IDataItem& item) const;

  // What it is called, as shownPlace() has it. Any number of mappings lead to it, by names of what
  // stands in it or takes its place.
  const std::string& nameOf(as::IDataItem& record);

  // The interface of the entry point of that name; null when there is none. Stays where it is.
  const CallInterface* interfaceOf(const std::string& entryPoint);

 private:
  CallInterface read(as::IEntryPoint& entryPoint) const;
  void findNames();
  as::IDataItem* nearBeside(const std::string& path);
  as::IDataItem* itemMeant(const std::string& path);

  as::IProgram& program_;
  std::string name_;
  std::unordered_map<as::IDataItem*, as::IDataItem*> records_;     // Of the items at the top.
  std::unordered_map<std::string, as::IDataItem*> recordsByName_;  // The first of each name.
  std::unordered_map<std::string, as::IEntryPoint*> entryPoints_;  // The first of each name.
  std::unordered_map<std::string, CallInterface> interfaces_;      // Those asked for.
  std::optional<ItemFinder> finder_;                               // Once an item was looked for.
  // All names of items with the first item of each; once an item was not found.
  std::optional<NearNames> names_;
  std::vector<as::IDataItem*> firstOfName_;  // In the order of names_.
  std::unordered_map<std::string, std::size_t> numbers_;
  std::unordered_map<as::IDataItem*, NearNames> members_;  // Of groups that were asked for.
  // Of those that were asked for.
  std::unordered_map<as::IDataItem*, std::string> recordNames_;
  std::unordered_map<as::IDataItem*, std::string> pathsMeant_;
  NearNames entryPointNames_;
};

}  // namespace as::toolkit

#endif  // TOOLKIT_LINT_PROGRAMFACTS_H_
