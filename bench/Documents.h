// The documents that are measured: made to a size, valid, and the same every time.
#ifndef BENCH_DOCUMENTS_H_
#define BENCH_DOCUMENTS_H_

#include <string>

namespace bench {

// What a service is made of, flavour by flavour.
struct Flavour {
  const char* word;
  const char* ns;
  const char* schema;  // The name of the file.
  const char* operationAttributes;
  int messages;  // Headers and faults in each operation, with a mapped parameter each.
};

extern const Flavour java;
// Each operation has a header and a fault.
extern const Flavour web;

// A dictionary of `items` data items, a multiple of 10: records of nine items of every kind that
// programs commonly have, with pictures and offsets, and a condition name. In every tenth the last
// item is a table whose size depends on another item.
std::string dictionary(long items);

// A dictionary of `items` items without groups: ITEM-0 and so on.
std::string flatDictionary(long items);

// A dictionary of `records` records of nine numeric fields, and an entry point for each:
// RECORD-0.FIELD-0 and so on, ENTRY-0 and so on.
std::string recordsAndEntries(long records);

// A service of `operations` operations, each with ten parameters that are mapped to the fields of
// the record of its number. It names `dictionary` as the file of its program.
std::string service(const Flavour& flavour, long operations, const std::string& dictionary);
// The mappings of each operation.
int mappingsOf(const Flavour& flavour);

// A service of one operation with `mappings` parameters, mapped to top-level items evenly spread
// among so many.
std::string spreadMappings(long mappings, long items, const std::string& dictionary);

}  // namespace bench

#endif  // BENCH_DOCUMENTS_H_
