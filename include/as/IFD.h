// A file description of the file section, with the records of the file.
#ifndef AS_IFD_H_
#define AS_IFD_H_

#include "as/IElement.h"

namespace as {

class IList;

class AS_EXPORT IFD : virtual public IElement {
 public:
  ~IFD() override;
  AS_RTTI(IFD)

  // Attribute "name": the file name of the FD entry.
  virtual std::string getName() = 0;

  // Always 1, whatever the document says: the attribute is not read. Use
  // getAttributeValue("accessMode") for the word in the document.
  virtual int getAccessMode() = 0;

  // Always 0, whatever the document says: the attribute is not read. Use
  // getAttributeValue("organization") for the word in the document.
  virtual int getOrganization() = 0;

  // The file's records, as::IDataItem objects. Unlike the lists of a program this is null when the
  // file has no "dataItems" section; an empty section reads as an empty list. The file keeps it.
  virtual IList* getDataItems() = 0;
};

}  // namespace as

#endif  // AS_IFD_H_
