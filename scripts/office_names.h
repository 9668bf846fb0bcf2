#pragma once

namespace korvantes::scripts {

/// Program identifiers of the outside objects.
constexpr const char* kSpreadsheetObject = "BELTRIS.bSheets";
constexpr const char* kReportObject = "marzenes.MZPrint";

}  // namespace korvantes::scripts
