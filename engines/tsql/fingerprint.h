#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "engines/tsql/literal.h"

namespace korvantes::tsql {

/// A text with its literals taken out: what the cache goes by.
struct Fingerprint {
  std::string key;
  std::vector<Literal> literals;

  /// Reads a text in one pass. False, with nothing to rely on, for a text that cannot be read to
  /// its end. The literals point into `text`.
  bool read(std::string_view text);
};

}  // namespace korvantes::tsql
