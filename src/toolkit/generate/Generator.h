// What every kind of output is to the toolkit: what it takes, and how it is made. A new kind is a
// new source file and a row in Kinds.def.
#ifndef TOOLKIT_GENERATE_GENERATOR_H_
#define TOOLKIT_GENERATE_GENERATOR_H_

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "as/toolkit/Finding.h"
#include "as/toolkit/Generate.h"
#include "toolkit/generate/NameGiver.h"
#include "toolkit/generate/ServiceModel.h"
#include "toolkit/generate/TypeTable.h"

namespace as::toolkit::gen {

// One piece of work. What it points at outlives it.
struct Job {
  const ServiceModel& model;
  const GeneratorKind& kind;
  const GenerateOptions& options;
  Generated& out;

  // The value of an option of the kind, the first of its words unless told.
  std::string option(std::string_view name) const;
  bool isChosen(std::string_view name, std::string_view value) const {
    return option(name) == value;
  }

  // The operations with the name that option "operation" tells, all where it tells none; refuses a
  // name that there is not.
  std::vector<const Operation*> wantedOperations() const;

  NameGiver namesBy(const NameRule& rule) const { return {rule, options.names, out.findings}; }

  void add(std::string name, std::string content) const {
    out.files.push_back({std::move(name), std::move(content)});
  }
  void note(const char* rule, const std::string& place, const std::string& text) const;
  void warn(const char* rule, const std::string& place, const std::string& text,
            const std::string& advice) const;
  // Then there will be no files.
  void refuse(const char* rule, const std::string& place, const std::string& text,
              const std::string& advice) const;

  // Tells of fields that have a value and no row in the table of types, and, where conditions are
  // to be the only values, of items whose conditions are none.
  void tellValues(const TypeTable& types) const;

  // "Made by AgentServices 1.0.0 from MOTPREM-ws.xml": what every file starts with, without the
  // marks of a comment. On one line, and with nothing in it that ends a comment of any language.
  std::string banner() const;

  // The service's name, as that of a file: only letters, digits, "-" and "_" of ASCII, and "." are
  // left.
  std::string fileStem() const;
};

class Generator {
 public:
  explicit Generator(GeneratorKind kind) : kind_(std::move(kind)) {}
  virtual ~Generator();
  Generator(const Generator&) = delete;
  Generator& operator=(const Generator&) = delete;

  const GeneratorKind& kind() const { return kind_; }

  // Adds files and findings. The model is of a flavour, or a dictionary, that the kind takes.
  virtual void generate(const Job& job) const = 0;

 private:
  GeneratorKind kind_;
};

#define AS_GENERATOR(function) const Generator& function();
#include "toolkit/generate/Kinds.def"

}  // namespace as::toolkit::gen

#endif  // TOOLKIT_GENERATE_GENERATOR_H_
