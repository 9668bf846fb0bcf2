#include "desktop/choice_dialog.h"

#include <QAbstractTableModel>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QVBoxLayout>
#include <algorithm>

#include "desktop/look.h"
#include "desktop/owned_child.h"
#include "desktop/row_table.h"

namespace korvantes::desktop {

namespace {

constexpr int kHeight = 420;
constexpr int kNarrowest = 340;

class ChoiceModel : public QAbstractTableModel {
 public:
  ChoiceModel(const screen::ListDialog& dialog, QObject* parent)
      : QAbstractTableModel(parent), dialog_(dialog) {}

  int rowCount(const QModelIndex& parent = {}) const override {
    return parent.isValid() ? 0 : static_cast<int>(dialog_.rows.size());
  }
  int columnCount(const QModelIndex& parent = {}) const override {
    return parent.isValid() ? 0 : 2;
  }
  QVariant data(const QModelIndex& index, int role) const override {
    if (!index.isValid() || role != Qt::DisplayRole) return {};
    const auto& row = dialog_.rows[static_cast<std::size_t>(index.row())];
    return toQt(index.column() == 0 ? row.code : row.name);
  }
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override {
    if (orientation != Qt::Horizontal) return {};
    if (role == Qt::TextAlignmentRole) return int{Qt::AlignLeft};
    if (role != Qt::DisplayRole) return {};
    return toQt(section == 0 ? dialog_.codeTitle : dialog_.nameTitle);
  }

 private:
  const screen::ListDialog& dialog_;
};

/// The text without case and accents; ñ remains a separate letter.
QString folded(const QString& text) {
  constexpr char16_t kTilde = 0x0303;
  QString result;
  for (const QChar character : text.normalized(QString::NormalizationForm_D).toCaseFolded()) {
    const bool mark = character.category() == QChar::Mark_NonSpacing;
    if (!mark || (character == kTilde && result.endsWith(u'n'))) result += character;
  }
  return result;
}

}  // namespace

ChoiceDialog::ChoiceDialog(WindowStack& stack, const screen::ListDialog& dialog)
    : ModalDialog(stack, toQt(dialog.title)),
      dialog_(dialog),
      searched_(makeChild<QLineEdit>(this)),
      table_(makeChild<RowTable>(*this)) {
  folded_.reserve(dialog.rows.size());
  for (const auto& row : dialog.rows) folded_.push_back(folded(toQt(row.name)));

  auto& layout = makeChild<QVBoxLayout>(this);
  layout.setContentsMargins(12, 12, 12, 12);
  layout.setSpacing(8);
  auto& searchLine = makeChild<QHBoxLayout>();
  auto& label = makeChild<QLabel>("&Buscar:", this);
  label.setBuddy(&searched_);
  searched_.setClearButtonEnabled(true);
  searched_.installEventFilter(this);
  searchLine.addWidget(&label);
  searchLine.addWidget(&searched_, 1);
  layout.addLayout(&searchLine);

  table_.setModel(&makeChild<ChoiceModel>(dialog, this));
  table_.horizontalHeader()->setSectionsClickable(false);
  table_.horizontalHeader()->setStretchLastSection(true);
  table_.setShowGrid(false);
  const int codes = std::max(pixels(dialog.codeWidth), table_.headingWidth(0) + 4);
  table_.setColumnWidth(0, codes);
  table_.setColumnWidth(1, pixels(dialog.nameWidth));
  table_.fitHeadings();
  table_.setFocusProxy(&searched_);
  table_.onPress = [this](const QModelIndex& cell, const QPoint&) {
    table_.showCurrentRow(cell.row());
  };
  table_.onDoubleClick = [this](const QModelIndex& cell, const QPoint&) {
    table_.showCurrentRow(cell.row());
    chooseCurrent();
  };
  layout.addWidget(&table_, 1);

  auto& buttons = makeChild<QHBoxLayout>();
  buttons.setSpacing(8);
  buttons.addStretch(1);
  QPushButton& take = addButton("&Aceptar");
  take.setDefault(true);
  take.setEnabled(!dialog.rows.empty());
  leave_ = &addButton("&Cancelar");
  buttons.addWidget(&take);
  buttons.addWidget(leave_);
  layout.addLayout(&buttons);
  connect(&take, &QPushButton::clicked, this, [this] { chooseCurrent(); });
  connect(leave_, &QPushButton::clicked, this, [this] { reject(); });
  connect(&searched_, &QLineEdit::textEdited, this, [this](const QString& text) { search(text); });

  const int columns = codes + pixels(dialog.nameWidth);
  resize(std::max(kNarrowest, columns + table_.verticalScrollBar()->sizeHint().width() + 28),
         kHeight);
  if (!dialog.rows.empty()) table_.showCurrentRow(0);
  searched_.setFocus(Qt::OtherFocusReason);
}

void ChoiceDialog::enterPressed() {
  chooseCurrent();
}

void ChoiceDialog::chooseCurrent() {
  const QModelIndex current = table_.currentIndex();
  if (!current.isValid()) return;
  chosen_ = static_cast<std::size_t>(current.row());
  accept();
}

/// Moves to the first row that begins with the text; if none does, the current row stays.
void ChoiceDialog::search(const QString& begin) {
  const QString wanted = folded(begin);
  const auto found = std::find_if(folded_.begin(), folded_.end(),
                                  [&](const QString& name) { return name.startsWith(wanted); });
  if (found != folded_.end()) table_.showCurrentRow(static_cast<int>(found - folded_.begin()));
}

/// Keys that move in the list also work in the search field.
bool ChoiceDialog::eventFilter(QObject* object, QEvent* event) {
  if (object != &searched_ || event->type() != QEvent::KeyPress)
    return ModalDialog::eventFilter(object, event);
  const auto& key = static_cast<QKeyEvent&>(*event);
  const int last = table_.model()->rowCount() - 1;
  const int page = std::max(1, table_.viewport()->height() / std::max(1, table_.rowHeight(0)) - 1);
  const int current = table_.currentIndex().row();
  const auto move = [&](int row) {
    if (last >= 0) table_.showCurrentRow(std::clamp(row, 0, last));
    return true;
  };
  const bool control = key.modifiers().testFlag(Qt::ControlModifier);
  switch (key.key()) {
    case Qt::Key_Up:
      return move(current - 1);
    case Qt::Key_Down:
      return move(current + 1);
    case Qt::Key_PageUp:
      return move(current - page);
    case Qt::Key_PageDown:
      return move(current + page);
    case Qt::Key_Home:
      return control && move(0);
    case Qt::Key_End:
      return control && move(last);
    default:
      return false;
  }
}

}  // namespace korvantes::desktop
