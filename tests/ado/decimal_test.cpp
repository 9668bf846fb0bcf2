#include "runtime/ado/decimal.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

#include "runtime/ado/error.h"

namespace korvantes::ado {
namespace {

TEST(DecimalTest, ReadsAndWritesEveryDigitAndNothingElse) {
  for (const char* text : {"0", "-12.50", "0.0001", "-0.05", "9223372036854775807",
                           "-9223372036854775808", "-922337203685477.5808"}) {
    const auto number = Decimal::parse(text);
    ASSERT_TRUE(number) << text;
    EXPECT_EQ(number->text(), text);
  }
  EXPECT_EQ(Decimal::parse("+.5")->text(), "0.5");
  EXPECT_EQ(Decimal::parse("-0.00")->text(), "0.00");
  for (const char* text : {"", "-", ".", "1,5", "1.2.3", "1e5", " 1", "1 ", "--1", "0x10",
                           "9223372036854775808", "0.1234567890123456789"})
    EXPECT_FALSE(Decimal::parse(text)) << text;
}

TEST(DecimalTest, RescalingRoundsHalfAwayFromZero) {
  const struct {
    const char* from;
    int scale;
    const char* to;
  } cases[] = {{"1.005", 2, "1.01"},   {"-1.005", 2, "-1.01"}, {"1.00499", 2, "1.00"},
               {"-0.004", 2, "0.00"},  {"-0.5", 0, "-1"},      {"8.59", 4, "8.5900"},
               {"99.999", 2, "100.00"}};
  for (const auto& [from, scale, to] : cases) {
    EXPECT_EQ(Decimal::parse(from)->rescaled(scale).text(), to) << from;
  }
  EXPECT_THROW(Decimal(922337203685478, 0).rescaled(4), ConversionError);
}

TEST(DecimalTest, ComparesByValueAcrossScales) {
  EXPECT_EQ(Decimal(15, 1), Decimal(150, 2));
  EXPECT_LT(Decimal(-1, 0), Decimal(-99, 2));
  EXPECT_GT(Decimal(std::numeric_limits<std::int64_t>::max(), 0),
            Decimal(std::numeric_limits<std::int64_t>::max(), 18));
}

TEST(DecimalTest, BecomesTheNearestDoubleAndADoubleIsReadAtFifteenDigits) {
  EXPECT_EQ(Decimal(193, 2).toDouble(), 1.93);
  EXPECT_EQ(Decimal(9007199254740993, 4).toDouble(), 900719925474.0993);
  EXPECT_EQ(Decimal(-9223372036854775807, 18).toDouble(), -9.223372036854775807);
  const struct {
    double value;
    int places;
    const char* text;
  } cases[] = {{1.005, 2, "1.01"},  {-0.005, 2, "-0.01"},
               {-0.004, 2, "0.00"}, {0.1 + 0.2, 15, "0.300000000000000"},
               {1e-300, 2, "0.00"}, {123456789012345.0, 4, "123456789012345.0000"},
               {9.5, 0, "10"}};
  for (const auto& [value, places, text] : cases)
    EXPECT_EQ(decimalFromDouble(value, places).text(), text) << value;
  for (const double bad : {std::nan(""), HUGE_VAL, 1e19, -1e300})
    EXPECT_THROW(decimalFromDouble(bad, 2), ConversionError) << bad;
}

}  // namespace
}  // namespace korvantes::ado
