// A service as languages with structures and methods have it: what everything is called, and of
// which type it is.
#ifndef TOOLKIT_GENERATE_INTERFACEPLAN_H_
#define TOOLKIT_GENERATE_INTERFACEPLAN_H_

#include <cstddef>
#include <string>
#include <vector>

#include "toolkit/generate/Generator.h"
#include "toolkit/generate/TypeTable.h"

namespace as::toolkit::gen {

struct Language {
  NameRule service;  // What stands for the service or the program.
  NameRule types;
  NameRule methods;
  NameRule members;         // Of structures, and parameters of methods.
  const TypeTable& values;  // Of what has a value of its own.
  const char* text = "";    // What holds the rest, as text.
  const char* interfacePrefix = "";
  // Whether a method answers one thing at most, so that several become members of a structure.
  bool answersOne = false;
  // Whether a member may not be called as its structure is, nor as what reads or writes another.
  bool hasProperties = false;
  // Whether a method may be called as its interface is.
  bool tellsMethodsFromTypes = false;
};

// A member of a structure, or a parameter.
struct Member {
  std::string name;
  std::string type;              // Of one occurrence.
  std::size_t structure = none;  // In ServiceModel::types.
  const Field* field = nullptr;  // Null for the value of a structure that has attributes, too.
  bool isAttribute = false;
};

struct Structure {
  std::string name;
  Spot place = "";
  std::size_t type = none;  // In ServiceModel::types; none for what a method answers.
  std::vector<Member> members;
};

struct Method {
  const Operation* operation = nullptr;
  std::string name;
  std::vector<Member> parameters;
  std::string answer;  // The structure that holds what comes out; empty for none.
};

struct InterfacePlan {
  std::string name;       // Of the service or the program.
  std::string interface;  // The same with the prefix that interfaces have.
  std::vector<Structure> structures;
  std::vector<Method> methods;
};

// Headers and faults are left out, with a warning.
InterfacePlan planOf(const Job& job, const Language& language);

// The option, names with periods between, where each is one in the language; else an error.
std::string dottedOption(const Job& job, const char* option, const NameRule& rule);

// What is known of a member, as one text for documentation: what it was called, unless its COBOL
// item is called so, too, and that item. Empty when nothing is: a structure says the rest itself.
std::string textAbout(const ServiceModel& model, const Member& member);

}  // namespace as::toolkit::gen

#endif  // TOOLKIT_GENERATE_INTERFACEPLAN_H_
