#include <fstream>
#include <gtest/gtest.h>

#include "tests/tsql/cases.h"

namespace korvantes::tsql {
namespace {

TEST(SubsetPage, ItsExamplesCompile) {
  std::ifstream page(std::string(KORVANTES_SOURCE) + "/docs/sql-subset.md");
  Compiler compiler(schema());
  bool inside = false;
  int statements = 0;
  for (std::string line; std::getline(page, line);) {
    if (line.starts_with("```")) {
      inside = line == "```sql";
    } else if (inside) {
      ++statements;
      EXPECT_EQ(refusalOf(compiler, line), "") << line;
    }
  }
  EXPECT_GT(statements, 15);
}

}  // namespace
}  // namespace korvantes::tsql
