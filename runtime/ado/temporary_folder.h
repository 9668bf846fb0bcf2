#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace korvantes::ado {

/// A new folder that only its user can enter (mode 0700), with an unpredictable name. The
/// destructor deletes it with its contents.
class TemporaryFolder {
 public:
  /// Creates the folder "parent/prefixXXXXXX", by default in the system's temporary folder. Throws
  /// Error with errno as its number.
  explicit TemporaryFolder(const std::filesystem::path& parent = {},
                           std::string_view prefix = "korvantes-");
  TemporaryFolder(TemporaryFolder&& other) noexcept;
  TemporaryFolder& operator=(TemporaryFolder&& other) = delete;
  ~TemporaryFolder();

  const std::filesystem::path& path() const { return path_; }
  /// The path of a file in it.
  std::string file(std::string_view name) const { return (path_ / name).string(); }

 private:
  std::filesystem::path path_;  ///< empty once moved from
};

}  // namespace korvantes::ado
