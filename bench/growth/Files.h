// Documents as files, and the models that are read from them.
#ifndef BENCH_GROWTH_FILES_H_
#define BENCH_GROWTH_FILES_H_

#include <filesystem>
#include <memory>
#include <string>

#include "Documents.h"
#include "as/AgentServices.h"
#include "as/toolkit/Toolkit.h"

namespace growth {

// A document in a folder of its own, which goes with it.
class Files {
 public:
  Files(const Document& document, int n);
  ~Files();
  Files(const Files&) = delete;
  Files& operator=(const Files&) = delete;

  std::string dictionary() const { return (folder_ / "dictionary.xml").string(); }
  std::string service() const { return (folder_ / "service.xml").string(); }
  // A copy of `file` where every `what` has become `with`.
  std::string changed(const std::string& file, const std::string& what,
                      const std::string& with) const;

 private:
  std::filesystem::path folder_;
};

const as::toolkit::DocumentReader& reader();

// Each model is shared by what is done with it.
using Program = std::shared_ptr<as::IProgram>;
using Service = std::shared_ptr<as::IService>;

Program readProgram(const Files& files);
Service readService(const Files& files);

template <class T>
T* at(as::IList* list, int i) {
  return as::interface_cast<T>(list->getItem(i));
}

}  // namespace growth

#endif  // BENCH_GROWTH_FILES_H_
