// What the tool knows of the flavours of services. All that a flavour adds to the plain service is
// told by one object; a new flavour is a new source file and a line in Flavour.cpp.
#ifndef TOOLS_FLAVOUR_H_
#define TOOLS_FLAVOUR_H_

#include <optional>
#include <string>
#include <vector>

#include "Capacity.h"
#include "TreeWalk.h"
#include "as/IOperation.h"
#include "as/IService.h"

// A code number that a flavour's accessor answers.
struct FlavourCode {
  std::string key;  // The accessor without "get".
  std::string attribute;
  int code;
  std::string word;  // What the attribute holds for that code.
};

// A data type of a flavour.
struct DataType {
  int code;
  const char* word;
  Capacity capacity;
};

class Flavour {
 public:
  Flavour() = default;
  virtual ~Flavour();
  Flavour(const Flavour&) = delete;
  Flavour& operator=(const Flavour&) = delete;

  // As it is called in texts.
  virtual std::string name() const = 0;
  // The value of the service's attribute "implementation", one of as::IService::TYPE.
  virtual int implementation() const = 0;
  // Whether the service's objects are of this flavour.
  virtual bool owns(as::IService& service) const = 0;

  // What an operation has beyond the plain one.
  virtual std::vector<FlavourCode> operationCodes(as::IOperation& operation) const = 0;
  // All data types, from the one to be preferred on. May be empty.
  virtual const std::vector<DataType>& dataTypes() const = 0;
  // The code of the data type of a parameter or field; none when it has no type.
  virtual std::optional<int> dataTypeOf(as::IField& field) const = 0;

  // The type of that code; null for an unknown one.
  const DataType* findDataType(int code) const;
  // The type to be preferred for `item`; null when none holds it.
  const DataType* bestTypeFor(as::IDataItem& item) const;
};

// The flavour of `service`; one that adds nothing when the tool knows none.
const Flavour& flavourOf(as::IService& service);

// The flavours.
const Flavour& javaFlavour();

// Whether the service's operations are `Operation`s and its type definitions `Parameter`s, by the
// first of them; without any the attribute "implementation" tells.
template <class Operation, class Parameter>
bool hasMembersOf(as::IService& service, int implementation) {
  as::IList* const operations = service.getOperations();
  if (operations->getLength() > 0) {
    return as::interface_cast<Operation>(operations->getItem(0)) != nullptr;
  }
  as::IList* const definitions = service.getParameterTypeDefs();
  if (definitions->getLength() > 0) {
    return as::interface_cast<Parameter>(definitions->getItem(0)) != nullptr;
  }
  return service.getImplementation() == implementation;
}

#endif  // TOOLS_FLAVOUR_H_
