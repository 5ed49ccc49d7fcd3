// What the tests of requests for services have in common: the request in each of its four forms,
// made in a directory of the test's own.
#ifndef TESTS_API_SERVICEREQUEST_H_
#define TESTS_API_SERVICEREQUEST_H_

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>

#include "as/AgentServices.h"
#include "support/Documents.h"
#include "support/Flavours.h"
#include "support/Requests.h"
#include "support/ServiceForms.h"
#include "support/TempDirectory.h"

// What the text of a failure is before the request.
inline constexpr char errorTextBefore[] = "as before";

// A service of the flavour for payProgram(), which names `dictionary`.
inline std::string serviceOf(const test::Flavour& flavour, const std::string& dictionary) {
  return test::serviceDocument(
      flavour.own.uri, "name=\"Pay\" dataDictFilename=\"" + dictionary + "\"",
      "<operations><operation name=\"pay\" entryPoint=\"PAY\"><parameters>"
      "<parameter name=\"title\"><mappings><mapping item=\"REQ.TITLE\"/></mappings></parameter>"
      "</parameters></operation></operations>");
}

inline std::string javaServiceOf(const std::string& dictionary) {
  return serviceOf(test::flavours::java, dictionary);
}

class ServiceRequest : public testing::TestWithParam<test::ServiceForm> {
 protected:
  // What comes of the request for the service `document`, which lies in the file named `name`.
  test::Outcome<as::IService> request(const std::string& document, bool loadProgram,
                                      const std::string& name = "service.xml") {
    directory_.write(name, document);
    return requestAgain(document, loadProgram, name);
  }

  test::Outcome<as::IService> requestAgain(const std::string& document, bool loadProgram,
                                           const std::string& name = "service.xml") {
    errorText_ = errorTextBefore;
    return test::outcomeOf(
        [&] { return GetParam().request(*services_, name, document, errorText_, loadProgram); });
  }

  // The service with its program.
  std::unique_ptr<as::IService> loaded(const std::string& document) {
    test::Outcome<as::IService> outcome = request(document, true);
    EXPECT_EQ(outcome.result, test::Result::root) << outcome.text << errorText_;
    EXPECT_EQ(errorText_, errorTextBefore);
    return std::move(outcome.root);
  }

  // Expects the request to fail like that, in the way of its form, and with this text, which a
  // failure about the namespace has none of its own for.
  void expectFailure(const test::Outcome<as::IService>& outcome, test::Result result,
                     const std::string& text) {
    EXPECT_EQ(outcome.root, nullptr);
    if (GetParam().tellsText) {
      EXPECT_EQ(outcome.result, test::Result::null);
      EXPECT_THAT(errorText_, testing::HasSubstr(text));
      EXPECT_THAT(errorText_, testing::Not(testing::HasSubstr(errorTextBefore)));
      EXPECT_NE(errorText_, "");
    } else {
      EXPECT_EQ(outcome.result, result);
      EXPECT_EQ(errorText_, errorTextBefore);
      if (result == test::Result::parseException) {
        EXPECT_THAT(outcome.text, testing::HasSubstr(text));
      }
    }
  }

  const test::CurrentDirectory directory_;
  const std::unique_ptr<as::IAgentServices> services_ = test::newServices();
  std::string errorText_;
};

#endif  // TESTS_API_SERVICEREQUEST_H_
