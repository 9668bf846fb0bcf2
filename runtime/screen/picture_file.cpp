#include "runtime/screen/picture_file.h"

#include <cstdint>
#include <cstdlib>
#include <string_view>

namespace korvantes::screen {

namespace {

/// Numbers in a file, in either byte order. Empty past the end.
class Reader {
 public:
  Reader(const ado::Bytes& file, bool bigEndian) : file_(file), bigEndian_(bigEndian) {}

  std::optional<std::uint32_t> number(std::size_t at, std::size_t bytes) const {
    if (at > file_.size() || bytes > file_.size() - at) return std::nullopt;
    std::uint32_t value = 0;
    for (std::size_t i = 0; i < bytes; ++i)
      value = value << 8U |
              std::to_integer<std::uint32_t>(file_[at + (bigEndian_ ? i : bytes - 1 - i)]);
    return value;
  }
  std::optional<PictureSize> size(std::size_t widthAt, std::size_t heightAt,
                                  std::size_t bytes) const {
    return made(number(widthAt, bytes), number(heightAt, bytes));
  }
  static std::optional<PictureSize> made(std::optional<std::uint32_t> width,
                                         std::optional<std::uint32_t> height) {
    if (!width || !height) return std::nullopt;
    // A bmp stored from top to bottom has a negative height.
    const auto rows = std::llabs(static_cast<std::int32_t>(*height));
    const auto columns = static_cast<std::int32_t>(*width);
    if (columns < 1 || rows < 1 || rows > INT32_MAX) return std::nullopt;
    return PictureSize{columns, static_cast<int>(rows)};
  }

 private:
  const ado::Bytes& file_;
  bool bigEndian_;
};

bool begins(const ado::Bytes& file, std::string_view mark) {
  if (file.size() < mark.size()) return false;
  for (std::size_t i = 0; i < mark.size(); ++i)
    if (file[i] != static_cast<std::byte>(mark[i])) return false;
  return true;
}

std::optional<PictureSize> bmpSize(const Reader& file) {
  constexpr std::uint32_t kOldHeader = 12;  // with sizes of two bytes
  return file.number(14, 4) == kOldHeader ? file.size(18, 20, 2) : file.size(18, 22, 4);
}

/// Walks the segments to the one that begins a frame.
std::optional<PictureSize> jpgSize(const Reader& file) {
  for (std::size_t at = 2;;) {
    const auto mark = file.number(at, 2);
    const auto length = file.number(at + 2, 2);
    if (mark == 0xFFFFU) {  // padding
      ++at;
      continue;
    }
    if (!mark || !length || (*mark >> 8U) != 0xFF || *length < 2) return std::nullopt;
    const bool frame =
        *mark >= 0xFFC0 && *mark <= 0xFFCF && *mark != 0xFFC4 && *mark != 0xFFC8 && *mark != 0xFFCC;
    if (frame) return file.size(at + 7, at + 5, 2);
    at += 2 + *length;
  }
}

/// The tags for width and height in the first directory.
std::optional<PictureSize> tifSize(const Reader& file) {
  constexpr std::uint32_t kWidthTag = 256, kHeightTag = 257, kShort = 3;
  const auto directory = file.number(4, 4);
  const auto entries = directory ? file.number(*directory, 2) : std::nullopt;
  std::optional<std::uint32_t> width, height;
  for (std::size_t i = 0; entries && i < *entries; ++i) {
    const std::size_t entry = *directory + 2 + 12 * i;
    const auto tag = file.number(entry, 2);
    if (!tag) return std::nullopt;
    const auto value = file.number(entry + 8, file.number(entry + 2, 2) == kShort ? 2 : 4);
    if (*tag == kWidthTag) width = value;
    if (*tag == kHeightTag) height = value;
  }
  return Reader::made(width, height);
}

}  // namespace

std::optional<PictureSize> pictureSize(const ado::Bytes& file) {
  const Reader little(file, false);
  const Reader big(file, true);
  if (begins(file, "BM")) return bmpSize(little);
  if (begins(file, "GIF8")) return little.size(6, 8, 2);
  if (begins(file, "\xFF\xD8\xFF")) return jpgSize(big);
  if (begins(file, std::string_view("II*\0", 4))) return tifSize(little);
  if (begins(file, std::string_view("MM\0*", 4))) return tifSize(big);
  return std::nullopt;
}

}  // namespace korvantes::screen
