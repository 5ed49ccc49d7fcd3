#include "service/HiddenParameterImpl.h"

#include "service/SSVocabulary.h"

AS_DEFINE_IDENTITY2(CHiddenParameterImpl, as::IHiddenParameter, CMappingImpl)

std::string CHiddenParameterImpl::getValue() { return text(SS::value); }

void CHiddenParameterImpl::setValue(const char* value) { write(SS::value, value); }
