#pragma once

#include <filesystem>
#include <string>

namespace korvantes::support {

/// A folder for one test, deleted after it. It is in memory if possible, as every commit waits for
/// the disk.
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
