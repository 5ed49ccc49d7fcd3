// A library that does nothing but to start the XML parser, as ours does, when it is loaded.
#include <xercesc/util/PlatformUtils.hpp>

namespace {

[[gnu::constructor]] void start() { xercesc::XMLPlatformUtils::Initialize(); }

}  // namespace
