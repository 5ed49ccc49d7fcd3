// A look at the schemas that a document brings before the parser uses them.
#ifndef XML_SCHEMAINSPECTION_H_
#define XML_SCHEMAINSPECTION_H_

#include <map>
#include <optional>
#include <string>
#include <tuple>
#include <utility>
#include <vector>
#include <xercesc/util/XercesDefs.hpp>

#include "as/CASParseException.h"

// The parser reads schemas with parsers of its own, to which nobody can give the limits of
// documents, and what it makes of a few lines of a schema may take any time or stack. So each
// schema is read here first: what is refused in the DTD of a document is refused in it, and so is
// what goes beyond the limits for schemas. Whatever else may be wrong is left to the parser.
class SchemaInspection {
 public:
  // The first thing in the schema that is refused, and where; none when there is nothing. What
  // earlier ones held counts towards the limits. `name` is what messages call it.
  std::optional<as::CASParseException> refusalOf(const std::string& schema, const XMLCh* name);

  // The name of a group. One without a namespace may be of any: a schema that has none takes that
  // of those who include it.
  struct GroupName {
    std::basic_string<XMLCh> local;
    std::basic_string<XMLCh> uri;

    bool operator==(const GroupName& other) const {
      return local == other.local && uri == other.uri;
    }
    bool operator<(const GroupName& other) const {
      return std::tie(local, uri) < std::tie(other.local, other.uri);
    }
  };

  // The elements of a group, or of all that stands in none.
  struct Elements {
    XMLSize_t own = 0;
    // The groups that it refers to, and how many times each is laid out in it.
    std::vector<std::pair<GroupName, XMLSize_t>> groups;
  };

  // How many of each the schemas hold, so far.
  struct Counts {
    XMLSize_t characters = 0;
    XMLSize_t elementsRead = 0;
    // By the names of the groups; the rest under an empty one.
    std::map<GroupName, Elements> elements;
    XMLSize_t unionMembers = 0;
    XMLSize_t constraints = 0;
    XMLSize_t values = 0;
    XMLSize_t substitutes = 0;
  };

 private:
  Counts counts_;
};

#endif  // XML_SCHEMAINSPECTION_H_
