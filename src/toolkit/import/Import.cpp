#include "as/toolkit/Import.h"

#include <algorithm>
#include <cctype>
#include <cstddef>
#include <stdexcept>
#include <utility>

#include "as/toolkit/Storage.h"
#include "toolkit/import/DictionaryText.h"
#include "toolkit/import/ImportDetails.h"
#include "toolkit/import/ProgramReader.h"
#include "toolkit/import/SourceReader.h"
#include "toolkit/import/XmlText.h"
#include "toolkit/text/Phrases.h"

namespace as::toolkit {

namespace {

Dialect dialectOf(const ImportOptions& options) {
  const Dialect* const dialect = findDialect(options.dialect);
  if (dialect == nullptr) {
    throw std::invalid_argument("there is no dialect " + quote(options.dialect));
  }
  if (options.pointerSize == 0) return *dialect;
  if (options.pointerSize != 4 && options.pointerSize != 8) {
    throw std::invalid_argument("pointers have 4 or 8 bytes");
  }
  return withAddresses(*dialect, options.pointerSize);
}

// The name of a file without folders and extension, as a name of COBOL: other characters than
// letters and digits are hyphens.
std::string stemOf(const std::string& name) {
  const std::size_t folder = name.find_last_of("/\\");
  std::string stem = folder == std::string::npos ? name : name.substr(folder + 1);
  const std::size_t dot = stem.find_last_of('.');
  if (dot != std::string::npos && dot > 0) stem.resize(dot);
  for (char& c : stem) {
    const auto code = static_cast<unsigned char>(c);
    if (code < 0x80 && std::isalnum(code) == 0 && c != '_') c = '-';
  }
  return stem.empty() ? "COPYBOOK" : stem;
}

const char* wordOf(SourceFormat format) {
  constexpr const char* words[] = {"recognised", "fixed", "free", "variable"};
  return words[static_cast<std::size_t>(format)];
}

const char* wordOf(BinarySizes sizes) {
  constexpr const char* words[] = {"1-2-4-8", "2-4-8", "1--8"};
  return words[static_cast<std::size_t>(sizes)];
}

DictionaryProperties propertiesOf(const std::string& name, const ImportOptions& options,
                                  SourceFormat format, const Dialect& dialect,
                                  const CobolProgram& program) {
  DictionaryProperties properties = {
      {"source", name.substr(name.find_last_of("/\\") + 1)},
      {"sourceFormat", wordOf(format)},
      {"dialect", dialect.word},
      {"platform", dialect.pointer == 8 ? "64-bit" : "32-bit"},
      {"binarySizes", wordOf(dialect.comp)},
      {"syncBoundary", "size of the item, " + std::to_string(dialect.binaryBoundary) + " at most"},
      {"pointerSize", std::to_string(dialect.pointer)},
  };
  if (!options.encoding.empty()) properties.emplace_back("codePage", options.encoding);
  if (program.isCopybook) properties.emplace_back("copybook", "true");
  return properties;
}

// Findings of the words and of the entries, one behind the other as they are told.
class FindingMerger {
 public:
  FindingMerger(const SourceMap& map, const SourceFindings& words, ImportFindings& all)
      : map_(map), words_(words), all_(all) {}

  void add(EntryRule rule, const SourcePlace& place, const std::string& text) {
    takeWords();
    const EntryRuleRow& row = rowOf(rule);
    put({row.id, row.severity, place, text, ""});
  }

  void takeWords() {
    for (; taken_ < words_.size(); ++taken_) put(words_[taken_]);
  }

  // Errors among those of the words.
  std::size_t errors() {
    for (; counted_ < words_.size(); ++counted_) {
      if (words_[counted_].severity == Severity::error) ++errors_;
    }
    return errors_;
  }

 private:
  void put(const SourceFinding& finding) {
    all_.push_back({finding.rule, finding.severity, locationOf(map_, finding.place),
                    copiedAt(map_, finding.place), finding.problem, finding.advice});
  }

  const SourceMap& map_;
  const SourceFindings& words_;
  ImportFindings& all_;
  std::size_t taken_ = 0;
  std::size_t counted_ = 0;
  std::size_t errors_ = 0;
};

}  // namespace

Imported importCobol(std::string source, const std::string& name, CopybookProvider* copybooks,
                     const ImportOptions& options) {
  const auto shared = std::make_shared<ImportedSource>();
  shared->dialect = dialectOf(options);
  Imported result;
  SourceFindings wordFindings;
  SourceOptions sourceOptions;
  sourceOptions.format = options.format;
  sourceOptions.encoding = options.encoding;
  // Compilers define it where addresses have 64 bits.
  if (shared->dialect.pointer == 8) sourceOptions.definitions.push_back({"P64", ""});
  SourceReader words(std::move(source), name, sourceOptions, copybooks, shared->map, wordFindings);
  FindingMerger findings(shared->map, wordFindings, result.findings);
  EntryProblems problems([&findings](EntryRule rule, const SourcePlace& place,
                                     const std::string& text) { findings.add(rule, place, text); });
  problems.countAlso([&findings] { return findings.errors(); });
  shared->programs = ProgramReader(words, shared->dialect,
                                   options.isCopybook ? ProgramReader::Form::copybook
                                                      : ProgramReader::Form::automatic,
                                   stemOf(name), problems)
                         .read();
  for (const std::unique_ptr<CobolProgram>& program : shared->programs) {
    ImportedProgram imported;
    imported.name = XmlText::heldOf(program->name);
    if (!program->isRefused) {
      imported.dictionary = dictionaryText(
          *program, propertiesOf(name, options, words.format(), shared->dialect, *program),
          problems);
      imported.items = itemsOf(*program);
    }
    imported.details = std::make_shared<ImportDetails>(shared, *program);
    result.programs.push_back(std::move(imported));
  }
  SourceReport report(wordFindings);
  problems.finish(report);
  findings.takeWords();
  return result;
}

const std::vector<ImportRule>& importRules() {
  static const std::vector<ImportRule> all = {
#define AS_SOURCE_RULE(name, id, severity, summary) {id, Severity::severity, summary},
#include "toolkit/import/SourceRules.def"
#define AS_ENTRY_RULE(name, id, severity, summary) {id, Severity::severity, summary},
#include "toolkit/import/EntryRules.def"
#undef AS_ENTRY_RULE
  };
  return all;
}

std::string textOf(const ImportFinding& finding) {
  const auto placed = [](const SourceLocation& location) {
    std::string text = location.file;
    if (location.line > 0) text += ":" + std::to_string(location.line);
    if (location.column > 0) text += ":" + std::to_string(location.column);
    return text + ": ";
  };
  std::string text = placed(finding.location) + wordOf(finding.severity) + ": " + finding.problem;
  if (!finding.advice.empty()) text += "; " + finding.advice;
  for (const SourceLocation& location : finding.copiedAt) {
    text += "\n" + placed(location) + "note: copied here";
  }
  return text;
}

std::size_t countOf(const ImportFindings& findings, Severity severity) {
  return static_cast<std::size_t>(std::count_if(
      findings.begin(), findings.end(),
      [severity](const ImportFinding& finding) { return finding.severity == severity; }));
}

}  // namespace as::toolkit
