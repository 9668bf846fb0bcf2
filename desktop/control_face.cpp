#include "desktop/control_face.h"

#include <QWidget>

#include "desktop/look.h"

namespace korvantes::desktop {

void ControlFace::place() {
  widget().setGeometry(rectOf(control_));
}

void ControlFace::show() {
  // A frame is never disabled as a widget: its contents decide how they look.
  if (control_.kind() != screen::Control::Kind::Frame) widget().setEnabled(looksEnabled());
  showControl();
  widget().setVisible(control_.Visible());
}

bool ControlFace::looksEnabled() const {
  for (const screen::Control* each = &control_; each != nullptr; each = each->container())
    if (!each->Enabled()) return false;
  return true;
}

screen::Color ControlFace::background() const {
  const screen::Frame* frame = control_.container();
  return frame != nullptr ? frame->BackColor() : control_.form().BackColor();
}

std::unique_ptr<ControlFace> makeFaceOf(screen::Control& control, FaceWindow& window,
                                        QWidget& parent) {
  using Kind = screen::Control::Kind;
  switch (control.kind()) {
    case Kind::Label:
      return makeFace(static_cast<screen::Label&>(control), window, parent);
    case Kind::TextBox:
      return makeFace(static_cast<screen::TextBox&>(control), window, parent);
    case Kind::Frame:
      return makeFace(static_cast<screen::Frame&>(control), window, parent);
    case Kind::CheckBox:
      return makeFace(static_cast<screen::CheckBox&>(control), window, parent);
    case Kind::OptionButton:
      return makeFace(static_cast<screen::OptionButton&>(control), window, parent);
    case Kind::ComboBox:
      return makeFace(static_cast<screen::ComboBox&>(control), window, parent);
    case Kind::PictureButton:
      return makeFace(static_cast<screen::PictureButton&>(control), window, parent);
    case Kind::ListView:
      return makeFace(static_cast<screen::ListView&>(control), window, parent);
    case Kind::DataGrid:
      return makeFace(static_cast<screen::DataGrid&>(control), window, parent);
    case Kind::Image:
      return makeFace(static_cast<screen::Image&>(control), window, parent);
    case Kind::Shape:
      return makeFace(static_cast<screen::Shape&>(control), window, parent);
    case Kind::CommonDialog:
      break;
  }
  return nullptr;
}

}  // namespace korvantes::desktop
