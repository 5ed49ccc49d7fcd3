#include "as/toolkit/Copybooks.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <initializer_list>
#include <string_view>
#include <system_error>
#include <utility>

#include "toolkit/import/ImportLimits.h"

namespace as::toolkit {

namespace fs = std::filesystem;

CopybookError::CopybookError(const CopybookError& other) = default;
CopybookError& CopybookError::operator=(const CopybookError& other) = default;
CopybookError::~CopybookError() = default;

CopybookProvider::~CopybookProvider() = default;

namespace {

std::string mapped(std::string text, char first, char last, int by) {
  for (char& character : text) {
    if (character >= first && character <= last) character = static_cast<char>(character + by);
  }
  return text;
}

std::string upperCase(const std::string& text) { return mapped(text, 'a', 'z', 'A' - 'a'); }
std::string lowerCase(const std::string& text) { return mapped(text, 'A', 'Z', 'a' - 'A'); }

// As written, then in capitals, then in small letters; each once.
std::vector<std::string> casesOf(const std::string& text) {
  std::vector<std::string> cases;
  for (const std::string& one : {text, upperCase(text), lowerCase(text)}) {
    if (std::find(cases.begin(), cases.end(), one) == cases.end()) cases.push_back(one);
  }
  return cases;
}

constexpr std::array<std::string_view, 11> extensions = {
    "", ".cpy", ".CPY", ".cbl", ".CBL", ".cob", ".COB", ".copy", ".COPY", ".inc", ".INC"};

// With "/" between the folders, whose names stay as they are; throws for a name that leads out.
std::string checkedName(std::string name) {
  std::replace(name.begin(), name.end(), '\\', '/');
  const fs::path path(name);
  const bool climbs =
      std::any_of(path.begin(), path.end(), [](const fs::path& part) { return part == ".."; });
  if (path.is_absolute() || climbs) {
    throw CopybookError("its name leads out of the folders of copybooks");
  }
  return name;
}

std::string contentOf(const fs::path& file) {
  std::error_code error;
  const auto size = fs::file_size(file, error);
  if (error) throw CopybookError(error.message());
  if (size > importLimits::copiedText) {
    throw CopybookError("it is longer than " + std::to_string(importLimits::copiedText) + " bytes");
  }
  std::ifstream stream(file, std::ios::binary);
  std::string text(static_cast<std::size_t>(size), '\0');
  stream.read(text.data(), static_cast<std::streamsize>(text.size()));
  if (!stream) throw CopybookError("the file cannot be read");
  return text;
}

bool isFile(const fs::path& path) {
  std::error_code error;
  return fs::is_regular_file(path, error);
}

}  // namespace

FolderCopybooks::FolderCopybooks(std::vector<std::string> folders, const std::string& source)
    : folders_(std::move(folders)) {
  folders_.push_back(fs::path(source).parent_path().string());
}

FolderCopybooks::~FolderCopybooks() = default;

std::optional<Copybook> FolderCopybooks::find(const std::string& name, const std::string& library) {
  const fs::path path(checkedName(name));
  const fs::path before = path.parent_path();
  const std::vector<std::string> libraries = casesOf(checkedName(library));
  const std::vector<std::string> names = casesOf(path.filename().string());
  for (const std::string& folder : folders_) {
    for (const std::string& below : libraries) {
      const fs::path place = fs::path(folder) / below / before;
      for (const std::string& base : names) {
        for (const std::string_view extension : extensions) {
          const fs::path file = place / (base + std::string(extension));
          if (isFile(file)) return Copybook{file.string(), contentOf(file)};
        }
      }
    }
  }
  return std::nullopt;
}

}  // namespace as::toolkit
