// The names that compiler directives define, and the conditions that ask for them.
#ifndef TOOLKIT_IMPORT_DEFINITIONS_H_
#define TOOLKIT_IMPORT_DEFINITIONS_H_

#include <functional>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <unordered_map>

#include "toolkit/import/DirectiveText.h"

namespace as::toolkit {

// Thrown for what cannot be understood; what() is told as a finding.
class DirectiveError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

struct DirectiveValue {
  bool isNumber = false;
  double number = 0;
  std::string text;

  static DirectiveValue of(const DirectivePart& part);
};

// Below, equal to or above 0; numbers by their values, all else by its text.
int compare(const DirectiveValue& one, const DirectiveValue& other);

class Definitions {
 public:
  // Makes `name` mean that; throws DirectiveError for one that means something else already, unless
  // `overrides`, and for one that is too long.
  void define(std::string_view name, const DirectiveValue& value, bool overrides);
  void remove(std::string_view name);

  // Null when it is not defined.
  const DirectiveValue* find(std::string_view name) const;

  // What the next part of `text` means; nothing for a name that is not defined, which `undefined`
  // is told of. Throws DirectiveError for what can be no operand.
  using Undefined = std::function<void(std::string_view name)>;
  std::optional<DirectiveValue> valueOf(DirectiveText& text, const Undefined& undefined) const;

  // The same of what DEFINE gives a name: also sums and products of numbers with blanks between, in
  // whole numbers.
  std::optional<DirectiveValue> resultOf(DirectiveText& text, const Undefined& undefined) const;

  // Reads a condition: names that are [NOT] DEFINED (or SET), comparisons, NOT, AND, OR and
  // parentheses; a comparison with what is not defined is false. Throws DirectiveError.
  bool isTrue(DirectiveText& text, const Undefined& undefined) const;

 private:
  std::optional<DirectiveValue> sumBehind(std::optional<DirectiveValue> first, DirectiveText& text,
                                          const Undefined& undefined) const;
  bool simpleCondition(DirectiveText& text, const Undefined& undefined) const;

  std::unordered_map<std::string, DirectiveValue> values_;
};

}  // namespace as::toolkit

#endif  // TOOLKIT_IMPORT_DEFINITIONS_H_
