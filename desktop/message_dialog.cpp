#include "desktop/message_dialog.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/icons.h"
#include "desktop/look.h"
#include "desktop/owned_child.h"

namespace korvantes::desktop {

namespace {

constexpr int kIcon = 36;
constexpr int kWidestText = 460;
constexpr int kNarrowestText = 180;

QString iconOf(int style) {
  switch (style & 0x70) {
    case screen::style::Critical:
      return "critico";
    case screen::style::Question:
      return "pregunta";
    case screen::style::Exclamation:
      return "aviso";
    case screen::style::Information:
      return "informacion";
    default:
      return {};
  }
}

}  // namespace

MessageDialog::MessageDialog(WindowStack& stack, const screen::MessageBox& box)
    : ModalDialog(stack, toQt(box.title)),
      text_(toQt(box.text)),
      default_(box.defaultAnswer()),
      answer_(box.yesNo() ? screen::Answer::No : screen::Answer::Ok) {
  auto& layout = makeChild<QVBoxLayout>(this);
  layout.setContentsMargins(18, 18, 18, 14);
  layout.setSpacing(18);
  layout.setSizeConstraint(QLayout::SetFixedSize);

  auto& message = makeChild<QHBoxLayout>();
  message.setSpacing(14);
  layout.addLayout(&message);
  if (const QString icon = iconOf(box.style); !icon.isEmpty()) {
    auto& picture = makeChild<QLabel>(this);
    picture.setPixmap(iconNamed(icon).pixmap(QSize(kIcon, kIcon), devicePixelRatioF()));
    message.addWidget(&picture, 0, Qt::AlignTop);
  }
  auto& words = makeChild<QLabel>(text_, this);
  words.setTextFormat(Qt::PlainText);
  words.setTextInteractionFlags(Qt::TextSelectableByMouse);
  words.setFocusPolicy(Qt::NoFocus);
  const int natural = words.fontMetrics().size(0, text_).width() + 4;
  words.setWordWrap(natural > kWidestText);
  words.setMinimumWidth(std::clamp(natural, kNarrowestText, kWidestText));
  message.addWidget(&words, 1, Qt::AlignVCenter);

  auto& buttons = makeChild<QHBoxLayout>();
  buttons.setSpacing(8);
  buttons.addStretch(1);
  layout.addLayout(&buttons);
  if (box.yesNo()) {
    add("&Sí", screen::Answer::Yes);
    add("&No", screen::Answer::No);
  } else {
    add("&Aceptar", screen::Answer::Ok);
  }
  for (const auto& [answer, button] : buttons_) buttons.addWidget(button);
  QPushButton& first = *buttons_.at(default_);
  first.setDefault(true);
  first.setFocus(Qt::OtherFocusReason);
}

void MessageDialog::add(const QString& caption, screen::Answer answer) {
  QPushButton& made = addButton(caption);
  connect(&made, &QPushButton::clicked, this, [this, answer] { choose(answer); });
  buttons_[answer] = &made;
}

void MessageDialog::choose(screen::Answer answer) {
  answer_ = answer;
  accept();
}

QPushButton* MessageDialog::button(screen::Answer answer) const {
  const auto known = buttons_.find(answer);
  return known == buttons_.end() ? nullptr : known->second;
}

void MessageDialog::enterPressed() {
  choose(default_);
}

void MessageDialog::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::Copy)) {
    QGuiApplication::clipboard()->setText(text_);
    return;
  }
  // The letter alone answers, without Alt, as in the message boxes that users know.
  if (!event->isAutoRepeat() && event->modifiers() == Qt::NoModifier) {
    if (event->key() == Qt::Key_S && button(screen::Answer::Yes) != nullptr)
      return choose(screen::Answer::Yes);
    if (event->key() == Qt::Key_N && button(screen::Answer::No) != nullptr)
      return choose(screen::Answer::No);
  }
  ModalDialog::keyPressEvent(event);
}

}  // namespace korvantes::desktop
