#pragma once

#include <string>
#include <utility>

#include "runtime/ado/variant.h"

namespace korvantes::ado {

/// Bytes in memory, read from a file or to be written to one.
class Stream {
 public:
  /// Largest file that is read: 64 MiB. A larger one throws Error instead of using up the memory.
  static constexpr std::size_t kMaxBytes = std::size_t{64} << 20U;

  /// Replaces the contents with those of a regular file. Throws Error with the system's reason.
  void LoadFromFile(const std::string& path);
  /// Writes all bytes, replacing the file, which only its owner can read. A symbolic link is
  /// replaced, not followed. Throws Error with the system's reason and leaves no half-written file.
  void SaveToFile(const std::string& path) const;

  void Write(const Bytes& bytes);
  /// All bytes.
  const Bytes& Read() const { return bytes_; }
  /// Moves all bytes out of the stream: pictures are too large to be copied needlessly.
  Bytes Take() { return std::exchange(bytes_, {}); }

 private:
  Bytes bytes_;
};

}  // namespace korvantes::ado
