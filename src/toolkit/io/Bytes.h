// Reads whole files.
#ifndef TOOLKIT_IO_BYTES_H_
#define TOOLKIT_IO_BYTES_H_

#include <string>

namespace as::toolkit {

// What a descriptor gives to its end. False, with errno, when that fails or is more than 2^30
// bytes.
bool readAll(int descriptor, std::string& bytes);

// What a regular file holds. False for whatever else it is, and when it cannot be read.
bool readRegularFile(const std::string& file, std::string& bytes);

}  // namespace as::toolkit

#endif  // TOOLKIT_IO_BYTES_H_
