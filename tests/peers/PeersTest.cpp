// Tests of the program that tries the library on documents made for other programs.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <regex>
#include <string>
#include <vector>

#include "support/Documents.h"
#include "support/Labels.h"
#include "support/Tool.h"

#if defined(__SANITIZE_ADDRESS__)
#define AS_SANITIZED
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define AS_SANITIZED
#endif
#endif

namespace {

using test::ToolOutcome;
using testing::AllOf;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

class Peers : public test::ToolTest {
 protected:
  // Has the program try the folder "docs".
  ToolOutcome tryDocs(std::vector<std::string> options = {}) const {
    options.emplace_back("docs");
    return runProgram(AS_PEERS, options);
  }
};

// The numbers of a row of the table in `out`.
std::vector<int> rowOf(const std::string& out, const std::string& title) {
  std::smatch match;
  std::vector<int> numbers;
  if (!std::regex_search(out, match, std::regex("\n" + title + " +([0-9 ]+)\n"))) return numbers;
  std::istringstream row(match[1]);
  for (int number = 0; row >> number;) numbers.push_back(number);
  return numbers;
}

// What the requests of a file as a document come to: model, told in text, parse exception,
// namespace exception, null, other exception.
struct Document {
  const char* label;
  std::string text;
  std::vector<int> outcomes;
};

void PrintTo(const Document& document, std::ostream* out) { *out << document.label; }

class PeersDocument : public Peers, public testing::WithParamInterface<Document> {};

TEST_P(PeersDocument, IsCountedByWhatItsRequestsComeTo) {
  write("docs/a.xml", GetParam().text);
  const ToolOutcome outcome = tryDocs();
  EXPECT_EQ(outcome.exitCode, 0) << outcome.out;
  EXPECT_THAT(outcome.err, IsEmpty());
  EXPECT_EQ(rowOf(outcome.out, "a document"), GetParam().outcomes) << outcome.out;
  EXPECT_THAT(outcome.out, HasSubstr("\n1 files, "));
  EXPECT_THAT(outcome.out, HasSubstr(" requests answered, 0 files with failures\n"));
}

INSTANTIATE_TEST_SUITE_P(
    All, PeersDocument,
    testing::Values(Document{"Good", test::dictionary(""), {2, 8, 2, 8, 0, 0}},
                    Document{"Cut", "<program", {0, 8, 12, 0, 0, 0}},
                    Document{"Foreign", "<html><body/></html>", {0, 8, 0, 12, 0, 0}}),
    test::labelOf<Document>);

TEST_F(Peers, AFileIsTriedInEveryPlace) {
  write("docs/a.xsd",
        "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema' targetNamespace='urn:peer'/>");
  const ToolOutcome outcome = tryDocs();
  const struct {
    const char* place;
    int requests;
  } rows[] = {
      {"a document", 20},
      {"the content of a document of ours", 4},
      {"a schema that a document names", 24},
      {"a program that a service names", 2},
      {"one of the schema directory", 12},
  };
  for (const auto& row : rows) {
    int sum = 0;
    for (const int number : rowOf(outcome.out, row.place)) sum += number;
    EXPECT_EQ(sum, row.requests) << row.place << '\n' << outcome.out;
  }
}

TEST_F(Peers, FilesAreXmlByNameOrByContent) {
  for (const char* const name : {"docs/a.xml", "docs/b.xsd", "docs/c.xsl", "docs/d/e.svg"}) {
    write(name, "");
  }
  write("docs/f", "<x/>");
  write("docs/g", "\xEF\xBB\xBF<x/>");
  write("docs/h", "\xFF\xFE<");
  write("docs/i.txt", "nothing of the kind");
  EXPECT_THAT(tryDocs().out, HasSubstr("\n7 files, "));
  EXPECT_THAT(tryDocs({"--glob", "*.txt", "--glob", "f"}).out, HasSubstr("\n2 files, "));
}

TEST_F(Peers, NothingToTryIsTold) {
  write("docs/i.txt", "nothing of the kind");
  EXPECT_EQ(tryDocs().exitCode, 2);
  EXPECT_EQ(runProgram(AS_PEERS, {"missing"}).exitCode, 2);
}

// How the process of a file that asks for it misbehaves, and what is told of it.
struct Misbehaviour {
  const char* label;
  const char* told;
  const char* patience = "600";
  const char* seconds = "1";
};

void PrintTo(const Misbehaviour& misbehaviour, std::ostream* out) { *out << misbehaviour.label; }

class PeersMisbehaviour : public Peers, public testing::WithParamInterface<Misbehaviour> {};

TEST_P(PeersMisbehaviour, IsAFailureOfTheFile) {
  write("docs/bad.xml", std::string("<!--misbehave:") + GetParam().label + "--><x/>");
  write("docs/good.xml", "<x/>");
  const ToolOutcome outcome = tryDocs({"--misbehave", "--seconds", GetParam().seconds, "--patience",
                                       GetParam().patience, "--memory", "512"});
  EXPECT_EQ(outcome.exitCode, 1);
  const std::string told = GetParam().told;
  EXPECT_THAT(outcome.out, HasSubstr("docs/bad.xml\n  " + told + ": "));
  EXPECT_THAT(outcome.out, AllOf(HasSubstr("\n2 files, "),
                                 HasSubstr(", 1 files with failures\n  " + told + ": 1\n")));
  EXPECT_THAT(outcome.out, Not(HasSubstr("good.xml")));
}

const std::vector<Misbehaviour> misbehaviours = {
#ifdef AS_SANITIZED
    {"leak", "memory leaked"},
#endif
    {"crash", "ended by signal 6 (Aborted)"},
    {"exit", "exited with 7"},
    {"connect", "network attempted"},
    {"throw", "foreign exception"},
    {"hang", "timed out", "1"},
    {"spin", "timed out"},
    // On a busy machine half a gibibyte takes a while, too.
    {"grow", "memory exhausted", "600", "60"},
};

INSTANTIATE_TEST_SUITE_P(All, PeersMisbehaviour, testing::ValuesIn(misbehaviours),
                         test::labelOf<Misbehaviour>);

TEST_F(Peers, ASchemaOfTheClientsOwnMayTakeAnyTime) {
  write("docs/slow.xml", "<!--misbehave:hang in a schema--><x/>");
  const ToolOutcome outcome = tryDocs({"--misbehave", "--patience", "1"});
  EXPECT_EQ(outcome.exitCode, 0) << outcome.out;
  EXPECT_THAT(outcome.out, HasSubstr("given up, as schemas of the client's own have no bounds: 1"));
}

// Only files that are told to, by whoever runs the program, misbehave.
TEST_F(Peers, NoFileMisbehavesByItself) {
  write("docs/bad.xml", "<!--misbehave:crash--><x/>");
  EXPECT_EQ(tryDocs().exitCode, 0);
}

}  // namespace
