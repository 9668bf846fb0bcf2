#pragma once

#include "desktop/qt_desktop.h"

namespace korvantes::host {

/// Registers the outside objects for that desktop: reports open in a preview; spreadsheets ask
/// where to save, and can be opened at once. The desktop must outlive the forms that it shows.
void offerDocumentsOnWindows(desktop::QtDesktop& desktop);

}  // namespace korvantes::host
