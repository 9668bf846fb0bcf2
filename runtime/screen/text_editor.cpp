#include "runtime/screen/text_editor.h"

#include <algorithm>

#include "runtime/ado/utf8.h"

namespace korvantes::screen {

namespace {

int lengthOf(const TextBox& box) {
  return static_cast<int>(ado::characterCount(box.Text()));
}

}  // namespace

void TextEditor::key(const Key& key) {
  const bool selecting = (key.shift & key::ShiftBit) != 0;
  const int start = box_.SelStart();
  const int selected = box_.SelLength();
  switch (key.code) {
    case key::Left:
      return moveCaret(selected > 0 && !selecting ? start : caret() - 1, selecting);
    case key::Right:
      return moveCaret(selected > 0 && !selecting ? start + selected : caret() + 1, selecting);
    case key::Home:
      return moveCaret(0, selecting);
    case key::End:
      return moveCaret(lengthOf(box_), selecting);
    case key::Delete:
      return selected > 0 ? erase(start, selected) : erase(start, 1);
    case key::Back:
      return type(key::Back);
    case key::Enter:
      return type(key::Enter);
    default:
      if (key.character >= U' ') type(key.character);
  }
}

void TextEditor::type(char32_t character) {
  int code = static_cast<int>(character);
  const bool open = input_.run([&] {
    if (box_.KeyPress) box_.KeyPress(code);
  });
  // The filter may have refused or replaced the character, or closed the form.
  if (!open || !writable()) return;
  const int start = box_.SelStart();
  const int selected = box_.SelLength();
  if (code == key::Back) {
    if (selected > 0)
      erase(start, selected);
    else if (start > 0)
      erase(start - 1, 1);
    return;
  }
  if (code < ' ' || code == 127 || code > 0x10FFFF) return;
  if (box_.MaxLength() > 0 && lengthOf(box_) - selected >= box_.MaxLength()) return;
  const char32_t typed = static_cast<char32_t>(code);
  replace(start, selected, {&typed, 1});
}

void TextEditor::paste(std::string_view text) {
  const std::string before = box_.Text();
  char32_t previous = 0;
  box_.changeHeld_ = true;
  for (const char32_t character : ado::toCodePoints(text)) {
    const bool secondHalf = character == U'\n' && previous == U'\r';
    const bool blank = character == U'\n' || character == U'\r' || character == U'\t';
    if (!secondHalf && (blank || character >= U' ')) type(blank ? U' ' : character);
    previous = character;
  }
  box_.changeHeld_ = false;
  if (box_.Text() != before) input_.run(box_.Change);
}

bool TextEditor::clear() {
  if (!writable()) return false;
  erase(0, lengthOf(box_));
  return true;
}

void TextEditor::selectAll() {
  box_.select(0, lengthOf(box_));
}

bool TextEditor::writable() const {
  return box_.usable() && !box_.Locked();
}

int TextEditor::caret() const {
  return box_.caretFirst_ ? box_.SelStart() : box_.SelStart() + box_.SelLength();
}

void TextEditor::moveCaret(int place, bool selecting) {
  const int target = std::clamp(place, 0, lengthOf(box_));
  if (!selecting) return box_.select(target, 0);
  const int anchor = box_.caretFirst_ ? box_.SelStart() + box_.SelLength() : box_.SelStart();
  box_.select(std::min(anchor, target), std::abs(anchor - target), target < anchor);
}

void TextEditor::erase(int from, int count) {
  if (writable()) replace(from, count, {});
}

void TextEditor::replace(int from, int count, std::u32string_view text) {
  const std::string& whole = box_.Text();
  const std::size_t begin = ado::byteOffset(whole, static_cast<std::size_t>(from));
  const int until = from + count;
  const std::size_t end = ado::byteOffset(whole, static_cast<std::size_t>(until));
  std::string edited = whole.substr(0, begin) + ado::toUtf8(text) + whole.substr(end);
  const int caretAfter = from + static_cast<int>(text.size());
  input_.run([&] {
    if (edited == whole) return box_.select(caretAfter, 0);
    box_.caretAfterEdit_ = caretAfter;
    box_.Text = std::move(edited);
  });
}

}  // namespace korvantes::screen
