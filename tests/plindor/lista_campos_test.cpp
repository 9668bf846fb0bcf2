#include "outside/plindor/lista_campos.h"

#include <cmath>
#include <gmock/gmock.h>
#include <limits>

#include "runtime/ado/error.h"
#include "tests/support/current_desktop.h"

namespace korvantes::plindor {
namespace {

using ado::Date;
using ado::Decimal;
using ado::Variant;
using testing::StartsWith;

std::string written(long type, const Variant& value, int places = 2) {
  ListaCampos fields;
  fields.AgregaCampo("C", type, value, places);
  return fields.campos().at(0).valor;
}

TEST(ListaCampos, WritesEachTypeAsTheStatementCarriesIt) {
  support::CurrentDesktop desktop;
  const struct {
    long type;
    Variant value;
    const char* text;
    int places = 2;
  } cases[] = {
      {ListaCampos::Entero, "0042", "42"},
      {ListaCampos::Entero, "-3", "-3"},
      {ListaCampos::Entero, Decimal(70000, 4), "7"},
      {ListaCampos::Entero, true, "1"},
      {ListaCampos::Doble, 1.005, "1.01"},
      {ListaCampos::Doble, -0.001, "0.00"},
      {ListaCampos::Doble, 99.9985, "99.999", 3},
      {ListaCampos::Doble, "1.234,565", "1234.57"},
      {ListaCampos::Doble, Decimal(12345, 3), "12.35"},
      {ListaCampos::Texto, "", "''"},
      // No text ends its literal.
      {ListaCampos::Texto, "'); DROP TABLE Lca; --", "'''); DROP TABLE Lca; --'"},
      {ListaCampos::Texto, 41, "'41'"},
      {ListaCampos::Fecha, "1/2/2026 ", "'01/02/2026'"},
      {ListaCampos::Fecha, Date{2024, 2, 29}, "'29/02/2024'"},
      {ListaCampos::Literal, "NULL", "Null"},
  };
  for (const auto& each : cases) EXPECT_EQ(written(each.type, each.value, each.places), each.text);
  for (const long type : {1L, 2L, 3L, 4L, 6L}) EXPECT_EQ(written(type, {}), "Null") << type;
  desktop.regional(screen::Regional::named("en-US"));
  EXPECT_EQ(written(ListaCampos::Doble, "1,234.5"), "1234.50");
}

TEST(ListaCampos, RefusesWhatIsNotOfItsTypeAndNamesTheColumn) {
  support::CurrentDesktop desktop;
  const std::pair<long, std::vector<Variant>> cases[] = {
      {ListaCampos::Entero,
       {"7; DELETE FROM Lca", "7 OR 1=1", "7--", "0x10", "+5", "", "   ", "12,5", "2147483648",
        "99999999999999999999999", 12.5, Decimal(125, 1), 1e300, Date{2026, 1, 1}}},
      {ListaCampos::Doble,
       {"12'5", "abc", "", 1e30, HUGE_VAL, std::nan(""), std::numeric_limits<std::int64_t>::max()}},
      {ListaCampos::Texto, {ado::Bytes(3), std::string("a\0b", 3)}},
      {ListaCampos::Fecha, {"31/02/2026", "28022026", "28/02/2026' OR '1'='1", ""}},
      {ListaCampos::Literal, {"GETDATE()", "Null, Lca_Obs = ''"}},
      {5, {"x"}},
  };
  for (const auto& [type, values] : cases) {
    for (const Variant& value : values) {
      try {
        ADD_FAILURE() << "type " << type << " takes " << written(type, value);
      } catch (const ado::ConversionError& error) {
        EXPECT_THAT(error.what(), StartsWith("C: ")) << type;
      }
    }
  }
}

TEST(ListaCampos, TakesOnlyPlainColumnNames) {
  for (const char* name : {"", "a b", "a'", "a;b", "1a", "a=1", "ñ", "a--", "[a]"})
    EXPECT_THROW(ListaCampos().AgregaCampo(name, 1, 1, 2), ado::ConversionError) << name;
}

}  // namespace
}  // namespace korvantes::plindor
