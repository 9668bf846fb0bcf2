#include <gmock/gmock.h>

#include "engines/tsql/compiler.h"

namespace korvantes::tsql {
namespace {

using testing::ElementsAre;

TEST(SplitStatements, CutsAtGoLinesAndAtLinesThatEndInASemicolon) {
  EXPECT_THAT(
      splitStatements("SELECT 1;\n  SELECT\n 2 ;  \nSELECT 3\nGO\nSELECT 4\n  go  \r\nGO\n"),
      ElementsAre("SELECT 1", "SELECT\n 2", "SELECT 3", "SELECT 4"));
  EXPECT_THAT(splitStatements("SELECT 1; SELECT 2;\r\nSELECT 3"),
              ElementsAre("SELECT 1; SELECT 2", "SELECT 3"));
  EXPECT_THAT(splitStatements("\xEF\xBB\xBFSELECT 1; -- one\nSELECT 2; /* two */\n"),
              ElementsAre("SELECT 1", "SELECT 2"));
}

TEST(SplitStatements, LeavesQuotesCommentsAndBracketsWhole) {
  EXPECT_THAT(splitStatements("SELECT 'a;\nGO\n''b;\n';\nSELECT [x;\n] /* ;\nGO\n */ -- ;\n, 1"),
              ElementsAre("SELECT 'a;\nGO\n''b;\n'", "SELECT [x;\n] /* ;\nGO\n */ -- ;\n, 1"));
  EXPECT_THAT(splitStatements("-- only\n/* comments;\n */;\n\n;\nGO\n"), ElementsAre());
  EXPECT_THAT(splitStatements("SELECT 'open;\nGO\n"), ElementsAre("SELECT 'open;\nGO"));
  EXPECT_THAT(splitStatements(" \n;\n"), ElementsAre());
}

}  // namespace
}  // namespace korvantes::tsql
