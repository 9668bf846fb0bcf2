#pragma once

#include <filesystem>
#include <string>

#include "office/sheet/sheet_table.h"

namespace korvantes::office {

/// The most rows that a sheet takes, besides title, heading and sums.
constexpr std::size_t kMostRows = 1'048'576 - 6;

/// Writes a workbook of one sheet: title, heading, rows, sums, in constant memory.
/// @param file created or overwritten
/// @param temporary a folder for temporary files, as large as the sheet without compression, twice
/// @param place the file's name in messages
/// Throws ado::Error; the file is then useless.
void writeWorkbook(const SheetTable& table, const std::string& title,
                   const std::filesystem::path& file, const std::filesystem::path& temporary,
                   const std::filesystem::path& place);

}  // namespace korvantes::office
