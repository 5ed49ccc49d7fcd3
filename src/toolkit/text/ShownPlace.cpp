#include "toolkit/text/ShownPlace.h"

#include <algorithm>

#include "toolkit/text/Utf8Text.h"

namespace as::toolkit {

namespace {

constexpr std::size_t half = longestPlace / 2;

// The first bytes of the parts, up to the half: whole characters.
std::string startOf(const std::vector<std::string_view>& parts) {
  std::string start;
  for (const std::string_view part : parts) {
    const std::size_t room = half - start.size();
    if (part.size() > room) return start.append(beginningOf(part, room));
    start += part;
  }
  return start;
}

// The last ones.
std::string endOf(const std::vector<std::string_view>& parts) {
  std::vector<std::string_view> taken;  // From the last one on.
  std::size_t room = half;
  for (auto part = parts.rbegin(); part != parts.rend() && room > 0; ++part) {
    std::size_t from = part->size() - std::min(part->size(), room);
    while (from > 0 && from < part->size() && isWithinCharacter((*part)[from])) ++from;
    taken.push_back(part->substr(from));
    if (from > 0) break;
    room -= part->size();
  }
  std::reverse(taken.begin(), taken.end());
  std::string end;
  for (const std::string_view part : taken) end += part;
  return end;
}

}  // namespace

std::string shownPlace(const std::vector<std::string_view>& parts) {
  std::size_t size = 0;
  for (const std::string_view part : parts) size += part.size();
  if (size > longestPlace) return startOf(parts) + "..." + endOf(parts);
  std::string place;
  place.reserve(size);
  for (const std::string_view part : parts) place += part;
  return place;
}

std::string shownPlace(std::initializer_list<std::string_view> parts) {
  return shownPlace(std::vector<std::string_view>(parts));
}

std::string shownPath(const std::vector<std::string_view>& names) {
  std::vector<std::string_view> parts;
  parts.reserve(names.size() * 2);
  for (const std::string_view name : names) {
    if (!parts.empty()) parts.emplace_back(".");
    parts.push_back(name);
  }
  return shownPlace(parts);
}

std::string shownPath(const std::vector<std::string>& names) {
  return shownPath(std::vector<std::string_view>(names.begin(), names.end()));
}

}  // namespace as::toolkit
