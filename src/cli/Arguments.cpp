#include "cli/Arguments.h"

#include <CLI/CLI.hpp>

namespace cli {

void Arguments::required(const char* name, std::string& value, const char* help) {
  app_.add_option(name, value, help)->required();
}

void Arguments::required(const char* name, std::vector<std::string>& values, const char* help) {
  app_.add_option(name, values, help)->required();
}

void Arguments::requiredOption(const char* name, std::string& value, const char* help) {
  app_.add_option(name, value, help)->required();
}

void Arguments::requiredOption(const char* name, std::string& value,
                               const std::vector<std::string>& words, const char* help) {
  app_.add_option(name, value, help)->required()->check(CLI::IsMember(words));
}

void Arguments::option(const char* name, std::string& value, const char* help) {
  app_.add_option(name, value, help);
}

void Arguments::option(const char* name, std::optional<std::string>& value, const char* type,
                       const char* help) {
  app_.add_option(name, value, help)->type_name(type);
}

void Arguments::option(const char* name, std::string& value, const std::vector<std::string>& words,
                       const char* help) {
  app_.add_option(name, value, help)->check(CLI::IsMember(words));
}

void Arguments::option(const char* name, std::size_t& value, const char* help) {
  constexpr std::size_t most = 1000;
  app_.add_option(name, value, help)->check(CLI::Range(std::size_t{1}, most));
}

void Arguments::list(const char* name, std::vector<std::string>& values, const char* type,
                     const char* help) {
  app_.add_option(name, values, help)->delimiter(',')->allow_extra_args(false)->type_name(type);
}

void Arguments::flag(const char* name, bool& value, const char* help) {
  app_.add_flag(name, value, help);
}

void Arguments::insteadOf(std::initializer_list<const char*> others, const char* name, bool& value,
                          const char* help) {
  std::vector<CLI::Option*> replaced;
  for (const char* const other : others) replaced.push_back(app_.get_option(other));
  const auto given = [replaced, &value] {
    value = true;
    for (CLI::Option* const option : replaced) option->required(false);
  };
  app_.add_flag_callback(name, given, help);
}

}  // namespace cli
