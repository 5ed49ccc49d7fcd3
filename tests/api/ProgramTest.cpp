// Tests of a dictionary's program, its properties, and the interfaces that the objects beside the
// data items have.
#include <gtest/gtest.h>

#include <iterator>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "as/AgentServices.h"
#include "support/Documents.h"
#include "support/Model.h"
#include "support/Requests.h"

namespace {

using test::dictionary;
using test::dictionaryOf;
using test::entryPointOf;
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
      {"parameter", entryPointOf(*program)->getItem(0), "IElement ILinkageItem"},
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
