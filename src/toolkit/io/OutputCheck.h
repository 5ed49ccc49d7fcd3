// Keeps what is made from taking the place of what it is made of.
#ifndef TOOLKIT_IO_OUTPUTCHECK_H_
#define TOOLKIT_IO_OUTPUTCHECK_H_

#include <string>

namespace as::toolkit {

// Throws RefusedDocument when `output` is the file `input`, whatever it is called. `what` tells
// what that is: "dictionary".
void checkOutput(const std::string& output, const std::string& input, const char* what);

}  // namespace as::toolkit

#endif  // TOOLKIT_IO_OUTPUTCHECK_H_
