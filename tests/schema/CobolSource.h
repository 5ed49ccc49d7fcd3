// The text of a program in COBOL, by line and by entry.
#ifndef TESTS_SCHEMA_COBOLSOURCE_H_
#define TESTS_SCHEMA_COBOLSOURCE_H_

#include <cctype>
#include <cstddef>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <string>
#include <vector>

namespace cobol {

// A program in fixed format, by line.
class Source {
 public:
  explicit Source(const std::string& file) {
    std::ifstream stream(file);
    std::string line;
    while (std::getline(stream, line)) lines_.push_back(line);
  }

  bool isEmpty() const { return lines_.empty(); }

  // Line `number`, counted from 1, without its first 7 columns; empty for a comment or no line.
  std::string code(int number) const {
    if (number < 1 || number > static_cast<int>(lines_.size())) return std::string();
    const std::string& line = lines_[static_cast<std::size_t>(number) - 1];
    return line.size() < 8 || line[6] != ' ' ? std::string() : line.substr(7);
  }

  // The words of the entry that starts on line `number`, single blanks between them, without the
  // final period.
  std::string entry(int number) const {
    std::string text;
    for (int i = number; i <= static_cast<int>(lines_.size()); i++) {
      for (const char c : code(i) + ' ') {
        if (!std::isspace(static_cast<unsigned char>(c)))
          text += c;
        else if (!text.empty() && text.back() != ' ')
          text += ' ';
      }
      if (text.size() >= 2 && text[text.size() - 2] == '.') return text.substr(0, text.size() - 2);
    }
    return text;
  }

  // The level number of the entry on line `number`, -1 when none starts there.
  int level(int number) const {
    std::smatch match;
    const std::string text = code(number);
    static const std::regex start("^ *([0-9][0-9]) ");
    return std::regex_search(text, match, start) ? std::stoi(match[1]) : -1;
  }

  // The lines of the data division on which data description entries start, conditions excepted.
  std::set<int> dataEntries() const {
    std::set<int> result;
    for (int i = lineOf("DATA DIVISION."); i < lineOf("PROCEDURE DIVISION"); i++)
      if (level(i) != -1 && level(i) != 88) result.insert(i);
    return result;
  }

  // The names of the level 88 entries, in order.
  std::vector<std::string> conditions() const {
    std::vector<std::string> result;
    for (int i = lineOf("DATA DIVISION."); i < lineOf("PROCEDURE DIVISION"); i++) {
      if (level(i) != 88) continue;
      const std::string text = entry(i);
      result.push_back(text.substr(3, text.find(' ', 3) - 3));
    }
    return result;
  }

  // The first line whose code begins with `words`; behind the last line when there is none.
  int lineOf(const std::string& words) const {
    int number = 1;
    while (number <= static_cast<int>(lines_.size()) && code(number).find(words) != 0) number++;
    return number;
  }

 private:
  std::vector<std::string> lines_;
};

// The expression, which takes longer to make than to search for.
inline const std::regex& regexOf(const std::string& expression) {
  static std::map<std::string, std::regex> made;
  const auto at = made.find(expression);
  return at != made.end() ? at->second : made.emplace(expression, expression).first->second;
}

// What `expression` captures in the entry `text`; empty when it does not match.
inline std::string captured(const std::string& text, const std::string& expression) {
  std::smatch match;
  return std::regex_search(text, match, regexOf(expression)) ? match[1].str() : std::string();
}

inline bool hasWord(const std::string& text, const std::string& word) {
  return std::regex_search(text, regexOf("(^| )" + word + "( |$)"));
}

}  // namespace cobol

#endif  // TESTS_SCHEMA_COBOLSOURCE_H_
