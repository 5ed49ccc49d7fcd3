#include "xml/Assertion.h"

// <cassert> declares it only where NDEBUG is not defined; the C library has it always.
extern "C" [[noreturn]] void
__assert_fail(  // NOLINT(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp)
    const char* assertion, const char* file, unsigned int line, const char* function) noexcept;

void assertionFailed(const char* expression, const char* module, unsigned int line,
                     const char* function) noexcept {
  __assert_fail(expression, module, line, function);
}
