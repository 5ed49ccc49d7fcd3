// Assertions that always fire, release builds included: a broken promise inside the library must
// not go on to corrupt a model.
#ifndef XML_ASSERTION_H_
#define XML_ASSERTION_H_

// Ends the process through the C library's assertion failure. `module` stands in for the file
// name: the message names the module whose promise was broken, wherever it was built.
[[noreturn]] void assertionFailed(const char* expression, const char* module, unsigned int line,
                                  const char* function) noexcept;

#define AS_ASSERT(expression, module)  \
  ((expression) ? static_cast<void>(0) \
                : assertionFailed(#expression, module, __LINE__, __PRETTY_FUNCTION__))

#endif  // XML_ASSERTION_H_
