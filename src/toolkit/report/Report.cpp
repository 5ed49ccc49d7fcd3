#include "as/toolkit/Report.h"

#include <algorithm>
#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <string_view>
#include <system_error>
#include <utility>

#include "as/toolkit/Files.h"
#include "as/toolkit/Generate.h"
#include "toolkit/io/HeldSource.h"
#include "toolkit/lint/LintedService.h"
#include "toolkit/report/ReportData.h"
#include "toolkit/report/ReportSource.h"
#include "toolkit/report/SiteFiles.h"

namespace as::toolkit {

namespace {

namespace fs = std::filesystem;
using nlohmann::ordered_json;

bool isMadeOf(const GeneratorKind& kind, const Flavour& flavour) {
  return std::any_of(kind.flavours.begin(), kind.flavours.end(),
                     [&flavour](const std::string_view word) { return word == flavour.word; });
}

class ReportMaker {
 public:
  ReportMaker(const DocumentReader& reader, const ReportOptions& options)
      : reader_(reader), options_(options) {}

  Report make(const std::vector<DocumentSource>& sources) {
    for (const SiteFile& file : embeddedSite()) {
      report_.files.push_back({std::string(file.name), std::string(file.content)});
    }
    std::stable_partition(report_.files.begin(), report_.files.end(),
                          [](const ReportFile& file) { return file.name == "index.html"; });
    std::vector<std::pair<HeldSource, std::unique_ptr<as::IService>>> services;
    for (const DocumentSource& source : sources) {
      try {
        // Read again for conditions, for lint, and for what is made of it.
        HeldSource held(source);
        Document document = reader_.read(held.get());
        if (document.dictionary) {
          addDictionary(*document.dictionary, held.get());
        } else {
          services.emplace_back(std::move(held), std::move(document.service));
        }
      } catch (const RefusedDocument& refused) {
        report_.refusals.push_back(refused.refusal());
      }
    }
    for (const auto& [source, service] : services) addService(*service, source.get());
    ordered_json index;
    index["documents"] = std::move(documents_);
    report_.files.push_back({"data/index.js", scriptOf("index", index)});
    // By themselves: they are many, and only a search needs them.
    report_.files.push_back({"data/names.js", scriptOf("names", names_)});
    for (ReportFile& file : data_) report_.files.push_back(std::move(file));
    return std::move(report_);
  }

 private:
  struct Dictionary {
    std::string id;
    std::unique_ptr<DictionaryFacts> facts;
    std::unique_ptr<ItemPaths> paths;
  };

  static std::string keyOf(const std::string& file) {
    std::error_code failure;
    const fs::path path = fs::weakly_canonical(file, failure);
    return failure ? file : path.string();
  }

  const Dictionary& addDictionary(as::IProgram& program, const DocumentSource& origin) {
    const std::string& file = origin.name;
    const auto [at, isNew] = dictionaries_.try_emplace(keyOf(file));
    Dictionary& dictionary = at->second;
    if (!isNew) return dictionary;
    dictionary.id = "d" + std::to_string(++report_.programs);
    dictionary.facts = std::make_unique<DictionaryFacts>(program, origin);
    dictionary.paths = std::make_unique<ItemPaths>(*dictionary.facts);
    const DictionaryFacts& facts = *dictionary.facts;
    const std::optional<ReportSource> source = sourceOf(facts, file);
    ordered_json data = dataOf(facts, SourceLineCheck(source.has_value() ? &*source : nullptr));
    data["file"] = nameOf(file);
    if (source) {
      const std::string id = "t" + std::to_string(++sources_);
      data["source"] = id;
      data_.push_back({"data/" + id + ".js", scriptOf(id, {{"name", source->name},
                                                           {"document", dictionary.id},
                                                           {"lines", source->lines}})});
    }
    std::size_t conditions = 0;
    std::size_t records = 0;
    for (const ItemFacts& item : facts.items()) {
      conditions += item.conditions.size();
      if (item.parent == noItem) ++records;
    }
    documents_.push_back({{"id", dictionary.id},
                          {"kind", "program"},
                          {"name", facts.name()},
                          {"file", nameOf(file)},
                          {"counts",
                           {{"records", records},
                            {"items", facts.items().size()},
                            {"conditions", conditions},
                            {"entry points", facts.entryPoints().size()}}}});
    names_[dictionary.id] = namesOf(facts);
    data_.push_back({"data/" + dictionary.id + ".js", scriptOf(dictionary.id, data)});
    return dictionary;
  }

  // Files are told without the folders of the machine that the report is made on.
  static std::string nameOf(const std::string& file) { return fs::path(file).filename().string(); }

  std::optional<ReportSource> sourceOf(const DictionaryFacts& facts,
                                       const std::string& file) const {
    std::vector<std::string> folders = options_.sourceFolders;
    const fs::path folder = fs::path(file).parent_path();
    folders.push_back(folder.empty() ? "." : folder.string());
    for (const auto& [name, value] : facts.properties()) {
      if (name == "source") return findSource(value, folders);
    }
    return std::nullopt;
  }

