#pragma once

#include "desktop/qt_desktop.h"

namespace korvantes::host {

/// Offers the screens of that desktop the outside objects for a user in front of it: reports come
/// up in a preview, spreadsheets ask where to be saved and can be opened at once. The desktop must
/// outlive the forms that it shows.
void offerDocumentsOnWindows(desktop::QtDesktop& desktop);

}  // namespace korvantes::host
