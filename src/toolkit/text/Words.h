// Words for the code numbers that the model answers.
#ifndef TOOLKIT_TEXT_WORDS_H_
#define TOOLKIT_TEXT_WORDS_H_

#include <string>

namespace as {
class IDataItem;
}

namespace as::toolkit {

// Every function answers "unknown" for a number that has no meaning.
std::string dataTypeWord(int type);
std::string numericUsageWord(int usage);
std::string signWord(int sign);
std::string justificationWord(int justification);
std::string nationalUsageWord(int usage);
std::string conditionValueTypeWord(int type);
std::string byTypeWord(int byType);
std::string implementationWord(int implementation);
std::string directionWord(int byType);
std::string mappingTypeWord(int type);

// The name of `item` dotted from its record down: RECORD.GROUP.ITEM.
std::string dottedPath(as::IDataItem& item);

}  // namespace as::toolkit

#endif  // TOOLKIT_TEXT_WORDS_H_
