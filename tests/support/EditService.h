// Edits services by everything that their model offers.
#ifndef TESTS_SUPPORT_EDITSERVICE_H_
#define TESTS_SUPPORT_EDITSERVICE_H_

#include <memory>

#include "as/AgentServices.h"
#include "support/Documents.h"
#include "support/Model.h"
#include "support/Requests.h"

namespace test {
namespace edits {

// A program to bind to and map to; nothing but names of it gets into a document.
inline as::IProgram& program() {
  static const std::unique_ptr<as::IProgram> parsed = parse(payProgram());
  return *parsed;
}

inline as::IDataItem* amount() {
  return childOf<as::IDataItem>(childOf<as::IGroup>(topItem<as::IGroup>(program(), 1), 2));
}

inline void setTypes(as::IField& field) {
  if (auto* const java = as::interface_cast<as::IJavaField>(&field)) {
    java->setType(as::IJavaField::JAVA_BIG_INTEGER);
  }
  if (auto* const com = as::interface_cast<as::ICOMParameter>(&field)) {
    com->setType(as::ICOMField::COM_DATE);
    com->setReturnParameter(true);
  }
  if (auto* const dotNet = as::interface_cast<as::IDotNETField>(&field)) {
    dotNet->setType(as::IDotNETField::NET_DECIMAL);
  }
  if (auto* const web = as::interface_cast<as::IWSParameter>(&field)) {
    web->setType(as::IWSField::WS_XML);
    web->setNamespace("urn:set <&>");
    web->setElementForm(as::IWSField::FORM_QUALIFIED);
    web->setAttributeForm(as::IWSField::FORM_UNQUALIFIED);
  }
}

// Changes the field and adds to it; not its name, by which others may refer to it.
inline void edit(as::IField& field) {
  field.setOccurs(7);
  setTypes(field);
  // What is added beside a reference is not read back.
  if (!field.getAttributeValue("ref").empty()) return;
  field.addMapping(amount());
  as::IField* const added = field.addField("added \"field\" \xE4\xB8\xAD", 2);
  setTypes(*added);
  added->addField("inner", 0)->addMapping(topItem<as::IDataItem>(program(), 2));
  if (auto* const web = as::interface_cast<as::IWSField>(&field)) {
    as::IWSParameter* const attribute = web->addFieldAttribute("added attribute");
    setTypes(*attribute);
    attribute->addMapping(amount());
  }
}

inline void editAll(as::IList& parameters) {
  for (int i = 0; i < parameters.getLength(); i++) edit(*itemOf<as::IField>(&parameters, i));
}

template <class Part>
inline void edit(Part& part, typename Part::USE use) {
  part.setNamespace("urn:part");
  part.setUse(use);
  part.addParameter(as::IParameter::BY_IN, "added", 1);
  editAll(*part.getParameters());
}

inline void edit(as::IOperation& operation) {
  operation.setName("renamed <\xC3\xB6>");
  operation.setExitPoints(3);
  operation.setEntryPoint(entryPointOf(program()));
  as::IHiddenParameter* const hidden = operation.addHiddenParameter(nullptr, nullptr);
  hidden->setDataItem(amount());
  hidden->setValue("a\r\n\tb & \"c\"");
  operation.addParameter(as::IParameter::BY_OUT, "added parameter", -2);
  for (int i = 0; i < operation.getParameters()->getLength(); i++) {
    itemOf<as::IField>(operation.getParameters(), i)->setName("renamed");
  }
  editAll(*operation.getParameters());
  if (auto* const java = as::interface_cast<as::IJavaOperation>(&operation)) {
    java->setTransactionType(as::IJavaOperation::TRANS_MANDATORY);
  }
  if (auto* const web = as::interface_cast<as::IWSOperation>(&operation)) {
    web->setStyle(as::IWSOperation::STYLE_DOCUMENT);
    web->setInputUse(as::IWSOperation::USE_ENCODED);
    web->setOutputUse(as::IWSOperation::USE_LITERAL);
    web->setInputNamespace("urn:set in");
    web->setOutputNamespace("");
    web->addHeader(as::IWSHeader::BY_OUT);
    web->addFault();
    for (int i = 0; i < web->getHeaders()->getLength(); i++) {
      edit(*itemOf<as::IWSHeader>(web->getHeaders(), i), as::IWSHeader::USE_LITERAL);
    }
    for (int i = 0; i < web->getFaults()->getLength(); i++) {
      edit(*itemOf<as::IWSFault>(web->getFaults(), i), as::IWSFault::USE_ENCODED);
    }
  }
}

// Changes something of everything and adds one of everything.
inline void edit(as::IService& service) {
  service.setName("edited");
  service.setExitProgramName("EXIT \xF0\x9F\x98\x80");
  service.setDDFilename("other/dictionary.xml");
  editAll(*service.getParameterTypeDefs());
  service.addOperation("added", nullptr);
  for (int i = 0; i < service.getOperations()->getLength(); i++) {
    edit(*itemOf<as::IOperation>(service.getOperations(), i));
  }
  service.addOperation("added last", entryPointOf(program()));
}

}  // namespace edits

using edits::edit;

}  // namespace test

#endif  // TESTS_SUPPORT_EDITSERVICE_H_
