#include "office/sheet/workbook.h"

#include <cerrno>
#include <cstdio>

#include "office/sheet/sheet_check.h"
#include "office/sheet/sheet_file.h"

namespace korvantes::office {

PointInNumbers::PointInNumbers()
    : plain_(::newlocale(LC_NUMERIC_MASK, "C", ::duplocale(::uselocale(nullptr)))),
      before_(::uselocale(plain_)) {}

PointInNumbers::~PointInNumbers() {
  ::uselocale(before_);
  if (plain_ != nullptr) ::freelocale(plain_);
}

Workbook::Workbook(const std::filesystem::path& file, const std::filesystem::path& temporary,
                   std::filesystem::path place, const char* sheetName)
    : file_(file), temporary_(temporary), place_(std::move(place)) {
  errno = 0;
  // Only uncompressed sheets of more than 4 GB need ZIP64; a million rows are far below.
  lxw_workbook_options options{LXW_TRUE, temporary_.data(), LXW_FALSE};
  book_ = ::workbook_new_opt(file_.c_str(), &options);
  if (book_ != nullptr) sheet_ = ::workbook_add_worksheet(book_, sheetName);
  if (sheet_ != nullptr) return;
  const int failure = errno;
  if (book_ != nullptr) ::lxw_workbook_free(book_);
  throw writeFailure(place_, failure == 0 ? ENOMEM : failure);
}

Workbook::~Workbook() {
  if (book_ == nullptr) return;
  std::fclose(sheet_->optimize_tmpfile);
  ::lxw_workbook_free(book_);
}

lxw_format* Workbook::newFormat() const {
  lxw_format* format = ::workbook_add_format(book_);
  if (format == nullptr) throw writeFailure(place_, ENOMEM);
  return format;
}

void Workbook::requireWritten() const {
  if (std::ferror(sheet_->optimize_tmpfile) != 0)
    throw writeFailure(place_, errno == 0 ? EIO : errno);
}

void Workbook::close() {
  // The library would write the last row and go on without checking that all of them arrived.
  ::lxw_worksheet_write_single_row(sheet_);
  std::fflush(sheet_->optimize_tmpfile);
  requireWritten();
  const auto rowBytes = static_cast<std::uint64_t>(::ftello(sheet_->optimize_tmpfile));

  lxw_workbook* const closing = book_;
  book_ = nullptr;  // closing frees it, even if it fails
  errno = 0;
  if (::workbook_close(closing) != LXW_NO_ERROR)
    throw writeFailure(place_, errno == 0 ? EIO : errno);
  if (!sheetIsWhole(file_, rowBytes)) throw writeFailure(place_, errno == 0 ? ENOSPC : errno);
}

}  // namespace korvantes::office
