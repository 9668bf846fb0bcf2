#pragma once

#include <cstdint>
#include <string>

namespace korvantes::office {

/// Whether the first sheet of a workbook is complete: libxlsxwriter does not notice a full disk
/// while it assembles the sheet, and packs an incomplete one.
/// @param rowBytes length of all rows, as stored before packing
bool sheetIsWhole(const std::string& file, std::uint64_t rowBytes);

}  // namespace korvantes::office
