#pragma once

#include <string>
#include <vector>

#include "scripts/headless_desktop.h"

namespace korvantes::support {

/// Stands in for the report and the spreadsheet object, and writes down what a screen asks of them:
/// "MyBd = service", "ShowReport | 11 | select … | 0 (disabled, pointer 13)", "released".
struct OutsideJournal {
  std::vector<std::string> lines;
  /// The words that every call fails with, if any.
  std::string failure;

  /// Registers the objects of both names; the journal has to outlive them.
  void offer(scripts::HeadlessDesktop& desktop);
};

}  // namespace korvantes::support
