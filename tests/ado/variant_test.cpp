#include "runtime/ado/variant.h"

#include <cmath>
#include <gtest/gtest.h>
#include <vector>

#include "runtime/ado/error.h"

namespace korvantes::ado {
namespace {

TEST(VariantTest, NumbersBecomeLongsRoundingHalfToEven) {
  const struct {
    Variant value;
    int expected;
  } cases[] = {{true, 1},
               {2.5, 2},
               {3.5, 4},
               {-2.5, -2},
               {2147483647.4, 2147483647},
               {Decimal(25, 1), 2},
               {Decimal(-35, 1), -4},
               {Decimal(2501, 3), 3}};
  for (const auto& [value, expected] : cases) EXPECT_EQ(value.asLong(), expected);
}

TEST(VariantTest, WhatIsNotOfTheKindIsRefused) {
  const std::vector<Variant> noLongs{{},           "12",
                                     Date{},       Bytes{},
                                     2147483647.5, std::int64_t{-2147483649},
                                     std::nan(""), Decimal(2147483648, 0)};
  for (const Variant& value : noLongs) EXPECT_THROW(value.asLong(), ConversionError);
  EXPECT_THROW(Variant("1").asDouble(), ConversionError);
  EXPECT_THROW(Variant().asBoolean(), ConversionError);
  EXPECT_THROW(Variant(1).text(), ConversionError);
  EXPECT_THROW(Variant("a").bytes(), ConversionError);
  EXPECT_THROW(Variant().date(), ConversionError);
}

TEST(VariantTest, ReadsAsDoubleAndTruthAndComparesWithinItsKind) {
  EXPECT_EQ(Variant(Decimal(-1005, 3)).asDouble(), -1.005);
  EXPECT_TRUE(Variant(Decimal(1, 4)).asBoolean());
  EXPECT_FALSE(Variant(0.0).asBoolean());
  EXPECT_EQ(Variant(Decimal(10, 1)), Variant(Decimal(100, 2)));
  EXPECT_NE(Variant(1), Variant(Decimal(1, 0)));
}

}  // namespace
}  // namespace korvantes::ado
