#pragma once

#include <filesystem>
#include <string>

namespace korvantes::support {

/// A folder of its own for one test, gone after it. In memory where the system offers it: every
/// commit waits for the disk.
class TemporaryFolder {
 public:
  TemporaryFolder();
  ~TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  std::string file(const std::string& name) const { return (path_ / name).string(); }

 private:
  std::filesystem::path path_;
};

}  // namespace korvantes::support
