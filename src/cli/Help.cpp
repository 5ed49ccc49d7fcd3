#include "cli/Help.h"

#include <algorithm>
#include <cstddef>
#include <sstream>
#include <string>
#include <vector>

#include "as/toolkit/Text.h"
#include "cli/Messages.h"

namespace cli {

namespace {

constexpr std::size_t lineWidth = 80;
constexpr std::size_t nameWidth = 30;

// The words of a text in lines of that width, if they fit.
std::string wrapped(const std::string& text, std::size_t width) {
  std::istringstream words(text);
  std::string result;
  std::size_t used = 0;
  for (std::string word; words >> word; used += word.size()) {
    if (!result.empty()) {
      const bool fits = used + 1 + word.size() <= width;
      result += fits ? ' ' : '\n';
      used = fits ? used + 1 : 0;
    }
    result += word;
  }
  return result;
}

class HelpFormatter : public CLI::Formatter {
 public:
  HelpFormatter() { column_width(nameWidth); }

  std::string make_description(const CLI::App* app) const override {
    return wrapped(app->get_description(), lineWidth) + "\n";
  }

  std::string make_subcommand(const CLI::App* command) const override {
    std::ostringstream line;
    CLI::detail::format_help(line, command->get_display_name(true),
                             wrapped(command->get_description(), lineWidth - nameWidth), nameWidth);
    return line.str();
  }

  std::string make_option_desc(const CLI::Option* option) const override {
    return wrapped(option->get_description(), lineWidth - nameWidth);
  }
};

std::vector<std::string> optionNames(const std::vector<Argument>& arguments) {
  std::vector<std::string> names;
  for (const Argument& argument : arguments) {
    if (!argument.isOption()) continue;
    const std::vector<std::string> all = namesOf(argument);
    names.insert(names.end(), all.begin(), all.end());
  }
  return names;
}

// What is said of something that nobody asked for.
std::string unexpected(const std::string& word, const std::vector<Argument>& arguments) {
  if (word.size() < 2 || word.front() != '-') return "'" + word + "' is an argument too many";
  const std::string option = word.substr(0, word.find('='));
  const std::string near = toolkit::nearestName(option, optionNames(arguments));
  return "there is no option '" + option + "'" +
         (near.empty() ? "" : "; did you mean '" + near + "'?");
}

}  // namespace

std::shared_ptr<CLI::FormatterBase> helpFormatter() { return std::make_shared<HelpFormatter>(); }

void printUsageProblem(const CLI::App& app, const CommandTable& table,
                       const CLI::ParseError& problem) {
  const std::vector<CLI::App*> parsed = app.get_subcommands();
  if (parsed.empty() && dynamic_cast<const CLI::RequiredError*>(&problem) != nullptr) {
    printRefusal({toolName, 0, 0, "a command is missing", "agentservices --help lists them"});
    return;
  }
  const std::vector<Argument>* arguments = &table.arguments;
  std::string command = table.name;
  if (!parsed.empty()) {
    const std::string name = parsed.front()->get_name();
    command += " " + name;
    const auto entry =
        std::find_if(table.commands.begin(), table.commands.end(),
                     [&name](const CommandEntry& other) { return name == other.command->name(); });
    if (entry != table.commands.end()) arguments = &entry->arguments;
  }
  const std::vector<std::string> extras = app.remaining(true);
  const bool isExtra = dynamic_cast<const CLI::ExtrasError*>(&problem) != nullptr;
  const std::string text =
      isExtra && !extras.empty() ? unexpected(extras.front(), *arguments) : problem.what();
  printRefusal({toolName, 0, 0, text, command + " --help tells what it takes"});
}

}  // namespace cli
