// Compares the input, a dictionary or a service, with the document that it carries, which began as
// a copy of it, and with itself. What is told must be in the table of changes, and what is told of
// the two in each other's place must be the mirrored kinds.
#include <cstdlib>
#include <functional>
#include <iostream>
#include <nlohmann/json.hpp>
#include <set>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "Report.h"
#include "Shape.h"
#include "ToolkitRequests.h"
#include "as/AgentServices.h"
#include "as/toolkit/Diff.h"
#include "as/toolkit/Make.h"

namespace toolkit = as::toolkit;
using fuzz::require;

const fuzz::Shape fuzz::shape = fuzz::documentsWith(fuzz::Shape::Files::copies);

namespace {

using Kinds = std::multiset<std::string>;

Kinds kindsOf(const toolkit::Diff& diff) {
  Kinds kinds;
  for (const toolkit::Change& change : diff.changes) kinds.insert(change.kind);
  return kinds;
}

Kinds mirrorsOf(const Kinds& kinds) {
  Kinds mirrors;
  for (const std::string& kind : kinds) mirrors.insert(toolkit::findChangeKind(kind)->mirror);
  return mirrors;
}

void check(const toolkit::Diff& diff) {
  for (std::size_t i = 0; i < diff.changes.size(); i++) {
    const toolkit::Change& change = diff.changes[i];
    require(toolkit::findChangeKind(change.kind) != nullptr);
    require(!change.cause || *change.cause < i);
    require(!textOf(change).empty());
  }
  std::ostringstream text;
  toolkit::renderText(text, diff);
  fuzz::requirePlain(text.str());
  std::ostringstream json;
  toolkit::renderJson(json, diff);
  require(nlohmann::json::accept(json.str()));
  toolkit::Diff accepted = diff;
  require(toolkit::allow(accepted, "*"));
  require(!toolkit::breaksCallers(accepted));
}

void requireMirrored(const toolkit::Diff& there, const toolkit::Diff& back) {
  require(there.isOfServices == back.isOfServices);
  if (mirrorsOf(kindsOf(there)) == kindsOf(back)) return;
  renderText(std::cerr, there);
  renderText(std::cerr, back);
  std::abort();
}

// A service of the dictionary, for what becomes of it; none when none can be made.
std::vector<std::string> servicesOf(const std::string& dictionary, std::size_t choice) {
  const std::string service = fuzz::workDirectory().file("made.xml");
  const toolkit::Flavour& flavour = toolkit::flavours()[choice % toolkit::flavours().size()];
  const bool isMade = fuzz::succeeds(
      [&] { toolkit::makeServiceFile(fuzz::reader(), dictionary, service, flavour); });
  return isMade ? std::vector<std::string>{service} : std::vector<std::string>();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view input(reinterpret_cast<const char*>(data), size);
  const fuzz::InputFiles files(input);
  const std::string before = fuzz::workDirectory().file("document.xml");
  const std::string after = fuzz::workDirectory().file(fuzz::copyName);
  fuzz::workDirectory().write("document.xml", input);
  toolkit::Diff itself;
  if (!fuzz::succeeds([&] { itself = diffFiles(fuzz::reader(), before, before); })) return 0;
  require(itself.changes.empty() && !toolkit::breaksCallers(itself));
  fuzz::succeeds([&] {
    const toolkit::Diff there = diffFiles(fuzz::reader(), before, after);
    fuzz::countModel();
    check(there);
    requireMirrored(there, diffFiles(fuzz::reader(), after, before));
    if (there.isOfServices) return;
    const std::vector<std::string> services =
        servicesOf(before, std::hash<std::string_view>()(input));
    check(diffFiles(fuzz::reader(), before, after, services));
  });
  return 0;
}
