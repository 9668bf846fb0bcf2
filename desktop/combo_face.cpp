#include <QAbstractItemView>
#include <QAbstractListModel>
#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionComboBox>

#include "desktop/control_face.h"
#include "desktop/look.h"
#include "desktop/owned_child.h"

namespace korvantes::desktop {

namespace {

constexpr int kMostEntriesShown = 14;

/// The entries of a combo box as of the last notification.
class EntryModel : public QAbstractListModel {
 public:
  explicit EntryModel(const screen::ComboBox& combo) : combo_(combo) {}

  void readAgain() {
    beginResetModel();
    count_ = static_cast<int>(combo_.list().size());
    endResetModel();
  }
  int rowCount(const QModelIndex& parent = {}) const override {
    return parent.isValid() ? 0 : count_;
  }
  QVariant data(const QModelIndex& index, int role) const override {
    const auto row = static_cast<std::size_t>(index.row());
    if (!index.isValid() || role != Qt::DisplayRole || row >= combo_.list().size()) return {};
    return toQt(combo_.list()[row]);
  }

 private:
  const screen::ComboBox& combo_;
  int count_ = 0;
};

/// Qt opens and draws the list; we draw the text, which only the model changes.
class ComboWidget : public QComboBox {
 public:
  ComboWidget(screen::ComboBox& combo, FaceWindow& window, QWidget& parent)
      : QComboBox(&parent), combo_(combo), window_(window), entries_(combo) {
    setFocusPolicy(Qt::NoFocus);
    setMaxVisibleItems(kMostEntriesShown);
    setModel(&entries_);
    setAttribute(Qt::WA_InputMethodEnabled);
    connect(this, &QComboBox::activated, this, [this](int entry) {
      window_.report([&](screen::UserInput& user) { user.selectEntry(combo_, entry); });
      setCurrentIndex(combo_.ListIndex());
    });
  }

  void readEntries() {
    entries_.readAgain();
    setCurrentIndex(combo_.ListIndex());
  }

 protected:
  void mousePressEvent(QMouseEvent* event) override {
    if (event->button() != Qt::LeftButton) return;
    window_.report([&](screen::UserInput& user) { user.moveFocus(combo_); });
    // Opens the list, and keeps it open over the release of the button.
    if (window_.form().ActiveControl() == &combo_) QComboBox::mousePressEvent(event);
  }
  void mouseDoubleClickEvent(QMouseEvent* event) override { mousePressEvent(event); }
  void wheelEvent(QWheelEvent* event) override { event->ignore(); }
  void inputMethodEvent(QInputMethodEvent* event) override {
    const std::string composed = fromQt(event->commitString());
    if (!composed.empty()) window_.report([&](screen::UserInput& user) { user.paste(composed); });
    event->accept();
  }

  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    option.editable = true;  // both kinds look like fields, as on the designed forms
    style()->drawComplexControl(QStyle::CC_ComboBox, &option, &painter, this);

    const QRect place =
        style()
            ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this)
            .adjusted(1, 0, -1, 0);
    QColor back = colorOf(combo_.BackColor());
    if (!isEnabled()) back = mixed(back, palette().color(QPalette::Window), 0.5);
    painter.fillRect(place.adjusted(-1, 1, 1, -1), back);

    const bool marked = hasFocus() && !combo_.Editable();
    if (marked) painter.fillRect(place.adjusted(0, 2, 0, -2), palette().color(QPalette::Highlight));
    painter.setPen(marked ? palette().color(QPalette::HighlightedText)
                          : colorOf(combo_.ForeColor()));
    const QString text =
        fontMetrics().elidedText(toQt(combo_.Text()), Qt::ElideRight, place.width() - 4);
    painter.drawText(place.adjusted(2, 0, -2, 0), Qt::AlignLeft | Qt::AlignVCenter, text);
    if (!hasFocus() || !combo_.Editable()) return;
    // The model inserts and deletes at the end, so the caret is there.
    const int caret = place.left() + 2 + fontMetrics().horizontalAdvance(text);
    painter.fillRect(QRect(caret, place.top() + 3, 1, place.height() - 6),
                     colorOf(combo_.ForeColor()));
  }

 private:
  screen::ComboBox& combo_;
  FaceWindow& window_;
  EntryModel entries_;
};

class ComboFace : public ControlFace {
 public:
  ComboFace(screen::ComboBox& combo, FaceWindow& window, QWidget& parent)
      : ControlFace(combo, window),
        combo_(combo),
        widget_(makeChild<ComboWidget>(combo, window, parent)) {
    widget_.readEntries();
  }

  QWidget& widget() const override { return widget_; }
  void showRows() override { widget_.readEntries(); }

  void command(const QKeyEvent& event) override {
    const bool opens = event.key() == Qt::Key_Down && event.modifiers().testFlag(Qt::AltModifier);
    QClipboard& clipboard = *QGuiApplication::clipboard();
    if (opens) {
      widget_.showPopup();
    } else if (event.matches(QKeySequence::Copy)) {
      clipboard.setText(toQt(combo_.Text()));
    } else if (event.matches(QKeySequence::Paste)) {
      const std::string text = fromQt(clipboard.text());
      window().report([&](screen::UserInput& user) { user.paste(text); });
    }
  }

 protected:
  void showControl() override {
    widget_.setFont(fontOf(combo_.TextFont()));
    const int entry = combo_.ListIndex();
    if (entry < widget_.count() && widget_.currentIndex() != entry) widget_.setCurrentIndex(entry);
    const QString text = toQt(combo_.Text());
    const bool cut = widget_.fontMetrics().horizontalAdvance(text) > widget_.width() - 24;
    widget_.setToolTip(cut ? text : QString());
    widget_.update();
  }

 private:
  screen::ComboBox& combo_;
  ComboWidget& widget_;
};

}  // namespace

std::unique_ptr<ControlFace> makeFace(screen::ComboBox& combo, FaceWindow& window,
                                      QWidget& parent) {
  return std::make_unique<ComboFace>(combo, window, parent);
}

}  // namespace korvantes::desktop
