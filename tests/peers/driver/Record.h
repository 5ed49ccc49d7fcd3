// What a child tells its parent about the file that it was given: in memory that both share, so
// that whatever ends the child leaves it behind.
#ifndef TESTS_PEERS_DRIVER_RECORD_H_
#define TESTS_PEERS_DRIVER_RECORD_H_

#include <array>
#include <cstddef>
#include <string>

namespace peers {

// What the file is to a request.
enum Place { document, content, namedSchema, namedProgram, shippedSchema };
inline constexpr std::size_t placeCount = 5;
inline constexpr std::array<const char*, placeCount> placeNames = {
    "a document", "the content of a document of ours", "a schema that a document names",
    "a program that a service names", "one of the schema directory"};

// The schema directory is the client's own: no bounds of time and memory are promised for what a
// schema in it comes to.
inline bool hasBounds(Place place) { return place != shippedSchema; }

// How a request ends that does not misbehave.
enum Outcome { model, told, parseException, namespaceException, null, exception };
inline constexpr std::size_t outcomeCount = 6;
inline constexpr std::array<const char*, outcomeCount> outcomeNames = {
    "model", "told in text", "parse exc.", "namespace exc.", "null", "other exc."};

struct Record {
  using Counts = std::array<std::array<unsigned, outcomeCount>, placeCount>;

  // Texts that are too long are cut.
  template <std::size_t Size>
  static void put(std::array<char, Size>& to, const std::string& text) {
    to[text.copy(to.data(), Size - 1)] = '\0';
  }

  Counts outcomes = {};
  std::array<char, 200> request = {};  // The request under way, or the last one, and ...
  Place place = document;              // ... what the file is to it.
  std::size_t next = 0;                // The number of the request behind it.
  bool done = false;                   // All requests were made.
  // The first request of each misbehaviour; nothing for none.
  std::array<char, 200> connected = {};
  std::array<char, 200> exhausted = {};
  std::array<char, 200> foreignException = {};
  bool timedOut = false;
  bool leaked = false;
  // The first requests that ended in nothing, or in an exception that tells nothing.
  std::array<char, 1000> untold = {};
};

}  // namespace peers

#endif  // TESTS_PEERS_DRIVER_RECORD_H_
