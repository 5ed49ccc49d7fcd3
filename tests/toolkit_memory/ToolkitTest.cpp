// Tests of the toolkit when memory runs out half-way: what it was to do is done or told by an
// exception, the files are as they were, and nothing is lost. What the XML parser does when it is
// refused memory itself is not ours.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <memory>
#include <ostream>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "as/toolkit/Baseline.h"
#include "as/toolkit/Diff.h"
#include "as/toolkit/FindingsWriter.h"
#include "as/toolkit/Generate.h"
#include "as/toolkit/Import.h"
#include "as/toolkit/Report.h"
#include "memory/Allocations.h"
#include "memory/Attempts.h"
#include "support/ModelText.h"
#include "support/ServiceSamples.h"
#include "support/Toolkit.h"

namespace {

namespace fs = std::filesystem;
namespace toolkit = as::toolkit;
using memory::End;
using memory::Failing;
using test::ServiceSample;

// Something to do, and what came of it, as text.
struct Work {
  std::string label;
  std::string (*run)(const toolkit::DocumentReader& reader);
};

void PrintTo(const Work& work, std::ostream* out) { *out << work.label; }

template <class Root>
std::string rendered(Root& root) {
  std::ostringstream out;
  // Else a stream tells failures by its state alone.
  out.exceptions(std::ios::badbit | std::ios::failbit);
  toolkit::renderText(out, root);
  toolkit::renderJson(out, root);
  return out.str();
}

std::string textsOf(const toolkit::Findings& findings) {
  std::string text;
  for (const toolkit::Finding& finding : findings) text += textOf(finding) + "\n";
  return text;
}

const toolkit::Flavour& com() { return *toolkit::findFlavour("com"); }
const toolkit::Flavour& web() { return *toolkit::findFlavour("ws"); }

std::string textOf(const toolkit::Diff& diff) {
  std::ostringstream out;
  out.exceptions(std::ios::badbit | std::ios::failbit);
  toolkit::renderText(out, diff);
  toolkit::renderJson(out, diff);
  return out.str();
}

// Every file of every kind that takes a service of that flavour, or a dictionary.
std::string generated(const toolkit::DocumentReader& reader, const char* flavour) {
  std::string text;
  const toolkit::MadeService made =
      toolkit::makeService(reader.readDictionary("PAY.xml"), *toolkit::findFlavour(flavour));
  for (const toolkit::GeneratorKind& kind : toolkit::generatorKinds()) {
    if (std::string_view(kind.flavours.front()) != flavour) continue;
    const toolkit::Generated output = toolkit::generate(kind, *made.service);
    for (const toolkit::GeneratedFile& file : output.files) text += file.name + file.content;
    text += textsOf(output.findings);
  }
  return text;
}

// A line of everything that sources hold, and something wrong.
constexpr char source[] = R"(IDENTIFICATION DIVISION.
PROGRAM-ID. PAY.
ENVIRONMENT DIVISION.
INPUT-OUTPUT SECTION.
FILE-CONTROL.
SELECT F ASSIGN TO "f" ORGANIZATION INDEXED ACCESS RANDOM RECORD KEY K.
DATA DIVISION.
FILE SECTION.
FD F.
COPY RECORDS REPLACING ==:P:== BY ==F==.
WORKING-STORAGE SECTION.
REPLACE ==SIZE-OF-IT== BY ==3==.
78 MOST VALUE 4.
01 T. 05 N PIC 9(SIZE-OF-IT) COMP-5. 05 E PIC S9(5)V99 COMP-3 OCCURS 1 TO MOST DEPENDING ON N.
66 V RENAMES N.
LINKAGE SECTION.
01 L PIC X(12). 88 NO VALUE "N" "n". 01 M REDEFINES L PIC 9(12).
PROCEDURE DIVISION USING L.
ENTRY "PAY2" USING BY VALUE L.
)";

std::string textOf(const toolkit::Imported& imported) {
  std::string text;
  for (const toolkit::ImportedProgram& program : imported.programs) {
    text += program.dictionary;
    for (const char* const item : {"E", "F-KEY"}) {
      for (const auto& explanation : toolkit::explainItem(program, item)) {
        text += textOf(explanation);
      }
    }
  }
  for (const toolkit::ImportFinding& finding : imported.findings) text += textOf(finding);
  return text;
}

