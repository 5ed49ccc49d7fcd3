// The documents whose uses are measured, each made for a number of something.
#ifndef BENCH_GROWTH_DOCUMENTS_H_
#define BENCH_GROWTH_DOCUMENTS_H_

#include <span>
#include <string>

#include "Growth.h"

namespace growth {

// A document, made for n. Deep ones nest n levels, so n is at most `most`.
struct Document {
  const char* name;
  std::string (*program)(int n);
  std::string (*service)(int n);  // Null: the program by itself.
  int most = anyNumber;
};

// As deep as the parser lets documents be, less what stands around it, a quarter of it.
constexpr int deepest = (2048 - 16) / 4;

std::span<const Document> allDocuments();

// The program with n items at the top, all of them handed over to entry point E.
std::string linkageProgram(int n);

}  // namespace growth

#endif  // BENCH_GROWTH_DOCUMENTS_H_
