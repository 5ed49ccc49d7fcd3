// Tests of the identity records: registration, casting, clean-up.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <string>
#include <vector>

#include "as/AgentServices.h"
#include "cobol/AlphanumericImpl.h"
#include "cobol/ConditionImpl.h"
#include "cobol/ConditionList.h"
#include "cobol/ConditionValueImpl.h"
#include "cobol/DataItemImpl.h"
#include "cobol/DataItemList.h"
#include "cobol/EntryPointImpl.h"
#include "cobol/FDImpl.h"
#include "cobol/GroupImpl.h"
#include "cobol/LinkageItemImpl.h"
#include "cobol/NationalImpl.h"
#include "cobol/NumericEditedImpl.h"
#include "cobol/NumericImpl.h"
#include "cobol/ProgramImpl.h"
#include "cobol/PropertyImpl.h"
#include "support/Dom.h"
#include "support/Registration.h"
#include "xml/Identity.h"
#include "xml/List.h"

namespace {

std::vector<std::string> derivedNames(const RTTITypeinfo& record) {
  std::vector<std::string> names;
  for (int i = 0; i < record.derivedCount; i++) names.emplace_back(record.derived[i]->name);
  return names;
}

using Names = std::vector<std::string>;

using test::expectRegistered;
using test::Registered;

#define INTERFACE(name, ...)                    \
  {                                             \
    &as::name::RTTI_obj, #name, { __VA_ARGS__ } \
  }

// In the order of registration.
const std::vector<Registered>& interfaces() {
  static const std::vector<Registered> rows = {
      INTERFACE(IAgentServices),
      INTERFACE(IElement),
      INTERFACE(IProperty, "IElement"),
      INTERFACE(IList, "IElement"),
      INTERFACE(IConditionValue, "IElement"),
      INTERFACE(ICondition, "IList"),
      INTERFACE(IDataItem, "IElement"),
      INTERFACE(IGroup, "IDataItem"),
      INTERFACE(INumeric, "IDataItem"),
      INTERFACE(IAlphanumeric, "IDataItem"),
      INTERFACE(INumericEdited, "IDataItem"),
      INTERFACE(IAlphanumericEdited, "IDataItem"),
      INTERFACE(IPointer, "IDataItem"),
      INTERFACE(IObject, "IDataItem"),
      INTERFACE(INational, "IDataItem"),
      INTERFACE(IIndex, "IDataItem"),
      INTERFACE(ILinkageItem, "IElement"),
      INTERFACE(IEntryPoint, "IElement"),  // though it derives from IList
      INTERFACE(IProgram, "IElement"),
      INTERFACE(IField, "IElement"),
      INTERFACE(IParameter, "IField"),
      INTERFACE(IOperation, "IElement"),
      INTERFACE(IService, "IElement"),
      INTERFACE(IWSParameter, "IParameter", "IWSField"),
      INTERFACE(IWSOperation, "IOperation"),
      INTERFACE(IWSHeader, "IElement"),
      INTERFACE(IWSFault, "IElement"),
      INTERFACE(IWebService, "IService"),
      INTERFACE(IJavaParameter, "IParameter", "IJavaField"),
      INTERFACE(ICOMParameter, "IParameter", "ICOMField"),
      INTERFACE(IHiddenParameter, "IElement"),  // though it derives from IMapping
      INTERFACE(IMapping, "IElement"),
      INTERFACE(IWSField, "IField"),
      INTERFACE(ICOMField, "IField"),
      INTERFACE(IJavaField, "IField"),
      INTERFACE(IJavaOperation, "IOperation"),
      INTERFACE(IFD, "IElement"),
      INTERFACE(IDotNET, "IService"),
      INTERFACE(IDotNETParameter, "IParameter", "IDotNETField"),
      INTERFACE(IDotNETOperation, "IOperation"),
      INTERFACE(IDotNETField, "IField"),
  };
  return rows;
}

const std::vector<Registered>& implementations() {
  static const std::vector<Registered> rows = {
      {&as::CAgentServicesFactory::RTTI_obj, "CAgentServicesFactory", {}},
      AS_REGISTERED(CElementImpl, "IElement"),
      AS_REGISTERED(CList, "IList", "CElementImpl"),
      AS_REGISTERED(CDataItemList, "IList", "CList"),
      AS_REGISTERED(CConditionList, "IList", "CList"),
      AS_REGISTERED(CProgramImpl, "IProgram", "CElementImpl"),
      AS_REGISTERED(CEntryPointImpl, "IEntryPoint", "CList"),
      AS_REGISTERED(CLinkageItemImpl, "ILinkageItem", "CElementImpl"),
      AS_REGISTERED(CFDImpl, "IFD", "CElementImpl"),
      AS_REGISTERED(CDataItemImpl, "IDataItem", "CElementImpl"),
      AS_REGISTERED(CGroupImpl, "IGroup", "CDataItemImpl"),
      AS_REGISTERED(CNumericImpl, "INumeric", "CDataItemImpl"),
      AS_REGISTERED(CNumericEditedImpl, "INumericEdited", "CDataItemImpl"),
      AS_REGISTERED(CAlphanumericImpl, "IAlphanumeric", "CDataItemImpl"),
      AS_REGISTERED(CNationalImpl, "INational", "CDataItemImpl"),
      AS_REGISTERED(CConditionImpl, "ICondition", "CList"),
      AS_REGISTERED(CConditionValueImpl, "IConditionValue", "CElementImpl"),
      AS_REGISTERED(CPropertyImpl, "IProperty", "CElementImpl"),
  };
  return rows;
}

TEST(Identity, EveryInterfaceIsRegisteredWithItsBases) {
  EXPECT_EQ(interfaces().size(), 41u);
  for (const Registered& row : interfaces()) expectRegistered(row);
}

TEST(Identity, EveryImplementationIsRegisteredWithItsBases) {
  for (const Registered& row : implementations()) expectRegistered(row);
}

TEST(Identity, InterfacesAreRegisteredInOrder) {
  Names expected;
  for (const Registered& row : interfaces()) {
    if (row.bases == Names{"IElement"}) expected.emplace_back(row.name);
  }
  Names found;
  for (const std::string& name : derivedNames(as::IElement::RTTI_obj)) {
    if (name[0] == 'I') found.push_back(name);
  }
  EXPECT_EQ(found, expected);
}

TEST(Identity, NullTypeIsNoType) {
  const RTTITypeinfo& null = RTTITypeinfo::null_type;
  EXPECT_STREQ(null.name, "NULL");
  EXPECT_EQ(null.bases, nullptr);
  EXPECT_EQ(null.scast, nullptr);
  EXPECT_EQ(null.derivedCount, 0);
  CElementImpl element(nullptr);
  EXPECT_EQ(element.RTTI_cast(RTTItypeid(&null)), nullptr);
}

TEST(Identity, RegistrationAppendsToEveryBaseAndCleanUpTakesItOut) {
  RTTITypeinfo base = {};
  RTTITypeinfo* noBases[] = {nullptr};
  const IdentityRegistration ofBase(base, "Base", noBases, nullptr);
  RTTITypeinfo* bases[] = {&base, nullptr};
  RTTITypeinfo first = {};
  RTTITypeinfo second = {};
  RTTITypeinfo third = {};
  {
    const IdentityRegistration one(first, "First", bases, nullptr);
    EXPECT_EQ(derivedNames(base), Names{"First"});
    {
      const IdentityRegistration two(second, "Second", bases, nullptr);
      const IdentityRegistration three(third, "Third", bases, nullptr);
      EXPECT_EQ(derivedNames(base), (Names{"First", "Second", "Third"}));
    }
    EXPECT_EQ(first.reserved, 0);
  }
  EXPECT_EQ(base.derivedCount, 3) << "left as it was";
  EXPECT_EQ(first.name, nullptr);
  delete[] base.derived;
}

TEST(Identity, CleanUpMovesLaterEntriesDown) {
  RTTITypeinfo base = {};
  RTTITypeinfo* noBases[] = {nullptr};
  const IdentityRegistration ofBase(base, "Base", noBases, nullptr);
  RTTITypeinfo* bases[] = {&base, nullptr};
  RTTITypeinfo first = {};
  RTTITypeinfo second = {};
  auto one = std::make_unique<IdentityRegistration>(first, "First", bases, nullptr);
  const IdentityRegistration two(second, "Second", bases, nullptr);
  one.reset();
  EXPECT_EQ(base.derived[0], &second);
  delete[] std::exchange(base.derived, nullptr);
  base.derivedCount = 0;
}

TEST(Identity, NameIsACopy) {
  char name[] = "Temporary";
  RTTITypeinfo record = {};
  const IdentityRegistration registration(record, name, nullptr, nullptr);
  name[0] = 'X';
  EXPECT_STREQ(record.name, "Temporary");
}

TEST(Identity, DesignatesByRecordOrName) {
  const RTTItypeid group(&as::IGroup::RTTI_obj);
  EXPECT_TRUE(group.designates(as::IGroup::RTTI_obj));
  EXPECT_FALSE(group.designates(as::INumeric::RTTI_obj));
  char name[] = "IGroup";
  const RTTITypeinfo twin = {name, nullptr, 0, nullptr, 0, nullptr};
  EXPECT_TRUE(RTTItypeid(&twin).designates(as::IGroup::RTTI_obj));
  const RTTITypeinfo nameless = {};
  EXPECT_FALSE(RTTItypeid(&nameless).designates(as::IGroup::RTTI_obj));
  EXPECT_FALSE(RTTItypeid(nullptr).designates(as::IGroup::RTTI_obj));
}

TEST(Identity, StaticCast) {
  test::Dom dom("<group/>");
  CGroupImpl group(dom.root());
  as::IGroup* const asInterface = &group;
  EXPECT_EQ(as::IGroup::RTTI_scast(0, nullptr), nullptr);
  EXPECT_EQ(as::IGroup::RTTI_scast(1, nullptr), nullptr);
  EXPECT_EQ(as::IGroup::RTTI_scast(1, asInterface), asInterface);
  EXPECT_EQ(as::IGroup::RTTI_scast(0, asInterface), asInterface);
  EXPECT_EQ(CGroupImpl::RTTI_scast(0, &group), &group);
}

TEST(Identity, CastWalksTheInterfaceFirstThenTheImplementation) {
  test::Dom dom("<group/>");
  CGroupImpl group(dom.root());
  as::IElement* const element = &group;
  EXPECT_EQ(as::interface_cast<CGroupImpl>(element), &group);
  EXPECT_EQ(as::interface_cast<as::IGroup>(element), static_cast<as::IGroup*>(&group));
  EXPECT_EQ(as::interface_cast<CDataItemImpl>(element), static_cast<CDataItemImpl*>(&group));
  EXPECT_EQ(as::interface_cast<CElementImpl>(element), static_cast<CElementImpl*>(&group));
  EXPECT_EQ(as::interface_cast<as::IDataItem>(element), static_cast<as::IDataItem*>(&group));
  EXPECT_EQ(as::interface_cast<as::IElement>(element), element);
  EXPECT_EQ(as::interface_cast<CNumericImpl>(element), nullptr);
  EXPECT_EQ(as::interface_cast<as::IService>(element), nullptr);
  EXPECT_EQ(as::interface_cast<CList>(element), nullptr);
}

TEST(Identity, CastFollowsTheLanguagesBasesNotTheRegisteredOnes) {
  test::Dom dom("<entryPoint/>");
  CEntryPointImpl entryPoint(dom.root());
  as::IEntryPoint* const asInterface = &entryPoint;
  EXPECT_EQ(as::interface_cast<as::IList>(asInterface), static_cast<as::IList*>(&entryPoint));
}

TEST(Identity, CastReachesAPrivateBase) {
  test::Dom dom("<numericConstant/>");
  CConditionValueImpl value(dom.root());
  auto* const wrapper = as::interface_cast<CElementImpl>(&value);
  ASSERT_NE(wrapper, nullptr);
  EXPECT_EQ(wrapper->getElement(), dom.root());
}

TEST(Identity, VinfoNamesTheObjectsOwnClass) {
  test::Dom dom("<group/>");
  CGroupImpl group(dom.root());
  as::IElement* const element = &group;
  EXPECT_EQ(element->RTTI_vinfo().record(), &CGroupImpl::RTTI_obj);
}

TEST(Identity, FactoryCastsToItselfOnly) {
  as::CAgentServicesFactory factory;
  EXPECT_EQ(as::interface_cast<as::CAgentServicesFactory>(&factory), &factory);
  EXPECT_EQ(as::interface_cast<as::IElement>(&factory), nullptr);
  EXPECT_EQ(factory.RTTI_vinfo().record(), &as::CAgentServicesFactory::RTTI_obj);
}

TEST(Identity, RunTimeIdentityIsAnIdentity) {
  const RTTIdyntypeid id(&as::IGroup::RTTI_obj);
  EXPECT_TRUE(id.designates(as::IGroup::RTTI_obj));
  EXPECT_EQ(RTTIdyntypeid::a, 0);
}

}  // namespace
