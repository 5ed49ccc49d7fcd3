#include "frame/InterfaceIdentities.h"

#include "as/AgentServices.h"
#include "xml/Identity.h"

// Every interface in the order of registration: row0 has no base, row1 the base it registers with
// and the base it derives from, row2 two bases. Registration feeds only the lists of derived
// classes, casting walks the language's bases; two rows differ in them, and clients that read the
// lists know them so.
#define AS_INTERFACES(row0, row1, row2)                                                            \
  row0(IAgentServices) row0(IElement) row1(IProperty, IElement, IElement)                          \
      row1(IList, IElement, IElement) row1(IConditionValue, IElement, IElement) row1(              \
          ICondition, IList, IList) row1(IDataItem, IElement, IElement)                            \
          row1(IGroup, IDataItem, IDataItem) row1(INumeric, IDataItem, IDataItem) row1(            \
              IAlphanumeric, IDataItem, IDataItem) row1(INumericEdited, IDataItem, IDataItem)      \
              row1(IAlphanumericEdited, IDataItem, IDataItem) row1(IPointer, IDataItem, IDataItem) \
                  row1(IObject, IDataItem, IDataItem) row1(INational, IDataItem, IDataItem) row1(  \
                      IIndex, IDataItem, IDataItem) row1(ILinkageItem, IElement, IElement)         \
                      row1(IEntryPoint, IElement, IList) row1(IProgram, IElement, IElement)        \
                          row1(IField, IElement, IElement) row1(IParameter, IField, IField) row1(  \
                              IOperation, IElement, IElement) row1(IService, IElement, IElement)   \
                              row2(IWSParameter, IParameter, IWSField) row1(                       \
                                  IWSOperation, IOperation, IOperation)                            \
                                  row1(IWSHeader, IElement, IElement) row1(                        \
                                      IWSFault, IElement, IElement) row1(IWebService,              \
                                                                         IService, IService)       \
                                      row2(IJavaParameter, IParameter, IJavaField) row2(           \
                                          ICOMParameter, IParameter, ICOMField)                    \
                                          row1(IHiddenParameter, IElement, IMapping) row1(         \
                                              IMapping, IElement, IElement)                        \
                                              row1(IWSField, IField, IField) row1(ICOMField,       \
                                                                                  IField, IField)  \
                                                  row1(IJavaField, IField, IField)                 \
                                                      row1(IJavaOperation, IOperation, IOperation) \
                                                          row1(IFD, IElement, IElement)            \
                                                              row1(IDotNET, IService, IService)    \
                                                                  row2(IDotNETParameter,           \
                                                                       IParameter, IDotNETField)   \
                                                                      row1(IDotNETOperation,       \
                                                                           IOperation, IOperation) \
                                                                          row1(IDotNETField,       \
                                                                               IField, IField)

namespace as {

#define AS_DEFINE_ROW(Interface, ...)                                   \
  Interface::~Interface() = default;                                    \
  AS_DEFINE_IDENTITY_COMMON(Interface)                                  \
  void* Interface::RTTI_cast(RTTItypeid id) {                           \
    if (id.designates(RTTI_obj)) return this;                           \
    return castThrough<Interface __VA_OPT__(, ) __VA_ARGS__>(this, id); \
  }
#define AS_DEFINE_ROW0(Interface) AS_DEFINE_ROW(Interface)
#define AS_DEFINE_ROW1(Interface, registered, base) AS_DEFINE_ROW(Interface, base)
#define AS_DEFINE_ROW2(Interface, base1, base2) AS_DEFINE_ROW(Interface, base1, base2)

namespace {

// Asks one base of `object`, as what it is there ...
template <class Base, class Interface>
void* castThroughBase(Interface* object, RTTItypeid id) {
  return object->Base::RTTI_cast(id);
}

// ... or all of them in turn.
template <class Interface, class... Bases>
void* castThrough([[maybe_unused]] Interface* object, [[maybe_unused]] RTTItypeid id) {
  void* found = nullptr;
  static_cast<void>(((found = castThroughBase<Bases>(object, id)) || ...));
  return found;
}

}  // namespace

AS_INTERFACES(AS_DEFINE_ROW0, AS_DEFINE_ROW1, AS_DEFINE_ROW2)

// The factory is cast like the interfaces, but it is none: it registers with its own source file.

// What an interface answers by itself.
bool IField::hasChildren() { return getChildren()->getLength() > 0; }

// Never reached: the implementation overrides all three.
std::string IWSParameter::getNamespace() { return {}; }
IWSField::FORM IWSParameter::getElementForm() { return static_cast<FORM>(-1); }
IWSField::FORM IWSParameter::getAttributeForm() { return static_cast<FORM>(-1); }

}  // namespace as

void registerInterfaceIdentities() {
#define AS_REGISTER_ROW0(Interface) AS_REGISTER_IDENTITY(as::Interface, Interface, nullptr)
#define AS_REGISTER_ROW1(Interface, base, language) \
  AS_REGISTER_IDENTITY(as::Interface, Interface, &as::base::RTTI_obj, nullptr)
#define AS_REGISTER_ROW2(Interface, base1, base2)                                            \
  AS_REGISTER_IDENTITY(as::Interface, Interface, &as::base1::RTTI_obj, &as::base2::RTTI_obj, \
                       nullptr)
  AS_INTERFACES(AS_REGISTER_ROW0, AS_REGISTER_ROW1, AS_REGISTER_ROW2)
}
