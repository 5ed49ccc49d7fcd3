// Has the XML parser compile the schemas of a folder, and writes a C++ source that holds them as
// src/xml/BuiltInSchemas.h tells.
//
//   compile_schemas FOLDER OUTPUT
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <exception>
#include <fstream>
#include <iostream>
#include <iterator>
#include <sstream>
#include <stdexcept>
#include <string>
#include <xercesc/framework/XMLGrammarPoolImpl.hpp>
#include <xercesc/internal/BinMemOutputStream.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/XMLException.hpp>

#include "xml/SchemaCompiler.h"

namespace {

struct Schema {
  const char* name;
  const XMLCh* uri;
  const char* plainUri;
  const char* file;
};

constexpr Schema schemas[] = {
#define AS_NAMESPACE(name, uri, file) {#name, u"" uri, uri, file},
#include "as/Namespaces.def"
};

std::string textOf(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  std::string text{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  if (text.empty()) throw std::runtime_error(path + " cannot be read");
  return text;
}

std::string literalOf(const std::string& text) {
  std::string literal = "\"";
  for (const char c : text) {
    if (c == '\n') {
      literal += "\\n\"\n    \"";
    } else {
      if (c == '"' || c == '\\') literal += '\\';
      literal += c;
    }
  }
  return literal + "\"";
}

// What the parser makes of a schema, as it writes it down.
std::string grammarOf(const Schema& schema, const std::string& text) {
  xercesc::XMLGrammarPoolImpl pool;
  numberNamespaces(*pool.getURIStringPool());
  if (compileSchema(schema.uri, text, pool) == nullptr) {
    throw std::runtime_error(std::string(schema.file) + " is no schema that stands by itself");
  }
  xercesc::BinMemOutputStream bytes;
  pool.serializeGrammars(&bytes);
  return {reinterpret_cast<const char*>(bytes.getRawBuffer()),
          static_cast<std::size_t>(bytes.getSize())};
}

void writeWords(std::ostream& out, const std::string& bytes) {
  for (std::size_t at = 0; at < bytes.size(); at += sizeof(std::uint64_t)) {
    std::uint64_t word = 0;
    std::memcpy(&word, bytes.data() + at, std::min(sizeof word, bytes.size() - at));
    out << (at % 64 == 0 ? "\n    " : " ") << word << "U,";
  }
}

void write(std::ostream& out, const std::string& folder) {
  out << "#include \"xml/BuiltInSchemas.h\"\n\nnamespace {\n";
  std::ostringstream rows;
  for (const Schema& schema : schemas) {
    const std::string text = textOf(folder + "/" + schema.file);
    const std::string name = schema.name;
    out << "\nconstexpr char " << name << "Text[] =\n    " << literalOf(text)
        << ";\n\nconstexpr std::uint64_t " << name << "Grammar[] = {";
    writeWords(out, grammarOf(schema, text));
    out << "\n};\n";
    rows << "\n    {u\"" << schema.plainUri << "\", {" << name << "Text, sizeof " << name
         << "Text - 1}, " << name << "Grammar},";
  }
  out << "\nconstexpr BuiltInSchema schemas[] = {" << rows.str() << "\n};\n\n}  // namespace\n\n"
      << "std::span<const BuiltInSchema> builtInSchemas() { return schemas; }\n";
}

}  // namespace

int main(int count, char** arguments) {
  if (count != 3) {
    std::cerr << "usage: compile_schemas FOLDER OUTPUT\n";
    return 2;
  }
  int failed = 0;
  xercesc::XMLPlatformUtils::Initialize();
  try {
    std::ofstream out(arguments[2], std::ios::binary);
    write(out, arguments[1]);
    out.close();
    if (!out) throw std::runtime_error(std::string(arguments[2]) + " cannot be written");
  } catch (const xercesc::XMLException&) {
    std::cerr << "compile_schemas: the XML parser failed\n";
    failed = 1;
  } catch (const std::exception& failure) {
    std::cerr << "compile_schemas: " << failure.what() << "\n";
    failed = 1;
  }
  xercesc::XMLPlatformUtils::Terminate();
  return failed;
}
