#include "runtime/screen/controls.h"

#include "runtime/screen/desktop.h"

namespace korvantes::screen {

Label::Label(Form& form, std::string name, std::optional<int> index)
    : Control(form, Kind::Label, std::move(name), index) {}

Frame::Frame(Form& form, std::string name, std::optional<int> index)
    : Control(form, Kind::Frame, std::move(name), index) {}

CheckBox::CheckBox(Form& form, std::string name, std::optional<int> index)
    : Control(form, Kind::CheckBox, std::move(name), index) {}

void CheckBox::propertyChanged(const PropertyBase& property) {
  Control::propertyChanged(property);
  if (&property == &Value && Click) Click();
}

OptionButton::OptionButton(Form& form, std::string name, std::optional<int> index)
    : Control(form, Kind::OptionButton, std::move(name), index) {}

void OptionButton::propertyChanged(const PropertyBase& property) {
  Control::propertyChanged(property);
  if (&property != &Value || !Value()) return;
  for (Control* sibling : form().controls())
    if (sibling != this && sibling->kind() == Kind::OptionButton &&
        sibling->container() == container())
      static_cast<OptionButton*>(sibling)->Value = false;
  if (Click) Click();
}

PictureButton::PictureButton(Form& form, std::string name, std::optional<int> index)
    : Control(form, Kind::PictureButton, std::move(name), index) {}

void PictureButton::setUp(const char* caption, const char* icon, const Box& box, int tabIndex) {
  Caption = caption;
  Icon = icon;
  place(box);
  TabIndex = tabIndex;
  BackColor = kButtonFace;
  ForeColor = kButtonText;
}

Image::Image(Form& form, std::string name, std::optional<int> index)
    : Control(form, Kind::Image, std::move(name), index) {}

Shape::Shape(Form& form, std::string name, std::optional<int> index)
    : Control(form, Kind::Shape, std::move(name), index) {}

CommonDialog::CommonDialog(Form& form, std::string name, std::optional<int> index)
    : Control(form, Kind::CommonDialog, std::move(name), index) {}

bool CommonDialog::ShowOpen() {
  const std::optional<std::string> chosen = Desktop::current().chooseFile({Filter()});
  if (chosen) FileName = *chosen;
  return chosen.has_value();
}

std::string printValue(const Picture& picture) {
  if (picture.empty()) return "(ninguna)";
  return std::to_string(picture.width()) + " x " + std::to_string(picture.height());
}

}  // namespace korvantes::screen
