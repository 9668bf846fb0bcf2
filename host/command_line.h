#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "runtime/ado/date.h"
#include "runtime/screen/regional.h"

namespace korvantes::host {

/// What the user asked for: options, then an order with its arguments.
struct CommandLine {
  std::optional<std::string> base;           ///< URL of the database; empty: the sample database
  std::optional<screen::Regional> regional;  ///< empty: the machine's
  std::optional<ado::Date> today;            ///< empty: the machine's
  bool desktop = false;                      ///< real windows, also for scripts
  /// Where reports, spreadsheets and pictures go if there is no display.
  std::filesystem::path output = "out";
  bool help = false;
  bool version = false;
  std::string order;  ///< empty: opens the desktop
  std::vector<std::string> arguments;
};

/// Reads the arguments after the program's name. Throws Failure for an unknown option, a missing
/// value or an invalid one.
CommandLine readCommandLine(const std::vector<std::string>& arguments);

/// The text of --ayuda.
extern const std::string_view kHelp;

}  // namespace korvantes::host
