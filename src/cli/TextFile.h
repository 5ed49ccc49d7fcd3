// Reads files that are no documents: names, rules.
#ifndef CLI_TEXTFILE_H_
#define CLI_TEXTFILE_H_

#include <string>

namespace cli {

// What the file holds, whatever kind of file it is. Throws toolkit::RefusedDocument when it cannot
// be read or never ends.
std::string textOfFile(const std::string& file);

}  // namespace cli

#endif  // CLI_TEXTFILE_H_
