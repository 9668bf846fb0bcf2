// tests/support: connections that stand in for a database, or in front of one.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "runtime/ado/connection.h"

namespace korvantes::support {

/// A connection in front of another one. It counts the calls that pass through it and can fail one
/// of them, so that a test can sweep a procedure: count its calls once, then fail each in turn.
class FaultyConnection : public ado::Connection {
 public:
  /// When the chosen call fails.
  enum class When {
    Before,  ///< the database never sees the call
    After,   ///< the call is done and its answer lost
  };

  explicit FaultyConnection(std::shared_ptr<ado::Connection> real);

  /// Fails call number `call` from now on (1 is the next one) with `error`, once; the calls before
  /// and behind it pass.
  void failAt(std::size_t call, ado::Error error, When when = When::Before);
  /// No failure is due any more.
  void heal();
  /// True once the failure asked for has happened.
  bool failed() const { return failed_; }

  /// Whether RollbackTrans counts, and so can fail. It does not by default: a sweep asks what the
  /// rollback leaves behind.
  void countRollbacks(bool count) { countRollbacks_ = count; }

  /// The counted calls since the last failAt, heal or forgetCalls: statements, "BeginTrans",
  /// "CommitTrans", "RollbackTrans", and "Update" of a row opened for it.
  const std::vector<std::string>& calls() const { return calls_; }
  void forgetCalls() { calls_.clear(); }

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
  bool countRollbacks_ = false;
};

/// For a sweep at both.
inline constexpr FaultyConnection::When kMoments[] = {FaultyConnection::When::Before,
                                                      FaultyConnection::When::After};

}  // namespace korvantes::support
