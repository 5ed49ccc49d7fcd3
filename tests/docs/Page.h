// A page of the guide: its code blocks, and what stands around them.
#ifndef TESTS_DOCS_PAGE_H_
#define TESTS_DOCS_PAGE_H_

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace docs {

struct Block {
  std::string heading;          // The last one in front of it, without the "#".
  std::set<std::string> words;  // Behind the ``` that opens it: the language, and more.
  std::string text;             // Its lines, each with its end.

  bool is(const std::string& word) const { return words.count(word) == 1; }
};

class Page {
 public:
  explicit Page(const std::filesystem::path& file) : file_(file) {
    std::ifstream in(file);
    std::string heading;
    std::string prose;
    for (std::string line; std::getline(in, line);) {
      if (line.rfind("```", 0) != 0) {
        if (line.rfind('#', 0) == 0) {
          heading = line.substr(line.find_first_not_of("# "));
          headings_.push_back(heading);
        }
        prose += line + "\n";
        continue;
      }
      std::istringstream words(line.substr(3));
      Block block{heading, {std::istream_iterator<std::string>(words), {}}, ""};
      prose_.push_back(prose + line + "\n");
      prose.clear();
      while (std::getline(in, line) && line != "```") block.text += line + "\n";
      prose = "```\n";
      blocks_.push_back(block);
    }
    end_ = prose;
  }

  std::vector<Block>& blocks() { return blocks_; }
  const std::vector<std::string>& headings() const { return headings_; }

  // All of it, as it is with the blocks as they are now.
  std::string text() const {
    std::string all;
    for (std::size_t i = 0; i < blocks_.size(); i++) all += prose_[i] + blocks_[i].text;
    return all + end_;
  }

  // AS_UPDATE_GUIDE=1 in the environment: what is shown is written anew instead of being compared.
  static bool isUpdated() { return std::getenv("AS_UPDATE_GUIDE") != nullptr; }
  void write() const { std::ofstream(file_) << text(); }

 private:
  std::filesystem::path file_;
  std::vector<std::string> prose_;  // In front of each block, with the line that opens it.
  std::vector<Block> blocks_;
  std::vector<std::string> headings_;
  std::string end_;
};

inline std::filesystem::path guide() { return AS_GUIDE_DIR; }

inline std::vector<std::filesystem::path> pages() {
  std::set<std::filesystem::path> all;
  for (const auto& entry : std::filesystem::directory_iterator(guide())) {
    if (entry.path().extension() == ".md") all.insert(entry.path());
  }
  return {all.begin(), all.end()};
}

}  // namespace docs

#endif  // TESTS_DOCS_PAGE_H_
