#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "runtime/screen/property.h"

namespace korvantes::screen {

class Form;
class Frame;

/// Position and size of a control: twips, relative to its container.
struct Box {
  int left = 0, top = 0, width = 0, height = 0;
};

/// One control of a form. Positions and sizes are in twips (1440 an inch), relative to the
/// container. A control belongs to its form from its construction to its destruction; it cannot be
/// copied or moved.
class Control : public PropertyOwner {
 public:
  enum class Kind {
    Label,
    TextBox,
    Frame,
    CheckBox,
    OptionButton,
    ComboBox,
    PictureButton,
    ListView,
    DataGrid,
    Image,
    Shape,
    CommonDialog
  };

  /// @param index index in a control array; empty for a single control
  Control(Form& form, Kind kind, std::string name, std::optional<int> index = std::nullopt);
  ~Control() override;
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  Form& form() const { return form_; }
  Kind kind() const { return kind_; }
  const std::string& name() const { return name_; }
  std::optional<int> index() const { return index_; }
  /// "cmdGrabar", "Text1(10)".
  std::string identity() const;

  /// The frame that contains it; nullptr if it is directly on the form.
  Frame* container() const { return container_; }
  void container(Frame* frame) { container_ = frame; }
  void place(const Box& box);
  void place(int left, int top, int width, int height) { place({left, top, width, height}); }

  /// True if this control and all its containers are visible.
  bool shown() const;
  /// True if this control is shown, and it, its containers and the form are enabled.
  bool usable() const;
  /// Usable, and of a kind that can have the focus.
  bool canTakeFocus() const;
  /// canTakeFocus and TabStop: Tab stops here.
  bool isTabStop() const;

  /// Asks for the focus. Inside an event handler the request is carried out when the handler ends,
  /// and the last call wins; elsewhere at once. Does nothing if the control cannot take the focus.
  void SetFocus();

  Property<int> Left{*this, "Left"}, Top{*this, "Top"};
  Property<int> Width{*this, "Width"}, Height{*this, "Height"};
  Property<bool> Enabled{*this, "Enabled", true}, Visible{*this, "Visible", true};
  Property<Color> BackColor{*this, "BackColor", kWindowBackground};
  Property<Color> ForeColor{*this, "ForeColor", kWindowText};
  Property<Font> TextFont{*this, "Font"};
  Property<int> TabIndex{*this, "TabIndex"};
  Property<bool> TabStop{*this, "TabStop", true};

  /// Events. Empty handlers are skipped. Handlers run through UserInput or, if an assignment by the
  /// program raises the event, inside that assignment.
  std::function<void()> GotFocus, LostFocus, Click;
  /// Key released while this control had the focus; the form's KeyUp runs first. Setting the code
  /// to 0 marks the key as handled.
  std::function<void(int& keyCode, int shift)> KeyUp;

 protected:
  void propertyChanged(const PropertyBase& property) override;

 private:
  Form& form_;
  Kind kind_;
  std::string name_;
  std::optional<int> index_;
  Frame* container_ = nullptr;
};

/// The letter after the & of a caption, upper case; 0 if there is none ("&&" is a plain &).
char32_t accessKeyOf(std::string_view caption);
/// The caption without the & of its access key.
std::string captionWithoutMark(std::string_view caption);

}  // namespace korvantes::screen
