// One job, done by whoever can: a dictionary is parsed and validated, every attribute of every item
// is read once, and all is deleted. Schemas are read anew by each job.
#ifndef BENCH_WHOLEJOB_H_
#define BENCH_WHOLEJOB_H_

#include <memory>
#include <string>

#include "Reading.h"
#include "as/IProgram.h"

namespace bench {

// With the library. (How the other objects are called is the library's business, and the program is
// the caller's.)
std::unique_ptr<as::IProgram> parseDictionary(const std::string& text);
Reading readEverything(as::IProgram& program);
Reading jobOfOurs(const std::string& text);

// With what xsdcxx makes of the schema (C++/Tree). Items of one kind stand together there; the
// order in which kinds alternate is lost.
Reading jobOfBindings(const std::string& text);

// With libxml2: a tree, validated by libxml2's XML Schema.
Reading jobOfLibxml2(const std::string& text);

}  // namespace bench

#endif  // BENCH_WHOLEJOB_H_
