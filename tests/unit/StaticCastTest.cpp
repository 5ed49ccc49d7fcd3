// Tests of RTTI_scast, which every class puts into its identity record.
#include <gtest/gtest.h>

#include <memory>
#include <set>
#include <string>

#include "as/AgentServices.h"
#include "cobol/VorDDHandler.h"
#include "com/VorCHandler.h"
#include "dotnet/VorDotNETHandler.h"
#include "java/VorJHandler.h"
#include "service/FieldList.h"
#include "support/Dom.h"
#include "support/Wrappers.h"
#include "ws/FaultList.h"
#include "ws/FieldAttributeList.h"
#include "ws/HeaderList.h"
#include "ws/VorWSHandler.h"

namespace {

using test::makeHandler;
using Records = std::set<const RTTITypeinfo*>;

// The record and those of all classes derived from it.
void addDerived(const RTTITypeinfo& record, Records& all) {
  all.insert(&record);
  for (int i = 0; i < record.derivedCount; i++) addDerived(*record.derived[i], all);
}

Records everyRecord() {
  Records all;
  addDerived(as::IElement::RTTI_obj, all);
  addDerived(as::IAgentServices::RTTI_obj, all);
  addDerived(as::CAgentServicesFactory::RTTI_obj, all);
  return all;
}

// The record and those of all its bases.
void addBases(const RTTITypeinfo& record, Records& all) {
  all.insert(&record);
  for (RTTITypeinfo** base = record.bases; *base != nullptr; ++base) addBases(**base, all);
}

// A pointer to the object as one of its classes is told from one to the object as another.
void expectSeenAsEachOfItsClasses(CElementImpl* wrapper) {
  ASSERT_NE(wrapper, nullptr);
  Records classes;
  addBases(*wrapper->RTTI_vinfo().record(), classes);
  for (const RTTITypeinfo* record : classes) {
    SCOPED_TRACE(record->name);
    void* const seen = wrapper->RTTI_cast(RTTItypeid(record));
    EXPECT_NE(seen, nullptr);
    EXPECT_EQ(record->scast(0, seen), seen);
  }
}

TEST(StaticCast, OfNothingIsNothing) {
  const Records all = everyRecord();
  EXPECT_GT(all.size(), 41u);
  for (const RTTITypeinfo* record : all) EXPECT_EQ(record->scast(0, nullptr), nullptr);
}

TEST(StaticCast, AFlagOtherThanZeroLeavesThePointerAsItIs) {
  int anything = 0;
  for (const RTTITypeinfo* record : everyRecord()) {
    SCOPED_TRACE(record->name);
    EXPECT_EQ(record->scast(1, &anything), &anything);
    EXPECT_EQ(record->scast(-1, nullptr), nullptr);
  }
}

TEST(StaticCast, SeesAnObjectOfADictionaryAsEachOfItsClasses) {
  for (const char* name :
       {"program", "properties", "property", "fileSection", "fd", "dataItems", "entryPoints",
        "entryPoint", "parameter", "group", "numeric", "numericEdited", "alphanumeric", "national",
        "pointer", "numericCondition", "numericConstant"}) {
    SCOPED_TRACE(name);
    test::Dom dom("<" + std::string(name) + "/>");
    CVorDDHandler handler;
    handler.newElement(dom.root());
    expectSeenAsEachOfItsClasses(CElementImpl::wrapperOf(dom.root()));
  }
}

TEST(StaticCast, SeesAnObjectOfAServiceAsEachOfItsClasses) {
  const std::shared_ptr<CVorSHandler> handlers[] = {
      makeHandler<test::PlainHandler>(), makeHandler<CVorWSHandler>(), makeHandler<CVorCHandler>(),
      makeHandler<CVorJHandler>(), makeHandler<CVorDotNETHandler>()};
  for (const auto& handler : handlers) {
    for (const char* name :
         {"service", "operations", "operation", "parameter", "mapping", "hiddenParameter"}) {
      SCOPED_TRACE(name);
      test::Dom dom("<" + std::string(name) + "/>");
      handler->newElement(dom.root());
      expectSeenAsEachOfItsClasses(CElementImpl::wrapperOf(dom.root()));
    }
  }
}

TEST(StaticCast, SeesHeadersFaultsAndListsAsEachOfTheirClasses) {
  for (const char* name : {"header", "fault"}) {
    test::Dom dom("<" + std::string(name) + "/>");
    CVorWSHandler handler;
    handler.newElement(dom.root());
    expectSeenAsEachOfItsClasses(CElementImpl::wrapperOf(dom.root()));
  }
  test::Dom dom("<operation/>");
  CFieldList fields(dom.root());
  CFieldAttributeList attributes(dom.root());
  CHeaderList headers(dom.root());
  CFaultList faults(dom.root());
  for (CElementImpl* list :
       {static_cast<CElementImpl*>(&fields), static_cast<CElementImpl*>(&attributes),
        static_cast<CElementImpl*>(&headers), static_cast<CElementImpl*>(&faults)}) {
    expectSeenAsEachOfItsClasses(list);
  }
}

}  // namespace
