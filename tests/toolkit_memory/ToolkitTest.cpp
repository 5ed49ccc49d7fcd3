// Tests of the toolkit when memory runs out half-way: what it was to do is done or told by an
// exception, the files are as they were, and nothing is lost. What the XML parser does when it is
// refused memory itself is not ours.
#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <ostream>
#include <sstream>
#include <string>
#include <vector>

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
    write("broken.xml", test::dictionaryOf("<unknown/>"));
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

}  // namespace
