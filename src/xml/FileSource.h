// Gives the XML parser a file that has been opened already.
#ifndef XML_FILESOURCE_H_
#define XML_FILESOURCE_H_

#include <memory>
#include <xercesc/sax/InputSource.hpp>

#include "xml/LocalFile.h"

class FileSource : public xercesc::InputSource {
 public:
  // `name` is what messages call it.
  FileSource(std::shared_ptr<const LocalFile> file, const XMLCh* name);
  ~FileSource() override;

  // Null for a file that could not be opened: the parser tells. May be called again, and every
  // stream of a regular file gives it from its start; any other can be read once.
  xercesc::BinInputStream* makeStream() const override;

 private:
  const std::shared_ptr<const LocalFile> file_;
};

#endif  // XML_FILESOURCE_H_
