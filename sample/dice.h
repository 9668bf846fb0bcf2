#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>

namespace korvantes::sample {

/// Our own generator, so that the sample is the same with every compiler and library.
class Dice {
 public:
  explicit Dice(std::uint64_t seed) : state_(seed) {}

  /// From low to high, both included.
  int between(int low, int high) {
    state_ = state_ * 6'364'136'223'846'793'005u + 1'442'695'040'888'963'407u;
    const auto width = static_cast<std::uint64_t>(high - low) + 1;
    return low + static_cast<int>((state_ >> 33) % width);
  }

  /// One of a list.
  template <class List>
  const auto& pick(const List& list) {
    return std::data(list)[between(0, static_cast<int>(std::size(list)) - 1)];
  }

 private:
  std::uint64_t state_;
};

}  // namespace korvantes::sample
