#pragma once

#include <string>

namespace korvantes::office {

/// A text as a cell can hold it: valid UTF-8 of characters that a workbook may have, at most 32,767
/// units of UTF-16. A longer one is cut and ends in "…"; what is not valid stands as U+FFFD.
std::string cellText(const std::string& text);

/// "TITLE.xlsx", without what file systems refuse in a name and not longer than they take.
std::string fileNameFor(const std::string& title);

}  // namespace korvantes::office
