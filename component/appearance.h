#pragma once

#include "runtime/screen/controls.h"

/// Colours and fonts that the screens share.
namespace korvantes::appearance {

constexpr screen::Color kPaper = screen::rgb(237, 222, 154);
constexpr screen::Color kNavy = screen::rgb(0, 0, 128);

constexpr screen::Font kRegular{8.25, false};
constexpr screen::Font kBold{8.25, true};

inline void setUpFrame(screen::Frame& frame, const char* caption, const screen::Box& box,
                       int tabIndex, screen::Color background) {
  frame.Caption = caption;
  frame.place(box);
  frame.TabIndex = tabIndex;
  frame.BackColor = background;
}

}  // namespace korvantes::appearance
