// bench: times of what a user waits for, compared with hand-written C against sqlite3.
#pragma once

#include <cstddef>

#include "bench/bench_database.h"

namespace korvantes::bench {

/// A database in a private temporary folder: agent 1 with `notes` pending delivery notes of 5 lines
/// each, every note on an invoice of its own that is fully collected. Removed at the end.
class PendingDatabase : public BenchDatabase {
 public:
  explicit PendingDatabase(std::size_t notes);

  std::size_t notes() const { return notes_; }

  /// Undoes a save, so that the notes are pending again.
  void freeAllNotes();

 private:
  std::size_t notes_;
};

/// One database for each size, made on first use and kept until the program ends.
PendingDatabase& pendingDatabase(std::size_t notes);

}  // namespace korvantes::bench
