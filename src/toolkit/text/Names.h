// Names of which no two are alike.
#ifndef TOOLKIT_TEXT_NAMES_H_
#define TOOLKIT_TEXT_NAMES_H_

#include <string>
#include <unordered_map>

namespace as::toolkit {

class Names {
 public:
  // Has `name` count as given out.
  void reserve(const std::string& name) { used_.try_emplace(name, firstNumber); }

  // Gives out `name`, or the first of "NAME-2", "NAME-3" and so on that is not given out yet.
  std::string unique(const std::string& name);

 private:
  static constexpr int firstNumber = 2;

  // Each name with the number that it is to be tried with next: those in front of it are given out.
  std::unordered_map<std::string, int> used_;
};

}  // namespace as::toolkit

#endif  // TOOLKIT_TEXT_NAMES_H_
