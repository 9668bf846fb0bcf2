#include "engines/tsql/runtime.h"

#include <gtest/gtest.h>
#include <limits>

namespace korvantes::tsql {
namespace {

constexpr auto kMost = std::numeric_limits<std::int64_t>::max();
constexpr auto kLeast = std::numeric_limits<std::int64_t>::min();

TEST(Runtime, RoundsHalfAwayFromZeroAndCutsQuotientsOff) {
  EXPECT_EQ(rescaleUnits(10045000, 8, 4), 1005);
  EXPECT_EQ(rescaleUnits(10044999, 8, 4), 1004);
  EXPECT_EQ(rescaleUnits(-10045000, 8, 4), -1005);
  EXPECT_EQ(rescaleUnits(-10044999, 8, 4), -1004);
  EXPECT_EQ(rescaleUnits(kMost, 18, 0), 9);
  EXPECT_EQ(rescaleUnits(-1, 18, 0), 0);
  EXPECT_EQ(roundUnits(-10050, 4, 2), -10100);
  EXPECT_EQ(roundUnits(12350, 0, -2), 12400);
  EXPECT_EQ(roundUnits(49, 0, -30), 0);
  EXPECT_EQ(divideUnits(kMost, kMost, 18), 1000000000000000000);
  EXPECT_EQ(divideUnits(129, 1, -1), 12);
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
  EXPECT_EQ(divideUnits(kLeast, -1, 0), std::nullopt);
  EXPECT_EQ(divideUnits(1, 0, 0), std::nullopt);
  EXPECT_EQ(divideUnits(kMost, 1, 30), std::nullopt);
}

}  // namespace
}  // namespace korvantes::tsql
