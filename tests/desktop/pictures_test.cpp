#include "desktop/pictures.h"

#include <QBuffer>
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>

#include "runtime/ado/error.h"
#include "runtime/ado/temporary_folder.h"
#include "tests/support/failure.h"

namespace korvantes::desktop {

namespace {

class Pictures : public testing::Test {
 protected:
  std::string file(const std::string& name, const std::string& bytes) const {
    std::ofstream(folder_.file(name), std::ios::binary) << bytes;
    return folder_.file(name);
  }
  static std::string encoded(const char* format) {
    QImage image(64, 64, QImage::Format_RGB32);
    image.fill(QColor(10, 200, 30));
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    EXPECT_TRUE(image.save(&buffer, format));
    return buffer.data().toStdString();
  }
  static std::string failure(const std::string& file) {
    return support::failureOf([&] { readPicture(file); });
  }

  ado::TemporaryFolder folder_;
};

}  // namespace

TEST_F(Pictures, AreWrittenAsBmpWithWhiteForTransparentDotsOrFailClearly) {
  using namespace std::string_literals;
  // Its one dot is transparent.
  const std::string gif =
      "GIF89a\x01\0\x01\0\x80\0\0\xff\xff\xff\0\0\0\x21\xF9\x04\x01\0\0\x01\0,\0\0\0\0\x01\0\x01"
      "\0\0\x02\x02"
      "D\x01\0;"s;
  const screen::Picture picture = readPicture(file("a.gif", gif));
  writePicture(picture, folder_.file("copia.bmp"));
  const screen::Picture copy = readPicture(folder_.file("copia.bmp"));
  EXPECT_EQ(static_cast<char>(copy.file()[0]), 'B');
  EXPECT_EQ(imageOf(copy).pixelColor(0, 0), QColor(Qt::white));
  EXPECT_THROW(writePicture({}, folder_.file("a.bmp")), ado::Error);
  EXPECT_THROW(writePicture(picture, folder_.file("no/hay/a.bmp")), ado::Error);
}

TEST_F(Pictures, ThatAreGarbageAreAClearError) {
  const std::string bmp = encoded("bmp");
  std::string endless = bmp;
  endless.replace(22, 4, std::string("\0\0\0\x80", 4));  // its height
  for (const std::string& bytes : {std::string(), std::string("BM"), encoded("png"), endless})
    EXPECT_THAT(failure(file("mala.bmp", bytes)), testing::HasSubstr("imagen"));
  // Cut off anywhere, a picture is read as far as it goes or refused.
  const std::string whole = encoded("jpg");
  for (std::size_t size = 0; size < whole.size(); size += 13)
    failure(file("corta.jpg", whole.substr(0, size)));
  std::filesystem::resize_file(file("grande.bmp", bmp), (64U << 20U) + 1);
  EXPECT_THAT(failure(folder_.file("grande.bmp")), testing::HasSubstr("demasiado grande"));
  EXPECT_TRUE(imageOf({ado::Bytes(7), 3, 3}).isNull());
}

}  // namespace korvantes::desktop
