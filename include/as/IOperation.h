// One callable function of a service, bound by name to an entry point of the COBOL program.
#ifndef AS_IOPERATION_H_
#define AS_IOPERATION_H_

#include <string>

#include "as/IParameter.h"

namespace as {

class IDataItem;
class IEntryPoint;
class IHiddenParameter;
class IList;

// What setters do with texts is told with as::IElement.
//
// The adding operations work on parsed documents as on new ones; a missing child that they add to
// ("parameters", "hiddenParameters") is added first. What they create goes behind its siblings, is
// of the document's flavour and belongs to the service.
class AS_EXPORT IOperation : virtual public IElement {
 public:
  ~IOperation() override;
  AS_RTTI(IOperation)

  // Attribute "name"; empty when absent.
  virtual std::string getName() = 0;
  virtual void setName(const char* name) = 0;

  // The entry point that attribute "entryPoint" names: the first of exactly that name in the
  // service's program. Null when there is none, and always while the service has no program. The
  // program keeps it.
  virtual IEntryPoint* getEntryPoint() = 0;

  // Binds the operation: writes the name of `entryPoint` to attribute "entryPoint" and answers
  // true. Refuses, answering false and writing nothing, when `entryPoint` is null and when the
  // operation is bound already, that is when getEntryPoint() finds something: such an operation
  // cannot be bound to another entry point. A name that is not found does not bind it, so while the
  // service has no program every call succeeds. Only the name is kept: `entryPoint` need not be of
  // the service's program.
  virtual bool setEntryPoint(IEntryPoint* entryPoint) = 0;

  // Adds a hidden parameter behind the others and returns it. Both arguments are ignored: it maps
  // to nothing and has no value. Call its setDataItem() and setValue() for them.
  virtual IHiddenParameter* addHiddenParameter(IDataItem* dataItem, const char* value) = 0;

  // The hidden parameters, as::IHiddenParameter objects, in document order; never null.
  virtual IList* getHiddenParameters() = 0;

  // Adds a parameter behind the others and returns it. The arguments are given to its setName(),
  // setByType() and setOccurs(), which write their attributes whatever the value: a null name as an
  // empty one, an unknown direction as "io", 0 and negative occurrences as they are.
  virtual IParameter* addParameter(IParameter::BY_TYPE byType, const char* name, int occurs) = 0;

  // The parameters, as::IParameter objects, in document order; never null.
  virtual IList* getParameters() = 0;

  // Attribute "exitPoints": the number of exit points; 0 when absent or no number. A number that no
  // int holds reads as the nearest one that does.
  virtual int getExitPoints() = 0;

  // Writes the number in decimal. One over 2,147,483,647 reads as that.
  virtual void setExitPoints(unsigned int count) = 0;
};

}  // namespace as

#endif  // AS_IOPERATION_H_
