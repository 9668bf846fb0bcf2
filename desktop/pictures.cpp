#include "desktop/pictures.h"

#include <QBuffer>
#include <QByteArray>
#include <QImageReader>
#include <QImageWriter>
#include <QPainter>
#include <array>
#include <cstddef>

#include "runtime/ado/error.h"
#include "runtime/ado/stream.h"
#include "runtime/screen/picture_file.h"

namespace korvantes::desktop {

namespace {

[[noreturn]] void fail(const std::string& words) {
  throw ado::Error(0, words);
}

bool knownFormat(const QByteArray& format) {
  static constexpr std::array kFormats{"bmp", "jpg", "jpeg", "gif", "tif", "tiff"};
  for (const char* known : kFormats)
    if (format == known) return true;
  return false;
}

/// A view of the bytes, without a copy.
QByteArray bytesOf(const ado::Bytes& bytes) {
  return QByteArray::fromRawData(reinterpret_cast<const char*>(bytes.data()),
                                 static_cast<qsizetype>(bytes.size()));
}

/// The first picture in the bytes; a null image, with the reason, if there is none.
QImage decode(const ado::Bytes& bytes, std::string& reason) {
  QByteArray file = bytesOf(bytes);
  QBuffer buffer(&file);
  buffer.open(QIODevice::ReadOnly);
  QImageReader reader(&buffer);
  // Camera pictures store their orientation in their metadata.
  reader.setAutoTransform(true);
  if (!knownFormat(reader.format())) {
    reason = screen::kNoPicture;
    return {};
  }
  const QSize size = reader.size();
  if (screen::PictureSize{size.width(), size.height()}.tooLarge()) {
    reason = screen::kTooManyPixels;
    return {};
  }
  QImage image = reader.read();
  if (image.isNull()) reason = "es una imagen dañada";
  return image;
}

/// On white: a bmp file has no transparency and would be black there.
QImage opaque(const QImage& image) {
  if (!image.hasAlphaChannel()) return image;
  QImage ground(image.size(), QImage::Format_RGB32);
  ground.fill(Qt::white);
  QPainter(&ground).drawImage(0, 0, image);
  return ground;
}

}  // namespace

screen::Picture readPicture(const std::string& path) {
  ado::Stream file;
  file.LoadFromFile(path);
  std::string reason;
  const QImage image = decode(file.Read(), reason);
  if (image.isNull()) fail("El fichero " + path + ' ' + reason);
  return {file.Take(), image.width(), image.height(), image};
}

void writePicture(const screen::Picture& picture, const std::string& path) {
  if (picture.empty()) fail("No hay ninguna imagen que guardar");
  const QImage image = imageOf(picture);
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  if (image.isNull() || !QImageWriter(&buffer, "bmp").write(opaque(image)))
    fail("La imagen no se puede guardar: está dañada");
  ado::Stream file;
  const auto* first = reinterpret_cast<const std::byte*>(buffer.data().constData());
  file.Write(ado::Bytes(first, first + buffer.size()));
  file.SaveToFile(path);
}

QImage imageOf(const screen::Picture& picture) {
  if (picture.empty()) return {};
  if (const auto* image = std::any_cast<QImage>(&picture.decoded())) return *image;
  std::string reason;
  return decode(picture.file(), reason);
}

}  // namespace korvantes::desktop
