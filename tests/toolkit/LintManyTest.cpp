// Tests of lint where there is much to tell: the first of many are told, and what a type definition
// leads to is found whatever refers to whatever.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "as/toolkit/Lint.h"
#include "support/Documents.h"
#include "support/Toolkit.h"

namespace {

namespace toolkit = as::toolkit;
using testing::ElementsAre;

std::string numbered(const std::string& name, std::size_t number) {
  return name + std::to_string(number);
}

std::string mapped(const std::string& item) {
  return " dataType='int'><mappings><mapping item='" + item + "'/></mappings>";
}

class LintManyTest : public test::ToolkitTest {
 protected:
  // A program of `records` records R0, R1 and so on, called with those of these names.
  void writeProgram(std::size_t records, const std::vector<std::string>& calledWith) const {
    std::string text = "<dataItems>";
    for (std::size_t i = 0; i < records; ++i) {
      text += "<numeric name='" + numbered("R", i) + "' length='4' digits='4' picture='9(4)'/>";
    }
    text += "</dataItems><entryPoints><entryPoint name='PAY'>";
    for (const std::string& name : calledWith) text += "<parameter dataItem='" + name + "'/>";
    write("PAY.xml", test::dictionary(text + "</entryPoint></entryPoints>"));
  }

  // What is found in a service with these definitions and, in one operation, parameters.
  std::vector<std::string> found(const std::string& definitions,
                                 const std::string& parameters) const {
    write("s.xml",
          test::payService("<parameterTypeDefs>" + definitions +
                           "</parameterTypeDefs><operations><operation name='pay' entryPoint="
                           "'PAY'><parameters>" +
                           parameters + "</parameters></operation></operations>"));
    return test::textsOf(toolkit::lintFile(reader(), "s.xml"));
  }
};

std::vector<std::string> names(const std::string& name, std::size_t count) {
  std::vector<std::string> all;
  for (std::size_t i = 0; i < count; ++i) all.push_back(numbered(name, i));
  return all;
}

const std::string first20 =
    "R0, R1, R2, R3, R4, R5, R6, R7, R8, R9, R10, R11, R12, R13, R14, R15, R16, R17, R18, R19";

TEST_F(LintManyTest, AdviceNamesTheFirstRecords) {
  const std::string parameter = "<parameter name='p'" + mapped("R22") + "</parameter>";
  const std::string problem = "pay.p: R22 is nothing that entry point 'PAY' is called with; ";
  writeProgram(23, names("R", 20));
  EXPECT_THAT(found("", parameter), ElementsAre(problem + "map to something within " + first20));
  writeProgram(23, names("R", 21));
  EXPECT_THAT(found("", parameter),
              ElementsAre(problem + "map to something within " + first20 + " and 1 other"));
  writeProgram(23, names("R", 22));
  EXPECT_THAT(found("", parameter),
              ElementsAre(problem + "map to something within " + first20 + " and 2 others"));
}

TEST_F(LintManyTest, TheFirstLostRecordsOfAnEntryPointAreTold) {
  const auto told = [](std::size_t number) {
    return "pay: entry point 'PAY' is called with '" + numbered("L", number) + "', which is no " +
           "record of the dictionary; make the dictionary anew";
  };
  writeProgram(1, names("L", 20));
  const std::vector<std::string> all = found("", "");
  ASSERT_EQ(all.size(), 20u);
  for (std::size_t i = 0; i < all.size(); ++i) EXPECT_EQ(all[i], told(i));
  writeProgram(1, names("L", 23));
  const std::vector<std::string> first = found("", "");
  ASSERT_EQ(first.size(), 20u);
  EXPECT_EQ(first[18], told(18));
  EXPECT_EQ(first[19],
            "pay: entry point 'PAY' is called with 'L19' and 3 others that are no records of the "
            "dictionary; make the dictionary anew");
}

TEST_F(LintManyTest, TheFirstWrongRecordsOfADefinitionAreTold) {
  const auto definitionOf = [](std::size_t records) {
    std::string fields;
    for (std::size_t i = 0; i < records; ++i) {
      fields += "<field name='" + numbered("f", i) + "'" + mapped(numbered("R", i)) + "</field>";
    }
    return "<parameter name='T'>" + fields + "</parameter>";
  };
  const auto told = [](std::size_t number, const char* more) {
    return "pay.p: " + numbered("R", number) + " is nothing that entry point 'PAY' is called with" +
           more + "; it takes no parameters";
  };
  writeProgram(30, {});
  for (const std::size_t records : {20U, 21U}) {
    const std::vector<std::string> all =
        found(definitionOf(records), "<parameter name='p' ref='T'/>");
    ASSERT_EQ(all.size(), 20U);
    for (std::size_t i = 0; i < 19; ++i) EXPECT_EQ(all[i], told(i, ""));
    EXPECT_EQ(all[19], told(19, records == 20 ? "" : " (and there are others)"));
  }
}

// Names that stand elsewhere than the element that something is told of: of any length, told with
// each of many elements, they would come to thousands of times the size of the documents.
struct LongNameRow {
  const char* label;
  // "@" is the long name.
  const char* program;
  const char* items;
  const char* entryPoint;  // With what it is called with.
  const char* operation;   // What follows in its start tag, and what is in it.
};

const char toR[] =
    " entryPoint='PAY'><parameters><parameter name='p' dataType='int'><mappings><mapping item='R'/>"
    "</mappings></parameter></parameters>";

const LongNameRow longNameRows[] = {
    {"ProgramWithoutAnEntryPoint", "@", "", "PAY'>", " entryPoint='GO'>"},
    {"ProgramWithoutAnItem", "@", "", "PAY'>", toR},
    {"LostRecord", "PAYROLL", "", "PAY'><parameter dataItem='@'/>", " entryPoint='PAY'>"},
    {"RecordToMapTo", "PAYROLL",
     "<numeric name='R' length='4' digits='4' picture='9(4)'/>"
     "<numeric name='@' length='4' digits='4' picture='9(4)'/>",
     "PAY'><parameter dataItem='@'/>", toR},
    {"RecordThatIsRedefined", "PAYROLL",
     "<numeric name='@' length='4' digits='4' picture='9(4)'/>"
     "<numeric name='R' length='4' digits='4' picture='9(4)' redefines='true'/>",
     "PAY'>", toR},
    {"EntryPoint", "PAYROLL", "<numeric name='R' length='4' digits='4' picture='9(4)'/>", "@'>",
     " entryPoint='@'><parameters><parameter name='p' dataType='int'><mappings><mapping item='R'/>"
     "</mappings></parameter></parameters>"},
    {"ItemThatIsMeant", "PAYROLL",
     "<group name='@' length='4'><numeric name='R' length='4' digits='4' picture='9(4)'/></group>",
     "PAY'>", toR}};

class LintLongName : public test::ToolkitTest, public testing::WithParamInterface<LongNameRow> {};

TEST_P(LintLongName, IsToldInPart) {
  const LongNameRow& row = GetParam();
  const auto filled = [](std::string text) {
    for (std::size_t at = text.find('@'); at != std::string::npos; at = text.find('@', at)) {
      text.replace(at, 1, std::string(100000, 'N'));
    }
    return text;
  };
  write("PAY.xml", test::element("program",
                                 filled(std::string("<dataItems>") + row.items +
                                        "</dataItems><entryPoints><entryPoint name='" +
                                        row.entryPoint + "</entryPoint></entryPoints>"),
                                 test::declarations(as::namespaces::dd.uri) + " name='" +
                                     filled(row.program) + "'"));
  write("s.xml", test::payService("<operations><operation name='pay'" + filled(row.operation) +
                                  "</operation></operations>"));
  const std::vector<std::string> told = test::textsOf(toolkit::lintFile(reader(), "s.xml"));
  // In front of it stands once for the document that the program is another.
  ASSERT_FALSE(told.empty());
  EXPECT_THAT(told.back(), testing::HasSubstr("NNN...NNN"));
  EXPECT_LT(told.back().size(), 10000U);
}

INSTANTIATE_TEST_SUITE_P(Rows, LintLongName, testing::ValuesIn(longNameRows),
                         test::labelOf<LongNameRow>);

// Definitions that refer to others by chance, and parameters that refer to them. A definition's
// records are told in the order in which they are met, the first 20 of them.
class LintTypeStorage : public LintManyTest, public testing::WithParamInterface<unsigned int> {
 protected:
  struct Part {
    bool isReference;
    std::size_t number;
  };

