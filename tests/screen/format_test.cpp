#include <gtest/gtest.h>

#include "runtime/screen/conversions.h"

namespace korvantes::screen {
namespace {

const Regional kSpanish = Regional::named("es-ES");

TEST(Format, WritesNumbersInMasks) {
  using ado::Decimal;
  const struct {
    ado::Variant value;
    const char* mask;
    const char* text;
  } cases[] = {{12.5, "0.00", "12,50"},
               {1.005, "0.00", "1,01"},
               {2.925, "0.00", "2,93"},
               {-0.005, "0.00", "-0,01"},
               {-0.004, "0.00", "0,00"},
               {0.999, "0.00", "1,00"},
               {99.9999, "00.000", "100,000"},
               {0.5, "0", "1"},
               {1e20, "0.00", "100000000000000000000,00"},
               {1234.5, "##0.00", "1234,50"},
               {0.5, "##0.00", "0,50"},
               {1234567.891, "#,###,##0.00 ", "1.234.567,89 "},
               {-1234.5, "#,###,###,##0.00", "-1.234,50"},
               {1000, "#,##0", "1.000"},
               {7, "000000", "000007"},
               {12345678, "000000", "12345678"},
               {12, "0.##", "12"},
               {0, "###", ""},
               {3.5, "0.00 €", "3,50 €"},
               {-3, "Total: 0", "-Total: 3"},
               {Decimal(10050, 4), "0.00", "1,01"},
               {Decimal(-50, 4), "0.00", "-0,01"},
               {Decimal(-49, 4), "0.00", "0,00"},
               {Decimal(9007199254740993, 2), "#,##0.00", "90.071.992.547.409,93"},
               {Decimal(123456789012345675, 3), "0.00", "123456789012345,68"}};
  for (const auto& c : cases)
    EXPECT_EQ(Format(c.value, c.mask, kSpanish), c.text) << c.mask << " " << c.text;
  EXPECT_EQ(Format(1234.5, "#,##0.00", Regional::named("en-US")), "1,234.50");
}

TEST(Format, WritesDatesAndLeavesOtherValuesAsTheyAre) {
  const ado::Date date{2026, 2, 3};
  EXPECT_EQ(Format(date, "dd/mm/yyyy", kSpanish), "03/02/2026");
  EXPECT_EQ(Format(date, "yyyy-mm-dd", kSpanish), "2026-02-03");
  EXPECT_EQ(Format(date, "d/m/yy", kSpanish), "3/2/26");
  EXPECT_EQ(Format(ado::Date{1, 2, 3}, "yyyy-mm-dd", kSpanish), "0001-02-03");
  EXPECT_EQ(Format(ado::Variant(), "0.00", kSpanish), "");
  EXPECT_EQ(Format("12", "0.00", kSpanish), "12");
  EXPECT_EQ(Format(12.5, "", kSpanish), "12,5");
}

}  // namespace
}  // namespace korvantes::screen
