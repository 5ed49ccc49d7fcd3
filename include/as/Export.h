// Marks what the shared library shows to its clients. Everything else in it is hidden.
#ifndef AS_EXPORT_H_
#define AS_EXPORT_H_

#if defined(__GNUC__)
#define AS_EXPORT __attribute__((visibility("default")))
#else
#define AS_EXPORT
#endif

#endif  // AS_EXPORT_H_
