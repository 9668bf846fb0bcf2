#pragma once

#include <string>
#include <string_view>

namespace korvantes::screen {

/// The regional settings under which numbers and dates are shown and read.
struct Regional {
  std::string name = "es-ES";
  char decimalSeparator = ',';
  char thousandsSeparator = '.';

  /// "es-ES", "es_ES.UTF-8", "en-US", "de-DE" … Throws std::invalid_argument for an
  /// unknown name.
  static Regional named(std::string_view name);
  /// The machine's (LC_ALL, LC_NUMERIC, LANG); Spanish if it has none (C, POSIX) or an
  /// unknown one.
  static Regional ofMachine();
};

}  // namespace korvantes::screen
