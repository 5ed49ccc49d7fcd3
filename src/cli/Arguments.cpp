#include "cli/Arguments.h"

#include <CLI/CLI.hpp>

namespace cli {

namespace {

constexpr char anyText[] = "TEXT";

}  // namespace

std::vector<std::string> namesOf(const Argument& argument) {
  std::vector<std::string> names;
  for (std::size_t from = 0; from <= argument.names.size();) {
    const std::size_t to = std::min(argument.names.find(',', from), argument.names.size());
    names.push_back(argument.names.substr(from, to - from));
    from = to + 1;
  }
  return names;
}

Argument& Arguments::note(const char* name, const char* value, const char* help) {
  Argument argument;
  argument.names = name;
  argument.value = value;
  argument.help = help;
  return table_.emplace_back(std::move(argument));
}

void Arguments::required(const char* name, std::string& value, const char* help) {
  app_.add_option(name, value, help)->required()->type_name("");
  note(name, name, help).isRequired = true;
}

void Arguments::required(const char* name, std::string& value,
                         const std::vector<std::string>& words, const char* help) {
  app_.add_option(name, value, help)->required()->check(CLI::IsMember(words));
  Argument& argument = note(name, name, help);
  argument.isRequired = true;
  argument.words = words;
}

void Arguments::required(const char* name, std::vector<std::string>& values, const char* help) {
  CLI::Option* const added = app_.add_option(name, values, help)->required()->type_name("");
  // Of what may be any number of extra arguments the parser takes brackets and commas out: "[a,b]"
  // would be two files. As something that never has enough it gets all that come, as they are.
  constexpr int most = CLI::detail::expected_max_vector_size;
  added->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
  added->expected(most - 1, most)->allow_extra_args(false);
  Argument& argument = note(name, name, help);
  argument.isRequired = true;
  argument.isRepeated = true;
}

void Arguments::requiredOption(const char* name, std::string& value, const char* help) {
  app_.add_option(name, value, help)->required();
  note(name, anyText, help).isRequired = true;
}

void Arguments::requiredOption(const char* name, std::string& value,
                               const std::vector<std::string>& words, const char* help) {
  app_.add_option(name, value, help)->required()->check(CLI::IsMember(words));
  Argument& argument = note(name, anyText, help);
  argument.isRequired = true;
  argument.words = words;
}

void Arguments::option(const char* name, std::string& value, const char* help) {
  app_.add_option(name, value, help);
  note(name, anyText, help);
}

void Arguments::option(const char* name, std::optional<std::string>& value, const char* type,
                       const char* help) {
  app_.add_option(name, value, help)->type_name(type);
  note(name, type, help);
}

void Arguments::option(const char* name, std::string& value, const std::vector<std::string>& words,
                       const char* help) {
  app_.add_option(name, value, help)->check(CLI::IsMember(words));
  note(name, anyText, help).words = words;
}

void Arguments::option(const char* name, std::size_t& value, const char* help) {
  constexpr std::size_t most = 1000;
  app_.add_option(name, value, help)
      ->type_name("NUMBER")
      ->check(CLI::Range(std::size_t{1}, most).description(""));
  note(name, "NUMBER", help);
}

void Arguments::list(const char* name, std::vector<std::string>& values, const char* type,
                     const char* help) {
  app_.add_option(name, values, help)->delimiter(',')->allow_extra_args(false)->type_name(type);
  note(name, type, help).isRepeated = true;
}

void Arguments::flag(const char* name, bool& value, const char* help) {
  app_.add_flag(name, value, help);
  note(name, "", help);
}

void Arguments::offer(const std::vector<std::string>& words) { table_.back().words = words; }

void Arguments::insteadOf(std::initializer_list<const char*> others, const char* name, bool& value,
                          const char* help) {
  std::vector<CLI::Option*> replaced;
  for (const char* const other : others) replaced.push_back(app_.get_option(other));
  const auto given = [replaced, &value] {
    value = true;
    for (CLI::Option* const option : replaced) option->required(false);
  };
  app_.add_flag_callback(name, given, help);
  note(name, "", help);
}

}  // namespace cli
