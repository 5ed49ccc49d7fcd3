// Prints a service as a tree for reading.
#ifndef TOOLKIT_RENDER_SERVICEPRINTER_H_
#define TOOLKIT_RENDER_SERVICEPRINTER_H_

#include <iosfwd>

namespace as {
class IService;
}

// Sections come in the order of the document; those without members are left out. With its program
// the service is shown with the data items that its mappings lead to.
void printService(std::ostream& out, as::IService& service);

#endif  // TOOLKIT_RENDER_SERVICEPRINTER_H_
