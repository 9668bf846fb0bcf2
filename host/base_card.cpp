#include "host/base_card.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QResizeEvent>
#include <QVBoxLayout>
#include <algorithm>

#include "desktop/icons.h"
#include "desktop/look.h"
#include "desktop/owned_child.h"

namespace korvantes::host {
namespace {

using desktop::makeChild;

constexpr int kIcon = 28;
constexpr int kGap = 12;

}  // namespace

BaseCard::BaseCard(QWidget* parent)
    : QFrame(parent),
      icon_(makeChild<QLabel>(this)),
      heading_(makeChild<QLabel>(this)),
      words_(makeChild<QLabel>(this)) {
  setFrameShape(QFrame::StyledPanel);
  setAutoFillBackground(true);
  setBackgroundRole(QPalette::Base);
  heading_.setFont(desktop::fontOf({9, true}));
  words_.setTextFormat(Qt::PlainText);
  words_.setTextInteractionFlags(Qt::TextSelectableByMouse);
  words_.setFocusPolicy(Qt::NoFocus);
  words_.setMinimumWidth(1);  // the text is fitted to the card, not the card to the text

  auto& layout = makeChild<QHBoxLayout>(this);
  layout.setContentsMargins(kGap, kGap, kGap, kGap);
  layout.setSpacing(kGap);
  layout.addWidget(&icon_, 0, Qt::AlignTop);
  auto& texts = makeChild<QVBoxLayout>();
  texts.setSpacing(2);
  texts.addWidget(&heading_);
  texts.addWidget(&words_, 1);
  layout.addLayout(&texts, 1);
}

void BaseCard::showBase(std::string_view name) {
  problem_ = false;
  show("base", "Base de datos en uso", desktop::toQt(name));
}

void BaseCard::showProblem(std::string_view sentence) {
  problem_ = true;
  show("aviso", "No hay ninguna base de datos en uso", desktop::toQt(sentence));
}

void BaseCard::show(const char* icon, const QString& heading, const QString& words) {
  icon_.setPixmap(desktop::iconNamed(icon).pixmap(QSize(kIcon, kIcon), devicePixelRatioF()));
  heading_.setText(heading);
  whole_ = words;
  words_.setWordWrap(problem_);
  fitWords();
}

/// A path is cut in the middle, where it matters least; a sentence takes as many lines as it needs.
void BaseCard::fitWords() {
  if (problem_) {
    words_.setText(whole_);
    words_.setToolTip({});
    words_.setMinimumHeight(std::max(0, words_.heightForWidth(words_.width())));
    return;
  }
  const QString shown =
      words_.fontMetrics().elidedText(whole_, Qt::ElideMiddle, words_.contentsRect().width());
  words_.setText(shown);
  words_.setMinimumHeight(0);
  words_.setToolTip(shown == whole_ ? QString() : whole_);
}

void BaseCard::resizeEvent(QResizeEvent* event) {
  QFrame::resizeEvent(event);
  layout()->activate();
  fitWords();
}

}  // namespace korvantes::host
