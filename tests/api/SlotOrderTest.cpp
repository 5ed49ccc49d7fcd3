// The binary contract of the interfaces. Clients call by slot: a new operation between two old
// ones, two that change places or another number for an enumerator breaks every client that was
// built before. The lists below are the promise; the headers have to follow them.
#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <initializer_list>
#include <ostream>
#include <set>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "as/AgentServices.h"

namespace as {
namespace {

// The slot of a virtual operation in the table of its class, counted from 0; -1 for an operation
// that is not virtual. Reads the first word of the member pointer. By the C++ ABI that the library
// is built for, that is 1 plus the distance in the table, or the (even) address of a function.
// On ARM the 1 is in the second word instead.
template <class Member>
int slotOf(Member member) {
  static_assert(std::is_member_function_pointer_v<Member>);
  std::uintptr_t words[2];
  static_assert(sizeof(member) == sizeof(words), "not the C++ ABI that this test knows");
  std::memcpy(words, &member, sizeof(words));
#if defined(__arm__) || defined(__aarch64__)
  if ((words[1] & 1) == 0) return -1;
#else
  if ((words[0] & 1) == 0) return -1;
  words[0] -= 1;
#endif
  return static_cast<int>(words[0] / sizeof(void*));
}

struct Operation {
  std::string name;
  int slot;
};

// In the order that the slots have to follow.
using Operations = std::vector<Operation>;

Operations operator+(Operations first, const Operations& further) {
  first.insert(first.end(), further.begin(), further.end());
  return first;
}

#define OP(Class, name) \
  { #name, slotOf(&Class::name) }

// The operations of the interfaces that others derive from, named through interface I.

template <class I>
Operations elementOperations() {
  return {OP(I, getUserData), OP(I, setUserData), OP(I, getAttributeValue), OP(I, RTTI_vinfo),
          OP(I, RTTI_cast)};
}

template <class I>
Operations listOperations() {
  return elementOperations<I>() + Operations{OP(I, getLength), OP(I, getItem)};
}

template <class I>
Operations dataItemOperations() {
  return elementOperations<I>() +
         Operations{
             OP(I, getDataType),  OP(I, getName),      OP(I, getPicture),    OP(I, getLength),
             OP(I, getMinOccurs), OP(I, getMaxOccurs), OP(I, getOffset),     OP(I, getLine),
             OP(I, getODO),       OP(I, hasODO),       OP(I, isLinkage),     OP(I, isSync),
             OP(I, isRedefined),  OP(I, isRenamed),    OP(I, getConditions), OP(I, getParent),
         };
}

template <class I>
Operations fieldOperations() {
  return elementOperations<I>() +
         Operations{
             OP(I, getName),     OP(I, setName),          OP(I, getOccurs),   OP(I, setOccurs),
             OP(I, getChildren), OP(I, hasChildren),      OP(I, getMappings), OP(I, addField),
             OP(I, addMapping),  OP(I, getQualifiedName),
         };
}

template <class I>
Operations parameterOperations() {
  return fieldOperations<I>() +
         Operations{OP(I, getByType), OP(I, setByType), OP(I, getReferenceType)};
}

template <class I>
Operations operationOperations() {
  return elementOperations<I>() + Operations{
                                      OP(I, getName),
                                      OP(I, setName),
                                      OP(I, getEntryPoint),
                                      OP(I, setEntryPoint),
                                      OP(I, addHiddenParameter),
                                      OP(I, getHiddenParameters),
                                      OP(I, addParameter),
                                      OP(I, getParameters),
                                      OP(I, getExitPoints),
                                      OP(I, setExitPoints),
                                  };
}

template <class I>
Operations serviceOperations() {
  return elementOperations<I>() + Operations{
                                      OP(I, getNamespaceURI),
                                      OP(I, getProperties),
                                      OP(I, getParameterTypeDefs),
                                      OP(I, getOperations),
                                      OP(I, addOperation),
                                      OP(I, getName),
                                      OP(I, setName),
                                      OP(I, getImplementation),
                                      OP(I, getProgram),
                                      OP(I, getDDFilename),
                                      OP(I, setDDFilename),
                                      OP(I, getExitProgramName),
                                      OP(I, setExitProgramName),
                                  };
}

template <class I>
Operations mappingOperations() {
  return elementOperations<I>() + Operations{
                                      OP(I, getDataItem),
                                      OP(I, setDataItem),
                                      OP(I, getInterfaceSubscripts),
                                      OP(I, getDataItemSubscripts),
                                      OP(I, getFullyQualifiedName),
                                      OP(I, getRawMapping),
                                      OP(I, getType),
                                  };
}

// The overloads of the parse requests have to be picked by their types.
Operations entryOperations() {
  using Bytes = const unsigned char*;
  return {
      OP(IAgentServices, setSchemaLocation),
      {"parseCobolDD(file)",
       slotOf<IProgram* (IAgentServices::*)(const char*)>(&IAgentServices::parseCobolDD)},
      {"parseService(file)",
       slotOf<IService* (IAgentServices::*)(const char*, bool)>(&IAgentServices::parseService)},
      {"parseService(file, errorText)",
       slotOf<IService* (IAgentServices::*)(const char*, std::string&, bool)>(
           &IAgentServices::parseService)},
      {"parseCobolDD(buffer)",
       slotOf<IProgram* (IAgentServices::*)(const char*, Bytes, unsigned int)>(
           &IAgentServices::parseCobolDD)},
      {"parseService(buffer)",
       slotOf<IService* (IAgentServices::*)(const char*, Bytes, unsigned int, bool)>(
           &IAgentServices::parseService)},
      {"parseService(buffer, errorText)",
       slotOf<IService* (IAgentServices::*)(const char*, Bytes, unsigned int, std::string&, bool)>(
           &IAgentServices::parseService)},
      OP(IAgentServices, RTTI_vinfo),
      OP(IAgentServices, RTTI_cast),
  };
}

// Stands in for whatever derives from I: its own operation comes right after all those of I. That
// is so only when it shares I's table, so I must have nothing but its table and virtual bases.
template <class I>
class After : virtual public I {
 public:
  virtual void afterTheLast() = 0;
};

template <class Base, class Derived, class = void>
struct IsVirtualBase : std::is_base_of<Base, Derived> {};
// From a base that is not virtual the way down is open.
template <class Base, class Derived>
struct IsVirtualBase<Base, Derived,
                     std::void_t<decltype(static_cast<Derived*>(std::declval<Base*>()))>>
    : std::false_type {};

struct Interface {
  std::string name;
  Operations operations;
  int slotAfter;
  bool isAbstract;
  bool hasVirtualDestructor;
  bool hasVirtualBases;
};

void PrintTo(const Interface& interface, std::ostream* out) { *out << interface.name; }

template <class I, class... Bases>
Interface interfaceOf(const char* name, Operations operations) {
  return {name,
          std::move(operations),
          slotOf(&After<I>::afterTheLast),
          std::is_abstract_v<I>,
          std::has_virtual_destructor_v<I>,
          (IsVirtualBase<Bases, I>::value && ...)};
}

std::vector<Interface> interfaces() {
  return {
      interfaceOf<IAgentServices>("IAgentServices", entryOperations()),
      interfaceOf<IElement>("IElement", elementOperations<IElement>()),
      interfaceOf<IProperty, IElement>(
          "IProperty", elementOperations<IProperty>() +
                           Operations{OP(IProperty, getValue), OP(IProperty, getName)}),
      interfaceOf<IList, IElement>("IList", listOperations<IList>()),
      interfaceOf<IConditionValue, IElement>(
          "IConditionValue",
          elementOperations<IConditionValue>() +
              Operations{OP(IConditionValue, getType), OP(IConditionValue, getConstant),
                         OP(IConditionValue, getFrom), OP(IConditionValue, getTo)}),
      interfaceOf<ICondition, IList>(
          "ICondition", listOperations<ICondition>() + Operations{OP(ICondition, getName)}),
      interfaceOf<IDataItem, IElement>("IDataItem", dataItemOperations<IDataItem>()),
      interfaceOf<IGroup, IDataItem>(
          "IGroup", dataItemOperations<IGroup>() + Operations{OP(IGroup, getChildren)}),
      interfaceOf<INumeric, IDataItem>(
          "INumeric", dataItemOperations<INumeric>() +
                          Operations{OP(INumeric, getUsage), OP(INumeric, getSign),
                                     OP(INumeric, getDigits), OP(INumeric, getAlignment)}),
      interfaceOf<IAlphanumeric, IDataItem>(
          "IAlphanumeric",
          dataItemOperations<IAlphanumeric>() + Operations{OP(IAlphanumeric, getJustification)}),
      interfaceOf<INumericEdited, IDataItem>(
          "INumericEdited",
          dataItemOperations<INumericEdited>() +
              Operations{OP(INumericEdited, getDigits), OP(INumericEdited, isBlankWhenZero)}),
      interfaceOf<IAlphanumericEdited, IDataItem>("IAlphanumericEdited",
                                                  dataItemOperations<IAlphanumericEdited>()),
      interfaceOf<IPointer, IDataItem>("IPointer", dataItemOperations<IPointer>()),
      interfaceOf<IObject, IDataItem>("IObject", dataItemOperations<IObject>()),
      interfaceOf<INational, IDataItem>(
          "INational", dataItemOperations<INational>() + Operations{OP(INational, getUsage)}),
      interfaceOf<IIndex, IDataItem>("IIndex", dataItemOperations<IIndex>()),
      interfaceOf<ILinkageItem, IElement>(
          "ILinkageItem",
          elementOperations<ILinkageItem>() +
              Operations{OP(ILinkageItem, getByType), OP(ILinkageItem, getDataItem)}),
      interfaceOf<IEntryPoint, IList>(
          "IEntryPoint", listOperations<IEntryPoint>() +
                             Operations{OP(IEntryPoint, getName), OP(IEntryPoint, getCallConv)}),
      interfaceOf<IProgram, IElement>(
          "IProgram", elementOperations<IProgram>() +
                          Operations{OP(IProgram, getName), OP(IProgram, getFileSection),
                                     OP(IProgram, getDataItems), OP(IProgram, getProperties),
                                     OP(IProgram, getEntryPoints)}),
      interfaceOf<IField, IElement>("IField", fieldOperations<IField>()),
      interfaceOf<IParameter, IField>("IParameter", parameterOperations<IParameter>()),
      interfaceOf<IOperation, IElement>("IOperation", operationOperations<IOperation>()),
      interfaceOf<IService, IElement>("IService", serviceOperations<IService>()),
      interfaceOf<IWSParameter, IParameter, IWSField>(
          "IWSParameter",
          parameterOperations<IWSParameter>() +
              Operations{OP(IWSParameter, getNamespaceForParam), OP(IWSParameter, getNamespace),
                         OP(IWSParameter, setNamespace), OP(IWSParameter, getElementFormForParam),
                         OP(IWSParameter, getElementForm), OP(IWSParameter, setElementForm),
                         OP(IWSParameter, getAttributeFormForParam),
                         OP(IWSParameter, getAttributeForm), OP(IWSParameter, setAttributeForm)}),
      interfaceOf<IWSOperation, IOperation>(
          "IWSOperation",
          operationOperations<IWSOperation>() +
              Operations{OP(IWSOperation, getHeaders), OP(IWSOperation, getFaults),
                         OP(IWSOperation, addHeader), OP(IWSOperation, addFault),
                         OP(IWSOperation, getInputNamespace), OP(IWSOperation, setInputNamespace),
                         OP(IWSOperation, getOutputNamespace), OP(IWSOperation, setOutputNamespace),
                         OP(IWSOperation, getInputUse), OP(IWSOperation, setInputUse),
                         OP(IWSOperation, getOutputUse), OP(IWSOperation, setOutputUse),
                         OP(IWSOperation, getStyle), OP(IWSOperation, setStyle)}),
      interfaceOf<IWSHeader, IElement>(
          "IWSHeader", elementOperations<IWSHeader>() +
                           Operations{OP(IWSHeader, getByType), OP(IWSHeader, setByType),
                                      OP(IWSHeader, addParameter), OP(IWSHeader, getParameters),
                                      OP(IWSHeader, getNamespace), OP(IWSHeader, setNamespace),
                                      OP(IWSHeader, getUse), OP(IWSHeader, setUse)}),
      interfaceOf<IWSFault, IElement>(
          "IWSFault", elementOperations<IWSFault>() +
                          Operations{OP(IWSFault, addParameter), OP(IWSFault, getParameters),
                                     OP(IWSFault, getNamespace), OP(IWSFault, setNamespace),
                                     OP(IWSFault, getUse), OP(IWSFault, setUse)}),
      interfaceOf<IWebService, IService>("IWebService", serviceOperations<IWebService>()),
      interfaceOf<IJavaParameter, IParameter, IJavaField>(
          "IJavaParameter",
          parameterOperations<IJavaParameter>() +
              Operations{OP(IJavaParameter, getType), OP(IJavaParameter, setType)}),
      interfaceOf<ICOMParameter, IParameter, ICOMField>(
          "ICOMParameter",
          parameterOperations<ICOMParameter>() + Operations{OP(ICOMParameter, isReturnParameter),
                                                            OP(ICOMParameter, setReturnParameter)}),
      interfaceOf<IHiddenParameter, IMapping>(
          "IHiddenParameter",
          mappingOperations<IHiddenParameter>() +
              Operations{OP(IHiddenParameter, getValue), OP(IHiddenParameter, setValue)}),
      interfaceOf<IMapping, IElement>("IMapping", mappingOperations<IMapping>()),
      interfaceOf<IWSField, IField>(
          "IWSField", fieldOperations<IWSField>() +
                          Operations{OP(IWSField, getType), OP(IWSField, getTypeToString),
                                     OP(IWSField, setType), OP(IWSField, getFieldAttributes),
                                     OP(IWSField, addFieldAttribute), OP(IWSField, getNamespace),
                                     OP(IWSField, getElementForm), OP(IWSField, getAttributeForm)}),
      interfaceOf<ICOMField, IField>(
          "ICOMField", fieldOperations<ICOMField>() +
                           Operations{OP(ICOMField, getType), OP(ICOMField, setType)}),
      interfaceOf<IJavaField, IField>(
          "IJavaField", fieldOperations<IJavaField>() +
                            Operations{OP(IJavaField, getType), OP(IJavaField, setType)}),
      interfaceOf<IJavaOperation, IOperation>(
          "IJavaOperation", operationOperations<IJavaOperation>() +
                                Operations{OP(IJavaOperation, getTransactionType),
                                           OP(IJavaOperation, setTransactionType)}),
      interfaceOf<IFD, IElement>(
          "IFD",
          elementOperations<IFD>() + Operations{OP(IFD, getName), OP(IFD, getAccessMode),
                                                OP(IFD, getOrganization), OP(IFD, getDataItems)}),
      interfaceOf<IDotNET, IService>("IDotNET", serviceOperations<IDotNET>()),
      interfaceOf<IDotNETParameter, IParameter, IDotNETField>(
          "IDotNETParameter",
          parameterOperations<IDotNETParameter>() +
              Operations{OP(IDotNETParameter, getType), OP(IDotNETParameter, setType),
                         OP(IDotNETParameter, getTypeToString)}),
      interfaceOf<IDotNETOperation, IOperation>("IDotNETOperation",
                                                operationOperations<IDotNETOperation>()),
      interfaceOf<IDotNETField, IField>(
          "IDotNETField",
          fieldOperations<IDotNETField>() + Operations{OP(IDotNETField, getType),
                                                       OP(IDotNETField, getTypeToString),
                                                       OP(IDotNETField, setType)}),
  };
}

class InterfaceTest : public testing::TestWithParam<Interface> {};

TEST_P(InterfaceTest, KeepsItsOperationsInTheirSlots) {
  int slot = 2;  // Behind the two of the destructor.
  for (const Operation& operation : GetParam().operations) {
    EXPECT_EQ(operation.slot, slot) << operation.name;
    ++slot;
  }
  EXPECT_EQ(GetParam().slotAfter, slot) << "there are more operations, or fewer";
}

TEST_P(InterfaceTest, IsAbstractWithVirtualDestructorAndVirtualBases) {
  EXPECT_TRUE(GetParam().isAbstract);
  EXPECT_TRUE(GetParam().hasVirtualDestructor);
  EXPECT_TRUE(GetParam().hasVirtualBases);
}

INSTANTIATE_TEST_SUITE_P(All, InterfaceTest, testing::ValuesIn(interfaces()),
                         [](const auto& testInfo) { return testInfo.param.name; });

void collectInterfaces(const RTTITypeinfo& record, std::set<std::string>& names) {
  if (record.name[0] == 'I') names.insert(record.name);
  for (int i = 0; i < record.derivedCount; i++) collectInterfaces(*record.derived[i], names);
}

TEST(SlotOrderTest, KnowsEveryInterfaceThatIsRegistered) {
  std::set<std::string> registered;
  collectInterfaces(IAgentServices::RTTI_obj, registered);
  collectInterfaces(IElement::RTTI_obj, registered);
  std::set<std::string> known;
  for (const Interface& interface : interfaces()) known.insert(interface.name);
  EXPECT_EQ(known, registered);
  EXPECT_EQ(known.size(), 41u);
}

}  // namespace
}  // namespace as
