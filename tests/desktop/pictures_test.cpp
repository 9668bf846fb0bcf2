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

namespace {

class Pictures : public testing::Test {
 protected:
  std::string path(const std::string& name) const { return fromQt(folder_.filePath(toQt(name))); }
  std::string file(const std::string& name, const std::string& bytes) const {
    std::ofstream(path(name), std::ios::binary) << bytes;
    return path(name);
  }
  static std::string encoded(const char* format, int size) {
    QImage image(size, size, QImage::Format_RGB32);
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
  return bytes + std::string("\x01\0\x18\0", 4) + std::string(24, '\0');
}

}  // namespace

TEST_F(Pictures, AreWrittenAsBmpWithWhiteForTransparentDotsOrFailClearly) {
  using namespace std::string_literals;
  // Its one dot is transparent.
  const std::string gif =
      "GIF89a\x01\0\x01\0\x80\0\0\xff\xff\xff\0\0\0\x21\xF9\x04\x01\0\0\x01\0,\0\0\0\0\x01\0\x01"
      "\0\0\x02\x02"
      "D\x01\0;"s;
  const screen::Picture picture = readPicture(file("a.gif", gif));
  writePicture(picture, path("copia.bmp"));
  const screen::Picture copy = readPicture(path("copia.bmp"));
  EXPECT_EQ(static_cast<char>(copy.file()[0]), 'B');
  EXPECT_EQ(imageOf(copy).pixelColor(0, 0), QColor(Qt::white));
  EXPECT_THROW(writePicture({}, path("a.bmp")), ado::Error);
  EXPECT_THROW(writePicture(picture, path("no/hay/a.bmp")), ado::Error);
}

TEST_F(Pictures, ThatAreGarbageAreAClearError) {
  const std::pair<std::string, const char*> cases[] = {{"", "no es una imagen"},
                                                       {encoded("png", 4), "no es una imagen bmp"},
                                                       {bmpHeader(6'000, 6'000), "20 millones"},
                                                       {bmpHeader(10, 0x80000000U), "imagen"},
                                                       {"BM", "imagen"}};
  for (const auto& [bytes, words] : cases)
    EXPECT_THAT(failure(file("mala.bmp", bytes)), testing::HasSubstr(words));
  // Cut off anywhere, a picture is read as far as it goes or refused.
  const std::string whole = encoded("jpg", 64);
  for (std::size_t size = 0; size < whole.size(); size += 13)
    failure(file("corta.jpg", whole.substr(0, size)));
  EXPECT_THAT(failure(path("no hay")), testing::EndsWith("no hay: no existe"));
  std::filesystem::resize_file(file("grande.bmp", encoded("bmp", 4)), (64U << 20U) + 1);
  EXPECT_THAT(failure(path("grande.bmp")), testing::HasSubstr("demasiado grande"));
  EXPECT_TRUE(imageOf({ado::Bytes(7), 3, 3}).isNull());
}

}  // namespace korvantes::desktop
