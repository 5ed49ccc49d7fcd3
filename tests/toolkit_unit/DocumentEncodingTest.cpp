// Tests of how the bytes of a document become text.
#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "toolkit/outline/DocumentEncoding.h"

using as::toolkit::documentInUtf8;

namespace {

struct Row {
  std::string bytes;
  std::optional<std::string> text;  // Nothing for what nobody can read.
};

TEST(DocumentEncoding, IsToldByMarksDeclarationsAndFirstBytes) {
  const std::string latin = "<?xml version='1.0' encoding='ISO-8859-1'?><a b='";
  for (const Row& row : {
           Row{"<a/>", "<a/>"},
           Row{"<a b='\xC3\xA4'/>", "<a b='\xC3\xA4'/>"},
           Row{latin + "\xE4'/>", latin + "\xC3\xA4'/>"},
           Row{{"\xFF\xFE<\0a\0/\0>\0", 10}, "<a/>"},
           Row{{"\xFE\xFF\0<\0a\0/\0>", 10}, "<a/>"},
           Row{"<?xml version='1.0' encoding='none such'?><a/>", std::nullopt},
       }) {
    EXPECT_EQ(documentInUtf8(row.bytes), row.text) << row.bytes;
  }
}

}  // namespace