const Work works[] = {
    {"Reading",
     [](const toolkit::DocumentReader& reader) {
       return std::to_string(
           reader.readServiceWithProgram("s.xml").service->getOperations()->getLength());
     }},
    {"RenderingADictionary",
     [](const toolkit::DocumentReader& reader) {
       return rendered(*reader.readDictionary("PAY.xml"));
     }},
    {"RenderingAService",
     [](const toolkit::DocumentReader& reader) {
       return rendered(*reader.readServiceWithProgram("s.xml").service);
     }},
    {"Lint",
     [](const toolkit::DocumentReader& reader) {
       return textsOf(toolkit::lintFile(reader, "s.xml"));
     }},
    {"Make",
     [](const toolkit::DocumentReader& reader) {
       return textsOf(toolkit::makeServiceFile(reader, "PAY.xml", "out.xml", web()).notes);
     }},
    {"Convert",
     [](const toolkit::DocumentReader& reader) {
       return textsOf(toolkit::convertServiceFile(reader, "s.xml", "out.xml", com()).notes);
     }},
    {"DiffOfDictionaries",
     [](const toolkit::DocumentReader& reader) {
       toolkit::Diff diff = toolkit::diffFiles(reader, "PAY.xml", "PAY2.xml", {"s.xml"});
       toolkit::allow(diff, "item-moved:REQ");
       return textOf(diff);
     }},
    {"DiffOfServices",
     [](const toolkit::DocumentReader& reader) {
       return textOf(toolkit::diffFiles(reader, "s.xml", "s2.xml"));
     }},
    {"WritingAReport",
     [](const toolkit::DocumentReader&) {
       toolkit::Report report;
       report.files = {{"index.html", "a"}, {"data/index.js", "b"}};
       toolkit::writeReport(report, "site");
       return std::string();
     }},
    {"GenerateForJava",
     [](const toolkit::DocumentReader& reader) { return generated(reader, "java"); }},
    {"GenerateForCom",
     [](const toolkit::DocumentReader& reader) { return generated(reader, "com"); }},
    {"GenerateForDotNet",
     [](const toolkit::DocumentReader& reader) { return generated(reader, "dotnet"); }},
    {"GenerateFiles",
     [](const toolkit::DocumentReader& reader) {
       return textsOf(
           toolkit::generateFiles(reader, *toolkit::findGeneratorKind("java"), "PAY.xml", "out.xml")
               .findings);
     }},
    {"Import",
     [](const toolkit::DocumentReader&) {
       toolkit::FolderCopybooks copybooks({"."}, "PAY.cbl");
       return textOf(toolkit::importCobol(source, "PAY.cbl", &copybooks));
     }},
    {"ImportFile",
     [](const toolkit::DocumentReader&) {
       return textOf(toolkit::importCobolFile("PAY.cbl", "out.xml").imported);
     }},
    {"Findings",
     [](const toolkit::DocumentReader&) {
       const toolkit::Finding finding = {"rule", toolkit::Severity::error, "place", "problem",
                                         "advice"};
       toolkit::Baseline baseline("known.json");
       baseline.add("s.xml", finding);
       baseline.write();
       baseline.read();
       std::ostringstream out;
       out.exceptions(std::ios::badbit | std::ios::failbit);
       for (const toolkit::FindingsFormat& format : toolkit::findingsFormats()) {
         const auto writer = format.makeWriter(out, {"tool", "1", {}});
         writer->add({"s.xml", finding});
         writer->end();
       }
       return out.str();
     }},
    {"ReplaceFile",
     [](const toolkit::DocumentReader&) {
       toolkit::replaceFile("out.xml", "new");
       return std::string();
     }},
    {"Refusal",
     [](const toolkit::DocumentReader& reader) {
       try {
         reader.read("broken.xml");
       } catch (const toolkit::RefusedDocument& refused) {
         return textOf(refused.refusal());
       }
       return std::string("read");
     }},
};

