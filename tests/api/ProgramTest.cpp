// Tests of a dictionary's program: its sections, properties, files, entry points and parameters.
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "support/Dictionary.h"

namespace {

using test::dictionary;
using test::dictionaryOf;
using test::itemOf;
using test::parse;
using test::topItem;

TEST(Program, NameIsTheAttribute) { EXPECT_EQ(parse(dictionary(""))->getName(), "PAYROLL"); }

TEST(Program, OutlivesTheEntryObject) {
  std::unique_ptr<as::IAgentServices> services = test::newServices();
  const std::unique_ptr<as::IProgram> program =
      std::move(test::outcomeOf(*services, dictionaryOf("<numeric name='N'/>")).root);
  services.reset();
  ASSERT_NE(program, nullptr);
  EXPECT_EQ(topItem<as::IDataItem>(*program)->getName(), "N");
}

// Sections.

struct Section {
  const char* name;
  as::IList* (as::IProgram::*get)();
  const char* members;  // Two, named FIRST and SECOND.
};

void PrintTo(const Section& section, std::ostream* out) { *out << section.name; }

constexpr Section sections[] = {
    {"properties", &as::IProgram::getProperties,
     "<property name='FIRST'/><property name='SECOND'/>"},
    {"fileSection", &as::IProgram::getFileSection, "<fd name='FIRST'/><fd name='SECOND'/>"},
    {"dataItems", &as::IProgram::getDataItems, "<numeric name='FIRST'/><group name='SECOND'/>"},
    {"entryPoints", &as::IProgram::getEntryPoints,
     "<entryPoint name='FIRST'/><entryPoint name='SECOND'/>"},
};

std::string element(const std::string& name, const std::string& content) {
  return "<" + name + ">" + content + "</" + name + ">";
}

class ProgramSection : public testing::TestWithParam<Section> {
 protected:
  static as::IList* listOf(as::IProgram& program) { return (program.*GetParam().get)(); }
};

TEST_P(ProgramSection, AbsentReadsAsTheEmptyList) {
  const auto program = parse(dictionary(""));
  as::IList* const list = listOf(*program);
  ASSERT_NE(list, nullptr);
  EXPECT_EQ(list->getLength(), 0);
  EXPECT_EQ(list->getItem(0), nullptr);
  EXPECT_EQ(list->getAttributeValue("name"), "");
}

TEST_P(ProgramSection, AbsentReadsAsTheSameListInEveryProgram) {
  const auto program = parse(dictionary(""));
  const auto other = parse(dictionary(""));
  for (const Section& section : sections) {
    EXPECT_EQ((other.get()->*section.get)(), listOf(*program)) << section.name;
  }
}

TEST_P(ProgramSection, PresentButEmptyIsAListOfItsOwn) {
  const auto program = parse(dictionary(element(GetParam().name, "")));
  const auto without = parse(dictionary(""));
  ASSERT_NE(listOf(*program), nullptr);
  EXPECT_NE(listOf(*program), listOf(*without));
  EXPECT_EQ(listOf(*program)->getLength(), 0);
  EXPECT_EQ(listOf(*program)->getItem(0), nullptr);
}

TEST_P(ProgramSection, HoldsItsMembersInDocumentOrder) {
  const auto program = parse(dictionary(element(GetParam().name, GetParam().members)));
  as::IList* const list = listOf(*program);
  ASSERT_EQ(list->getLength(), 2);
  EXPECT_EQ(list->getItem(0)->getAttributeValue("name"), "FIRST");
  EXPECT_EQ(list->getItem(1)->getAttributeValue("name"), "SECOND");
}

TEST_P(ProgramSection, IsTheSameListEveryTime) {
  const auto program = parse(dictionary(element(GetParam().name, GetParam().members)));
  EXPECT_EQ(listOf(*program), listOf(*program));
  EXPECT_EQ(listOf(*program)->getItem(1), listOf(*program)->getItem(1));
}

TEST_P(ProgramSection, LeavesTheOthersEmpty) {
  const auto program = parse(dictionary(element(GetParam().name, GetParam().members)));
  for (const Section& section : sections) {
    SCOPED_TRACE(section.name);
    EXPECT_EQ((program.get()->*section.get)()->getLength(),
              std::string(section.name) == GetParam().name ? 2 : 0);
  }
}

// Blanks, comments and processing instructions between the members are none.
TEST_P(ProgramSection, HoldsElementsOnly) {
  const auto program = parse(dictionary(element(
      GetParam().name, "\n <!-- c -->" + std::string(GetParam().members) + "<?target data?>\n")));
  EXPECT_EQ(listOf(*program)->getLength(), 2);
}

INSTANTIATE_TEST_SUITE_P(All, ProgramSection, testing::ValuesIn(sections),
                         [](const auto& row) { return row.param.name; });

// Properties.

TEST(Property, HasNameAndValue) {
  const auto program =
      parse(dictionary("<properties><property name='dialect' value='mf'/><property name='Quelle' "
                       "value='Z\xC3\xBCrich &lt;\xF0\x9F\x93\x84&gt;'/></properties>"));
  auto* const first = itemOf<as::IProperty>(program->getProperties(), 0);
  ASSERT_NE(first, nullptr);
  EXPECT_EQ(first->getName(), "dialect");
  EXPECT_EQ(first->getValue(), "mf");
  auto* const second = itemOf<as::IProperty>(program->getProperties(), 1);
  ASSERT_NE(second, nullptr);
  EXPECT_EQ(second->getName(), "Quelle");
  EXPECT_EQ(second->getValue(), "Z\xC3\xBCrich <\xF0\x9F\x93\x84>");
}

TEST(Property, ValueIsEmptyWhenAbsentOrEmpty) {
  const auto program = parse(
      dictionary("<properties><property name='a'/><property name='b' value=''/></properties>"));
  EXPECT_EQ(itemOf<as::IProperty>(program->getProperties(), 0)->getValue(), "");
  EXPECT_EQ(itemOf<as::IProperty>(program->getProperties(), 1)->getValue(), "");
}

// Files.

TEST(File, HasAName) {
  const auto program = parse(dictionary("<fileSection><fd name='MASTER-FILE'/></fileSection>"));
  auto* const file = itemOf<as::IFD>(program->getFileSection(), 0);
  ASSERT_NE(file, nullptr);
  EXPECT_EQ(file->getName(), "MASTER-FILE");
}

TEST(File, AccessModeAndOrganizationAreFixedWhateverTheAttributesSay) {
  for (const char* mode : {"", "sequential", "random", "dynamic"}) {
    for (const char* organization : {"", "sequential", "relative", "indexed", "lineSequential"}) {
      SCOPED_TRACE(std::string(mode) + " " + organization);
      std::string attributes;
      if (*mode != '\0') attributes += std::string(" accessMode='") + mode + "'";
      if (*organization != '\0') {
        attributes += std::string(" organization='") + organization + "'";
      }
      const auto program =
          parse(dictionary("<fileSection><fd name='F'" + attributes + "/></fileSection>"));
      auto* const file = itemOf<as::IFD>(program->getFileSection(), 0);
      EXPECT_EQ(file->getAccessMode(), 1);
      EXPECT_EQ(file->getOrganization(), 0);
      EXPECT_EQ(file->getAttributeValue("accessMode"), mode);
      EXPECT_EQ(file->getAttributeValue("organization"), organization);
    }
  }
}

TEST(File, DataItemsAreNullWhenAbsent) {
  const auto program = parse(dictionary("<fileSection><fd name='F'/></fileSection>"));
  EXPECT_EQ(itemOf<as::IFD>(program->getFileSection(), 0)->getDataItems(), nullptr);
}

TEST(File, DataItemsAreAnEmptyListWhenEmpty) {
  const auto program =
      parse(dictionary("<fileSection><fd name='F'><dataItems/></fd></fileSection>"));
  as::IList* const records = itemOf<as::IFD>(program->getFileSection(), 0)->getDataItems();
  ASSERT_NE(records, nullptr);
  EXPECT_EQ(records->getLength(), 0);
}

TEST(File, HoldsItsRecordsInDocumentOrder) {
  const auto program =
      parse(dictionary("<fileSection>"
                       "<fd name='F'><dataItems><group name='R1'><numeric name='N'/></group>"
                       "<alphanumeric name='R2'/></dataItems></fd>"
                       "<fd name='G'><dataItems><group name='R3'/></dataItems></fd>"
                       "</fileSection>"));
  as::IList* const records = itemOf<as::IFD>(program->getFileSection(), 0)->getDataItems();
  ASSERT_EQ(records->getLength(), 2);
  EXPECT_EQ(itemOf<as::IDataItem>(records, 0)->getName(), "R1");
  EXPECT_EQ(itemOf<as::IDataItem>(records, 1)->getName(), "R2");
  as::IList* const fields = itemOf<as::IGroup>(records, 0)->getChildren();
  ASSERT_EQ(fields->getLength(), 1);
  EXPECT_EQ(itemOf<as::INumeric>(fields, 0)->getName(), "N");
  as::IList* const others = itemOf<as::IFD>(program->getFileSection(), 1)->getDataItems();
  ASSERT_EQ(others->getLength(), 1);
  EXPECT_EQ(itemOf<as::IDataItem>(others, 0)->getName(), "R3");
}

TEST(File, RecordsAreNoItemsOfTheProgram) {
  const auto program =
      parse(dictionary("<fileSection><fd name='F'><dataItems><group name='R'/></dataItems></fd>"
                       "</fileSection><dataItems><numeric name='N'/></dataItems>"));
  ASSERT_EQ(program->getDataItems()->getLength(), 1);
  EXPECT_EQ(topItem<as::IDataItem>(*program)->getName(), "N");
}

// Entry points.

as::IEntryPoint* entryPoint(as::IProgram& program, int index = 0) {
  return itemOf<as::IEntryPoint>(program.getEntryPoints(), index);
}

TEST(EntryPoint, HasAName) {
  const auto program = parse(
      dictionary("<entryPoints><entryPoint name='MAIN'/><entryPoint name='NEXT'/></entryPoints>"));
  ASSERT_NE(entryPoint(*program), nullptr);
  EXPECT_EQ(entryPoint(*program, 0)->getName(), "MAIN");
  EXPECT_EQ(entryPoint(*program, 1)->getName(), "NEXT");
}

TEST(EntryPoint, CallConventionIsTheNumberInTheDocument) {
  const struct {
    const char* attribute;
    int number;
  } rows[] = {
      {"", 0},
      {"callConvention='0'", 0},
      {"callConvention='3'", 3},
      {"callConvention='+66'", 66},
      {"callConvention='0016'", 16},
      {"callConvention=' 8 '", 8},
      {"callConvention='-1'", -1},
      {"callConvention='2147483647'", 2147483647},
      {"callConvention='-2147483648'", -2147483647 - 1},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.attribute);
    const auto program = parse(dictionary("<entryPoints><entryPoint name='E' " +
                                          std::string(row.attribute) + "/></entryPoints>"));
    EXPECT_EQ(entryPoint(*program)->getCallConv(), row.number);
  }
}

