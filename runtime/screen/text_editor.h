#pragma once

#include "runtime/screen/user_input.h"

namespace korvantes::screen {

/// Edits one text box for the user: characters at the caret, moves and deletions. Events run
/// through UserInput; settling the focus is left to the caller.
class TextEditor {
 public:
  TextEditor(UserInput input, TextBox& box) : input_(input), box_(box) {}

  void key(const Key& key);
  /// Puts one character through the key filter, in place of the selection.
  void type(char32_t character);
  /// As typed character by character, with one Change at the end.
  void paste(std::string_view text);
  /// Deletes the whole text. False on a read-only box.
  bool clear();
  void selectAll();

 private:
  bool writable() const;
  int caret() const;
  void moveCaret(int place, bool selecting);
  void erase(int from, int count);
  void replace(int from, int count, std::u32string_view text);

  UserInput input_;
  TextBox& box_;
};

}  // namespace korvantes::screen
