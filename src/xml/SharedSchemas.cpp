#include "xml/SharedSchemas.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <memory>
#include <string_view>
#include <utility>
#include <xercesc/sax/InputSource.hpp>

#include "xml/BuiltInSchemas.h"
#include "xml/SchemaCompiler.h"
#include "xml/TypeNames.h"
#include "xml/XStr.h"

using xercesc::Grammar;
using xercesc::InputSource;

namespace {

std::string contentOf(const LocalFile& file) {
  constexpr std::size_t step = 65536;
  std::string content;
  for (std::size_t got = step; got == step;) {
    const std::size_t before = content.size();
    content.resize(before + step);
    got = file.read(content.data() + before, step, before);
    content.resize(before + got);
  }
  return content;
}

// Whether that is what stands in the file.
bool holds(const LocalFile& file, std::string_view text) {
  // Larger than our schemas are.
  std::array<char, 32768> read;  // NOLINT(cppcoreguidelines-pro-type-member-init)
  for (std::size_t place = 0;; place += read.size()) {
    const std::string_view got(read.data(), file.read(read.data(), read.size(), place));
    if (got != text.substr(std::min(place, text.size()), read.size())) return false;
    if (got.size() < read.size()) return true;
  }
}

}  // namespace

SharedSchemas::SharedSchemas(std::string directory) : directory_(std::move(directory)) {
  resolver_.setSchemaLocation(directory_.c_str());
  numberNamespaces(*grammars_.getURIStringPool());
  // Whoever reads the schema by itself is told.
  memory_.whenFull([this] {
    spoil();
    throw NotShared();
  });
}

SharedSchemas::~SharedSchemas() {
  // Nothing is refused any more.
  memory_.whenFull(nullptr);
}

void SharedSchemas::add(const XMLCh* uri) {
  const std::unique_ptr<const LocalFile> file = fileOf(uri);
  if (file == nullptr) {
    schemas_.emplace(uri, Schema{std::nullopt, nullptr});
    return;
  }
  const std::string& text = texts_.emplace_back(contentOf(*file));
  Grammar* const grammar = compileSchema(uri, text, grammars_);
  if (grammar != nullptr) quickenNumbers(*grammar, numbers_, &memory_);
  schemas_.emplace(uri, Schema{text, grammar});
}

Grammar* SharedSchemas::grammarFor(const XMLCh* uri, const XMLCh* place) {
  if (!VorEntityResolver::isPlaceOf(uri, place)) throw NotShared();
  const std::unique_ptr<const LocalFile> file = fileOf(uri);
  const auto found = schemas_.find(uri);
  if (found == schemas_.end()) {
    if (Grammar* const grammar = file ? builtIn(uri, *file) : nullptr) return grammar;
    throw NotShared{uri};
  }
  const std::optional<std::string_view>& text = found->second.text;
  const bool isSame = file ? text && holds(*file, *text) : !text;
  if (!isSame) throw NotShared{uri};
  if (found->second.grammar == nullptr) throw NotShared();
  return found->second.grammar;
}

// The file of the schema; null when there is none to be read.
std::unique_ptr<const LocalFile> SharedSchemas::fileOf(const XMLCh* uri) {
  const std::unique_ptr<InputSource> named(resolver_.resolveNamespace(uri));
  if (named == nullptr) return nullptr;
  auto file = std::make_unique<const LocalFile>(CXStr(named->getSystemId(), false),
                                                LocalFile::Opening::regular);
  return file->kind() == LocalFile::Kind::regular ? std::move(file) : nullptr;
}

// Adds no name to those that the parse numbers its own behind.
Grammar* SharedSchemas::builtIn(const XMLCh* uri, const LocalFile& file) {
  const BuiltInSchema* const schema = builtInSchema(uri);
  if (schema == nullptr || !holds(file, schema->text)) return nullptr;
  auto pool = readBuiltIn(*schema, &memory_);
  if (pool == nullptr) return nullptr;
  Grammar* const grammar = grammarIn(*pool, uri);
  quickenNumbers(*grammar, numbers_, &memory_);
  shortenTypeNames(*grammar, &memory_);
  builtIn_.push_back(std::move(pool));
  schemas_.emplace(uri, Schema{schema->text, grammar});
  return grammar;
}
