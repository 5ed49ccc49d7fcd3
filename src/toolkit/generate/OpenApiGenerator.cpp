// openapi: OpenAPI 3.1 of a service, a path for each operation.
#include <cstddef>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "toolkit/generate/Generator.h"
#include "toolkit/generate/JsonSchemas.h"
#include "toolkit/generate/JsonText.h"
#include "toolkit/generate/JsonTypes.h"
#include "toolkit/generate/MessagePlan.h"
#include "toolkit/generate/NameCharacters.h"
#include "toolkit/generate/NamespaceUri.h"

namespace as::toolkit::gen {

namespace {

using Json = JsonSchemas::Json;

// Examples of more values are left out unless asked for.
constexpr std::size_t smallExample = 200;
constexpr std::size_t largeExample = 100'000;

bool isTokenCharacter(char32_t character) {
  static constexpr std::u32string_view others = U"!#$%&'*+-.^_`|~";
  return isAsciiLetter(character) || isDigit(character) ||
         others.find(character) != std::u32string_view::npos;
}

// Names of HTTP's headers, which tell no cases apart. Parameters of some are not looked at: what
// OpenAPI says elsewhere holds.
const NameRule& headerNames() {
  static const NameRule rule = [] {
    static const Words saidElsewhere = {"accept", "authorization", "content-type"};
    NameRule made{"HTTP headers", isTokenCharacter, isTokenCharacter};
    made.taken = &saidElsewhere;
    made.tellsCases = false;
    return made;
  }();
  return rule;
}

// Operations are called as they are. Two of one name are told apart.
const NameRule& operationNames() {
  static const NameRule rule = [] {
    const auto any = [](char32_t) { return true; };
    NameRule made{"OpenAPI", any, any};
    made.mostCharacters = std::numeric_limits<std::size_t>::max();
    return made;
  }();
  return rule;
}

class OpenApi {
 public:
  explicit OpenApi(const Job& job)
      : job_(job),
        model_(job.model),
        schemas_(job, "#/components/schemas/"),
        headers_(job.namesBy(headerNames())) {}

  void make() {
    for (const Operation& operation : model_.operations) plan(operation);
    nameOperations();
    schemas_.complete();
    JsonText text;
    text.member("openapi", "3.1.0");
    writeInfo(text);
    const std::string server = job_.option("server");
    if (!server.empty()) text.member("servers", Json::array({{{"url", server}}}));
    text.open("paths");
    for (const Planned& planned : operations_) {
      text.open("/" + partOfUri(planned.name));
      text.member("post", operationOf(planned));
      text.close();
    }
    text.close();
    text.open("components");
    text.open("schemas");
    schemas_.writeTo(text);
    text.close();
    text.close();
    job_.add(job_.fileStem() + ".openapi.json", text.take());
  }

 private:
  struct Planned {
    const Operation& operation;
    std::string name;
    std::size_t request;
    std::size_t answer;
    std::vector<std::size_t> faults;
  };

  void plan(const Operation& operation) {
    const std::string place = model_.placeOf(operation);
    Planned planned{
        operation,
        "",
        schemas_.addObject(requestWish(model_, operation), operation.parameters, true, false,
                           place),
        schemas_.addObject(answerWish(model_, operation), operation.parameters, false, true, place),
        {}};
    for (const Message& message : operation.messages) {
      if (message.kind != "fault") continue;
      planned.faults.push_back(schemas_.addObject(faultWish(model_, operation, message),
                                                  message.parameters, true, true,
                                                  model_.placeOf(operation, message)));
    }
    operations_.push_back(std::move(planned));
  }

  void nameOperations() {
    std::vector<NameWish> wishes;
    for (const Planned& planned : operations_) {
      wishes.push_back({planned.operation.name, model_.placeOf(planned.operation)});
    }
    const std::vector<std::string> names = job_.namesBy(operationNames()).namesIn(wishes);
    for (std::size_t i = 0; i < names.size(); ++i) operations_[i].name = names[i];
  }

  void writeInfo(JsonText& text) const {
    std::string description = "Program " + model_.program;
    for (const Property& property : model_.properties) {
      description += "\n" + property.name + ": " + property.value;
    }
    text.member("info", {{"title", model_.name},
                         {"description", description},
                         {"version", job_.option("version").empty() ? "1" : job_.option("version")},
                         {"x-generator", job_.banner()}});
  }

