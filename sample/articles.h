#pragma once

#include <span>

namespace korvantes::sample {

/// An article of the sample's trade.
struct SampleArticle {
  const char* text;
  int price;       ///< of one piece, in 1/10000
  int most;        ///< usual pieces of a line, at most
  int commission;  ///< in thousandths of a percent
};

std::span<const SampleArticle> sampleArticles();

}  // namespace korvantes::sample
