// What commands take from the command line. Commands tell it here; the parser of command lines
// itself is known to this class and to main() alone.
#ifndef CLI_ARGUMENTS_H_
#define CLI_ARGUMENTS_H_

#include <cstddef>
#include <initializer_list>
#include <optional>
#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace cli {

// What was declared, for help in other forms.
struct Argument {
  std::string names;               // "-o,--output", or a name without a dash for a plain one.
  std::string value;               // What the value is called; empty for a flag.
  std::vector<std::string> words;  // What the value may be; empty for anything.
  std::string help;
  bool isRequired = false;
  bool isRepeated = false;  // Whether there may be several.

  bool isOption() const { return names.front() == '-'; }
};

// "-o,--output" as its names.
std::vector<std::string> namesOf(const Argument& argument);

// The part of the command line that belongs to one command, or to the tool. Values are written to
// where they are wanted as the command line is read; what they are written to must still be there
// then.
class Arguments {
 public:
  // What is declared is noted in `table`, too.
  Arguments(CLI::App& app, std::vector<Argument>& table) : app_(app), table_(table) {}

  // A name that must be given; or that must be given unless a flag declared with insteadOf() is.
  void required(const char* name, std::string& value, const char* help);
  // One of these words.
  void required(const char* name, std::string& value, const std::vector<std::string>& words,
                const char* help);
  // One name or more.
  void required(const char* name, std::vector<std::string>& values, const char* help);
  // "--name VALUE", which must be given.
  void requiredOption(const char* name, std::string& value, const char* help);
  // The same with a value that is one of `words`.
  void requiredOption(const char* name, std::string& value, const std::vector<std::string>& words,
                      const char* help);
  // "--name VALUE"; `type` is what help calls the value.
  void option(const char* name, std::string& value, const char* help);
  void option(const char* name, std::optional<std::string>& value, const char* type,
              const char* help);
  // The same with a value that is one of `words`.
  void option(const char* name, std::string& value, const std::vector<std::string>& words,
              const char* help);
  // "--name NUMBER", from 1 on.
  void option(const char* name, std::size_t& value, const char* help);
  // "--name A,B".
  void list(const char* name, std::vector<std::string>& values, const char* type, const char* help);
  void flag(const char* name, bool& value, const char* help);
  // What completion and the manual offer for what was declared last, where the command itself says
  // what is wrong with another value.
  void offer(const std::vector<std::string>& words);
  // A flag that stands in place of the names `others`, which were declared in front of it.
  void insteadOf(std::initializer_list<const char*> others, const char* name, bool& value,
                 const char* help);

 private:
  Argument& note(const char* name, const char* value, const char* help);

  CLI::App& app_;
  std::vector<Argument>& table_;
};

}  // namespace cli

#endif  // CLI_ARGUMENTS_H_
