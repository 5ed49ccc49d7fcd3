// Tests of the words that begin what is no code of a program.
#include <gtest/gtest.h>

#include <string>

#include "toolkit/import/StatementWords.h"

namespace {

using as::toolkit::endsCommentEntry;
using as::toolkit::Statement;
using as::toolkit::statementOf;

TEST(StatementWords, BeginWhatTheySay) {
  struct Row {
    const char* word;
    Statement statement;
    Statement within;  // Of a line.
  };
  for (const Row& row : {
           Row{"COPY", Statement::copy, Statement::copy},
           Row{"copy", Statement::copy, Statement::copy},
           Row{"EXEC", Statement::exec, Statement::exec},
           Row{"EXECUTE", Statement::exec, Statement::exec},
           Row{"EJECT", Statement::eject, Statement::none},
           Row{"SKIP1", Statement::eject, Statement::none},
           Row{"SKIP2", Statement::eject, Statement::none},
           Row{"SKIP3", Statement::eject, Statement::none},
           Row{"TITLE", Statement::title, Statement::none},
           Row{"BASIS", Statement::basis, Statement::none},
           Row{"INSERT", Statement::insert, Statement::none},
           Row{"DELETE", Statement::insert, Statement::none},
           Row{"++INCLUDE", Statement::include, Statement::none},
           Row{"-INC", Statement::include, Statement::none},
           Row{"ID", Statement::identification, Statement::none},
           Row{"IDENTIFICATION", Statement::identification, Statement::none},
           Row{"PROGRAM-ID", Statement::identification, Statement::none},
           Row{"ENVIRONMENT", Statement::otherDivision, Statement::none},
           Row{"DATA", Statement::otherDivision, Statement::none},
           Row{"PROCEDURE", Statement::otherDivision, Statement::none},
           Row{"AUTHOR", Statement::commentEntry, Statement::none},
           Row{"INSTALLATION", Statement::commentEntry, Statement::none},
           Row{"DATE-WRITTEN", Statement::commentEntry, Statement::none},
           Row{"DATE-COMPILED", Statement::commentEntry, Statement::none},
           Row{"SECURITY", Statement::commentEntry, Statement::none},
           Row{"remarks", Statement::commentEntry, Statement::none},
           Row{"SKIP4", Statement::none, Statement::none},
           Row{"COPYX", Statement::none, Statement::none},
           Row{"COP", Statement::none, Statement::none},
       }) {
    as::toolkit::TextWord word;
    word.text = row.word;
    word.kind = as::toolkit::TextWord::Kind::run;
    EXPECT_EQ(statementOf(word), row.within) << row.word;
    word.lineStart = true;
    EXPECT_EQ(statementOf(word), row.statement) << row.word;
  }
}

TEST(CommentEntries, EndWhereTheNextParagraphOrDivisionBegins) {
  for (const char* const text :
       {"PROGRAM-ID. X", "AUTHOR.", "INSTALLATION. X", "DATE-WRITTEN .", "date-compiled. X",
        "SECURITY.", "REMARKS.", "IDENTIFICATION DIVISION.", "ID DIVISION", "ENVIRONMENT DIVISION.",
        "DATA  division.", "PROCEDURE DIVISION USING A"}) {
    as::toolkit::SourceLine line;
    line.text = text;
    EXPECT_TRUE(endsCommentEntry(line)) << text;
  }
}

TEST(CommentEntries, GoOnBehindOtherWords) {
  for (const char* const text : {"", "X.", "AUTHOR X.", "AUTHORS.", "DATA", "DATA X.",
                                 "DATA DIVISIONS", "SECURITY", "THE DATA DIVISION."}) {
    as::toolkit::SourceLine line;
    line.text = text;
    EXPECT_FALSE(endsCommentEntry(line)) << text;
    line.areaA = true;
    EXPECT_TRUE(endsCommentEntry(line)) << text;
  }
}

TEST(FirstWord, IsAllThatAWordHolds) {
  EXPECT_EQ(as::toolkit::firstWord("A-1_x. B"), "A-1_x");
  EXPECT_EQ(as::toolkit::firstWord("A"), "A");
  EXPECT_EQ(as::toolkit::firstWord(" A"), "");
}

}  // namespace
