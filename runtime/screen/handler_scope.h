#pragma once

namespace korvantes::screen {

/// Exists while an event handler of the form runs.
class HandlerScope {
 public:
  explicit HandlerScope(int& depth) : depth_(depth) { ++depth_; }
  ~HandlerScope() { --depth_; }
  HandlerScope(const HandlerScope&) = delete;
  HandlerScope& operator=(const HandlerScope&) = delete;

 private:
  int& depth_;
};

}  // namespace korvantes::screen
