#include <cstdlib>
#include <gtest/gtest.h>
#include <set>

#include "sample/data.h"
#include "tests/report/independent_search.h"
#include "tests/report/random_database.h"
#include "tests/report/search_screen.h"

namespace korvantes::report {
namespace {

/// The database of the settlement tests without its rows.
struct EmptyWorld : settlement::World {
  EmptyWorld() {
    for (const char* table : {"Lav", "Cav", "Fav", "Cli", "Age", "Vespara.dbo.Tivas"})
      sql(std::string("DELETE FROM ") + table);
  }
};

std::string digitsOf(std::optional<ado::Date> date) {
  std::string digits = date ? date->dayFirst() : "";
  std::erase(digits, '/');
  return digits;
}

/// The number shown under the grid, without its separators.
std::int64_t shownTotal(const SearchScreen& screen) {
  std::string digits = screen.control<screen::Label>("lblTotales").Caption();
  std::erase_if(digits, [](char c) { return c != '-' && (c < '0' || c > '9'); });
  return std::stoll(digits);
}

void expectRows(const ado::Recordset& rows, const Groups& groups) {
  std::size_t row = 0;
  for (const auto& group : groups) {
    std::multiset<std::string> expected, actual;
    for (const Record& record : group) {
      expected.insert(textOf(record, rows));
      if (row < rows.RecordCount()) actual.insert(textOf(recordOf(rows, row++), rows));
    }
    ASSERT_EQ(actual, expected) << "before row " << row;
  }
  EXPECT_EQ(row, rows.RecordCount());
}

/// Every shape under every combination of the filters, against the raw tables.
void expectIndependentResults(EmptyWorld& world, const Limits& limits) {
  RawTables tables(*world.connection);
  show(world, [&](SearchScreen& screen) {
    for (int filters = 0; filters < 8; ++filters) {
      Limits some;
      if (filters & 1) some.agent = limits.agent;
      if (filters & 2) some.from = limits.from;
      if (filters & 4) some.to = limits.to;
      screen.filter(some.agent == 0 ? "" : std::to_string(some.agent), digitsOf(some.from),
                    digitsOf(some.to));
      for (const Shape& shape : kShapes) {
        SCOPED_TRACE("filters " + std::to_string(filters) + ", shape " +
                     std::to_string(&shape - kShapes));
        screen.choose(shape);
        screen.search();
        const Groups expected = tables.search(shape.forma, shape.byDate, some);
        EXPECT_FALSE(expected.empty());
        expectRows(screen.grid().DataSource(), expected);
        EXPECT_EQ(shownTotal(screen), tables.totalCents(some));
      }
    }
  });
}

TEST(SearchAgainstRawTables, SampleData) {
  EmptyWorld world;
  sample::loadSharedSample(*world.connection);
  sample::loadCompanySample(*world.connection);
  expectIndependentResults(world, {4, ado::Date{2024, 9, 30}, ado::Date{2026, 3, 31}});
}

// KORVANTES_PROPERTY_SETTLEMENTS asks for a large run.
TEST(SearchAgainstRawTables, RandomSettlements) {
  const char* wanted = std::getenv("KORVANTES_PROPERTY_SETTLEMENTS");
  EmptyWorld world;
  fillRandomDatabase(*world.connection, wanted == nullptr ? 150 : std::atoi(wanted), 20261124);
  expectIndependentResults(world, {5, ado::Date::fromSerial(18004), ado::Date::fromSerial(18014)});
}

}  // namespace
}  // namespace korvantes::report
