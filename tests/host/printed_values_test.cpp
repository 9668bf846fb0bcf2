#include "host/printed_values.h"

#include <gtest/gtest.h>
#include <limits>
#include <sstream>

#include "tests/support/recording_connection.h"

namespace korvantes::host {
namespace {

using ado::Variant;

TEST(PrintedValues, EachKindHasOneForm) {
  const struct {
    Variant value;
    const char* printed;
  } cases[] = {
      {Variant(), "NULL"},
      {Variant(true), "1"},
      {Variant(false), "0"},
      {Variant(0), "0"},
      {Variant(std::numeric_limits<std::int64_t>::min()), "-9223372036854775808"},
      {Variant(ado::Decimal::money(12345600)), "1234.5600"},
      {Variant(ado::Decimal::money(-5)), "-0.0005"},
      {Variant(ado::Decimal(2100, 2)), "21.00"},
      {Variant(ado::Decimal(3, 0)), "3"},
      {Variant(1.5), "1.5"},
      {Variant(ado::Date{2026, 2, 8}), "08/02/2026"},
      {Variant(""), ""},
      {Variant("  Peña, S.L. "), "  Peña, S.L. "},
      {Variant("NULL"), "NULL"},
      {Variant("a\tb\nc\r\nd\\te"), "a\\tb\\nc\\r\\nd\\\\te"},
      {Variant(ado::Bytes{}), "0x"},
      {Variant(ado::Bytes{std::byte{0x00}, std::byte{0x0F}, std::byte{0xAB}}), "0x000FAB"},
  };
  for (const auto& each : cases) EXPECT_EQ(printedValue(each.value), each.printed);
}

TEST(PrintedValues, ASelectGetsAHeadingAndOtherStatementsACount) {
  support::RecordingConnection connection;
  connection.answer(
      support::resultOf({"Age_Id", "a\tb"}, {Variant(1), Variant("x\ny"), Variant(2), Variant()}));
  connection.answer(support::resultOf({"Age_Id", "age_nom"}, {}));
  connection.rowsChanged = 12;
  std::ostringstream out;
  for (int statement = 0; statement < 3; ++statement) printStatement(connection, "…", out);
  EXPECT_EQ(out.str(),
            "Age_Id\ta\\tb\n"
            "1\tx\\ny\n"
            "2\tNULL\n"
            "Age_Id\tage_nom\n"
            "12 filas\n");
}

}  // namespace
}  // namespace korvantes::host
