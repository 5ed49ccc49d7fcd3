// The commands of the tool, apart from the command line that calls them.
#ifndef CLI_COMMANDS_H_
#define CLI_COMMANDS_H_

#include <optional>
#include <string>
#include <vector>

// What the tool's process answers.
inline constexpr int exitFine = 0;
inline constexpr int exitRefused =
    1;  // A document was refused or has errors, or the output failed.
inline constexpr int exitUsage = 2;

enum class ShowFormat { tree, json };

struct ShowOptions {
  ShowFormat format = ShowFormat::tree;
  bool withProgram = false;  // Of a service: with the program that it names.
};

// Every command returns its exit code. Results go to standard output, what is wrong to standard
// error. `schemas` is the schema directory that the user named, if any.

// Prints the document in `file`.
int runShow(const std::string& file, const ShowOptions& options,
            const std::optional<std::string>& schemas);

// Says of each file whether it is good; goes on behind a bad one.
int runValidate(const std::vector<std::string>& files, const std::optional<std::string>& schemas);

// Prints what is wrong with the service in `file`, seen with the data dictionary in `dictionary` or
// else with the one that it names. Errors make it refused.
int runLint(const std::string& file, const std::optional<std::string>& dictionary,
            const std::optional<std::string>& schemas);

struct NewOptions {
  std::string flavour;                   // One of flavourWords().
  std::string name;                      // Of the service; empty for that of the program.
  std::vector<std::string> entryPoints;  // Empty for all.
};

// Makes a first service for the program of the data dictionary in `dictionary`.
int runNew(const std::string& dictionary, const std::string& service, const NewOptions& options,
           const std::optional<std::string>& schemas);

// Carries the service in `file` over to another flavour, one of flavourWords(), into `output`.
int runConvert(const std::string& file, const std::string& output, const std::string& flavour,
               const std::optional<std::string>& schemas);

#endif  // CLI_COMMANDS_H_
