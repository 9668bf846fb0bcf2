#pragma once

#include <cstddef>
#include <string>

#include "bench/bench_database.h"

namespace korvantes::bench {

/// Stored settlements of 40 agents over five years: five delivery notes each, two of them on one
/// invoice, five lines a note.
class ReportDatabase : public BenchDatabase {
 public:
  /// @param lines of all notes together, a multiple of 25
  explicit ReportDatabase(std::size_t lines);

  std::size_t lines() const { return lines_; }
  std::size_t notes() const { return lines_ / 5; }
  std::size_t settlements() const { return lines_ / 25; }
  std::size_t invoices() const { return settlements() * 4; }

 private:
  std::size_t lines_;
};

}  // namespace korvantes::bench