  void addService(as::IService& service, const DocumentSource& origin) {
    const std::string& file = origin.name;
    const std::string id = "s" + std::to_string(++report_.services);
    const ServiceFacts facts(service);
    const Dictionary* dictionary = nullptr;
    std::optional<Refusal> unread;
    if (!facts.dictionary.empty()) {
      try {
        dictionary = &findDictionary(besideFile(file, facts.dictionary));
      } catch (const RefusedDocument& refused) {
        unread = refused.refusal();
      }
    }
    const Findings findings = lintRead(reader_, service, origin).findings;
    // Lint reads it by itself: it may be that nothing is wrong there.
    if (unread && !isUnusable(findings)) report_.refusals.push_back(*std::move(unread));
    const std::size_t errors = countOf(findings, Severity::error);
    const std::size_t warnings = countOf(findings, Severity::warning);
    report_.findings += errors + warnings;
    ordered_json data =
        dataOf(facts, dictionary == nullptr ? nullptr : dictionary->paths.get(), findings);
    data["file"] = nameOf(file);
    if (dictionary != nullptr) data["document"] = dictionary->id;
    data["made"] = madeOf(origin, id, flavourOf(service));
    documents_.push_back({{"id", id},
                          {"kind", "service"},
                          {"name", facts.name},
                          {"file", nameOf(file)},
                          {"flavour", facts.flavour},
                          {"program", dictionary == nullptr ? "" : dictionary->id},
                          {"errors", errors},
                          {"warnings", warnings},
                          {"counts",
                           {{"operations", facts.operations.size()},
                            {"type definitions", facts.definitions.size()}}}});
    names_[id] = namesOf(facts);
    data_.push_back({"data/" + id + ".js", scriptOf(id, data)});
  }

  // What callers of a service get: of each kind the files, or else why there are none.
  ordered_json madeOf(const DocumentSource& origin, const std::string& id, const Flavour& flavour) {
    ordered_json all = ordered_json::array();
    for (const std::string& word : options_.kinds) {
      const GeneratorKind* const kind = findGeneratorKind(word);
      if (kind == nullptr || !isMadeOf(*kind, flavour)) continue;
      ordered_json files = ordered_json::array();
      const std::string folder =
          std::string("made/").append(id).append("/").append(word).append("/");
      std::string problem;
      try {
        Generated made = generateFrom(reader_, *kind, origin);
        for (GeneratedFile& one : made.files) {
          ReportFile placed{std::string(folder).append(one.name), std::move(one.content)};
          files.push_back(placed.name);
          data_.push_back(std::move(placed));
        }
        for (const Finding& finding : made.findings) {
          if (finding.severity == Severity::error && problem.empty()) problem = finding.problem;
        }
      } catch (const RefusedDocument& refused) {
        problem = refused.refusal().text;
      }
      report_.made += files.size();
      all.push_back({{"kind", word},
                     {"summary", kind->summary},
                     {"files", std::move(files)},
                     {"problem", problem}});
    }
    return all;
  }

  // Whether lint tells that the dictionary cannot be read.
  static bool isUnusable(const Findings& findings) {
    return std::any_of(findings.begin(), findings.end(), [](const Finding& finding) {
      return std::string_view(finding.rule) == "unusable-dictionary";
    });
  }

  // The dictionary of a service. Throws RefusedDocument when it cannot be read.
  const Dictionary& findDictionary(const std::string& file) {
    const auto found = dictionaries_.find(keyOf(file));
    if (found != dictionaries_.end()) return found->second;
    return addDictionary(*reader_.readDictionary(file), DocumentSource{file});
  }

  const DocumentReader& reader_;
  const ReportOptions& options_;
  Report report_;
  std::vector<ReportFile> data_;
  ordered_json documents_ = ordered_json::array();
  ordered_json names_ = ordered_json::object();
  std::map<std::string, Dictionary> dictionaries_;  // By the real names of their files.
  std::size_t sources_ = 0;
};

}  // namespace

Report makeReport(const DocumentReader& reader, const std::vector<std::string>& files,
                  const ReportOptions& options) {
  std::vector<DocumentSource> sources;
  sources.reserve(files.size());
  for (const std::string& file : files) sources.push_back({file});
  return makeReportFrom(reader, sources, options);
}

Report makeReportFrom(const DocumentReader& reader, const std::vector<DocumentSource>& sources,
                      const ReportOptions& options) {
  return ReportMaker(reader, options).make(sources);
}

void writeReport(const Report& report, const std::string& folder) {
  for (const ReportFile& file : report.files) {
    const fs::path path = fs::path(folder) / file.name;
    std::error_code failure;
    fs::create_directories(path.parent_path(), failure);
    if (failure) {
      throw FileError(path.parent_path().string() + ": cannot be made: " + failure.message());
    }
    replaceFile(path.string(), file.content);
  }
}

}  // namespace as::toolkit
