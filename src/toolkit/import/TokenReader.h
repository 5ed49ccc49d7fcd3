// Makes words, numbers, literals and pictures of text words.
#ifndef TOOLKIT_IMPORT_TOKENREADER_H_
#define TOOLKIT_IMPORT_TOKENREADER_H_

#include <string_view>
#include <vector>

#include "toolkit/import/GluedWords.h"
#include "toolkit/import/SourceReport.h"
#include "toolkit/import/TextArena.h"
#include "toolkit/import/TextWord.h"
#include "toolkit/import/Token.h"

namespace as::toolkit {

class TokenReader : public TokenSource {
 public:
  // All must outlive it.
  TokenReader(TextWordSource& source, TextArena& arena, SourceReport& report)
      : words_(source, arena), report_(report) {}

  void read(Token& token) override;

  // Whether these were read; of the decimal point, in the program that was read last, or in one
  // around it.
  bool decimalPointIsComma() const { return decimalPointIsComma_; }
  bool hasDebuggingMode() const { return hasDebuggingMode_; }

 private:
  void readLiteral(Token& token) const;
  void readMark(Token& token);
  void readPicture(Token& token);
  bool readPart(Token& token);
  void readWord(Token& token, std::string_view text);
  std::string_view withinLimit(std::string_view text, const SourcePlace& place);
  void endUnit();
  std::size_t numberSize(std::string_view text) const;
  bool isPicture() const;

  GluedWords words_;
  SourceReport& report_;
  TextWord word_;
  // What is left of a run that is several words.
  std::string_view rest_;
  SourcePlace restPlace_;
  // What the words in front of the next one say of it.
  enum class Before : std::uint8_t { nothing, picture, decimalPoint, debugging, end };
  Before before_ = Before::nothing;
  int periodsInSourceComputer_ = 0;
  bool decimalPointIsComma_ = false;
  // What it was in front of each program, function or class that has begun and not ended: what one
  // says of the decimal point counts for those inside it, and for no other.
  std::vector<bool> inFront_;
  bool hasDebuggingMode_ = false;
};

}  // namespace as::toolkit

#endif  // TOOLKIT_IMPORT_TOKENREADER_H_
