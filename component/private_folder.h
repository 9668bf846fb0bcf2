#pragma once

#include "runtime/ado/temporary_folder.h"

namespace korvantes {

/// Creates a private folder for temporary files, new for each use, so that two instances of the
/// program never interfere.
///
/// It is in XDG_RUNTIME_DIR, which is in memory and ends with the user's session; else in TMPDIR,
/// else in /tmp. A place where others could replace the folder is skipped. Throws ado::Error if no
/// place accepts a folder.
ado::TemporaryFolder makePrivateFolder();

}  // namespace korvantes
