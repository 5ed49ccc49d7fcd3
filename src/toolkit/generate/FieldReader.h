// Reads parameters and type definitions of a service, with everything below them, into what
// generators work on.
#ifndef TOOLKIT_GENERATE_FIELDREADER_H_
#define TOOLKIT_GENERATE_FIELDREADER_H_

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "as/IMapping.h"
#include "as/IParameter.h"
#include "as/IService.h"
#include "toolkit/flavour/FlavourProfile.h"
#include "toolkit/generate/ItemFacts.h"
#include "toolkit/generate/ServiceModel.h"
#include "toolkit/walk/ItemFinder.h"

namespace as::toolkit::gen {

// Of the code of a parameter, or of a message.
Direction directionOf(int code);

// What is read says of references where they lead, and nothing that stands there.
class FieldReader {
 public:
  // Reads into the model, which must outlive it, as must the service. `index` finds the program's
  // items; null when these are unknown.
  FieldReader(as::IService& service, ServiceModel& model, std::shared_ptr<const ItemIndex> index);

  // Tells of a definition and its number in ServiceModel::types. All are to be told before any is
  // read: fields refer to them.
  void addDefinition(as::IParameter& definition, std::size_t number);

  void readDefinition(as::IParameter& definition);
  // Of an operation, or of one of its messages: "", "header 1".
  std::vector<Field> readParameters(as::IList* list, std::size_t operation,
                                    const std::string& message);

 private:
  // A table on the way to a field: where its facts go once a mapping tells them.
  struct TablePlace {
    std::size_t type;  // The structure that the field is a member of; none for a parameter.
    std::size_t member;
    bool isAttribute;
  };
  // What a parameter or definition is read into, with the way to the field at hand.
  struct Way {
    std::size_t operation = none;
    std::string message;
    std::vector<TablePlace> tables;
    Field* root = nullptr;
  };

  void readTree(as::IField& root, Way& way, std::size_t definition);
  Field readMember(as::IField& field);
  bool open(as::IField& field, Field& read, const Way& way, std::size_t definition,
            std::size_t owner);
  void readAttributes(as::IField& field, Way& way, std::size_t structure);
  Field& at(const TablePlace& place, Field& root);
  void readMappings(as::IField& field, const Way& way, const TablePlace& place);
  void joinItem(Field& field, std::size_t item) const;
  Mapping readMapping(as::IMapping& mapping);
  void readTables(as::IMapping& mapping, const std::string& text, const Item& item, const Way& way);
  static void tell(Field& field, const Item::Table& table);

  const FlavourProfile& profile_;
  bool isWeb_;
  bool isCom_;
  ServiceModel& model_;
  ItemFacts facts_;
  std::optional<ItemFinder> finder_;
  std::unordered_map<as::IParameter*, std::size_t> definitions_;
};

}  // namespace as::toolkit::gen

#endif  // TOOLKIT_GENERATE_FIELDREADER_H_
