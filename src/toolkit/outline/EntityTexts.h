// The entities that a document declares in itself.
#ifndef TOOLKIT_OUTLINE_ENTITYTEXTS_H_
#define TOOLKIT_OUTLINE_ENTITYTEXTS_H_

#include <cstddef>
#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>

namespace as::toolkit {

class EntityTexts {
 public:
  // The texts go to `store`, which must outlive what is found.
  explicit EntityTexts(std::deque<std::string>& store) : store_(store) {}

  // Reads the document type declaration that begins at `at` in `text`. Answers where it ends; npos
  // when it does not.
  std::size_t read(std::string_view text, std::size_t at);

  // What stands for a reference; null for one that is not declared.
  const std::string* find(std::string_view name) const;

 private:
  std::size_t readDeclaration(std::string_view text, std::size_t at);

  std::deque<std::string>& store_;
  std::unordered_map<std::string_view, const std::string*> texts_;
};

}  // namespace as::toolkit

#endif  // TOOLKIT_OUTLINE_ENTITYTEXTS_H_
