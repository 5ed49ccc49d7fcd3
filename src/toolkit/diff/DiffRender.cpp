#include <algorithm>
#include <array>
#include <cstdlib>
#include <map>
#include <ostream>

#include "as/toolkit/Diff.h"
#include "as/toolkit/Text.h"
#include "toolkit/render/JsonWriter.h"

namespace as::toolkit {

namespace {

const char* const kindMissing = "changed";

// What follows from a change, counted.
struct Followers {
  std::size_t moved = 0;
  std::size_t resized = 0;
  int leastMove = 0;
  int mostMove = 0;
  int leastGrowth = 0;
  int mostGrowth = 0;
};

int differenceOf(const Change& change) {
  return static_cast<int>(std::strtol(change.newValue.c_str(), nullptr, 10) -
                          std::strtol(change.oldValue.c_str(), nullptr, 10));
}

void note(std::size_t& count, int& least, int& most, int difference) {
  least = count == 0 ? difference : std::min(least, difference);
  most = count == 0 ? difference : std::max(most, difference);
  ++count;
}

// "2 bytes", "2 to 4 bytes"
std::string bytesText(int least, int most) {
  int from = std::abs(least);
  int to = std::abs(most);
  if (from > to) std::swap(from, to);
  if (from == to) return count(static_cast<std::size_t>(from), "byte");
  return std::to_string(from) + " to " + count(static_cast<std::size_t>(to), "byte");
}

std::string textOf(const Followers& followers) {
  std::string text;
  if (followers.moved > 0) {
    const bool isOne = followers.moved == 1;
    text = count(followers.moved, "item") + " behind it " + (isOne ? "moves" : "move") + " by " +
           bytesText(followers.leastMove, followers.mostMove);
    if (followers.mostMove < 0) text += " to the front";
  }
  if (followers.resized > 0) {
    if (!text.empty()) text += "; ";
    const bool isOne = followers.resized == 1;
    text += count(followers.resized, "item") + (isOne ? " becomes " : " become ") +
            bytesText(followers.leastGrowth, followers.mostGrowth) +
            (followers.mostGrowth < 0    ? " shorter"
             : followers.leastGrowth < 0 ? " longer or shorter"
                                         : " longer");
  }
  return text;
}

class DiffPrinter {
 public:
  DiffPrinter(std::ostream& out, const Diff& diff) : out_(out), diff_(diff) {}

  void print() {
    for (const Change& change : diff_.changes) {
      if (isMovedMapping(change)) ++movedMappings_[change.service];
      if (!isFollower(change)) continue;
      Followers& followers = followers_[*change.cause];
      if (change.kind == "item-moved") {
        note(followers.moved, followers.leastMove, followers.mostMove, differenceOf(change));
      } else {
        note(followers.resized, followers.leastGrowth, followers.mostGrowth, differenceOf(change));
      }
    }
    std::string service;
    for (std::size_t i = 0; i < diff_.changes.size(); ++i) {
      const Change& change = diff_.changes[i];
      if (isFollower(change)) continue;
      if (change.service != service) {
        service = change.service;
        out_ << "\n" << printable(service) << "\n";
        printMovedMappings(service);
      }
      if (isMovedMapping(change)) continue;
      print(change, i);
    }
    printSummary();
  }

 private:
  // Whether it is summed up with its cause.
  static bool isFollower(const Change& change) {
    return change.cause && change.service.empty() &&
           (change.kind == "item-moved" || change.kind == "size-changed");
  }

  static bool isMovedMapping(const Change& change) { return change.kind == "mapping-moved"; }

  void printMovedMappings(const std::string& service) {
    const std::size_t moved = movedMappings_[service];
    if (moved == 0) return;
    out_ << "          " << count(moved, "mapped item")
         << " moved; they are found by their names  [mapping-moved]\n";
  }

  void print(const Change& change, std::size_t number) {
    out_ << (!change.breaks     ? "          "
             : change.isAllowed ? "allowed   "
                                : "BREAKS    ")
         << printable(as::toolkit::textOf(change)) << "  [" << change.kind << "]\n";
    const auto found = followers_.find(number);
    if (found != followers_.end()) out_ << "            " << textOf(found->second) << "\n";
  }

