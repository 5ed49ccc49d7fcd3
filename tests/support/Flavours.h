// The service flavours: how a new service of each is made, and documents of COM and .NET services.
#ifndef TESTS_SUPPORT_FLAVOURS_H_
#define TESTS_SUPPORT_FLAVOURS_H_

#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "as/AgentServices.h"
#include "support/Dictionary.h"
#include "support/JavaService.h"

namespace test::flavours {

inline constexpr const char* webNamespace = as::namespaces::ws.uri;
inline constexpr const char* comNamespace = as::namespaces::com.uri;
inline constexpr const char* javaNamespace = as::namespaces::java.uri;
inline constexpr const char* dotNetNamespace = as::namespaces::dotnet.uri;

struct Flavour {
  const char* label;
  as::IService* (*make)(as::IProgram*);  // The operation that makes new services of it.
  as::IService::TYPE implementation;
  const char* word;          // Of attribute "implementation".
  const char* xmlns;         // What a new document declares.
  const char* serviceClass;  // The classes of the model's objects.
  const char* operationClass;
  const char* parameterClass;
};

inline void PrintTo(const Flavour& flavour, std::ostream* out) { *out << flavour.label; }

inline const std::vector<Flavour>& all() {
  using Factory = as::CAgentServicesFactory;
  using Program = as::IProgram;
  static const std::vector<Flavour> flavours = {
      {"Web", [](Program* program) -> as::IService* { return Factory::NewWebService(program); },
       as::IService::TYPE_WS, "ws", webNamespace, "CWebServiceImpl", "CWSOperationImpl",
       "CWSParameterImpl"},
      {"COM", Factory::NewCOMService, as::IService::TYPE_COM, "com", comNamespace, "CServiceImpl",
       "COperationImpl", "CCOMParameterImpl"},
      {"Java", Factory::NewJavaService, as::IService::TYPE_JAVA, "java", javaNamespace,
       "CServiceImpl", "CJavaOperationImpl", "CJavaParameterImpl"},
      {"DotNet",
       [](Program* program) -> as::IService* { return Factory::NewDotNETService(program); },
       as::IService::TYPE_DOTNET, "dotnet", webNamespace, "CDotNETImpl", "CDotNETOperationImpl",
       "CDotNETParameterImpl"},
  };
  return flavours;
}

// A new service of the flavour, for payProgram().
inline std::unique_ptr<as::IService> newService(const Flavour& flavour) {
  return std::unique_ptr<as::IService>(
      flavour.make(test::parse(test::payProgram(), "some/where/PAY.xml").release()));
}

using test::parseService;

inline std::string written(as::IService& service) {
  return as::CAgentServicesFactory::SerializeToString(&service);
}

// What is left of `service` when it is written and read again.
inline std::unique_ptr<as::IService> writtenAndRead(as::IService& service) {
  return parseService(written(service));
}

// A document in the namespace `ns` with one operation around `parameters`, and `definitions` of
// types.
inline std::string document(const std::string& ns, const std::string& parameters,
                            const std::string& definitions = "") {
  return "<service xmlns=\"" + ns +
         "\" xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\" xsi:schemaLocation=\"" + ns +
         " " + ns + "\" dataDictFilename=\"PAY.xml\"><parameterTypeDefs>" + definitions +
         "</parameterTypeDefs><operations><operation name=\"op\"><parameters>" + parameters +
         "</parameters></operation></operations></service>";
}

inline as::IOperation* firstOperation(as::IService& service) {
  return test::itemOf<as::IOperation>(service.getOperations(), 0);
}

// The parameter number `index` of the first operation.
template <class T>
T* parameterOf(as::IService& service, int index = 0) {
  return test::itemOf<T>(firstOperation(service)->getParameters(), index);
}

// The name of the class that the object is of.
template <class Object>
std::string classOf(const Object* object) {
  return object == nullptr ? "(none)" : object->RTTI_vinfo().record()->name;
}

}  // namespace test::flavours

#endif  // TESTS_SUPPORT_FLAVOURS_H_
