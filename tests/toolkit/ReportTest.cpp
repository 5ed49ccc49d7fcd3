// Tests of reports: the files that come out, that nothing of a document gets into them but as text,
// and that they are the same every time. How they look is for ./run look.
#include <algorithm>
#include <regex>
#include <set>

#include "support/Documents.h"
#include "support/Json.h"
#include "support/Toolkit.h"

namespace {

namespace toolkit = as::toolkit;
using testing::Contains;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

std::string example(const std::string& name) {
  return (std::filesystem::path(AS_EXAMPLES_DIR) / name).string();
}

class ReportTest : public test::ToolkitTest {
 protected:
  toolkit::Report reportOf(const std::vector<std::string>& files,
                           const toolkit::ReportOptions& options = {}) const {
    return toolkit::makeReport(reader(), files, options);
  }

  static std::vector<std::string> namesOf(const toolkit::Report& report) {
    std::vector<std::string> names;
    for (const toolkit::ReportFile& file : report.files) names.push_back(file.name);
    return names;
  }

  static std::string contentOf(const toolkit::Report& report, const std::string& name) {
    for (const toolkit::ReportFile& file : report.files) {
      if (file.name == name) return file.content;
    }
    ADD_FAILURE() << "there is no " << name;
    return "";
  }

  // What a data file hands over: a call with a name and JSON, and nothing else.
  static nlohmann::json dataOf(const toolkit::Report& report, const std::string& id) {
    const std::string script = contentOf(report, "data/" + id + ".js");
    const std::string start = "asReport.add(\"" + id + "\", ";
    const std::string end = ");\n";
    EXPECT_EQ(script.substr(0, start.size()), start);
    EXPECT_EQ(script.substr(script.size() - end.size()), end);
    return test::parsedJson(script.substr(start.size(), script.size() - start.size() - end.size()));
  }
};

TEST_F(ReportTest, TheFirstPageComesFirst) {
  const toolkit::Report report = reportOf({example("MOTPREM.xml")});
  EXPECT_EQ(report.files.front().name, "index.html");
  EXPECT_THAT(namesOf(report), Contains("data/index.js"));
  EXPECT_THAT(namesOf(report), Contains("data/d1.js"));
  EXPECT_EQ(report.programs, 1U);
  EXPECT_EQ(report.services, 0U);
}

TEST_F(ReportTest, WhatThePageNamesIsThere) {
  const toolkit::Report report = reportOf({example("MOTPREM.xml")});
  const std::string page = report.files.front().content;
  const std::vector<std::string> names = namesOf(report);
  static const std::regex reference("(?:href|src)=\"([^\"#][^\":]*)\"");
  int count = 0;
  for (std::sregex_iterator at(page.begin(), page.end(), reference), end; at != end; ++at) {
    EXPECT_THAT(names, Contains((*at)[1].str()));
    ++count;
  }
  EXPECT_GE(count, 8);
}

TEST_F(ReportTest, NothingIsAskedOfANetwork) {
  for (const toolkit::ReportFile& file : reportOf({example("MOTPREM.xml")}).files) {
    if (file.name.rfind("data/", 0) == 0) continue;
    std::string text = file.content;
    // The name of a namespace is no address.
    const std::string svg = "http://www.w3.org/2000/svg";
    const std::size_t at = text.find(svg);
    if (at != std::string::npos) text.erase(at, svg.size());
    for (const char* const word :
         {"http:", "https:", "//cdn", "fetch(", "XMLHttpRequest", "@import", "innerHTML",
          "outerHTML", "insertAdjacentHTML", "document.write", "eval("}) {
      EXPECT_THAT(text, Not(HasSubstr(word))) << file.name;
    }
  }
}

TEST_F(ReportTest, EveryDocumentIsInTheIndexAndHasItsData) {
  const toolkit::Report report = reportOf({example("MOTPREM.xml"), example("MOTPREM-ws.xml"),
                                           example("WHSLOTS-java.xml"), example("PAYSLIP.xml")});
  const nlohmann::json index = dataOf(report, "index");
  // The dictionary of WHSLOTS comes with its service.
  EXPECT_THAT(index["documents"], SizeIs(5));
  for (const nlohmann::json& document : index["documents"]) {
    const std::string id = document["id"];
    EXPECT_EQ(dataOf(report, id)["name"], document["name"]);
    EXPECT_THAT(dataOf(report, "names")[id], Not(IsEmpty()));
  }
}

TEST_F(ReportTest, TheSameInputGivesTheSameBytes) {
  const std::vector<std::string> files = {example("MOTPREM.xml"), example("MOTPREM-java.xml")};
  const toolkit::Report first = reportOf(files);
  const toolkit::Report second = reportOf(files);
  ASSERT_EQ(namesOf(first), namesOf(second));
  for (std::size_t i = 0; i < first.files.size(); ++i) {
    EXPECT_EQ(first.files[i].content, second.files[i].content) << first.files[i].name;
  }
}

TEST_F(ReportTest, ItemsHaveTheirPlacesAndConditions) {
  const nlohmann::json data = dataOf(reportOf({example("MOTPREM.xml")}), "d1");
  for (const nlohmann::json& item : data["items"]) {
    if (item["n"] == "LK-REQ-POLICY-PARTS") {
      EXPECT_EQ(data["items"][item["rd"].get<std::size_t>()]["n"], "LK-REQ-POLICY-NO");
      EXPECT_EQ(item["o"], 2);
    }
    if (item["n"] == "LK-REQ-COMPANY") {
      EXPECT_EQ(item["k"], test::parsedJson(R"([["LK-OWN-COMPANY", ["MI", "MD"]]])"));
      return;
    }
  }
  FAIL() << "the item is missing";
}

TEST_F(ReportTest, MappingsLeadToItems) {
  const toolkit::Report report = reportOf({example("MOTPREM-java.xml")});
  const nlohmann::json items = dataOf(report, "d1")["items"];
  const nlohmann::json service = dataOf(report, "s1");
  EXPECT_EQ(service["document"], "d1");
  const nlohmann::json mapping = service["operations"][0]["f"][2]["m"][0];
  EXPECT_EQ(mapping[0], "LK-RETURN-CODE");
  EXPECT_EQ(items[mapping[1].get<std::size_t>()]["n"], "LK-RETURN-CODE");
}

TEST_F(ReportTest, FindingsOfLintAreTold) {
  const toolkit::Report report = reportOf({example("broken/MOTPREM-java.xml")});
  EXPECT_GT(report.findings, 0U);
  const nlohmann::json findings = dataOf(report, "s1")["findings"];
  EXPECT_GE(findings.size(), report.findings);
  EXPECT_THAT(findings[0], Contains(testing::Not("")));
}

TEST_F(ReportTest, ARefusedDocumentIsLeftOutAndTold) {
  const toolkit::Report report =
      reportOf({example("refused/length-in-words.xml"), example("MOTPREM.xml")});
  ASSERT_THAT(report.refusals, SizeIs(1));
  EXPECT_EQ(report.refusals[0].line, 9);
  EXPECT_EQ(report.programs, 1U);
}

// Who silences lint about it still gets no page of it.
TEST_F(ReportTest, ADictionaryThatIsLeftOutIsToldByLintOrElseAsARefusal) {
  const auto textFor = [](const std::string& comment) {
    return comment + test::javaService("name='S' implementation='java' dataDictFilename='none.xml'",
                                       "<operations/>");
  };
  write("told.xml", textFor(""));
  write("silent.xml", textFor("<!-- lint: off unusable-dictionary -->"));
  const toolkit::Report told = reportOf({"told.xml"});
  EXPECT_THAT(told.refusals, IsEmpty());
  EXPECT_THAT(dataOf(told, "s1")["findings"].dump(), HasSubstr("the dictionary cannot be used"));
  const toolkit::Report silent = reportOf({"silent.xml"});
  ASSERT_THAT(silent.refusals, SizeIs(1));
  EXPECT_EQ(silent.refusals[0].file, "none.xml");
}

TEST_F(ReportTest, ADictionaryThatIsNamedTwiceIsShownOnce) {
  const toolkit::Report report =
      reportOf({example("MOTPREM.xml"), example("../examples/MOTPREM.xml"),
                example("MOTPREM-ws.xml"), example("MOTPREM-com.xml")});
  EXPECT_EQ(report.programs, 1U);
  EXPECT_EQ(report.services, 2U);
}

// What a name may hold to get out of a script, a page or an attribute.
TEST_F(ReportTest, HostileNamesStayText) {
  const std::string hostile =
      "</script><script>alert(1)</script>\"'`${x}-->]]>\\u2028\xE2\x80\xA8\xE2\x80\xA9";
  std::string escaped;
  for (const char c : hostile) {
    escaped += c == '<' ? "&lt;" : c == '>' ? "&gt;" : c == '"' ? "&quot;" : std::string(1, c);
  }
  write("h.xml", test::dictionaryOf("<alphanumeric name=\"" + escaped + "\" picture=\"" + escaped +
                                    "\" offset=\"0\" length=\"4\"/>"));
  const toolkit::Report report = reportOf({"h.xml"});
  EXPECT_EQ(dataOf(report, "d1")["items"][0]["n"], hostile);
  for (const char* const id : {"d1", "index"}) {
    const std::string script = contentOf(report, std::string("data/") + id + ".js");
    EXPECT_THAT(script, Not(HasSubstr("<")));
    EXPECT_TRUE(std::all_of(script.begin(), script.end(),
                            [](char c) { return c == '\n' || (c >= ' ' && c <= '~'); }));
  }
}

TEST_F(ReportTest, ALongNameIsCutInTheIndexOnly) {
  const std::string name(1000000, 'N');
  write("l.xml", test::dictionaryOf("<alphanumeric name='" + name + "' offset='0' length='4'/>"));
  const toolkit::Report report = reportOf({"l.xml"});
  EXPECT_EQ(dataOf(report, "d1")["items"][0]["n"].get<std::string>().size(), name.size());
  EXPECT_LT(contentOf(report, "data/index.js").size(), 2000U);
  EXPECT_LT(contentOf(report, "data/names.js").size(), 2000U);
}

TEST_F(ReportTest, NamesAreCutBetweenCharacters) {
  // The character that the limit of 200 bytes falls into is left out.
  for (const std::size_t inFront : {197U, 198U, 199U, 200U}) {
    const std::string name = std::string(inFront, 'N') + "\xE2\x82\xAC" + "END";
    write("l.xml", test::dictionaryOf("<alphanumeric name='" + name + "'/>"));
    const nlohmann::json names = dataOf(reportOf({"l.xml"}), "names")["d1"];
    const std::string whole =
        inFront == 197 ? std::string(197, 'N') + "\xE2\x82\xAC" : std::string(inFront, 'N');
    EXPECT_EQ(names[1][2], whole + "\xE2\x80\xA6") << inFront;
  }
}

// Files are sections, whether they have records or not.
TEST_F(ReportTest, FilesAreShownAndFound) {
  write("d.xml", test::dictionary("<fileSection><fd name='EMPTY' organization='indexed' "
                                  "accessMode='random'/></fileSection><dataItems><alphanumeric "
                                  "name='A' linkage='true'/></dataItems>"));
  const toolkit::Report report = reportOf({"d.xml"});
  const nlohmann::json sections = dataOf(report, "d1")["sections"];
  ASSERT_THAT(sections, SizeIs(2));
  EXPECT_EQ(sections[0]["title"], "fd EMPTY");
  EXPECT_EQ(sections[0]["organization"], "indexed");
  EXPECT_EQ(sections[0]["access"], "random");
  EXPECT_THAT(sections[0]["records"], IsEmpty());
  EXPECT_EQ(sections[1]["title"], "linkage section");
  EXPECT_THAT(dataOf(report, "names")["d1"],
              Contains(test::parsedJson(R"(["file", 0, "EMPTY", ""])")));
}

// The first page waits for the index: what it takes is told of documents, not of their names.
TEST_F(ReportTest, NamesAreNoPartOfTheIndex) {
  std::string items;
  for (int i = 0; i < 2000; ++i) {
    items += "<alphanumeric name='N" + std::to_string(i) + "' offset='0' length='4'/>";
  }
  write("many.xml", test::dictionaryOf(items));
  const toolkit::Report report = reportOf({"many.xml"});
  EXPECT_GE(dataOf(report, "names")["d1"].size(), 2000U);
  EXPECT_LT(contentOf(report, "data/index.js").size(), 1000U);
}

// The model answers a data type for what has none.
TEST_F(ReportTest, AStructureHasADataTypeOnlyWhereItIsWritten) {
  const auto dataTypeOf = [this](const std::string& attribute) {
    write("s.xml", test::javaService("name='S' implementation='java' programName='P'",
                                     "<operations><operation name='o'><parameters><parameter "
                                     "name='p' byType='in'" +
                                         attribute +
                                         "><field name='f' dataType='int'/>"
                                         "</parameter></parameters></operation></operations>"));
    return dataOf(reportOf({"s.xml"}), "s1")["operations"][0]["f"][0].value("t", "none");
  };
  EXPECT_EQ(dataTypeOf(""), "none");
  EXPECT_EQ(dataTypeOf(" dataType='String'"), "String");
}

TEST_F(ReportTest, DocumentsNeedNotBeFiles) {
  const std::string text = test::dictionaryOf("<alphanumeric name='N' offset='0' length='4'/>");
  const toolkit::Report report = toolkit::makeReportFrom(reader(), {{"-", text}});
  EXPECT_THAT(report.refusals, IsEmpty());
  EXPECT_EQ(dataOf(report, "d1")["items"][0]["n"], "N");
}

TEST_F(ReportTest, SourcesAreFoundBesideTheDictionary) {
  const toolkit::Report report = reportOf({example("MOTPREM.xml")});
  const nlohmann::json data = dataOf(report, "d1");
  EXPECT_EQ(data["source"], "t1");
  const nlohmann::json source = dataOf(report, "t1");
  EXPECT_EQ(source["name"], "MOTPREM.cbl");
  // Each item that has a line has it there.
  for (const nlohmann::json& item : data["items"]) {
    EXPECT_EQ(item.value("src", 0), 1) << item["n"];
  }
}

TEST_F(ReportTest, ASourceIsFoundByItsOwnNameOnly) {
  const std::string program =
      "<properties><property name='source' value='../secret/T.cbl'/></properties>";
  write("secret/T.cbl", "       01 A PIC X.\n");
  write("in/d.xml", test::dictionary(program));
  EXPECT_FALSE(dataOf(reportOf({"in/d.xml"}), "d1").contains("source"));
  toolkit::ReportOptions options;
  options.sourceFolders = {"secret"};
  EXPECT_EQ(dataOf(reportOf({"in/d.xml"}, options), "d1")["source"], "t1");
}

TEST_F(ReportTest, SourcesOfOldCodePagesAreRead) {
  write("T.cbl", "* M\xFCnchen\r\n01 A.\r\n");
  write("d.xml",
        test::dictionary("<properties><property name='source' value='T.cbl'/></properties>"));
  EXPECT_EQ(dataOf(reportOf({"d.xml"}), "t1")["lines"],
            test::parsedJson(R"(["* M\u00fcnchen", "01 A."])"));
}

TEST_F(ReportTest, IsWrittenBelowAFolder) {
  const toolkit::Report report = reportOf({example("MOTPREM.xml")});
  toolkit::writeReport(report, "site/of/mine");
  for (const toolkit::ReportFile& file : report.files) {
    EXPECT_EQ(test::contentOf("site/of/mine/" + file.name), file.content);
  }
}

TEST_F(ReportTest, AFolderThatCannotBeMadeIsTold) {
  write("site", "a file");
  const toolkit::Report report = reportOf({example("MOTPREM.xml")});
  EXPECT_THAT(test::fileErrorOf([&] { toolkit::writeReport(report, "site"); }), HasSubstr("site"));
}

TEST_F(ReportTest, WhatIsMadeForCallersStandsBesideTheServiceAndIsNamedByIt) {
  toolkit::ReportOptions options;
  options.kinds = {"wsdl", "java", "markdown", "nothing"};
  const toolkit::Report report =
      reportOf({example("PAYSLIP-ws.xml"), example("PAYSLIP-java.xml")}, options);
  // WSDL is made of Web services alone, Java of Java services.
  const nlohmann::json web = dataOf(report, "s1")["made"];
  ASSERT_THAT(web, SizeIs(2));
  EXPECT_EQ(web[0]["kind"], "wsdl");
  EXPECT_EQ(web[0]["files"], nlohmann::json::array({"made/s1/wsdl/Payslip.wsdl"}));
  EXPECT_EQ(web[1]["kind"], "markdown");
  EXPECT_EQ(dataOf(report, "s2")["made"][0]["kind"], "java");
  EXPECT_EQ(report.made, 4U);
  EXPECT_EQ(contentOf(report, "made/s1/wsdl/Payslip.wsdl"),
            toolkit::generateFrom(reader(), *toolkit::findGeneratorKind("wsdl"),
                                  {example("PAYSLIP-ws.xml")})
                .files.front()
                .content);
}

TEST_F(ReportTest, WhyNothingIsMadeIsToldAndNothingIsUnlessItIsAskedFor) {
  toolkit::ReportOptions options;
  options.kinds = {"xsd"};
  const toolkit::Report report = reportOf({example("broken/MOTPREM-java.xml")}, options);
  const nlohmann::json made = dataOf(report, "s1")["made"];
  ASSERT_THAT(made, SizeIs(1));
  EXPECT_THAT(made[0]["files"], IsEmpty());
  EXPECT_THAT(made[0]["problem"], Not(IsEmpty()));
  EXPECT_THAT(dataOf(reportOf({example("PAYSLIP-ws.xml")}), "s1")["made"], IsEmpty());
}

// What a mapping leads to is what the library finds: through every group of a name, and with a
// period at the end, and whatever subscripts the interface has.
TEST_F(ReportTest, MappingsLeadToTheirItems) {
  write("p.xml",
        test::dictionaryOf(
            "<group name='R' linkage='true'><group name='FILLER'><alphanumeric name='X' length='1' "
            "picture='X'/></group><group name='FILLER'><alphanumeric name='Y' length='1' "
            "picture='X'/></group></group>"));
  std::string mappings;
  for (const char* const mapping :
       {"item='R.FILLER.Y'", "item='R.FILLER.X.'", "item='R.FILLER.X' subscript='1'"}) {
    mappings += std::string("<mapping ") + mapping + "/>";
  }
  write("s.xml",
        test::parameterDocument(
            as::namespaces::java.uri,
            "<parameter name='p'><mappings>" + mappings + "</mappings></parameter>", "", "p.xml"));
  const nlohmann::json parameter = dataOf(reportOf({"s.xml"}), "s1")["operations"][0]["f"][0];
  std::vector<int> items;
  for (const nlohmann::json& mapping : parameter["m"]) items.push_back(mapping[1]);
  EXPECT_THAT(items, testing::ElementsAre(4, 2, 2));
}

// A call takes so many arguments and no more: a script that hands on the members of a list fails
// for those of a large document.
TEST_F(ReportTest, ScriptsHandOnNoListsAsArguments) {
  for (const toolkit::ReportFile& file : reportOf({example("MOTPREM.xml")}).files) {
    if (file.name.rfind("data/", 0) == 0) continue;
    EXPECT_THAT(file.content, Not(HasSubstr("push(..."))) << file.name;
  }
}

}  // namespace
