// Measures the growth of edits of a service.
#include <benchmark/benchmark.h>

#include <memory>
#include <string>

#include "Documents.h"
#include "Files.h"
#include "Growth.h"
#include "as/AgentServices.h"

namespace growth {

namespace {

// A new Web service over n items, with one operation that has one parameter.
class Edited {
 public:
  explicit Edited(int n) {
    const Document document = {"", linkageProgram, nullptr};
    Files files(document, n);
    as::IProgram* const read = reader().readDictionary(files.dictionary()).release();
    service.reset(as::CAgentServicesFactory::NewWebService(read));
    program = read;
    operation = as::interface_cast<as::IWSOperation>(service->addOperation("o", nullptr));
    parameter = operation->addParameter(as::IParameter::BY_IN, "p", 1);
  }

  as::IDataItem* item(int i) const { return at<as::IDataItem>(program->getDataItems(), i); }

  Service service;
  as::IProgram* program = nullptr;
  as::IWSOperation* operation = nullptr;
  as::IParameter* parameter = nullptr;
};

struct Edit {
  const char* name;
  void (*prepare)(Edited& edited, int n);  // Null for nothing.
  void (*run)(Edited& edited, int n);      // N edits.
  int most = anyNumber;
};

void addParameters(Edited& edited, int n) {
  for (int i = 0; i < n; i++) {
    edited.operation->addParameter(as::IParameter::BY_IN, "p", 1)->addMapping(edited.item(i));
  }
}

as::IParameter* parameterAt(const Edited& edited, int i) {
  return at<as::IParameter>(edited.operation->getParameters(), i);
}

// clang-format off
const Edit edits[] = {
    {"addOperation", nullptr, [](Edited& e, int n) { as::IEntryPoint* const point = at<as::IEntryPoint>(e.program->getEntryPoints(), 0); for (int i = 0; i < n; i++) e.service->addOperation("o", point); }},
    {"addParameter", nullptr, [](Edited& e, int n) { for (int i = 0; i < n; i++) e.operation->addParameter(as::IParameter::BY_IN, "p", 1); }},
    {"addHiddenParameter", nullptr, [](Edited& e, int n) { for (int i = 0; i < n; i++) e.operation->addHiddenParameter(nullptr, nullptr)->setDataItem(e.item(i)); }},
    {"addField", nullptr, [](Edited& e, int n) { for (int i = 0; i < n; i++) e.parameter->addField("f", 1); }},
    {"addFieldBelow", nullptr, [](Edited& e, int n) { as::IField* field = e.parameter; for (int i = 0; i < n; i++) field = field->addField("f", 1); }, deepest},
    {"addFieldAttribute", nullptr, [](Edited& e, int n) { auto* const field = as::interface_cast<as::IWSField>(e.parameter); for (int i = 0; i < n; i++) field->addFieldAttribute("a"); }},
    {"addMapping", nullptr, [](Edited& e, int n) { for (int i = 0; i < n; i++) e.parameter->addMapping(e.item(i)); }},
    {"addHeader", nullptr, [](Edited& e, int n) { for (int i = 0; i < n; i++) e.operation->addHeader(as::IWSHeader::BY_IN); }},
    {"addFault", nullptr, [](Edited& e, int n) { for (int i = 0; i < n; i++) e.operation->addFault(); }},
    {"addHeaderParameter", nullptr, [](Edited& e, int n) { as::IWSHeader* const header = e.operation->addHeader(as::IWSHeader::BY_IN); for (int i = 0; i < n; i++) header->addParameter(as::IParameter::BY_IN, "p", 1); }},
    {"addFaultParameter", nullptr, [](Edited& e, int n) { as::IWSFault* const fault = e.operation->addFault(); for (int i = 0; i < n; i++) fault->addParameter(as::IParameter::BY_IN, "p", 1); }},
    {"rename", addParameters, [](Edited& e, int n) { for (int i = 0; i < n; i++) parameterAt(e, i)->setName("another name"); }},
    {"renameLonger", addParameters, [](Edited& e, int n) { const std::string name(200, 'x'); for (int i = 0; i < n; i++) parameterAt(e, i)->setName(name.c_str()); }},
    {"renameAgain", nullptr, [](Edited& e, int n) { for (int i = 0; i < n; i++) e.parameter->setName(std::string(static_cast<std::size_t>(i % 100), 'x').c_str()); }},
    {"mapAnew", addParameters, [](Edited& e, int n) { for (int i = 0; i < n; i++) at<as::IMapping>(parameterAt(e, i + 1)->getMappings(), 0)->setDataItem(e.item(n - 1 - i)); }},
    {"mapAndLookUp", addParameters, [](Edited& e, int n) { for (int i = 0; i < n; i++) { auto* const mapping = at<as::IMapping>(parameterAt(e, i + 1)->getMappings(), 0); mapping->setDataItem(e.item(n - 1 - i)); benchmark::DoNotOptimize(mapping->getDataItem()); } }},
    {"addAndLookUp", nullptr, [](Edited& e, int n) { as::IEntryPoint* const point = at<as::IEntryPoint>(e.program->getEntryPoints(), 0); for (int i = 0; i < n; i++) { as::IOperation* const operation = e.service->addOperation("o", point); benchmark::DoNotOptimize(operation->getEntryPoint()); benchmark::DoNotOptimize(operation->addParameter(as::IParameter::BY_IN, "p", 1)->addMapping(e.item(i))->getDataItem()); } }},
    {"addAndAskForQualifiedName", nullptr, [](Edited& e, int n) { for (int i = 0; i < n; i++) benchmark::DoNotOptimize(e.parameter->addField("f", 1)->getQualifiedName()); }},
    {"write", addParameters, [](Edited& e, int) { benchmark::DoNotOptimize(as::CAgentServicesFactory::SerializeToString(e.service.get()).size()); }},
    {"writeDeep", [](Edited& e, int n) { as::IField* field = e.parameter; for (int i = 0; i < n; i++) field = field->addField("f", 1); }, [](Edited& e, int) { benchmark::DoNotOptimize(as::CAgentServicesFactory::SerializeToString(e.service.get()).size()); }, deepest},
    {"delete", addParameters, [](Edited& e, int) { e.service.reset(); }},
};
// clang-format on

bool addAll() {
  for (const Edit& edit : edits) {
    add(std::string("edit/") + edit.name, edit.most, [&edit](int n) -> Work {
      const auto edited = std::make_shared<Edited>(n);
      if (edit.prepare != nullptr) edit.prepare(*edited, n);
      return [edited, &edit, n] { edit.run(*edited, n); };
    });
  }
  return true;
}

[[maybe_unused]] const bool added = addAll();

}  // namespace

}  // namespace growth
