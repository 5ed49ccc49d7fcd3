// All that can be asked of the library about one file.
#ifndef TESTS_PEERS_DRIVER_REQUESTS_H_
#define TESTS_PEERS_DRIVER_REQUESTS_H_

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "Peer.h"
#include "Record.h"
#include "as/AgentServices.h"

namespace peers {

struct Request {
  Place place;
  std::string name;
  // Throws what the library throws.
  std::function<Outcome()> make;
};

class Requests {
 public:
  // `schemas` is the folder of the shipped schemas; documents are written below `work`, a folder
  // made by prepareFolder.
  Requests(const Peer& peer, std::filesystem::path schemas, std::filesystem::path work);

  const std::vector<Request>& all() const { return all_; }

  // Makes the folders that the requests about any file need.
  static void prepareFolder(const std::filesystem::path& schemas,
                            const std::filesystem::path& work);

 private:
  struct Document;
  class Asker;

  void asDocument();
  void asContent();
  void asNamedSchema();
  void asNamedProgram();
  void asShippedSchema();

  void addProgram(Place place, const Asker& asker, const Document& document);
  void addService(Place place, const Asker& asker, const Document& document, bool loadProgram);
  void addTellingService(const Asker& asker, const Document& document, bool loadProgram);

  const Peer& peer_;
  const std::filesystem::path schemas_;
  const std::filesystem::path work_;
  std::vector<Request> all_;
};

}  // namespace peers

#endif  // TESTS_PEERS_DRIVER_REQUESTS_H_
