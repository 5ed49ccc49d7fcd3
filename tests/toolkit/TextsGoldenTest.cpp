// What the toolkit tells of whole documents, compared with what is kept in tests/golden/texts:
// trees and JSON, findings, notes of conversions, differences and the data of reports. A change of
// a word is to be seen.
#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "support/Json.h"
#include "support/Kept.h"
#include "support/Toolkit.h"

namespace {

namespace toolkit = as::toolkit;

const std::string oddities = AS_GOLDEN_DIR "/documents/ODDITIES";
const std::string examples = AS_EXAMPLES_DIR "/";

class TextsGolden : public test::ToolkitTest {
 protected:
  static void expectKept(const std::string& name, const std::string& text) {
    test::expectKept("texts/" + name, text);
  }

  static std::string linesOf(const toolkit::Findings& findings) {
    std::string text;
    for (const toolkit::Finding& finding : findings) {
      text += finding.rule + ": " + toolkit::textOf(finding) + "\n";
    }
    return text;
  }
};

TEST_F(TextsGolden, TreesAreAsTheyWere) {
  for (const std::string& name : {examples + "PAYSLIP", examples + "DEPINT01", oddities + "-ws"}) {
    expectKept("tree-" + name.substr(name.rfind('/') + 1) + ".txt", treeOfFile(name + ".xml"));
  }
  expectKept("tree-MOTPREM-ws.txt", treeOfFile(examples + "MOTPREM-ws.xml"));
}

TEST_F(TextsGolden, JsonIsAsItWas) {
  expectKept("ODDITIES.json", jsonOfFile(oddities + ".xml").dump(1) + "\n");
  expectKept("ODDITIES-ws.json", jsonOfFile(oddities + "-ws.xml").dump(1) + "\n");
}

TEST_F(TextsGolden, FindingsAreAsTheyWere) {
  for (const char* const name : {"WHSLOTS-ws", "MOTPREM-java"}) {
    expectKept(std::string("lint-") + name + ".txt",
               linesOf(toolkit::lintFile(reader(), examples + "broken/" + name + ".xml")));
  }
}

TEST_F(TextsGolden, NotesOfConversionsAreAsTheyWere) {
  for (const toolkit::Flavour& to : toolkit::flavours()) {
    std::string text;
    for (const std::string& file : {oddities + "-ws.xml", examples + "MOTPREM-ws.xml",
                                    examples + "PAYSLIP-com.xml", examples + "PAYSLIP-java.xml"}) {
      text += file.substr(file.rfind('/') + 1) + "\n" +
              linesOf(toolkit::convertServiceFile(reader(), file, "out.xml", to).notes);
    }
    expectKept(std::string("convert-") + to.word + ".txt", text);
  }
}

TEST_F(TextsGolden, DifferencesAreAsTheyWere) {
  const toolkit::Diff diff = toolkit::diffFiles(reader(), examples + "MOTPREM-java.xml",
                                                examples + "broken/MOTPREM-java.xml");
  std::ostringstream text;
  toolkit::renderText(text, diff);
  expectKept("diff-MOTPREM-java.txt", text.str());
}

// All files, with what is told of them.
TEST_F(TextsGolden, MessagesOfEveryKindAreAsTheyWere) {
  struct Row {
    const char* kind;
    const char* option;
    const char* value;
  };
  for (const Row& row :
       {Row{"wsdl", "schema", "separate"}, Row{"wsdl", "address", "http://here/"},
        Row{"openapi", "server", "http://here/"}, Row{"openapi", "examples", "none"},
        Row{"markdown", "", ""}, Row{"xsd", "operation", "literal"}, Row{"jsonschema", "", ""}}) {
    toolkit::GenerateOptions options;
    if (*row.option != '\0') options.values = {{row.option, row.value}};
    const toolkit::Generated made =
        toolkit::generateFrom(reader(), *toolkit::findGeneratorKind(row.kind),
                              {AS_GOLDEN_DIR "/documents/MESSAGES-ws.xml"}, options);
    std::string text = linesOf(made.findings);
    for (const toolkit::GeneratedFile& file : made.files) {
      text += "-- " + file.name + "\n" + file.content;
    }
    const std::string version = toolkit::toolkitVersion();
    const std::string banner = "Made by AgentServices ";
    for (std::size_t at = text.find(banner); at != std::string::npos;
         at = text.find(banner, at + 1)) {
      text.replace(at + banner.size(), version.size(), "VERSION");
    }
    expectKept(std::string("messages-") + row.kind + (*row.option == '\0' ? "" : "-") + row.option +
                   ".txt",
               text);
  }
}

// Of a program that changed in many ways, and what becomes of its services.
TEST_F(TextsGolden, DifferencesAndWhatFollowsAreAsTheyWere) {
  const std::vector<std::pair<std::string, std::string>> changes = {
      {"LK-REQ-COVER            PIC 9(01)", "LK-REQ-COVER            PIC 9(03)"},
      {"LK-VEH-MAKE ", "LK-VEH-BRAND"},
      {"LK-VEH-MODEL        PIC X(30).", "LK-VEH-MODEL        PIC N(30)."},
      {"               10  LK-VEH-POWER-KW     PIC 9(04) COMP.\n", ""},
      {"LK-DRV-CLAIM        OCCURS 3", "LK-DRV-CLAIM        OCCURS 2"},
      {"LK-REQ-VERSION          PIC 9(04)", "LK-REQ-VERSION          PIC 9(09)"},
      {"LK-REQ-PAYMENT          PIC X(01)", "LK-REQ-PAYMENT          PIC X(02)"},
      {"LK-RES-MESSAGE          PIC X(60)", "LK-RES-MESSAGE          PIC X(50)"},
      {"LK-RES-NET              PIC S9(07)", "LK-RES-NET              PIC S9(06)"},
      {"ENTRY \"MOTPINST\"", "ENTRY \"MOTPLAN\""},
      {"USING BY VALUE LK-NCD-CLASS", "USING BY REFERENCE LK-NCD-CLASS"},
  };
  std::string source = test::contentOf(examples + "MOTPREM.cbl");
  toolkit::ImportOptions options;
  options.dialect = "natural";
  const auto dictionaryOf = [&options](const std::string& text) {
    return toolkit::importCobol(text, "MOTPREM.cbl", nullptr, options).programs.front().dictionary;
  };
  write("old/MOTPREM.xml", dictionaryOf(source));
  for (const auto& [search, replacement] : changes) {
    const std::size_t at = source.find(search);
    ASSERT_NE(at, std::string::npos) << search;
    source.replace(at, search.size(), replacement);
  }
  write("new/MOTPREM.xml", dictionaryOf(source));
  write("old/gone.xml", test::contentOf(examples + "PAYSLIP-com.xml"));
  write("new/MOTPREM-ws.xml", test::contentOf(examples + "MOTPREM-ws.xml"));
  std::vector<toolkit::DocumentDiff> diffs;
  for (const toolkit::DocumentPair& pair : toolkit::pairsIn("old", "new")) {
    const auto services = toolkit::servicesWithPrograms(reader(), {examples + "MOTPREM-ws.xml"});
    diffs.push_back({pair.name, toolkit::diffPair(reader(), pair, services)});
    // The name of the folder is no part of what is told.
    for (toolkit::Change& change : diffs.back().diff.changes) {
      if (!change.service.empty()) change.service = "MOTPREM-ws.xml";
    }
  }
  std::ostringstream text;
  toolkit::renderText(text, diffs);
  expectKept("diff-folders.txt", text.str());
}

TEST_F(TextsGolden, JsonOfDifferencesIsAsItWas) {
  toolkit::Diff diff;
  diff.changes.resize(3);
  diff.changes[0].kind = "table-longer";
  diff.changes[0].oldPlace = diff.changes[0].newPlace = "R.T";
  diff.changes[0].oldValue = "2";
  diff.changes[0].newValue = "3";
  diff.changes[0].breaks = diff.changes[0].isAllowed = true;
  diff.changes[1] = diff.changes[0];
  diff.changes[1].kind = "item-moved";
  diff.changes[1].cause = 0;
  diff.changes[1].isAllowed = false;
  diff.changes[2].kind = "mapping-lost";
  diff.changes[2].oldPlace = diff.changes[2].newPlace = "ask.a";
  diff.changes[2].oldValue = "R.A";
  diff.changes[2].service = "s.xml";
  std::ostringstream json;
  toolkit::renderJson(json, {{"p.xml", diff}, {"q.xml", {true, {}}}});
  toolkit::renderText(json, {{"p.xml", diff}, {"q.xml", {true, {}}}});
  expectKept("diff-rendered.txt", json.str());
}

TEST_F(TextsGolden, DataOfReportsAreAsTheyWere) {
  const toolkit::Report report = toolkit::makeReport(
      reader(), {oddities + ".xml", oddities + "-ws.xml", examples + "DEPINT01-ws.xml"}, {});
  for (const toolkit::ReportFile& file : report.files) {
    // Sources are as they are.
    if (file.name.rfind("data/", 0) != 0 || file.name.rfind("data/t", 0) == 0) continue;
    const std::string start = file.content.substr(0, file.content.find(", ") + 2);
    const std::string end = ");\n";
    const auto data = nlohmann::ordered_json::parse(
        file.content.substr(start.size(), file.content.size() - start.size() - end.size()));
    std::string text = start;
    // A line for each member, and for each of a list of them.
    for (const auto& [key, value] : data.items()) {
      text += "\n" + key + ": ";
      if (value.is_array() && !value.empty()) {
        for (const auto& member : value) text += "\n  " + member.dump();
      } else {
        text += value.dump();
      }
    }
    expectKept("report-" + file.name.substr(5) + ".txt", text + "\n");
  }
}

}  // namespace
