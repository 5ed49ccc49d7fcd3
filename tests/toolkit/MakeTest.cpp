// Tests of making services: what becomes of each kind of item, what is told, and that a failure
// loses nothing.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <algorithm>
#include <filesystem>
#include <memory>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "support/Documents.h"
#include "support/Model.h"
#include "support/Requests.h"
#include "support/Toolkit.h"

namespace {

using test::contentOf;
using test::dictionary;
using test::fileErrorOf;
using test::labelOf;
using test::refusalOf;
using test::textsOf;
namespace toolkit = as::toolkit;
using testing::AllOf;
using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::Eq;
using testing::Field;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::Pair;
using testing::StartsWith;

const std::vector<std::string> flavours = {"com", "dotnet", "java", "ws"};

// A program that is called with the linkage items, each by reference.
std::string programOf(const std::string& items, const std::vector<std::string>& names) {
  std::string linkage;
  for (const std::string& name : names) {
    linkage += "<parameter dataItem='" + name + "' byType='reference'/>";
  }
  return dictionary("<dataItems>" + items + "</dataItems><entryPoints><entryPoint name='GO'>" +
                    linkage + "</entryPoint></entryPoints>");
}

class MakeTest : public test::ToolkitTest {
 protected:
  // Makes s.xml.
  toolkit::MadeService make(const std::string& program, const std::string& flavour = "java",
                            const toolkit::MakeOptions& options = {}) const {
    write("p.xml", program);
    return makeFrom("p.xml", "s.xml", flavour, options);
  }

  toolkit::MadeService makeFrom(const std::string& dictionary, const std::string& output,
                                const std::string& flavour = "ws",
                                const toolkit::MakeOptions& options = {}) const {
    return toolkit::makeServiceFile(reader(), dictionary, output, *toolkit::findFlavour(flavour),
                                    options);
  }

  // The service made, as JSON with its program.
  nlohmann::json made() const { return jsonOf(*reader().readServiceWithProgram("s.xml").service); }

  // The first parameter of the first operation.
  nlohmann::json firstParameter() const { return made()["operations"][0]["parameters"][0]; }

