// Tests of the comparison of documents beside the kinds of changes: equal documents, services, what
// is allowed, what is printed, how long it takes.
#include <algorithm>
#include <string_view>

#include "support/Diffs.h"
#include "support/Documents.h"
#include "support/Json.h"
#include "support/Toolkit.h"

namespace {

namespace toolkit = as::toolkit;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

std::string example(const std::string& name) {
  return (std::filesystem::path(AS_EXAMPLES_DIR) / name).string();
}

using test::DiffTest;

TEST_F(DiffTest, ItemsBreakCallersWhoSawThemOrSeeThemNow) {
  const std::string unseen = "01 R PIC X. WORKING-STORAGE SECTION. 01 A PIC 9(4).";
  const std::string unseenWider = "01 R PIC X. WORKING-STORAGE SECTION. 01 A PIC 9(6).";
  const std::string seenWider = "01 R PIC X. 01 A PIC 9(6).";
  const auto breaks = [](const toolkit::Diff& diff) {
    const auto widened =
        std::find_if(diff.changes.begin(), diff.changes.end(), [](const toolkit::Change& change) {
          return std::string_view(change.kind) == "picture-widened";
        });
    return widened != diff.changes.end() && widened->breaks;
  };
  EXPECT_FALSE(breaks(diffOf(unseen, unseenWider)));
  EXPECT_TRUE(breaks(diffOf(unseen, seenWider)));
  EXPECT_TRUE(breaks(diffOf("01 R PIC X. 01 A PIC 9(4).", unseenWider)));
}

TEST(DiffKindsTest, IdsAreUniqueAndMirrorsMirrorEachOther) {
  for (const toolkit::ChangeKind& kind : toolkit::changeKinds()) {
    EXPECT_EQ(toolkit::findChangeKind(kind.id), &kind) << kind.id;
    const toolkit::ChangeKind* const mirror = toolkit::findChangeKind(kind.mirror);
    ASSERT_NE(mirror, nullptr) << kind.id;
    EXPECT_STREQ(mirror->mirror, kind.id);
  }
  EXPECT_EQ(toolkit::findChangeKind("no-such-kind"), nullptr);
}

TEST_F(DiffTest, EqualDocumentsHaveNoChanges) {
  for (const char* const name :
       {"DEPINT01", "MOTPREM", "PAYSLIP", "WHSLOTS", "MOTPREM-java", "MOTPREM-ws", "MOTPREM-com",
        "MOTPREM-dotnet", "PAYSLIP-ws", "WHSLOTS-ws"}) {
    const std::string file = example(std::string(name) + ".xml");
    const toolkit::Diff diff = toolkit::diffFiles(reader(), file, file);
    EXPECT_THAT(kindsOf(diff), IsEmpty()) << name;
    EXPECT_EQ(textOf(diff), "no changes\n");
    EXPECT_FALSE(toolkit::breaksCallers(diff));
  }
}

TEST_F(DiffTest, ModelsAreComparedLikeFiles) {
  const auto before =
      reader().readDictionary(dictionary("old.xml", "01 R. 05 A PIC X(4). 05 B PIC 9(4)."));
  const auto after =
      reader().readDictionary(dictionary("new.xml", "01 R. 05 A PIC X(4). 05 B PIC 9(6)."));
  EXPECT_THAT(kindsOf(toolkit::diff(*before, *after)),
              ElementsAre("picture-widened", "size-changed", "size-changed"));
}

TEST_F(DiffTest, WorkingStorageBreaksNobody) {
  const std::string program =
      "IDENTIFICATION DIVISION.\nPROGRAM-ID. T.\nDATA DIVISION.\nWORKING-STORAGE SECTION.\n"
      "01 W. 05 A PIC X(";
  const auto dictionaryOf = [&](const std::string& size, const std::string& end) {
    toolkit::ImportOptions options;
    options.format = toolkit::SourceFormat::free;
    return toolkit::importCobol(program + size + "). 05 B PIC X." + end, "T.cbl", nullptr, options)
        .programs.front()
        .dictionary;
  };
  write("old.xml", dictionaryOf("4", "\nPROCEDURE DIVISION.\n"));
  write("new.xml", dictionaryOf("5", "\nPROCEDURE DIVISION.\n"));
  EXPECT_FALSE(toolkit::breaksCallers(toolkit::diffFiles(reader(), "old.xml", "new.xml")));
}

TEST_F(DiffTest, CausesAreToldOnceAndTheRestFollows) {
  const toolkit::Diff diff = diffOf("01 R. 05 A PIC 9(4). 05 B PIC X. 05 C PIC X.",
                                    "01 R. 05 A PIC 9(6). 05 B PIC X. 05 C PIC X.");
  EXPECT_EQ(textOf(diff),
            "BREAKS    R.A: PICTURE widened from 9(4) to 9(6)  [picture-widened]\n"
            "            2 items behind it move by 2 bytes; 2 items become 2 bytes longer\n"
            "\n"
            "1 change, 1 of them breaking callers; 4 others follow\n");
}

TEST_F(DiffTest, ServicesLearnWhatBecomesOfTheirMappings) {
  write("new.xml", test::contentOf(example("MOTPREM.xml")));
  std::string text = test::contentOf("new.xml");
  const auto replace = [&](const std::string& search, const std::string& replacement) {
    text.replace(text.find(search), search.size(), replacement);
  };
  replace("name=\"LK-REQ-SUFFIX\"", "name=\"LK-REQ-END\"");
  replace("name=\"MOTPDISC\"", "name=\"MOTPDIS2\"");
  replace("<numeric name=\"LK-TAX-AMOUNT\" picture=\"S9(09)\" usage=\"comp-5\"",
          "<numeric name=\"LK-TAX-AMOUNT\" picture=\"S9(09)\" usage=\"comp\"");
  write("new.xml", text);
  const toolkit::Diff diff = toolkit::diffFiles(reader(), example("MOTPREM.xml"), "new.xml",
                                                {example("MOTPREM-java.xml")});
  std::vector<std::string> told;
  for (const toolkit::Change& change : diff.changes) {
    if (!change.service.empty()) told.push_back(change.kind + " " + change.oldPlace);
  }
  EXPECT_THAT(told, ElementsAre("mapping-renamed type Quote.policyParts.suffix",
                                "entry-point-lost discountFor", "mapping-changed taxOn.tax"));
  EXPECT_TRUE(toolkit::breaksCallers(diff));
}

TEST_F(DiffTest, AServiceOfAnotherFlavourSpeaksOtherwise) {
  const toolkit::Diff diff =
      toolkit::diffFiles(reader(), example("MOTPREM-java.xml"), example("MOTPREM-com.xml"));
  ASSERT_FALSE(diff.changes.empty());
  EXPECT_EQ(diff.changes[0].kind, "flavour-changed");
  EXPECT_TRUE(diff.changes[0].breaks);
}

TEST_F(DiffTest, FilesThatComeAndGoAreTold) {
  write("old.xml", test::dictionary("<fileSection><fd name='A'/></fileSection>"));
  write("new.xml", test::dictionary("<fileSection><fd name='B'/></fileSection>"));
  EXPECT_THAT(kindsOf(toolkit::diffFiles(reader(), "old.xml", "new.xml")),
              ElementsAre("file-removed", "file-added"));
}

// The first of a name is the other document's first, and so on.
TEST_F(DiffTest, WhatHasTheSameNameIsComparedOneByOne) {
  const char* const conditions =
      "<dataItems><numeric name='N' picture='9' usage='display'>"
      "<numericCondition name='C'><numericConstant value='1'/></numericCondition>"
      "<numericCondition name='C'><numericConstant value='%'/></numericCondition>"
      "</numeric></dataItems>";
  const char* const files =
      "<fileSection><fd name='F' organization='sequential'/>"
      "<fd name='F' organization='%'/></fileSection>";
  const struct {
    const char* content;
    const char* before;
    const char* after;
    const char* kind;
  } rows[] = {
      {conditions, "2", "3", "condition-values-changed"},
      {files, "indexed", "relative", "file-organization-changed"},
  };
  for (const auto& row : rows) {
    const auto dictionaryOf = [&](const char* value) {
      std::string content = row.content;
      return test::dictionary(content.replace(content.find('%'), 1, value));
    };
    write("old.xml", dictionaryOf(row.before));
    write("new.xml", dictionaryOf(row.after));
    EXPECT_THAT(kindsOf(toolkit::diffFiles(reader(), "old.xml", "old.xml")), IsEmpty()) << row.kind;
    const toolkit::Diff diff = toolkit::diffFiles(reader(), "old.xml", "new.xml");
    ASSERT_THAT(kindsOf(diff), ElementsAre(row.kind));
    EXPECT_EQ(diff.changes[0].oldValue, row.before);
    EXPECT_EQ(diff.changes[0].newValue, row.after);
  }
}

TEST_F(DiffTest, AMovedItemIsFoundByItsNameAndOneThatIsGoneIsNot) {
  dictionary("old.xml", "01 R. 05 A PIC X. 05 B PIC X. 05 C PIC X.");
  dictionary("new.xml", "01 R. 05 A PIC X(2). 05 B PIC X.");
  write("s.xml", test::javaService("name='s' implementation='java'",
                                   "<operations><operation name='o' entryPoint='T'><parameters>"
                                   "<parameter name='b'><mappings><mapping item='R.B'/></mappings>"
                                   "</parameter><parameter name='c'><mappings>"
                                   "<mapping item='R.C'/></mappings></parameter></parameters>"
                                   "</operation></operations>"));
  std::vector<std::string> told;
  for (const toolkit::Change& change :
       toolkit::diffFiles(reader(), "old.xml", "new.xml", {"s.xml"}).changes) {
    if (!change.service.empty()) told.push_back(change.kind + " " + change.oldPlace);
  }
  EXPECT_THAT(told, ElementsAre("mapping-moved o.b", "mapping-lost o.c"));
}

TEST_F(DiffTest, AllowedChangesBreakNobody) {
  toolkit::Diff diff =
      diffOf("01 R. 05 A PIC 9(4). 05 B PIC X.", "01 R. 05 A PIC 9(6). 05 B PIC X.");
  EXPECT_TRUE(toolkit::breaksCallers(diff));
  EXPECT_FALSE(toolkit::allow(diff, "no-such-kind"));
  EXPECT_TRUE(toolkit::allow(diff, "picture-widened:R.B"));
  EXPECT_TRUE(toolkit::breaksCallers(diff));
  EXPECT_TRUE(toolkit::allow(diff, "picture-widened:R"));
  EXPECT_FALSE(toolkit::breaksCallers(diff));
  EXPECT_THAT(textOf(diff), testing::StartsWith("allowed   R.A: PICTURE widened"));
}

TEST_F(DiffTest, APlaceIsNoPartOfALongerName) {
  toolkit::Diff diff = diffOf("01 R. 05 AB PIC 9(4).", "01 R. 05 AB PIC S9(4).");
  EXPECT_TRUE(toolkit::allow(diff, "*:R.A"));
  EXPECT_TRUE(toolkit::breaksCallers(diff));
  EXPECT_TRUE(toolkit::allow(diff, "*:R.AB"));
  EXPECT_FALSE(toolkit::breaksCallers(diff));
}

TEST(DiffAllowTest, RulesOfATextAreItsLines) {
  EXPECT_THAT(toolkit::allowRulesIn("# why\n\n  item-moved:R \r\n*:Q\n*:A # why\n*:B\t#\n*:C#1\n"),
              ElementsAre("item-moved:R", "*:Q", "*:A", "*:B", "*:C#1"));
}

TEST_F(DiffTest, JsonHoldsAllChanges) {
  const toolkit::Diff diff =
      diffOf("01 R. 05 A PIC 9(4). 05 B PIC X.", "01 R. 05 A PIC 9(6). 05 B PIC X.");
  const nlohmann::json json = jsonOfDiff(diff);
  EXPECT_EQ(json["of"], "dictionaries");
  EXPECT_EQ(json["breaks"], true);
  ASSERT_EQ(json["changes"].size(), diff.changes.size());
  EXPECT_EQ(json["changes"][0]["kind"], "picture-widened");
  EXPECT_EQ(json["changes"][0]["text"], "R.A: PICTURE widened from 9(4) to 9(6)");
  EXPECT_TRUE(json["changes"][0]["follows"].is_null());
  EXPECT_EQ(json["changes"][1]["follows"], 0);
}

TEST_F(DiffTest, DocumentsOfTwoKindsAreRefused) {
  const toolkit::Refusal refusal = test::refusalOf(
      [&] { toolkit::diffFiles(reader(), example("MOTPREM.xml"), example("MOTPREM-java.xml")); });
  EXPECT_EQ(refusal.text, "is a service, which cannot be compared with a dictionary");
}

// Many items of one name, many that moved: neither takes time beyond measure.
TEST_F(DiffTest, ConditionsOfOneNameHaveTheirPartnersByTheirValues) {
  const auto item = [](const std::string& last) {
    return "01 R.\n05 A PIC X.\n88 C VALUE 'A'.\n88 C VALUE '" + last + "'.";
  };
  const toolkit::Diff diff = diffOf(item("B"), item("X"));
  ASSERT_EQ(kindsOf(diff), std::vector<std::string>{"condition-values-changed"});
  EXPECT_EQ(diff.changes[0].oldValue, "B");
  EXPECT_EQ(diff.changes[0].newValue, "X");
}

// Records have no place among each other: only one that stands for another between the same
// neighbours is that one with a new name.
TEST_F(DiffTest, ARecordWithoutMembersIsRenamedWhereNothingElseChanged) {
  const std::string frame = "01 R PIC X.\n01 K PIC X(3).\n";
  EXPECT_EQ(kindsOf(diffOf(frame + "01 A PIC 9(4).", frame + "01 B PIC 9(4).")),
            std::vector<std::string>{"item-renamed"});
  EXPECT_THAT(kindsOf(diffOf(frame + "01 A PIC 9(4).\n01 C PIC X(9).", frame + "01 B PIC 9(4).")),
              testing::UnorderedElementsAre("item-removed", "item-removed", "item-added"));
}

// Of several that could be renamed, one is; which one does not depend on the direction.
TEST_F(DiffTest, WhatWasRenamedIsTheSameInBothDirections) {
  const std::string before =
      dictionary("old.xml", "01 R.\n05 A PIC 9(4) COMP.\n05 B PIC 9(4) COMP.");
  const std::string after =
      dictionary("new.xml", "01 R.\n05 X PIC X(7).\n05 C PIC 9(4) COMP.\n05 D PIC X.");
  for (const auto& [old, added] : {std::pair(before, after), std::pair(after, before)}) {
    const toolkit::Diff diff = toolkit::diffFiles(reader(), old, added);
    std::string renamed;
    for (const toolkit::Change& change : diff.changes) {
      if (change.kind != "item-renamed") continue;
      renamed += old == before ? change.oldValue : change.newValue;
      renamed += old == before ? change.newValue : change.oldValue;
    }
    EXPECT_EQ(renamed, "AC") << old;
  }
}

TEST_F(DiffTest, DocumentsOfFoldersAreComparedByTheirNames) {
  for (const char* const folder : {"old", "new", "new/deep"}) {
    std::filesystem::create_directory(folder);
  }
  dictionary("old/gone.xml", "01 R PIC X.");
  dictionary("old/kept.xml", "01 R PIC X.");
  dictionary("new/kept.xml", "01 R PIC X(2).");
  dictionary("new/deep/fresh.xml", "01 R PIC X.");
  std::vector<toolkit::DocumentDiff> diffs;
  for (const toolkit::DocumentPair& pair : toolkit::pairsIn("old", "new")) {
    diffs.push_back({pair.name, toolkit::diffPair(reader(), pair)});
  }
  std::ostringstream out;
  toolkit::renderText(out, diffs);
  EXPECT_EQ(out.str(),
            "deep/fresh.xml\n"
            "          deep/fresh.xml: document added  [document-added]\n"
            "\n1 change, 0 of them breaking callers\n\n"
            "gone.xml\n"
            "BREAKS    gone.xml: document removed  [document-removed]\n"
            "\n1 change, 1 of them breaking callers\n\n"
            "kept.xml\n"
            "BREAKS    R: PICTURE widened from X to X(2)  [picture-widened]\n"
            "            1 item becomes 1 byte longer\n"
            "\n1 change, 1 of them breaking callers; 1 other follows\n\n"
            "3 documents, 3 of them changed, 2 breaking callers\n");
}

// A service is for one program: mappings of others lead elsewhere.
TEST_F(DiffTest, ServicesOfFoldersCountForTheirPrograms) {
  const toolkit::DocumentPair pair = {"MOTPREM.xml", example("MOTPREM.xml"),
                                      example("MOTPREM.xml")};
  const toolkit::DocumentPair other = {"PAYSLIP.xml", example("PAYSLIP.xml"),
                                       example("WHSLOTS.xml")};
  const std::string file = example("MOTPREM-java.xml");
  const auto services = toolkit::servicesWithPrograms(reader(), {file});
  ASSERT_EQ(services.size(), 1U);
  EXPECT_EQ(services[0].program, "MOTPREM");
  const toolkit::Diff own = toolkit::diffPair(reader(), pair, services);
  EXPECT_THAT(own.changes, IsEmpty());
  EXPECT_THAT(own.services, ElementsAre(file));
  EXPECT_THAT(toolkit::diffPair(reader(), other, services).services, IsEmpty());
  // One that is gone had it, one that is new has not.
  EXPECT_THAT(toolkit::diffPair(reader(), {"a", pair.before, ""}, services).services,
              ElementsAre(file));
  EXPECT_THAT(toolkit::diffPair(reader(), {"a", "", pair.before}, services).services, IsEmpty());
  for (const toolkit::Change& change : toolkit::diffPair(reader(), other, services).changes) {
    EXPECT_EQ(change.service, "") << change.kind;
  }
}

TEST_F(DiffTest, JsonOfFoldersHoldsAllDocuments) {
  const toolkit::Diff breaking = diffOf("01 R PIC X.", "01 R PIC X(2).");
  std::ostringstream out;
  toolkit::renderJson(out, std::vector<toolkit::DocumentDiff>{{"a.xml", {}}, {"b.xml", breaking}});
  const nlohmann::json json = test::parsedJson(out.str());
  EXPECT_EQ(json["of"], "folders");
  EXPECT_EQ(json["breaks"], true);
  EXPECT_EQ(json["documents"][0]["name"], "a.xml");
  EXPECT_EQ(json["documents"][0]["breaks"], false);
  EXPECT_EQ(json["documents"][1]["changes"][0]["kind"], "picture-widened");
}

// Conditions of text are no part of the model: they come from the document, wherever that is.
TEST_F(DiffTest, DocumentsNeedNotBeFiles) {
  const std::string entries = "01 R PIC X.\n88 C VALUE ";
  const std::string old = test::contentOf(dictionary("old.xml", entries + "'A'."));
  const toolkit::Diff diff =
      toolkit::diffDocuments(reader(), toolkit::DocumentSource{"-", old},
                             toolkit::DocumentSource{dictionary("new.xml", entries + "'B'.")});
  EXPECT_EQ(kindsOf(diff), std::vector<std::string>{"condition-values-changed"});
}

TEST_F(DiffTest, LargeDictionariesAreNoMatter) {
  const auto entries = [](const char* first) {
    std::string text = std::string("01 R. 05 ") + first + " PIC X(8).";
    for (int i = 0; i < 800; ++i) {
      text += "\n05 FILLER PIC X. 05 N" + std::to_string(i) + " PIC 9(4).";
    }
    return text;
  };
  const toolkit::Diff diff = diffOf(entries("A"), entries("Z PIC X. 05 A"));
  EXPECT_EQ(diff.changes.size(), 1603U);
  EXPECT_THAT(textOf(diff), HasSubstr("1601 items behind it move by 1 byte;"));
}

}  // namespace
