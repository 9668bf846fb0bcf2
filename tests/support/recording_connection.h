#pragma once

#include <deque>
#include <string>
#include <variant>
#include <vector>

#include "runtime/ado/connection.h"

namespace korvantes::support {

/// A connection without a database: it remembers what it was asked and gives the answers it was
/// told beforehand.
class RecordingConnection : public ado::Connection {
 public:
  /// What it was asked, in order: statements, "BeginTrans", "CommitTrans", "RollbackTrans".
  std::vector<std::string> calls;

  /// Queues the answer to the next statement not yet answered: a result, or a failure. Statements
  /// beyond the queue get an empty, closed recordset.
  void answer(ado::Recordset result) { answers_.emplace_back(std::move(result)); }
  void answer(ado::Error error) { answers_.emplace_back(std::move(error)); }
  /// The number of rows that statements report as changed.
  long long rowsChanged = 1;

  ado::Recordset Execute(std::string_view statement, long long* rowsAffected = nullptr) override;
  void BeginTrans() override;
  void CommitTrans() override;
  void RollbackTrans() override;
  bool inTransaction() const override { return inTransaction_; }
  ado::Recordset OpenForUpdate(std::string_view statement) override;

 private:
  std::deque<std::variant<ado::Recordset, ado::Error>> answers_;
  bool inTransaction_ = false;
};

/// A result as a server gives it: column names, and the rows one after the other.
ado::Recordset resultOf(const std::vector<std::string>& names, std::vector<ado::Variant> cells);

}  // namespace korvantes::support
