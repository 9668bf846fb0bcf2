#include "runtime/screen/control.h"

#include <algorithm>

#include "runtime/ado/utf8.h"
#include "runtime/screen/controls.h"
#include "runtime/screen/form.h"
#include "runtime/screen/letters.h"
#include "runtime/screen/user_input.h"

namespace korvantes::screen {

Control::Control(Form& form, Kind kind, std::string name, std::optional<int> index)
    : form_(form), kind_(kind), name_(std::move(name)), index_(index) {
  form_.controls_.push_back(this);
}

Control::~Control() {
  std::erase(form_.controls_, this);
  if (form_.active_ == this) form_.active_ = nullptr;
  if (form_.wanted_ == this) form_.wanted_ = nullptr;
  if (form_.held_ == this) form_.held_ = nullptr;
}

std::string Control::identity() const {
  return index_ ? name_ + "(" + std::to_string(*index_) + ")" : name_;
}

void Control::place(const Box& box) {
  Left = box.left;
  Top = box.top;
  Width = box.width;
  Height = box.height;
}

bool Control::shown() const {
  return Visible() && (container_ == nullptr || container_->shown());
}

bool Control::usable() const {
  if (!shown() || !form_.Enabled()) return false;
  for (const Control* control = this; control != nullptr; control = control->container_)
    if (!control->Enabled()) return false;
  return true;
}

bool Control::canTakeFocus() const {
  switch (kind_) {
    case Kind::TextBox:
    case Kind::CheckBox:
    case Kind::OptionButton:
    case Kind::ComboBox:
    case Kind::PictureButton:
    case Kind::ListView:
    case Kind::DataGrid:
      return usable();
    case Kind::Label:
    case Kind::Frame:
    case Kind::Image:
    case Kind::Shape:
    case Kind::CommonDialog:
      return false;
  }
  return false;
}

bool Control::isTabStop() const {
  return TabStop() && canTakeFocus();
}

void Control::SetFocus() {
  if (!form_.loaded_ || !canTakeFocus()) return;
  if (form_.handlerDepth_ > 0)
    form_.wanted_ = this;
  else
    UserInput(form_).moveFocus(*this);
}

void Control::propertyChanged(const PropertyBase& property) {
  if (form_.observer_ != nullptr) form_.observer_->propertyChanged(this, property);
}

char32_t accessKeyOf(std::string_view caption) {
  const std::u32string text = ado::toCodePoints(caption);
  for (std::size_t i = 0; i + 1 < text.size(); ++i) {
    if (text[i] != U'&') continue;
    if (text[i + 1] != U'&') return upperCase(text[i + 1]);
    ++i;
  }
  return 0;
}

std::string captionWithoutMark(std::string_view caption) {
  std::string text;
  for (std::size_t i = 0; i < caption.size(); ++i) {
    if (caption[i] == '&' && ++i == caption.size()) break;
    text += caption[i];
  }
  return text;
}

}  // namespace korvantes::screen
