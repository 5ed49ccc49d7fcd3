// Looks around at the moment when the library stops the XML parser.
#ifndef TESTS_SUPPORT_STOPPROBE_H_
#define TESTS_SUPPORT_STOPPROBE_H_

#include <functional>
#include <memory>
#include <utility>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/TransService.hpp>

#include "as/Globals.h"

namespace test {

// Wraps the library's transcoder, which goes right before the parser is stopped, and calls `look`
// as it goes.
class StopProbe : public xercesc::XMLTranscoder {
 public:
  static void install(std::function<void()> look) {
    gUTF8Transcoder = new StopProbe(gUTF8Transcoder, std::move(look));
  }

  ~StopProbe() override { look_(); }

  XMLSize_t transcodeFrom(const XMLByte* from, XMLSize_t count, XMLCh* to, XMLSize_t room,
                          XMLSize_t& eaten, unsigned char* sizes) override {
    return wrapped_->transcodeFrom(from, count, to, room, eaten, sizes);
  }
  XMLSize_t transcodeTo(const XMLCh* from, XMLSize_t count, XMLByte* to, XMLSize_t room,
                        XMLSize_t& eaten, UnRepOpts options) override {
    return wrapped_->transcodeTo(from, count, to, room, eaten, options);
  }
  bool canTranscodeTo(unsigned int character) override {
    return wrapped_->canTranscodeTo(character);
  }

 private:
  StopProbe(xercesc::XMLTranscoder* wrapped, std::function<void()> look)
      : XMLTranscoder(wrapped->getEncodingName(), wrapped->getBlockSize(),
                      xercesc::XMLPlatformUtils::fgMemoryManager),
        wrapped_(wrapped),
        look_(std::move(look)) {}

  const std::unique_ptr<xercesc::XMLTranscoder> wrapped_;
  const std::function<void()> look_;
};

}  // namespace test

#endif  // TESTS_SUPPORT_STOPPROBE_H_
