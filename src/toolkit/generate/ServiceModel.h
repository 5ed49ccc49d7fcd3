// What generators need of a service, or of the records of a dictionary: plain values, read once.
// Structures stand in one list, and fields name them by their numbers, so nothing here nests,
// however deeply the document does.
#ifndef TOOLKIT_GENERATE_SERVICEMODEL_H_
#define TOOLKIT_GENERATE_SERVICEMODEL_H_

#include <cstddef>
#include <deque>
#include <limits>
#include <memory>
#include <string>
#include <vector>

#include "as/toolkit/Finding.h"
#include "as/toolkit/Flavours.h"
#include "toolkit/flavour/Capacity.h"
#include "toolkit/generate/Spot.h"

namespace as::toolkit::gen {

inline constexpr std::size_t none = std::numeric_limits<std::size_t>::max();

// One of the values of a condition (level 88), or a range of them.
struct ConditionValue {
  std::string from;
  std::string to;  // Of a range; else empty.
  bool isRange = false;
};

struct Condition {
  std::string name;
  std::vector<ConditionValue> values;
};

// A COBOL item that a field is mapped to.
struct Item {
  enum class Kind {
    group,
    number,
    numberEdited,
    text,
    textEdited,
    national,
    pointer,
    index,
    object,
  };

  Kind kind = Kind::text;
  std::string name;     // LK-REQ-NO
  std::string path;     // LK-REQUEST.LK-REQ-NO
  std::string picture;  // As the program has it; empty for none.
  std::string usage;    // The word of it; empty for DISPLAY and groups.
  int bytes = 0;        // One occurrence.
  // Of numbers, edited ones too.
  int digits = 0;  // 0 when unknown, and of floating-point numbers. Zeros of P are not counted.
  int scale = 0;   // How many of them stand behind the point; less than 0 for zeros in front.
  bool isSigned = false;
  int bits = 0;            // Of binary items that hold all that fits into them; else 0.
  int floatingDigits = 0;  // Of floating-point numbers: the digits that are never lost; else 0.
  // Of texts, national and edited ones too: the most characters.
  int characters = 0;
  // What holds all of its values. Its kind is open for what is no value (an object).
  Capacity capacity;
  std::vector<Condition> conditions;
  // The innermost table that it stands in, itself included; null for none.
  struct Table {
    int least = 0;
    int most = 0;
    std::string dependingOn;  // The path of the item; empty for a fixed table.
    std::shared_ptr<const Table> around;
    std::size_t number = 1;  // How many tables that makes, itself included.
  };
  std::shared_ptr<const Table> table;

  // Whether values of both are the same.
  bool isLike(const Item& other) const;
};

enum class Direction { in, out, both };

inline bool goesIn(Direction direction) { return direction != Direction::out; }
inline bool comesOut(Direction direction) { return direction != Direction::in; }

enum class Form { unsaid, qualified, unqualified };

struct Mapping {
  enum class Source { item, commandLine, returnCode, standardInput, standardOutput, lost };

  Source source = Source::lost;
  std::string text;         // As the document has it, with subscripts.
  std::size_t item = none;  // In ServiceModel::items; none for the others, and when it is unknown.
};

// A parameter, a field or a field attribute, with what references make of it.
struct Field {
  std::string name;
  Direction direction = Direction::both;  // Of a parameter.

  // The declared type that it refers to: the nearest one; none without a reference.
  std::size_t reference = none;
  // Its fields and field attributes, in ServiceModel::types: of its own, or of the declared type at
  // the end of the chain; none for a plain value.
  std::size_t structure = none;

  // The word of the flavour for its data type; empty for none. A structure with field attributes
  // alone has a value, too.
  std::string dataType;
  Capacity capacity;

  int occurs = 0;           // As the document has it: 0 for not told. More than 1 makes a table.
  int least = 1;            // How often it occurs at least; 0 where it stands in itself, too.
  bool isInItself = false;  // Whether it refers to the declared type that it stands in.
  std::string dependingOn;  // The path of the item that tells how often; empty for none.
  bool isTold = false;      // Whether a mapping told so of the table.

