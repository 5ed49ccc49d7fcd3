// Gives the XML parser what its owner opens, piece by piece, while the owner looks on.
#ifndef XML_STREAMSOURCE_H_
#define XML_STREAMSOURCE_H_

#include <functional>
#include <memory>
#include <xercesc/sax/InputSource.hpp>
#include <xercesc/util/BinInputStream.hpp>

#include "xml/Utf8Guard.h"

class StreamSource : public xercesc::InputSource {
 public:
  using Stream = std::unique_ptr<xercesc::BinInputStream>;

  // `open` makes a stream, each time that the parser begins to read; null for what cannot be
  // opened. `name` is what messages call it, or null.
  StreamSource(const XMLCh* name, std::function<Stream()> open);
  ~StreamSource() override;

  // The parser owns what it gets.
  xercesc::BinInputStream* makeStream() const override;

 private:
  const std::function<Stream()> open_;
};

// A stream of at most so many bytes at a time as `allowed` says, which is called in front of each
// piece, with the place that has been reached, and may throw, to end the parse. In UTF-8, bytes
// that it cannot have are such as the parser refuses.
class WatchedStream : public xercesc::BinInputStream {
 public:
  WatchedStream(StreamSource::Stream stream, std::function<XMLSize_t(XMLFilePos)> allowed);
  ~WatchedStream() override;

  XMLFilePos curPos() const override;
  XMLSize_t readBytes(XMLByte* bytes, XMLSize_t size) override;
  const XMLCh* getContentType() const override;
  const XMLCh* getEncoding() const override;

 private:
  const StreamSource::Stream stream_;
  const std::function<XMLSize_t(XMLFilePos)> allowed_;
  Utf8Guard guard_;
};

#endif  // XML_STREAMSOURCE_H_
