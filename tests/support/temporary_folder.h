#pragma once

#include "runtime/ado/temporary_folder.h"

namespace korvantes::support {

/// A folder of its own for one test. In memory where the system offers it: every commit waits for
/// the disk.
class TemporaryFolder : public ado::TemporaryFolder {
 public:
  TemporaryFolder();
};

}  // namespace korvantes::support
