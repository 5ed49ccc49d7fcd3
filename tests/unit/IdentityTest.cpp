// Tests of the identity records: registration, casting, clean-up.
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "as/AgentServices.h"
#include "cobol/ConditionValueImpl.h"
#include "cobol/DataItemImpl.h"
#include "cobol/EntryPointImpl.h"
#include "cobol/GroupImpl.h"
#include "cobol/NumericImpl.h"
#include "support/Dom.h"
#include "xml/Identity.h"
#include "xml/List.h"

namespace {

std::vector<std::string> derivedNames(const RTTITypeinfo& record) {
  std::vector<std::string> names;
  for (int i = 0; i < record.derivedCount; i++) names.emplace_back(record.derived[i]->name);
  return names;
}

using Names = std::vector<std::string>;

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
