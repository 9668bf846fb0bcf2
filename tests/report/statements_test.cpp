#include <gmock/gmock.h>
#include <set>

#include "tests/report/search_screen.h"
#include "tests/tsql/cases.h"

namespace korvantes::report {
namespace {

using settlement::World;
using testing::AllOf;
using testing::Contains;
using testing::EndsWith;
using testing::HasSubstr;

struct Filter {
  std::string agent, from, to, text;
};
const Filter kFilters[] = {
    {"", "", "", ""},
    {"7", "", "", "WHERE Lca_IdAg = 7"},
    {"7", "01022024", "29022024",
     "WHERE Lca_IdAg = 7 AND Lca_Fecha BETWEEN '01/02/2024 ' AND '29/02/2024' "},
    {"", "01022024", "", "WHERE Lca_Fecha >= '01/02/2024' "},
    {"", "", "29022024", "WHERE Lca_Fecha <= '29/02/2024' "},
};

struct Shape {
  Forma forma;
  bool byDate;
  std::string column, order;
};
const Shape kShapes[] = {
    {Forma::Resumen, true, "Lca_Total FROM Lca ", "ORDER BY Lca_IdAg,Lca_Fecha"},
    {Forma::Factura, true, "Factura,Fav_fecha,Fav_CliNom",
     " ORDER BY Age_Nom,Lca_Fecha,Fav_Fecha,Fav_Serie,Fav_Numero"},
    {Forma::Factura, false, "Fav_CliNom,(Fav_Serie",
     " ORDER BY Age_Nom,Lca_Fecha,Fav_CliNom,Fav_Fecha,Fav_Serie,Fav_Numero"},
    {Forma::Albaran, true, "AS Albaran",
     " ORDER BY Age_Nom,Lca_Fecha,Fav_Fecha,Fav_Serie,Fav_Numero"},
    {Forma::Albaran, false, "AS Albaran",
     " ORDER BY Age_Nom,Lca_Fecha,Fav_CliNom,Fav_Fecha,Fav_Serie,Fav_Numero"},
};

TEST(SearchStatements, EachShapeSendsTheTotalAndTheStatementOfItsColumnsFilterAndOrder) {
  std::set<std::string> known;
  for (const tsql::Case& each : tsql::casesOf("accepted.sql")) known.insert(each.statement);
  World world;
  show(world, [&](SearchScreen& screen) {
    for (const Filter& filter : kFilters) {
      screen.type(0, filter.agent);
      screen.type(2, filter.from);
      screen.type(3, filter.to);
      for (const Shape& shape : kShapes) {
        screen.choose(shape.forma, shape.byDate);
        world.connection->forgetCalls();
        screen.search();
        const auto& calls = world.connection->calls();
        // Nothing is stored here, and only rows of delivery notes are merged.
        ASSERT_EQ(calls.size(), shape.forma == Forma::Factura ? 3U : 2U);
        EXPECT_EQ(calls[0], "SELECT SUM(Lca_Base) as SumaLiquidacion FROM Lca " + filter.text);
        ASSERT_THAT(calls[1], AllOf(HasSubstr(shape.column), EndsWith(filter.text + shape.order)));
        std::string unfiltered = calls[1];
        unfiltered.erase(unfiltered.size() - shape.order.size() - filter.text.size(),
                         filter.text.size());
        EXPECT_THAT(known, Contains(unfiltered));
        EXPECT_TRUE(calls.size() == 2 || calls[2] == "SELECT * FROM Lca WHERE Lca_Id=-1");
      }
    }
  });
}

// No field of the screen gives these: it says what the hidden ones would do.
TEST(SearchStatements, SeriesAndNumbersFilterByReceipt) {
  EXPECT_EQ(filtroDe({0, "", "", "A", "3", "x"}), " AND Rec_Serie ='A'  AND Rec_Numero >= 3");
  EXPECT_EQ(filtroDe({7, "", "", "", "3", "9"}),
            "WHERE Lca_IdAg = 7 AND Rec_Numero BETWEEN 3 AND 9");
  EXPECT_EQ(filtroDe({0, "", "", "", "0", "9"}), "WHERE Rec_Numero <= 9");
}

}  // namespace
}  // namespace korvantes::report
