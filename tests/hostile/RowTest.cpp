// What is expected of every row, and that what expects it sees what it should.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/parsers/XercesDOMParser.hpp>

#include "hostile/NetworkTrap.h"
#include "hostile/Row.h"
#include "support/ServiceForms.h"
#include "support/TempDirectory.h"

namespace hostile {

namespace {

using test::Result;
using testing::HasSubstr;

std::string replaced(std::string text, const std::string& what, const std::string& with) {
  for (std::size_t at = text.find(what); at != std::string::npos;
       at = text.find(what, at + with.size())) {
    text.replace(at, what.size(), with);
  }
  return text;
}

template <class Root>
void expect(const Answer& answer, const test::Outcome<Root>& outcome) {
  EXPECT_EQ(outcome.result, answer.result) << outcome.text;
  EXPECT_THAT(outcome.text, HasSubstr(answer.text));
  if (answer.line != anyLine) {
    EXPECT_EQ(outcome.message.getLineNum(), answer.line);
  }
}

void expectOfDictionary(const Row& row, as::IAgentServices& services, const std::string& file,
                        const std::string& document) {
  expect(row.answer, test::outcomeOf([&] { return services.parseCobolDD(file.c_str()); }));
  expect(row.answer, test::outcomeOf(services, document, file.c_str()));
}

// Of the form that tells failures by a text.
void expectOfTextForm(const Answer& answer, const test::Outcome<as::IService>& outcome,
                      const std::string& text) {
  const bool fails =
      answer.result == Result::parseException || answer.result == Result::namespaceException;
  EXPECT_EQ(outcome.result, fails ? Result::null : answer.result) << outcome.text;
  EXPECT_EQ(text.empty(), !fails);
  EXPECT_THAT(text, HasSubstr(answer.text));
}

void expectOfService(const Row& row, as::IAgentServices& services, const std::string& file,
                     const std::string& document) {
  for (const test::ServiceForm& form : test::serviceForms) {
    SCOPED_TRACE(form.label);
    std::string text;
    const auto outcome = test::outcomeOf(
        [&] { return form.request(services, file, document, text, row.loadProgram); });
    if (form.tellsText) {
      expectOfTextForm(row.answer, outcome, text);
    } else {
      expect(row.answer, outcome);
    }
  }
}

TEST_P(HostileDocument, ComesToWhatIsExpected) {
  const Row& row = GetParam();
  NetworkTrap network;
  const test::TempDirectory directory;
  const auto inPlace = [&](const Text& text) {
    const std::string there = replaced(text(), "@DIR@", directory.path());
    return replaced(replaced(there, "@NET@", network.url("")), "@SHIPPED@", AS_SCHEMA_DIR "/");
  };
  for (const File& file : row.files) directory.write(file.name, inPlace(file.text));
  const std::string document = inPlace(row.document);
  const std::string file = directory.write("document.xml", document);
  const auto services = test::servicesWithoutSchemas();
  if (row.schemas == Schemas::shipped) services->setSchemaLocation(AS_SCHEMA_DIR);
  if (row.schemas == Schemas::own) services->setSchemaLocation(directory.path().c_str());
  if (isDictionary(row.kind)) {
    expectOfDictionary(row, *services, file, document);
  } else {
    expectOfService(row, *services, file, document);
  }
  EXPECT_EQ(network.visitors(), 0);
}

TEST(NetworkTrap, CountsWhoConnects) {
  NetworkTrap trap;
  EXPECT_EQ(trap.visitors(), 0);
  for (int visits = 1; visits <= 3; visits++) {
    trap.visit();
    EXPECT_EQ(trap.visitors(), visits);
  }
}

// The parser by itself does what this library must keep it from.
TEST(NetworkTrap, CountsTheParser) {
  NetworkTrap trap;
  const std::string document = "<!DOCTYPE r SYSTEM '" + trap.url("d.dtd") + "'><r/>";
  xercesc::XercesDOMParser parser;
  const xercesc::MemBufInputSource source(test::bytesOf(document), document.size(), "d.xml");
  parser.parse(source);
  EXPECT_EQ(trap.visitors(), 1);
}

}  // namespace

}  // namespace hostile
