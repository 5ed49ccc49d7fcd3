#include "service/ParameterImpl.h"

#include <vector>

#include "as/IOperation.h"
#include "cobol/DataItemPath.h"
#include "service/ByTypeWords.h"
#include "service/JoinedBackwards.h"
#include "service/MappingImpl.h"
#include "service/SSVocabulary.h"
#include "service/ServiceFactory.h"
#include "service/ServiceImpl.h"
#include "xml/XStr.h"

using xercesc::DOMNode;
using xercesc::XMLString;

AS_DEFINE_IDENTITY3(CParameterImpl, as::IParameter, as::IField, CElementImpl)

std::string CParameterImpl::getName() { return text(SS::name); }

void CParameterImpl::setName(const char* name) { write(SS::name, name); }

int CParameterImpl::getOccurs() {
  return reference_ == nullptr ? integer(SS::occurs) : reference_->integer(SS::occurs);
}

void CParameterImpl::setOccurs(int count) { write(SS::occurs, std::to_string(count)); }

as::IList* CParameterImpl::getChildren() { return &source()->fields_; }

as::IList* CParameterImpl::getMappings() { return CList::orEmpty(source()->mappings_); }

as::IField* CParameterImpl::addField(const char* name, int occurs) {
  if (reference_ != nullptr) return nullptr;
  CParameterImpl* const field = getFactory()->createField();
  field->setName(name);
  field->setOccurs(occurs);
  fields_.addChild(field->getElement());
  return field;
}

as::IMapping* CParameterImpl::addMapping(as::IDataItem* dataItem) {
  if (reference_ != nullptr || dataItem == nullptr) return nullptr;
  CMappingImpl* const mapping = getFactory()->createMapping();
  mapping->setField(this);
  mapping->setDataItem(dataItem);
  CServiceFactory::append(*this, mappings_, SS::mappings, getElement()->getFirstChild(),
                          mapping->getElement());
  return mapping;
}

std::string CParameterImpl::getQualifiedName() {
  // Joined without a separator: clients use it as a key.
  std::vector<std::string> names = {getName()};
  const DOMNode* node = getElement()->getParentNode();
  const auto isField = [](const DOMNode* candidate) {
    const XMLCh* const localName = candidate->getLocalName();
    return XMLString::equals(localName, SS::field) || XMLString::equals(localName, SS::parameter);
  };
  for (; node != nullptr && isField(node); node = node->getParentNode()) {
    if (auto* const field = as::interface_cast<as::IField>(wrapperOf(node))) {
      names.push_back(field->getName());
    }
  }
  // Compared with its prefix: a prefixed document's names end at the parameter.
  const DOMNode* const parent =
      node != nullptr && XMLString::equals(node->getNodeName(), SS::parameters)
          ? node->getParentNode()
          : nullptr;
  if (parent != nullptr && XMLString::equals(parent->getNodeName(), SS::operation)) {
    if (auto* const operation = as::interface_cast<as::IOperation>(wrapperOf(parent))) {
      names.push_back(operation->getName());
    }
  }
  return joinedBackwards(names);
}

as::IParameter::BY_TYPE CParameterImpl::getByType() {
  return byTypeOfWord<as::IParameter>(wide(SS::byType));
}

void CParameterImpl::setByType(BY_TYPE byType) { write(SS::byType, ByTypeToString(byType)); }

as::IParameter* CParameterImpl::getReferenceType() { return reference_; }

void CParameterImpl::collectChildren() {
  const std::string ref = text(SS::ref);
  if (!ref.empty()) {
    CServiceImpl* const service = getService();
    CParameterImpl* const found = service == nullptr ? nullptr : service->getPrototypeByName(ref);
    // A definition is found by what stands behind it and, while the list of definitions grows, by
    // itself. Only the latter would lead back to where it started: it defines nothing.
    if (found == nullptr || found == this) return;
    // It stands in front or around, and has its own reference already.
    reference_ = found;
    source_ = found->source_;
    return;
  }
  collectNamedList(SS::mappings, mappings_);
  const int count = mappings_ == nullptr ? 0 : mappings_->getLength();
  for (int i = 0; i < count; i++) {
    auto* const mapping = as::interface_cast<CMappingImpl>(mappings_->getElement(i));
    if (mapping != nullptr) mapping->setField(this);
  }
  fields_.collectChildren();
}

const XMLCh* CParameterImpl::wideAtSource(const XMLCh* attribute) {
  return source()->wide(attribute);
}

const XMLCh* CParameterImpl::ByTypeToString(BY_TYPE byType) {
  return wordOfByType<as::IParameter>(byType);
}

std::string CParameterImpl::GetFullyQualifiedName(const std::string& path) {
  const std::vector<std::string> components = splitDataItemPath(path);
  std::string name;
  for (auto component = components.rbegin(); component != components.rend(); ++component) {
    if (component != components.rbegin()) name += " of ";
    name += *component;
  }
  return name;
}

as::IDataItem* CParameterImpl::GetDataItem(const std::string& path, as::IProgram* program) {
  return findDataItem(path, program);
}
