// Keeps the schemas of services alike: each flavour's is the plain one and what the flavour has of
// its own, to the line.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <ostream>
#include <set>
#include <string>
#include <vector>

namespace {

using Lines = std::vector<std::string>;

struct Flavour {
  const char* file;
  std::set<std::string> own;  // The declarations that the plain schema lacks, by kind and name.
};

void PrintTo(const Flavour& flavour, std::ostream* out) { *out << flavour.file; }

const Flavour flavours[] = {
    {"vorcom.xsd",
     {
         "simpleType dataType",
         "simpleType flag",
         "attribute dataType",
         "attribute returnParameter",
     }},
    {"vordotnet.xsd",
     {
         "simpleType dataType",
         "attribute dataType",
     }},
    {"vorjava.xsd",
     {
         "simpleType transactionType",
         "simpleType dataType",
         "attribute transactionType",
         "attribute dataType",
     }},
    {"vorws.xsd",
     {
         "simpleType style",
         "simpleType use",
         "simpleType form",
         "simpleType dataType",
         "complexType fieldAttribute",
         "complexType header",
         "complexType fault",
         "element header",
         "element fault",
         "element fieldAttribute",
         "attribute style",
         "attribute inputUse",
         "attribute outputUse",
         "attribute inputNamespace",
         "attribute outputNamespace",
         "attribute dataType",
         "attribute namespace",
         "attribute elementForm",
         "attribute attributeForm",
     }},
};

bool startsWith(const std::string& line, const std::string& start) {
  return line.compare(0, start.size(), start) == 0;
}

// The lines of a schema that are not empty, without the blanks in front; those of a comment behind
// the head make one.
Lines read(const std::string& file) {
  std::ifstream in(std::string(AS_SCHEMA_DIR) + "/" + file);
  Lines lines;
  bool inComment = false;
  for (std::string text; std::getline(in, text);) {
    const std::size_t start = text.find_first_not_of(' ');
    if (start == std::string::npos) continue;
    const std::string line = text.substr(start);
    if (inComment) {
      lines.back() += " " + line;
    } else {
      lines.push_back(line);
    }
    const bool begins = startsWith(line, "<!-- ");
    inComment = (inComment || begins) && line.find("-->") == std::string::npos;
  }
  return lines;
}

// Without what the head says of this one schema: its namespace, its version, what it is for, and
// how a document names it, with an example.
Lines withoutHead(const Lines& lines) {
  Lines result;
  bool inPurpose = false;
  bool seenPurpose = false;
  bool inExample = false;
  for (const std::string& line : lines) {
    if (startsWith(line, "xmlns=") || startsWith(line, "targetNamespace=") ||
        startsWith(line, "version=")) {
      continue;
    }
    if (startsWith(line, "A service exposes one COBOL program")) inPurpose = false;
    if (startsWith(line, "The root has to name this schema")) inExample = true;
    if (line == "-->") inExample = false;
    if (!inPurpose && !inExample) result.push_back(line);
    if (!seenPurpose && line == "<!--") inPurpose = seenPurpose = true;
  }
  return result;
}

// "simpleType dataType" for the line that begins the declaration; empty for any other.
std::string declarationAt(const std::string& line) {
  const std::string start = "<xs:";
  const std::string name = " name=\"";
  const std::size_t at = line.find(name);
  if (!startsWith(line, start) || at == std::string::npos) return {};
  const std::size_t end = line.find('"', at + name.size());
  return line.substr(start.size(), at - start.size()) + " " +
         line.substr(at + name.size(), end - at - name.size());
}

bool isWhole(const std::string& line) {
  return line.size() > 2 && line.compare(line.size() - 2, 2, "/>") == 0;
}

// Without the declarations `own` and what is said of each in front of it; they are taken out of
// `unseen`.
Lines withoutOwn(const Lines& lines, const std::set<std::string>& own,
                 std::set<std::string>& unseen) {
  Lines result;
  std::string end;  // Of the declaration that is being left out.
  for (const std::string& line : lines) {
    const std::string declaration = end.empty() ? declarationAt(line) : "";
    if (own.count(declaration) != 0) {
      unseen.erase(declaration);
      if (!result.empty() && startsWith(result.back(), "<!-- ")) result.pop_back();
      if (isWhole(line)) continue;
      end = "</xs:" + declaration.substr(0, declaration.find(' ')) + ">";
    }
    if (end.empty()) result.push_back(line);
    if (line == end) end.clear();
  }
  return result;
}

// A choice that has lost its alternatives to withoutOwn() is no choice: nothing is left of one
// without members, and of one with a single member that member, any number of times.
Lines withoutChoices(const Lines& lines) {
  const std::string anyNumber = " minOccurs=\"0\" maxOccurs=\"unbounded\"";
  const std::string begin = "<xs:choice" + anyNumber + ">";
  Lines result;
  for (std::size_t i = 0; i < lines.size(); i++) {
    std::size_t end = i;
    int members = 0;
    if (lines[i] == begin) {
      while (++end < lines.size() && lines[end] != "</xs:choice>") {
        members += declarationAt(lines[end]).empty() ? 0 : 1;
      }
    }
    if (end == i || members > 1) {
      result.push_back(lines[i]);
      continue;
    }
    for (std::size_t inside = i + 1; inside < end; inside++) {
      std::string line = lines[inside];
      if (!declarationAt(line).empty()) line.insert(line.size() - 2, anyNumber);
      result.push_back(line);
    }
    i = end;
  }
  return result;
}

class SharedSchema : public testing::TestWithParam<Flavour> {};

INSTANTIATE_TEST_SUITE_P(Flavours, SharedSchema, testing::ValuesIn(flavours),
                         [](const auto& value) {
                           const std::string file = value.param.file;
                           return file.substr(0, file.find('.'));
                         });

TEST_P(SharedSchema, IsThePlainOneWithoutWhatTheFlavourAdds) {
  std::set<std::string> unseen = GetParam().own;
  const Lines plain = withoutHead(read("vorservice.xsd"));
  const Lines flavour =
      withoutChoices(withoutOwn(withoutHead(read(GetParam().file)), GetParam().own, unseen));
  ASSERT_GT(plain.size(), 180u);
  for (std::size_t i = 0; i < plain.size() && i < flavour.size(); i++) {
    ASSERT_EQ(flavour[i], plain[i]) << "line " << i << " of what they should share, behind\n"
                                    << (i == 0 ? "" : plain[i - 1]);
  }
  EXPECT_EQ(flavour.size(), plain.size());
  EXPECT_EQ(unseen, std::set<std::string>()) << "declared nowhere";
}

TEST(SharedSchemas, AreAllOfTheFolderButThePlainOneAndTheDictionarys) {
  std::set<std::string> files = {"vorservice.xsd", "vorcobol.xsd"};
  for (const Flavour& flavour : flavours) files.insert(flavour.file);
  std::set<std::string> shipped;
  for (const auto& entry : std::filesystem::directory_iterator(AS_SCHEMA_DIR)) {
    shipped.insert(entry.path().filename().string());
  }
  EXPECT_EQ(shipped, files);
}

}  // namespace
