// Finds the data items of a program by their names, from the top level down through groups.
#ifndef COBOL_DATAITEMINDEX_H_
#define COBOL_DATAITEMINDEX_H_

#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "cobol/NameIndex.h"
#include "xml/List.h"

// What a group holds is looked at when something below it is first looked for: most programs are
// asked for little of what they have. Groups that have all names from the outermost one on in
// common are looked at together, in the order of the document.
class DataItemIndex {
 public:
  // Null for a program without items.
  explicit DataItemIndex(CList* topLevel) : topLevel_(topLevel) {}

  // The entry of the items called `name` in the groups of `around`, null for the top level; null
  // when none is called so. Of no use any more when it has thrown.
  const NameIndex::Entry* find(const NameIndex::Entry* around, NameIndex::View name);

 private:
  // Looks at what stands in the groups of an entry, null for the top level.
  void lookInto(const NameIndex::Entry* around);
  void add(const NameIndex::Entry* around, CList* members);

  CList* topLevel_;
  NameIndex names_;
  std::unordered_set<const NameIndex::Entry*> seen_;  // Those that have been looked into.
  // The items of an entry behind the first one, which nearly all have alone.
  std::unordered_map<const NameIndex::Entry*, std::vector<CElementImpl*>> others_;
};

#endif  // COBOL_DATAITEMINDEX_H_
