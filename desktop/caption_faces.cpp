// Labels and frames: the parts of a form that take no input.
#include <QLabel>
#include <QPaintEvent>
#include <QPainter>
#include <QPainterPath>

#include "desktop/control_face.h"
#include "desktop/look.h"
#include "desktop/owned_child.h"

namespace korvantes::desktop {

namespace {

constexpr int kBorderRoom = 3;
constexpr int kFrameCaptionLeft = 8;
constexpr int kFrameCaptionRoom = 3;
constexpr double kFrameCorner = 3;

class LabelWidget : public QLabel {
 public:
  LabelWidget(const screen::Label& label, QWidget& parent) : QLabel(&parent), label_(label) {
    setFocusPolicy(Qt::NoFocus);
    setTextFormat(Qt::PlainText);
  }

  int room() const { return label_.Bordered() ? kBorderRoom : 0; }
  /// Lines break at blanks if the label is tall enough.
  bool wraps(int height) const { return height >= 2 * QFontMetrics(font()).height(); }
  FittedText shown() const {
    const int width = this->width() - 2 * room();
    return wraps(height()) ? FittedText{font(), text(), false} : fit(text(), font(), width);
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    if (!label_.Transparent()) painter.fillRect(rect(), colorOf(label_.BackColor()));
    if (label_.Bordered()) {
      painter.setPen(mixed(colorOf(label_.BackColor()), Qt::black, 0.45));
      painter.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
    }
    const FittedText caption = shown();
    painter.setFont(caption.font);
    painter.setPen(colorOf(label_.ForeColor()));
    const Qt::Alignment alignment = alignmentOf(label_.TextAlignment()) | Qt::AlignTop;
    const int wrap = wraps(height()) ? int{Qt::TextWordWrap} : 0;
    painter.drawText(rect().adjusted(room(), room(), -room(), 0),
                     static_cast<int>(alignment) | wrap | Qt::TextShowMnemonic | Qt::TextDontClip,
                     caption.text);
  }

 private:
  const screen::Label& label_;
};

class LabelFace : public ControlFace {
 public:
  LabelFace(screen::Label& label, FaceWindow& window, QWidget& parent)
      : ControlFace(label, window), label_(label), widget_(makeChild<LabelWidget>(label, parent)) {}

  QWidget& widget() const override { return widget_; }

  /// A label designed shorter than a line of the current font gets the height of one.
  void place() override {
    QRect place = rectOf(label_);
    place.setHeight(std::max(place.height(), QFontMetrics(fontOf(label_.TextFont())).height()));
    widget_.setGeometry(place);
  }

 protected:
  void showControl() override {
    widget_.setFont(fontOf(label_.TextFont()));
    widget_.setText(toQt(label_.Caption()));
    place();
    tellWhatIsCut(widget_, widget_.shown(), toQt(screen::captionWithoutMark(label_.Caption())));
    widget_.update();
  }

 private:
  screen::Label& label_;
  LabelWidget& widget_;
};

class FrameWidget : public QWidget {
 public:
  FrameWidget(const screen::Frame& frame, QWidget& parent) : QWidget(&parent), frame_(frame) {
    setFocusPolicy(Qt::NoFocus);
  }

  FittedText shown() const {
    return fit(toQt(frame_.Caption()), fontOf(frame_.TextFont()),
               width() - 2 * (kFrameCaptionLeft + kFrameCaptionRoom));
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    const QColor back = colorOf(frame_.BackColor());
    const FittedText caption = shown();
    const QFontMetrics metrics(caption.font);
    const int top = metrics.height() / 2;

    painter.fillRect(rect(), back);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(mixed(back, Qt::black, 0.38));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, top + 0.5, -0.5, -0.5), kFrameCorner,
                            kFrameCorner);
    if (caption.text.isEmpty()) return;
    const int width = metrics.size(Qt::TextShowMnemonic, caption.text).width();
    const QRect place(kFrameCaptionLeft, 0, width + 2 * kFrameCaptionRoom, metrics.height());
    painter.fillRect(place, back);
    painter.setFont(caption.font);
    painter.setPen(colorOf(frame_.ForeColor()));
    painter.drawText(place, Qt::AlignCenter | Qt::TextShowMnemonic | Qt::TextDontClip,
                     caption.text);
  }

 private:
  const screen::Frame& frame_;
};

class FrameFace : public ControlFace {
 public:
  FrameFace(screen::Frame& frame, FaceWindow& window, QWidget& parent)
      : ControlFace(frame, window), frame_(frame), widget_(makeChild<FrameWidget>(frame, parent)) {}

  QWidget& widget() const override { return widget_; }

 protected:
  void showControl() override {
    const QString caption = toQt(screen::captionWithoutMark(frame_.Caption()));
    widget_.setAccessibleName(caption);
    tellWhatIsCut(widget_, widget_.shown(), caption);
    widget_.update();
  }

 private:
  screen::Frame& frame_;
  FrameWidget& widget_;
};

}  // namespace

std::unique_ptr<ControlFace> makeFace(screen::Label& label, FaceWindow& window, QWidget& parent) {
  return std::make_unique<LabelFace>(label, window, parent);
}

std::unique_ptr<ControlFace> makeFace(screen::Frame& frame, FaceWindow& window, QWidget& parent) {
  return std::make_unique<FrameFace>(frame, window, parent);
}

}  // namespace korvantes::desktop
