// Keeps texts that were put together, for as long as words refer to them.
#ifndef TOOLKIT_IMPORT_TEXTARENA_H_
#define TOOLKIT_IMPORT_TEXTARENA_H_

#include <cstddef>
#include <memory>
#include <string_view>
#include <vector>

namespace as::toolkit {

class TextArena {
 public:
  // The same text, which stays as long as the arena.
  std::string_view keep(std::string_view text) {
    if (text.empty()) return {};
    if (text.size() > left_) {
      const std::size_t size = text.size() > blockSize / 4 ? text.size() : blockSize;
      // NOLINTNEXTLINE(cppcoreguidelines-avoid-c-arrays,modernize-avoid-c-arrays): of any size
      blocks_.push_back(std::make_unique<char[]>(size));
      if (size != blockSize) {
        // A block of its own; the current one goes on being filled.
        char* const own = blocks_.back().get();
        text.copy(own, text.size());
        return {own, text.size()};
      }
      free_ = blocks_.back().get();
      left_ = size;
    }
    text.copy(free_, text.size());
    const std::string_view kept(free_, text.size());
    free_ += text.size();
    left_ -= text.size();
    return kept;
  }

 private:
  static constexpr std::size_t blockSize = 65536;

  // NOLINTNEXTLINE(cppcoreguidelines-avoid-c-arrays,modernize-avoid-c-arrays): of any size
  std::vector<std::unique_ptr<char[]>> blocks_;
  char* free_ = nullptr;
  std::size_t left_ = 0;
};

}  // namespace as::toolkit

#endif  // TOOLKIT_IMPORT_TEXTARENA_H_
