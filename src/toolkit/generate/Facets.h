// What the picture and the size of a COBOL item say of the values of a field. FacetLookup adds what
// its conditions say.
#ifndef TOOLKIT_GENERATE_FACETS_H_
#define TOOLKIT_GENERATE_FACETS_H_

#include <memory>
#include <string>
#include <string_view>
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
  // The only values; null or empty for any. There may be many, and many fields have the same.
  std::shared_ptr<const std::vector<std::string>> onlyValues;

  bool hasValues() const { return onlyValues != nullptr && !onlyValues->empty(); }
};

// Of a field that has a value. Values of conditions are not looked at.
Facets facetsOf(const ServiceModel& model, const Field& field);

// Whether it holds integers or decimal numbers.
bool isExact(const Capacity& capacity);

// Limit numbers to so many bits, 64 at most, or to so many digits. Numbers that no item has limit
// nothing.
void limitBits(int bits, bool isSigned, Facets& facets);
void limitDigits(int digits, int scale, bool isSigned, Facets& facets);

// Whether the first of two numerals is the greater one. Neither has a sign, nor zeros at its ends.
bool isMore(std::string_view left, std::string_view right);

// A regular expression for numerals of so many digits, 0 for any number, `fraction` of them behind
// the point, -1 for any.
std::string numeralPattern(int digits, int fraction, bool isSigned);

// What is known of a field, in lines: its item with picture and usage, its table, its conditions.
std::vector<std::string> linesAbout(const ServiceModel& model, const Field& field);

// The last of those: "NAME: 'A', 'C' to 'E'". "..." stands for what goes beyond some thousand
// bytes.
std::vector<std::string> linesAboutConditions(const ServiceModel& model, const Field& field);

}  // namespace as::toolkit::gen

#endif  // TOOLKIT_GENERATE_FACETS_H_
