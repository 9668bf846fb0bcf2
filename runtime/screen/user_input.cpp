#include "runtime/screen/user_input.h"

#include <exception>
#include <utility>

#include "runtime/ado/utf8.h"
#include "runtime/screen/desktop.h"
#include "runtime/screen/handler_scope.h"

namespace korvantes::screen {

namespace {

/// Handlers that pass the focus back and forth endlessly are stopped after this many moves.
constexpr int kMostFocusMoves = 50;

void report(const Form& form, const std::exception& problem) {
  const std::string& caption = form.Caption();
  Desktop::current().messageBox({problem.what(), style::Critical,
                                 caption.empty() ? std::string(Desktop::kDefaultTitle) : caption});
}

}  // namespace

/// Runs a copy of a handler, which may replace itself. False if the form is not open, before or
/// after.
bool UserInput::run(std::function<void()> handlerOfEvent) {
  const std::function<void()> handler = std::move(handlerOfEvent);
  if (!form_.loaded_) return false;
  const HandlerScope scope(form_.handlerDepth_);
  try {
    if (handler) handler();
  } catch (const std::exception& problem) {
    report(form_, problem);
  }
  return form_.loaded_;
}

bool UserInput::event(const std::function<void()>& handler) {
  const bool open = run(handler);
  settle();
  return open;
}

/// Carries out what handlers have left to do, once the outermost one has ended.
void UserInput::settle() {
  if (form_.handlerDepth_ > 0) return;
  for (int moves = 0; form_.loaded_ && moves < kMostFocusMoves; ++moves) {
    Control* wanted = std::exchange(form_.wanted_, nullptr);
    Control* active = form_.active_;
    if (wanted != nullptr && wanted != active && wanted->canTakeFocus()) {
      giveFocus(*wanted);
    } else if (active != nullptr && form_.Enabled() && !active->canTakeFocus()) {
      if (Control* next = form_.nextTabStop(active))
        giveFocus(*next);
      else
        focusLost(*active);
    } else {
      break;
    }
  }
  form_.wanted_ = nullptr;
  if (!form_.loaded_) return;
  for (Control* control : form_.controls_)
    if (control->kind() == Control::Kind::DataGrid) static_cast<DataGrid*>(control)->noticeMove();
}

void UserInput::focusLost(Control& old) {
  form_.active_ = nullptr;
  form_.held_ = nullptr;
  if (run(old.LostFocus) && form_.observer_ != nullptr) form_.observer_->activeControlChanged();
}

/// Moves the focus after the old control's LostFocus, which may send it elsewhere. True if the
/// target has it before anything else is settled.
bool UserInput::giveFocus(Control& target) {
  if (!form_.loaded_ || !target.canTakeFocus()) return false;
  if (form_.active_ == &target) return true;
  Control* aim = &target;
  if (Control* old = form_.active_) {
    Control* const wantedBefore = std::exchange(form_.wanted_, nullptr);
    form_.active_ = nullptr;
    form_.held_ = nullptr;
    {
      const HandlerScope leaving(form_.leavingDepth_);
      if (!run(old->LostFocus)) return false;
    }
    Control* const redirected = std::exchange(form_.wanted_, wantedBefore);
    // Input that arrived in between may already have moved the focus.
    if (form_.active_ != nullptr) return form_.active_ == &target;
    if (redirected != nullptr && redirected->canTakeFocus())
      aim = redirected;
    else if (!aim->canTakeFocus())
      aim = form_.nextTabStop(aim);
  }
  form_.active_ = aim;
  if (auto* box = dynamic_cast<TextBox*>(aim)) {
    box->SelLength = 0;
    box->SelStart = static_cast<int>(ado::characterCount(box->Text()));
  }
  if (form_.observer_ != nullptr) form_.observer_->activeControlChanged();
  if (aim != nullptr) run(aim->GotFocus);
  return form_.active_ == &target;
}

void UserInput::shown() {
  if (!form_.loaded_ || form_.showing_) return;
  form_.showing_ = true;
  Control* first = std::exchange(form_.wanted_, nullptr);
  if (first == nullptr || !first->canTakeFocus()) first = form_.nextTabStop(nullptr);
  if (first != nullptr) giveFocus(*first);
  settle();
}

bool UserInput::moveFocus(Control& control) {
  giveFocus(control);
  settle();
  return form_.loaded_ && form_.active_ == &control;
}

/// What a click does before the control changes. False if the click is dropped.
bool UserInput::focusFor(Control& control) {
  if (!form_.loaded_ || !control.usable()) return false;
  if (control.canTakeFocus() && !moveFocus(control)) return false;
  return form_.loaded_ && control.usable();
}

bool UserInput::click(Control& control) {
  if (!focusFor(control)) return false;
  switch (control.kind()) {
    case Control::Kind::CheckBox: {
      auto& box = static_cast<CheckBox&>(control);
      event([&] { box.Value = box.Value() == 0 ? 1 : 0; });
      break;
    }
    case Control::Kind::OptionButton:
      event([&] { static_cast<OptionButton&>(control).Value = true; });
      break;
    case Control::Kind::ComboBox:  // its Click reports a change of the entry
      break;
    default:
      event(control.Click);
  }
  return true;
}

bool UserInput::tick(ListView& list, std::size_t row, bool checked) {
  if (!focusFor(list) || row >= list.Count()) return false;
  event([&] {
    list.SelectedRow = static_cast<int>(row);
    const ListView::ListItem& item = list.item(row);
    if (item.Checked == checked) return;
    list.Checked(row, checked);
    if (list.ItemCheck) list.ItemCheck(item);
  });
  return true;
}

bool UserInput::clickColumn(ListView& list, int column) {
  if (column < 1 || static_cast<std::size_t>(column) > list.ColumnHeaders.size()) return false;
  if (!focusFor(list)) return false;
  event([&] {
    const int cursor = list.SelectedRow();
    const bool onRow = cursor >= 0 && static_cast<std::size_t>(cursor) < list.Count();
    const auto* item = onRow ? &list.item(static_cast<std::size_t>(cursor)) : nullptr;
    if (list.ColumnClick) list.ColumnClick(column);
    // The cursor stays on its row, wherever sorting has moved it.
    if (item == nullptr) return;
    if (const auto place = list.placeOf(*item)) list.SelectedRow = static_cast<int>(*place);
  });
  return true;
}

bool UserInput::editLabel(ListView& list, std::size_t row) {
  if (!focusFor(list) || row >= list.Count()) return false;
  int cancel = 0;
  const bool open = event([&] {
    list.SelectedRow = static_cast<int>(row);
    if (list.BeforeLabelEdit) list.BeforeLabelEdit(cancel);
  });
  return open && cancel == 0;
}

bool UserInput::selectEntry(ComboBox& combo, int entry) {
  if (!focusFor(combo) || entry < 0 || entry >= combo.ListCount()) return false;
  event([&] { combo.ListIndex = entry; });
  return true;
}

bool UserInput::typeEntry(ComboBox& combo, std::string_view text) {
  if (!combo.Editable() || !focusFor(combo)) return false;
  typeOver(combo, std::string(text));
  return true;
}

void UserInput::typeOver(ComboBox& combo, std::string text) {
  event([&] { combo.typeOver(std::move(text)); });
}

bool UserInput::selectRow(DataGrid& grid, std::size_t row) {
  if (!focusFor(grid) || row >= grid.RowCount()) return false;
  if (grid.currentRow() == row) return true;
  event([&] {
    ado::Recordset rows = grid.DataSource();
    rows.moveTo(row);
  });
  return true;
}

bool UserInput::pressCellButton(DataGrid& grid, int column) {
  if (!focusFor(grid) || !grid.currentRow()) return false;
  if (column < 0 || static_cast<std::size_t>(column) >= grid.ColumnCount()) return false;
  const DataGrid::Column& pressed = grid.Columns(static_cast<std::size_t>(column));
  if (!pressed.Button || !pressed.Visible) return false;
  event([&] {
    if (grid.ButtonClick) grid.ButtonClick(column);
  });
  return true;
}

void UserInput::close() {
  // A form disabled while it works stays open; one that a failure left disabled can be closed.
  if (!form_.Enabled() && form_.handlerDepth_ > 0) return;
  event([&] { form_.Unload(); });
}

}  // namespace korvantes::screen
