// Tests of the words that the reader of entries knows, by what they are for it.
#include <gtest/gtest.h>

#include <cctype>
#include <sstream>
#include <string>

#include "toolkit/import/Keywords.h"

namespace {

using as::toolkit::Keyword;
using as::toolkit::KeywordRole;
using as::toolkit::meaningOf;

struct Row {
  KeywordRole role;
  const char* words;
};

const Row rows[] = {
    {KeywordRole::other,
     "ACCESS ALL AS ASCENDING AUTO BASED-STORAGE BY BYTE-LENGTH CALL-CONVENTION CAPACITY "
     "CD CHAINING CHARACTER CLASS COMMA COMMON COMMUNICATION CONTENT CURRENCY DATA "
     "DECIMAL-POINT DECLARATIVES DEFAULT DEPENDING DESCENDING DIVISION END ENVIRONMENT "
     "FACTORY FALSE FD FILE FILLER FOR FORMAT FROM FUNCTION GIVING ID IDENTIFICATION IN "
     "INDEXED INITIAL INITIALIZED INTERFACE KEY LEFT LENGTH LIMIT LINE LINKAGE "
     "LOCAL-STORAGE METHOD MODE NATIVE NEXT NO NUMERIC OF OMITTED ON ONLY OPTIONAL OR "
     "ORGANISATION ORGANIZATION PROCEDURE PROGRAM PROTOTYPE RAISING RANDOM RD RECORD "
     "RECURSIVE REFERENCE RELATIVE REPORT RETURNING RIGHT SCREEN SD SECTION SELECT "
     "SEPARATE SEQUENTIAL SIGNED SIZE SPECIAL-NAMES STRONG SYMBOL THROUGH THRU TIMES TO "
     "UNBOUNDED UNSIGNED USING WHEN WITH WORKING-STORAGE"},
    {KeywordRole::unit,
     "CLASS-ID DELEGATE-ID ENUM-ID FUNCTION-ID INTERFACE-ID METHOD-ID OPERATOR-ID "
     "PROGRAM-ID VALUETYPE-ID"},
    {KeywordRole::usage, "OBJECT"},
    {KeywordRole::softClause,
     "ALIGNED ANY BASED CONSTANT DATE DYNAMIC EXTERNAL-FORM GROUP-USAGE HANDLE IDENTIFIED "
     "LIKE PROPERTY SAME SQL THREAD-LOCAL TYPE TYPEDEF VARYING VOLATILE"},
    {KeywordRole::clause,
     "BLANK EXTERNAL GLOBAL JUST JUSTIFIED LEADING OCCURS PIC PICTURE REDEFINES RENAMES "
     "SIGN SYNC SYNCHRONIZED TRAILING USAGE VALUE VALUES"},
    {KeywordRole::filling, "ARE IS"},
    {KeywordRole::verb,
     "ACCEPT ADD ALLOCATE ALTER CALL CANCEL CLOSE COMMIT COMPUTE CONTINUE DELETE DIVIDE "
     "ENTRY EVALUATE EXEC EXECUTE EXIT FREE GENERATE GO GOBACK IF INITIALIZE INITIATE "
     "INSPECT INVOKE JSON MERGE MOVE MULTIPLY OPEN PERFORM RAISE READ RELEASE RETURN "
     "REWRITE ROLLBACK SEARCH SET SORT START STOP STRING SUBTRACT SUPPRESS TERMINATE "
     "UNLOCK UNSTRING USE WRITE XML"},
    {KeywordRole::figurative,
     "HIGH-VALUE HIGH-VALUES LOW-VALUE LOW-VALUES NULL NULLS QUOTE QUOTES SPACE SPACES "
     "ZERO ZEROES ZEROS"},
};

TEST(Keywords, AreKnownInLettersOfAnyCase) {
  for (const Row& row : rows) {
    std::istringstream words(row.words);
    for (std::string word; words >> word;) {
      EXPECT_NE(meaningOf(word).keyword, Keyword::name) << word;
      EXPECT_EQ(meaningOf(word).role, row.role) << word;
      for (char& c : word) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
      EXPECT_NE(meaningOf(word).keyword, Keyword::name) << word;
    }
  }
}

TEST(Keywords, AreNoOtherWords) {
  for (const char* const word : {"", "A", "PICTURES", "PI", "WORKING_STORAGE", "\xC3\x84"}) {
    EXPECT_EQ(meaningOf(word).keyword, Keyword::name) << word;
    EXPECT_EQ(meaningOf(word).role, KeywordRole::other) << word;
    EXPECT_FALSE(meaningOf(word).usage) << word;
  }
}

}  // namespace
