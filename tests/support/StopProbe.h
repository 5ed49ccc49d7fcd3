// Looks around at the moment when the library stops the XML parser.
#ifndef TESTS_SUPPORT_STOPPROBE_H_
#define TESTS_SUPPORT_STOPPROBE_H_

#include <functional>
#include <utility>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/TransService.hpp>
#include <xercesc/util/XMLUni.hpp>

#include "as/Globals.h"

namespace test {

// Stands in for the library's transcoder, which goes right before the parser is stopped, and calls
// `look` as it goes. Converts nothing.
class StopProbe : public xercesc::XMLTranscoder {
 public:
  static void install(std::function<void()> look) {
    delete std::exchange(gUTF8Transcoder, new StopProbe(std::move(look)));
  }

  ~StopProbe() override { look_(); }

  XMLSize_t transcodeFrom(const XMLByte* /*from*/, XMLSize_t /*count*/, XMLCh* /*to*/,
                          XMLSize_t /*room*/, XMLSize_t& eaten, unsigned char* /*sizes*/) override {
    return eaten = 0;
  }
  XMLSize_t transcodeTo(const XMLCh* /*from*/, XMLSize_t /*count*/, XMLByte* /*to*/,
                        XMLSize_t /*room*/, XMLSize_t& eaten, UnRepOpts /*options*/) override {
    return eaten = 0;
  }
  bool canTranscodeTo(unsigned int /*character*/) override { return false; }

 private:
  explicit StopProbe(std::function<void()> look)
      : XMLTranscoder(xercesc::XMLUni::fgUTF8EncodingString, 1,
                      xercesc::XMLPlatformUtils::fgMemoryManager),
        look_(std::move(look)) {}

  std::function<void()> look_;
};

}  // namespace test

#endif  // TESTS_SUPPORT_STOPPROBE_H_
