// xsd: XML Schemas of the data of a service, of one of its operations, or of a dictionary's
// records.
#include <utility>

#include "toolkit/generate/Generator.h"
#include "toolkit/generate/MessagePlan.h"
#include "toolkit/generate/SchemaSet.h"
#include "toolkit/generate/SchemaTexts.h"
#include "toolkit/generate/SchemaWriter.h"
#include "toolkit/generate/XsdTypes.h"

namespace as::toolkit::gen {

namespace {

void addOperation(const ServiceModel& model, const Operation& operation, SchemaSet& schemas) {
  schemas.addWrapper(operation.inputNamespace, requestWish(model, operation),
                     requestMembers(model, operation));
  schemas.addWrapper(operation.outputNamespace, answerWish(model, operation),
                     answerMembers(model, operation));
  for (const Message& message : operation.messages) {
    const SchemaSet::Members members = membersOf(model, operation, message);
    const std::string& uri =
        message.namespaceUri.empty() ? schemas.targetNamespace() : message.namespaceUri;
    if (message.kind == "fault") {
      schemas.addWrapper(uri, faultWish(model, operation, message), members);
      continue;
    }
    for (const Field& parameter : message.parameters) {
      schemas.addElement(uri, parameter, members.place.of(parameter.name));
    }
  }
}

class XsdGenerator : public Generator {
 public:
  XsdGenerator()
      : Generator({"xsd",
                   "XML Schemas of the data",
                   {"ws", "com", "dotnet", "java"},
                   true,
                   {{"operation", "", "the operation whose messages are wanted; all unless told"},
                    {"conditions", "documented|enumerations",
                     "values of conditions (level 88) as the only ones, or in words"},
                    {"namespace", "",
                     "the namespace of what has none; urn:agentservices:PROGRAM unless told"}}}) {}

  void generate(const Job& job) const override {
    const ServiceModel& model = job.model;
    job.tellValues(xsdTypes());
    SchemaSet schemas(job);
    for (const Operation* const operation : job.wantedOperations()) {
      addOperation(model, *operation, schemas);
    }
    if (job.option("operation").empty()) schemas.addDeclaredTypes();
    if (model.flavour == nullptr) {
      for (const Type& record : model.types) {
        if (record.isDeclared) {
          schemas.addElement(schemas.targetNamespace(), record.self, Spot(model, record));
        }
      }
    }
    schemas.complete();
    SchemaTexts texts(job, schemas, SchemaPlace::inFiles);
    SchemaWriter(job, schemas, texts).write();
    for (SchemaTexts::Schema& schema : texts.take()) {
      job.add(std::move(schema.file), std::move(schema.text));
    }
  }
};

}  // namespace

const Generator& xsdGenerator() {
  static const XsdGenerator generator;
  return generator;
}

}  // namespace as::toolkit::gen
