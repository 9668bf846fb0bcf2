#include <cmath>
#include <gtest/gtest.h>
#include <limits>

#include "runtime/ado/error.h"
#include "runtime/ado/variant.h"

namespace korvantes::ado {
namespace {

TEST(DateTest, ReadsOnlyDaysThatExistAndAllowsTrailingBlanks) {
  EXPECT_EQ(Date::parseDayFirst("1/2/2024 "), (Date{2024, 2, 1}));
  EXPECT_EQ(Date::parseDayFirst("29/02/2000"), (Date{2000, 2, 29}));
  for (const char* text :
       {"", "31/02/2026", "29/02/1900", "0/1/2026", "1/13/2026", "01/01/0000", " 1/2/2024",
        "1/2/24", "001/2/2024", "1-2-2024", "2024/02/01", "1/2/2024x", "1/2/20245"}) {
    EXPECT_FALSE(Date::parseDayFirst(text)) << text;
  }
  for (const char* text : {"2026-2-28", "2026-02-30", "2026-02-28 ", "28/02/2026"}) {
    EXPECT_FALSE(Date::parseIso(text)) << text;
  }
}

TEST(DateTest, WritesBothFormsAndCountsDays) {
  const Date date{26, 3, 7};
  EXPECT_EQ(date.iso(), "0026-03-07");
  EXPECT_EQ(date.dayFirst(), "07/03/0026");
  EXPECT_EQ(Date::parseIso(date.iso()), date);
  EXPECT_EQ((Date{1970, 1, 1}).serial(), 0);
  EXPECT_EQ((Date{2000, 3, 1}).serial(), 11017);
  for (const long day : {-719162L, -1L, 20781L, 2932896L}) {
    EXPECT_EQ(Date::fromSerial(day).serial(), day);
  }
}

TEST(DecimalTest, ReadsAndWritesEveryDigitAndNothingElse) {
  const std::pair<const char*, const char*> same[] = {
      {"-12.50", "-12.50"},
      {"0.0001", "0.0001"},
      {"9223372036854775807", "9223372036854775807"},
      {"-922337203685477.5808", "-922337203685477.5808"},
      {"+.5", "0.5"},
      {"-0.00", "0.00"}};
  for (const auto& [text, written] : same) EXPECT_EQ(Decimal::parse(text)->text(), written);
  for (const char* text : {"", "-", ".", "1,5", "1.2.3", "1e5", " 1", "1 ", "--1", "0x10",
                           "9223372036854775808", "0.1234567890123456789"})
    EXPECT_FALSE(Decimal::parse(text)) << text;
}

TEST(DecimalTest, RescalingRoundsHalfAwayFromZero) {
  EXPECT_EQ(Decimal(-1005, 3).rescaled(2).text(), "-1.01");
  EXPECT_EQ(Decimal(100499, 5).rescaled(2).text(), "1.00");
  EXPECT_EQ(Decimal(-4, 3).rescaled(2).text(), "0.00");
  EXPECT_EQ(Decimal(859, 2).rescaled(4).text(), "8.5900");
  EXPECT_EQ(Decimal(99999, 3).rescaled(2).text(), "100.00");
  EXPECT_THROW(Decimal(922337203685478, 0).rescaled(4), ConversionError);
}

TEST(DecimalTest, BecomesTheNearestDoubleAndADoubleIsReadAtFifteenDigits) {
  EXPECT_EQ(Decimal(9007199254740993, 4).toDouble(), 900719925474.0993);
  EXPECT_EQ(Decimal(-9223372036854775807, 18).toDouble(), -9.223372036854775807);
  const std::pair<double, const char*> cases[] = {{1.005, "1.01"},
                                                  {-0.005, "-0.01"},
                                                  {-0.004, "0.00"},
                                                  {1e-300, "0.00"},
                                                  {1234567890123.455, "1234567890123.46"}};
  for (const auto& [value, text] : cases) EXPECT_EQ(decimalFromDouble(value, 2).text(), text);
  EXPECT_EQ(decimalFromDouble(0.1 + 0.2, 15).text(), "0.300000000000000");
  EXPECT_EQ(decimalFromDouble(9.5, 0).text(), "10");
  for (const double bad : {std::nan(""), HUGE_VAL, 1e19, -1e300})
    EXPECT_THROW(decimalFromDouble(bad, 2), ConversionError) << bad;
}

TEST(VariantTest, NumbersBecomeLongsRoundingHalfToEven) {
  const std::pair<Variant, int> cases[] = {{true, 1},
                                           {2.5, 2},
                                           {3.5, 4},
                                           {-2.5, -2},
                                           {2147483647.4, 2147483647},
                                           {Decimal(25, 1), 2},
                                           {Decimal(-35, 1), -4},
                                           {Decimal(2501, 3), 3}};
  for (const auto& [value, expected] : cases) EXPECT_EQ(value.asLong(), expected);
  for (const Variant& bad :
       {Variant(), Variant("12"), Variant(Date{}), Variant(Bytes{}), Variant(2147483647.5),
        Variant(std::int64_t{-2147483649}), Variant(std::nan("")), Variant(Decimal(2147483648, 0))})
    EXPECT_THROW(bad.asLong(), ConversionError);
}

TEST(VariantTest, ReadsAndComparesWithinItsKind) {
  EXPECT_THROW(Variant("1").asDouble(), ConversionError);
  EXPECT_THROW(Variant().asBoolean(), ConversionError);
  EXPECT_THROW(Variant(1).text(), ConversionError);
  EXPECT_EQ(Variant(Decimal(-1005, 3)).asDouble(), -1.005);
  EXPECT_TRUE(Variant(Decimal(1, 4)).asBoolean());
  EXPECT_FALSE(Variant(0.0).asBoolean());
  EXPECT_EQ(Variant(Decimal(10, 1)), Variant(Decimal(100, 2)));
  EXPECT_NE(Variant(1), Variant(Decimal(1, 0)));
  constexpr auto kMost = std::numeric_limits<std::int64_t>::max();
  EXPECT_GT(Decimal(kMost, 0), Decimal(kMost, 18));
  EXPECT_LT(Decimal(-1, 0), Decimal(-99, 2));
}

}  // namespace
}  // namespace korvantes::ado
