// The walk through what each flavour of services has of its own: Web, COM, Java and .NET.
#include <vector>

#include "Walk.h"

namespace walk {

namespace {

// A new service of the program MOTPREM with one operation, bound to its first entry point.
template <class Service>
std::unique_ptr<Service> newService(const Places& places, Service* (*make)(as::IProgram*)) {
  std::unique_ptr<Service> service(make(program(places, "MOTPREM").release()));
  if (service == nullptr) throw std::logic_error("there is no new service");
  service->addOperation("quote",
                        &member<as::IEntryPoint>(service->getProgram()->getEntryPoints(), 0));
  return service;
}

as::IElement* firstOperation(as::IService& service) {
  return &member<as::IOperation>(service.getOperations(), 0);
}

std::unique_ptr<as::IService> writtenAndRead(const Places& places, as::IService& of) {
  return service(places, as::CAgentServicesFactory::SerializeToString(&of));
}

// A document of a flavour: one operation with those attributes and a parameter "p" around a field
// "f", both of the data type. "r" refers to the definition "Type".
std::unique_ptr<as::IService> parsedService(const Places& places, const std::string& flavour,
                                            const std::string& operation,
                                            const std::string& dataType,
                                            const std::string& content = "") {
  return service(
      places, document(flavour, "<parameterTypeDefs><parameter name='Type' dataType='" + dataType +
                                    "'/></parameterTypeDefs><operations><operation name='op' " +
                                    operation + "><parameters><parameter name='p' dataType='" +
                                    dataType + "'><field name='f' dataType='" + dataType +
                                    "'/></parameter><parameter name='r' ref='Type'/></parameters>" +
                                    content + "</operation></operations>"));
}

// The parameters of that operation, and the field of the first.
as::IElement* parameter(as::IService& service, const std::string& name) {
  return &named<as::IParameter>(member<as::IOperation>(service.getOperations(), 0).getParameters(),
                                name);
}

as::IElement* fieldOf(as::IElement* parameter) {
  return &member<as::IField>(the<as::IParameter>(parameter).getChildren(), 0);
}

// Sets every type and reads it back, with `words` in the order of the enumerators; null for a type
// that does not read as what was set.
template <class Field, class Words>
void setEveryType(Field& field, const Words& words) {
  int type = 0;
  for (const char* const word : words) {
    field.setType(static_cast<typename Field::TYPE>(type));
    if (word != nullptr) {
      CHECK(field.getType() == type);
      CHECK(field.getAttributeValue("dataType") == word);
    }
    type++;
  }
}

constexpr char messages[] =
    "<header byType='in' namespace='urn:header' use='literal'><parameters>"
    "<parameter name='session' byType='in' dataType='unsignedLong'/></parameters></header>"
    "<header/>"
    "<fault namespace='urn:fault' use='encoded'><parameters>"
    "<parameter name='code' byType='out' dataType='int'/></parameters></fault>";

void walkWSOperation(const Places& places) {
  const auto slots = parsedService(places, "ws",
                                   "style='rpc' inputUse='literal' outputUse='encoded' "
                                   "inputNamespace='urn:in' outputNamespace='urn:out'",
                                   "unsignedShort", messages);
  auto& op = the<as::IWSOperation>(firstOperation(*slots));
  CHECK(walked("IWSOperation::getStyle") && op.getStyle() == as::IWSOperation::STYLE_RPC);
  CHECK(walked("IWSOperation::setStyle") && (op.setStyle(as::IWSOperation::STYLE_DOCUMENT),
                                             op.getStyle() == as::IWSOperation::STYLE_DOCUMENT));
  CHECK(walked("IWSOperation::getInputUse") && op.getInputUse() == as::IWSOperation::USE_LITERAL);
  CHECK(walked("IWSOperation::setInputUse") && (op.setInputUse(as::IWSOperation::USE_ENCODED),
                                                op.getInputUse() == as::IWSOperation::USE_ENCODED));
  CHECK(walked("IWSOperation::getOutputUse") && op.getOutputUse() == as::IWSOperation::USE_ENCODED);
  CHECK(walked("IWSOperation::setOutputUse") &&
        (op.setOutputUse(as::IWSOperation::USE_LITERAL),
         op.getOutputUse() == as::IWSOperation::USE_LITERAL));
  CHECK(walked("IWSOperation::getInputNamespace") && op.getInputNamespace() == "urn:in");
  CHECK(walked("IWSOperation::setInputNamespace") &&
        (op.setInputNamespace("urn:i2"), op.getInputNamespace() == "urn:i2"));
  CHECK(walked("IWSOperation::getOutputNamespace") && op.getOutputNamespace() == "urn:out");
  CHECK(walked("IWSOperation::setOutputNamespace") &&
        (op.setOutputNamespace("urn:o2"), op.getOutputNamespace() == "urn:o2"));
  CHECK(op.getInputNamespace() == "urn:i2");
  CHECK(walked("IWSOperation::getHeaders") && op.getHeaders()->getLength() == 2);
  CHECK(walked("IWSOperation::getFaults") && op.getFaults()->getLength() == 1);

  auto& header = member<as::IWSHeader>(op.getHeaders(), 0);
  CHECK(walked("IWSHeader::getByType") && header.getByType() == as::IWSHeader::BY_IN &&
        member<as::IWSHeader>(op.getHeaders(), 1).getByType() == as::IWSHeader::BY_IO);
  CHECK(walked("IWSHeader::setByType") &&
        (header.setByType(as::IWSHeader::BY_OUT), header.getByType() == as::IWSHeader::BY_OUT));
  CHECK(walked("IWSHeader::getNamespace") && header.getNamespace() == "urn:header");
  CHECK(walked("IWSHeader::setNamespace") &&
        (header.setNamespace("urn:h2"), header.getNamespace() == "urn:h2"));
  CHECK(walked("IWSHeader::getUse") && header.getUse() == as::IWSHeader::USE_LITERAL &&
        member<as::IWSHeader>(op.getHeaders(), 1).getUse() == -1);
  CHECK(walked("IWSHeader::setUse") &&
        (header.setUse(as::IWSHeader::USE_ENCODED), header.getUse() == as::IWSHeader::USE_ENCODED));
  CHECK(walked("IWSHeader::getParameters") && header.getParameters()->getLength() == 1 &&
        member<as::IWSParameter>(header.getParameters(), 0).getName() == "session");
  as::IWSParameter* added = nullptr;
  CHECK(walked("IWSHeader::addParameter") &&
        (added = header.addParameter(as::IParameter::BY_OUT, "token", 2), added != nullptr) &&
        added->getName() == "token" && added->getByType() == as::IParameter::BY_OUT &&
        added->getOccurs() == 2 && header.getParameters()->getLength() == 2);

  auto& fault = member<as::IWSFault>(op.getFaults(), 0);
  CHECK(walked("IWSFault::getNamespace") && fault.getNamespace() == "urn:fault");
  CHECK(walked("IWSFault::setNamespace") &&
        (fault.setNamespace("urn:f2"), fault.getNamespace() == "urn:f2"));
  CHECK(walked("IWSFault::getUse") && fault.getUse() == as::IWSFault::USE_ENCODED);
  CHECK(walked("IWSFault::setUse") &&
        (fault.setUse(as::IWSFault::USE_LITERAL), fault.getUse() == as::IWSFault::USE_LITERAL));
  CHECK(walked("IWSFault::getParameters") && fault.getParameters()->getLength() == 1 &&
        member<as::IWSParameter>(fault.getParameters(), 0).getName() == "code");
  CHECK(walked("IWSFault::addParameter") &&
        (added = fault.addParameter(as::IParameter::BY_IN, "text", 1), added != nullptr) &&
        added->getName() == "text" && added->getByType() == as::IParameter::BY_IN &&
        fault.getParameters()->getLength() == 2);

  as::IWSHeader* newHeader = nullptr;
  CHECK(walked("IWSOperation::addHeader") &&
        (newHeader = op.addHeader(as::IWSHeader::BY_OUT), newHeader != nullptr) &&
        newHeader->getByType() == as::IWSHeader::BY_OUT && op.getHeaders()->getLength() == 3 &&
        newHeader->getParameters()->getLength() == 0);
  as::IWSFault* newFault = nullptr;
  CHECK(walked("IWSOperation::addFault") && (newFault = op.addFault(), newFault != nullptr) &&
        op.getFaults()->getLength() == 2 && newFault->getParameters()->getLength() == 0);
  as::IElement* const headerElement = newHeader;
  as::IElement* const faultElement = newFault;
  CHECK(as::interface_cast<as::IWSHeader>(headerElement) == newHeader);
  CHECK(as::interface_cast<as::IWSFault>(headerElement) == nullptr);
  CHECK(as::interface_cast<as::IWSFault>(faultElement) == newFault);
  CHECK(as::interface_cast<as::IWSHeader>(faultElement) == nullptr);
}

void walkWSParameter(const Places& places) {
  const std::unique_ptr<as::IWebService> premium =
      newService(places, as::CAgentServicesFactory::NewWebService);
  auto& op = the<as::IWSOperation>(firstOperation(*premium));
  auto& cover = the<as::IWSParameter>(op.addParameter(as::IParameter::BY_IN, "cover", 1));
  auto& field = the<as::IWSField>(&cover);
  CHECK(walked("IWSField::setType") && (field.setType(as::IWSField::WS_UNSIGNED_BYTE),
                                        field.getAttributeValue("dataType") == "unsignedByte"));
  CHECK(walked("IWSField::getType") && field.getType() == as::IWSField::WS_UNSIGNED_BYTE);
  CHECK(walked("IWSField::getTypeToString") && field.getTypeToString() == "unsignedByte");
  const char* const words[] = {"byte",   "unsignedByte", "short",   "unsignedShort",
                               "int",    "unsignedInt",  "long",    "unsignedLong",
                               "float",  "double",       "decimal", "integer",
                               "string", "Array",        "XML"};
  setEveryType(field, words);

  as::IWSParameter* attribute = nullptr;
  CHECK(walked("IWSField::addFieldAttribute") &&
        (attribute = field.addFieldAttribute("unit"), attribute != nullptr) &&
        attribute->getName() == "unit" && attribute->getOccurs() == 0);
  CHECK(walked("IWSField::getFieldAttributes") && field.getFieldAttributes()->getLength() == 1 &&
        &member<as::IWSParameter>(field.getFieldAttributes(), 0) == attribute);
  auto& part = the<as::IWSParameter>(cover.addField("part", 1));

  // Namespace and forms: the plain getters tell those of parameters only.
  CHECK(walked("IWSParameter::setNamespace") &&
        (cover.setNamespace("urn:cover"), cover.getAttributeValue("namespace") == "urn:cover"));
  part.setNamespace("urn:part");
  CHECK(walked("IWSField::getNamespace") && field.getNamespace() == "urn:cover");
  CHECK(walked("IWSParameter::getNamespace") && cover.getNamespace() == "urn:cover" &&
        part.getNamespace().empty() && cover.as::IWSParameter::getNamespace().empty());
  CHECK(walked("IWSParameter::getNamespaceForParam") &&
        cover.getNamespaceForParam() == "urn:cover" && part.getNamespaceForParam() == "urn:part");
  CHECK(walked("IWSParameter::setElementForm") &&
        (cover.setElementForm(as::IWSField::FORM_UNQUALIFIED),
         cover.getAttributeValue("elementForm") == "unqualified"));
  part.setElementForm(as::IWSField::FORM_QUALIFIED);
  CHECK(walked("IWSField::getElementForm") &&
        field.getElementForm() == as::IWSField::FORM_UNQUALIFIED);
  CHECK(walked("IWSParameter::getElementForm") &&
        cover.getElementForm() == as::IWSField::FORM_UNQUALIFIED && part.getElementForm() == -1 &&
        cover.as::IWSParameter::getElementForm() == -1);
  CHECK(walked("IWSParameter::getElementFormForParam") &&
        cover.getElementFormForParam() == as::IWSField::FORM_UNQUALIFIED &&
        part.getElementFormForParam() == as::IWSField::FORM_QUALIFIED);
  CHECK(walked("IWSParameter::setAttributeForm") &&
        (cover.setAttributeForm(as::IWSField::FORM_QUALIFIED),
         cover.getAttributeValue("attributeForm") == "qualified"));
  part.setAttributeForm(as::IWSField::FORM_UNQUALIFIED);
  CHECK(walked("IWSField::getAttributeForm") &&
        field.getAttributeForm() == as::IWSField::FORM_QUALIFIED);
  CHECK(walked("IWSParameter::getAttributeForm") &&
        cover.getAttributeForm() == as::IWSField::FORM_QUALIFIED && part.getAttributeForm() == -1 &&
        cover.as::IWSParameter::getAttributeForm() == -1);
  CHECK(walked("IWSParameter::getAttributeFormForParam") &&
        cover.getAttributeFormForParam() == as::IWSField::FORM_QUALIFIED &&
        part.getAttributeFormForParam() == as::IWSField::FORM_UNQUALIFIED);

  const auto again = writtenAndRead(places, *premium);
  auto& read = the<as::IWSParameter>(parameter(*again, "cover"));
  CHECK(read.getTypeToString() == "XML" && read.getNamespace() == "urn:cover");
  CHECK(read.getFieldAttributes()->getLength() == 1 && read.getChildren()->getLength() == 1);
}

}  // namespace

void walkWebService(const Places& places) {
  walkWSOperation(places);
  walkWSParameter(places);
  const auto slots = parsedService(places, "ws", "", "decimal");
  as::IElement* const root = slots.get();
  CHECK(as::interface_cast<as::IWebService>(root) != nullptr);
  CHECK(as::interface_cast<as::IService>(root) == slots.get());
  CHECK(as::interface_cast<as::IDotNET>(root) == nullptr);
  CHECK(as::interface_cast<as::IWSOperation>(firstOperation(*slots)) != nullptr);
  CHECK(as::interface_cast<as::IOperation>(firstOperation(*slots)) != nullptr);
  CHECK(as::interface_cast<as::IJavaOperation>(firstOperation(*slots)) == nullptr);
  as::IElement* const p = parameter(*slots, "p");
  for (as::IElement* const value : {p, fieldOf(p), parameter(*slots, "r")}) {
    CHECK(as::interface_cast<as::IWSParameter>(value) != nullptr);
    CHECK(as::interface_cast<as::IParameter>(value) != nullptr);
    CHECK(as::interface_cast<as::IField>(value) != nullptr);
    CHECK(as::interface_cast<as::ICOMParameter>(value) == nullptr);
    CHECK(the<as::IWSField>(value).getType() == as::IWSField::WS_DECIMAL);
    CHECK(the<as::IWSField>(value).getTypeToString() == "decimal");
  }
  CHECK(the<as::IWSField>(parameter(*slots, "r")).addFieldAttribute("a") == nullptr);
}

void walkCOMService(const Places& places) {
  const auto parsed = parsedService(places, "com", "", "currency");
  as::IElement* const p = parameter(*parsed, "p");
  for (as::IElement* const value : {p, fieldOf(p), parameter(*parsed, "r")}) {
    CHECK(as::interface_cast<as::ICOMField>(value) != nullptr);
    CHECK(as::interface_cast<as::ICOMParameter>(value) != nullptr);
    CHECK(as::interface_cast<as::IJavaParameter>(value) == nullptr);
    CHECK(walked("ICOMField::getType") &&
          the<as::ICOMField>(value).getType() == as::ICOMField::COM_CURRENCY);
  }
  as::IElement* const root = parsed.get();
  CHECK(as::interface_cast<as::IWebService>(root) == nullptr);
  CHECK(as::interface_cast<as::IDotNET>(root) == nullptr);

  const std::unique_ptr<as::IService> fresh =
      newService(places, as::CAgentServicesFactory::NewCOMService);
  auto& op = the<as::IOperation>(firstOperation(*fresh));
  auto& result = the<as::ICOMParameter>(op.addParameter(as::IParameter::BY_OUT, "result", 1));
  CHECK(walked("ICOMField::setType") &&
        (result.setType(as::ICOMField::COM_DATE), result.getAttributeValue("dataType") == "date"));
  const char* const words[] = {"byte",   "short",    "int",    "long", "float",
                               "double", "currency", "string", "date", nullptr};
  setEveryType(the<as::ICOMField>(&result), words);
  CHECK(result.getType() == as::ICOMField::COM_STRING &&
        result.getAttributeValue("dataType") == "object");
  CHECK(walked("ICOMParameter::isReturnParameter") && !result.isReturnParameter());
  CHECK(walked("ICOMParameter::setReturnParameter") &&
        (result.setReturnParameter(true), result.isReturnParameter()) &&
        result.getAttributeValue("returnParameter") == "1");
  const auto again = writtenAndRead(places, *fresh);
  CHECK(again->getImplementation() == as::IService::TYPE_COM);
  CHECK(the<as::ICOMParameter>(parameter(*again, "result")).isReturnParameter());
}

void walkJavaService(const Places& places) {
  const auto parsed = parsedService(places, "java", "transactionType='requiresNew'", "BigDecimal");
  as::IElement* const p = parameter(*parsed, "p");
  for (as::IElement* const value : {p, fieldOf(p), parameter(*parsed, "r")}) {
    CHECK(as::interface_cast<as::IJavaField>(value) != nullptr);
    CHECK(as::interface_cast<as::IJavaParameter>(value) != nullptr);
    CHECK(as::interface_cast<as::IWSField>(value) == nullptr);
    CHECK(as::interface_cast<as::IDotNETField>(value) == nullptr);
    CHECK(walked("IJavaField::getType") &&
          the<as::IJavaField>(value).getType() == as::IJavaField::JAVA_BIG_DECIMAL);
    CHECK(walked("IJavaParameter::getType") &&
          the<as::IJavaParameter>(value).getType() == as::IJavaField::JAVA_BIG_DECIMAL);
  }
  as::IElement* const operation = firstOperation(*parsed);
  CHECK(as::interface_cast<as::IJavaOperation>(operation) != nullptr);
  CHECK(as::interface_cast<as::IWSOperation>(operation) == nullptr);
  using Operation = as::IJavaOperation;
  auto& op = the<Operation>(operation);
  CHECK(walked("IJavaOperation::getTransactionType") &&
        op.getTransactionType() == Operation::TRANS_REQUIRES_NEW);
  CHECK(walked("IJavaOperation::setTransactionType") &&
        (op.setTransactionType(Operation::TRANS_MANDATORY),
         op.getTransactionType() == Operation::TRANS_MANDATORY));
  const char* const transactions[] = {"notSupported", "mandatory",   "never",
                                      "requires",     "requiresNew", "supports"};
  int type = 0;
  for (const char* const word : transactions) {
    op.setTransactionType(static_cast<Operation::TRANS_TYPE>(type));
    CHECK(op.getTransactionType() == type);
    CHECK(op.getAttributeValue("transactionType") == word);
    type++;
  }

  const std::unique_ptr<as::IService> fresh =
      newService(places, as::CAgentServicesFactory::NewJavaService);
  auto& added = the<as::IJavaParameter>(
      the<as::IOperation>(firstOperation(*fresh)).addParameter(as::IParameter::BY_IN, "policy", 1));
  auto& field = the<as::IJavaField>(&added);
  CHECK(walked("IJavaField::setType") &&
        (field.setType(as::IJavaField::JAVA_LONG), field.getAttributeValue("dataType") == "long"));
  CHECK(walked("IJavaParameter::setType") && (added.setType(as::IJavaField::JAVA_FLOAT),
                                              added.getAttributeValue("dataType") == "float"));
  const char* const words[] = {"byte",   "short",      "int",    "long",      "float",
                               "double", "BigDecimal", "String", "byteArray", "BigInteger"};
  setEveryType(field, words);
  const auto again = writtenAndRead(places, *fresh);
  CHECK(the<as::IJavaField>(parameter(*again, "policy")).getType() ==
        as::IJavaField::JAVA_BIG_INTEGER);
}

void walkDotNETService(const Places& places) {
  const auto parsed = parsedService(places, "dotnet", "", "UInt16");
  as::IElement* const root = parsed.get();
  CHECK(as::interface_cast<as::IDotNET>(root) != nullptr);
  CHECK(as::interface_cast<as::IWebService>(root) == nullptr);
  CHECK(as::interface_cast<as::IDotNETOperation>(firstOperation(*parsed)) != nullptr);
  CHECK(as::interface_cast<as::IWSOperation>(firstOperation(*parsed)) == nullptr);
  as::IElement* const p = parameter(*parsed, "p");
  for (as::IElement* const value : {p, fieldOf(p), parameter(*parsed, "r")}) {
    CHECK(as::interface_cast<as::IDotNETField>(value) != nullptr);
    CHECK(as::interface_cast<as::IDotNETParameter>(value) != nullptr);
    CHECK(as::interface_cast<as::ICOMField>(value) == nullptr);
    CHECK(as::interface_cast<as::IJavaField>(value) == nullptr);
    CHECK(walked("IDotNETField::getType") &&
          the<as::IDotNETField>(value).getType() == as::IDotNETField::NET_UINT16);
    CHECK(walked("IDotNETParameter::getType") &&
          the<as::IDotNETParameter>(value).getType() == as::IDotNETField::NET_UINT16);
    CHECK(walked("IDotNETField::getTypeToString") &&
          the<as::IDotNETField>(value).getTypeToString() == "UInt16");
    CHECK(walked("IDotNETParameter::getTypeToString") &&
          the<as::IDotNETParameter>(value).getTypeToString() == "UInt16");
  }

  const std::unique_ptr<as::IDotNET> fresh =
      newService(places, as::CAgentServicesFactory::NewDotNETService);
  auto& added = the<as::IDotNETParameter>(
      the<as::IOperation>(firstOperation(*fresh)).addParameter(as::IParameter::BY_IN, "policy", 1));
  auto& field = the<as::IDotNETField>(&added);
  CHECK(walked("IDotNETField::setType") && (field.setType(as::IDotNETField::NET_SBYTE),
                                            field.getAttributeValue("dataType") == "SByte"));
  CHECK(walked("IDotNETParameter::setType") && (added.setType(as::IDotNETField::NET_INT64),
                                                added.getAttributeValue("dataType") == "Int64"));
  const char* const words[] = {"Byte",   "SByte",  "Int16",  "Int32",  "Int64",   "UInt16",
                               "UInt32", "UInt64", "Single", "Double", "Decimal", "String"};
  setEveryType(field, words);

  // A new service is written in the namespace of Web services, and read back as one of them.
  const auto again = writtenAndRead(places, *fresh);
  as::IElement* const readRoot = again.get();
  CHECK(as::interface_cast<as::IWebService>(readRoot) != nullptr);
  CHECK(again->getImplementation() == as::IService::TYPE_DOTNET);
  auto& read = the<as::IWSField>(parameter(*again, "policy"));
  CHECK(read.getAttributeValue("dataType") == "String" && read.getType() == -1);
}

}  // namespace walk