  void printSummary() {
    std::size_t own = 0;
    std::size_t breaking = 0;
    std::size_t allowed = 0;
    for (const Change& change : diff_.changes) {
      if (isFollower(change) || isMovedMapping(change)) continue;
      ++own;
      if (change.breaks) ++(change.isAllowed ? allowed : breaking);
    }
    if (diff_.changes.empty()) {
      out_ << "no changes\n";
      return;
    }
    out_ << "\n" << count(own, "change") << ", " << breaking << " of them breaking callers";
    if (allowed > 0) out_ << ", " << allowed << " allowed";
    const std::size_t following = diff_.changes.size() - own;
    if (following > 0) {
      out_ << "; " << count(following, "other") << (following == 1 ? " follows" : " follow");
    }
    out_ << "\n";
  }

  std::ostream& out_;
  const Diff& diff_;
  std::map<std::size_t, Followers> followers_;
  std::map<std::string, std::size_t> movedMappings_;  // Of each service.
};

// Whether the old value of a change of this kind is a name that its place tells already.
bool isPlaceEnough(const Change& change) {
  return change.oldValue.empty() && change.newValue.empty();
}

}  // namespace

std::string textOf(const Change& change) {
  const ChangeKind* const kind = findChangeKind(change.kind);
  std::string text = change.oldPlace.empty() ? change.newPlace : change.oldPlace;
  if (!text.empty()) text += ": ";
  text += kind == nullptr ? kindMissing : kind->text;
  if (isPlaceEnough(change)) return text;
  if (change.oldPlace.empty()) return text + ", " + change.newValue;
  if (change.newPlace.empty())
    return change.oldValue.empty() ? text : text + ", " + change.oldValue;
  if (change.oldValue.empty()) return text + ", " + change.newValue;
  if (change.kind == "mapping-changed") {
    return change.oldPlace + ": mapped item " + change.oldValue + " to " + change.newValue;
  }
  if (change.newValue.empty()) return text + ", " + change.oldValue;
  if (change.kind == "item-moved" || change.kind == "item-reordered" ||
      change.kind == "mapping-moved") {
    return text + " from offset " + change.oldValue + " to " + change.newValue;
  }
  return text + " from " + change.oldValue + " to " + change.newValue;
}

void renderText(std::ostream& out, const Diff& diff) { DiffPrinter(out, diff).print(); }

void renderText(std::ostream& out, const std::vector<DocumentDiff>& diffs) {
  std::size_t changed = 0;
  std::size_t breaking = 0;
  for (const DocumentDiff& document : diffs) {
    if (document.diff.changes.empty()) continue;
    ++changed;
    if (breaksCallers(document.diff)) ++breaking;
    out << printable(document.name) << "\n";
    renderText(out, document.diff);
    out << "\n";
  }
  out << count(diffs.size(), "document") << ", " << changed << " of them changed, " << breaking
      << " breaking callers\n";
}

namespace {

// Into an object that was begun.
void writeDiff(JsonWriter& writer, const Diff& diff) {
  writer.member("of", diff.isOfServices ? "services" : "dictionaries");
  writer.member("breaks", breaksCallers(diff));
  writer.key("changes");
  writer.beginArray();
  for (const Change& change : diff.changes) {
    writer.beginObject();
    writer.member("kind", change.kind);
    writer.member("oldPlace", change.oldPlace);
    writer.member("newPlace", change.newPlace);
    writer.member("oldValue", change.oldValue);
    writer.member("newValue", change.newValue);
    writer.member("breaks", change.breaks);
    writer.member("allowed", change.isAllowed);
    writer.key("follows");
    if (change.cause) {
      writer.value(*change.cause);
    } else {
      writer.value(nullptr);
    }
    if (!change.service.empty()) writer.member("service", change.service);
    const ChangeKind* const kind = findChangeKind(change.kind);
    writer.member("text", textOf(change));
    writer.member("why", kind == nullptr ? "" : kind->why);
    writer.end();
  }
  writer.end();
}

}  // namespace

void renderJson(std::ostream& out, const Diff& diff) {
  JsonWriter writer(out);
  writer.beginObject();
  writeDiff(writer, diff);
  writer.end();
}

void renderJson(std::ostream& out, const std::vector<DocumentDiff>& diffs) {
  const bool breaks = std::any_of(diffs.begin(), diffs.end(), [](const DocumentDiff& document) {
    return breaksCallers(document.diff);
  });
  JsonWriter writer(out);
  writer.beginObject();
  writer.member("of", "folders");
  writer.member("breaks", breaks);
  writer.key("documents");
  writer.beginArray();
  for (const DocumentDiff& document : diffs) {
    writer.beginObject();
    writer.member("name", document.name);
    writeDiff(writer, document.diff);
    writer.end();
  }
  writer.end();
  writer.end();
}

}  // namespace as::toolkit
