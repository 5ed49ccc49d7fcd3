#include "cobol/NationalImpl.h"

#include "cobol/DDVocabulary.h"
#include "xml/WordTable.h"

AS_DEFINE_IDENTITY2(CNationalImpl, as::INational, CDataItemImpl)

namespace {

constexpr WordCode usages[] = {{DD::unicode, as::INational::USAGE_UNICODE}};

}  // namespace

int CNationalImpl::getUsage() { return codeOfWord(usages, wide(DD::usage), USAGE_DISPLAY); }
