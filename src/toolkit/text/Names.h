// Names of which no two are alike.
#ifndef TOOLKIT_TEXT_NAMES_H_
#define TOOLKIT_TEXT_NAMES_H_

#include <string>
#include <unordered_set>

namespace as::toolkit {

class Names {
 public:
  // Has `name` count as given out.
  void reserve(const std::string& name) { used_.insert(name); }

  // Gives out `name`, or the first of "NAME-2", "NAME-3" and so on that is not given out yet.
  std::string unique(const std::string& name);

 private:
  std::unordered_set<std::string> used_;
};

}  // namespace as::toolkit

#endif  // TOOLKIT_TEXT_NAMES_H_
