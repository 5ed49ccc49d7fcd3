// What the tool says on standard error, and the check that its output arrived.
#ifndef CLI_MESSAGES_H_
#define CLI_MESSAGES_H_

#include <string>
#include <string_view>
#include <vector>

#include "as/toolkit/DocumentReader.h"

namespace cli {

// What the tool calls itself.
inline constexpr char toolName[] = "agentservices";

std::string joined(const std::vector<std::string>& words, const char* between);

// "agentservices: error: TEXT": about the call, not about a document.
void printError(std::string_view text);

// "FILE:LINE:COLUMN: error: TEXT" and, when there is one, a line "hint: HINT". A message without a
// place leaves line and column out.
void printRefusal(const as::toolkit::Refusal& refusal);

// Flushes standard output. False, after a message, when anything written to it was lost.
bool flushOutput();

}  // namespace cli

#endif  // CLI_MESSAGES_H_
