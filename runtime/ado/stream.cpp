#include "runtime/ado/stream.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

#include "runtime/ado/error.h"
#include "runtime/ado/system_words.h"

namespace korvantes::ado {

namespace {

[[noreturn]] void fail(const std::string& what, const std::string& path, int number) {
  throw Error(systemErrorKind(number), number, what + " " + path + ": " + systemWords(number));
}

/// An open file; the destructor closes it.
class Descriptor {
 public:
  explicit Descriptor(int number) : number_(number) {}
  ~Descriptor() {
    if (number_ >= 0) ::close(number_);
  }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  int number() const { return number_; }
  /// Closes the file now, for callers that need the result.
  bool close() { return ::close(std::exchange(number_, -1)) == 0; }

 private:
  int number_;
};

/// A temporary file; the destructor deletes it unless it got its final name.
class HalfWritten {
 public:
  explicit HalfWritten(std::string path) : path_(std::move(path)) {}
  ~HalfWritten() {
    if (!path_.empty()) ::unlink(path_.c_str());
  }
  HalfWritten(const HalfWritten&) = delete;
  HalfWritten& operator=(const HalfWritten&) = delete;
  bool moveTo(const std::string& path) {
    if (std::rename(path_.c_str(), path.c_str()) != 0) return false;
    path_.clear();
    return true;
  }

 private:
  std::string path_;
};

}  // namespace

void Stream::LoadFromFile(const std::string& path) {
  const char* const kCannot = "No se puede leer el fichero";
  // Without O_NONBLOCK a pipe with no writer would hold the program up.
  const Descriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
  if (file.number() < 0) fail(kCannot, path, errno);
  struct stat state {};
  if (::fstat(file.number(), &state) != 0) fail(kCannot, path, errno);
  if (S_ISDIR(state.st_mode)) fail(kCannot, path, EISDIR);
  if (!S_ISREG(state.st_mode)) fail(kCannot, path, EINVAL);
  if (static_cast<std::size_t>(state.st_size) > kMaxBytes) fail(kCannot, path, EFBIG);

  Bytes bytes;
  constexpr std::size_t kPiece = std::size_t{1} << 16U;
  bytes.reserve(static_cast<std::size_t>(state.st_size) + kPiece);
  for (;;) {
    const std::size_t had = bytes.size();
    if (had > kMaxBytes) fail(kCannot, path, EFBIG);  // it has grown since
    bytes.resize(had + kPiece);
    const ssize_t got = ::read(file.number(), bytes.data() + had, kPiece);
    if (got < 0 && errno != EINTR) fail(kCannot, path, errno);
    bytes.resize(had + static_cast<std::size_t>(got > 0 ? got : 0));
    if (got == 0) break;
  }
  bytes_ = std::move(bytes);
}

void Stream::SaveToFile(const std::string& path) const {
  const char* const kCannot = "No se puede escribir el fichero";
  std::string passing = path + ".XXXXXX";
  Descriptor file(::mkostemp(passing.data(), O_CLOEXEC));  // mode 0600
  if (file.number() < 0) fail(kCannot, path, errno);
  HalfWritten half(passing);
  std::size_t done = 0;
  while (done < bytes_.size()) {
    const ssize_t put = ::write(file.number(), bytes_.data() + done, bytes_.size() - done);
    if (put < 0 && errno != EINTR) fail(kCannot, path, errno);
    done += static_cast<std::size_t>(put > 0 ? put : 0);
  }
  if (!file.close()) fail(kCannot, path, errno);
  // A rename replaces a link itself, never the file it points to.
  if (!half.moveTo(path)) fail(kCannot, path, errno);
}

void Stream::Write(const Bytes& bytes) {
  bytes_.insert(bytes_.end(), bytes.begin(), bytes.end());
}

}  // namespace korvantes::ado
