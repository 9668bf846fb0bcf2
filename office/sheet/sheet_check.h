#pragma once

#include <cstdint>
#include <string>

namespace korvantes::office {

/// Whether the first sheet of a workbook is complete: libxlsxwriter does not notice when the disk
/// is full while it puts the sheet together, and packs what it has.
/// @param rowBytes length of all rows, as the workbook stores them before it packs them
bool sheetIsWhole(const std::string& file, std::uint64_t rowBytes);

}  // namespace korvantes::office
