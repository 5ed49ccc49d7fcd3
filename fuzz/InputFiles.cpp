#include "InputFiles.h"

#include <fcntl.h>
#include <stdlib.h>
#include <unistd.h>

#include <algorithm>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <vector>

#include "XmlTree.h"
#include "as/Namespaces.h"

namespace fuzz {

namespace {

constexpr const char* dictionaries[] = {"DEPINT01.xml", "MOTPREM.xml", "PAYSLIP.xml",
                                        "WHSLOTS.xml"};

std::string contentOf(const std::string& file) {
  std::ifstream in(file, std::ios::binary);
  std::ostringstream content;
  content << in.rdbuf();
  return content.str();
}

// Leaves of the element what a parser of such documents needs.
void removeDocumentation(Node& node) {
  const auto isNotNeeded = [](const Node& child) {
    return !child.isElement() || child.localName() == "annotation";
  };
  node.children.erase(std::remove_if(node.children.begin(), node.children.end(), isNotNeeded),
                      node.children.end());
  for (Node& child : node.children) removeDocumentation(child);
}

// Leaves the first and the last ones of each list. What services use is described last.
void cutDown(Node& node) {
  constexpr std::ptrdiff_t atStart = 2;
  constexpr std::ptrdiff_t atEnd = 4;
  std::vector<Node>& children = node.children;
  if (children.size() > atStart + atEnd) {
    children.erase(children.begin() + atStart, children.end() - atEnd);
  }
  for (Node& child : children) cutDown(child);
}

bool isPlain(const std::string& name) {
  const auto isOdd = [](char c) { return c == '/' || static_cast<unsigned char>(c) <= ' '; };
  return !name.empty() && name.size() < 100 && name[0] != '.' &&
         std::none_of(name.begin(), name.end(), isOdd) &&
         std::find(std::begin(dictionaries), std::end(dictionaries), name) ==
             std::end(dictionaries);
}

}  // namespace

Directory::Directory() {
  std::string pattern =
      (std::filesystem::temp_directory_path() / "agentservices-fuzz-XXXXXX").string();
  if (::mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("mkdtemp: " + pattern);
  path_ = pattern;
}

Directory::~Directory() {
  std::error_code ignored;
  std::filesystem::remove_all(path_, ignored);
}

void Directory::write(const std::string& name, std::string_view content) const {
  std::ofstream(path_ / name, std::ios::binary) << content;
}

void Directory::remove(const std::string& name) const {
  std::error_code ignored;
  std::filesystem::remove(path_ / name, ignored);
}

const Directory& workDirectory() {
  static const Directory directory;
  static const bool filled = [] {
    for (const char* const name : dictionaries) {
      Document dictionary = readTree(contentOf(std::string(AS_EXAMPLES_DIR "/") + name));
      removeDocumentation(*dictionary.root());
      cutDown(*dictionary.root());
      directory.write(name, printTree(dictionary));
    }
    return true;
  }();
  static_cast<void>(filled);
  return directory;
}

InputFiles::InputFiles(std::string_view input) {
  const Document document = readTree(input);
  for (const Node& node : document.nodes) {
    if (node.kind != Node::Kind::instruction || node.name != "file") continue;
    const std::size_t end = node.text.find_first_of(" \n");
    const std::string name = node.text.substr(0, end);
    if (!isPlain(name)) continue;
    workDirectory().write(name, end == std::string::npos
                                    ? std::string_view()
                                    : std::string_view(node.text).substr(end + 1));
    names_.push_back(name);
  }
}

InputFiles::~InputFiles() {
  for (const std::string& name : names_) workDirectory().remove(name);
}

WorkingThere::WorkingThere() : before_(::open(".", O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
  if (before_ < 0 || ::chdir(workDirectory().file("").c_str()) != 0) {
    throw std::runtime_error("chdir");
  }
}

WorkingThere::~WorkingThere() {
  if (::fchdir(before_) != 0) ::abort();
  ::close(before_);
}

std::string schemaDirectory() {
  static const Directory directory;
  static const bool filled = [] {
    constexpr as::Namespace namespaces[] = {
#define AS_NAMESPACE(name, uri, schemaFile) as::namespaces::name,
#include "as/Namespaces.def"
    };
    for (const as::Namespace& each : namespaces) {
      Document schema = readTree(contentOf(std::string(AS_SCHEMA_DIR "/") + each.schemaFile));
      removeDocumentation(*schema.root());
      directory.write(each.schemaFile, printTree(schema));
    }
    return true;
  }();
  static_cast<void>(filled);
  return directory.file("");
}

}  // namespace fuzz
