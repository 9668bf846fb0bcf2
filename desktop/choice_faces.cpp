// Check boxes and option buttons.
#include <QAbstractButton>
#include <QCheckBox>
#include <QMouseEvent>
#include <QPainter>
#include <QPalette>
#include <QRadioButton>
#include <QStyle>
#include <QStyleOptionButton>
#include <QStyleOptionFocusRect>

#include "desktop/control_face.h"
#include "desktop/look.h"
#include "desktop/owned_child.h"

namespace korvantes::desktop {

namespace {

constexpr int kIndicator = 13;
constexpr int kGap = 5;

/// A Qt button of either kind, drawn by us and clicked through the model.
template <class Button>
class ChoiceWidget : public Button {
 public:
  ChoiceWidget(screen::Control& control, FaceWindow& window, QStyle::PrimitiveElement indicator,
               QWidget& parent)
      : Button(&parent), control_(control), window_(window), indicator_(indicator) {
    this->setFocusPolicy(Qt::NoFocus);
    this->setAutoExclusive(false);
  }

  void caption(const QString& text) {
    this->setText(text);
    this->setShortcut(QKeySequence());  // access keys are the model's
    tellWhatIsCut(*this, shown(), toQt(screen::captionWithoutMark(fromQt(text))));
  }

 protected:
  bool hitButton(const QPoint& place) const override { return this->rect().contains(place); }
  void mousePressEvent(QMouseEvent* event) override {
    if (event->button() == Qt::LeftButton) this->setDown(true);
  }
  void mouseMoveEvent(QMouseEvent* event) override {
    if (event->buttons().testFlag(Qt::LeftButton))
      this->setDown(hitButton(event->position().toPoint()));
  }
  void mouseReleaseEvent(QMouseEvent* event) override {
    const bool clicked = event->button() == Qt::LeftButton && this->isDown();
    if (event->button() == Qt::LeftButton) this->setDown(false);
    if (clicked) window_.report([&](screen::UserInput& user) { user.click(control_); });
  }

  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.fillRect(this->rect(), colorOf(control_.BackColor()));
    QStyleOptionButton option;
    this->initStyleOption(&option);
    const int side = std::min(kIndicator, this->height());
    option.rect = QRect(0, (this->height() - side) / 2, side, side);
    this->style()->drawPrimitive(indicator_, &option, &painter, this);

    const FittedText text = shown();
    QColor color = colorOf(control_.ForeColor());
    if (!this->isEnabled()) color = mixed(color, colorOf(control_.BackColor()), 0.4);
    painter.setFont(text.font);
    painter.setPen(color);
    const int flags = Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic | Qt::TextDontClip;
    painter.drawText(textPlace(), flags, text.text);
    if (!this->hasFocus()) return;
    const QSize size = QFontMetrics(text.font).size(Qt::TextShowMnemonic, text.text);
    const int width = std::min(size.width() + 4, textPlace().width() + 2);
    painter.setPen(QPen(color, 1, Qt::DotLine));
    painter.drawRect(QRect(textPlace().left() - 2, 0, width, this->height() - 1));
  }

 private:
  QRect textPlace() const { return this->rect().adjusted(kIndicator + kGap, 0, -1, 0); }
  FittedText shown() const { return fit(this->text(), this->font(), textPlace().width()); }

  screen::Control& control_;
  FaceWindow& window_;
  QStyle::PrimitiveElement indicator_;
};

class CheckFace : public ControlFace {
 public:
  CheckFace(screen::CheckBox& box, FaceWindow& window, QWidget& parent)
      : ControlFace(box, window),
        box_(box),
        widget_(makeChild<ChoiceWidget<QCheckBox>>(box, window, QStyle::PE_IndicatorCheckBox,
                                                   parent)) {}

  QWidget& widget() const override { return widget_; }

 protected:
  void showControl() override {
    widget_.setFont(fontOf(box_.TextFont()));
    widget_.setChecked(box_.Value() != 0);
    widget_.caption(toQt(box_.Caption()));
    widget_.update();
  }

 private:
  screen::CheckBox& box_;
  ChoiceWidget<QCheckBox>& widget_;
};

class OptionFace : public ControlFace {
 public:
  OptionFace(screen::OptionButton& option, FaceWindow& window, QWidget& parent)
      : ControlFace(option, window),
        option_(option),
        widget_(makeChild<ChoiceWidget<QRadioButton>>(option, window,
                                                      QStyle::PE_IndicatorRadioButton, parent)) {}

  QWidget& widget() const override { return widget_; }

 protected:
  void showControl() override {
    widget_.setFont(fontOf(option_.TextFont()));
    widget_.setChecked(option_.Value());
    widget_.caption(toQt(option_.Caption()));
    widget_.update();
  }

 private:
  screen::OptionButton& option_;
  ChoiceWidget<QRadioButton>& widget_;
};

}  // namespace

std::unique_ptr<ControlFace> makeFace(screen::CheckBox& box, FaceWindow& window, QWidget& parent) {
  return std::make_unique<CheckFace>(box, window, parent);
}

std::unique_ptr<ControlFace> makeFace(screen::OptionButton& option, FaceWindow& window,
                                      QWidget& parent) {
  return std::make_unique<OptionFace>(option, window, parent);
}

}  // namespace korvantes::desktop