  void expectClean(const std::string& file = "s.xml") const {
    EXPECT_THAT(textsOf(toolkit::lintFile(reader(), file)), IsEmpty());
  }
};

// An item of the name I, and the data type that it gets in each of the flavours; empty when none
// holds it.
struct TypeRow {
  std::string label;
  const char* item;
  std::vector<std::string> types;
};

void PrintTo(const TypeRow& row, std::ostream* out) { *out << row.item; }

class MakeType : public MakeTest, public testing::WithParamInterface<TypeRow> {};

TEST_P(MakeType, HoldsTheItem) {
  const std::string item = "<" + std::string(GetParam().item) + " name='I' offset='0'/>";
  for (std::size_t i = 0; i < flavours.size(); i++) {
    SCOPED_TRACE(flavours[i]);
    const toolkit::MadeService outcome = make(programOf(item, {"I"}), flavours[i]);
    const std::string& type = GetParam().types[i];
    if (type.empty()) {
      EXPECT_EQ(made()["operations"][0]["parameters"], nlohmann::json::array());
      EXPECT_THAT(textsOf(outcome.notes), ElementsAre(StartsWith("GO.I: no data type of ")));
    } else {
      EXPECT_EQ(firstParameter()["typeText"], type);
      EXPECT_EQ(firstParameter()["mappings"][0]["dataItem"], "I");
    }
    expectClean();
  }
}

#define DIGITS(digits, places) \
  "' digits='" #digits "' alignment='" #places "' length='9' picture='9"

INSTANTIATE_TEST_SUITE_P(
    Items, MakeType,
    testing::Values(
        TypeRow{"TwoDigits",
                "numeric usage='display" DIGITS(2, 0) "'",
                {"byte", "Byte", "byte", "byte"}},
        TypeRow{"TwoSignedDigits",
                "numeric usage='display" DIGITS(2, 0) "' sign='true'",
                {"short", "SByte", "byte", "byte"}},
        TypeRow{"FourDigits",
                "numeric usage='comp" DIGITS(4, 0) "'",
                {"short", "Int16", "short", "short"}},
        TypeRow{"NineDigits",
                "numeric usage='comp-3" DIGITS(9, 0) "' sign='true'",
                {"int", "Int32", "int", "int"}},
        TypeRow{"TenDigits",
                "numeric usage='comp-3" DIGITS(10, 0) "' sign='true'",
                {"currency", "Int64", "long", "long"}},
        TypeRow{"EighteenDigits",
                "numeric usage='comp" DIGITS(18, 0) "' sign='true'",
                {"string", "Int64", "long", "long"}},
        TypeRow{"NineteenDigits",
                "numeric usage='comp-3" DIGITS(19, 0) "'",
                {"string", "UInt64", "BigInteger", "unsignedLong"}},
        TypeRow{"NineteenSignedDigits",
                "numeric usage='comp-3" DIGITS(19, 0) "' sign='true'",
                {"string", "Decimal", "BigInteger", "integer"}},
        TypeRow{"ThirtyOneDigits",
                "numeric usage='comp-3" DIGITS(31, 0) "' sign='true'",
                {"string", "String", "BigInteger", "integer"}},
        TypeRow{"Money",
                "numeric usage='comp-3" DIGITS(9, 2) "' sign='true'",
                {"currency", "Decimal", "BigDecimal", "decimal"}},
        TypeRow{"ManyPlaces",
                "numeric usage='comp-3" DIGITS(9, 6) "' sign='true'",
                {"double", "Decimal", "BigDecimal", "decimal"}},
        TypeRow{"ManyDigitsAndPlaces",
                "numeric usage='comp-3" DIGITS(18, 6) "' sign='true'",
                {"string", "Decimal", "BigDecimal", "decimal"}},
        TypeRow{"ScaledUp",
                "numeric usage='display' digits='12' alignment='0' length='3' "
                "picture='9(3)P(9)'",
                {"currency", "Int64", "long", "long"}},
        // These use their bytes to the full, whatever their picture says.
        TypeRow{"FullHalfword",
                "numeric usage='comp-5' digits='4' alignment='0' length='2' picture='9(4)'",
                {"int", "UInt16", "int", "unsignedShort"}},
        TypeRow{"FullSignedHalfword",
                "numeric usage='comp-5' digits='4' alignment='0' length='2' picture='S9(4)' "
                "sign='true'",
                {"short", "Int16", "short", "short"}},
        TypeRow{"FullWord",
                "numeric usage='comp-5' digits='9' alignment='0' length='4' picture='9(9)'",
                {"currency", "UInt32", "long", "unsignedInt"}},
        TypeRow{"FullDoubleword",
                "numeric usage='comp-5' digits='18' alignment='0' length='8' picture='9(18)'",
                {"string", "UInt64", "BigInteger", "unsignedLong"}},
        TypeRow{"FullThreeBytes",
                "numeric usage='comp-x' digits='6' alignment='0' length='3' picture='9(6)'",
                {"int", "Int32", "int", "int"}},
        TypeRow{"FullWithPlaces",
                "numeric usage='comp-5' digits='9' alignment='2' length='4' picture='9(7)V99'",
                {"currency", "Decimal", "BigDecimal", "decimal"}},
        TypeRow{"Float",
                "numeric usage='comp-1' length='4' sign='true'",
                {"float", "Single", "float", "float"}},
        TypeRow{"Double",
                "numeric usage='comp-2' length='8' sign='true'",
                {"double", "Double", "double", "double"}},
        TypeRow{"ExternalFloat",
                "numeric usage='externalFloat' digits='7' length='12' picture='+9(3).9(4)E+99' "
                "sign='true'",
                {"double", "Double", "double", "double"}},
        TypeRow{"Text",
                "alphanumeric length='10' picture='X(10)'",
                {"string", "String", "String", "string"}},
        TypeRow{"National",
                "national usage='unicode' length='20' picture='N(10)'",
                {"string", "String", "String", "string"}},
        TypeRow{"EditedNumber",
                "numericEdited length='9' digits='7' alignment='2' "
                "picture='Z(5)9.99'",
                {"string", "String", "String", "string"}},
        TypeRow{"LongExternalFloat",
                "numeric usage='externalFloat' digits='18' alignment='16' length='24' "
                "picture='+9(02).9(16)E+99' sign='true'",
                {"string", "String", "BigDecimal", "decimal"}},
        TypeRow{"ObjectReference", "cobolObject length='8'", {"", "", "", ""}},
        TypeRow{"PointerOfUnknownLength", "pointer", {"", "", "BigDecimal", "decimal"}},
        TypeRow{"IndexOfUnknownLength", "index", {"string", "String", "BigDecimal", "decimal"}},
        TypeRow{"Pointer", "pointer length='8'", {"", "UInt64", "BigInteger", "unsignedLong"}},
        TypeRow{"Index", "index length='4'", {"currency", "UInt32", "long", "unsignedInt"}}),
    labelOf<TypeRow>);

TEST_F(MakeTest, DirectionsAreThoseOfTheEntryPoint) {
  const std::string program = dictionary(
      "<dataItems><alphanumeric name='A' offset='0' length='1' picture='X'/>"
      "<alphanumeric name='B' offset='0' length='1' picture='X'/>"
      "<numeric name='C' offset='0' length='4' digits='9' usage='comp' picture='9(9)'/>"
      "<numeric name='D' offset='0' length='4' digits='9' usage='comp' picture='9(9)'/>"
      "</dataItems><entryPoints><entryPoint name='GO'><parameter dataItem='A' byType='reference'/>"
      "<parameter dataItem='B' byType='value'/><parameter dataItem='C' byType='returning'/>"
      "<parameter dataItem='D'/></entryPoint></entryPoints>");
  make(program, "com");
  const nlohmann::json parameters = made()["operations"][0]["parameters"];
  std::vector<std::string> directions;
  std::vector<std::string> results;
  for (const auto& parameter : parameters) {
    directions.push_back(parameter["byTypeText"]);
    results.push_back(parameter["returnParameterText"]);
  }
  EXPECT_THAT(directions, ElementsAre("io", "in", "out", "io"));
  EXPECT_THAT(results, ElementsAre("no", "no", "yes", "no"));
}

TEST_F(MakeTest, GroupsBecomeNestedFieldsAndTablesOccur) {
  make(test::payProgram());
  const nlohmann::json request = firstParameter();
  EXPECT_EQ(request["name"], "REQ");
  EXPECT_EQ(request["mappings"], nlohmann::json::array());
  const nlohmann::json line = request["children"][2];
  EXPECT_EQ(line["name"], "LINE");
  EXPECT_EQ(line["occurs"], 3);
  const nlohmann::json cell = line["children"][1];
  EXPECT_EQ(cell["occurs"], 2);
  EXPECT_EQ(cell["mappings"][0]["rawMapping"], "REQ.LINE.CELL(*,*)");
  EXPECT_EQ(cell["mappings"][0]["interfaceSubscripts"], nlohmann::json::array({-1, -1}));
  EXPECT_EQ(made()["operations"][0]["parameters"][1]["byTypeText"], "out");
}

TEST_F(MakeTest, RepeatedGroupsOfWebServicesAreArrays) {
  make(test::payProgram(), "ws");
  EXPECT_EQ(firstParameter()["typeText"], "unknown");
  EXPECT_EQ(firstParameter()["children"][2]["typeText"], "Array");
}

TEST_F(MakeTest, OperationsHaveWhatTheFlavourNeeds) {
  make(test::payProgram(), "java");
  EXPECT_EQ(made()["operations"][0]["transactionTypeText"], "requires");
  make(test::payProgram(), "ws");
  const nlohmann::json web = made()["operations"][0];
  EXPECT_EQ(web["styleText"], "document");
  EXPECT_EQ(web["inputUseText"], "literal");
  EXPECT_EQ(web["outputUseText"], "literal");
  EXPECT_EQ(web["inputNamespace"], "urn:agentservices:PAYROLL");
  EXPECT_EQ(web["outputNamespace"], "urn:agentservices:PAYROLL");
}

// What is told of a member of the record R beside the field KEPT.
struct NoteRow {
  std::string label;
  const char* members;
  std::vector<std::string> fields;
  std::vector<std::string> notes;
};

void PrintTo(const NoteRow& row, std::ostream* out) { *out << row.members; }

class MakeNote : public MakeTest, public testing::WithParamInterface<NoteRow> {};

TEST_P(MakeNote, IsTold) {
  const std::string kept = "<alphanumeric name='KEPT' offset='0' length='1' picture='X'/>";
  const toolkit::MadeService outcome = make(programOf(
      "<group name='R' offset='0' length='99'>" + kept + GetParam().members + "</group>", {"R"}));
  std::vector<std::string> fields;
  const nlohmann::json parameter = firstParameter();
  for (const auto& field : parameter["children"]) fields.push_back(field["name"]);
  EXPECT_EQ(fields, GetParam().fields);
  EXPECT_EQ(textsOf(outcome.notes), GetParam().notes);
  EXPECT_THAT(outcome.notes, Each(Field(&toolkit::Finding::severity, Eq(toolkit::Severity::note))));
  expectClean();
}

INSTANTIATE_TEST_SUITE_P(
    Members, MakeNote,
    testing::Values(
        NoteRow{"Redefinition",
                "<group name='G' offset='0' length='1' redefines='true'>"
                "<alphanumeric name='A' offset='0' length='1' picture='X'/></group>",
                {"KEPT"},
                {"GO.R.G: it redefines other items, which are there already: left out"}},
        NoteRow{"Renaming",
                "<alphanumeric name='N' offset='0' length='1' renames='true'/>",
                {"KEPT"},
                {"GO.R.N: it renames other items, which are there already: left out"}},
        NoteRow{"Filler",
                "<alphanumeric name='FILLER' offset='1' length='1' picture='X'/>",
                {"KEPT"},
                {"GO.R: 1 item without a name left out"}},
        NoteRow{"Fillers",
                "<alphanumeric name='FILLER' offset='1' length='1' picture='X'/>"
                "<numeric name='FILLER' offset='2' length='1' digits='1' picture='9'/>",
                {"KEPT"},
                {"GO.R: 2 items without a name left out"}},
        NoteRow{"FillerGroup",
                "<group name='FILLER' offset='1' length='2'>"
                "<alphanumeric name='A' offset='1' length='1' picture='X'/>"
                "<alphanumeric name='FILLER' offset='2' length='1' picture='X'/></group>",
                {"KEPT", "A"},
                {"GO.R: 1 item without a name left out"}},
        NoteRow{"FillerTable",
                "<group name='FILLER' offset='1' length='1' minOccurs='2' maxOccurs='2'>"
                "<alphanumeric name='A' offset='1' length='1' picture='X'/></group>",
                {"KEPT", "FILLER"},
                {}},
        NoteRow{"RedefinitionOfFiller",
                "<alphanumeric name='FILLER' offset='1' length='4' picture='X(4)'/>"
                "<group name='G' offset='1' length='4' redefines='true'>"
                "<alphanumeric name='A' offset='1' length='4' picture='X(4)'/></group>"
                "<group name='H' offset='1' length='4' redefines='true'>"
                "<alphanumeric name='B' offset='1' length='4' picture='X(4)'/></group>",
                {"KEPT", "G"},
                {"GO.R.G: it redefines an item that cannot be mapped: it stands in its place",
                 "GO.R.H: it redefines other items, which are there already: left out",
                 "GO.R: 1 item without a name left out"}},
        NoteRow{"MembersOfAGroupWithADot",
                "<group name='G.H' offset='1' length='1'>"
                "<alphanumeric name='A' offset='1' length='1' picture='X'/></group>",
                {"KEPT"},
                {"GO.R.G.H.A: no mapping can name it, for its path holds a period, a parenthesis "
                 "or a leading $: left out"}},
        NoteRow{"CountWithoutATable",
                "<alphanumeric name='T' offset='2' length='1' picture='X' odo='R.KEPT'/>",
                {"KEPT", "T"},
                {}},
        NoteRow{"EmptyGroup",
                "<group name='G' offset='1' length='1'>"
                "<alphanumeric name='FILLER' offset='1' length='1' picture='X'/></group>",
                {"KEPT"},
                {"GO.R: 1 item without a name left out"}},
        NoteRow{"DependingTable",
                "<numeric name='N' offset='1' length='1' digits='1' picture='9'/>"
                "<alphanumeric name='T' offset='2' length='1' picture='X' minOccurs='1' "
                "maxOccurs='9' odo='R.N'/>",
                {"KEPT", "N", "T"},
                {"GO.R.T: it occurs up to 9 times, as often as R.N tells"}},
        NoteRow{"DependingOnNothing",
                "<alphanumeric name='T' offset='2' length='1' picture='X' minOccurs='1' "
                "maxOccurs='9' odo='R.GONE'/>",
                {"KEPT", "T"},
                {"GO.R.T: it occurs up to 9 times, as often as R.GONE tells"}},
        NoteRow{"Edited",
                "<numericEdited name='E' offset='1' length='4' digits='3' picture='Z99-'/>",
                {"KEPT", "E"},
                {"GO.R.E: it is edited: handed over as the text that it shows, 'String'"}},
        NoteRow{"Twin",
                "<numeric name='KEPT' offset='1' length='1' digits='1' picture='9'/>",
                {"KEPT"},
                {"GO.R.KEPT: no mapping leads to it, for another item has the same path: left "
                 "out"}},
        NoteRow{"NameWithADot",
                "<alphanumeric name='A.B' offset='1' length='1' picture='X'/>",
                {"KEPT"},
                {"GO.R.A.B: no mapping can name it, for its path holds a period, a parenthesis or "
                 "a leading $: left out"}}),
    labelOf<NoteRow>);

TEST_F(MakeTest, ItemsInTooManyTablesAreLeftOut) {
  const auto notesOf = [this](int tables) {
    std::string open;
    std::string close;
    for (int i = 0; i < tables; i++) {
      open += "<group name='G" + std::to_string(i) +
              "' offset='0' length='1' minOccurs='2' maxOccurs='2'>";
      close += "</group>";
    }
    return textsOf(
        make(programOf("<group name='R' offset='0' length='1'>"
                       "<alphanumeric name='A' offset='0' length='1' picture='X'/>" +
                           open + "<alphanumeric name='X' offset='0' length='1' picture='X'/>" +
                           close + "</group>",
                       {"R"}))
            .notes);
  };
  EXPECT_THAT(notesOf(17), ElementsAre(HasSubstr("it stands in more than 16 tables: left out")));
  expectClean();
  EXPECT_THAT(notesOf(16), IsEmpty());
}

TEST_F(MakeTest, ParametersThatAreNothingAreLeftOut) {
  const toolkit::MadeService outcome =
      make(programOf("<group name='R' offset='0' length='1'>"
                     "<alphanumeric name='FILLER' offset='0' length='1' picture='X'/></group>",
                     {"GONE", "R"}));
  EXPECT_THAT(textsOf(outcome.notes),
              AllOf(Contains("GO.GONE: it is no record of the dictionary: left out"),
                    Contains("GO.R: nothing in it can be mapped: left out")));
  EXPECT_EQ(made()["operations"][0]["parameters"], nlohmann::json::array());
}

TEST_F(MakeTest, TellsWhatItMade) {
  const toolkit::MadeService outcome = make(test::payProgram(), "dotnet");
  EXPECT_EQ(outcome.operations, 1);
  EXPECT_EQ(outcome.mappings, 5);
  EXPECT_THAT(outcome.notes, IsEmpty());
  ASSERT_NE(outcome.service, nullptr);
  EXPECT_EQ(toolkit::flavourOf(*outcome.service).name, std::string(".NET"));
  EXPECT_EQ(outcome.service->getProgram()->getName(), "PAYROLL");
}

TEST_F(MakeTest, NamesAreTheProgramsUnlessTold) {
  make(test::payProgram());
  EXPECT_EQ(made()["name"], "PAYROLL");
  make(test::payProgram(), "java", {"Löhne & Gehälter", {}});
  EXPECT_EQ(made()["name"], "Löhne & Gehälter");
  EXPECT_EQ(made()["programName"], "PAYROLL");
}

std::string programWithEntryPoints(const std::vector<std::string>& names) {
  std::string entryPoints;
  for (const std::string& name : names) entryPoints += "<entryPoint name='" + name + "'/>";
  return dictionary("<dataItems/><entryPoints>" + entryPoints + "</entryPoints>");
}

TEST_F(MakeTest, OperationsAreAllEntryPointsOrThoseNamed) {
  const auto operations = [this] {
    std::vector<std::string> names;
    const nlohmann::json service = made();
    for (const auto& operation : service["operations"]) {
      names.push_back(operation["name"]);
      EXPECT_EQ(operation["entryPoint"], operation["name"]);
    }
    return names;
  };
  const std::string program = programWithEntryPoints({"A", "B", "C"});
  make(program);
  EXPECT_THAT(operations(), ElementsAre("A", "B", "C"));
  make(program, "java", {"", {"C", "A"}});
  EXPECT_THAT(operations(), ElementsAre("A", "C"));
  make(program, "java", {"", {"B", "B"}});
  EXPECT_THAT(operations(), ElementsAre("B"));
}

TEST_F(MakeTest, ParametersGetTheFirstNamesThatAreLeft) {
  const std::string items =
      "<numeric name='A' length='4' digits='4'/><numeric name='A-3' length='4' digits='4'/>";
  make(programOf(items, {"A", "A", "A-3", "A", "A-3", "A"}));
  const nlohmann::json operation = made()["operations"][0];
  std::vector<std::string> names;
  for (const nlohmann::json& parameter : operation["parameters"]) {
    names.push_back(parameter["name"]);
  }
  EXPECT_THAT(names, ElementsAre("A", "A-2", "A-3", "A-4", "A-3-2", "A-5"));
}

// Groups without names that stand in each other are none to the service.
TEST_F(MakeTest, MembersOfUnnamedGroupsStandInTheirPlaces) {
  const auto item = [](const std::string& name) {
    return "<numeric name='" + name + "' length='4' digits='4'/>";
  };
  make(programOf("<group name='G'>" + item("A") + "<group name='FILLER'>" + item("B") +
                     "<group name='FILLER'>" + item("C") + "</group><group name='FILLER'>" +
                     item("FILLER") + "</group></group>" + item("D") + "</group>",
                 {"G"}));
  const nlohmann::json group = firstParameter();
  std::vector<std::string> names;
  for (const nlohmann::json& field : group["children"]) names.push_back(field["name"]);
  EXPECT_THAT(names, ElementsAre("A", "B", "C", "D"));
}

TEST_F(MakeTest, AnUnknownEntryPointIsRefusedWithThoseThereAre) {
  write("s.xml", "old");
  const toolkit::Refusal refusal = refusalOf([this] {
    make(programWithEntryPoints({"A", "B"}), "java", {"", {"A", "Z"}});
  });
  EXPECT_EQ(refusal.file, "p.xml");
  EXPECT_EQ(refusal.text, "there is no entry point 'Z'");
  EXPECT_EQ(refusal.hint, "the program has A, B");
  EXPECT_EQ(contentOf("s.xml"), "old");
}

TEST_F(MakeTest, AnEntryPointOfAProgramWithoutAnyIsRefused) {
  EXPECT_EQ(refusalOf([this] {
              make(test::dictionary(""), "java", {"", {"Z"}});
            }).hint,
            "the program has none");
}

// COM returns one thing.
TEST_F(MakeTest, OneParameterIsReturned) {
  const auto item = [](const std::string& name) {
    return "<numeric name='" + name + "' length='4' digits='4' linkage='true'/>";
  };
  const auto by = [](const std::string& name, const std::string& type) {
    return "<parameter dataItem='" + name + "' byType='" + type + "'/>";
  };
  make(dictionary("<dataItems>" + item("A") + item("B") + item("C") +
                  "</dataItems><entryPoints><entryPoint name='GO'>" + by("A", "reference") +
                  by("B", "returning") + by("C", "returning") + "</entryPoint></entryPoints>"),
       "com");
  const nlohmann::json parameters = made()["operations"][0]["parameters"];
  ASSERT_EQ(parameters.size(), 3U);
  for (std::size_t i = 0; i < 3; ++i) {
    EXPECT_EQ(parameters[i]["returnParameter"], i == 1 ? 1 : 0) << parameters[i];
  }
}

TEST_F(MakeTest, ATwinOfAnEntryPointIsLeftOut) {
  const toolkit::MadeService outcome = make(programWithEntryPoints({"A", "A"}));
  EXPECT_THAT(textsOf(outcome.notes),
              ElementsAre(StartsWith("A: the program has another entry point")));
  EXPECT_EQ(made()["operations"].size(), 1u);
  expectClean();
}

TEST_F(MakeTest, AProgramWithoutEntryPointsIsTold) {
  const toolkit::MadeService outcome = make(programWithEntryPoints({}));
  EXPECT_EQ(outcome.operations, 0);
  EXPECT_THAT(textsOf(outcome.notes), ElementsAre(HasSubstr("there are no operations")));
}

TEST_F(MakeTest, TheDictionaryIsNamedAsSeenFromTheService) {
  write("deep/down/p.xml", test::payProgram());
  std::filesystem::create_directories("services");
  const struct {
    const char* service;
    const char* name;
  } rows[] = {{"deep/down/s.xml", "p.xml"},
              {"services/s.xml", "../deep/down/p.xml"},
              {"s.xml", "deep/down/p.xml"}};
  for (const auto& row : rows) {
    makeFrom("deep/down/p.xml", row.service);
    EXPECT_EQ(jsonOf(*reader().readServiceWithProgram(row.service).service)["ddFilename"],
              row.name);
    expectClean(row.service);
  }
}

TEST_F(MakeTest, TheDictionaryIsNeverTheOutput) {
  write("p.xml", test::payProgram());
  std::filesystem::create_symlink("p.xml", "link.xml");
  for (const char* const output : {"p.xml", "./p.xml", "link.xml"}) {
    const toolkit::Refusal refusal = refusalOf([&] { makeFrom("p.xml", output); });
    EXPECT_EQ(refusal.file, output);
    EXPECT_EQ(refusal.text, "this is the dictionary");
    EXPECT_EQ(contentOf("p.xml"), test::payProgram());
  }
}

TEST_F(MakeTest, FoldersMayBeLinks) {
  write("p.xml", test::payProgram());
  std::filesystem::create_directories("sub/deep");
  std::filesystem::create_directory_symlink("sub/deep", "link");
  makeFrom("p.xml", "link/s.xml");
  expectClean("link/s.xml");
  expectClean("sub/deep/s.xml");
}

TEST_F(MakeTest, TheDictionaryIsNamedAsItWasThoughItIsALink) {
  write("old/p.xml", test::payProgram());
  std::filesystem::create_symlink("old/p.xml", "current.xml");
  makeFrom("current.xml", "s.xml");
  EXPECT_THAT(contentOf("s.xml"), HasSubstr("dataDictFilename=\"current.xml\""));
}

TEST_F(MakeTest, ALinkThatLeadsToNothingYetStaysOne) {
  std::filesystem::create_symlink("target.xml", "s.xml");
  make(test::payProgram());
  EXPECT_TRUE(std::filesystem::is_symlink("s.xml"));
  EXPECT_THAT(contentOf("target.xml"), HasSubstr("<service"));
}

TEST_F(MakeTest, NamesMayBeAsLongAsTheSystemAllows) {
  write("p.xml", test::payProgram());
  const std::string name = std::string(251, 's') + ".xml";
  makeFrom("p.xml", name);
  EXPECT_TRUE(std::filesystem::exists(name));
}

TEST_F(MakeTest, WhatXmlCannotHoldIsToldAndNotWritten) {
  const toolkit::Refusal refusal = refusalOf([this] {
    make(test::payProgram(), "ws", {"x\x01", {}});
  });
  EXPECT_EQ(refusal.file, "s.xml");
  EXPECT_THAT(refusal.text, StartsWith("the service cannot be written as XML"));
  EXPECT_FALSE(std::filesystem::exists("s.xml"));
}

TEST_F(MakeTest, NamesOfEntryPointsMayHoldDots) {
  const std::string program = dictionary(
      "<dataItems><group name='R' offset='0' length='1'><alphanumeric name='A' offset='0' "
      "length='1' picture='X'/><alphanumeric name='N' offset='0' length='1' renames='true'/>"
      "</group></dataItems><entryPoints><entryPoint name='M.X'><parameter dataItem='R'/>"
      "</entryPoint></entryPoints>");
  EXPECT_THAT(textsOf(make(program).notes), ElementsAre(StartsWith("M.X.R.N: it renames")));
}

// However deep and long: as many paths as there are items would come to any size.
TEST_F(MakeTest, ItemsOfPathsThatNobodyReadsAreLeftOut) {
  const auto notesWith = [this](std::size_t length) {
    return make(programOf("<group name='R'><group name='" + std::string(4000, 'G') +
                              "'><alphanumeric name='" + std::string(length, 'X') +
                              "' length='1' picture='X'/><alphanumeric name='Y' length='1' "
                              "picture='X' minOccurs='1' maxOccurs='2' odo='N'/></group>"
                              "<numeric name='N' length='1' digits='1' picture='9'/></group>",
                          {"R"}))
        .notes;
  };
  // "R.", the group and a period are 4,003.
  const toolkit::Findings fitting = notesWith(93);
  ASSERT_EQ(fitting.size(), 1U);
  EXPECT_EQ(fitting[0].rule, "variable-table");
  EXPECT_THAT(fitting[0].place, AllOf(StartsWith("GO.R.GGG"), testing::EndsWith("GGG.Y")));
  EXPECT_EQ(fitting[0].place.size(), 4003U);
  const toolkit::Findings longer = notesWith(94);
  ASSERT_EQ(longer.size(), 2U);
  EXPECT_EQ(longer[0].rule, "too-long-path");
  EXPECT_EQ(longer[0].problem, "its path is longer than 4096 bytes: left out");
  EXPECT_THAT(contentOf("s.xml"), Not(HasSubstr("XXX")));
  EXPECT_THAT(contentOf("s.xml"), HasSubstr("GGG.Y"));
}

// A record counts for each entry point that gets it: the service would come to the square of its
// dictionary.
TEST_F(MakeTest, BehindAHundredThousandItemsParametersAreLeftOut) {
  std::string entryPoints;
  for (int i = 0; i <= 100; i++) {
    entryPoints += "<entryPoint name='E" + std::to_string(i) +
                   "'><parameter dataItem='R'/><parameter dataItem='K'/></entryPoint>";
  }
  // How many mappings there are, and what is left out, where an entry point gets so many items: the
  // group R, its members and K.
  const auto madeWith = [this, &entryPoints](int items) {
    std::string members;
    for (int i = 2; i < items; i++)
      members += "<alphanumeric name='FILLER' length='1' picture='X'/>";
    const toolkit::MadeService made =
        make(dictionary("<dataItems><group name='R'>" + members +
                        "</group><alphanumeric name='K' length='1' picture='X'/></dataItems>"
                        "<entryPoints>" +
                        entryPoints + "</entryPoints>"));
    EXPECT_EQ(made.operations, 101);
    std::vector<std::string> places;
    for (const toolkit::Finding& note : made.notes) {
      if (note.rule == "too-many-items") places.push_back(note.place);
    }
    return std::pair(made.mappings, places);
  };
  EXPECT_THAT(madeWith(1000), Pair(100, ElementsAre("E100.R", "E100.K")));
  EXPECT_THAT(madeWith(999), Pair(100, ElementsAre("E100.K")));
}

TEST_F(MakeTest, WhatIsNoDictionaryIsRefused) {
  write("service.xml", test::payService(""));
  write("bad.xml", "<program");
  for (const char* const file : {"service.xml", "bad.xml", "missing.xml", "."}) {
    EXPECT_EQ(refusalOf([&] { makeFrom(file, "s.xml"); }).file, file);
    EXPECT_FALSE(std::filesystem::exists("s.xml"));
  }
}

// The names of everything in the current directory.
std::vector<std::string> filesHere() {
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(".")) {
    names.push_back(entry.path().filename().string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

TEST_F(MakeTest, ReplacesAFileAndKeepsItsPermissions) {
  write("s.xml", "old");
  ASSERT_EQ(chmod("s.xml", 0640), 0);
  make(test::payProgram());
  EXPECT_THAT(contentOf("s.xml"), HasSubstr("<service"));
  struct stat status = {};
  ASSERT_EQ(stat("s.xml", &status), 0);
  EXPECT_EQ(status.st_mode & 07777u, 0640u);
  EXPECT_THAT(filesHere(), ElementsAre("p.xml", "s.xml"));
}

TEST_F(MakeTest, NewFilesHaveTheUsersPermissions) {
  for (const mode_t own : {027u, 0u}) {
    std::filesystem::remove("s.xml");
    const mode_t mask = umask(own);
    make(test::payProgram());
    umask(mask);
    struct stat status = {};
    ASSERT_EQ(stat("s.xml", &status), 0);
    EXPECT_EQ(status.st_mode & 07777u, 0666u & ~own);
  }
}

TEST_F(MakeTest, WritesThroughALink) {
  write("real.xml", "old");
  std::filesystem::create_symlink("real.xml", "s.xml");
  make(test::payProgram());
  EXPECT_TRUE(std::filesystem::is_symlink("s.xml"));
  EXPECT_THAT(contentOf("real.xml"), HasSubstr("<service"));
}

TEST_F(MakeTest, DirectoriesAndMissingOnesAreTold) {
  write("p.xml", test::payProgram());
  std::filesystem::create_directory("folder");
  const struct {
    const char* output;
    const char* reason;
  } rows[] = {{"folder", "Is a directory"},
              {"missing/s.xml", "No such file or directory"},
              {"p.xml/s.xml", "Not a directory"}};
  for (const auto& row : rows) {
    EXPECT_THAT(
        fileErrorOf([&] { makeFrom("p.xml", row.output); }),
        AllOf(StartsWith(std::string(row.output) + " cannot be written"), HasSubstr(row.reason)));
  }
  EXPECT_THAT(filesHere(), ElementsAre("folder", "p.xml"));
}

// Each sample program in each flavour.
struct Sample {
  std::string label;
  const char* program;
  std::string flavour;
};

void PrintTo(const Sample& sample, std::ostream* out) { *out << sample.label; }

std::vector<Sample> samples() {
  std::vector<Sample> all;
  for (const char* const program : {"DEPINT01", "MOTPREM", "PAYSLIP", "WHSLOTS"}) {
    for (const std::string& flavour : flavours) {
      all.push_back({program + flavour, program, flavour});
    }
  }
  return all;
}

class MakeSample : public MakeTest, public testing::WithParamInterface<Sample> {};

TEST_P(MakeSample, IsValidCleanAndComplete) {
  const std::string dictionary = std::string(AS_EXAMPLES_DIR "/") + GetParam().program + ".xml";
  make(contentOf(dictionary), GetParam().flavour);
  EXPECT_NE(reader().read("s.xml").service, nullptr);
  expectClean();
  EXPECT_THAT(treeOf(*reader().readServiceWithProgram("s.xml").service),
              Not(HasSubstr("(not found)")));
  const auto program = test::parse(contentOf(dictionary));
  EXPECT_EQ(made()["operations"].size(),
            static_cast<std::size_t>(program->getEntryPoints()->getLength()));
}

INSTANTIATE_TEST_SUITE_P(Programs, MakeSample, testing::ValuesIn(samples()), labelOf<Sample>);

}  // namespace
