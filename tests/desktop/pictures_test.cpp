#include "desktop/pictures.h"

#include <QBuffer>
#include <QImageWriter>
#include <QTemporaryDir>
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>

#include "desktop/look.h"
#include "runtime/ado/error.h"

namespace korvantes::desktop {

using testing::EndsWith;
using testing::HasSubstr;
using namespace std::string_literals;

namespace {

class Pictures : public testing::Test {
 protected:
  std::string path(const std::string& name) const { return fromQt(folder_.filePath(toQt(name))); }
  std::string file(const std::string& name, const std::string& bytes) const {
    std::ofstream(path(name), std::ios::binary) << bytes;
    return path(name);
  }
  static std::string encoded(const char* format, int width, int height) {
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(QColor(10, 200, 30));
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    EXPECT_TRUE(QImageWriter(&buffer, format).write(image)) << format;
    return buffer.data().toStdString();
  }
  static std::string failure(const std::string& file) {
    try {
      readPicture(file);
    } catch (const ado::Error& error) {
      return error.what();
    }
    return "";
  }

 private:
  QTemporaryDir folder_;
};

/// A bmp header that promises a size.
std::string bmpHeader(std::uint32_t width, std::uint32_t height) {
  std::string bytes("BM\0\0\0\0\0\0\0\0\x36\0\0\0\x28\0\0\0", 18);
  for (const std::uint32_t number : {width, height})
    for (int i = 0; i < 4; ++i) bytes += static_cast<char>(number >> (8 * i) & 0xFFU);
  bytes += std::string("\x01\0\x18\0", 4) + std::string(24, '\0');
  return bytes;
}

}  // namespace

TEST_F(Pictures, AreWrittenAsBmpWithWhiteForTransparentDots) {
  // Its one dot is transparent.
  const std::string gif =
      "GIF89a\x01\0\x01\0\x80\0\0\xff\xff\xff\0\0\0\x21\xF9\x04\x01\0\0\x01\0,\0\0\0\0\x01\0\x01"
      "\0\0\x02\x02"
      "D\x01\0;"s;
  writePicture(readPicture(file("a.gif", gif)), path("copia.bmp"));
  const screen::Picture copy = readPicture(path("copia.bmp"));
  EXPECT_EQ(static_cast<char>(copy.file()[0]), 'B');
  EXPECT_EQ(imageOf(copy).pixelColor(0, 0), QColor(Qt::white));
}

TEST_F(Pictures, GarbageIsAClearError) {
  const std::string whole = encoded("jpg", 64, 64);
  struct Case {
    std::string bytes;
    const char* words;
  };
  for (const Case& each :
       {Case{"", "no es una imagen"}, Case{"no soy una imagen", "no es una"},
        Case{encoded("png", 4, 4), "no es una imagen bmp"},
        Case{bmpHeader(6'000, 6'000), "20 millones"}, Case{bmpHeader(10, 0x80000000U), "imagen"},
        Case{"BM", "imagen"}, Case{"\xFF\xD8\xFF", "imagen"}})
    EXPECT_THAT(failure(file("mala.bmp", each.bytes)), HasSubstr(each.words));
  // Cut off anywhere, a picture is read as far as it goes or refused.
  for (std::size_t size = 0; size < whole.size(); size += 13)
    failure(file("corta.jpg", whole.substr(0, size)));

  EXPECT_THAT(failure(path("no hay")), EndsWith("no hay: no existe"));
  std::filesystem::resize_file(file("grande.bmp", encoded("bmp", 4, 4)), (64U << 20U) + 1);
  EXPECT_THAT(failure(path("grande.bmp")), HasSubstr("demasiado grande"));
}

TEST_F(Pictures, ThatCannotBeWrittenAreAClearError) {
  EXPECT_THROW(writePicture({}, path("a.bmp")), ado::Error);
  const screen::Picture picture = readPicture(file("a.bmp", encoded("bmp", 2, 2)));
  EXPECT_THROW(writePicture(picture, path("no/hay/a.bmp")), ado::Error);
  EXPECT_TRUE(imageOf({ado::Bytes(7), 3, 3}).isNull());
}

}  // namespace korvantes::desktop
