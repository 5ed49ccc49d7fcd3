// Tests of writing services and reading them back: nothing of the model may get lost or change on
// the way, whatever the document looks like, and writing again must change nothing more.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "api/RoundTripDocuments.h"
#include "as/AgentServices.h"
#include "support/EditService.h"
#include "support/Labels.h"
#include "support/ModelText.h"
#include "support/Requests.h"
#include "support/TempDirectory.h"
#include "support/XmlText.h"

namespace {

using test::commentsOf;
using test::declarationsOf;
using test::edit;
using test::elementsWithout;
using test::labelOf;
using test::modelText;
using test::parseService;
using test::QualifiedNames;
using test::written;

// Unedited.

class RoundTrip : public testing::TestWithParam<RoundTripDocument> {
 protected:
  // What the tree declares and tells beside the model must be in `text` as in the source.
  static void expectDeclarationsAndComments(const std::string& text) {
    const std::string source = GetParam().source();
    const std::vector<std::string> declarations = declarationsOf(text);
    EXPECT_EQ(declarations, declarationsOf(source));
    EXPECT_THAT(declarations, testing::Not(testing::Contains("xmlns=")));
    EXPECT_EQ(commentsOf(text), commentsOf(source));
  }

  const std::unique_ptr<as::IService> service_ = parseService(GetParam().bytes());
};

TEST_P(RoundTrip, GivesTheSameModel) {
  const std::string before = modelText(*service_);
  const std::string text = written(*service_);
  EXPECT_EQ(modelText(*service_), before) << "writing leaves the model as it was";
  EXPECT_EQ(modelText(*parseService(text)), before);
}

TEST_P(RoundTrip, WritesTheSameEveryTimeAndOnceReadBack) {
  const std::string once = written(*service_);
  EXPECT_EQ(written(*service_), once);
  EXPECT_EQ(written(*service_), once);
  const auto again = parseService(once);
  EXPECT_EQ(written(*again), once);
}

TEST_P(RoundTrip, KeepsNamespacesCommentsAndInstructions) {
  expectDeclarationsAndComments(written(*service_));
}

TEST_P(RoundTrip, ThroughAFileIsTheSame) {
  const test::TempDirectory directory;
  const std::string file = directory.path() + "/service.xml";
  as::CAgentServicesFactory::Serialize(service_.get(), file.c_str());
  EXPECT_EQ(test::contentOf(file), written(*service_));
  const auto outcome =
      test::outcomeOf([&] { return test::newServices()->parseService(file.c_str(), false); });
  ASSERT_EQ(outcome.result, test::Result::root) << outcome.text;
  EXPECT_EQ(modelText(*outcome.root), modelText(*service_));
}

INSTANTIATE_TEST_SUITE_P(Documents, RoundTrip, testing::ValuesIn(roundTripDocuments()),
                         labelOf<RoundTripDocument>);

// Edited.

class EditedRoundTrip : public RoundTrip {
 protected:
  EditedRoundTrip() { edit(*service_); }

  // The text of a model for comparing one that was edited with one that was read.
  static std::string comparable(as::IService& service) {
    return modelText(service,
                     GetParam().prefix.empty() ? QualifiedNames::shown : QualifiedNames::leftOut);
  }
};

TEST_P(EditedRoundTrip, GivesTheSameModel) {
  const auto again = parseService(written(*service_));
  EXPECT_EQ(comparable(*again), comparable(*service_));
}

TEST_P(EditedRoundTrip, WritesTheSameEveryTimeAndOnceReadBack) {
  const std::string once = written(*service_);
  EXPECT_EQ(written(*service_), once);
  const auto again = parseService(once);
  EXPECT_EQ(written(*again), once);
}

TEST_P(EditedRoundTrip, KeepsNamespacesCommentsAndInstructions) {
  expectDeclarationsAndComments(written(*service_));
}

// What was laid out already is taken apart by what is added, and laid out anew.
TEST_P(EditedRoundTrip, GivesTheSameModelWhenWrittenBeforeToo) {
  const auto other = parseService(GetParam().bytes());
  written(*other);
  edit(*other);
  EXPECT_EQ(modelText(*other), modelText(*service_));
  const std::string once = written(*other);
  const auto again = parseService(once);
  EXPECT_EQ(comparable(*again), comparable(*service_));
  EXPECT_EQ(written(*again), once);
}

// What was read back can be gone on with like what was edited first.
TEST_P(EditedRoundTrip, GivesTheSameModelWhenEditedAgain) {
  const auto again = parseService(written(*service_));
  edit(*service_);
  edit(*again);
  const std::string expected = comparable(*service_);
  EXPECT_EQ(comparable(*again), expected);
  EXPECT_EQ(comparable(*parseService(written(*again))), expected);
}

INSTANTIATE_TEST_SUITE_P(Documents, EditedRoundTrip, testing::ValuesIn(roundTripDocuments()),
                         labelOf<RoundTripDocument>);

// Under a prefix.

class PrefixedRoundTrip : public EditedRoundTrip {};

TEST_P(PrefixedRoundTrip, WritesEveryElementUnderThePrefix) {
  EXPECT_THAT(elementsWithout(GetParam().prefix, written(*service_)), testing::IsEmpty());
}

TEST_P(PrefixedRoundTrip, DoesNotPrefixAttributes) {
  EXPECT_EQ(written(*service_).find(" " + GetParam().prefix), std::string::npos);
}

INSTANTIATE_TEST_SUITE_P(Documents, PrefixedRoundTrip, testing::ValuesIn(prefixedDocuments()),
                         labelOf<RoundTripDocument>);

}  // namespace
