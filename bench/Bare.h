// The XML parser by itself: what reading and writing a document takes without a model.
#ifndef BENCH_BARE_H_
#define BENCH_BARE_H_

#include <memory>
#include <string>
#include <xercesc/parsers/XercesDOMParser.hpp>

namespace bench {

// What becomes of blanks between elements where the schema lets nothing but elements in.
enum class Blanks {
  kept,     // As the parser does unless told.
  dropped,  // As the library has dictionaries parsed.
};

// The document read into a tree and validated by the schema file of that name, as the library has
// it done.
std::unique_ptr<xercesc::XercesDOMParser> parseBare(const std::string& text,
                                                    const std::string& schema, Blanks blanks);

// The seconds that the parser's own writer takes for the tree of `text`.
double secondsToWriteBare(const std::string& text);

}  // namespace bench

#endif  // BENCH_BARE_H_
