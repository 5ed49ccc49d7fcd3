// Puts a name together that is met from its end on.
#ifndef SERVICE_JOINEDBACKWARDS_H_
#define SERVICE_JOINEDBACKWARDS_H_

#include <numeric>
#include <string>
#include <vector>

// The texts one behind the other, the last one first: to insert each in front of a text moves all
// that is there, once for every level of a document that nests deeply.
inline std::string joinedBackwards(const std::vector<std::string>& texts) {
  return std::accumulate(texts.rbegin(), texts.rend(), std::string());
}

#endif  // SERVICE_JOINEDBACKWARDS_H_
