#pragma once

#include <functional>
#include <string>

#include "runtime/ado/error.h"

namespace korvantes::support {

/// The message of a call's failure; empty if it succeeds.
inline std::string failureOf(const std::function<void()>& call) {
  try {
    call();
  } catch (const ado::Error& error) {
    return error.what();
  }
  return {};
}

}  // namespace korvantes::support
