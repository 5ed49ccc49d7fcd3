// What the rules of lint look at: one value for each thing in a service that something is wanted
// of, with all that can be known of it. None outlives what it points at.
#ifndef TOOLKIT_LINT_SUBJECTS_H_
#define TOOLKIT_LINT_SUBJECTS_H_

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "as/IDataItem.h"
#include "as/IField.h"
#include "as/IHiddenParameter.h"
#include "as/IService.h"
#include "as/toolkit/DocumentReader.h"
#include "toolkit/flavour/FlavourProfile.h"
#include "toolkit/lint/Place.h"
#include "toolkit/lint/ProgramFacts.h"

namespace as::toolkit {

// The service's own attributes, as the document has them.
struct ServiceSubject {
  const Place& place;
  as::IService& service;
  const FlavourProfile& profile;
};

// The dictionary that a service is looked at with.
struct DictionarySubject {
  const Place& place;
  const Refusal* refusal;        // Why it cannot be used; null when it can.
  std::string programName;       // What the service calls its program; empty for nothing.
  std::string dictionaryName{};  // What the dictionary calls it.
};

// A comment to lint that is not understood.
struct CommentSubject {
  const Place& place;
  const std::string& problem;
  const std::string& advice;
};

// A member of a list.
struct MemberSubject {
  const Place& place;
  const char* kind;  // What it is: "parameter".
  const std::string& name;
  bool isTaken;  // Whether one in front of it has the name.
};

// How an operation is bound to the program.
struct OperationSubject {
  const Place& place;
  std::string entryPoint;          // Its name, as the document has it.
  ProgramFacts* program;           // Null when unknown.
  const CallInterface* interface;  // Null when the program has no such entry point, or is unknown.
};

// A word in an attribute for which there is a list of words.
struct WordSubject {
  const Place& place;
  const std::string& attribute;
  const std::string& written;
  std::string read;  // The word that it counts as.
  const FlavourProfile& profile;
};

// A hidden parameter beside its mapping.
struct HiddenSubject {
  const Place& place;
  std::string value;
  as::IDataItem* item;  // Null when there is none.
};

// A field or field attribute that is no reference, or a field attribute that refers to a definition
// with parts.
struct FieldSubject {
  const Place& place;
  as::IField& field;
  bool isElementary;  // Has neither fields nor field attributes.
  bool isAttribute;   // A field attribute.
};

// The data type of such a field, where it needs one or has one.
struct DataTypeSubject {
  const Place& place;
  std::string written;
  const DataType* read;  // Null when it has none.
  const FlavourProfile& profile;
};

// A parameter or field that refers to a type definition.
struct ReferenceSubject {
  enum class Leads { nowhere, toItself, toALaterOne, toAnEarlierOne };

  const Place& place;
  as::IField& field;
  const std::string& type;  // The name of the definition.
  // Whether the model follows it. It may do so to the definition that the reference stands in.
  bool isFollowed;
  Leads leads;
  std::string meant;  // The definition with nearly that name, where it leads nowhere; may be empty.
};

// A mapping to a data item, of a field or of a hidden parameter.
struct MappingSubject {
  const Place& place;

  std::string text;       // Attribute "item".
  std::string path;       // The same without subscripts.
  std::string outerText;  // Attribute "subscript".
  // The subscripts of the item and those of the interface; empty when they cannot be read.
  std::vector<int> inner;
  std::vector<int> outer;
  bool isInnerReadable;
  bool isOuterReadable;

  ProgramFacts* program;  // Null when unknown. What follows is known only with it:
  as::IDataItem* item;    // Null when there is none.
  std::vector<as::IDataItem*>
      tables{};  // That the item stands in, itself included, outermost first.

  // Of the field that is mapped; null for a hidden parameter.
  const FlavourProfile* profile = nullptr;
  const DataType* type = nullptr;  // Null when the field has fields, and when there is none.
  // The occurrences of the tables that it stands in, itself included, outermost first. Unknown for
  // a field of a type definition, which may stand in more, wherever it is referred to.
  const std::vector<int>* fieldTables = nullptr;

  // Whether there is an item and as many subscripts as it needs.
  bool fits() const { return item != nullptr && isInnerReadable && inner.size() == tables.size(); }
  // How many of the item's subscripts are open.
  std::size_t openOnes() const;
  // Whether, beyond that, there is a subscript of the interface for each of `inner`, or for each
  // open one among them: single occurrences need no place in the interface.
  bool fitsInterface() const;
};

// Which way things go, and what says so.
struct Direction {
  int byType = 0;          // As that of a parameter.
  std::string_view owner;  // "parameter", "header"; empty where it cannot be another one.
};

// The record that something is mapped to, in an operation that is bound to an entry point.
struct StorageSubject {
  const Place& place;
  ProgramFacts& program;
  as::IDataItem& record;
  const CallInterface& interface;
  Direction direction;
  bool hasMore = false;  // Whether there are others like it, of which nothing is told.
};

// The style of a Web service's operation.
struct WebStyle {
  const Place& place;
  int style;
};

// How the operation, or a header or fault, is coded.
struct WebUse {
  const Place& place;
  std::string owner;  // "it", or "the operation".
  std::string name;   // The attribute's.
  std::string words;  // What it is called at the start of a sentence.
  bool isKnown;
  bool isEncoded;
  bool isDocument;  // Whether the operation's style is document.
};

// One of the namespaces of an operation of style rpc.
struct WebRpcNamespace {
  const Place& place;
  std::string attribute;
  std::string uri;
};

// A parameter of an operation of style document: an element of the message.
struct WebElement {
  const Place& place;
  std::string uri;
  int direction;
  std::string inputNamespace;
  std::string outputNamespace;
};

// A header or fault.
struct WebMessage {
  const Place& place;
  int parameters;  // How many it has.
  std::string uri;
};

}  // namespace as::toolkit

#endif  // TOOLKIT_LINT_SUBJECTS_H_
