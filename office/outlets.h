// office: the outside objects that print reports and write spreadsheets. Whoever registers them
// decides where documents go, through the outlets below.
#pragma once

#include <cstddef>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>

class QPagedPaintDevice;

namespace korvantes::office {

/// Where spreadsheets go.
class SheetOutlet {
 public:
  virtual ~SheetOutlet() = default;
  /// The file to write; an existing one is replaced. Empty if the user cancels: nothing is then
  /// written or reported.
  /// @param suggestedName a file name with its extension, without a folder
  virtual std::optional<std::filesystem::path> fileFor(const std::string& suggestedName) = 0;
  /// Called once the file is complete under its name.
  /// @param rows rows of data, without title, heading and totals
  virtual void written(const std::filesystem::path& file, std::size_t rows) = 0;
};

/// A report with all its data, laid out anew for each device. It no longer needs the database, so a
/// preview can paint it as often as it likes.
class Report {
 public:
  virtual ~Report() = default;
  virtual int number() const = 0;  ///< 11 one settlement, 12 a list of settlements
  virtual std::size_t rows() const = 0;
  /// "Liquidación 13": for a window and the document's own title, and as a file name without folder
  /// and extension.
  virtual std::string title() const = 0;
  /// Sets A4 and the margins on the device; this has no effect once painting has begun.
  virtual void setUp(QPagedPaintDevice& device) const = 0;
  /// Paints all pages on a device that was set up.
  virtual void paint(QPagedPaintDevice& device) const = 0;
};

/// Where reports go. Returns when the user is done with the report.
class ReportOutlet {
 public:
  virtual ~ReportOutlet() = default;
  virtual void deliver(std::shared_ptr<const Report> report) = 0;
};

}  // namespace korvantes::office
