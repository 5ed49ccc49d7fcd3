// Measures the growth of the import of COBOL sources.
#include <benchmark/benchmark.h>

#include <string>

#include "Growth.h"
#include "Texts.h"
#include "as/toolkit/Toolkit.h"

namespace growth {

namespace {

std::string cobol(const std::string& entries, const std::string& statements = "") {
  return "       IDENTIFICATION DIVISION.\n       PROGRAM-ID. P.\n       DATA DIVISION.\n"
         "       WORKING-STORAGE SECTION.\n" +
         entries + "       PROCEDURE DIVISION.\n" + statements + "           GOBACK.\n";
}

struct Source {
  const char* name;
  std::string (*text)(int n);
};

// clang-format off
const Source sources[] = {
    {"items", [](int n) { return cobol(repeat(n, [](int i) { return "       01  I" + number(i) + " PIC S9(7)V99 COMP-3.\n"; })); }},
    {"fields", [](int n) { return cobol("       01  G.\n" + repeat(n, [](int i) { return "           05  I" + number(i) + " PIC X(10) OCCURS 3.\n"; })); }},
    {"conditions", [](int n) { return cobol("       01  I PIC 9(6).\n" + repeat(n, [](int i) { return "           88  C" + number(i) + " VALUE " + number(i) + ".\n"; })); }},
    {"redefinitions", [](int n) { return cobol("       01  I0 PIC 9(6).\n" + repeat(n, [](int i) { return "       01  I" + number(i + 1) + " REDEFINES I" + number(i) + " PIC X(6).\n"; })); }},
    {"comments", [](int n) { return cobol(repeat(n, [](int) { return "      * Nothing.\n"; }) + "       01  I PIC 9.\n"); }},
    {"statements", [](int n) { return cobol("       01  I PIC 9.\n", repeat(n, [](int) { return "           MOVE 1 TO I.\n"; })); }},
    {"mistakes", [](int n) { return cobol(repeat(n, [](int i) { return "       01  I" + number(i) + " PIC Q.\n"; })); }},
};
// clang-format on

bool addAll() {
  for (const Source& source : sources) {
    add(std::string("import/") + source.name, anyNumber, [&source](int n) -> Work {
      return [text = source.text(n)] {
        benchmark::DoNotOptimize(as::toolkit::importCobol(text, "P.cbl").programs.size());
      };
    });
  }
  return true;
}

[[maybe_unused]] const bool added = addAll();

}  // namespace

}  // namespace growth
