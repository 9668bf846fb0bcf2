#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "engines/tsql/literal.h"

namespace korvantes::tsql {

/// A text without its literals: the key of the cache.
struct Fingerprint {
  std::string key;
  std::vector<Literal> literals;

  /// Reads a text in one pass. Returns False, with undefined members, if it cannot be read to its
  /// end. The literals point into `text`.
  bool read(std::string_view text);
};

}  // namespace korvantes::tsql
