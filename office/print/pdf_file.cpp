#include "office/print/pdf_file.h"

#include <QFontDatabase>
#include <QPdfWriter>
#include <QSaveFile>
#include <cerrno>

#include "runtime/ado/error.h"
#include "runtime/ado/system_words.h"

namespace korvantes::office {

namespace {

constexpr int kDotsPerInch = 600;

[[noreturn]] void fail(const std::filesystem::path& file, int errorNumber) {
  throw ado::Error(errorNumber,
                   "No se puede escribir " + file.string() + ": " + ado::systemWords(errorNumber));
}

/// A file that replaces another one when it is complete. It keeps the system's reason when writing
/// fails, as Qt's own message is in English.
class ReplacementFile : public QSaveFile {
 public:
  explicit ReplacementFile(const std::filesystem::path& file)
      : QSaveFile(QString::fromStdString(file.string())) {}
  int failure() const { return failure_; }

 protected:
  qint64 writeData(const char* data, qint64 size) override {
    errno = 0;
    const qint64 written = QSaveFile::writeData(data, size);
    if (written != size && failure_ == 0) failure_ = errno != 0 ? errno : EIO;
    return written;
  }

 private:
  int failure_ = 0;
};

}  // namespace

void writePdf(const Report& report, const std::filesystem::path& file) {
  if (QFontDatabase::families().isEmpty())
    throw ado::Error(0,
                     "No hay ningún tipo de letra instalado: instale el paquete fonts-liberation");
  if (std::filesystem::is_directory(file)) fail(file, EISDIR);
  ReplacementFile replacement(file);
  errno = 0;
  if (!replacement.open(QIODevice::WriteOnly)) fail(file, errno != 0 ? errno : EACCES);
  {
    QPdfWriter writer(&replacement);
    writer.setResolution(kDotsPerInch);
    writer.setTitle(QString::fromStdString(report.title()));
    writer.setCreator("KORVANTES");
    report.setUp(writer);
    report.paint(writer);
  }
  // On commit Qt ignores a failure to write the last bytes.
  errno = 0;
  if (!replacement.flush() && replacement.failure() == 0) fail(file, errno != 0 ? errno : EIO);
  if (replacement.failure() != 0) fail(file, replacement.failure());
  if (!replacement.commit()) fail(file, errno != 0 ? errno : EIO);
}

}  // namespace korvantes::office
