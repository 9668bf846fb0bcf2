#include <gtest/gtest.h>

#include "runtime/screen/picture_file.h"

namespace korvantes::screen {
namespace {

ado::Bytes bytes(std::string_view text) {
  ado::Bytes result;
  for (const char c : text) result.push_back(static_cast<std::byte>(c));
  return result;
}

constexpr std::string_view kBmp("BM\0\0\0\0\0\0\0\0\x36\0\0\0\x28\0\0\0\x40\1\0\0\x10\xFF\xFF\xFF",
                                26);
constexpr std::string_view kGif("GIF89a\x40\1\xF0\0", 10);
constexpr std::string_view kJpg("\xFF\xD8\xFF\xE0\0\4ab\xFF\xFF\xC0\0\x11\x08\0\xF0\1\x40", 18);
constexpr std::string_view kTif(
    "II*\0\x08\0\0\0\2\0\0\1\3\0\1\0\0\0\x40\1\0\0\1\1\4\0\1\0\0\0\xF0\0\0\0", 34);

TEST(Pictures, TellTheirSizeByTheirFirstBytes) {
  for (const std::string_view file : {kBmp, kGif, kJpg, kTif}) {
    const auto size = pictureSize(bytes(file));
    ASSERT_TRUE(size) << file;
    EXPECT_EQ(size->width, 320) << file;
    EXPECT_EQ(size->height, 240) << file;
    for (std::size_t cut = 0; cut < file.size(); ++cut)
      EXPECT_FALSE(pictureSize(bytes(file.substr(0, cut)))) << file << " " << cut;
  }
  EXPECT_FALSE(pictureSize(bytes("%PDF-1.4 no es una imagen")));
}

}  // namespace
}  // namespace korvantes::screen
