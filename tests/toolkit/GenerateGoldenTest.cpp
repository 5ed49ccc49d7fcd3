// What is made of the examples, compared with what is kept in tests/golden/generate: a change of
// output is to be seen. With AS_RENEW_GOLDEN=1 in the environment it is kept anew.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <ostream>
#include <set>
#include <string>

#include "support/Toolkit.h"

namespace {

namespace fs = std::filesystem;
namespace toolkit = as::toolkit;
using test::contentOf;

// Each kind of each example, and each flavour somewhere; and what examples do not have.
struct Row {
  const char* kind;
  const char* source;
  const char* folder = AS_EXAMPLES_DIR;
  // Whether conditions are the only values that there are.
  bool hasEnumerations = false;
};

constexpr const char* oddities = AS_GOLDEN_DIR "/documents";

void PrintTo(const Row& row, std::ostream* out) { *out << row.kind << " of " << row.source; }

class GenerateGolden : public test::ToolkitTest, public testing::WithParamInterface<Row> {};

// What a file holds, with a word in the place of the version.
std::string contentWithoutVersion(const fs::path& file) {
  std::string text = contentOf(file);
  const std::string start = "Made by AgentServices ";
  const std::string version = toolkit::toolkitVersion();
  for (std::size_t at = text.find(start); at != std::string::npos; at = text.find(start, at + 1)) {
    if (text.compare(at + start.size(), version.size(), version) != 0) continue;
    text.replace(at + start.size(), version.size(), "VERSION");
  }
  return text;
}

std::set<std::string> namesIn(const fs::path& folder) {
  std::set<std::string> names;
  if (!fs::exists(folder)) return names;
  for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
    names.insert(entry.path().filename().string());
  }
  return names;
}

TEST_P(GenerateGolden, IsAsItWas) {
  const std::string source = GetParam().source;
  const fs::path kept = fs::path(AS_GOLDEN_DIR) / "generate" / (source + "-" + GetParam().kind);
  toolkit::GenerateOptions options;
  if (GetParam().hasEnumerations) options.values = {{"conditions", "enumerations"}};
  toolkit::generateFiles(reader(), *toolkit::findGeneratorKind(GetParam().kind),
                         GetParam().folder + ("/" + source + ".xml"), "made/", options);
  if (std::getenv("AS_RENEW_GOLDEN") != nullptr) {
    fs::remove_all(kept);
    fs::create_directories(kept);
    for (const std::string& name : namesIn("made")) {
      std::ofstream(kept / name, std::ios::binary)
          << contentWithoutVersion(fs::path("made") / name);
    }
  }
  EXPECT_EQ(namesIn("made"), namesIn(kept));
  for (const std::string& name : namesIn("made")) {
    EXPECT_TRUE(contentWithoutVersion(fs::path("made") / name) == contentOf(kept / name))
        << name << " is another than " << kept / name;
  }
}

INSTANTIATE_TEST_SUITE_P(
    Examples, GenerateGolden,
    testing::Values(
        Row{"wsdl", "DEPINT01-ws"}, Row{"wsdl", "MOTPREM-ws"}, Row{"wsdl", "PAYSLIP-ws"},
        Row{"wsdl", "WHSLOTS-ws"}, Row{"xsd", "DEPINT01-com"}, Row{"xsd", "MOTPREM-java"},
        Row{"xsd", "PAYSLIP-dotnet"}, Row{"xsd", "WHSLOTS-ws"}, Row{"xsd", "PAYSLIP"},
        Row{"jsonschema", "DEPINT01-java"}, Row{"jsonschema", "MOTPREM-dotnet"},
        Row{"jsonschema", "PAYSLIP-ws"}, Row{"jsonschema", "WHSLOTS-com"},
        Row{"openapi", "DEPINT01-dotnet"}, Row{"openapi", "MOTPREM-ws"},
        Row{"openapi", "PAYSLIP-java"}, Row{"openapi", "WHSLOTS-com"}, Row{"java", "DEPINT01-java"},
        Row{"java", "MOTPREM-java"}, Row{"java", "PAYSLIP-java"}, Row{"java", "WHSLOTS-java"},
        Row{"csharp", "DEPINT01-dotnet"}, Row{"csharp", "MOTPREM-dotnet"},
        Row{"csharp", "PAYSLIP-dotnet"}, Row{"csharp", "WHSLOTS-dotnet"},
        Row{"idl", "DEPINT01-com"}, Row{"idl", "MOTPREM-com"}, Row{"idl", "PAYSLIP-com"},
        Row{"idl", "WHSLOTS-com"}, Row{"markdown", "DEPINT01-ws"}, Row{"markdown", "MOTPREM-ws"},
        Row{"markdown", "PAYSLIP-ws"}, Row{"markdown", "WHSLOTS-ws"}, Row{"jsonschema", "DEPINT01"},
        Row{"java", "MOTPREM"}, Row{"csharp", "WHSLOTS"}, Row{"markdown", "MOTPREM"}));

INSTANTIATE_TEST_SUITE_P(Oddities, GenerateGolden,
                         testing::Values(Row{"wsdl", "ODDITIES-ws", oddities, true},
                                         Row{"xsd", "ODDITIES-ws", oddities, true},
                                         Row{"xsd", "ODDITIES-com", oddities},
                                         Row{"jsonschema", "ODDITIES-com", oddities},
                                         Row{"jsonschema", "ODDITIES-java", oddities},
                                         Row{"openapi", "ODDITIES-ws", oddities, true},
                                         Row{"java", "ODDITIES-java", oddities},
                                         Row{"csharp", "ODDITIES-dotnet", oddities},
                                         Row{"idl", "ODDITIES-com", oddities},
                                         Row{"markdown", "ODDITIES-ws", oddities}));

}  // namespace
