// What a service tells, as plain values.
#ifndef TOOLKIT_FACTS_SERVICEFACTS_H_
#define TOOLKIT_FACTS_SERVICEFACTS_H_

#include <string>
#include <utility>
#include <vector>

#include "as/IService.h"
#include "toolkit/flavour/FlavourProfile.h"

namespace as::toolkit {

// An attribute of a flavour, and what it reads as.
struct AttributeFacts {
  std::string name;
  std::string value;
};

struct FieldFacts {
  std::string name;
  std::string direction;
  int occurs = 0;
  std::string type;          // What the model answers,
  bool hasDataType = false;  // and whether the document says so.
  std::string reference;
  bool isReferenceFound = false;  // Whether it leads to a definition.
  std::vector<AttributeFacts> attributes;
  std::vector<std::string> mappings;  // "RECORD.ITEM(*)", with " as *" for subscripts of its own.
  std::vector<FieldFacts> members;
  std::vector<FieldFacts> fieldAttributes;
};

struct MessageFacts {
  std::string kind;  // "header", "fault"
  std::vector<AttributeFacts> attributes;
  std::vector<FieldFacts> parameters;
};

struct OperationFacts {
  std::string name;
  std::string entryPoint;
  int exitPoints = 0;
  std::vector<AttributeFacts> attributes;
  std::vector<std::pair<std::string, std::string>>
      hidden;  // What each is mapped to, and its value.
  std::vector<FieldFacts> parameters;
  std::vector<MessageFacts> messages;
};

struct ServiceFacts {
  explicit ServiceFacts(as::IService& service);

  std::string name;
  std::string flavour;
  std::string program;
  std::string dictionary;
  std::string exitProgram;
  std::vector<std::pair<std::string, std::string>> properties;
  std::vector<FieldFacts> definitions;
  std::vector<OperationFacts> operations;
};

}  // namespace as::toolkit

#endif  // TOOLKIT_FACTS_SERVICEFACTS_H_
