#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "runtime/ado/connection.h"

namespace korvantes::support {

/// A connection in front of another one. It counts the calls that pass through it and can fail one
/// of them.
class FaultyConnection : public ado::Connection {
 public:
  /// When the chosen call fails.
  enum class When {
    Before,  ///< the database never sees the call
    After,   ///< the call is done and its answer lost
  };

  explicit FaultyConnection(std::shared_ptr<ado::Connection> real) : real_(std::move(real)) {}

  /// Fails the given call from now on (1 is the next one) with `error`, once.
  void failAt(std::size_t call, ado::Error error, When when = When::Before);
  /// Fails no call any more.
  void heal();
  /// Whether the failure has happened.
  bool failed() const { return failed_; }

  /// The calls since the last failAt, heal or forgetCalls: statements, "BeginTrans", "CommitTrans",
  /// and "Update" of a row opened for it. Rollbacks pass uncounted: a sweep asks what they restore.
  const std::vector<std::string>& calls() const { return calls_; }
  void forgetCalls() { calls_.clear(); }

  /// Called with each counted call before it passes.
  std::function<void(std::string_view)> onCall;
  /// How many of the next rollbacks fail.
  int rollbackRefusals = 0;

  ado::Recordset Execute(std::string_view statement, long long* rowsAffected = nullptr) override;
  void BeginTrans() override;
  void CommitTrans() override;
  void RollbackTrans() override;
  bool inTransaction() const override { return real_->inTransaction(); }
  ado::Recordset OpenForUpdate(std::string_view statement) override;

 private:
  struct Failure {
    std::size_t call;
    ado::Error error;
    When when;
  };

  class Row;

  /// Passes a call on, or fails it.
  template <class Call>
  auto counted(std::string_view name, Call call);
  void fail();

  std::shared_ptr<ado::Connection> real_;
  std::vector<std::string> calls_;
  std::optional<Failure> failure_;
  bool failed_ = false;
};

}  // namespace korvantes::support