Work workOf(const std::string& label) {
  return *std::find_if(std::begin(works), std::end(works),
                       [&](const Work& work) { return work.label == label; });
}

// Whether a result tells that something could not be read. (The parser swallows what it does not
// know: then there is nothing in a document.)
bool isTold(const std::string& result) {
  for (const char* const words :
       {"nothing found in it", "cannot be used", "An unexpected error occurred"}) {
    if (result.find(words) != std::string::npos) return true;
  }
  return false;
}

class ToolkitOutOfMemory : public test::ToolkitTest, public testing::WithParamInterface<Work> {
 protected:
  void SetUp() override {
    const ServiceSample& sample = test::samples::web;
    write("PAY.xml", test::payProgram());
    write("s.xml", test::rootOf(sample, test::everything(sample), "dataDictFilename=\"PAY.xml\""));
    write("s2.xml",
          test::rootOf(sample, test::everything(sample), "name=\"Paid\" programName=\"P\""));
    write("broken.xml", test::dictionaryOf("<unknown/>"));
    std::string other = test::payProgram();
    for (const auto& [from, to] : {std::pair("X(10)", "X(12)"), std::pair("\"ID\"", "\"IDENT\"")}) {
      other.replace(other.find(from), std::string(from).size(), to);
    }
    write("PAY2.xml", other);
    write("PAY.cbl", source);
    write("RECORDS.cpy", "01 :P:. 05 :P:-KEY PIC X(4). 05 FILLER PIC X(8).\n");
    write("out.xml", "old");
  }
};

INSTANTIATE_TEST_SUITE_P(Works, ToolkitOutOfMemory, testing::ValuesIn(works), test::labelOf<Work>);

TEST_P(ToolkitOutOfMemory, IsDoneOrTold) {
  const std::string expected = GetParam().run(reader());
  const std::string written = test::contentOf("out.xml");
  const auto files = std::distance(fs::directory_iterator("."), fs::directory_iterator());
  write("out.xml", "old");
  const long held = memory::held();
  std::string result;
  std::string told;
  const auto forget = [&] {
    for (std::string* const text : {&result, &told}) std::string().swap(*text);
  };
  const int failures = memory::untilNothingFails(
      [&] {
        try {
          // One that has read before keeps schemas, or, when something failed, lets go of them.
          result = GetParam().run(toolkit::DocumentReader(AS_SCHEMA_DIR));
        } catch (const toolkit::RefusedDocument& refused) {
          told = refused.what();
        } catch (const toolkit::FileError& failure) {
          told = failure.what();
        }
      },
      [&](End end) {
        EXPECT_NE(end, End::inOther);
        EXPECT_TRUE(end != End::well || !told.empty() || result == expected || isTold(result))
            << result;
        forget();
        EXPECT_EQ(memory::held(), held) << "blocks are lost";
        const std::string there = test::contentOf("out.xml");
        EXPECT_TRUE(there == "old" || there == written) << there;
        EXPECT_EQ(std::distance(fs::directory_iterator("."), fs::directory_iterator()), files);
        write("out.xml", "old");
      },
      Failing::ours);
  EXPECT_GT(failures, 2);
  EXPECT_EQ(result, expected);
  EXPECT_EQ(test::contentOf("out.xml"), written.empty() ? "old" : written);
}

class ParserOutOfMemory : public ToolkitOutOfMemory {};

// What makes use of the parser by itself, not through the library.
INSTANTIATE_TEST_SUITE_P(Works, ParserOutOfMemory,
                         testing::ValuesIn(std::vector<Work>{workOf("Convert"),
                                                             workOf("DiffOfDictionaries")}),
                         test::labelOf<Work>);

TEST_P(ParserOutOfMemory, ItsOwnExceptionIsNobodyElses) {
  GetParam().run(reader());
  memory::untilNothingFails(
      [&] {
        try {
          GetParam().run(reader());
        } catch (const std::runtime_error&) {
          // Refused, or not written.
        }
      },
      [&](End end) { EXPECT_NE(end, End::inOther); });
}

}  // namespace
