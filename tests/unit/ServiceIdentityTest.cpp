// What the objects of the service classes cast to.
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "as/AgentServices.h"
#include "cobol/PropertyImpl.h"
#include "com/COMParameterImpl.h"
#include "com/VorCHandler.h"
#include "dotnet/DotNETImpl.h"
#include "dotnet/DotNETOperationImpl.h"
#include "dotnet/DotNETParameterImpl.h"
#include "dotnet/VorDotNETHandler.h"
#include "java/JavaOperationImpl.h"
#include "java/JavaParameterImpl.h"
#include "java/VorJHandler.h"
#include "service/FieldList.h"
#include "service/HiddenParameterImpl.h"
#include "service/MappingImpl.h"
#include "service/OperationImpl.h"
#include "service/ParameterImpl.h"
#include "service/ServiceImpl.h"
#include "support/Dom.h"
#include "support/Wrappers.h"
#include "ws/FaultList.h"
#include "ws/FieldAttributeList.h"
#include "ws/HeaderList.h"
#include "ws/VorWSHandler.h"
#include "ws/WSFaultImpl.h"
#include "ws/WSHeaderImpl.h"
#include "ws/WSOperationImpl.h"
#include "ws/WSParameterImpl.h"
#include "ws/WebServiceImpl.h"
#include "xml/List.h"

