#include "as/toolkit/Generate.h"

#include <algorithm>
#include <filesystem>
#include <memory>
#include <system_error>
#include <utility>

#include "as/toolkit/Files.h"
#include "as/toolkit/Lint.h"
#include "as/toolkit/Text.h"
#include "toolkit/generate/Generator.h"
#include "toolkit/generate/ModelBuilder.h"
#include "toolkit/io/HeldSource.h"
#include "toolkit/io/OutputCheck.h"
#include "toolkit/lint/LintedService.h"
#include "toolkit/text/Phrases.h"

namespace as::toolkit {

namespace {

namespace fs = std::filesystem;

constexpr const gen::Generator& (*generators[])() = {
#define AS_GENERATOR(function) gen::function,
#include "toolkit/generate/Kinds.def"
};

const gen::Generator& generatorOf(const GeneratorKind& kind) {
  for (const auto get : generators) {
    if (get().kind().word == std::string_view(kind.word)) return get();
  }
  throw std::invalid_argument(std::string("no generator makes ") + kind.word);
}

// Errors of lint are reasons to make nothing. A type that refers to itself is one to a program,
// whose storage ends, but not to a caller.
Findings reasonsAgainst(const Findings& findings) {
  Findings reasons;
  for (Finding finding : findings) {
    if (finding.severity != Severity::error) continue;
    if (finding.rule == "recursive-type") finding.severity = Severity::warning;
    reasons.push_back(std::move(finding));
  }
  return reasons;
}

Generated make(const gen::Generator& generator, gen::ServiceModel& model,
               const GenerateOptions& options, Findings findings) {
  model.source = options.source.empty() ? model.name : options.source;
  Generated made;
  made.findings = std::move(findings);
  generator.generate({model, generator.kind(), options, made});
  if (countOf(made.findings, Severity::error) > 0) made.files.clear();
  return made;
}

Generated makeOfService(const gen::Generator& generator, as::IService& service,
                        as::IProgram* program, LintedService linted,
                        const GenerateOptions& options) {
  Findings reasons = reasonsAgainst(linted.findings);
  const auto& wanted = generator.kind().flavours;
  const Flavour& flavour = flavourOf(service);
  if (std::none_of(wanted.begin(), wanted.end(), [&flavour](const char* word) {
        return std::string_view(word) == flavour.word;
      })) {
    reasons.push_back(
        {"other-flavour", Severity::error, "service",
         std::string(generator.kind().word) + " is not made of " + flavour.name + " services",
         std::string("convert it first, to ") + wanted.front()});
  }
  if (countOf(reasons, Severity::error) > 0) return {{}, std::move(reasons)};
  gen::ServiceModel model = gen::modelOf(service, program, std::move(linted.index));
  if (!model.isWhole) {
    // One that is nothing but a reference to itself holds nothing.
    for (Finding& reason : reasons) reason.severity = Severity::error;
    // Lint may have been asked not to tell of it.
    if (reasons.empty()) {
      reasons.push_back(
          {"lost-type", Severity::error, "service",
           "the type definition that a parameter refers to does not stand in front of it",
           R"(correct "ref" or add the definition)"});
    }
    return {{}, std::move(reasons)};
  }
  model.findings = std::move(linted.findings);
  return make(generator, model, options, std::move(reasons));
}

// The files of the folder `output`, or that file.
std::vector<FileContent> placed(std::vector<GeneratedFile>& files, const std::string& output) {
  std::error_code failure;
  const bool isFolder = files.size() > 1 || output.empty() || output.back() == '/' ||
                        fs::is_directory(output, failure);
  std::vector<FileContent> contents;
  contents.reserve(files.size());
  for (GeneratedFile& file : files) {
    contents.push_back(
        {isFolder ? (fs::path(output) / file.name).string() : output, std::move(file.content)});
  }
  // The empty name is that of the current folder, which is there.
  if (isFolder && !output.empty()) {
    fs::create_directories(output, failure);
    if (failure) throw FileError(output + " cannot be made: " + failure.message());
  }
  return contents;
}

// What was made of a document, and the dictionary that had a part in it; empty for none.
struct MadeOfDocument {
  Generated made;
  std::string dictionary;
};

MadeOfDocument makeOfDocument(const DocumentReader& reader, const GeneratorKind& kind,
                              const DocumentSource& source, const GenerateOptions& options,
                              const std::optional<std::string>& dictionary) {
  GenerateOptions named = options;
  if (named.source.empty()) named.source = fs::path(source.name).filename().string();
  const Document document = reader.read(source);
  if (document.dictionary) {
    if (!kind.takesDictionaries) {
      throw RefusedDocument({source.name, 0, 0,
                             std::string(kind.word) + " is made of services, this is a dictionary",
                             "make a service of it with 'new'", true});
    }
    return {generate(kind, *document.dictionary, named), ""};
  }
  LintedService linted = lintRead(reader, *document.service, source, {dictionary, {}});
  const std::shared_ptr<as::IProgram> program = linted.program;
  const std::string own = document.service->getDDFilename();
  return {
      makeOfService(generatorOf(kind), *document.service, program.get(), std::move(linted), named),
      dictionary    ? *dictionary
      : own.empty() ? own
                    : besideFile(source.name, own)};
}

}  // namespace

const std::vector<GeneratorKind>& generatorKinds() {
  static const std::vector<GeneratorKind> kinds = [] {
    std::vector<GeneratorKind> all;
    for (const auto get : generators) all.push_back(get().kind());
    return all;
  }();
  return kinds;
}

const GeneratorKind* findGeneratorKind(std::string_view word) {
  const std::vector<GeneratorKind>& kinds = generatorKinds();
  const auto found = std::find_if(kinds.begin(), kinds.end(),
                                  [word](const GeneratorKind& kind) { return word == kind.word; });
  return found == kinds.end() ? nullptr : &*found;
}

std::string wrongOption(const GeneratorKind& kind, const GenerateOptions& options) {
  for (const auto& [name, value] : options.values) {
    const auto& name_ = name;
    const auto option =
        std::find_if(kind.options.begin(), kind.options.end(),
                     [&name_](const GeneratorOption& other) { return name_ == other.name; });
    if (option == kind.options.end()) {
      std::vector<std::string> names;
      for (const GeneratorOption& other : kind.options) names.emplace_back(other.name);
      const std::string near = nearestName(name, names);
      return std::string(kind.word) + " has no option " + quote(name) +
             (near.empty() ? "" : "; did you mean " + quote(near) + "?");
    }
    const std::string words = std::string("|") + option->values + "|";
    if (words == "||" || words.find("|" + value + "|") != std::string::npos) continue;
    return "option " + quote(name) + " takes " + option->values + ", not " + quote(value);
  }
  return "";
}

ChosenNames readChosenNames(const std::string& text, const std::string& file) {
  const auto trimmed = [](std::string_view part) {
    constexpr std::string_view blanks = " \t\r";
    const std::size_t from = part.find_first_not_of(blanks);
    if (from == std::string_view::npos) return std::string();
    return std::string(part.substr(from, part.find_last_not_of(blanks) - from + 1));
  };
  ChosenNames names;
  int number = 0;
  constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
  for (std::size_t from = text.starts_with(byteOrderMark) ? byteOrderMark.size() : 0;
       from < text.size();) {
    const std::size_t to = std::min(text.find('\n', from), text.size());
    const std::string line = trimmed(std::string_view(text).substr(from, to - from));
    from = to + 1;
    ++number;
    if (line.empty() || line.front() == '#') continue;
    // Names of documents may hold the sign, those of languages do not.
    const std::size_t sign = line.rfind('=');
    const std::string key = trimmed(std::string_view(line).substr(0, std::min(sign, line.size())));
    const std::string name =
        sign == std::string::npos ? "" : trimmed(std::string_view(line).substr(sign + 1));
    if (key.empty() || name.empty()) {
      throw RefusedDocument({file, number, 1, "this is no name for another", "write KEY = NAME"});
    }
    names[key] = name;
  }
  return names;
}

Generated generate(const GeneratorKind& kind, as::IService& service, const GenerateOptions& options,
                   as::IProgram* program) {
  as::IProgram* const known = program == nullptr ? service.getProgram() : program;
  return makeOfService(generatorOf(kind), service, known, lintWith(service, known), options);
}

Generated generate(const GeneratorKind& kind, as::IProgram& program,
                   const GenerateOptions& options) {
  Findings findings;
  gen::ServiceModel model = gen::modelOf(program, options.record, findings);
  if (model.types.empty()) {
    return {{},
            {{"no-record", Severity::error, "dictionary",
              options.record.empty() ? "there are no records"
                                     : "there is no record " + quote(options.record),
              "name another one"}}};
  }
  return make(generatorOf(kind), model, options, std::move(findings));
}

Generated generateFrom(const DocumentReader& reader, const GeneratorKind& kind,
                       const DocumentSource& source, const GenerateOptions& options,
                       const std::optional<std::string>& dictionary) {
  return makeOfDocument(reader, kind, HeldSource(source).get(), options, dictionary).made;
}

GeneratedOutput generateFiles(const DocumentReader& reader, const GeneratorKind& kind,
                              const DocumentSource& source, const std::string& output,
                              const GenerateOptions& options,
                              const std::optional<std::string>& dictionary) {
  MadeOfDocument read = makeOfDocument(reader, kind, HeldSource(source).get(), options, dictionary);
  GeneratedOutput result;
  result.findings = std::move(read.made.findings);
  if (read.made.files.empty()) return result;
  const std::vector<FileContent> contents = placed(read.made.files, output);
  for (const FileContent& content : contents) {
    checkOutput(content.file, source.name, "document");
    checkOutput(content.file, read.dictionary, "dictionary");
    checkOutput(content.file, options.namesFile, "file of names");
    result.files.push_back(content.file);
  }
  result.written = replaceFiles(contents);
  return result;
}

GeneratedOutput generateFiles(const DocumentReader& reader, const GeneratorKind& kind,
                              const std::string& file, const std::string& output,
                              const GenerateOptions& options,
                              const std::optional<std::string>& dictionary) {
  return generateFiles(reader, kind, DocumentSource{file}, output, options, dictionary);
}

}  // namespace as::toolkit
