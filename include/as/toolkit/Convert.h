// Carries a service over to another flavour.
#ifndef AS_TOOLKIT_CONVERT_H_
#define AS_TOOLKIT_CONVERT_H_

#include <memory>
#include <string>

#include "as/Export.h"
#include "as/IProgram.h"
#include "as/IService.h"
#include "as/toolkit/DocumentReader.h"
#include "as/toolkit/Finding.h"
#include "as/toolkit/Flavours.h"

namespace as::toolkit {

// What became of a service that was converted.
struct ConvertedService {
  std::unique_ptr<as::IService> service;  // Without a program.
  const Flavour* from = nullptr;          // What it was; never null.
  Findings notes;                         // What has no equivalent in the new flavour.
};

// The document of `service`, which messages call `file`, made one of flavour `to`: in its
// namespace, with its data types, without what it cannot hold; everything else, comments and type
// definitions too, stays. Where no data type of the new flavour holds as much as the old one, the
// items that are mapped decide: `program` is where they are found; null when it is unknown.
// `service` keeps what it says. Throws RefusedDocument.
AS_EXPORT ConvertedService convertService(const DocumentReader& reader, as::IService& service,
                                          const std::string& file, const Flavour& to,
                                          as::IProgram* program = nullptr);

// The same from a document to a file; the program is that of the dictionary that the service names,
// if that can be read. `output` is written when the whole service is there; it may be the
// document's file, but never takes the place of the dictionary. Throws RefusedDocument and
// FileError (see Files.h).
AS_EXPORT ConvertedService convertServiceFile(const DocumentReader& reader,
                                              const DocumentSource& source,
                                              const std::string& output, const Flavour& to);
AS_EXPORT ConvertedService convertServiceFile(const DocumentReader& reader, const std::string& file,
                                              const std::string& output, const Flavour& to);

}  // namespace as::toolkit

#endif  // AS_TOOLKIT_CONVERT_H_
