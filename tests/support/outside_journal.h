#pragma once

#include <string>
#include <vector>

#include "scripts/headless_desktop.h"

namespace korvantes::support {

/// Replaces the report and the spreadsheet object, and writes down what a screen asks of them:
/// "MyBd = service", "ShowReport | 11 | select … | 0 (disabled, pointer 13)", "released".
struct OutsideJournal {
  std::vector<std::string> lines;
  /// The message that every call fails with; none if empty.
  std::string failure;

  /// Registers both objects; the journal must outlive them.
  void offer(scripts::HeadlessDesktop& desktop);
};

}  // namespace korvantes::support
