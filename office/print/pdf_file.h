#pragma once

#include <filesystem>

#include "office/outlets.h"

namespace korvantes::office {

/// Writes the report as a PDF file. An existing file is replaced once the new one is complete on
/// the disk; on failure it is unchanged and no half-written file is left. Needs an application
/// object of Qt. Throws ado::Error with a Spanish sentence.
void writePdf(const Report& report, const std::filesystem::path& file);

}  // namespace korvantes::office
