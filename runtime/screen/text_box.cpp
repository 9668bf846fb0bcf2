#include <algorithm>

#include "runtime/ado/utf8.h"
#include "runtime/screen/controls.h"

namespace korvantes::screen {

TextBox::TextBox(Form& form, std::string name, std::optional<int> index)
    : Control(form, Kind::TextBox, std::move(name), index) {}

void TextBox::propertyChanged(const PropertyBase& property) {
  const int length = static_cast<int>(ado::characterCount(Text()));
  if (&property == &SelStart) {
    const int within = std::clamp(SelStart(), 0, length);
    if (within != SelStart()) {
      SelStart = within;
      return;
    }
    caretFirst_ = false;
    SelLength = 0;
  }
  if (&property == &SelLength) {
    const int within = std::clamp(SelLength(), 0, length - SelStart());
    if (within != SelLength()) {
      SelLength = within;
      return;
    }
  }
  Control::propertyChanged(property);
  if (&property != &Text) return;
  select(caretAfterEdit_.value_or(length), 0);
  caretAfterEdit_.reset();
  if (!changeHeld_ && Change) Change();
}

void TextBox::select(int start, int length, bool caretFirst) {
  SelLength = 0;
  SelStart = start;
  SelLength = length;
  caretFirst_ = caretFirst;
}

}  // namespace korvantes::screen
