#include "host/failure.h"

#include <gtest/gtest.h>

namespace korvantes::host {
namespace {

TEST(FailureWords, StandOnOneLine) {
  EXPECT_EQ(onOneLine("Error registrando liquidacion:\r\nla base\testá ocupada\n"),
            "Error registrando liquidacion: la base está ocupada");
  EXPECT_EQ(onOneLine("\n\x1B[31mrojo\x7F"), "[31mrojo");
}

TEST(FailureWords, OfTheSystemAreSpanish) {
  EXPECT_EQ(systemWords(std::make_error_code(std::errc::no_space_on_device)),
            "el disco está lleno");
  EXPECT_EQ(systemWords(std::error_code(EPROTO, std::generic_category())),
            "error " + std::to_string(EPROTO) + " del sistema");
}

}  // namespace
}  // namespace korvantes::host
