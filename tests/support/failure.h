#pragma once

#include <functional>
#include <string>

#include "runtime/ado/error.h"

namespace korvantes::support {

/// The words of the failure of a call; empty without one.
inline std::string failureOf(const std::function<void()>& call) {
  try {
    call();
  } catch (const ado::Error& error) {
    return error.what();
  }
  return {};
}

}  // namespace korvantes::support
