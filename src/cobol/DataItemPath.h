// Dotted names of data items, RECORD.GROUP.ITEM: cutting them up and following them.
#ifndef COBOL_DATAITEMPATH_H_
#define COBOL_DATAITEMPATH_H_

#include <string>
#include <vector>
#include <xercesc/util/XercesDefs.hpp>

#include "as/IDataItem.h"
#include "as/IProgram.h"

class CProgramImpl;

// The components of a dotted name, in order. Subscripts, from the first "(" on, are dropped. Every
// piece between dots counts, empty ones included, but a name that ends in a dot has no empty last
// component; an empty name has none.
std::vector<std::string> splitDataItemPath(const std::string& path);

// The data item that a dotted name leads to, from the program's top-level items down through
// groups; at every level the first item in document order that leads on wins. Null for a null
// program, an empty name, and a name that leads nowhere.
as::IDataItem* findDataItem(const std::string& path, as::IProgram* program);

// The same in a program of the library's own, without a copy of the name; null for a null name.
as::IDataItem* findDataItem(const XMLCh* path, CProgramImpl& program);

#endif  // COBOL_DATAITEMPATH_H_
