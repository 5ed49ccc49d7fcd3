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

// Each half of what is forbidden or allowed in a scheme, a host and a port.
TEST(NamespaceUri, HoldsWhatItsPartsMayHold) {
  for (const char* const text : {"git+ssh:x", "a.b-c+1:x", "x:", "http://h:", "http://h:0/",
                                 "http://[::1]:", "http://@h", "http://a@b:1", "?a:b"}) {
    EXPECT_TRUE(isUri(text)) << text;
  }
  for (const char* const text :
       {"git,ssh:x", "git~ssh:x", "a*b:x", "+a:x", "http://h:1a/", "http://[::1]:a", "http://h:1:2",
        "http://a@b@c", "http://[a b]", "http://u[:@h", "http://h[", "a%4:", "_:x", "%G0", "%0G"}) {
    EXPECT_FALSE(isUri(text)) << text;
  }
  // The ends of the hexadecimal digits, and what stands beside them.
  for (const char* const digits : {"09", "90", "af", "fa", "AF", "FA"}) {
    EXPECT_TRUE(isUri(std::string("%") + digits)) << digits;
  }
  for (const char digit : {'/', ':', '@', 'G', '`', 'g'}) {
    EXPECT_FALSE(isUri(std::string("%0") + digit)) << digit;
    EXPECT_FALSE(isUri(std::string("%") + digit + "0")) << digit;
  }
}

TEST(NamespaceUri, IsMadeOfAnyName) {
  EXPECT_EQ(namespaceOf("MOT-PREM_1.X~"), "urn:agentservices:MOT-PREM_1.X~");
  EXPECT_EQ(partOfUri("a b"), "a%20b");
  EXPECT_EQ(namespaceOf("*/[a]%#\xC3\xA4"), "urn:agentservices:%2A%2F%5Ba%5D%25%23%C3%A4");
  for (int byte = 0; byte < 256; ++byte) {
    EXPECT_TRUE(isUri(namespaceOf(std::string(1, static_cast<char>(byte))))) << byte;
  }
}

}  // namespace
}  // namespace as::toolkit::gen
