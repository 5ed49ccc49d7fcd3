// agentservices completion: prints what makes a shell complete calls of the tool.
#include <algorithm>
#include <array>
#include <iostream>
#include <iterator>
#include <string>

#include "cli/CommandTable.h"
#include "cli/Messages.h"

namespace cli {

namespace {

std::string withBackslashes(const std::string& text, const char* before) {
  std::string result;
  for (const char c : text) {
    if (std::string(before).find(c) != std::string::npos) result += '\\';
    result += c;
  }
  return result;
}

// As one word of a shell, whatever it holds.
std::string quoted(const std::string& text) {
  std::string result = "'";
  for (const char c : text) result += c == '\'' ? std::string("'\\''") : std::string(1, c);
  return result + "'";
}

std::vector<std::string> optionsOf(const std::vector<Argument>& arguments) {
  std::vector<std::string> options = {"-h", "--help"};
  for (const Argument& argument : arguments) {
    if (!argument.isOption()) continue;
    for (const std::string& name : namesOf(argument)) options.push_back(name);
  }
  return options;
}

std::vector<std::string> commandNames(const CommandTable& table) {
  std::vector<std::string> names;
  for (const CommandEntry& entry : table.commands) names.emplace_back(entry.command->name());
  return names;
}

// bash

// What is offered behind an option that takes one of some words; other values are names of files.
void bashValues(const std::string& command, const std::vector<Argument>& arguments) {
  for (const Argument& argument : arguments) {
    if (!argument.isOption() || argument.value.empty()) continue;
    std::vector<std::string> cases;
    for (const std::string& name : namesOf(argument)) {
      cases.push_back(std::string("\"").append(command).append(" ").append(name).append("\""));
    }
    std::cout << "    " << joined(cases, "|") << ") words=" << quoted(joined(argument.words, " "))
              << "; isValue=1 ;;\n";
  }
}

void bashOptions(const std::string& command, const std::vector<Argument>& arguments,
                 const std::vector<std::string>& more) {
  std::vector<std::string> words = more;
  for (const Argument& argument : arguments) {
    if (!argument.isOption())
      words.insert(words.end(), argument.words.begin(), argument.words.end());
  }
  std::cout << "    " << quoted(command)
            << ") options=" << quoted(joined(optionsOf(arguments), " "))
            << "; words=" << quoted(joined(words, " ")) << " ;;\n";
}

void printBash(const CommandTable& table) {
  std::cout << "# Completion of " << table.name << " for bash.\n"
            << R"sh(_agentservices() {
  local cur=${COMP_WORDS[COMP_CWORD]} prev=${COMP_WORDS[COMP_CWORD-1]}
  local command='' options='' words='' isValue='' i
  for ((i = 1; i < COMP_CWORD; i++)); do
    case ${COMP_WORDS[i]} in
      --schemas) ((i++)) ;;
      -*) ;;
      *) command=${COMP_WORDS[i]}; break ;;
    esac
  done
  COMPREPLY=()
  case "$command $prev" in
)sh";
  bashValues("", table.arguments);
  for (const CommandEntry& entry : table.commands) {
    bashValues(entry.command->name(), entry.arguments);
  }
  std::cout << R"sh(  esac
  if [[ -n $isValue ]]; then
    [[ -z $words ]] || mapfile -t COMPREPLY < <(compgen -W "$words" -- "$cur")
    return
  fi
  case $command in
)sh";
  bashOptions("", table.arguments, commandNames(table));
  for (const CommandEntry& entry : table.commands) {
    bashOptions(entry.command->name(), entry.arguments, {});
  }
  std::cout << R"sh(  esac
  if [[ $cur == -* ]]; then
    mapfile -t COMPREPLY < <(compgen -W "$options" -- "$cur")
  elif [[ -n $words && ( -z $command || $prev == "$command" ) ]]; then
    mapfile -t COMPREPLY < <(compgen -W "$words" -- "$cur")
  fi
}
# Where nothing is offered, names of files are.
complete -o default -F _agentservices )sh"
            << table.name << "\n";
}

