// C++17 that g++ and clang++ would have much to say about, were they asked.
#if __cplusplus >= 202002L
#error "the standard of the embedding project is its own"
#endif

#include "as/AgentServices.h"
#include "as/toolkit/Toolkit.h"

int narrowed(long wide, unsigned int unsignedOne) {
  int unused;
  int wide2 = wide;
  {
    int wide2 = 2;
    unsignedOne += wide2;
  }
  switch (as::toolkit::Severity::error) {
    case as::toolkit::Severity::note:
      return 1;
  }
  if (wide2 < unsignedOne) return unsignedOne;
  return (char*)"" == nullptr;
}

int main(int argc, char** argv) { return narrowed(argc, -1); }
