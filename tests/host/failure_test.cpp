#include "host/failure.h"

#include <gtest/gtest.h>

namespace korvantes::host {
namespace {

TEST(FailureWords, StandOnOneLine) {
  EXPECT_EQ(onOneLine("Error registrando liquidacion:\r\nla base\testá ocupada\n"),
            "Error registrando liquidacion: la base está ocupada");
  EXPECT_EQ(onOneLine("\n\x1B[31mrojo\x7F"), "[31mrojo");
}

}  // namespace
}  // namespace korvantes::host
