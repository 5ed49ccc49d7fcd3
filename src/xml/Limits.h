// The limits of a parse as constants.
#ifndef XML_LIMITS_H_
#define XML_LIMITS_H_

#include <xercesc/util/XercesDefs.hpp>

namespace limits {

#define AS_LIMIT(name, number, counts, reason) inline constexpr XMLSize_t name = number;
#include "xml/Limits.def"

struct Limit {
  const char* name;
  XMLSize_t number;
  const char* counts;
  const char* reason;
};

// All of them, in the order of the table.
inline constexpr Limit all[] = {
#define AS_LIMIT(name, number, counts, reason) {#name, number, counts, reason},
#include "xml/Limits.def"
};

}  // namespace limits

#endif  // XML_LIMITS_H_
