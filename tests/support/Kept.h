// Texts that are kept in tests/golden: what comes out is compared with them, and a change is to be
// seen. With AS_RENEW_GOLDEN=1 in the environment they are kept anew.
#ifndef TESTS_SUPPORT_KEPT_H_
#define TESTS_SUPPORT_KEPT_H_

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "support/TempDirectory.h"

namespace test {

// `name` is that of a file below tests/golden.
inline void expectKept(const std::string& name, const std::string& text) {
  const std::filesystem::path kept = std::filesystem::path(AS_GOLDEN_DIR) / name;
  if (std::getenv("AS_RENEW_GOLDEN") != nullptr) {
    std::filesystem::create_directories(kept.parent_path());
    std::ofstream(kept, std::ios::binary) << text;
  }
  EXPECT_EQ(text, contentOf(kept)) << kept;
}

}  // namespace test

#endif  // TESTS_SUPPORT_KEPT_H_
