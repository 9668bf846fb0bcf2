#include <algorithm>
#include <stdexcept>

#include "runtime/screen/controls.h"
#include "runtime/screen/form.h"

namespace korvantes::screen {

ComboBox::ComboBox(Form& form, std::string name, std::optional<int> index)
    : Control(form, Kind::ComboBox, std::move(name), index) {}

void ComboBox::AddItem(std::string entry) {
  list_.push_back(std::move(entry));
  ListCount = static_cast<int>(list_.size());
  if (FormObserver* face = form().observer()) face->rowsChanged(*this);
}

void ComboBox::Clear() {
  list_.clear();
  ListCount = 0;
  show(-1, "");
  if (FormObserver* face = form().observer()) face->rowsChanged(*this);
}

void ComboBox::propertyChanged(const PropertyBase& property) {
  // A value that differs from the current one was assigned outside this class.
  if (&property == &ListIndex && ListIndex() != selected_)
    indexAssigned();
  else if (&property == &Text && Text() != shownText_)
    textAssigned();
  else
    Control::propertyChanged(property);
}

void ComboBox::indexAssigned() {
  const int wanted = ListIndex();
  if (wanted < -1 || wanted >= static_cast<int>(list_.size())) {
    ListIndex = selected_;
    throw std::out_of_range("La lista " + identity() + " no tiene la entrada " +
                            std::to_string(wanted));
  }
  show(wanted, wanted < 0 ? std::string() : list_[static_cast<std::size_t>(wanted)]);
  Control::propertyChanged(ListIndex);
  if (Click) Click();
}

void ComboBox::textAssigned() {
  const std::string wanted = Text();
  if (Editable()) {
    show(-1, wanted);
    Control::propertyChanged(Text);
    return;
  }
  const auto entry = std::find(list_.begin(), list_.end(), wanted);
  Text = shownText_;
  if (entry == list_.end())
    throw std::invalid_argument("La lista " + identity() + " no tiene la entrada «" + wanted + "»");
  ListIndex = static_cast<int>(entry - list_.begin());
}

void ComboBox::show(int entry, std::string text) {
  selected_ = entry;
  shownText_ = std::move(text);
  ListIndex = selected_;
  Text = shownText_;
}

void ComboBox::typeOver(std::string text) {
  if (text == Text()) return;
  show(-1, std::move(text));
  if (Change) Change();
}

}  // namespace korvantes::screen
