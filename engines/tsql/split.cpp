#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "engines/tsql/compiler.h"
#include "runtime/ado/characters.h"
#include "runtime/ado/text_order.h"

namespace korvantes::tsql {

namespace {

constexpr std::string_view kBlanks = " \t\r\n\f\v";

std::string_view trimmed(std::string_view text) {
  return ado::trimmed(text, kBlanks);
}

/// Where the quoted text, bracketed name or comment that begins at `position` ends; `position`
/// itself if none begins there. If it is never closed, it extends to the end of the file.
std::size_t behindClosed(std::string_view file, std::size_t position) {
  const auto rest = file.substr(position);
  const auto behind = [&](std::string_view closing, std::size_t from) {
    const auto end = rest.find(closing, from);
    return end == std::string_view::npos ? file.size() : position + end + closing.size();
  };
  if (rest.starts_with('\'')) return behind("'", 1);
  if (rest.starts_with('[')) return behind("]", 1);
  if (rest.starts_with("/*")) return behind("*/", 2);
  if (rest.starts_with("--")) {
    const auto end = rest.find('\n');
    return end == std::string_view::npos ? file.size() : position + end;
  }
  return position;
}

/// The statement without the comments before and after it.
std::string_view withoutOuterComments(std::string_view piece) {
  piece = trimmed(piece);
  while (piece.starts_with("--") || piece.starts_with("/*")) {
    piece = trimmed(piece.substr(behindClosed(piece, 0)));
  }
  return piece;
}

bool endsLine(std::string_view file, std::size_t position) {
  const auto end = file.find('\n', position);
  return withoutOuterComments(
             file.substr(position, end == std::string_view::npos ? end : end - position))
      .empty();
}

}  // namespace

std::vector<std::string> splitStatements(std::string_view file) {
  constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
  if (file.starts_with(kByteOrderMark)) file.remove_prefix(kByteOrderMark.size());
  std::vector<std::string> statements;
  std::size_t begin = 0;
  const auto cut = [&](std::size_t end, std::size_t next) {
    const auto piece = withoutOuterComments(file.substr(begin, end - begin));
    if (!piece.empty()) statements.emplace_back(piece);
    begin = next;
  };
  bool atLineStart = true;
  for (std::size_t i = 0; i < file.size();) {
    if (atLineStart) {
      const auto end = std::min(file.find('\n', i), file.size());
      if (ado::sameName(trimmed(file.substr(i, end - i)), "GO")) {
        cut(i, end);
        i = end;
      }
    }
    atLineStart = i < file.size() && file[i] == '\n';
    const auto behind = behindClosed(file, i);
    if (behind > i) {
      i = behind;
    } else {
      if (i < file.size() && file[i] == ';' && endsLine(file, i + 1)) cut(i, i + 1);
      ++i;
    }
  }
  cut(file.size(), file.size());
  return statements;
}

}  // namespace korvantes::tsql