TEST(EntryPoint, IsTheListOfItsParameters) {
  const auto program = parse(
      dictionary("<entryPoints><entryPoint name='E'><parameter dataItem='A'/><!-- and -->"
                 "<parameter dataItem='B'/></entryPoint><entryPoint name='F'/></entryPoints>"));
  as::IEntryPoint* const first = entryPoint(*program, 0);
  ASSERT_EQ(first->getLength(), 2);
  EXPECT_EQ(first->getItem(0)->getAttributeValue("dataItem"), "A");
  EXPECT_EQ(first->getItem(1)->getAttributeValue("dataItem"), "B");
  EXPECT_NE(itemOf<as::ILinkageItem>(first, 0), nullptr);
  EXPECT_EQ(as::interface_cast<as::IList>(first)->getLength(), 2);
  EXPECT_EQ(entryPoint(*program, 1)->getLength(), 0);
}

TEST(Parameter, ByTypeIsTheCodeOfTheWord) {
  const struct {
    const char* attribute;
    int code;
  } rows[] = {
      {"", 0},
      {"byType='reference'", 0},
      {"byType='value'", 1},
      {"byType='returning'", 2},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.attribute);
    const auto program =
        parse(dictionary("<entryPoints><entryPoint name='E'><parameter dataItem='A' " +
                         std::string(row.attribute) + "/></entryPoint></entryPoints>"));
    EXPECT_EQ(itemOf<as::ILinkageItem>(entryPoint(*program), 0)->getByType(), row.code);
  }
}

