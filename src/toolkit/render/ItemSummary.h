// What a data item is, in a few words.
#ifndef TOOLKIT_RENDER_ITEMSUMMARY_H_
#define TOOLKIT_RENDER_ITEMSUMMARY_H_

#include <string>

namespace as {
class IDataItem;
}

namespace as::toolkit {

// Path, picture and usage or category, and offset: "RECORD.ITEM 9(4) comp-3 at 12". Unprintable
// characters are as the document has them.
std::string itemSummary(as::IDataItem& item);

}  // namespace as::toolkit

#endif  // TOOLKIT_RENDER_ITEMSUMMARY_H_
