// Makes a first service out of a program.
#ifndef TOOLKIT_MAKE_SERVICEMAKER_H_
#define TOOLKIT_MAKE_SERVICEMAKER_H_

#include <string>
#include <vector>

class Findings;
class Flavour;

namespace as {
class IService;
}

// What was put into a service.
struct ServiceSize {
  int operations = 0;
  int mappings = 0;
};

// Adds an operation for each entry point of the service's program, or for those of the names given:
// a parameter for each linkage item, fields for the members of groups, a mapping and a data type
// for each elementary item that a data type holds. What is left out, or needs a word, is noted.
ServiceSize fillService(as::IService& service, const Flavour& flavour,
                        const std::vector<std::string>& entryPoints, Findings& notes);

#endif  // TOOLKIT_MAKE_SERVICEMAKER_H_
