#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>

#include "runtime/screen/desktop.h"

namespace korvantes::scripts {

/// An answer to a dialog.
template <class T>
struct Reply {
  Reply(T answer, bool enter = false) : value(std::move(answer)), byEnter(enter) {}

  T value;
  bool byEnter;  ///< the dialog was closed by the Enter key, whose release reaches the form below
};

/// What a script or a test decides instead of a user. Each may be empty; a dialog without a cue is
/// cancelled (lists, files) or gets a click on its default button (messages).
struct Cues {
  /// Called again and again with the topmost form until that form is closed.
  std::function<void(screen::Form&)> whileShown;
  std::function<Reply<screen::Answer>(const screen::MessageBox&)> onMessage;
  std::function<Reply<std::optional<std::size_t>>(const screen::ListDialog&)> onList;
  std::function<std::optional<std::string>(const screen::FileDialog&)> onFile;
  /// A form was closed.
  std::function<void(const screen::Form&)> onClosed;
  /// Fixed clock; the machine's if empty.
  std::optional<ado::Moment> clock;

  Reply<screen::Answer> answer(const screen::MessageBox& box) const;
  /// Throws std::out_of_range if the row chosen does not exist.
  Reply<std::optional<std::size_t>> answer(const screen::ListDialog& dialog) const;
  std::optional<std::string> answer(const screen::FileDialog& dialog) const;
};

}  // namespace korvantes::scripts
