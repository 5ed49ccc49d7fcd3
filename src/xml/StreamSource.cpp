#include "xml/StreamSource.h"

#include <algorithm>
#include <utility>

StreamSource::StreamSource(const XMLCh* name, std::function<Stream()> open)
    : InputSource(name), open_(std::move(open)) {}

StreamSource::~StreamSource() = default;

xercesc::BinInputStream* StreamSource::makeStream() const { return open_().release(); }

WatchedStream::WatchedStream(StreamSource::Stream stream,
                             std::function<XMLSize_t(XMLFilePos)> allowed)
    : stream_(std::move(stream)), allowed_(std::move(allowed)) {}

WatchedStream::~WatchedStream() = default;

XMLFilePos WatchedStream::curPos() const { return stream_->curPos(); }

XMLSize_t WatchedStream::readBytes(XMLByte* bytes, XMLSize_t size) {
  const XMLSize_t got = stream_->readBytes(bytes, std::min(size, allowed_(curPos())));
  guard_.look(bytes, got);
  return got;
}

const XMLCh* WatchedStream::getContentType() const { return stream_->getContentType(); }

const XMLCh* WatchedStream::getEncoding() const { return stream_->getEncoding(); }
