#include "xml/Place.h"

#include <optional>
#include <xercesc/framework/LocalFileInputSource.hpp>
#include <xercesc/framework/URLInputSource.hpp>
#include <xercesc/framework/XMLBuffer.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/XMLString.hpp>
#include <xercesc/util/XMLURL.hpp>
#include <xercesc/util/XMLUri.hpp>

#include "xml/Limits.h"
#include "xml/XStr.h"

using xercesc::InputSource;
using xercesc::LocalFileInputSource;
using xercesc::URLInputSource;
using xercesc::XMLBuffer;
using xercesc::XMLPlatformUtils;
using xercesc::XMLString;
using xercesc::XMLUri;
using xercesc::XMLURL;

namespace {

std::string narrow(const XMLCh* text) { return CXStr(text, false); }

int hexDigit(XMLCh c) {
  const auto lower = static_cast<XMLCh>(c | 0x20);
  if (c >= u'0' && c <= u'9') return c - u'0';
  return lower >= u'a' && lower <= u'f' ? lower - u'a' + 10 : -1;
}

// The path in a URL with its escapes resolved, each to one character; none when one is malformed.
std::optional<std::basic_string<XMLCh>> unescaped(const XMLCh* path) {
  std::basic_string<XMLCh> result;
  for (; path != nullptr && *path != 0; ++path) {
    if (*path != u'%') {
      result += *path;
      continue;
    }
    const int high = hexDigit(path[1]);
    const int low = high < 0 ? -1 : hexDigit(path[2]);
    if (low < 0) return std::nullopt;
    result += static_cast<XMLCh>(high * 16 + low);
    path += 2;
  }
  return result;
}

bool isTooLong(const XMLCh* name) { return XMLString::stringLen(name) > limits::placeLength; }

Place placeOf(const XMLURL& url) {
  auto source = std::make_unique<URLInputSource>(url);
  const XMLCh* const host = url.getHost();
  const bool local = url.getProtocol() == XMLURL::File &&
                     (host == nullptr || *host == 0 || XMLString::equals(host, u"localhost"));
  if (!local) return {Place::Kind::network, {}, std::move(source)};
  const auto path = unescaped(url.getPath());
  if (!path) return {Place::Kind::broken, {}, std::move(source)};
  return {Place::Kind::file, narrow(path->c_str()), std::move(source)};
}

Place placeOf(std::unique_ptr<InputSource> file) {
  std::string path = narrow(file->getSystemId());
  return {Place::Kind::file, std::move(path), std::move(file)};
}

}  // namespace

Place Place::ofDocument(const XMLCh* name) {
  XMLURL url(XMLPlatformUtils::fgMemoryManager);
  if (XMLURL::parse(name, url) && !url.isRelative()) return placeOf(url);
  return placeOf(std::make_unique<LocalFileInputSource>(name));
}

Place Place::ofReference(const XMLCh* base, const XMLCh* name) {
  if (name == nullptr) return {};
  if (isTooLong(name)) return {Kind::tooLong, {}, nullptr};
  XMLURL url(XMLPlatformUtils::fgMemoryManager);
  if (url.setURL(base, name, url) && !url.isRelative()) return placeOf(url);
  XMLBuffer path;
  XMLUri::normalizeURI(name, path);
  if (base == nullptr) return placeOf(std::make_unique<LocalFileInputSource>(path.getRawBuffer()));
  return placeOf(std::make_unique<LocalFileInputSource>(base, path.getRawBuffer()));
}
