#include "scripts/printed_values.h"

#include <gtest/gtest.h>

namespace korvantes::scripts {
namespace {

TEST(PrintedValues, EachKindHasOneForm) {
  using ado::Decimal;
  using ado::Variant;
  std::string printed;
  for (const Variant& value :
       {Variant(), Variant(true), Variant(false), Variant(INT64_MIN), Variant(Decimal::money(-5)),
        Variant(Decimal(2100, 2)), Variant(Decimal(3, 0)), Variant(1.5), Variant(" Peña, S.L. "),
        Variant(ado::Date{2026, 2, 8}), Variant("a\tb\nc\r\nd\\te"), Variant(ado::Bytes{}),
        Variant(ado::Bytes{std::byte{0x00}, std::byte{0x0F}, std::byte{0xAB}})})
    printed += printedValue(value) + "|";
  EXPECT_EQ(printed,
            "NULL|1|0|-9223372036854775808|-0.0005|21.00|3|1.5| Peña, S.L. |08/02/2026|"
            "a\\tb\\nc\\r\\nd\\\\te|0x|0x000FAB|");
}

}  // namespace
}  // namespace korvantes::scripts
