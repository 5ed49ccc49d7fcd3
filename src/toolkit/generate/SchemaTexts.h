// The texts of the XML Schemas of a service, one for each namespace, with what each of them
// imports.
#ifndef TOOLKIT_GENERATE_SCHEMATEXTS_H_
#define TOOLKIT_GENERATE_SCHEMATEXTS_H_

#include <map>
#include <set>
#include <string>
#include <vector>

#include "toolkit/generate/Generator.h"
#include "toolkit/generate/SchemaSet.h"
#include "toolkit/generate/TextWriter.h"

namespace as::toolkit::gen {

// Where the schemas are to stand.
enum class SchemaPlace {
  inFiles,  // Each a document, which says in which files the others are.
  inWsdl,   // Elements in the types of a WSDL document.
};

class SchemaTexts {
 public:
  // What the schema of a namespace holds.
  struct Part {
    TextWriter text;
    std::set<std::string> imports;
  };
  struct Schema {
    std::string uri;
    std::string file;  // Its name, by itself.
    std::string text;
  };

  // Both must outlive it.
  SchemaTexts(const Job& job, SchemaSet& set, SchemaPlace place);

  Part& partOf(const std::string& uri);

  // "tns:Claim", and the part's schema imports the namespace.
  std::string qualified(Part& part, const std::string& uri, const std::string& name);

  // The schemas, which are taken away: the target's first. In files, it imports all others; else
  // those that hold nothing are left out.
  std::vector<Schema> take();

 private:
  std::string startOf(const std::string& uri, const Part& part) const;
  std::string fileOf(const std::string& uri) const;

  const Job& job_;
  SchemaSet& set_;
  SchemaPlace place_;
  std::map<std::string, Part> parts_;
};

}  // namespace as::toolkit::gen

#endif  // TOOLKIT_GENERATE_SCHEMATEXTS_H_
