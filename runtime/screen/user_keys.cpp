#include <algorithm>

#include "runtime/ado/utf8.h"
#include "runtime/screen/letters.h"
#include "runtime/screen/text_editor.h"
#include "runtime/screen/user_input.h"

namespace korvantes::screen {

namespace {

constexpr int kRowsOfAPage = 10;

/// Target row of a key in a list of `count` rows; empty for a key that does not move and for an
/// empty list. A cursor of -1 is before the first row.
std::optional<int> rowAfter(int code, int cursor, int count) {
  if (count == 0) return std::nullopt;
  const auto within = [&](int row) { return std::clamp(row, 0, count - 1); };
  switch (code) {
    case key::Up:
      return within(cursor - 1);
    case key::Down:
      return within(cursor + 1);
    case key::PageUp:
      return within(cursor - kRowsOfAPage);
    case key::PageDown:
      return within(cursor + kRowsOfAPage);
    case key::Home:
      return 0;
    case key::End:
      return count - 1;
    default:
      return std::nullopt;
  }
}

bool clickedBySpace(const Control& control) {
  return control.kind() == Control::Kind::PictureButton ||
         control.kind() == Control::Kind::CheckBox || control.kind() == Control::Kind::OptionButton;
}

const std::string* captionOf(const Control& control) {
  switch (control.kind()) {
    case Control::Kind::Label:
      return &static_cast<const Label&>(control).Caption();
    case Control::Kind::Frame:
      return &static_cast<const Frame&>(control).Caption();
    case Control::Kind::CheckBox:
      return &static_cast<const CheckBox&>(control).Caption();
    case Control::Kind::OptionButton:
      return &static_cast<const OptionButton&>(control).Caption();
    case Control::Kind::PictureButton:
      return &static_cast<const PictureButton&>(control).Caption();
    default:
      return nullptr;
  }
}

}  // namespace

void UserInput::keyDown(const Key& key) {
  if (!form_.loaded_ || !form_.Enabled()) return;
  if (!chordKey(key)) {
    if (key.code == key::Tab)
      tabKey((key.shift & key::ShiftBit) != 0);
    else if (form_.active_ != nullptr && form_.active_->usable())
      controlKey(*form_.active_, key);
  }
  settle();
}

/// Keys held with Alt or Control. AltGr, which comes as both, types its character.
bool UserInput::chordKey(const Key& key) {
  const bool alt = (key.shift & key::AltBit) != 0;
  const bool control = (key.shift & key::ControlBit) != 0;
  if (alt == control) return alt && key.character == 0;
  if (alt) {
    // Function keys share their codes with small letters.
    const auto letter = static_cast<char32_t>(key.code);
    if (key.code == key::F4)
      close();
    else if (isLetterOrDigit(letter) && upperCase(letter) == letter)
      accessKey(letter);
    return true;
  }
  if (key.code == 'A' && form_.active_ != nullptr &&
      form_.active_->kind() == Control::Kind::TextBox)
    TextEditor(*this, static_cast<TextBox&>(*form_.active_)).selectAll();
  const bool moves = key.code >= key::PageUp && key.code <= key::Down;
  return !moves;
}

void UserInput::tabKey(bool backward) {
  if (form_.leavingDepth_ > 0) return;
  if (Control* next = form_.nextTabStop(form_.active_, backward)) giveFocus(*next);
}

void UserInput::controlKey(Control& control, const Key& key) {
  if (key.code == key::Space && clickedBySpace(control)) form_.held_ = &control;
  switch (control.kind()) {
    case Control::Kind::TextBox:
      return TextEditor(*this, static_cast<TextBox&>(control)).key(key);
    case Control::Kind::ComboBox:
      return comboKey(static_cast<ComboBox&>(control), key);
    case Control::Kind::ListView:
      return listKey(static_cast<ListView&>(control), key);
    case Control::Kind::DataGrid:
      return gridKey(static_cast<DataGrid&>(control), key);
    case Control::Kind::OptionButton:
      return optionKey(static_cast<OptionButton&>(control), key);
    case Control::Kind::PictureButton:
      if (key.code == key::Enter) click(control);
      return;
    default:
      return;
  }
}

void UserInput::comboKey(ComboBox& combo, const Key& key) {
  const bool edits = combo.Editable();
  const bool withinText = edits && (key.code == key::Home || key.code == key::End);
  const auto entry = rowAfter(key.code, combo.ListIndex(), combo.ListCount());
  if (entry && !withinText) {
    selectEntry(combo, *entry);
  } else if (edits && key.code == key::Back) {
    const std::size_t length = ado::characterCount(combo.Text());
    typeOver(combo, std::string(ado::firstCharacters(combo.Text(), length == 0 ? 0 : length - 1)));
  } else if (edits && key.character >= U' ') {
    typeOver(combo, combo.Text() + ado::toUtf8(key.character));
  } else if (key.character > U' ') {
    // The next entry that begins with the character, from the top again after the last one.
    const int count = combo.ListCount();
    for (int step = 1; step <= count; ++step) {
      const int candidate = (combo.ListIndex() + step) % count;
      const std::string& text = combo.list()[static_cast<std::size_t>(candidate)];
      const std::u32string first = ado::toCodePoints(ado::firstCharacters(text, 1));
      if (first.empty() || upperCase(first[0]) != upperCase(key.character)) continue;
      selectEntry(combo, candidate);
      return;
    }
  }
}

void UserInput::listKey(ListView& list, const Key& key) {
  const int cursor = list.SelectedRow();
  if (const auto row = rowAfter(key.code, cursor, static_cast<int>(list.Count()))) {
    list.SelectedRow = *row;
  } else if (key.code == key::Space && cursor >= 0 &&
             static_cast<std::size_t>(cursor) < list.Count()) {
    const auto place = static_cast<std::size_t>(cursor);
    tick(list, place, !list.item(place).Checked);
  }
}

void UserInput::gridKey(DataGrid& grid, const Key& key) {
  const auto current = grid.currentRow();
  const int cursor = current ? static_cast<int>(*current) : -1;
  if (const auto row = rowAfter(key.code, cursor, static_cast<int>(grid.RowCount())))
    selectRow(grid, static_cast<std::size_t>(*row));
}

/// Arrows select the neighbour in the group and wrap around.
void UserInput::optionKey(OptionButton& option, const Key& key) {
  const bool forward = key.code == key::Down || key.code == key::Right;
  if (!forward && key.code != key::Up && key.code != key::Left) return;
  std::vector<Control*> group = form_.tabOrder();
  std::erase_if(group, [&](const Control* control) {
    return control->kind() != Control::Kind::OptionButton ||
           control->container() != option.container() || !control->canTakeFocus();
  });
  const auto place = std::find(group.begin(), group.end(), &option) - group.begin();
  const auto count = static_cast<std::ptrdiff_t>(group.size());
  const auto neighbour = (place + (forward ? 1 : count - 1)) % count;
  click(*group[static_cast<std::size_t>(neighbour)]);
}

void UserInput::keyUp(const Key& key) {
  if (!form_.loaded_ || !form_.Enabled()) return;
  Control* const control = form_.active_;
  Control* const held = key.code == key::Space ? std::exchange(form_.held_, nullptr) : nullptr;
  int code = key.code;
  if (form_.KeyPreview()) run([&] { form_.Form_KeyUp(code, key.shift); });
  if (control != nullptr && code != 0 && control->KeyUp && control->usable())
    run([&] { control->KeyUp(code, key.shift); });
  settle();
  if (held != nullptr && code == key::Space && held == form_.active_) click(*held);
}

bool UserInput::paste(std::string_view text) {
  if (!form_.loaded_ || form_.active_ == nullptr || !form_.active_->usable()) return false;
  if (auto* box = dynamic_cast<TextBox*>(form_.active_)) {
    if (box->Locked()) return false;
    TextEditor(*this, *box).paste(text);
    settle();
    return true;
  }
  if (auto* combo = dynamic_cast<ComboBox*>(form_.active_)) {
    std::string line = combo->Text() + std::string(text);
    std::replace_if(
        line.begin(), line.end(), [](char c) { return c == '\n' || c == '\r'; }, ' ');
    return typeEntry(*combo, line);
  }
  return false;
}

bool UserInput::clearText() {
  if (!form_.loaded_ || form_.active_ == nullptr || !form_.active_->usable()) return false;
  bool cleared = false;
  if (auto* box = dynamic_cast<TextBox*>(form_.active_))
    cleared = TextEditor(*this, *box).clear();
  else if (auto* combo = dynamic_cast<ComboBox*>(form_.active_))
    cleared = typeEntry(*combo, "");
  settle();
  return cleared;
}

bool UserInput::accessKey(char32_t letter) {
  if (!form_.loaded_) return false;
  for (Control* control : form_.tabOrder()) {
    const std::string* caption = captionOf(*control);
    if (caption == nullptr || !control->usable()) continue;
    if (accessKeyOf(*caption) != upperCase(letter)) continue;
    if (control->canTakeFocus()) return click(*control);
    // A label or frame leads to the field after it.
    Control* field = form_.nextTabStop(control);
    return field != nullptr && moveFocus(*field);
  }
  return false;
}

}  // namespace korvantes::screen
