#pragma once

#include <string>
#include <utility>

#include "runtime/ado/variant.h"

namespace korvantes::ado {

/// Bytes in memory, read from a file or to be written to one.
class Stream {
 public:
  /// Largest file that is read: 64 MiB. A larger one is an Error, not a machine out of memory.
  static constexpr std::size_t kMaxBytes = std::size_t{64} << 20U;

  /// Replaces the contents by those of a whole regular file. Throws Error with the system's
  /// words.
  void LoadFromFile(const std::string& path);
  /// Writes all bytes, replacing the file; it is made readable by its owner alone. A link in its
  /// place is not followed. Throws Error with the system's words and leaves no half-written file.
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
