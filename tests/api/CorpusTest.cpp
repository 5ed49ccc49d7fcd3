// Tests of the documents that the fuzz targets start from: whatever they are, every request ends
// with a model, with nothing, or with one of its exceptions.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include "support/Documents.h"
#include "support/Model.h"
#include "support/ModelText.h"
#include "support/Requests.h"
#include "support/TempDirectory.h"

namespace {

using test::outcomeOf;

std::vector<std::string> documentsOf(const std::string& subject) {
  std::vector<std::string> files;
  for (const auto& entry : std::filesystem::directory_iterator(AS_SEEDS_DIR "/" + subject)) {
    files.push_back(entry.path().string());
  }
  std::sort(files.begin(), files.end());
  return files;
}

std::vector<std::string> documents() {
  std::vector<std::string> all = documentsOf("dictionary");
  for (const std::string& file : documentsOf("service")) all.push_back(file);
  return all;
}

TEST(Corpus, HasDocumentsOfBothKinds) {
  EXPECT_FALSE(documentsOf("dictionary").empty());
  EXPECT_FALSE(documentsOf("service").empty());
}

class CorpusDeathTest : public testing::TestWithParam<std::string> {};

// Makes every request that reads the file, and ends the process well.
[[noreturn]] void requestAll(as::IAgentServices& services, const std::string& file) {
  const std::string text = test::contentOf(file);
  const unsigned char* const bytes = test::bytesOf(text);
  const unsigned int length = test::lengthOf(text);
  outcomeOf([&] { return services.parseCobolDD(file.c_str()); });
  outcomeOf([&] { return services.parseCobolDD(file.c_str(), bytes, length); });
  for (const bool loadProgram : {false, true}) {
    std::string errorText;
    const auto outcome =
        outcomeOf([&] { return services.parseService(file.c_str(), loadProgram); });
    if (outcome.root) test::modelText(*outcome.root);
    outcomeOf([&] { return services.parseService(file.c_str(), errorText, loadProgram); });
    outcomeOf([&] { return services.parseService(file.c_str(), bytes, length, loadProgram); });
    outcomeOf(
        [&] { return services.parseService(file.c_str(), bytes, length, errorText, loadProgram); });
  }
  std::_Exit(0);
}

TEST_P(CorpusDeathTest, EndsInAModelOrAnException) {
  EXPECT_EXIT(requestAll(*test::newServices(), GetParam()), testing::ExitedWithCode(0), "");
}

TEST_P(CorpusDeathTest, EndsInAModelOrAnExceptionWithoutASchemaDirectory) {
  const auto services = test::servicesWithoutSchemas();
  EXPECT_EXIT(requestAll(*services, GetParam()), testing::ExitedWithCode(0), "");
}

INSTANTIATE_TEST_SUITE_P(Documents, CorpusDeathTest, testing::ValuesIn(documents()),
                         [](const auto& row) {
                           std::string name = row.param.substr(sizeof(AS_SEEDS_DIR));
                           for (char& c : name) {
                             if (std::isalnum(static_cast<unsigned char>(c)) == 0) c = '_';
                           }
                           return name;
                         });

}  // namespace
