#pragma once

#include "runtime/ado/temporary_folder.h"

namespace korvantes::support {

/// A folder of its own for one test. In memory where the system offers it: every commit waits for
/// the disk.
struct TemporaryFolder : ado::TemporaryFolder {
  TemporaryFolder()
      : ado::TemporaryFolder(std::filesystem::is_directory("/dev/shm") ? "/dev/shm" : "") {}
};

}  // namespace korvantes::support