// A program with an entry point of one parameter that names `dataItem`.
std::string programWithParameter(const std::string& dataItem, const std::string& dataItems) {
  return dictionary(
      "<fileSection><fd name='FILE'><dataItems><group name='RECORD'><numeric name='FIELD'/>"
      "</group></dataItems></fd></fileSection>" +
      dataItems + "<entryPoints><entryPoint name='E'><parameter dataItem='" + dataItem +
      "'/></entryPoint></entryPoints>");
}

as::IDataItem* parameterItem(as::IProgram& program) {
  return itemOf<as::ILinkageItem>(entryPoint(program), 0)->getDataItem();
}

TEST(Parameter, DataItemIsTheFirstOfThatNameOnTheTopLevel) {
  // The item found is told by its line.
  const std::string dataItems =
      "<dataItems>"
      "<group name='G' line='1'><numeric name='INNER' line='2'/><numeric name='TWICE' line='3'/>"
      "<group name='G2' line='4'/></group>"
      "<numeric name='TWICE' line='5'/><alphanumeric name='TWICE' line='6'/>"
      "<national name='Stra\xC3\x9F"
      "e' line='7'/><numeric name='lower' line='8'/>"
      "<alphanumeric name='WITH BLANK' line='9'/>"
      "</dataItems>";
  constexpr int none = 0;
  const struct {
    const char* dataItem;
    int line;
  } rows[] = {
      {"G", 1},
      {"TWICE", 5},
      {"Stra\xC3\x9F"
       "e",
       7},
      {"lower", 8},
      {"WITH BLANK", 9},
      {"INNER", none},
      {"G2", none},
      {"G.INNER", none},
      {"G(1)", none},
      {"LOWER", none},
      {"g", none},
      {"G ", none},
      {" G", none},
      {"TWIC", none},
      {"TWICES", none},
      {"RECORD", none},
      {"FIELD", none},
      {"FILE", none},
      {"PAYROLL", none},
      {"UNKNOWN", none},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.dataItem);
    const auto program = parse(programWithParameter(row.dataItem, dataItems));
    as::IDataItem* const item = parameterItem(*program);
    EXPECT_EQ(item == nullptr ? none : item->getLine(), row.line);
  }
}

