// One job, done by whoever can: a dictionary is parsed and validated, every attribute of every item
// is read once, and all is deleted. Schemas are read anew by each job but a keeper's.
#ifndef BENCH_WHOLEJOB_H_
#define BENCH_WHOLEJOB_H_

#include <memory>
#include <string>

#include "Reading.h"
#include "as/IProgram.h"

namespace bench {

// What does the job again and again, and has read the schema before.
class Keeper {
 public:
  Keeper() = default;
  virtual ~Keeper() = default;
  Keeper(const Keeper&) = delete;
  Keeper& operator=(const Keeper&) = delete;

  virtual Reading job(const std::string& text) = 0;
};

// With the library. (How the other objects are called is the library's business, and the program is
// the caller's.)
std::unique_ptr<as::IProgram> parseDictionary(const std::string& text);
Reading readEverything(as::IProgram& program);
Reading jobOfOurs(const std::string& text);
// Through the entry object that keeps schemas.
std::unique_ptr<Keeper> keeperOfOurs();

// With what xsdcxx makes of the schema (C++/Tree). Items of one kind stand together there; the
// order in which kinds alternate is lost.
Reading jobOfBindings(const std::string& text);
// With a parser of the client's own that holds the schema, set up as those classes do it.
std::unique_ptr<Keeper> keeperOfBindings();

// With libxml2: a tree, validated by libxml2's XML Schema.
Reading jobOfLibxml2(const std::string& text);

}  // namespace bench

#endif  // BENCH_WHOLEJOB_H_
