#pragma once

#include <string>

namespace korvantes::office {

/// A text that a cell can hold: valid UTF-8 of characters that a workbook allows, at most 32,767
/// units of UTF-16. A longer one is cut and ends in "…"; what is not valid becomes U+FFFD.
std::string cellText(const std::string& text);

/// "TITLE.xlsx", without characters that file systems reject and no longer than they allow.
std::string fileNameFor(const std::string& title);

}  // namespace korvantes::office
