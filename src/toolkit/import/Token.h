// The words of a COBOL source as the reader of its entries sees them: COPY and REPLACE done, what
// compilers pass over left out, each with the place in the file that holds its text.
#ifndef TOOLKIT_IMPORT_TOKEN_H_
#define TOOLKIT_IMPORT_TOKEN_H_

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace as::toolkit {

// A place in a source or copybook. Values; what `file` stands for (name, and where it was copied
// from) the SourceMap tells.
struct SourcePlace {
  std::int32_t file = 0;    // An inclusion of a file: one that is copied twice counts twice.
  std::int32_t line = 0;    // From 1.
  std::int32_t column = 0;  // From 1, in characters as an editor counts them.
};

enum class TokenKind {
  word,        // Reserved or the user's, also one that starts with a digit: "01", "12AB", "FILLER".
  number,      // A numeric literal that is no word: "+1", "-30.0", "1.5E3" ("." also where the
               // source has "," by DECIMAL-POINT IS COMMA).
  literal,     // In quotes; `prefix` tells of which kind.
  picture,     // The string behind PICTURE IS.
  pseudoText,  // Never leaves the preprocessor.
  punctuation,  // "(", ")", ":", "=", "+", "&" ...; separators "," and ";" are left out.
  period,       // The separator that ends a sentence.
  end,          // Of the source; all that follow are ends, too.
};

struct Token {
  TokenKind kind = TokenKind::end;
  // UTF-8. A word as written (compare by sameWord()); of a literal its characters, doubled quotes
  // single and continuations joined, those of a hexadecimal one still as digits.
  std::string text;
  std::string prefix;  // Of a literal, upper case: "", "X", "N", "NX", "Z", "G", "U", "B", ...
  char quote = '"';    // Of a literal.
  SourcePlace place;
};

// Whether two words are one: letters of any case are, and so are those of other languages only as
// they stand.
bool sameWord(std::string_view one, std::string_view other);

// The words one after the other. Costs of a source grow with its text, whatever stands in it.
class TokenSource {
 public:
  virtual ~TokenSource() = default;

  // Makes `token` the next one; its strings are reused, so that a long source costs no allocation
  // for each word.
  virtual void read(Token& token) = 0;

  // What a directive defined under that name; nothing when none did.
  struct Definition {
    std::string text;
    bool isNumber = false;
  };
  virtual std::optional<Definition> definition(const std::string& /*name*/) const {
    return std::nullopt;
  }

  // Where copybooks that come with a system were copied, but were not found.
  virtual const std::vector<SourcePlace>& passedCopybooks() const {
    static const std::vector<SourcePlace> nothing;
    return nothing;
  }
};

}  // namespace as::toolkit

#endif  // TOOLKIT_IMPORT_TOKEN_H_
