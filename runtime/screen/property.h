// runtime/screen: the screen without a toolkit. Controls and forms are plain models; a face (a
// window system, or the headless desktop) shows their state and reports what the user did
// through UserInput, which alone decides the order of events.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace korvantes::screen {

/// A colour as the runtime numbers it: blue in the high byte of three (65535 is yellow). With bit
/// 31 set, the low byte is the index of a system colour.
using Color = std::uint32_t;
constexpr Color rgb(unsigned red, unsigned green, unsigned blue) {
  return red | green << 8U | blue << 16U;
}
constexpr Color kWindowBackground = 0x80000005;  ///< background of text boxes
constexpr Color kWindowText = 0x80000008;
constexpr Color kButtonFace = 0x8000000F;
constexpr Color kButtonText = 0x80000012;

/// Size in points.
struct Font {
  double size = 8.25;
  bool bold = false;
  friend bool operator==(const Font&, const Font&) = default;
};

enum class Alignment { Left = 0, Right = 1, Center = 2 };

class PropertyOwner;

/// A named property of a control or form, as scripts and faces see it.
class PropertyBase {
 public:
  PropertyBase(PropertyOwner& owner, std::string_view name);
  PropertyBase(const PropertyBase&) = delete;
  PropertyBase& operator=(const PropertyBase&) = delete;
  virtual ~PropertyBase() = default;

  std::string_view name() const { return name_; }
  /// The value as a transcript shows it: numbers bare, True and False, texts in double quotes with
  /// line breaks as \n.
  virtual std::string print() const = 0;

 protected:
  void changed() const;

 private:
  PropertyOwner& owner_;
  std::string_view name_;
};

/// Owner of properties: finds them by name and is notified of changes.
class PropertyOwner {
 public:
  virtual ~PropertyOwner() = default;
  /// Ignores case; nullptr if there is none.
  const PropertyBase* findProperty(std::string_view name) const;
  const std::vector<const PropertyBase*>& properties() const { return properties_; }

 private:
  friend class PropertyBase;
  /// Called after each real change of a property.
  virtual void propertyChanged(const PropertyBase& property) = 0;
  std::vector<const PropertyBase*> properties_;
};

std::string printValue(bool value);
std::string printValue(int value);
std::string printValue(double value);
std::string printValue(Color value);
std::string printValue(const std::string& value);
std::string printValue(const Font& value);
std::string printValue(Alignment value);

/// A property: `box.Text = "x"` sets it and notifies the owner if the value is new; `box.Text()`
/// reads it.
template <class T>
class Property : public PropertyBase {
 public:
  Property(PropertyOwner& owner, std::string_view name, T initial = {})
      : PropertyBase(owner, name), value_(std::move(initial)) {}

  const T& operator()() const { return value_; }
  Property& operator=(T value) {
    if (value == value_) return *this;
    value_ = std::move(value);
    changed();
    return *this;
  }
  std::string print() const override { return printValue(value_); }

 private:
  T value_;
};

}  // namespace korvantes::screen
