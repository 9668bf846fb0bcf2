#include "desktop/pictures.h"

#include <QBuffer>
#include <QByteArray>
#include <QFile>
#include <QImageReader>
#include <QImageWriter>
#include <QSaveFile>
#include <array>
#include <cstddef>
#include <optional>

#include "desktop/look.h"
#include "outside/ado/error.h"

namespace korvantes::desktop {

namespace {

constexpr qint64 kMostBytes = 64LL * 1024 * 1024;
constexpr qint64 kMostPixels = 20'000'000;

[[noreturn]] void fail(const std::string& words) {
  throw ado::Error(0, words);
}

bool knownFormat(const QByteArray& format) {
  static constexpr std::array kFormats{"bmp", "jpg", "jpeg", "gif", "tif", "tiff"};
  for (const char* known : kFormats)
    if (format == known) return true;
  return false;
}

/// The first picture in the bytes; a null image, with the reason, where there is none.
QImage decode(const QByteArray& bytes, std::string& reason) {
  QBuffer buffer;
  buffer.setData(bytes);
  buffer.open(QIODevice::ReadOnly);
  QImageReader reader(&buffer);
  // Camera pictures tell in their data which side is up.
  reader.setAutoTransform(true);
  if (!knownFormat(reader.format())) {
    reason = "no es una imagen bmp, jpg, gif o tif";
    return {};
  }
  const QSize size = reader.size();
  if (size.isValid() && qint64{size.width()} * size.height() > kMostPixels) {
    reason = "tiene más de 20 millones de puntos";
    return {};
  }
  QImage image = reader.read();
  if (image.isNull()) reason = "es una imagen dañada";
  return image;
}

QByteArray bytesOf(const ado::Bytes& bytes) {
  return QByteArray::fromRawData(reinterpret_cast<const char*>(bytes.data()),
                                 static_cast<qsizetype>(bytes.size()));
}

}  // namespace

screen::Picture readPicture(const std::string& path) {
  QFile file(toQt(path));
  if (!file.open(QIODevice::ReadOnly))
    fail("No se puede leer el fichero " + path + ": " + fromQt(file.errorString()));
  // One byte more than allowed tells too large a file, also of a device that has no size.
  const QByteArray bytes = file.read(kMostBytes + 1);
  if (bytes.size() > kMostBytes) fail("El fichero " + path + " ocupa más de 64 MiB");
  std::string reason;
  const QImage image = decode(bytes, reason);
  if (image.isNull()) fail("El fichero " + path + " " + reason);
  const auto* first = reinterpret_cast<const std::byte*>(bytes.constData());
  return {ado::Bytes(first, first + bytes.size()), image.width(), image.height()};
}

void writePicture(const screen::Picture& picture, const std::string& path) {
  if (picture.empty()) fail("No hay ninguna imagen que guardar");
  std::string reason;
  const QImage image = decode(bytesOf(picture.file()), reason);
  if (image.isNull()) fail("La imagen no se puede guardar: " + reason);
  QSaveFile file(toQt(path));
  const bool written =
      file.open(QIODevice::WriteOnly) && QImageWriter(&file, "bmp").write(image) && file.commit();
  if (!written) fail("No se puede escribir el fichero " + path + ": " + fromQt(file.errorString()));
}

QImage imageOf(const screen::Picture& picture) {
  std::string reason;
  return picture.empty() ? QImage() : decode(bytesOf(picture.file()), reason);
}

}  // namespace korvantes::desktop