TEST(Parameter, DataItemIsTheObjectOfTheProgramsList) {
  const auto program = parse(programWithParameter(
      "B", "<dataItems><numeric name='A'/><group name='B'/><group name='B'/></dataItems>"));
  EXPECT_EQ(parameterItem(*program), topItem<as::IDataItem>(*program, 1));
}

TEST(Parameter, DataItemMayBeOfAnyKind) {
  for (const char* kind : {"group", "numeric", "alphanumeric", "numericEdited", "national",
                           "pointer", "cobolObject", "index"}) {
    SCOPED_TRACE(kind);
    const auto program = parse(
        programWithParameter("A", element("dataItems", "<" + std::string(kind) + " name='A'/>")));
    ASSERT_NE(parameterItem(*program), nullptr);
    EXPECT_EQ(parameterItem(*program)->getName(), "A");
  }
}

TEST(Parameter, DataItemIsNullInAProgramWithoutDataItems) {
  const auto program = parse(programWithParameter("A", ""));
  EXPECT_EQ(parameterItem(*program), nullptr);
}

TEST(Parameter, DataItemIsThatOfItsOwnProgram) {
  const std::string dataItems = "<dataItems><numeric name='A'/></dataItems>";
  const auto program = parse(programWithParameter("A", dataItems));
  const auto other = parse(programWithParameter("A", dataItems));
  EXPECT_EQ(parameterItem(*program), topItem<as::IDataItem>(*program));
  EXPECT_EQ(parameterItem(*other), topItem<as::IDataItem>(*other));
  EXPECT_NE(parameterItem(*program), parameterItem(*other));
}

// Which interfaces the objects beside the data items have. Those of the data items are tested with
// their kinds.

// Whether `element` casts to each of the interfaces, in the order of `interfaceNames`.
std::vector<bool> castsOf(as::IElement* element) {
  return {
      as::interface_cast<as::IElement>(element) != nullptr,
      as::interface_cast<as::IList>(element) != nullptr,
      as::interface_cast<as::IProgram>(element) != nullptr,
      as::interface_cast<as::IProperty>(element) != nullptr,
      as::interface_cast<as::IFD>(element) != nullptr,
      as::interface_cast<as::IEntryPoint>(element) != nullptr,
      as::interface_cast<as::ILinkageItem>(element) != nullptr,
      as::interface_cast<as::ICondition>(element) != nullptr,
      as::interface_cast<as::IConditionValue>(element) != nullptr,
      as::interface_cast<as::IDataItem>(element) != nullptr,
      as::interface_cast<as::IGroup>(element) != nullptr,
      as::interface_cast<as::IService>(element) != nullptr,
      as::interface_cast<as::IField>(element) != nullptr,
      as::interface_cast<as::IMapping>(element) != nullptr,
  };
}