// zsh

// "--format[How findings are told]:TEXT:(text json sarif)"
std::string zshOption(const Argument& argument) {
  const std::vector<std::string> names = namesOf(argument);
  std::string text;
  if (argument.isRepeated) {
    text = quoted("*");
  } else if (names.size() > 1) {
    text = quoted("(" + joined(names, " ") + ")");
  }
  text += names.size() > 1 ? "{" + joined(names, ",") + "}" : quoted(names.front());
  std::string rest = "[" + withBackslashes(argument.help, "[]:\\") + "]";
  if (!argument.value.empty()) {
    rest += ":" + withBackslashes(argument.value, ":\\") + ":";
    rest += argument.words.empty() ? "_files" : "(" + joined(argument.words, " ") + ")";
  }
  return text + quoted(rest);
}

std::string zshPlain(const Argument& argument) {
  return quoted((argument.isRepeated ? "*:" : ":") + argument.names + ":" +
                (argument.words.empty() ? "_files" : "(" + joined(argument.words, " ") + ")"));
}

void zshArguments(const std::vector<Argument>& arguments, const char* indent) {
  std::cout << " \\\n" << indent << "'(-h --help)'{-h,--help}'[Print help and end]'";
  for (const Argument& argument : arguments) {
    std::cout << " \\\n"
              << indent << (argument.isOption() ? zshOption(argument) : zshPlain(argument));
  }
}

void printZsh(const CommandTable& table) {
  std::cout << "#compdef " << table.name << "\n# Completion of " << table.name << " for zsh.\n"
            << "_agentservices() {\n  local curcontext=$curcontext state line\n"
            << "  local -a commands\n  commands=(\n";
  for (const CommandEntry& entry : table.commands) {
    std::cout << "    "
              << quoted(std::string(entry.command->name()) + ":" +
                        withBackslashes(entry.command->summary(), ":\\"))
              << "\n";
  }
  std::cout << "  )\n  _arguments -C";
  zshArguments(table.arguments, "    ");
  std::cout << " \\\n    '--version[Print the versions and end]' \\\n"
            << "    '1: :->command' '*:: :->arguments'\n  case $state in\n"
            << "    command) _describe command commands ;;\n    arguments)\n"
            << "      case $words[1] in\n";
  for (const CommandEntry& entry : table.commands) {
    std::cout << "        " << entry.command->name() << ") _arguments";
    zshArguments(entry.arguments, "            ");
    std::cout << " ;;\n";
  }
  std::cout << "      esac ;;\n  esac\n}\n_agentservices \"$@\"\n";
}

struct Shell {
  const char* name;
  void (*print)(const CommandTable& table);
};

constexpr std::array<Shell, 2> shells = {{{"bash", printBash}, {"zsh", printZsh}}};

class Completion : public Command {
 public:
  explicit Completion(const CommandTable& table)
      : Command("completion", "Print what makes a shell complete calls of this tool"),
        table_(table) {}

  std::vector<Example> examples() const override {
    return {{"completion bash > ~/.local/share/bash-completion/completions/agentservices",
             "for bash, from the next shell on"},
            {"completion zsh > ~/.zsh/_agentservices", "for zsh, in a folder of its fpath"}};
  }

  void declare(Arguments& arguments) override {
    std::vector<std::string> names;
    names.reserve(std::size(shells));
    for (const Shell& shell : shells) names.emplace_back(shell.name);
    arguments.required("SHELL", shell_, names, "The shell");
  }

  int run(const std::optional<std::string>&) override {
    for (const Shell& shell : shells) {
      if (shell_ == shell.name) shell.print(table_);
    }
    return exitFine;
  }

 private:
  const CommandTable& table_;
  std::string shell_;
};

}  // namespace

std::unique_ptr<Command> completionCommand(const CommandTable& table) {
  return std::make_unique<Completion>(table);
}

}  // namespace cli
