// The names of elements and attributes of a document that is read, each once.
#ifndef XML_NAMEPOOL_H_
#define XML_NAMEPOOL_H_

#include <array>
#include <cstddef>
#include <span>
#include <xercesc/dom/impl/DOMDocumentImpl.hpp>

// A document has the same few names over and over. A name that the model asks for is kept as the
// very text that the model asks with, so that whoever looks for it need not compare the letters;
// any other is pooled by the document.
class NamePool {
 public:
  // The names that will be asked for: texts that outlive every document.
  void expect(std::span<const XMLCh* const> names) {
    for (const XMLCh* const name : names) {
      // Those of the root have been read by now.
      if (const XMLCh** const place = placeOf(name)) *place = name;
    }
  }

  // The name as it is kept; one that has no place here is the document's alone.
  const XMLCh* pooled(const XMLCh* name, xercesc::DOMDocumentImpl& document) {
    const XMLCh** const place = placeOf(name);
    if (place == nullptr) return document.getPooledString(name);
    if (*place == nullptr) *place = document.getPooledString(name);
    return *place;
  }

 private:
  static constexpr std::size_t size = 256;
  static constexpr std::size_t tries = 12;  // More than any word of the library's needs.

  static bool areEqual(const XMLCh* one, const XMLCh* other) {
    for (; *one == *other; one++, other++) {
      if (*one == 0) return true;
    }
    return false;
  }

  // Where the name stands, or is to stand; null for nowhere.
  const XMLCh** placeOf(const XMLCh* name) {
    const unsigned first = name[0];
    const unsigned second = first == 0 ? 0U : name[1];
    const unsigned third = second == 0 ? 0U : name[2];
    const unsigned fourth = third == 0 ? 0U : name[3];
    const std::size_t start = first + 5 * second + 11 * third + 29 * fourth;
    for (std::size_t i = 0; i < tries; i++) {
      const XMLCh** const place = &names_[(start + i) % size];
      if (*place == nullptr || areEqual(*place, name)) return place;
    }
    return nullptr;
  }

  std::array<const XMLCh*, size> names_{};
};

#endif  // XML_NAMEPOOL_H_
