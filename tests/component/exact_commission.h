// The commission computed a second time, with whole numbers only: what the statements must return.
#pragma once

#include <cstdint>
#include <optional>

namespace korvantes {

/// A header's discounts, in hundredths of a percent.
struct Discounts {
  std::optional<std::int64_t> first, second;
};

/// A line: its amount in ten-thousandths, its commission in thousandths of a percent.
struct Line {
  std::optional<std::int64_t> amount, commission;
};

/// Net of the line and its commission, both in cents; 0 where something is Null.
std::int64_t exactNet(const Discounts& discounts, const Line& line);
std::int64_t exactCommission(const Discounts& discounts, const Line& line);

}  // namespace korvantes
