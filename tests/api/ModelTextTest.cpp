// Tests that the texts by which models are compared tell different models apart.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/ModelText.h"
#include "support/Requests.h"
#include "support/ServiceSamples.h"
#include "support/XmlText.h"

namespace {

using test::modelText;
using test::parseService;
using test::ServiceSample;

TEST(ModelText, TellsDocumentsApart) {
  const auto textOf = [](const std::string& document) {
    return modelText(*parseService(document));
  };
  for (const ServiceSample& sample : test::samples::all) {
    SCOPED_TRACE(sample.flavour.label);
    const std::string document = test::rootOf(sample, test::everything(sample));
    const std::string text = textOf(document);
    // Every attribute, one by one, by itself.
    int tried = 0;
    for (std::size_t at = document.find(" name=\"Pay\""); at != std::string::npos;
         at = document.find(" ", at + 1)) {
      const std::size_t quote = document.find('"', at);
      const std::size_t end = document.find('"', quote + 1) + 1;
      if (document.compare(at, 7, " value=") == 0 && end == quote + 2) continue;  // Reads the same.
      const std::string without = document.substr(0, at) + document.substr(end);
      // Not shown beside a reference that leads nowhere.
      if (document.compare(at, 12, " name=\"lost\"") == 0) continue;
      // A property must have its name.
      if (document.rfind("<property", at) + 9 == at && document[at + 1] == 'n') continue;
      SCOPED_TRACE(document.substr(at, end - at));
      EXPECT_NE(textOf(without), text);
      tried++;
    }
    EXPECT_GT(tried, 40);
  }
}

TEST(ModelText, TellsTheFlavoursApart) {
  std::vector<std::string> all;
  for (const ServiceSample& sample : test::samples::all) {
    const std::string empty =
        test::rootOf(sample,
                     "<operations><operation><parameters><parameter/></parameters></operation>"
                     "</operations>");
    const std::string text = modelText(*parseService(
        test::replaced(empty, std::string(" implementation=\"") + sample.flavour.word + "\"", "")));
    EXPECT_THAT(all, testing::Not(testing::Contains(text))) << sample.flavour.label;
    all.push_back(text);
  }
}

}  // namespace
