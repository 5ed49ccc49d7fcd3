// What libFuzzer calls to change inputs. Linked into the targets whose inputs are documents.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>

#include "Mutator.h"

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t maxSize);

namespace {

std::string textOf(const std::uint8_t* data, std::size_t size) {
  return std::string(reinterpret_cast<const char*>(data), size);
}

// Makes `text` the input; returns its size, 0 when there is no room.
std::size_t store(const std::string& text, std::uint8_t* data, std::size_t maxSize) {
  if (text.empty() || text.size() > maxSize) return 0;
  std::memcpy(data, text.data(), text.size());
  return text.size();
}

}  // namespace

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size,
                                               std::size_t maxSize, unsigned int seed) {
  fuzz::Random random(seed);
  // Bytes now and then, for the sake of the parser's own edges.
  if (random.chance(4)) return LLVMFuzzerMutate(data, size, maxSize);
  const fuzz::Document original = fuzz::readTree(textOf(data, size));
  for (int attempt = 0; attempt < 5; attempt++) {
    fuzz::Document document = original;
    fuzz::Mutator(random, fuzz::shape).mutate(document);
    const std::size_t stored = store(fuzz::printTree(document), data, maxSize);
    if (stored != 0) return stored;
  }
  return LLVMFuzzerMutate(data, size, maxSize);
}

extern "C" std::size_t LLVMFuzzerCustomCrossOver(const std::uint8_t* data1, std::size_t size1,
                                                 const std::uint8_t* data2, std::size_t size2,
                                                 std::uint8_t* out, std::size_t maxOutSize,
                                                 unsigned int seed) {
  fuzz::Random random(seed);
  fuzz::Document document = fuzz::readTree(textOf(data1, size1));
  fuzz::Mutator(random, fuzz::shape).cross(document, fuzz::readTree(textOf(data2, size2)));
  return store(fuzz::printTree(document), out, maxOutSize);
}
