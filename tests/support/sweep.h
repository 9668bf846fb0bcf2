#pragma once

#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "tests/support/faulty_connection.h"

namespace korvantes::support {

/// One run of a sweep: the call of an action that fails, and what became of it.
class Fault {
 public:
  using When = FaultyConnection::When;
  /// The message of the failure.
  static constexpr const char* kWords = "disco lleno";

  Fault(std::size_t call, When when) : call_(call), when_(when) {}

  /// Runs the action with its call failing once.
  void during(FaultyConnection& connection, const std::function<void()>& action) {
    connection.failAt(call_, ado::Error(13, kWords), when_);
    action();
    met_ = connection.failed();
    calls_ = connection.calls();
    connection.heal();
  }

  std::size_t call() const { return call_; }
  /// Whether the action got as far as the call; otherwise it must have succeeded.
  bool met() const { return met_; }
  /// Whether the failed call was this one.
  bool at(std::string_view name) const { return met_ && calls_[call_ - 1] == name; }
  /// Whether the failed call was this one and only its answer was lost.
  bool afterwards(std::string_view name) const { return when_ == When::After && at(name); }
  /// The calls of the action.
  const std::vector<std::string>& calls() const { return calls_; }

 private:
  std::size_t call_;
  When when_;
  bool met_ = false;
  std::vector<std::string> calls_;
};

/// Runs a test with the first call of an action failing, then with the second one, and so on until
/// the action succeeds: once for calls that the database never sees, once for calls that are done
/// but whose answer is lost. Every run has a world of its own. The action makes at least `calls`.
template <class World, class Run>
void sweep(std::size_t calls, Run run) {
  for (const auto when : {Fault::When::Before, Fault::When::After}) {
    bool met = true;
    for (std::size_t call = 1; met; ++call) {
      SCOPED_TRACE("call " + std::to_string(call) +
                   (when == Fault::When::Before ? " is not done" : " is done, its answer lost"));
      ASSERT_LT(call, 50U);
      World world;
      Fault fault(call, when);
      run(world, fault);
      met = fault.met();
      EXPECT_TRUE(met || call > calls);
    }
  }
}

}  // namespace korvantes::support
