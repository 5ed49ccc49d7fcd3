// Gives the input, a COBOL source with its copybooks, to the importer. What it makes must be read
// by the library, and what it tells must have a rule and a place.
//
// The first byte of an input tells the options; the rest is the source. Copybooks follow, each
// behind a byte 1E: the first is called A, the next B, and so on.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "InputFiles.h"
#include "Report.h"
#include "as/AgentServices.h"
#include "as/toolkit/Import.h"
#include "as/toolkit/Storage.h"

namespace toolkit = as::toolkit;

namespace {

void require(bool condition) {
  if (!condition) std::abort();
}

class Copybooks : public toolkit::CopybookProvider {
 public:
  explicit Copybooks(std::vector<std::string> texts) : texts_(std::move(texts)) {}

  std::optional<toolkit::Copybook> find(const std::string& name,
                                        const std::string& /*library*/) override {
    if (name.size() != 1) return std::nullopt;
    const auto at = static_cast<std::size_t>((name[0] | 0x20) - 'a');
    if (at >= texts_.size()) return std::nullopt;
    return toolkit::Copybook{name, texts_[at]};
  }

 private:
  std::vector<std::string> texts_;
};

std::vector<std::string> partsOf(std::string_view text) {
  constexpr char separator = 0x1E;
  std::vector<std::string> parts;
  for (;;) {
    const std::size_t end = text.find(separator);
    parts.emplace_back(text.substr(0, end));
    if (end == std::string_view::npos) return parts;
    text.remove_prefix(end + 1);
  }
}

toolkit::ImportOptions optionsOf(unsigned bits) {
  static constexpr toolkit::SourceFormat formats[] = {
      toolkit::SourceFormat::recognised, toolkit::SourceFormat::fixed, toolkit::SourceFormat::free};
  static constexpr int pointerSizes[] = {0, 4, 8};
  const auto take = [&bits](std::size_t count) {
    const std::size_t choice = bits % count;
    bits /= static_cast<unsigned>(count);
    return choice;
  };
  toolkit::ImportOptions options;
  options.format = formats[take(std::size(formats))];
  options.dialect = toolkit::dialects()[take(toolkit::dialects().size())].word;
  options.pointerSize = pointerSizes[take(std::size(pointerSizes))];
  options.isCopybook = take(2) == 1;
  return options;
}

void check(const toolkit::ImportFindings& findings) {
  static const std::set<std::string> rules = [] {
    std::set<std::string> ids;
    for (const toolkit::ImportRule& rule : toolkit::importRules()) ids.insert(rule.id);
    return ids;
  }();
  for (const toolkit::ImportFinding& finding : findings) {
    require(rules.count(finding.rule) == 1);
    require(!finding.problem.empty() && !finding.location.file.empty());
    require(!textOf(finding).empty());
  }
}

// Reads the dictionary with the library.
void check(const toolkit::ImportedProgram& program) {
  static const std::unique_ptr<as::IAgentServices> services = [] {
    std::unique_ptr<as::IAgentServices> made(
        as::CAgentServicesFactory::CreateCachingAgentServices());
    made->setSchemaLocation(fuzz::schemaDirectory().c_str());
    return made;
  }();
  const std::string& text = program.dictionary;
  const std::unique_ptr<as::IProgram> read(
      services->parseCobolDD("imported", reinterpret_cast<const unsigned char*>(text.data()),
                             static_cast<unsigned int>(text.size())));
  require(read != nullptr && read->getName() == program.name);
  for (const toolkit::ItemExplanation& explained : explainItem(program, "A")) {
    require(!textOf(explained).empty());
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  std::vector<std::string> parts =
      partsOf(std::string_view(reinterpret_cast<const char*>(data) + 1, size - 1));
  std::string source = std::move(parts.front());
  parts.erase(parts.begin());
  Copybooks copybooks(std::move(parts));
  const toolkit::Imported imported =
      toolkit::importCobol(std::move(source), "fuzz.cbl", &copybooks, optionsOf(data[0]));
  check(imported.findings);
  const bool hasErrors = countOf(imported.findings, toolkit::Severity::error) != 0;
  bool isMade = false;
  for (const toolkit::ImportedProgram& program : imported.programs) {
    require(hasErrors || !program.isRefused());
    if (program.isRefused()) continue;
    check(program);
    isMade = true;
  }
  if (isMade) fuzz::countModel();
  return 0;
}
