// How the classes are registered as the library is loaded: which there are, with which bases and in
// which order. Clients that look for the classes derived from another read the lists that come of
// it. Compiled against the shared library and against its objects: how they are linked must not
// matter.
#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

#include "as/AgentServices.h"
#include "support/Records.h"

namespace {

using Names = std::vector<std::string>;

struct Registered {
  std::string name;
  Names bases;
};

// In the order of registration: the interfaces, then the implementation classes, by the files that
// they are in.
const std::vector<Registered> table = {
    // clang-format off
    {"IAgentServices", {}},
    {"IElement", {}},
    {"IProperty", {"IElement"}},
    {"IList", {"IElement"}},
    {"IConditionValue", {"IElement"}},
    {"ICondition", {"IList"}},
    {"IDataItem", {"IElement"}},
    {"IGroup", {"IDataItem"}},
    {"INumeric", {"IDataItem"}},
    {"IAlphanumeric", {"IDataItem"}},
    {"INumericEdited", {"IDataItem"}},
    {"IAlphanumericEdited", {"IDataItem"}},
    {"IPointer", {"IDataItem"}},
    {"IObject", {"IDataItem"}},
    {"INational", {"IDataItem"}},
    {"IIndex", {"IDataItem"}},
    {"ILinkageItem", {"IElement"}},
    {"IEntryPoint", {"IElement"}},  // though it derives from IList
    {"IProgram", {"IElement"}},
    {"IField", {"IElement"}},
    {"IParameter", {"IField"}},
    {"IOperation", {"IElement"}},
    {"IService", {"IElement"}},
    {"IWSParameter", {"IParameter", "IWSField"}},
    {"IWSOperation", {"IOperation"}},
    {"IWSHeader", {"IElement"}},
    {"IWSFault", {"IElement"}},
    {"IWebService", {"IService"}},
    {"IJavaParameter", {"IParameter", "IJavaField"}},
    {"ICOMParameter", {"IParameter", "ICOMField"}},
    {"IHiddenParameter", {"IElement"}},  // though it derives from IMapping
    {"IMapping", {"IElement"}},
    {"IWSField", {"IField"}},
    {"ICOMField", {"IField"}},
    {"IJavaField", {"IField"}},
    {"IJavaOperation", {"IOperation"}},
    {"IFD", {"IElement"}},
    {"IDotNET", {"IService"}},
    {"IDotNETParameter", {"IParameter", "IDotNETField"}},
    {"IDotNETOperation", {"IOperation"}},
    {"IDotNETField", {"IField"}},

    // src/xml
    {"CElementImpl", {"IElement"}},
    {"CList", {"IList", "CElementImpl"}},
    // src/cobol
    {"CAlphanumericImpl", {"IAlphanumeric", "CDataItemImpl"}},
    {"CConditionImpl", {"ICondition", "CList"}},
    {"CConditionList", {"IList", "CList"}},
    {"CConditionValueImpl", {"IConditionValue", "CElementImpl"}},
    {"CDataItemImpl", {"IDataItem", "CElementImpl"}},
    {"CDataItemList", {"IList", "CList"}},
    {"CEntryPointImpl", {"IEntryPoint", "CList"}},
    {"CFDImpl", {"IFD", "CElementImpl"}},
    {"CGroupImpl", {"IGroup", "CDataItemImpl"}},
    {"CLinkageItemImpl", {"ILinkageItem", "CElementImpl"}},
    {"CNationalImpl", {"INational", "CDataItemImpl"}},
    {"CNumericEditedImpl", {"INumericEdited", "CDataItemImpl"}},
    {"CNumericImpl", {"INumeric", "CDataItemImpl"}},
    {"CProgramImpl", {"IProgram", "CElementImpl"}},
    {"CPropertyImpl", {"IProperty", "CElementImpl"}},
    // src/service
    {"CFieldList", {"CList"}},
    {"CHiddenParameterImpl", {"IHiddenParameter", "CMappingImpl"}},
    {"CMappingImpl", {"IMapping", "CElementImpl"}},
    {"COperationImpl", {"IOperation", "CElementImpl"}},
    {"CParameterImpl", {"IParameter", "IField", "CElementImpl"}},
    {"CServiceImpl", {"IService", "CElementImpl"}},
    // src/ws
    {"CFaultList", {"CList"}},
    {"CFieldAttributeList", {"CList"}},
    {"CHeaderList", {"CList"}},
    {"CWSFaultImpl", {"IWSFault", "CElementImpl"}},
    {"CWSHeaderImpl", {"IWSHeader", "CElementImpl"}},
    {"CWSOperationImpl", {"IWSOperation", "COperationImpl"}},
    {"CWSParameterImpl", {"IWSParameter", "CParameterImpl", "IWSField"}},
    {"CWebServiceImpl", {"IWebService", "CServiceImpl"}},
    // src/com
    {"CCOMParameterImpl", {"ICOMParameter", "CParameterImpl", "ICOMField"}},
    // src/java
    {"CJavaOperationImpl", {"IJavaOperation", "COperationImpl"}},
    {"CJavaParameterImpl", {"IJavaParameter", "CParameterImpl"}},
    // src/dotnet
    {"CDotNETImpl", {"IDotNET", "CServiceImpl"}},
    {"CDotNETOperationImpl", {"IDotNETOperation", "COperationImpl"}},
    {"CDotNETParameterImpl", {"IDotNETParameter", "CParameterImpl", "IDotNETField"}},
    // src/frame
    {"CAgentServicesFactory", {}},
    // clang-format on
};

Names basesOf(const RTTITypeinfo& record) {
  Names names;
  for (RTTITypeinfo** base = record.bases; *base != nullptr; ++base) {
    names.emplace_back((*base)->name);
  }
  return names;
}

Names derivedFrom(const RTTITypeinfo& record) {
  Names names;
  for (int i = 0; i < record.derivedCount; i++) names.emplace_back(record.derived[i]->name);
  return names;
}

TEST(Registration, NoClassIsRegisteredThatTheTableDoesNotName) {
  auto left = test::records();
  for (const Registered& row : table) left.erase(row.name);
  for (const auto& [name, record] : left) ADD_FAILURE() << name;
}

TEST(Registration, EveryClassHasItsNameBasesAndCast) {
  const auto found = test::records();
  for (const Registered& row : table) {
    SCOPED_TRACE(row.name);
    const auto at = found.find(row.name);
    if (at == found.end()) {
      ADD_FAILURE() << "not registered";
      continue;
    }
    EXPECT_EQ(basesOf(*at->second), row.bases);
    EXPECT_EQ(at->second->reserved, 0);
    EXPECT_NE(at->second->scast, nullptr);
  }
}

TEST(Registration, DerivedClassesAreInTheOrderOfTheTable) {
  std::map<std::string, Names> expected;
  for (const Registered& row : table) {
    for (const std::string& base : row.bases) expected[base].push_back(row.name);
  }
  for (const auto& [name, record] : test::records()) {
    EXPECT_EQ(derivedFrom(*record), expected[name]) << name;
    EXPECT_EQ(record->derived == nullptr, expected[name].empty()) << name;
  }
}

}  // namespace
