// The service flavours: their words, namespaces and classes, and how a new service of each is made.
#ifndef TESTS_SUPPORT_FLAVOURS_H_
#define TESTS_SUPPORT_FLAVOURS_H_

#include <array>
#include <memory>
#include <ostream>

#include "as/AgentServices.h"
#include "support/Documents.h"
#include "support/Requests.h"

namespace test {

struct Flavour {
  const char* label;
  as::IService* (*make)(as::IProgram*);  // The operation that makes new services of it.
  as::IService::TYPE implementation;
  const char* word;          // Of attribute "implementation".
  as::Namespace own;         // Of its documents, and ...
  const char* xmlns;         // ... what a new document declares.
  const char* serviceClass;  // The classes of the model's objects.
  const char* operationClass;
  const char* parameterClass;
};

inline void PrintTo(const Flavour& flavour, std::ostream* out) { *out << flavour.label; }

namespace flavours {

inline constexpr Flavour web = {"Web",
                                [](as::IProgram* program) -> as::IService* {
                                  return as::CAgentServicesFactory::NewWebService(program);
                                },
                                as::IService::TYPE_WS,
                                "ws",
                                as::namespaces::ws,
                                as::namespaces::ws.uri,
                                "CWebServiceImpl",
                                "CWSOperationImpl",
                                "CWSParameterImpl"};

inline constexpr Flavour com = {"COM",
                                as::CAgentServicesFactory::NewCOMService,
                                as::IService::TYPE_COM,
                                "com",
                                as::namespaces::com,
                                as::namespaces::com.uri,
                                "CServiceImpl",
                                "COperationImpl",
                                "CCOMParameterImpl"};

inline constexpr Flavour java = {"Java",
                                 as::CAgentServicesFactory::NewJavaService,
                                 as::IService::TYPE_JAVA,
                                 "java",
                                 as::namespaces::java,
                                 as::namespaces::java.uri,
                                 "CServiceImpl",
                                 "CJavaOperationImpl",
                                 "CJavaParameterImpl"};

inline constexpr Flavour dotNet = {"DotNet",
                                   [](as::IProgram* program) -> as::IService* {
                                     return as::CAgentServicesFactory::NewDotNETService(program);
                                   },
                                   as::IService::TYPE_DOTNET,
                                   "dotnet",
                                   as::namespaces::dotnet,
                                   as::namespaces::ws.uri,
                                   "CDotNETImpl",
                                   "CDotNETOperationImpl",
                                   "CDotNETParameterImpl"};

inline constexpr std::array<Flavour, 4> all = {web, com, java, dotNet};

}  // namespace flavours

// A new service of the flavour, for payProgram().
inline std::unique_ptr<as::IService> newService(const Flavour& flavour) {
  return std::unique_ptr<as::IService>(
      flavour.make(parse(payProgram(), "some/where/PAY.xml").release()));
}

// A new Web service with one new operation, "op".
inline std::unique_ptr<as::IWebService> newWebService() {
  std::unique_ptr<as::IWebService> service(
      as::CAgentServicesFactory::NewWebService(parse(payProgram()).release()));
  service->addOperation("op", nullptr);
  return service;
}

}  // namespace test

#endif  // TESTS_SUPPORT_FLAVOURS_H_
