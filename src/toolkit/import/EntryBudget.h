// How much of its limits the entries of a source have used up: what a few lines may have repeated,
// or looked at again.
#ifndef TOOLKIT_IMPORT_ENTRYBUDGET_H_
#define TOOLKIT_IMPORT_ENTRYBUDGET_H_

#include <cstddef>
#include <string>

#include "toolkit/import/EntryProblems.h"
#include "toolkit/import/ImportLimits.h"

namespace as::toolkit {

class EntryBudget {
 public:
  // How much may be used; tests get by with less.
  struct Most {
    std::size_t copies = importLimits::repeatedEntries;
    std::size_t text = importLimits::repeatedText;
    std::size_t searches = importLimits::openSearches;
  };

  EntryBudget(const Most& most, EntryProblems& problems) : most_(most), problems_(problems) {}

  // Each takes what is about to be used. False, after an error was told, when it is too much: then
  // it is not to be used.
  bool addCopies(std::size_t number, const SourcePlace& place) {
    return add(copies_, number, most_.copies, place,
               " entries, conditions and values are repeated by TYPE and LIKE");
  }
  bool addText(std::size_t bytes, const SourcePlace& place) {
    return add(text_, bytes, most_.text, place, " bytes of names and values are repeated");
  }
  bool addSearches(std::size_t entries, const SourcePlace& place) {
    return add(searches_, entries, most_.searches, place,
               " entries are looked at for LENGTH OF and LIKE in records that are not ended");
  }

 private:
  bool add(std::size_t& used, std::size_t more, std::size_t most, const SourcePlace& place,
           const char* what) {
    used += more;
    if (used <= most) return true;
    problems_.tell(EntryRule::tooMuch, place, "more than " + std::to_string(most) + what);
    return false;
  }

  const Most most_;
  EntryProblems& problems_;
  std::size_t copies_ = 0;
  std::size_t text_ = 0;
  std::size_t searches_ = 0;
};

}  // namespace as::toolkit

#endif  // TOOLKIT_IMPORT_ENTRYBUDGET_H_
