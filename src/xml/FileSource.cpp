#include "xml/FileSource.h"

#include <utility>
#include <xercesc/util/BinInputStream.hpp>

namespace {

class FileStream : public xercesc::BinInputStream {
 public:
  explicit FileStream(std::shared_ptr<const LocalFile> file) : file_(std::move(file)) {}

  XMLFilePos curPos() const override { return place_; }
  XMLSize_t readBytes(XMLByte* bytes, XMLSize_t size) override {
    const std::size_t got = file_->read(bytes, size, place_);
    place_ += got;
    return got;
  }
  const XMLCh* getContentType() const override { return nullptr; }

 private:
  const std::shared_ptr<const LocalFile> file_;
  std::size_t place_ = 0;
};

}  // namespace

FileSource::FileSource(std::shared_ptr<const LocalFile> file, const XMLCh* name)
    : InputSource(name), file_(std::move(file)) {}

FileSource::~FileSource() = default;

xercesc::BinInputStream* FileSource::makeStream() const {
  if (file_->kind() == LocalFile::Kind::missing) return nullptr;
  return new FileStream(file_);
}
