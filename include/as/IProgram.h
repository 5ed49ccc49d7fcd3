// A COBOL program as its data dictionary describes it: the root of a dictionary's model.
#ifndef AS_IPROGRAM_H_
#define AS_IPROGRAM_H_

#include "as/IElement.h"

namespace as {

class IList;

// Whoever gets a program from a parse request owns it and deletes it; that releases the whole model
// and the document under it. A program that is given to a service (by making a new service for it,
// or by being loaded with one) is the service's and goes with it. Programs are read only.
//
// A section that the document lacks reads as an empty list, never as null.
class AS_EXPORT IProgram : virtual public IElement {
 public:
  ~IProgram() override;
  AS_RTTI(IProgram)

  // Attribute "name": the PROGRAM-ID.
  virtual std::string getName() = 0;

  // The files of the file section, as::IFD objects.
  virtual IList* getFileSection() = 0;

  // The top-level data items of working storage and linkage section, as::IDataItem objects, in the
  // order of the source. The records of files are no members: see IFD::getDataItems.
  virtual IList* getDataItems() = 0;

  // The program's properties, as::IProperty objects.
  virtual IList* getProperties() = 0;

  // The entry points, as::IEntryPoint objects.
  virtual IList* getEntryPoints() = 0;
};

}  // namespace as

#endif  // AS_IPROGRAM_H_
