// Tests of the exception classes as a client meets them.
#include <gtest/gtest.h>

#include <exception>
#include <memory>
#include <string>
#include <type_traits>

#include "as/AgentServices.h"
#include "support/Requests.h"

namespace {

TEST(Exception, CarriesItsText) {
  const as::CASException exception("what went wrong");
  EXPECT_EQ(exception.getErrorText(), "what went wrong");
}

TEST(Exception, AssignmentCopiesTheText) {
  as::CASException first("one");
  as::CASException second("two");
  first = second;
  EXPECT_EQ(first.getErrorText(), "two");
  EXPECT_EQ(second.getErrorText(), "two");
}

TEST(ParseException, CarriesItsSixValues) {
  const as::CASParseException exception(1, 2, 3, "text", "public", "system");
  EXPECT_EQ(exception.getErrorCode(), 1);
  EXPECT_EQ(exception.getLineNum(), 2);
  EXPECT_EQ(exception.getColNum(), 3);
  EXPECT_EQ(exception.getErrorText(), "text");
  EXPECT_EQ(exception.getPublicId(), "public");
  EXPECT_EQ(exception.getSystemId(), "system");
}

TEST(ParseException, AssignmentCopiesAllSix) {
  as::CASParseException first(1, 2, 3, "text", "public", "system");
  const as::CASParseException second(4, 5, 6, "other", "p", "s");
  first = second;
  EXPECT_EQ(first.getErrorCode(), 4);
  EXPECT_EQ(first.getLineNum(), 5);
  EXPECT_EQ(first.getColNum(), 6);
  EXPECT_EQ(first.getErrorText(), "other");
  EXPECT_EQ(first.getPublicId(), "p");
  EXPECT_EQ(first.getSystemId(), "s");
}

// Each has to be caught by its own type.
TEST(Exceptions, AreUnrelatedValueClasses) {
  EXPECT_FALSE((std::is_base_of_v<std::exception, as::CASException>));
  EXPECT_FALSE((std::is_base_of_v<std::exception, as::CASParseException>));
  EXPECT_FALSE((std::is_base_of_v<std::exception, as::CASInvalidNamespaceException>));
  EXPECT_FALSE((std::is_base_of_v<as::CASException, as::CASParseException>));
  EXPECT_FALSE((std::is_base_of_v<as::CASException, as::CASInvalidNamespaceException>));
  EXPECT_FALSE(std::is_polymorphic_v<as::CASException>);
  EXPECT_FALSE(std::is_polymorphic_v<as::CASParseException>);
  EXPECT_FALSE(std::is_polymorphic_v<as::CASInvalidNamespaceException>);
  EXPECT_TRUE(std::is_empty_v<as::CASInvalidNamespaceException>);
}

// Asks for the dictionary `document`.
void request(const std::string& document, const char* id) {
  const std::unique_ptr<as::IProgram> program(
      test::newServices()->parseCobolDD(id, test::bytesOf(document), test::lengthOf(document)));
}

// A document of which line 3, column 7 is where the parser meets something impossible.
TEST(ParseException, TellsWhereAndWhatInTheDocument) {
  try {
    request("<?xml version='1.0'?>\n<program\n a='1'<", "orders.xml");
    FAIL() << "no exception";
  } catch (const as::CASParseException& exception) {
    EXPECT_EQ(exception.getLineNum(), 3);
    EXPECT_EQ(exception.getColNum(), 7);
    EXPECT_EQ(exception.getSystemId(), "orders.xml");
    EXPECT_EQ(exception.getPublicId(), "");
    EXPECT_NE(exception.getErrorText(), "");
    EXPECT_GT(exception.getErrorCode(), 0);
  }
}

TEST(Exceptions, AreNotCaughtAsStandardOnes) {
  const auto caughtAsStandard = [](const std::string& document) {
    try {
      request(document, "test.xml");
    } catch (const std::exception&) {
      return true;
    } catch (const as::CASParseException&) {
      return false;
    } catch (const as::CASInvalidNamespaceException&) {
      return false;
    }
    ADD_FAILURE() << "nothing thrown";
    return true;
  };
  EXPECT_FALSE(caughtAsStandard("<"));
  EXPECT_FALSE(caughtAsStandard("<program/>"));
}

}  // namespace
