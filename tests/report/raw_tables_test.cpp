#include <cstdlib>
#include <gtest/gtest.h>

#include "sample/data.h"
#include "tests/report/independent_search.h"
#include "tests/report/random_database.h"
#include "tests/report/search_screen.h"

namespace korvantes::report {
namespace {

using settlement::World;

struct Shape {
  Forma forma;
  bool byDate;
};
constexpr Shape kShapes[] = {{Forma::Resumen, true},
                             {Forma::Factura, true},
                             {Forma::Factura, false},
                             {Forma::Albaran, true},
                             {Forma::Albaran, false}};

void removeRows(World& world) {
  for (const char* table : {"Lav", "Cav", "Fav", "Cli", "Age", "Vespara.dbo.Tivas"})
    world.sql(std::string("DELETE FROM ") + table);
}

std::string digitsOf(std::optional<ado::Date> date) {
  std::string digits = date ? date->dayFirst() : "";
  std::erase(digits, '/');
  return digits;
}

void type(const SearchScreen& screen, const Limits& limits) {
  screen.type(0, limits.agent == 0 ? "" : std::to_string(limits.agent));
  screen.type(2, digitsOf(limits.from));
  screen.type(3, digitsOf(limits.to));
}

const ado::Recordset& found(const SearchScreen& screen) {
  return screen.control<screen::DataGrid>("dbgLiqui").DataSource();
}

/// The number shown under the grid, without its separators.
std::int64_t shownTotal(const SearchScreen& screen) {
  std::string digits = screen.control<screen::Label>("lblTotales").Caption();
  std::erase_if(digits, [](char c) { return c != '-' && (c < '0' || c > '9'); });
  return std::stoll(digits);
}

void expectRows(const ado::Recordset& rows, const Groups& groups) {
  std::size_t row = 0;
  for (std::vector<std::string> expected : groups) {
    std::vector<std::string> actual;
    for (; actual.size() < expected.size() && row < rows.RecordCount(); ++row)
      actual.push_back(textOf(rows, row));
    std::sort(expected.begin(), expected.end());
    std::sort(actual.begin(), actual.end());
    ASSERT_EQ(actual, expected) << "before row " << row;
  }
  EXPECT_EQ(row, rows.RecordCount());
}

/// Every shape under every combination of the filters, against the raw tables.
void expectIndependentResults(World& world, const Limits& limits) {
  const RawTables tables(*world.connection);
  show(world, [&](SearchScreen& screen) {
    for (int filters = 0; filters < 8; ++filters) {
      Limits some;
      if (filters & 1) some.agent = limits.agent;
      if (filters & 2) some.from = limits.from;
      if (filters & 4) some.to = limits.to;
      type(screen, some);
      for (const auto& [forma, byDate] : kShapes) {
        SCOPED_TRACE("filters " + std::to_string(filters) + ", shape " +
                     std::to_string(static_cast<int>(forma)) + (byDate ? " by date" : " by name"));
        screen.choose(forma, byDate);
        screen.search();
        const Groups expected = tables.search(forma, byDate, some);
        EXPECT_FALSE(expected.empty());
        expectRows(found(screen), expected);
        EXPECT_EQ(shownTotal(screen), tables.totalCents(some));
        world.connection->forgetCalls();
      }
    }
  });
}

TEST(SearchAgainstRawTables, SampleData) {
  World world;
  removeRows(world);
  sample::loadSharedSample(*world.connection);
  sample::loadCompanySample(*world.connection);
  expectIndependentResults(world, {4, ado::Date{2024, 9, 30}, ado::Date{2026, 3, 31}});
}

// KORVANTES_PROPERTY_SETTLEMENTS asks for a large run.
TEST(SearchAgainstRawTables, RandomSettlements) {
  const char* wanted = std::getenv("KORVANTES_PROPERTY_SETTLEMENTS");
  World world;
  removeRows(world);
  fillRandomDatabase(*world.connection, wanted == nullptr ? 150 : std::atoi(wanted), 20261124);
  expectIndependentResults(world, {5, ado::Date::fromSerial(18004), ado::Date::fromSerial(18014)});
}

}  // namespace
}  // namespace korvantes::report
