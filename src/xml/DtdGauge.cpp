#include "xml/DtdGauge.h"

#include "xml/Limits.h"
#include "xml/Refusals.h"

void DtdGauge::begin() {
  isInside_ = true;
  blocksInFront_ = memory_.blocks();
}

std::string DtdGauge::reasonAfterDeclaration() {
  return refusals::ofDtd("declarations", ++declarations_, limits::dtdDeclarations);
}

std::string DtdGauge::reasonSoFar() const {
  if (!isInside_) return {};
  return refusals::ofDtd("parts of content models", memory_.blocks() - blocksInFront_,
                         limits::dtdParts);
}
