#include <gtest/gtest.h>

#include "runtime/screen/picture_file.h"

namespace korvantes::screen {
namespace {

TEST(Pictures, TellTheirSizeByTheirFirstBytes) {
  using namespace std::string_view_literals;
  for (const std::string_view file :
       {"BM\0\0\0\0\0\0\0\0\x36\0\0\0\x28\0\0\0\x40\1\0\0\x10\xFF\xFF\xFF"sv,
        "GIF89a\x40\1\xF0\0"sv, "\xFF\xD8\xFF\xE0\0\4ab\xFF\xFF\xC0\0\x11\x08\0\xF0\1\x40"sv,
        "II*\0\x08\0\0\0\2\0\0\1\3\0\1\0\0\0\x40\1\0\0\1\1\4\0\1\0\0\0\xF0\0\0\0"sv}) {
    ado::Bytes bytes;
    for (const char byte : file) {
      EXPECT_FALSE(pictureSize(bytes)) << file << " " << bytes.size();
      bytes.push_back(static_cast<std::byte>(byte));
    }
    const auto size = pictureSize(bytes);
    ASSERT_TRUE(size) << file;
    EXPECT_EQ(size->width, 320) << file;
    EXPECT_EQ(size->height, 240) << file;
  }
  EXPECT_FALSE(pictureSize(ado::Bytes(100, std::byte{'%'})));
}

}  // namespace
}  // namespace korvantes::screen
