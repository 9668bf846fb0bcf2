#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QStyle>
#include <QStyleOptionButton>

#include "desktop/control_face.h"
#include "desktop/icons.h"
#include "desktop/look.h"
#include "desktop/owned_child.h"

namespace korvantes::desktop {

namespace {

constexpr int kIcon = 16;
constexpr int kLargeIcon = 22;
constexpr int kGap = 5;
constexpr int kMargin = 5;
constexpr int kHeightForIconOnTop = 42;

class ButtonWidget : public QPushButton {
 public:
  ButtonWidget(screen::PictureButton& button, FaceWindow& window, QWidget& parent)
      : QPushButton(&parent), button_(button), window_(window) {
    setFocusPolicy(Qt::NoFocus);
    setAutoDefault(false);
  }

  void showButton() {
    setFont(fontOf(button_.TextFont()));
    setText(toQt(button_.Caption()));
    setShortcut(QKeySequence());  // access keys are the model's
    QPalette colors = palette();
    colors.setColor(QPalette::Button, colorOf(button_.BackColor()));
    setPalette(colors);
    const QString whole = toQt(screen::captionWithoutMark(button_.Caption()));
    setAccessibleName(whole);
    tellWhatIsCut(*this, shown(), whole);
    update();
  }

 protected:
  void mousePressEvent(QMouseEvent* event) override {
    if (event->button() == Qt::LeftButton) setDown(true);
  }
  void mouseMoveEvent(QMouseEvent* event) override {
    if (event->buttons().testFlag(Qt::LeftButton))
      setDown(rect().contains(event->position().toPoint()));
  }
  void mouseReleaseEvent(QMouseEvent* event) override {
    const bool clicked = event->button() == Qt::LeftButton && isDown();
    if (event->button() == Qt::LeftButton) setDown(false);
    if (clicked) window_.report([&](screen::UserInput& user) { user.click(button_); });
  }

  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    option.text.clear();
    option.icon = QIcon();
    style()->drawControl(QStyle::CE_PushButtonBevel, &option, &painter, this);
    if (isDown()) painter.translate(1, 1);

    const FittedText caption = shown();
    const QSize size = QFontMetrics(caption.font).size(Qt::TextShowMnemonic, caption.text);
    const QRect inside = rect().adjusted(kMargin, 0, -kMargin, 0);
    QRect textPlace = inside;
    if (iconOnTop()) {
      const int together = kLargeIcon + 2 + size.height();
      const int top = (height() - together) / 2;
      paintIcon(painter, icon(), QRect((width() - kLargeIcon) / 2, top, kLargeIcon, kLargeIcon),
                isEnabled());
      textPlace = QRect(inside.left(), top + kLargeIcon + 2, inside.width(), size.height());
    } else if (!icon().isEmpty()) {
      const int together = kIcon + kGap + size.width();
      const int left = std::max(inside.left(), (width() - together) / 2);
      paintIcon(painter, icon(), QRect(left, (height() - kIcon) / 2, kIcon, kIcon), isEnabled());
      textPlace.setLeft(left + kIcon + kGap);
      textPlace.setWidth(size.width());
    }
    QColor color = colorOf(button_.ForeColor());
    if (!isEnabled()) color = mixed(color, colorOf(button_.BackColor()), 0.55);
    painter.setFont(caption.font);
    painter.setPen(color);
    painter.drawText(textPlace, Qt::AlignCenter | Qt::TextShowMnemonic | Qt::TextDontClip,
                     caption.text);
    if (!hasFocus()) return;
    painter.setPen(QPen(mixed(color, colorOf(button_.BackColor()), 0.35), 1, Qt::DotLine));
    painter.drawRect(rect().adjusted(3, 3, -4, -4));
  }

 private:
  QString icon() const {
    const QString name = toQt(button_.Icon());
    return hasIcon(name) ? name : QString();
  }
  bool iconOnTop() const { return !icon().isEmpty() && height() >= kHeightForIconOnTop; }
  FittedText shown() const {
    int width = this->width() - 2 * kMargin;
    if (iconOnTop()) return fit(text(), font(), width);
    if (!icon().isEmpty()) width -= kIcon + kGap;
    const bool twoLines = height() >= 2 * QFontMetrics(font()).height() + 4;
    return twoLines ? fitTwoLines(text(), font(), width) : fit(text(), font(), width);
  }

  screen::PictureButton& button_;
  FaceWindow& window_;
};

class ButtonFace : public ControlFace {
 public:
  ButtonFace(screen::PictureButton& button, FaceWindow& window, QWidget& parent)
      : ControlFace(button, window), widget_(makeChild<ButtonWidget>(button, window, parent)) {}

  QWidget& widget() const override { return widget_; }

 protected:
  void showControl() override { widget_.showButton(); }

 private:
  ButtonWidget& widget_;
};

}  // namespace

std::unique_ptr<ControlFace> makeFace(screen::PictureButton& button, FaceWindow& window,
                                      QWidget& parent) {
  return std::make_unique<ButtonFace>(button, window, parent);
}

}  // namespace korvantes::desktop
