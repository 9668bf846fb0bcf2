#include "runtime/ado/date.h"

#include <gtest/gtest.h>

namespace korvantes::ado {
namespace {

TEST(DateTest, ReadsOnlyDaysThatExistAndAllowsTrailingBlanks) {
  EXPECT_EQ(Date::parseDayFirst("28/02/2026"), (Date{2026, 2, 28}));
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
  for (const long day : {-719162L, -1L, 0L, 20781L, 2932896L}) {
    EXPECT_EQ(Date::fromSerial(day).serial(), day);
  }
}

}  // namespace
}  // namespace korvantes::ado
