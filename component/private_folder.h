#pragma once

#include "runtime/ado/temporary_folder.h"

namespace korvantes {

/// A folder for files on their way that nobody else may see, a new one for each use, so that two
/// instances of the program never meet.
///
/// It is made in XDG_RUNTIME_DIR, which is kept in memory and ends with the user's session; else in
/// TMPDIR, else in /tmp. A place where others could replace the folder is skipped. Throws
/// ado::Error if no place accepts a folder.
ado::TemporaryFolder makePrivateFolder();

}  // namespace korvantes
