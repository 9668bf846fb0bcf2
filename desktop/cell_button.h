#pragma once

#include <QRect>
#include <algorithm>

namespace korvantes::desktop {

/// The area of the button in a cell: at its right end, as tall as the cell.
inline QRect cellButton(const QRect& cell) {
  constexpr int kWidth = 17;
  const int width = std::min(kWidth, cell.width());
  return {cell.right() - width + 1, cell.top(), width, cell.height()};
}

}  // namespace korvantes::desktop