namespace {

using test::makeHandler;
using NameSet = std::set<std::string>;

// A class to cast to: the object seen as that class and back as a wrapper, null when it is no such
// thing. A test failure when the language sees the object otherwise.
struct Target {
  const char* name;
  CElementImpl* (*cast)(CElementImpl*);
};

template <class T>
CElementImpl* through(CElementImpl* wrapper) {
  T* const seen = as::interface_cast<T>(wrapper);
  EXPECT_EQ(seen, dynamic_cast<T*>(wrapper)) << T::RTTI_obj.name;
  return as::interface_cast<CElementImpl>(seen);
}

template <class T>
constexpr Target to(const char* name) {
  return {name, through<T>};
}

#define INTERFACE(name) to<as::name>(#name)
#define IMPLEMENTATION(name) to<name>(#name)

constexpr Target targets[] = {
    INTERFACE(IElement),
    INTERFACE(IList),
    INTERFACE(IProperty),
    INTERFACE(IService),
    INTERFACE(IWebService),
    INTERFACE(IDotNET),
    INTERFACE(IOperation),
    INTERFACE(IWSOperation),
    INTERFACE(IJavaOperation),
    INTERFACE(IDotNETOperation),
    INTERFACE(IField),
    INTERFACE(IParameter),
    INTERFACE(IWSField),
    INTERFACE(IWSParameter),
    INTERFACE(ICOMField),
    INTERFACE(ICOMParameter),
    INTERFACE(IJavaField),
    INTERFACE(IJavaParameter),
    INTERFACE(IDotNETField),
    INTERFACE(IDotNETParameter),
    INTERFACE(IMapping),
    INTERFACE(IHiddenParameter),
    INTERFACE(IWSHeader),
    INTERFACE(IWSFault),
    INTERFACE(IProgram),
    INTERFACE(IDataItem),
    INTERFACE(ILinkageItem),
    IMPLEMENTATION(CElementImpl),
    IMPLEMENTATION(CList),
    IMPLEMENTATION(CPropertyImpl),
    IMPLEMENTATION(CServiceImpl),
    IMPLEMENTATION(CWebServiceImpl),
    IMPLEMENTATION(CDotNETImpl),
    IMPLEMENTATION(COperationImpl),
    IMPLEMENTATION(CWSOperationImpl),
    IMPLEMENTATION(CJavaOperationImpl),
    IMPLEMENTATION(CDotNETOperationImpl),
    IMPLEMENTATION(CParameterImpl),
    IMPLEMENTATION(CWSParameterImpl),
    IMPLEMENTATION(CCOMParameterImpl),
    IMPLEMENTATION(CJavaParameterImpl),
    IMPLEMENTATION(CDotNETParameterImpl),
    IMPLEMENTATION(CMappingImpl),
    IMPLEMENTATION(CHiddenParameterImpl),
    IMPLEMENTATION(CWSHeaderImpl),
    IMPLEMENTATION(CWSFaultImpl),
    IMPLEMENTATION(CFieldList),
    IMPLEMENTATION(CFieldAttributeList),
    IMPLEMENTATION(CHeaderList),
    IMPLEMENTATION(CFaultList),
};

// `wrapper` casts to its own class, to `others` and to what every wrapper is, and to nothing else;
// every cast leads to the same object.
void expectCasts(CElementImpl* wrapper, const char* ownClass, NameSet others) {
  SCOPED_TRACE(ownClass);
  ASSERT_NE(wrapper, nullptr);
  EXPECT_EQ(test::classOf(wrapper), ownClass);
  others.insert({ownClass, "IElement", "CElementImpl"});
  NameSet found;
  for (const Target& target : targets) {
    CElementImpl* const seen = target.cast(wrapper);
    if (seen == nullptr) continue;
    EXPECT_EQ(seen, wrapper) << target.name;
    found.insert(target.name);
  }
  EXPECT_EQ(found, others);
}

// The builders of the plain classes and of each flavour's.
constexpr auto plain = makeHandler<test::PlainHandler>;
constexpr auto web = makeHandler<CVorWSHandler>;
constexpr auto com = makeHandler<CVorCHandler>;
constexpr auto java = makeHandler<CVorJHandler>;
constexpr auto dotNet = makeHandler<CVorDotNETHandler>;

TEST(ServiceIdentity, ObjectsCastToWhatTheirClassIs) {
  const struct {
    std::shared_ptr<CVorSHandler> (*handler)();
    const char* element;
    const char* ownClass;
    NameSet others;
  } rows[] = {
      {plain, "service", "CServiceImpl", {"IService"}},
      {plain, "operation", "COperationImpl", {"IOperation"}},
      {plain, "parameter", "CParameterImpl", {"IParameter", "IField"}},
      {plain, "field", "CParameterImpl", {"IParameter", "IField"}},
      {plain, "mapping", "CMappingImpl", {"IMapping"}},
      {plain,
       "hiddenParameter",
       "CHiddenParameterImpl",
       {"IHiddenParameter", "IMapping", "CMappingImpl"}},
      {plain, "property", "CPropertyImpl", {"IProperty"}},
      {plain, "operations", "CList", {"IList"}},
      {web, "service", "CWebServiceImpl", {"IWebService", "IService", "CServiceImpl"}},
      {web, "operation", "CWSOperationImpl", {"IWSOperation", "IOperation", "COperationImpl"}},
      {web,
       "parameter",
       "CWSParameterImpl",
       {"IWSParameter", "IWSField", "IParameter", "IField", "CParameterImpl"}},
      {web,
       "fieldAttribute",
       "CWSParameterImpl",
       {"IWSParameter", "IWSField", "IParameter", "IField", "CParameterImpl"}},
      {web, "header", "CWSHeaderImpl", {"IWSHeader"}},
      {web, "fault", "CWSFaultImpl", {"IWSFault"}},
      {com, "service", "CServiceImpl", {"IService"}},
      {com, "operation", "COperationImpl", {"IOperation"}},
      {com,
       "parameter",
       "CCOMParameterImpl",
       {"ICOMParameter", "ICOMField", "IParameter", "IField", "CParameterImpl"}},
      {java, "service", "CServiceImpl", {"IService"}},
      {java, "operation", "CJavaOperationImpl", {"IJavaOperation", "IOperation", "COperationImpl"}},
      {java,
       "parameter",
       "CJavaParameterImpl",
       {"IJavaParameter", "IJavaField", "IParameter", "IField", "CParameterImpl"}},
      {dotNet, "service", "CDotNETImpl", {"IDotNET", "IService", "CServiceImpl"}},
      {dotNet,
       "operation",
       "CDotNETOperationImpl",
       {"IDotNETOperation", "IOperation", "COperationImpl"}},
      {dotNet,
       "parameter",
       "CDotNETParameterImpl",
       {"IDotNETParameter", "IDotNETField", "IParameter", "IField", "CParameterImpl"}},
  };
  for (const auto& row : rows) {
    test::Dom dom("<" + std::string(row.element) + "/>");
    const auto handler = row.handler();
    handler->newElement(dom.root());
    expectCasts(CElementImpl::wrapperOf(dom.root()), row.ownClass, row.others);
  }
}

TEST(ServiceIdentity, ListsOfAnElementCastToListsOnly) {
  test::Dom dom("<operation/>");
  CFieldList fields(dom.root());
  CFieldAttributeList attributes(dom.root());
  CHeaderList headers(dom.root());
  CFaultList faults(dom.root());
  expectCasts(&fields, "CFieldList", {"IList", "CList"});
  expectCasts(&attributes, "CFieldAttributeList", {"IList", "CList"});
  expectCasts(&headers, "CHeaderList", {"IList", "CList"});
  expectCasts(&faults, "CFaultList", {"IList", "CList"});
}

// From an interface that knows nothing of the flavour, as clients do.
TEST(ServiceIdentity, FlavoursAreToldByCastingTheirInterfaces) {
  const struct {
    std::shared_ptr<CVorSHandler> (*handler)();
    bool isWeb;
    bool isDotNet;
  } rows[] = {{plain, false, false},
              {web, true, false},
              {com, false, false},
              {java, false, false},
              {dotNet, false, true}};
  for (const auto& row : rows) {
    test::Dom dom("<service/>");
    const auto handler = row.handler();
    handler->newElement(dom.root());
    auto* const service = as::interface_cast<as::IService>(CElementImpl::wrapperOf(dom.root()));
    ASSERT_NE(service, nullptr);
    EXPECT_EQ(as::interface_cast<as::IWebService>(service) != nullptr, row.isWeb);
    EXPECT_EQ(as::interface_cast<as::IDotNET>(service) != nullptr, row.isDotNet);
  }
}

TEST(ServiceIdentity, StaticCastSeesAnObjectAsItsOwnClass) {
  test::Dom dom("<parameter/>");
  CWSParameterImpl parameter(dom.root());
  as::IWSField* const field = &parameter;
  EXPECT_EQ(CWSParameterImpl::RTTI_scast(0, nullptr), nullptr);
  EXPECT_EQ(CWSParameterImpl::RTTI_scast(1, nullptr), nullptr);
  EXPECT_EQ(CWSParameterImpl::RTTI_scast(0, &parameter), &parameter);
  EXPECT_EQ(as::IWSField::RTTI_scast(0, field), field);
  EXPECT_EQ(as::IWSField::RTTI_scast(1, &parameter), &parameter) << "unchanged, whatever it is";
}

}  // namespace
