#pragma once

#include <cstdint>
#include <filesystem>
#include <locale.h>
#include <string>
#include <xlsxwriter.h>

namespace korvantes::office {

/// Makes the decimal separator of this thread a point: libxlsxwriter writes numbers with printf,
/// and a toolkit sets the user's locale.
class PointInNumbers {
 public:
  PointInNumbers();
  ~PointInNumbers();
  PointInNumbers(const PointInNumbers&) = delete;
  PointInNumbers& operator=(const PointInNumbers&) = delete;

 private:
  locale_t plain_, before_;
};

/// A workbook of one sheet, written row by row in constant memory.
class Workbook {
 public:
  /// @param place the file's name in messages
  Workbook(const std::filesystem::path& file, const std::filesystem::path& temporary,
           std::filesystem::path place, const char* sheetName);
  ~Workbook();
  Workbook(const Workbook&) = delete;
  Workbook& operator=(const Workbook&) = delete;

  lxw_workbook* book() const { return book_; }
  lxw_worksheet* sheet() const { return sheet_; }
  lxw_format* newFormat() const;

  /// Throws ado::Error if rows written before did not reach the disk.
  void requireWritten() const;
  /// Completes the file. Throws ado::Error, even if the library did not notice that the disk was
  /// full.
  void close();

 private:
  PointInNumbers pointInNumbers_;
  std::string file_, temporary_;
  std::filesystem::path place_;
  lxw_workbook* book_ = nullptr;
  lxw_worksheet* sheet_ = nullptr;
};

}  // namespace korvantes::office
