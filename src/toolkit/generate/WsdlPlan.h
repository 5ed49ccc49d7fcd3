// What a WSDL document has for a service: messages, and operations that send and answer them.
#ifndef TOOLKIT_GENERATE_WSDLPLAN_H_
#define TOOLKIT_GENERATE_WSDLPLAN_H_

#include <cstddef>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "toolkit/generate/Generator.h"
#include "toolkit/generate/SchemaSet.h"

namespace as::toolkit::gen {

// A part of a message: of an element, or of a type.
struct WsdlPart {
  std::string name;
  std::optional<SchemaSet::Handle> element{};
  std::optional<SchemaSet::Handle> type{};
};

struct WsdlMessage {
  NameWish wish;
  std::vector<WsdlPart> parts{};
  std::string name{};
};

// A header or fault, with its message.
struct WsdlBlock {
  const Message& message;
  std::size_t number;  // In the list of messages.
};

struct WsdlOperation {
  const Operation& operation;
  std::size_t request = 0;
  std::size_t answer = 0;
  std::vector<WsdlBlock> messages{};
  std::string name{};

  bool isRpc() const { return operation.style == Operation::Style::rpc; }
};

// Adds what the messages hold to the schemas, which get complete between the two steps. Tells what
// WSDL cannot say.
class WsdlPlan {
 public:
  WsdlPlan(const Job& job, SchemaSet& schemas);

  void giveNames();

  const std::string& name() const { return name_; }  // Of the service.
  const std::vector<WsdlMessage>& messages() const { return messages_; }
  const std::vector<WsdlOperation>& operations() const { return operations_; }

 private:
  void plan(const Operation& operation);
  std::size_t planMessage(const WsdlOperation& planned, const SchemaSet::Members& members,
                          const NameWish& element, const std::string& uri);
  std::size_t planMessage(const Operation& operation, const Message& message);
  void planHeader(const Operation& operation, const Message& message,
                  const SchemaSet::Members& members, const std::string& uri, WsdlMessage& planned);
  SchemaSet::Handle typeOf(const Operation& operation, const Field& field);
  void tellEncoded(const std::string& place, const std::string& kind) const;
  void tellAttributes(const Operation& operation);

  const Job& job_;
  const ServiceModel& model_;
  SchemaSet& schemas_;
  std::string name_;
  std::vector<WsdlMessage> messages_;
  std::vector<WsdlOperation> operations_;
  std::unordered_map<const Field*, SchemaSet::Handle> types_;
  std::vector<bool> haveAttributes_;  // Types, or what stands in them; empty until it is asked.
};

}  // namespace as::toolkit::gen

#endif  // TOOLKIT_GENERATE_WSDLPLAN_H_
