#include "Files.h"

#include <unistd.h>

#include <cstddef>
#include <fstream>
#include <iterator>

#include "Texts.h"

namespace growth {

namespace fs = std::filesystem;

Files::Files(const Document& document, int n) {
  static int count = 0;
  folder_ =
      fs::temp_directory_path() /
      ("agentservices-growth-" + number(static_cast<int>(::getpid())) + "-" + number(count++));
  fs::create_directory(folder_);
  std::ofstream(dictionary()) << document.program(n);
  if (document.service == nullptr) return;
  std::string text = document.service(n);
  const std::size_t at = text.find("\"@\"") + 1;
  std::ofstream(service()) << text.replace(at, 1, dictionary());
}

Files::~Files() { fs::remove_all(folder_); }

std::string Files::changed(const std::string& file, const std::string& what,
                           const std::string& with) const {
  std::ifstream in(file);
  std::string text{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
  std::string made;
  std::size_t from = 0;
  for (std::size_t at = text.find(what); at != std::string::npos; at = text.find(what, from)) {
    made.append(text, from, at - from).append(with);
    from = at + what.size();
  }
  const std::string name = (folder_ / "changed.xml").string();
  std::ofstream(name) << made.append(text, from);
  return name;
}

const as::toolkit::DocumentReader& reader() {
  static const as::toolkit::DocumentReader instance(AS_SCHEMA_DIR);
  return instance;
}

Program readProgram(const Files& files) { return reader().readDictionary(files.dictionary()); }

Service readService(const Files& files) {
  return reader().readServiceWithProgram(files.service()).service;
}

}  // namespace growth
