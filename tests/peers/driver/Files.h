// The files that are tried.
#ifndef TESTS_PEERS_DRIVER_FILES_H_
#define TESTS_PEERS_DRIVER_FILES_H_

#include <filesystem>
#include <string>
#include <vector>

namespace peers {

// The files at and below `roots`, in order: those whose names match one of `patterns`, or, when
// there are none, those that are XML by their names or by their first bytes.
std::vector<std::filesystem::path> filesBelow(const std::vector<std::filesystem::path>& roots,
                                              const std::vector<std::string>& patterns);

}  // namespace peers

#endif  // TESTS_PEERS_DRIVER_FILES_H_
