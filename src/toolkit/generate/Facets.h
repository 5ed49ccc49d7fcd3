// What the picture, the size and the conditions of a COBOL item say of the values of a field.
#ifndef TOOLKIT_GENERATE_FACETS_H_
#define TOOLKIT_GENERATE_FACETS_H_

#include <string>
#include <vector>

#include "toolkit/generate/ServiceModel.h"

namespace as::toolkit::gen {

struct Facets {
  // Of numbers; 0 and -1 for any.
  int totalDigits = 0;
  int fractionDigits = -1;
  // The least and the greatest number as numerals; empty for any.
  std::string least;
  std::string most;
  // Of texts and bytes, in characters or bytes; -1 for any.
  int longest = -1;
  // Of texts that stand for numbers: a regular expression for the whole text, of what XML Schema
  // and ECMAScript both know; empty for any.
  std::string pattern;
  // The only values; empty for any.
  std::vector<std::string> values;
};

// Of a field that has a value. `withConditions`: the values of its item's conditions (level 88) are
// the only ones, where these are single values of the field's kind.
Facets facetsOf(const ServiceModel& model, const Field& field, bool withConditions = false);

// Whether the item has conditions of which facetsOf() makes no values, for ranges are among them or
// words like SPACES.
bool hasOtherConditions(const ServiceModel& model, const Field& field);

// A regular expression for numerals of so many digits, 0 for any number, `fraction` of them behind
// the point, -1 for any.
std::string numeralPattern(int digits, int fraction, bool isSigned);

// The greatest number of so many digits: "999.99".
std::string ninesOf(int digits, int fraction);

// What is known of a field, in lines: its item with picture and usage, its table, its conditions.
std::vector<std::string> linesAbout(const ServiceModel& model, const Field& field);

}  // namespace as::toolkit::gen

#endif  // TOOLKIT_GENERATE_FACETS_H_
