// jsonschema: JSON Schemas of the data of a service, of one of its operations, or of a dictionary's
// records.
#include "toolkit/generate/Generator.h"
#include "toolkit/generate/JsonSchemas.h"
#include "toolkit/generate/JsonText.h"
#include "toolkit/generate/JsonTypes.h"
#include "toolkit/generate/MessagePlan.h"

namespace as::toolkit::gen {

namespace {

class JsonSchemaGenerator : public Generator {
 public:
  JsonSchemaGenerator()
      : Generator({"jsonschema",
                   "JSON Schema (2020-12) of the data",
                   {"ws", "com", "dotnet", "java"},
                   true,
                   {{"operation", "", "the operation whose messages are wanted; all unless told"},
                    {"conditions", "documented|enumerations",
                     "values of conditions (level 88) as the only ones, or in words"}}}) {}

  void generate(const Job& job) const override {
    const ServiceModel& model = job.model;
    job.tellValues(jsonTypes());
    JsonSchemas schemas(job, "#/$defs/");
    for (const Operation* const operation : job.wantedOperations()) {
      addOperation(model, *operation, schemas);
    }
    schemas.complete();
    JsonText text;
    text.member("$schema", "https://json-schema.org/draft/2020-12/schema");
    text.member("$comment", job.banner());
    text.member("title", model.name);
    // A single record is what the whole is about.
    if (model.flavour == nullptr && !job.options.record.empty()) {
      text.member("$ref", "#/$defs/" + schemas.firstName());
    }
    text.open("$defs");
    schemas.writeTo(text);
    text.close();
    job.add(job.fileStem() + ".schema.json", text.take());
  }

 private:
  static void addOperation(const ServiceModel& model, const Operation& operation,
                           JsonSchemas& schemas) {
    const std::string place = model.placeOf(operation);
    schemas.addObject(requestWish(model, operation), operation.parameters, true, false, place);
    schemas.addObject(answerWish(model, operation), operation.parameters, false, true, place);
    for (const Message& message : operation.messages) {
      NameWish wish = faultWish(model, operation, message);
      if (message.kind == "header") {
        wish.name =
            operation.name + "Header" + (message.number == 1 ? "" : std::to_string(message.number));
      }
      schemas.addObject(wish, message.parameters, true, true, model.placeOf(operation, message));
    }
  }
};

}  // namespace

const Generator& jsonSchemaGenerator() {
  static const JsonSchemaGenerator generator;
  return generator;
}

}  // namespace as::toolkit::gen
