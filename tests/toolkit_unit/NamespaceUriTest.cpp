// Tests of which texts can be the namespaces of schemas, and of those that are made of names.
#include <gtest/gtest.h>

#include <string>

#include "toolkit/generate/NamespaceUri.h"

namespace as::toolkit::gen {
namespace {

// What lxml takes for the value of a declaration of a namespace.
TEST(NamespaceUri, TellsUrisFromOtherTexts) {
  for (const char* const text :
       {"urn:quote", "http://tempuri.org/", "http://a_b/c", "http://u:p@host:8080/x?y=1?z#part",
        "http://[::1]/x", "http://[::1]:80", "urn:a%20b%C3%A4", "urn:a*b", "quote", "//host",
        "../x", "#part", "urn:", "mailto:x@y", "urn:x:y", "a/b:c", "http://", "a+b-c.1:x",
        "urn:%Fa%aF%09"}) {
    EXPECT_TRUE(isUri(text)) << text;
  }
  for (const char* const text :
       {"a b",           "urn:a\tb",     "urn:\x7f",      "urn:\xC3\xA4", "urn:a#b#c",
        "urn:a%b",       "urn:a%2",      "urn:a%",        "urn:a%g0",     "urn:a[b]",
        "http://a[::1]", "http://[::1",  "http://[::1]a", "1:a",          ":a",
        "a_b:c",         "http://x:y/z", "urn:<a>",       "urn:\"",       "urn:{a}",
        "urn:a|b",       "urn:a\\b",     "urn:a^b",       "urn:`",        "urn:a%0g",
        "urn:a%@0",      "urn:a%/0",     "urn:a%G0",      "urn:a%:0",     "urn:a%`0",
        "a~b:c",         "a\"b:c",       "http://u[@host"}) {
    EXPECT_FALSE(isUri(text)) << text;
  }
}

TEST(NamespaceUri, IsMadeOfAnyName) {
  EXPECT_EQ(namespaceOf("MOT-PREM_1.X~"), "urn:agentservices:MOT-PREM_1.X~");
  EXPECT_EQ(namespaceOf("*/[a]%#\xC3\xA4"), "urn:agentservices:%2A%2F%5Ba%5D%25%23%C3%A4");
  for (int byte = 0; byte < 256; ++byte) {
    EXPECT_TRUE(isUri(namespaceOf(std::string(1, static_cast<char>(byte))))) << byte;
  }
}

}  // namespace
}  // namespace as::toolkit::gen