  Json operationOf(const Planned& planned) {
    const Operation& operation = planned.operation;
    Json made = objectFor(6);
    append(made, "operationId", planned.name);
    append(made, "summary", "Entry point " + operation.entryPoint);
    if (!operation.transactionType.empty()) {
      append(made, "x-transaction-type", operation.transactionType);
    }
    Json parameters = headersOf(operation, true);
    if (!parameters.empty()) made["parameters"] = std::move(parameters);
    Json request = objectFor(2);
    append(request, "required", true);
    append(request, "content", contentOf(planned.request, operation, "request"));
    append(made, "requestBody", std::move(request));
    Json answer = objectFor(3);
    append(answer, "description", "What the program answers");
    Json headers = headersOf(operation, false);
    if (!headers.empty()) answer["headers"] = std::move(headers);
    append(answer, "content", contentOf(planned.answer, operation, "answer"));
    Json responses = objectFor(2);
    append(responses, "200", std::move(answer));
    if (!planned.faults.empty()) append(responses, "500", faultsOf(planned));
    append(made, "responses", std::move(responses));
    return made;
  }

  Json contentOf(std::size_t definition, const Operation& operation, const char* what) {
    Json media = objectFor(2);
    append(media, "schema", schemas_.referenceTo(definition));
    const std::string examples = job_.option("examples");
    if (examples != "none") {
      std::optional<Json> sample =
          schemas_.sampleOf(definition, examples == "all" ? largeExample : smallExample);
      if (sample) {
        append(media, "example", std::move(*sample));
      } else {
        job_.note("large-example", model_.placeOf(operation),
                  std::string("an example of its ") + what +
                      " would be large and is left out; option 'examples' asks for it");
      }
    }
    Json content = objectFor(1);
    append(content, "application/json", std::move(media));
    return content;
  }

  Json faultsOf(const Planned& planned) {
    Json media;
    if (planned.faults.size() == 1) {
      media = contentOf(planned.faults.front(), planned.operation, "fault");
    } else {
      Json any = Json::array();
      for (const std::size_t fault : planned.faults) any.push_back(schemas_.referenceTo(fault));
      media = {{"application/json", {{"schema", {{"anyOf", std::move(any)}}}}}};
    }
    return {{"description", "What the program finds wrong"}, {"content", std::move(media)}};
  }

  // Of requests, an array of parameters; of answers an object.
  Json headersOf(const Operation& operation, bool isRequest) {
    std::vector<const Field*> fields;
    std::vector<NameWish> wishes;
    for (const Message& message : operation.messages) {
      if (message.kind != "header") continue;
      if (!(isRequest ? goesIn(message.direction) : comesOut(message.direction))) continue;
      for (const Field& parameter : message.parameters) {
        fields.push_back(&parameter);
        wishes.push_back(
            {parameter.name, Spot(model_.placeOf(operation, message)).of(parameter.name)});
      }
    }
    const std::vector<std::string> names = headers_.namesIn(wishes);
    Json made = isRequest ? Json::array() : Json::object();
    for (std::size_t i = 0; i < fields.size(); ++i) {
      Json header = Json::object();
      if (isRequest) header = {{"name", names[i]}, {"in", "header"}};
      header["required"] = true;
      // A structure travels as the text of its JSON.
      if (fields[i]->structure != none || fields[i]->isTable()) {
        header["content"] = {{"application/json", {{"schema", schemas_.schemaOf(*fields[i])}}}};
      } else {
        header["schema"] = schemas_.schemaOf(*fields[i]);
        if (job_.option("examples") != "none") header["example"] = schemas_.sampleOf(*fields[i]);
      }
      if (isRequest) {
        made.push_back(std::move(header));
      } else {
        append(made, names[i], std::move(header));
      }
    }
    return made;
  }

  const Job& job_;
  const ServiceModel& model_;
  JsonSchemas schemas_;
  NameGiver headers_;
  std::vector<Planned> operations_;
};

class OpenApiGenerator : public Generator {
 public:
  OpenApiGenerator()
      : Generator({"openapi",
                   "OpenAPI 3.1, a path for each operation",
                   {"ws", "com", "dotnet", "java"},
                   false,
                   {{"server", "", "the URL that paths count from"},
                    {"version", "", "the version of the interface; 1 unless told"},
                    {"examples", "small|all|none", "examples of messages"},
                    {"conditions", "documented|enumerations",
                     "values of conditions (level 88) as the only ones, or in words"}}}) {}

  void generate(const Job& job) const override {
    job.tellValues(jsonTypes());
    OpenApi(job).make();
  }
};

}  // namespace

const Generator& openApiGenerator() {
  static const OpenApiGenerator generator;
  return generator;
}

}  // namespace as::toolkit::gen
