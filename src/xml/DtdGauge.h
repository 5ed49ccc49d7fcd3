// Measures what the DTD of a document or schema makes the parser do.
#ifndef XML_DTDGAUGE_H_
#define XML_DTDGAUGE_H_

#include <string>
#include <xercesc/util/XercesDefs.hpp>

#include "xml/GrammarMemory.h"

// The parser tells of a declaration when it has read it, and reads a content model in a time that
// grows with the square of its names: what it has made of one so far is looked at between two
// pieces of the text.
class DtdGauge {
 public:
  // `memory` is what the parser takes declarations from, and must outlive this.
  explicit DtdGauge(const GrammarMemory& memory) : memory_(memory) {}

  void begin();
  void end() { isInside_ = false; }

  // Why the DTD is refused after one more declaration; empty where it is not.
  std::string reasonAfterDeclaration();
  // Why it is refused where it has come to; empty where it is not.
  std::string reasonSoFar() const;

  // How many bytes to hand out together from that place in a text on: they are looked at as a
  // whole. The first ones are more than the 16,384 characters that the parser takes for an XML
  // declaration: what is cut off would be read before its encoding is known.
  static constexpr XMLSize_t pieceAt(XMLFilePos place) { return place == 0 ? 20480 : 4096; }

 private:
  const GrammarMemory& memory_;
  bool isInside_ = false;
  XMLSize_t blocksInFront_ = 0;
  XMLSize_t declarations_ = 0;
};

#endif  // XML_DTDGAUGE_H_
