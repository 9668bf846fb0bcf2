#include "runtime/screen/property.h"

#include <array>
#include <charconv>

#include "runtime/ado/text_order.h"

namespace korvantes::screen {

PropertyBase::PropertyBase(PropertyOwner& owner, std::string_view name)
    : owner_(owner), name_(name) {
  owner_.properties_.push_back(this);
}

void PropertyBase::changed() const {
  owner_.propertyChanged(*this);
}

const PropertyBase* PropertyOwner::findProperty(std::string_view name) const {
  for (const PropertyBase* property : properties_)
    if (ado::sameName(property->name(), name)) return property;
  return nullptr;
}

std::string printValue(bool value) {
  return value ? "True" : "False";
}

std::string printValue(int value) {
  return std::to_string(value);
}

std::string printValue(double value) {
  std::array<char, 32> text{};
  const auto end = std::to_chars(text.data(), text.data() + text.size(), value).ptr;
  return {text.data(), end};
}

std::string printValue(Color value) {
  return std::to_string(value);
}

std::string printValue(const std::string& value) {
  std::string printed = "\"";
  for (std::size_t i = 0; i < value.size(); ++i) {
    if (value[i] == '\r' && i + 1 < value.size() && value[i + 1] == '\n') continue;
    if (value[i] == '\r' || value[i] == '\n')
      printed += "\\n";
    else
      printed += value[i];
  }
  return printed + '"';
}

std::string printValue(const Font& value) {
  return printValue(value.size) + (value.bold ? " negrita" : "");
}

std::string printValue(Alignment value) {
  return std::to_string(static_cast<int>(value));
}

}  // namespace korvantes::screen
