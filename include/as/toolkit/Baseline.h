// What was found before and is not to be told again: a team begins with what it has.
#ifndef AS_TOOLKIT_BASELINE_H_
#define AS_TOOLKIT_BASELINE_H_

#include <cstddef>
#include <map>
#include <string>
#include <tuple>

#include "as/Export.h"
#include "as/toolkit/Finding.h"

namespace as::toolkit {

// Findings by document, rule and place, each with how often it was there: lines may move, texts may
// change. Its file names documents as they are seen from its own folder, so the two may be moved
// together, and it does not matter from where it is used. Nobody reads the documents for it.
class AS_EXPORT Baseline {
 public:
  // An empty one, to be written to `file`.
  explicit Baseline(std::string file);
  ~Baseline();
  Baseline(const Baseline&) = delete;
  Baseline& operator=(const Baseline&) = delete;

  // Adds what `file` holds. Throws RefusedDocument when that cannot be read or is no baseline.
  void read();

  // Once more, when it is there already.
  void add(const std::string& document, const Finding& finding);

  // Whether it holds the finding; once for each time that it was added.
  bool take(const std::string& document, const Finding& finding);

  // How many were added and not taken: what is not found any more.
  std::size_t left() const;

  // How many of those are of the document: what counts where not all documents were looked at.
  std::size_t left(const std::string& document);

  // Throws RefusedDocument when `file` holds something that is no baseline, and FileError (see
  // Files.h).
  void write() const;

 private:
  using Key = std::tuple<std::string, std::string, std::string>;  // Document, rule, place.

  Key keyOf(const std::string& document, const Finding& finding);
  void see(const std::string& document);

  std::string file_;
  std::map<Key, std::size_t> counts_;
  // The name of the document that was asked for last, as it is seen from the file's folder.
  std::string document_;
  std::string seen_;
};

}  // namespace as::toolkit

#endif  // AS_TOOLKIT_BASELINE_H_
