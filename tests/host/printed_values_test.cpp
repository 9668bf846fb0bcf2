#include "scripts/printed_values.h"

#include <gtest/gtest.h>
#include <limits>

namespace korvantes::scripts {
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

}  // namespace
}  // namespace korvantes::scripts
