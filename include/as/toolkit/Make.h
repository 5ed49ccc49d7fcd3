// Makes a first service out of a program.
#ifndef AS_TOOLKIT_MAKE_H_
#define AS_TOOLKIT_MAKE_H_

#include <memory>
#include <string>
#include <vector>

#include "as/Export.h"
#include "as/IProgram.h"
#include "as/IService.h"
#include "as/toolkit/DocumentReader.h"
#include "as/toolkit/Finding.h"
#include "as/toolkit/Flavours.h"

namespace as::toolkit {

// What a new service is to have.
struct MakeOptions {
  std::string name;                      // Of the service; empty for that of the program.
  std::vector<std::string> entryPoints;  // The ones to make operations of; empty for all.
};

// A new service, and what there is to tell of it.
struct MadeService {
  std::unique_ptr<as::IService> service;  // Owns the program.
  int operations = 0;                     // How many it has.
  int mappings = 0;                       // How many it has.
  Findings notes;                         // What was left out, or needs a word.
};

// A new service of that flavour for `program`, which the service owns from then on: an operation
// for each entry point, a parameter for each linkage item with its direction, fields for the
// members of groups, and for each elementary item a mapping and the data type that holds it without
// loss. Once the parameters have 100,000 items together, records counted for each entry point that
// has them, the rest is left out with notes. REQUIRES: every one of options.entryPoints is an entry
// point of the program; see unknownEntryPoints(). Throws as::CASException.
AS_EXPORT MadeService makeService(std::unique_ptr<as::IProgram> program, const Flavour& flavour,
                                  const MakeOptions& options = {});

// Those of `names` that no entry point of the program has.
AS_EXPORT std::vector<std::string> unknownEntryPoints(as::IProgram& program,
                                                      const std::vector<std::string>& names);

// The same from the dictionary in a file to a service in a file, which names the dictionary as seen
// from its own folder. `output` is written when the whole service is there, and never takes the
// place of the dictionary. Throws RefusedDocument and FileError (see Files.h).
AS_EXPORT MadeService makeServiceFile(const DocumentReader& reader, const std::string& dictionary,
                                      const std::string& output, const Flavour& flavour,
                                      const MakeOptions& options = {});

}  // namespace as::toolkit

#endif  // AS_TOOLKIT_MAKE_H_
