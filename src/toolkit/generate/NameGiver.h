// Gives out names by the rule of a language: those of the members of a scope at a time.
#ifndef TOOLKIT_GENERATE_NAMEGIVER_H_
#define TOOLKIT_GENERATE_NAMEGIVER_H_

#include <cstddef>
#include <string>
#include <unordered_set>
#include <vector>

#include "as/toolkit/Finding.h"
#include "as/toolkit/Generate.h"
#include "toolkit/generate/NameRule.h"
#include "toolkit/generate/Spot.h"

namespace as::toolkit::gen {

// A name that wants a place in a scope.
struct NameWish {
  std::string name;  // As the document has it.
  Spot place;        // Where findings tell of it.
  // It is made up, for a structure that has no name of its own: nothing is told of changes, and
  // names of documents go before it.
  bool isMade = false;
};

struct Field;
struct ServiceModel;

// The wishes for the names of all types, in their order: what declared ones are called, and the
// ways to the others, "quote.drivers". The model must outlive them.
std::vector<NameWish> typeWishes(const ServiceModel& model);
// Those for the names of fields that stand in something, at `place`.
std::vector<NameWish> fieldWishes(const std::vector<const Field*>& fields, const Spot& place);

// Gives out the names of scopes, tells changes and takes what the user chose into account.
class NameGiver {
 public:
  // All of them must outlive it.
  NameGiver(const NameRule& rule, const ChosenNames& chosen, Findings& findings)
      : rule_(rule), chosen_(chosen), findings_(findings) {}

  // The names of the members of one scope, in the order of the wishes. Changes are told, once for
  // each place; a chosen name that the language forbids, or two alike, is an error.
  std::vector<std::string> namesIn(const std::vector<NameWish>& wishes);

 private:
  struct Claim {
    std::size_t index = 0;  // Of a wish.
    int rank = 0;           // Chosen, as it was, changed.
  };

  std::string wantedName(const NameWish& wish, int& rank);
  void tellAllApart(const std::vector<NameWish>& wishes, const std::vector<Claim>& all,
                    std::vector<std::string>& names);
  void tellApart(const std::vector<NameWish>& wishes, std::vector<Claim> claimants,
                 std::vector<std::string>& names);
  const std::string* chosenFor(const NameWish& wish) const;
  void tellChange(const NameWish& wish, const std::string& name);

  const NameRule& rule_;
  const ChosenNames& chosen_;
  Findings& findings_;
  std::unordered_set<std::string> told_;
};

}  // namespace as::toolkit::gen

#endif  // TOOLKIT_GENERATE_NAMEGIVER_H_
