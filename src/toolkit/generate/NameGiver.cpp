#include "toolkit/generate/NameGiver.h"

#include <algorithm>
#include <string_view>
#include <unordered_map>
#include <utility>

#include "toolkit/generate/NameCharacters.h"
#include "toolkit/generate/ServiceModel.h"
#include "toolkit/text/Phrases.h"

namespace as::toolkit::gen {

namespace {

// What makes two names one.
std::string keyOf(const NameRule& rule, const std::string& name) {
  return rule.tellsCases ? name : inSmallLetters(name);
}

// Names that are the same still are told apart by their order.
void count(const NameRule& rule, std::vector<std::string>& names) {
  std::unordered_map<std::string, int> given;
  for (std::string& name : names) {
    const std::string base = name;
    while (!given.try_emplace(keyOf(rule, name), 1).second) {
      name = base + "_" + std::to_string(++given[keyOf(rule, base)]);
    }
  }
}

// A way as a name. No language has room for a long one: there are the digits of all of it in time.
std::string madeName(const std::string& way) {
  constexpr std::size_t most = 1000;
  if (way.size() <= most) return way;
  return way.substr(0, most) + digitsOfText(way);
}

// Whether no two of them are one: this is nearly always so, and is soon found.
bool areApart(const NameRule& rule, const std::vector<std::string>& names) {
  std::vector<std::string> small;
  if (!rule.tellsCases) {
    small.reserve(names.size());
    for (const std::string& name : names) small.push_back(keyOf(rule, name));
  }
  const std::vector<std::string>& of = rule.tellsCases ? names : small;
  std::vector<std::string_view> keys(of.begin(), of.end());
  std::sort(keys.begin(), keys.end());
  return std::adjacent_find(keys.begin(), keys.end()) == keys.end();
}

}  // namespace

std::vector<NameWish> typeWishes(const ServiceModel& model) {
  std::vector<NameWish> wishes;
  wishes.reserve(model.types.size());
  for (const Type& type : model.types) {
    wishes.push_back({type.isDeclared ? type.name : madeName(model.pathOf(type)), Spot(model, type),
                      !type.isDeclared});
  }
  return wishes;
}

std::vector<NameWish> fieldWishes(const std::vector<const Field*>& fields, const Spot& place) {
  std::vector<NameWish> wishes;
  wishes.reserve(fields.size());
  for (const Field* const field : fields) wishes.push_back({field->name, place.of(field->name)});
  return wishes;
}

const std::string* NameGiver::chosenFor(const NameWish& wish) const {
  if (chosen_.empty()) return nullptr;
  auto found = chosen_.find(wish.place.text());
  if (found == chosen_.end()) found = chosen_.find(wish.name);
  return found == chosen_.end() ? nullptr : &found->second;
}

void NameGiver::tellChange(const NameWish& wish, const std::string& name) {
  if (wish.isMade) return;
  std::string place = wish.place.text();
  if (!told_.insert(place).second) return;
  findings_.push_back({"changed-name", Severity::note, std::move(place),
                       quote(wish.name) + " is no name in " + rule_.language +
                           ", or taken: " + quote(name) + " stands for it",
                       ""});
}

std::string NameGiver::wantedName(const NameWish& wish, int& rank) {
  const std::string* const chosen = chosenFor(wish);
  if (chosen == nullptr) {
    std::string name = legalName(rule_, wish.name);
    rank = name == wish.name && !wish.isMade ? 1 : 2;
    return name;
  }
  rank = 0;
  if (!isLegal(rule_, *chosen)) {
    findings_.push_back({"forbidden-name", Severity::error, wish.place.text(),
                         quote(*chosen) + " is no name in " + rule_.language,
                         "choose another one"});
  }
  return *chosen;
}

// The first of them keeps the name.
void NameGiver::tellApart(const std::vector<NameWish>& wishes, std::vector<Claim> claimants,
                          std::vector<std::string>& names) {
  std::stable_sort(claimants.begin(), claimants.end(), [&](const Claim& left, const Claim& right) {
    return std::pair(left.rank, wishes[left.index].name) <
           std::pair(right.rank, wishes[right.index].name);
  });
  for (std::size_t i = 1; i < claimants.size(); ++i) {
    const std::size_t index = claimants[i].index;
    if (claimants[i].rank == 0) {
      findings_.push_back({"forbidden-name", Severity::error, wishes[index].place.text(),
                           quote(names[index]) + " is chosen for another one, too",
                           "choose another one"});
      continue;
    }
    const bool isSameWord = wishes[index].name == wishes[claimants.front().index].name;
    names[index] +=
        "_" + digitsOfText(isSameWord ? wishes[index].place.text() : wishes[index].name);
  }
}

// Of names that are one, one keeps it.
void NameGiver::tellAllApart(const std::vector<NameWish>& wishes, const std::vector<Claim>& all,
                             std::vector<std::string>& names) {
  std::unordered_map<std::string, std::vector<Claim>> claims;
  claims.reserve(wishes.size());
  for (const Claim& claim : all) claims[keyOf(rule_, names[claim.index])].push_back(claim);
  for (std::size_t first = 0; first < wishes.size(); ++first) {
    const auto found = claims.find(keyOf(rule_, names[first]));
    // Each group once, in the order of its first member.
    if (found == claims.end() || found->second.size() == 1) continue;
    std::vector<Claim> claimants = std::move(found->second);
    claims.erase(found);
    tellApart(wishes, std::move(claimants), names);
  }
  count(rule_, names);
}

std::vector<std::string> NameGiver::namesIn(const std::vector<NameWish>& wishes) {
  std::vector<std::string> names(wishes.size());
  std::vector<Claim> claims(wishes.size());
  for (std::size_t i = 0; i < wishes.size(); ++i) {
    claims[i].index = i;
    names[i] = wantedName(wishes[i], claims[i].rank);
  }
  if (!areApart(rule_, names)) tellAllApart(wishes, claims, names);
  for (std::size_t i = 0; i < wishes.size(); ++i) {
    if (names[i] != wishes[i].name && chosenFor(wishes[i]) == nullptr) {
      tellChange(wishes[i], names[i]);
    }
  }
  return names;
}

}  // namespace as::toolkit::gen
