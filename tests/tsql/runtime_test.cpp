#include "engines/tsql/runtime.h"

#include <gtest/gtest.h>
#include <limits>

namespace korvantes::tsql {
namespace {

constexpr auto kMost = std::numeric_limits<std::int64_t>::max();
constexpr auto kLeast = std::numeric_limits<std::int64_t>::min();

TEST(Runtime, RoundsHalfAwayFromZeroInBothDirections) {
  struct {
    std::int64_t units;
    int from, to;
    std::int64_t expected;
  } const rescales[] = {{10050000, 8, 4, 1005},
                        {10049999, 8, 4, 1005},
                        {10049500, 8, 4, 1005},
                        {10045000, 8, 4, 1005},
                        {10044999, 8, 4, 1004},
                        {-10045000, 8, 4, -1005},
                        {-10044999, 8, 4, -1004},
                        {5, 1, 0, 1},
                        {4, 1, 0, 0},
                        {-5, 1, 0, -1},
                        {7, 0, 4, 70000},
                        {kMost, 18, 0, 9},
                        {-1, 18, 0, 0}};
  for (const auto& c : rescales) {
    EXPECT_EQ(rescaleUnits(c.units, c.from, c.to), c.expected) << c.units;
  }
  EXPECT_EQ(roundUnits(10050, 4, 2), 10100);
  EXPECT_EQ(roundUnits(-10050, 4, 2), -10100);
  EXPECT_EQ(roundUnits(10049, 4, 2), 10000);
  EXPECT_EQ(roundUnits(12345, 0, -2), 12300);
  EXPECT_EQ(roundUnits(12350, 0, -2), 12400);
  EXPECT_EQ(roundUnits(49, 0, -30), 0);
}

TEST(Runtime, DivisionCutsOffAndIsExactInBetween) {
  EXPECT_EQ(divideUnits(85900, 100, 0), 859);
  EXPECT_EQ(divideUnits(-19, 10, 0), -1);
  EXPECT_EQ(divideUnits(1, 3, 6), 333333);
  EXPECT_EQ(divideUnits(kMost, kMost, 18), 1000000000000000000);
  EXPECT_EQ(divideUnits(129, 1, -1), 12);
  EXPECT_EQ(divideUnits(kLeast, -1, 0), std::nullopt);
  EXPECT_EQ(divideUnits(1, 0, 0), std::nullopt);
  EXPECT_EQ(divideUnits(kMost, 1, 30), std::nullopt);
}

TEST(Runtime, NothingIsReturnedBeyondSixtyFourBits) {
  EXPECT_EQ(addUnits(kMost, 1), std::nullopt);
  EXPECT_EQ(addUnits(kMost, -1), kMost - 1);
  EXPECT_EQ(subtractUnits(kLeast, 1), std::nullopt);
  EXPECT_EQ(subtractUnits(0, kLeast), std::nullopt);
  EXPECT_EQ(multiplyUnits(3037000500, 3037000500), std::nullopt);
  EXPECT_EQ(multiplyUnits(kLeast, 1), kLeast);
  EXPECT_EQ(rescaleUnits(kMost, 0, 1), std::nullopt);
  EXPECT_EQ(roundUnits(kMost, 4, 0), std::nullopt);
}

}  // namespace
}  // namespace korvantes::tsql
