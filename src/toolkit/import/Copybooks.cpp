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

constexpr std::array<std::string_view, 15> extensions = {"",     ".cpy", ".CPY",  ".cbl",  ".CBL",
                                                         ".cob", ".COB", ".copy", ".COPY", ".inc",
                                                         ".INC", ".dcl", ".DCL",  ".cpb",  ".CPB"};

// With "/" between the folders, whose names stay as they are.
fs::path withSlashes(std::string name) {
  std::replace(name.begin(), name.end(), '\\', '/');
  return name;
}

bool leadsOut(const fs::path& path) {
  return path.is_absolute() ||
         std::any_of(path.begin(), path.end(), [](const fs::path& part) { return part == ".."; });
}

bool isFile(const fs::path& path) {
  std::error_code error;
  return fs::is_regular_file(path, error);
}

bool isMixed(const std::string& name) { return name != upperCase(name) && name != lowerCase(name); }

// The file of that name, which is in small letters, in letters of any case; the first one by name.
std::optional<fs::path> likeNamed(const fs::path& folder, const std::string& name) {
  std::optional<fs::path> found;
  std::error_code error;
  for (fs::directory_iterator at(folder.empty() ? "." : folder, error), end; !error && at != end;
       at.increment(error)) {
    const std::string file = at->path().filename().string();
    const bool isLike =
        std::any_of(extensions.begin(), extensions.end(), [&](std::string_view extension) {
          return file.size() == name.size() + extension.size() &&
                 lowerCase(file) == name + lowerCase(std::string(extension));
        });
    if (isLike && isFile(at->path()) && (!found || at->path() < *found)) found = at->path();
  }
  return found;
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

}  // namespace

FolderCopybooks::FolderCopybooks(std::vector<std::string> folders, const std::string& source)
    : folders_(std::move(folders)) {
  folders_.push_back(fs::path(source).parent_path().string());
}

FolderCopybooks::~FolderCopybooks() = default;

std::optional<Copybook> FolderCopybooks::find(const std::string& name, const std::string& library) {
  const fs::path path = withSlashes(name);
  const fs::path below = withSlashes(library);
  const bool isElsewhere = leadsOut(path) || leadsOut(below);
  if (!isElsewhere) {
    if (auto found = findBelow(path.parent_path(), path.filename(), below)) return found;
    if (!path.has_parent_path()) return std::nullopt;
  }
  // The folders of where it was written are none here.
  const fs::path last = path.filename();
  auto found = leadsOut(last) ? std::nullopt : findBelow({}, last, leadsOut(below) ? "" : below);
  if (!found && isElsewhere) throw CopybookError("its name leads out of the folders of copybooks");
  return found;
}

std::optional<Copybook> FolderCopybooks::findBelow(const std::string& before,
                                                   const std::string& name,
                                                   const std::string& library) const {
  const std::vector<std::string> libraries = casesOf(library);
  const std::vector<std::string> names = casesOf(name);
  for (const std::string& folder : folders_) {
    for (const std::string& below : libraries) {
      const fs::path place = fs::path(folder) / below / before;
      for (const std::string& base : names) {
        for (const std::string_view extension : extensions) {
          const fs::path file = place / (base + std::string(extension));
          if (isFile(file)) return Copybook{file.string(), contentOf(file)};
        }
      }
      if (!isMixed(name)) continue;
      if (const auto file = likeNamed(place, lowerCase(name))) {
        return Copybook{file->string(), contentOf(*file)};
      }
    }
  }
  return std::nullopt;
}

}  // namespace as::toolkit
