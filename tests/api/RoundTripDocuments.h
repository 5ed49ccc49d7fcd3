// Service documents of every shape: what the tests of writing and reading back run over.
#ifndef TESTS_API_ROUNDTRIPDOCUMENTS_H_
#define TESTS_API_ROUNDTRIPDOCUMENTS_H_

#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include "support/ServiceSamples.h"

// A document in a flavour, made up when its test runs.
struct RoundTripDocument {
  std::string label;
  std::string prefix;                         // Of its elements, with the colon.
  std::function<std::string()> source;        // In UTF-8.
  std::string (*encode)(const std::string&);  // From UTF-8 to its own encoding; null for UTF-8.

  std::string bytes() const { return encode == nullptr ? source() : encode(source()); }
};

inline void PrintTo(const RoundTripDocument& document, std::ostream* out) {
  *out << document.label;
}

std::vector<RoundTripDocument> roundTripDocuments();

// Those of them whose elements stand under a prefix.
std::vector<RoundTripDocument> prefixedDocuments();

#endif  // TESTS_API_ROUNDTRIPDOCUMENTS_H_
