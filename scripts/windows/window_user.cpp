#include "scripts/windows/window_user.h"

#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <stdexcept>

#include "desktop/cell_button.h"
#include "desktop/choice_dialog.h"
#include "desktop/form_window.h"
#include "desktop/look.h"
#include "desktop/message_dialog.h"
#include "desktop/row_table.h"
#include "desktop/window_stack.h"
#include "runtime/ado/utf8.h"
#include "scripts/windows/input_events.h"

namespace korvantes::scripts {

using desktop::ChoiceDialog;
using desktop::FormWindow;
using desktop::MessageDialog;
using desktop::RowTable;

namespace {

/// The position of the caret, or the end of the text: a click there does not change the selection.
QPoint caretPlace(const QLineEdit& field, const screen::TextBox& box) {
  const bool atEnd =
      box.SelStart() == static_cast<int>(ado::characterCount(box.Text())) || !field.hasFocus();
  const QPoint caret = field.inputMethodQuery(Qt::ImCursorRectangle).toRect().center();
  return atEnd ? QPoint(field.width() - 4, field.height() / 2) : caret;
}

}  // namespace

FormWindow& WindowUser::window() const {
  FormWindow* const window = stack_.topForm();
  if (window == nullptr) throw std::logic_error("No hay ninguna pantalla abierta");
  return *window;
}

/// Exceptions kept away from Qt propagate to the script.
void WindowUser::done() {
  stack_.rethrow();
}

bool WindowUser::tell(const std::function<bool(screen::UserInput&)>& action) {
  bool result = false;
  window().report([&](screen::UserInput& user) { result = action(user); });
  done();
  return result;
}

bool WindowUser::clickOn(screen::Control& control) {
  window().reveal(control);
  QWidget& widget = window().faceOf(control)->widget();
  const QRect area = widget.rect();
  for (const QPoint& place : {area.center(), area.topLeft() + QPoint(4, 4),
                              area.bottomRight() - QPoint(4, 4), QPoint(area.right() - 4, 4)}) {
    if (!canBeHit(widget, place)) continue;
    sendClick(widget, place);
    done();
    return true;
  }
  return false;
}

void WindowUser::moveFocus(screen::Control& control) {
  if (control.kind() == screen::Control::Kind::TextBox && control.canTakeFocus()) {
    window().reveal(control);
    auto& field = static_cast<QLineEdit&>(window().faceOf(control)->widget());
    const QPoint place = caretPlace(field, static_cast<screen::TextBox&>(control));
    if (canBeHit(field, place)) {
      sendClick(field, place);
      return done();
    }
  }
  User::moveFocus(control);
}

/// The release goes to the window that is on top after the press.
void WindowUser::strike(QWidget& window, const screen::Key& key) {
  sendPress(window, key);
  if (QWidget* top = stack_.top()) sendRelease(*top, key);
}

void WindowUser::stroke(const screen::Key& key) {
  window();
  strike(*stack_.top(), key);
  done();
  settle();
}

bool WindowUser::paste(std::string_view text) {
  const screen::Control* active = window().form().ActiveControl();
  const bool field = active != nullptr && (active->kind() == screen::Control::Kind::TextBox ||
                                           active->kind() == screen::Control::Kind::ComboBox);
  if (!field || !active->usable() || window().focusWidget() == nullptr) return User::paste(text);
  const auto* box = dynamic_cast<const screen::TextBox*>(active);
  const auto* combo = dynamic_cast<const screen::ComboBox*>(active);
  QInputMethodEvent event;
  event.setCommitString(desktop::toQt(text));
  QCoreApplication::sendEvent(window().focusWidget(), &event);
  done();
  return box != nullptr ? !box->Locked() : combo->Editable();
}

void WindowUser::click(screen::Control& control) {
  using Kind = screen::Control::Kind;
  const bool pushed = control.kind() == Kind::PictureButton || control.kind() == Kind::CheckBox ||
                      control.kind() == Kind::OptionButton;
  if (!control.usable()) return;
  if (pushed && clickOn(control)) return;
  User::click(control);
}

/// Scrolls to the cell and clicks in it.
bool WindowUser::clickCell(screen::Control& control, int row, int column,
                           const std::function<QPoint(const QModelIndex& cell)>& place) {
  if (!control.usable()) return false;
  window().reveal(control);
  window().showNow();
  auto& table = static_cast<RowTable&>(window().faceOf(control)->widget());
  const QModelIndex cell = table.model()->index(row, column);
  if (!cell.isValid()) return false;
  table.scrollTo(cell);
  const QPoint target = place(cell);
  if (!canBeHit(*table.viewport(), target)) return false;
  sendClick(*table.viewport(), target);
  done();
  return true;
}

void WindowUser::tick(screen::ListView& list, std::size_t row, bool checked) {
  if (!list.usable() || row >= list.Count()) return;
  if (list.item(row).Checked != checked) {
    const auto mark = [&](const QModelIndex& cell) {
      return static_cast<RowTable&>(window().faceOf(list)->widget()).checkMark(cell).center();
    };
    if (clickCell(list, static_cast<int>(row), 0, mark)) return;
  }
  User::tick(list, row, checked);
}

void WindowUser::clickColumn(screen::ListView& list, int column) {
  if (!list.usable()) return;
  window().reveal(list);
  auto& table = static_cast<RowTable&>(window().faceOf(list)->widget());
  QHeaderView& header = *table.horizontalHeader();
  const int section = column - 1;
  if (section >= 0 && section < header.count() && !header.isSectionHidden(section)) {
    table.scrollTo(table.model()->index(list.SelectedRow(), section));
    const QPoint place(header.sectionViewportPosition(section) + header.sectionSize(section) / 2,
                       header.height() / 2);
    if (canBeHit(*header.viewport(), place)) {
      sendClick(*header.viewport(), place);
      return done();
    }
  }
  User::clickColumn(list, column);
}

void WindowUser::selectEntry(screen::ComboBox& combo, int entry) {
  if (!combo.usable() || entry < 0 || entry >= combo.ListCount()) return;
  window().reveal(combo);
  window().showNow();
  auto& widget = static_cast<QComboBox&>(window().faceOf(combo)->widget());
  if (!canBeHit(widget, widget.rect().center())) return User::selectEntry(combo, entry);
  sendClick(widget, widget.rect().center());
  done();
  // The list only opens if the combo box has got the focus.
  QAbstractItemView& view = *widget.view();
  if (!view.isVisible()) return;
  view.setCurrentIndex(view.model()->index(entry, 0));
  QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r");
  QCoreApplication::sendEvent(&view, &enter);
  done();
}

void WindowUser::selectRow(screen::DataGrid& grid, std::size_t row) {
  if (!grid.usable() || row >= grid.RowCount()) return;
  auto& table = static_cast<RowTable&>(window().faceOf(grid)->widget());
  for (int column = 0; column < static_cast<int>(grid.ColumnCount()); ++column) {
    if (table.isColumnHidden(column) || grid.Columns(static_cast<std::size_t>(column)).Button)
      continue;
    const auto middle = [&](const QModelIndex& cell) { return table.visualRect(cell).center(); };
    if (clickCell(grid, static_cast<int>(row), column, middle)) return;
  }
  User::selectRow(grid, row);
}

void WindowUser::pressCellButton(screen::DataGrid& grid, int column) {
  const auto current = grid.currentRow();
  if (!grid.usable() || !current || column < 0 ||
      static_cast<std::size_t>(column) >= grid.ColumnCount())
    return;
  const screen::DataGrid::Column& pressed = grid.Columns(static_cast<std::size_t>(column));
  if (!pressed.Button || !pressed.Visible) return;
  const auto button = [&](const QModelIndex& cell) {
    const auto& table = static_cast<RowTable&>(window().faceOf(grid)->widget());
    return desktop::cellButton(table.visualRect(cell)).center();
  };
  if (clickCell(grid, static_cast<int>(*current), column, button)) return;
  User::pressCellButton(grid, column);
}

void WindowUser::close() {
  window().close();
  done();
}

void WindowUser::settle() {
  stack_.settle();
  done();
}

void WindowUser::answer(MessageDialog& dialog, const Reply<screen::Answer>& reply) {
  QPushButton* const button = dialog.button(reply.value);
  if (button == nullptr) throw std::logic_error("El mensaje no tiene ese botón");
  if (reply.byEnter) {
    button->setFocus();
    strike(dialog, {screen::key::Enter});
  } else {
    sendClick(*button, button->rect().center());
  }
  if (dialog.isVisible()) throw std::logic_error("El mensaje no se ha cerrado");
}

void WindowUser::answer(ChoiceDialog& dialog, const Reply<std::optional<std::size_t>>& reply) {
  if (reply.value) {
    RowTable& table = dialog.table();
    const QModelIndex cell = table.model()->index(static_cast<int>(*reply.value), 1);
    table.scrollTo(cell);
    const QPoint place = table.visualRect(cell).topLeft() + QPoint(4, 4);
    sendClick(*table.viewport(), place, reply.byEnter ? Clicks::Single : Clicks::Double);
  } else if (reply.byEnter) {
    dialog.leaveButton().setFocus();
  } else {
    strike(dialog, {screen::key::Escape});
  }
  if (reply.byEnter) {
    strike(dialog, {screen::key::Enter});
  }
  if (dialog.isVisible()) throw std::logic_error("La lista no se ha cerrado");
}

}  // namespace korvantes::scripts
