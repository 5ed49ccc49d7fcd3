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

// The part of the command line that belongs to one command, or to the tool. Values are written to
// where they are wanted as the command line is read; what they are written to must still be there
// then.
class Arguments {
 public:
  explicit Arguments(CLI::App& app) : app_(app) {}

  // A name that must be given; or that must be given unless a flag declared with insteadOf() is.
  void required(const char* name, std::string& value, const char* help);
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
  // A flag that stands in place of the names `others`, which were declared in front of it.
  void insteadOf(std::initializer_list<const char*> others, const char* name, bool& value,
                 const char* help);

 private:
  CLI::App& app_;
};

}  // namespace cli

#endif  // CLI_ARGUMENTS_H_
