// The entry object: runs parse requests and sorts their failures.
#ifndef FRAME_AGENTSERVICES_H_
#define FRAME_AGENTSERVICES_H_

#include <memory>
#include <optional>
#include <string>

#include "as/IAgentServices.h"
#include "xml/SchemaCache.h"

class CAgentServices : public as::IAgentServices {
 public:
  // Whether the schemas of the schema directory are compiled for each request, or kept.
  enum class Schemas { compiled, kept };

  explicit CAgentServices(Schemas schemas = Schemas::compiled);

  void setSchemaLocation(const char* dir) override;
  as::IProgram* parseCobolDD(const char* file) override;
  as::IService* parseService(const char* file, bool loadProgram) override;
  as::IService* parseService(const char* file, std::string& errorText, bool loadProgram) override;
  as::IProgram* parseCobolDD(const char* id, const unsigned char* buf, unsigned int len) override;
  as::IService* parseService(const char* id, const unsigned char* buf, unsigned int len,
                             bool loadProgram) override;
  as::IService* parseService(const char* id, const unsigned char* buf, unsigned int len,
                             std::string& errorText, bool loadProgram) override;

 private:
  // What a parse request reads: a file by name, or a buffer.
  struct Source;

  // Parses `source` with a new parser, which drives a new Handler, and answers take(handler,
  // parser).
  template <class Handler, class Take>
  auto read(const Source& source, const Take& take);

  as::IProgram* parseProgram(const Source& source);
  // Null when the document makes no program, and when the parser gave up half-way without a word:
  // then `isWhole` becomes false.
  std::unique_ptr<as::IProgram> readProgram(const Source& source, bool& isWhole);
  as::IService* parseServiceDocument(const Source& source, bool loadProgram);
  as::IService* parseServiceDocument(const Source& source, std::string& errorText,
                                     bool loadProgram);

  std::string schemaDirectory_;
  std::optional<SchemaCache> schemas_;
};

// Starts the XML parser library and creates the transcoder; 1 on success, 0 on failure.
int InitXerces();
// Deletes the transcoder and stops the XML parser library.
void AtExit();

#endif  // FRAME_AGENTSERVICES_H_