  std::vector<Mapping> mappings;
  // The item whose values it has; none when there is none, or mapped items differ.
  std::size_t item = none;

  std::string namespaceUri;
  Form elementForm = Form::unsaid;
  Form attributeForm = Form::unsaid;
  bool isReturned = false;

  bool isTable() const { return occurs > 1; }
};

// A structure, or a declared type of any kind.
struct Type {
  std::string name;  // Of a structure without a name of its own that of its field.
  bool isDeclared = false;
  // Has a field that refers to it.
  bool isRecursive = false;
  // What it stands in: a type, or an operation with one of its messages; none for a declared one.
  std::size_t owner = none;
  std::size_t operation = none;
  std::string message;  // "", "header 1", "fault 2"
  // Of a declared type: it as a field. One without `structure` of its own number refers to another,
  // or is a plain value.
  Field self;
  std::vector<Field> fields;
  std::vector<Field> attributes;
};

// A header or a fault.
struct Message {
  std::string kind;        // "header" or "fault"
  std::size_t number = 0;  // From 1 on, within its kind.
  Direction direction = Direction::out;
  bool isEncoded = false;
  std::string namespaceUri;
  std::vector<Field> parameters;
};

struct Operation {
  std::string name;
  std::string entryPoint;
  enum class Style { unsaid, rpc, document };
  Style style = Style::unsaid;
  bool isInputEncoded = false;
  bool isOutputEncoded = false;
  std::string inputNamespace;
  std::string outputNamespace;
  std::string transactionType;  // The word of it; empty for flavours without.
  int exitPoints = 0;
  std::vector<Field> parameters;
  std::vector<Message> messages;  // Headers, then faults.
};

struct Property {
  std::string name;
  std::string value;
};

// The service, or what is made of a dictionary: then each record is a declared type, and there are
// no operations.
struct ServiceModel {
  std::string name;
  std::string program;               // Its name.
  const Flavour* flavour = nullptr;  // Null for a dictionary.
  std::string source;                // What the output calls the document.
  std::vector<Property> properties;
  std::deque<Item> items;   // There may be many, and they are large: they stay where they are.
  std::vector<Type> types;  // Declared ones in the order of the document; any after its owner.
  std::vector<Operation> operations;
  // Whether every reference leads to a declared type.
  bool isWhole = true;
  Findings findings;  // What lint says of it.

  const Item* itemOf(const Field& field) const {
    return field.item == none ? nullptr : &items[field.item];
  }
  const Type* structureOf(const Field& field) const {
    return field.structure == none ? nullptr : &types[field.structure];
  }
  // Where a type stands, as findings tell it: "type Claim", "quote.drivers". What is too long to be
  // read is told as shortPath() has it.
  std::string placeOf(const Type& type) const;
  std::string placeOf(const Operation& operation) const;
  std::string placeOf(const Operation& operation, const Message& message) const;
  // The same of a type without the word: "Claim".
  std::string pathOf(const Type& type) const;
};

// Calls visit(const Field&, placeOf) for every field, field attribute and parameter, and for what
// declared types are by themselves. placeOf() tells where it stands, as findings do.
template <class Visit>
void forEachField(const ServiceModel& model, const Visit& visit) {
  for (const Type& type : model.types) {
    const auto below = [&](const std::vector<Field>& fields) {
      for (const Field& field : fields) {
        visit(field, [&] { return Spot(model, type).of(field.name).text(); });
      }
    };
    if (type.isDeclared) visit(type.self, [&] { return model.placeOf(type); });
    below(type.fields);
    below(type.attributes);
  }
  for (const Operation& operation : model.operations) {
    for (const Field& field : operation.parameters) {
      visit(field, [&] { return Spot(model.placeOf(operation)).of(field.name).text(); });
    }
    for (const Message& message : operation.messages) {
      for (const Field& field : message.parameters) {
        visit(field, [&] { return Spot(model.placeOf(operation, message)).of(field.name).text(); });
      }
    }
  }
}

}  // namespace as::toolkit::gen

#endif  // TOOLKIT_GENERATE_SERVICEMODEL_H_