constexpr const char* interfaceNames[] = {
    "IElement",    "IList",        "IProgram",   "IProperty",       "IFD",
    "IEntryPoint", "ILinkageItem", "ICondition", "IConditionValue", "IDataItem",
    "IGroup",      "IService",     "IField",     "IMapping"};

TEST(ProgramInterfaces, EachObjectHasItsOwnAndThoseItDerivesFrom) {
  const auto program =
      parse(dictionary("<properties><property name='P'/></properties>"
                       "<fileSection><fd name='F'><dataItems/></fd></fileSection>"
                       "<dataItems><numeric name='N'><numericCondition name='C'>"
                       "<numericConstant value='1'/></numericCondition></numeric><group name='G'/>"
                       "</dataItems>"
                       "<entryPoints><entryPoint name='E'><parameter dataItem='N'/></entryPoint>"
                       "</entryPoints>"));
  as::IElement* const file = program->getFileSection()->getItem(0);
  as::IList* const conditions = topItem<as::IDataItem>(*program)->getConditions();
  const std::string list = "IElement IList";
  const struct {
    const char* what;
    as::IElement* object;
    std::string interfaces;
  } rows[] = {
      {"program", program.get(), "IElement IProgram"},
      {"properties", program->getProperties(), list},
      {"file section", program->getFileSection(), list},
      {"data items", program->getDataItems(), list},
      {"entry points", program->getEntryPoints(), list},
      {"property", program->getProperties()->getItem(0), "IElement IProperty"},
      {"file", file, "IElement IFD"},
      {"records of a file", as::interface_cast<as::IFD>(file)->getDataItems(), list},
      {"children of a group", topItem<as::IGroup>(*program, 1)->getChildren(), list},
      {"entry point", program->getEntryPoints()->getItem(0), "IElement IList IEntryPoint"},
      {"parameter", entryPoint(*program)->getItem(0), "IElement ILinkageItem"},
      {"conditions", conditions, list},
      {"condition", conditions->getItem(0), "IElement IList ICondition"},
      {"condition value", itemOf<as::ICondition>(conditions, 0)->getItem(0),
       "IElement IConditionValue"},
      {"group", program->getDataItems()->getItem(1), "IElement IDataItem IGroup"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.what);
    ASSERT_NE(row.object, nullptr);
    const std::vector<bool> casts = castsOf(row.object);
    ASSERT_EQ(casts.size(), std::size(interfaceNames));
    std::string interfaces;
    for (std::size_t i = 0; i < casts.size(); i++) {
      if (casts[i]) interfaces += (interfaces.empty() ? "" : " ") + std::string(interfaceNames[i]);
    }
    EXPECT_EQ(interfaces, row.interfaces);
    EXPECT_EQ(as::interface_cast<as::IElement>(row.object), row.object);
    EXPECT_NE(row.object->RTTI_cast(row.object->RTTI_vinfo()), nullptr);
    EXPECT_EQ(row.object->RTTI_cast(RTTItypeid(&RTTITypeinfo::null_type)), nullptr);
    EXPECT_EQ(row.object->RTTI_cast(RTTItypeid(nullptr)), nullptr);
  }
}

TEST(ProgramInterfaces, TheEntryObjectHasItsOwnOnly) {
  const auto services = test::newServices();
  EXPECT_EQ(as::interface_cast<as::IAgentServices>(services.get()), services.get());
  EXPECT_EQ(as::interface_cast<as::IElement>(services.get()), nullptr);
  EXPECT_EQ(as::interface_cast<as::IProgram>(services.get()), nullptr);
  EXPECT_NE(services->RTTI_cast(services->RTTI_vinfo()), nullptr);
}

TEST(ProgramInterfaces, NullCastsToNull) {
  EXPECT_EQ(as::interface_cast<as::IGroup>(static_cast<as::IElement*>(nullptr)), nullptr);
}

}  // namespace