  std::size_t below(std::size_t count) { return engine_() % count; }

  // Adds the wrong records below a definition that are not among them yet.
  void collect(std::size_t definition, const std::vector<bool>& isWrong,
               std::vector<std::size_t>& wrong) const {
    for (const Part& part : definitions_[definition]) {
      if (part.isReference) {
        collect(part.number, isWrong, wrong);
      } else if (isWrong[part.number] &&
                 std::find(wrong.begin(), wrong.end(), part.number) == wrong.end()) {
        wrong.push_back(part.number);
      }
    }
  }

  std::mt19937 engine_{GetParam()};
  std::vector<std::vector<Part>> definitions_;
};

INSTANTIATE_TEST_SUITE_P(Seeds, LintTypeStorage, testing::Range(1u, 31u));

TEST_P(LintTypeStorage, IsThatOfAllThatADefinitionRefersTo) {
  constexpr std::size_t records = 120;
  const std::size_t wrongOfTen = GetParam() % 3 == 0 ? 1 : GetParam() % 3 == 1 ? 5 : 10;
  std::vector<bool> isWrong(records);
  std::vector<std::string> calledWith;
  for (std::size_t i = 0; i < records; ++i) {
    isWrong[i] = below(10) < wrongOfTen;
    if (!isWrong[i]) calledWith.push_back(numbered("R", i));
  }
  writeProgram(records, calledWith);

  std::string definitions;
  std::string parameters;
  for (std::size_t d = 0; d < 40; ++d) {
    std::vector<Part> parts;
    for (std::size_t i = below(6); i > 0; --i) {
      const bool isReference = d > 0 && below(3) == 0;
      // Those near make long ways; no more than two keep the ways few enough for this test.
      parts.push_back(
          {isReference, isReference ? d - 1 - below(std::min<std::size_t>(d, 9)) : below(records)});
    }
    const auto isReference = [](const Part& part) { return part.isReference; };
    while (std::count_if(parts.begin(), parts.end(), isReference) > 2) {
      parts.erase(std::find_if(parts.begin(), parts.end(), isReference));
    }
    const std::string name = numbered("T", d);
    if (parts.size() == 1 && parts.front().isReference && below(2) == 0) {
      definitions +=
          "<parameter name='" + name + "' ref='" + numbered("T", parts.front().number) + "'/>";
    } else {
      definitions += "<parameter name='" + name + "'>";
      for (std::size_t i = 0; i < parts.size(); ++i) {
        definitions += "<field name='" + numbered("f", i) + "'" +
                       (parts[i].isReference ? " ref='" + numbered("T", parts[i].number) + "'>"
                                             : mapped(numbered("R", parts[i].number))) +
                       "</field>";
      }
      definitions += "</parameter>";
    }
    definitions_.push_back(parts);
    parameters += "<parameter name='" + numbered("p", d) + "' ref='" + name + "'/>";
  }

  std::vector<std::string> expected;
  for (std::size_t d = 0; d < definitions_.size(); ++d) {
    std::vector<std::size_t> wrong;
    collect(d, isWrong, wrong);
    for (std::size_t i = 0; i < wrong.size() && i < 20; ++i) {
      expected.push_back("pay." + numbered("p", d) + ": " + numbered("R", wrong[i]) +
                         " is nothing that entry point 'PAY' is called with" +
                         (i == 19 && wrong.size() > 20 ? " (and there are others);" : ";"));
    }
  }
  std::vector<std::string> told;
  for (const std::string& text : found(definitions, parameters)) {
    if (text.find(" is nothing that ") == std::string::npos) continue;
    told.push_back(text.substr(0, text.find(';') + 1));
  }
  EXPECT_EQ(told, expected);
}

}  // namespace
