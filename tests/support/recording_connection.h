#pragma once

#include <deque>
#include <string>
#include <variant>
#include <vector>

#include "runtime/ado/connection.h"

namespace korvantes::support {

/// A connection without a database. It records the statements and gives the answers prepared for
/// them.
class RecordingConnection : public ado::Connection {
 public:
  /// The statements, in order.
  std::vector<std::string> calls;

  /// Queues the answer to a later statement: a result or a failure. Statements beyond the queue get
  /// an empty, closed recordset.
  void answer(ado::Recordset result) { answers_.emplace_back(std::move(result)); }
  void answer(ado::Error error) { answers_.emplace_back(std::move(error)); }

  /// Each statement affects one row.
  ado::Recordset Execute(std::string_view statement, long long* rowsAffected = nullptr) override;
  ado::Recordset OpenForUpdate(std::string_view statement) override { return Execute(statement); }
  void BeginTrans() override {}
  void CommitTrans() override {}
  void RollbackTrans() override {}
  bool inTransaction() const override { return false; }

 private:
  std::deque<std::variant<ado::Recordset, ado::Error>> answers_;
};

/// A result: the names of its columns, and the cells of one row after the other.
ado::Recordset resultOf(const std::vector<std::string>& names, std::vector<ado::Variant> cells);

}  // namespace korvantes::support
