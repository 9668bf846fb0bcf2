// bench: figures for the work that a user waits for, beside hand-written C against sqlite3.
#pragma once

#include <cstddef>
#include <memory>
#include <string>

#include "outside/ado/connection.h"

namespace korvantes::bench {

/// A database in a private temporary folder: agent 1 with `notes` pending delivery notes of 5 lines
/// each, every note on an invoice of its own that is fully collected. Removed at the end.
class PendingDatabase {
 public:
  explicit PendingDatabase(std::size_t notes);
  ~PendingDatabase();
  PendingDatabase(const PendingDatabase&) = delete;
  PendingDatabase& operator=(const PendingDatabase&) = delete;

  const std::string& path() const { return path_; }
  std::size_t notes() const { return notes_; }
  const std::shared_ptr<ado::Connection>& connection() const { return connection_; }

  /// Takes back what a save stored, so that the notes are pending again.
  void freeAllNotes();

 private:
  std::size_t notes_;
  std::string folder_, path_;
  std::shared_ptr<ado::Connection> connection_;
};

/// One database for each size, made on first use and kept until the program ends.
PendingDatabase& pendingDatabase(std::size_t notes);

}  // namespace korvantes::bench
