#pragma once

#include <memory>
#include <utility>

class QWidget;

namespace korvantes::desktop {

/// Creates a widget owned by its parent, the last argument.
template <class Widget, class... Arguments>
Widget& makeChild(Arguments&&... arguments) {
  return *std::make_unique<Widget>(std::forward<Arguments>(arguments)...).release();
}

}  // namespace korvantes::desktop
