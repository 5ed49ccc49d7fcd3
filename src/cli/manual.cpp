// agentservices manual: writes the tool's manual pages.
#include <algorithm>
#include <cctype>
#include <filesystem>
#include <iostream>
#include <string>

#include "as/toolkit/Files.h"
#include "as/toolkit/Text.h"
#include "cli/CommandTable.h"
#include "cli/Folder.h"
#include "cli/Messages.h"

namespace cli {

namespace {

// Text as the formatter of manual pages takes it.
std::string roff(const std::string& text) {
  std::string result;
  for (const char c : text) {
    if (c == '-') {
      result += "\\-";
    } else if (c == '\\') {
      result += "\\e";
    } else {
      // A line that begins with one of these would be a request.
      if (result.empty() && (c == '.' || c == '\'')) result += "\\&";
      result += c;
    }
  }
  return result;
}

// A term and what it means.
std::string entry(const std::string& term, const std::string& text) {
  return ".TP\n" + term + "\n" + roff(text) + "\n";
}

std::string header(const std::string& page, const std::string& summary) {
  std::string upper = page;
  std::transform(upper.begin(), upper.end(), upper.begin(),
                 [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
  return ".TH " + upper +
         " 1 \"" AS_TOOL_DATE "\" \"agentservices " AS_TOOL_VERSION "\" \"User Commands\"\n" +
         ".SH NAME\n" + roff(page) + " \\- " + roff(summary) + "\n.SH SYNOPSIS\n";
}

// "\fB-o\fR, \fB--output\fR \fITEXT\fR"
std::string termOf(const Argument& argument) {
  if (!argument.isOption()) {
    return "\\fI" + roff(argument.names) + "\\fR" + (argument.isRepeated ? " ..." : "");
  }
  std::string names = roff(argument.names);
  for (std::size_t comma = names.find(','); comma != std::string::npos;
       comma = names.find(',', comma + 8)) {
    names.replace(comma, 1, "\\fR, \\fB");
  }
  return "\\fB" + names + "\\fR" +
         (argument.value.empty() ? "" : " \\fI" + roff(argument.value) + "\\fR");
}

std::string textOf(const Argument& argument) {
  std::string text = argument.help;
  if (!argument.words.empty()) {
    text += ". One of:";
    for (const std::string& word : argument.words) text += " " + word;
  }
  return text + (argument.isRequired && argument.isOption() ? ". Must be given." : ".");
}

std::string optionsText(const std::vector<Argument>& arguments) {
  std::string text = ".SH OPTIONS\n";
  for (const Argument& argument : arguments) text += entry(termOf(argument), textOf(argument));
  return text + entry(R"(\fB\-h\fR, \fB\-\-help\fR)", "Print help and end.");
}

std::string exitStatus(const std::vector<ExitCode>& codes) {
  std::string text = ".SH EXIT STATUS\n";
  for (const ExitCode& code : codes) {
    text += entry("\\fB" + std::to_string(code.number) + "\\fR", std::string(code.text) + ".");
  }
  return text;
}

std::string pageOf(const CommandTable& table) {
  std::string text = header(table.name, "data dictionaries of COBOL programs, and services");
  text += ".B agentservices\n[\\fIOPTIONS\\fR] \\fICOMMAND\\fR ...\n.SH DESCRIPTION\n";
  text += roff(table.summary) + "\n.SH COMMANDS\n";
  for (const CommandEntry& row : table.commands) {
    text += entry("\\fB" + roff(row.command->name()) + "\\fR",
                  std::string(row.command->summary()) + ".");
  }
  text += optionsText(table.arguments);
  text += entry(R"(\fB\-\-version\fR)", "Print the versions of tool, library and parser and end.");
  text += exitStatus(exitCodes()) + ".SH SEE ALSO\n";
  const char* between = "";
  for (const CommandEntry& row : table.commands) {
    text += between + std::string("\\fBagentservices\\-") + roff(row.command->name()) + "\\fR(1)";
    between = ",\n";
  }
  return text + "\n";
}

std::string pageOf(const CommandTable& table, const CommandEntry& row) {
  const Command& command = *row.command;
  std::string text = header(std::string(table.name) + "-" + command.name(), command.summary());
  text += std::string(".B agentservices ") + roff(command.name()) + "\n[\\fIOPTIONS\\fR]";
  for (const Argument& argument : row.arguments) {
    if (!argument.isOption()) text += " " + termOf(argument);
  }
  text += "\n" + optionsText(row.arguments);
  if (!command.examples().empty()) text += ".SH EXAMPLES\n";
  for (const Example& example : command.examples()) {
    text += entry("\\fBagentservices " + roff(example.arguments) + "\\fR", example.text);
  }
  const std::vector<ExitCode> own = command.ownExitCodes();
  return text + exitStatus(own.empty() ? exitCodes() : own) +
         ".SH SEE ALSO\n\\fBagentservices\\fR(1)\n";
}

class Manual : public Command {
 public:
  explicit Manual(const CommandTable& table)
      : Command("manual", "Write the manual pages of this tool"), table_(table) {}

  std::vector<Example> examples() const override {
    return {{"manual -o man1", "write agentservices.1 and a page for each command"}};
  }

  void declare(Arguments& arguments) override {
    arguments.requiredOption("-o,--output", folder_, "The folder to write them to");
  }

  int run(const std::optional<std::string>&) override {
    makeFolder(folder_);
    write(table_.name, pageOf(table_));
    for (const CommandEntry& row : table_.commands) {
      write(std::string(table_.name) + "-" + row.command->name(), pageOf(table_, row));
    }
    return exitFine;
  }

 private:
  void write(const std::string& page, const std::string& text) const {
    toolkit::replaceFile((std::filesystem::path(folder_) / (page + ".1")).string(), text);
  }

  const CommandTable& table_;
  std::string folder_;
};

}  // namespace

std::unique_ptr<Command> manualCommand(const CommandTable& table) {
  return std::make_unique<Manual>(table);
}

}  // namespace cli
