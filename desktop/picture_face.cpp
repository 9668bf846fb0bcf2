// Images and shapes.
#include <QImage>
#include <QPainter>
#include <QWidget>

#include "desktop/control_face.h"
#include "desktop/look.h"
#include "desktop/owned_child.h"
#include "desktop/pictures.h"

namespace korvantes::desktop {

namespace {

class ImageWidget : public QWidget {
 public:
  ImageWidget(const screen::Image& image, QWidget& parent) : QWidget(&parent), image_(image) {}

  void showImage() {
    if (!(shown_ == image_.Picture())) {
      shown_ = image_.Picture();
      pixels_ = imageOf(shown_);
    }
    update();
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    if (pixels_.isNull()) return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    // The painter skips rows when it scales down far; QImage::scaled does not.
    const QSize target = size() * devicePixelRatioF();
    const bool shrinks = target.width() < pixels_.width() || target.height() < pixels_.height();
    painter.drawImage(
        rect(), shrinks ? pixels_.scaled(target, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                        : pixels_);
  }

 private:
  const screen::Image& image_;
  screen::Picture shown_;
  QImage pixels_;
};

class ImageFace : public ControlFace {
 public:
  ImageFace(screen::Image& image, FaceWindow& window, QWidget& parent)
      : ControlFace(image, window), widget_(makeChild<ImageWidget>(image, parent)) {}
  QWidget& widget() const override { return widget_; }

 protected:
  void showControl() override { widget_.showImage(); }

 private:
  ImageWidget& widget_;
};

class ShapeFace : public ControlFace {
 public:
  ShapeFace(screen::Shape& shape, FaceWindow& window, QWidget& parent)
      : ControlFace(shape, window), widget_(makeChild<QWidget>(&parent)) {
    widget_.setAutoFillBackground(true);
  }
  QWidget& widget() const override { return widget_; }

 protected:
  void showControl() override {
    QPalette colors;
    colors.setColor(QPalette::Window, colorOf(control().BackColor()));
    widget_.setPalette(colors);
  }

 private:
  QWidget& widget_;
};

}  // namespace

std::unique_ptr<ControlFace> makeFace(screen::Image& image, FaceWindow& window, QWidget& parent) {
  return std::make_unique<ImageFace>(image, window, parent);
}

std::unique_ptr<ControlFace> makeFace(screen::Shape& shape, FaceWindow& window, QWidget& parent) {
  return std::make_unique<ShapeFace>(shape, window, parent);
}

}  // namespace korvantes::desktop
