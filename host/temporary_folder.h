#pragma once

#include <filesystem>

namespace korvantes::host {

/// A private folder that is removed, with all that lies in it, when this ends.
class TemporaryFolder {
 public:
  /// Throws Failure when it cannot be made.
  TemporaryFolder();
  ~TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  const std::filesystem::path& path() const { return path_; }

 private:
  std::filesystem::path path_;
};

}  // namespace korvantes::host
