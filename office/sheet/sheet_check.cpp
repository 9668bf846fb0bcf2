#include "office/sheet/sheet_check.h"

#include <memory>
#include <string_view>
#include <unzip.h>
#include <vector>

namespace korvantes::office {

namespace {

constexpr const char* kSheet = "xl/worksheets/sheet1.xml";
constexpr std::string_view kRowsBegin = "<sheetData>";
constexpr std::string_view kRowsEnd = "</sheetData>";
constexpr std::string_view kEnd = "</worksheet>";

struct CloseArchive {
  void operator()(void* archive) const { ::unzClose(archive); }
};

}  // namespace

bool sheetIsWhole(const std::string& file, std::uint64_t rowBytes) {
  const std::unique_ptr<void, CloseArchive> archive(::unzOpen64(file.c_str()));
  if (archive == nullptr || ::unzLocateFile(archive.get(), kSheet, 1) != UNZ_OK ||
      ::unzOpenCurrentFile(archive.get()) != UNZ_OK)
    return false;

  // What comes before and after the rows fits into one chunk each.
  std::vector<char> piece(std::size_t{1} << 18U);
  std::string head, tail;
  std::uint64_t size = 0;
  int read = 0;
  while ((read = ::unzReadCurrentFile(archive.get(), piece.data(),
                                      static_cast<unsigned>(piece.size()))) > 0) {
    const std::string_view text(piece.data(), static_cast<std::size_t>(read));
    if (head.empty()) head = text;
    if (tail.size() > piece.size()) tail.erase(0, tail.size() - piece.size());
    tail += text;
    size += text.size();
  }
  // Closing compares the checksum.
  if (read < 0 || ::unzCloseCurrentFile(archive.get()) != UNZ_OK) return false;

  const auto begin = head.find(kRowsBegin);
  const auto end = tail.rfind(kRowsEnd);
  if (begin == head.npos || end == tail.npos || !tail.ends_with(kEnd)) return false;
  const std::uint64_t endOfRows = size - tail.size() + end;
  return endOfRows - (begin + kRowsBegin.size()) == rowBytes;
}

}  // namespace korvantes::office
