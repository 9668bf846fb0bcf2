#pragma once

#include <QRect>
#include <algorithm>

namespace korvantes::desktop {

/// Where the button of a cell stands: at its right end, as high as the cell.
inline QRect cellButton(const QRect& cell) {
  const int width = std::min(cell.height() + 2, cell.width());
  return {cell.right() - width + 1, cell.top(), width, cell.height()};
}

}  // namespace korvantes::desktop
