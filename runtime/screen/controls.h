#pragma once

#include <initializer_list>
#include <map>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "runtime/screen/control.h"
#include "runtime/screen/picture.h"

namespace korvantes::screen {

class Label : public Control {
 public:
  explicit Label(Form& form, std::string name, std::optional<int> index = std::nullopt);
  Property<std::string> Caption{*this, "Caption"};
  Property<Alignment> TextAlignment{*this, "Alignment"};
  Property<bool> Bordered{*this, "BorderStyle", false};
  Property<bool> Transparent{*this, "Transparent", true};
};

/// A box of controls. A disabled or hidden frame disables or hides everything in it.
class Frame : public Control {
 public:
  explicit Frame(Form& form, std::string name, std::optional<int> index = std::nullopt);
  Property<std::string> Caption{*this, "Caption"};
};

/// A line of text. Positions and lengths count characters.
class TextBox : public Control {
 public:
  explicit TextBox(Form& form, std::string name, std::optional<int> index = std::nullopt);
  /// An assignment by the program raises Change as typing does, is never cut, and puts the caret
  /// at the end.
  Property<std::string> Text{*this, "Text"};
  /// 0 is unlimited. Limits what is typed or pasted by the user.
  Property<int> MaxLength{*this, "MaxLength"};
  Property<bool> Locked{*this, "Locked", false};  ///< read-only for the user
  Property<Alignment> TextAlignment{*this, "Alignment"};
  /// Setting SelStart clears the selection; both stay within the text.
  Property<int> SelStart{*this, "SelStart"}, SelLength{*this, "SelLength"};

  std::function<void()> Change;
  /// A character about to be typed or pasted (also 8 for Backspace, 13 for Enter); setting it to 0
  /// refuses it.
  std::function<void(int& character)> KeyPress;

 private:
  friend class TextEditor;
  void propertyChanged(const PropertyBase& property) override;
  void select(int start, int length, bool caretFirst = false);

  std::optional<int> caretAfterEdit_;  ///< where the user's edit leaves the caret
  bool caretFirst_ = false;            ///< the caret is before the selection, not after it
  bool changeHeld_ = false;            ///< Change comes later, once for several edits
};

/// Value 0 or 1. A change of Value raises Click, whoever made it.
class CheckBox : public Control {
 public:
  explicit CheckBox(Form& form, std::string name, std::optional<int> index = std::nullopt);
  Property<std::string> Caption{*this, "Caption"};
  Property<int> Value{*this, "Value", 0};

 private:
  void propertyChanged(const PropertyBase& property) override;
};

/// Of the option buttons in one container, one is selected: setting Value True clears the others.
/// A Value that becomes True raises Click.
class OptionButton : public Control {
 public:
  explicit OptionButton(Form& form, std::string name, std::optional<int> index = std::nullopt);
  Property<std::string> Caption{*this, "Caption"};
  Property<bool> Value{*this, "Value", false};

 private:
  void propertyChanged(const PropertyBase& property) override;
};

/// A drop-down list. A change of ListIndex raises Click, whoever made it.
class ComboBox : public Control {
 public:
  explicit ComboBox(Form& form, std::string name, std::optional<int> index = std::nullopt);
  /// True: the text can also be typed.
  Property<bool> Editable{*this, "Editable", false};
  /// -1 if nothing is selected. Setting an entry sets Text to it; throws std::out_of_range for an
  /// index without an entry.
  Property<int> ListIndex{*this, "ListIndex", -1};
  Property<int> ListCount{*this, "ListCount", 0};
  /// On a list that cannot be typed into, an assignment selects the entry with that text and throws
  /// std::invalid_argument if there is none. On an editable one it clears the selection, without
  /// Click.
  Property<std::string> Text{*this, "Text"};

  void AddItem(std::string entry);
  void Clear();
  const std::vector<std::string>& list() const { return list_; }

  std::function<void()> Change;  ///< the text was typed over

 private:
  friend class UserInput;
  void propertyChanged(const PropertyBase& property) override;
  void indexAssigned();
  void textAssigned();
  void show(int entry, std::string text);
  void typeOver(std::string text);

  std::vector<std::string> list_;
  int selected_ = -1;  ///< the current ListIndex and text
  std::string shownText_;
};

/// A push button with a picture: the screens' only kind of button.
class PictureButton : public Control {
 public:
  explicit PictureButton(Form& form, std::string name, std::optional<int> index = std::nullopt);
  Property<std::string> Caption{*this, "Caption"};
  /// Name of the icon for a face that has icons: "buscar", "guardar", "salir" …
  Property<std::string> Icon{*this, "Icon"};

  /// Sets what a form's layout defines; the colours are the system's.
  /// @param caption with "&" before its access key
  void setUp(const char* caption, const char* icon, const Box& box, int tabIndex);
};

class Image : public Control {
 public:
  explicit Image(Form& form, std::string name, std::optional<int> index = std::nullopt);
  /// Stretched to the control; an empty picture shows nothing.
  Property<screen::Picture> Picture{*this, "Picture"};
};

/// A filled rectangle behind other controls.
class Shape : public Control {
 public:
  explicit Shape(Form& form, std::string name, std::optional<int> index = std::nullopt);
};

/// The open-file dialog as a control of a form.
class CommonDialog : public Control {
 public:
  explicit CommonDialog(Form& form, std::string name, std::optional<int> index = std::nullopt);
  Property<std::string> FileName{*this, "FileName"};
  /// "Description|*.a;*.b", pairs joined by |.
  Property<std::string> Filter{*this, "Filter"};
  /// Asks for a file. True if one was chosen; it is then in FileName.
  bool ShowOpen();
};

/// Controls of one kind and one name, identified by an index. The indexes may have gaps.
template <class T>
class ControlArray {
 public:
  /// @param indexes indexes of the controls, from back to front
  ControlArray(Form& form, std::string name, std::initializer_list<int> indexes = {})
      : form_(form), name_(std::move(name)) {
    for (const int index : indexes) add(index);
  }

  T& add(int index) {
    auto [place, fresh] = controls_.try_emplace(index);
    if (!fresh) throw std::logic_error(name_ + ": index used twice");
    place->second = std::make_unique<T>(form_, name_, index);
    return *place->second;
  }
  /// Throws std::out_of_range for an index in a gap.
  T& operator()(int index) const { return *controls_.at(index); }
  bool contains(int index) const { return controls_.contains(index); }
  const std::map<int, std::unique_ptr<T>>& all() const { return controls_; }

 private:
  Form& form_;
  std::string name_;
  std::map<int, std::unique_ptr<T>> controls_;
};

}  // namespace korvantes::screen
