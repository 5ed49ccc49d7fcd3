#include "toolkit/render/ItemSummary.h"

#include "as/INumeric.h"
#include "toolkit/text/ShownPlace.h"
#include "toolkit/text/Words.h"

namespace as::toolkit {

std::string itemSummary(as::IDataItem& item) {
  std::string summary = dottedPath(item);
  const std::string picture = item.getPicture();
  if (!picture.empty()) summary += " " + shownPlace({picture});
  auto* const numeric = as::interface_cast<as::INumeric>(&item);
  summary += " " + (numeric == nullptr ? dataTypeWord(item.getDataType())
                                       : numericUsageWord(numeric->getUsage()));
  return summary + " at " + std::to_string(item.getOffset());
}

}  // namespace as::toolkit
