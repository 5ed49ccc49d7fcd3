// How much of its limits an import has used up.
#ifndef TOOLKIT_IMPORT_IMPORTBUDGET_H_
#define TOOLKIT_IMPORT_IMPORTBUDGET_H_

#include <cstddef>
#include <string>

#include "toolkit/import/ImportLimits.h"
#include "toolkit/import/SourceReport.h"

namespace as::toolkit {

class ImportBudget {
 public:
  // How much may be used; tests get by with less.
  struct Most {
    std::size_t inclusions = importLimits::inclusions;
    std::size_t text = importLimits::copiedText;
    std::size_t comparisons = importLimits::comparisons;
  };

  ImportBudget(const Most& most, SourceReport& report) : most_(most), report_(report) {}

  // Each takes what is used from now on, and ends the import when it is too much.
  void addInclusion(const SourcePlace& place) {
    if (++inclusions_ > most_.inclusions) {
      exhaust(place, std::to_string(most_.inclusions) + " copybooks");
    }
  }
  void addText(std::size_t bytes, const SourcePlace& place) {
    text_ += bytes;
    if (text_ > most_.text) {
      exhaust(place, std::to_string(most_.text) + " bytes of copybooks");
    }
  }
  void addComparisons(std::size_t number, const SourcePlace& place) {
    comparisons_ += number;
    if (comparisons_ > most_.comparisons) {
      exhaust(place, std::to_string(most_.comparisons) + " words compared to replace some");
    }
  }

  // Whether nothing more is to be read.
  bool isExhausted() const { return exhausted_; }

 private:
  void exhaust(const SourcePlace& place, const std::string& most) {
    if (exhausted_) return;
    exhausted_ = true;
    report_.add(SourceRule::limit, place,
                "the source comes to more than " + most + "; what follows is not read");
  }

  const Most most_;
  SourceReport& report_;
  std::size_t inclusions_ = 0;
  std::size_t text_ = 0;
  std::size_t comparisons_ = 0;
  bool exhausted_ = false;
};

}  // namespace as::toolkit

#endif  // TOOLKIT_IMPORT_IMPORTBUDGET_H_
