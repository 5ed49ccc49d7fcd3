// What the toolkit knows of a flavour of services. All that a flavour adds to the plain service is
// told by one object; a new flavour is a new source file and a row in Profiles.def.
#ifndef TOOLKIT_FLAVOUR_FLAVOURPROFILE_H_
#define TOOLKIT_FLAVOUR_FLAVOURPROFILE_H_

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "as/IOperation.h"
#include "as/IParameter.h"
#include "as/IProgram.h"
#include "as/IService.h"
#include "as/toolkit/Finding.h"
#include "as/toolkit/Flavours.h"
#include "toolkit/flavour/Capacity.h"
#include "toolkit/walk/TreeWalk.h"

namespace as::toolkit {

class LintReport;
class Place;

// Something that a flavour adds to an object of the model.
struct Trait {
  std::string key;  // The accessor without "get".
  std::string attribute;
  // What the accessor answers, when that is a number.
  std::optional<int> code;
  // What the accessor answers as text, or the attribute's word for the number; empty when the
  // number has no word.
  std::string text;
};

// A list of parameters beside those of the operation.
struct Message {
  const char* kind;  // The name of its element.
  as::IElement* element;
  int direction;  // As that of a parameter.
  std::vector<Trait> traits;
  as::IList* parameters;
};

// A data type of a flavour.
struct DataType {
  int code = 0;
  const char* word = "";
  Capacity capacity;
};

// What a flavour's documents may hold and others may not.
struct Additions {
  std::vector<std::string> operationAttributes;
  std::vector<std::string> fieldAttributes;  // Of parameters and fields, the data type left out.
  std::vector<std::string> operationElements;
  std::vector<std::string> fieldElements;
};

class FlavourProfile {
 public:
  explicit FlavourProfile(const Flavour& flavour) : flavour_(flavour) {}
  virtual ~FlavourProfile();
  FlavourProfile(const FlavourProfile&) = delete;
  FlavourProfile& operator=(const FlavourProfile&) = delete;

  const Flavour& flavour() const { return flavour_; }
  // As it is called in texts.
  std::string name() const { return flavour_.name; }

  virtual const Additions& additions() const = 0;
  // Whether the service's objects are of this flavour.
  virtual bool owns(as::IService& service) const = 0;

  // What operations, and parameters and fields, have beyond the plain ones; the data type is told
  // below.
  virtual std::vector<Trait> traitsOf(as::IOperation& operation) const;
  virtual std::vector<Trait> traitsOf(as::IField& field) const;
  // The lists of parameters that the operation has beyond the plain one, in document order within a
  // kind.
  virtual std::vector<Message> messagesOf(as::IOperation& operation) const;
  // The parts of the field that are neither fields nor mappings; null for none.
  virtual as::IList* attributesOf(as::IField& field) const;

  // All data types, from the one to be preferred on. May be empty.
  virtual const std::vector<DataType>& dataTypes() const = 0;
  // The code of the data type of a parameter or field; none when it has no type. A code that is not
  // in dataTypes() stands for a missing or unknown type.
  virtual std::optional<int> dataTypeOf(as::IField& field) const = 0;
  // The type that an absent attribute stands for; null when it stands for none.
  virtual const DataType* defaultType() const = 0;
  // The type that a service with `word` for a data type has; an empty one counts as absent. Null
  // when it has none.
  virtual const DataType* typeReadAs(const std::string& word) const;

  // Has lint look at what the flavour adds to the operation, which stands at `place`.
  virtual void lint(as::IOperation& operation, const Place& place, LintReport& report) const;

  // A new service, which takes the program over. Throws as::CASException.
  virtual std::unique_ptr<as::IService> newService(std::unique_ptr<as::IProgram> program) const = 0;
  // Gives the operation what the flavour needs and it has not yet.
  virtual void complete(as::IService& service, as::IOperation& operation) const;
  // Writes the data type of a parameter or field.
  virtual void setDataType(as::IField& field, const DataType& type) const = 0;
  // Marks the parameter as the operation's result, where the flavour has such a mark.
  virtual void markReturned(as::IField& field) const;
  // The type of a group's field; null when groups have none.
  virtual const DataType* groupType(bool repeats) const;

  // The type of that code or word; null for an unknown one.
  const DataType* findDataType(int code) const;
  const DataType* findDataType(const std::string& word) const;
  // The type to be preferred for `item`; null when none holds it.
  const DataType* bestTypeFor(as::IDataItem& item) const;
  // The type that holds all that `capacity` can; null when there is none.
  const DataType* bestTypeFor(const Capacity& capacity) const;

 private:
  Flavour flavour_;
};

// The profile of `service`; one that adds nothing when there is none.
const FlavourProfile& profileOf(as::IService& service);

// The profile of one of flavours(). Throws std::invalid_argument for any other.
const FlavourProfile& profileOf(const Flavour& flavour);

// The profile of the documents in that namespace; null when there is none.
const FlavourProfile* findProfileOfDocuments(const std::string& namespaceURI);

// Whether a flavour has that word for the data type of groups.
bool isGroupWord(const std::string& word);

// What one of the library's New...Service operations makes. Throws as::CASException.
template <class Make>
std::unique_ptr<as::IService> newServiceOf(Make make, std::unique_ptr<as::IProgram> program) {
  std::unique_ptr<as::IService> service(make(program.get()));
  static_cast<void>(program.release());
  return service;
}

// The first parameter of the service: of its type definitions, its operations' parameters. Null
// when it has none.
as::IParameter* firstParameterOf(as::IService& service);

}  // namespace as::toolkit

#endif  // TOOLKIT_FLAVOUR_FLAVOURPROFILE_H_
