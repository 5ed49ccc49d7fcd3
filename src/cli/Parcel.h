// Values as bytes, for the way from one process to another.
#ifndef CLI_PARCEL_H_
#define CLI_PARCEL_H_

#include <cstddef>
#include <string>
#include <utility>

#include "as/toolkit/Diff.h"
#include "as/toolkit/DocumentReader.h"
#include "as/toolkit/Finding.h"
#include "as/toolkit/FindingsWriter.h"

namespace cli {

class Parcel {
 public:
  void put(std::size_t number);
  void put(const std::string& text);
  void put(const as::toolkit::Finding& finding);
  void put(const as::toolkit::FileFinding& finding);
  void put(const as::toolkit::Refusal& refusal);
  void put(const as::toolkit::Diff& diff);

  std::string take() { return std::move(bytes_); }

 private:
  std::string bytes_;
};

// What was put comes out in the same order. What is not there is 0 and empty.
class OpenedParcel {
 public:
  explicit OpenedParcel(const std::string& bytes) : bytes_(bytes) {}

  std::size_t number();
  std::string text();
  as::toolkit::Finding finding();
  as::toolkit::FileFinding fileFinding();
  as::toolkit::Refusal refusal();
  as::toolkit::Diff diff();

 private:
  const std::string& bytes_;
  std::size_t at_ = 0;
};

}  // namespace cli

#endif  // CLI_PARCEL_H_
