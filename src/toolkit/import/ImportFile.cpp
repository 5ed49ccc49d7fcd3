// Imports from file to file.
#include <fcntl.h>
#include <unistd.h>

#include <cctype>
#include <cerrno>
#include <cstddef>
#include <filesystem>
#include <optional>
#include <set>
#include <system_error>
#include <utility>

#include "as/toolkit/Copybooks.h"
#include "as/toolkit/DocumentReader.h"
#include "as/toolkit/Files.h"
#include "as/toolkit/Import.h"
#include "toolkit/io/Bytes.h"
#include "toolkit/io/OutputCheck.h"

namespace as::toolkit {

namespace {

namespace fs = std::filesystem;

[[noreturn]] void refuse(const std::string& file, const std::error_code& reason) {
  throw RefusedDocument({file, 0, 0, "it cannot be read: " + reason.message(), ""});
}

std::string contentOf(const std::string& file) {
  const int descriptor = ::open(file.c_str(), O_RDONLY | O_CLOEXEC);
  if (descriptor < 0) refuse(file, {errno, std::generic_category()});
  std::string content;
  const bool isRead = readAll(descriptor, content);
  const int reason = errno;
  ::close(descriptor);
  if (!isRead) refuse(file, {reason, std::generic_category()});
  return content;
}

// Notes the files that it finds.
class NotedCopybooks : public FolderCopybooks {
 public:
  using FolderCopybooks::FolderCopybooks;

  std::optional<Copybook> find(const std::string& name, const std::string& library) override {
    std::optional<Copybook> copybook = FolderCopybooks::find(name, library);
    if (copybook) files_.insert(copybook->name);
    return copybook;
  }

  const std::set<std::string>& files() const { return files_; }

 private:
  std::set<std::string> files_;
};

// As a part of the name of a file.
std::string fileNameOf(const std::string& program) {
  std::string name = program;
  for (char& c : name) {
    const auto code = static_cast<unsigned char>(c);
    if (code < 0x80 && std::isalnum(code) == 0 && c != '-' && c != '_') c = '-';
  }
  return name;
}

}  // namespace

ImportedFile importCobolFile(const std::string& file, const std::string& output,
                             const std::vector<std::string>& folders,
                             const ImportOptions& options) {
  return importCobolFile(DocumentSource{file}, output, folders, options);
}

ImportedFile importCobolFile(const DocumentSource& source, const std::string& output,
                             const std::vector<std::string>& folders,
                             const ImportOptions& options) {
  const std::string& file = source.name;
  NotedCopybooks copybooks(folders, file);
  ImportedFile result;
  result.imported =
      importCobol(source.text ? *source.text : contentOf(file), file, &copybooks, options);
  if (output.empty()) return result;
  const fs::path first = output;
  std::set<std::string> taken;
  for (std::size_t i = 0; i < result.imported.programs.size(); ++i) {
    const ImportedProgram& program = result.imported.programs[i];
    std::string name = first.stem().string();
    if (i > 0) name += "-" + fileNameOf(program.name);
    const std::string base = name;
    for (int number = 2; !taken.insert(name).second; ++number) {
      name = base + "-" + std::to_string(number);
    }
    if (program.isRefused()) continue;
    const std::string target =
        i == 0 ? output : (first.parent_path() / (name + first.extension().string())).string();
    checkOutput(target, file, "source");
    for (const std::string& copybook : copybooks.files()) {
      checkOutput(target, copybook, "copybook");
    }
    replaceFile(target, program.dictionary);
    result.written.push_back(target);
  }
  return result;
}

std::vector<std::string> cobolSourcesIn(const std::string& folder) {
  FoundFiles found = filesIn(folder, {".cbl", ".cob", ".cobol", ".pco"});
  if (!found.refusals.empty()) throw RefusedDocument(found.refusals.front());
  return std::move(found.files);
}

}  // namespace as::toolkit
