// Ways to the objects of a model.
#ifndef TESTS_SUPPORT_MODEL_H_
#define TESTS_SUPPORT_MODEL_H_

#include <string>
#include <vector>

#include "as/AgentServices.h"

namespace test {

// The member of `list` seen as T; null when there is none or it is no T.
template <class T>
T* itemOf(as::IList* list, int index) {
  return as::interface_cast<T>(list->getItem(index));
}

// The names that the members of `list` have in the document, in order.
inline std::vector<std::string> namesIn(as::IList* list) {
  std::vector<std::string> names;
  for (int i = 0; i < list->getLength(); i++) {
    names.push_back(list->getItem(i)->getAttributeValue("name"));
  }
  return names;
}

// The name of the class that the object is of.
template <class Object>
std::string classOf(const Object* object) {
  return object == nullptr ? "(none)" : object->RTTI_vinfo().record()->name;
}

// Programs.

// The program's top-level item number `index` seen as T.
template <class T>
T* topItem(as::IProgram& program, int index = 0) {
  return itemOf<T>(program.getDataItems(), index);
}

template <class T>
T* childOf(as::IGroup* group, int index = 0) {
  return itemOf<T>(group->getChildren(), index);
}

inline as::IEntryPoint* entryPointOf(as::IProgram& program, int index = 0) {
  return itemOf<as::IEntryPoint>(program.getEntryPoints(), index);
}

// Services. Each seen as T, in the service's first operation and that's first parameter.

template <class T = as::IOperation>
T* operationOf(as::IService& service) {
  return itemOf<T>(service.getOperations(), 0);
}

template <class T = as::IParameter>
T* parameterOf(as::IService& service, int index = 0) {
  return itemOf<T>(operationOf(service)->getParameters(), index);
}

template <class T = as::IField>
T* fieldOf(as::IField* parent, int index = 0) {
  return itemOf<T>(parent->getChildren(), index);
}

inline as::IMapping* mappingOf(as::IService& service) {
  return itemOf<as::IMapping>(parameterOf(service)->getMappings(), 0);
}

// The type definition number `index`.
template <class T = as::IParameter>
T* definitionOf(as::IService& service, int index = 0) {
  return itemOf<T>(service.getParameterTypeDefs(), index);
}

// Web services.

inline as::IWSOperation* webOperationOf(as::IService& service) {
  return operationOf<as::IWSOperation>(service);
}

inline as::IWSHeader* headerOf(as::IService& service, int index = 0) {
  return itemOf<as::IWSHeader>(webOperationOf(service)->getHeaders(), index);
}

inline as::IWSFault* faultOf(as::IService& service, int index = 0) {
  return itemOf<as::IWSFault>(webOperationOf(service)->getFaults(), index);
}

inline as::IWSParameter* fieldAttributeOf(as::IWSField* parent, int index = 0) {
  return itemOf<as::IWSParameter>(parent->getFieldAttributes(), index);
}

}  // namespace test

#endif  // TESTS_SUPPORT_MODEL_H_
