// Finds the data items of a program by their paths.
#ifndef TOOLKIT_WALK_ITEMINDEX_H_
#define TOOLKIT_WALK_ITEMINDEX_H_

#include <string>
#include <unordered_map>

namespace as {
class IDataItem;
class IProgram;
}  // namespace as

namespace as::toolkit {

class ItemIndex {
 public:
  explicit ItemIndex(as::IProgram& program);

  // The item that a mapping to that path, without subscripts, leads to: the first of it. Null when
  // there is none.
  as::IDataItem* find(const std::string& path) const;

 private:
  std::unordered_map<std::string, as::IDataItem*> items_;
};

}  // namespace as::toolkit

#endif  // TOOLKIT_WALK_ITEMINDEX_H_
