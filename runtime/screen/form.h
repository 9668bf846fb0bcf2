#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "runtime/screen/controls.h"
#include "runtime/screen/data_grid.h"
#include "runtime/screen/list_view.h"

namespace korvantes::screen {

/// Notifies a face of changes to the form that it shows.
class FormObserver {
 public:
  virtual ~FormObserver() = default;
  /// A property of the form (control nullptr) or of a control changed.
  virtual void propertyChanged(Control* control, const PropertyBase& property) = 0;
  /// Rows were added, removed, ticked or sorted (list), or the recordset or columns were replaced
  /// (grid), or its current row moved, or the entries changed (combo box). Read the rows after the
  /// running event has ended: a row just added is not filled yet.
  virtual void rowsChanged(Control& control) = 0;
  virtual void activeControlChanged() = 0;
  virtual void unloaded() = 0;
};

/// A screen. Derived classes hold their controls as members and override the events they handle.
class Form : public PropertyOwner {
 public:
  explicit Form(std::string name);
  ~Form() override;
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  const std::string& name() const { return name_; }

  Property<std::string> Caption{*this, "Caption"};
  Property<std::string> Tag{*this, "Tag"};
  Property<int> Width{*this, "Width"}, Height{*this, "Height"};  ///< client area, twips
  Property<Color> BackColor{*this, "BackColor", kButtonFace};
  Property<bool> Enabled{*this, "Enabled", true};
  /// The form sees the keys of all its controls before they do.
  Property<bool> KeyPreview{*this, "KeyPreview", false};

  /// Loads the form if needed and shows it through the current desktop. Modal (1): returns when the
  /// form has been unloaded. An exception of Form_Load leaves the form unloaded and propagates.
  void Show(int modal = 1);
  /// Runs Form_Unload and closes. Allowed inside an event: the form object lives on until Show has
  /// returned. A second call does nothing.
  void Unload();
  bool loaded() const { return loaded_; }

  /// All controls, in the order in which they were made (from back to front).
  const std::vector<Control*>& controls() const { return controls_; }
  /// "cmdGrabar", "Text1(10)", ignoring case; nullptr if there is none.
  Control* findControl(std::string_view identity) const;
  /// nullptr if no control has the focus.
  Control* ActiveControl() const { return active_; }
  /// The tab stop after a control in tab order, or before it; from nullptr the first (the last).
  /// nullptr if there is none.
  Control* nextTabStop(const Control* from, bool backward = false) const;

  /// One observer at a time; nullptr for none.
  void observe(FormObserver* observer) { observer_ = observer; }
  FormObserver* observer() const { return observer_; }

  /// Events.
  virtual void Form_Load() {}
  virtual void Form_Unload() {}
  virtual void Form_KeyUp(int& keyCode, int shift);

 private:
  friend class Control;
  friend class UserInput;
  void propertyChanged(const PropertyBase& property) override;
  void load();
  std::vector<Control*> tabOrder() const;

  std::string name_;
  bool loaded_ = false;
  bool showing_ = false;  ///< the first control has received the focus
  std::vector<Control*> controls_;
  Control* active_ = nullptr;
  Control* wanted_ = nullptr;  ///< SetFocus inside a handler
  Control* held_ = nullptr;    ///< Space went down on it and is not released yet
  int handlerDepth_ = 0;
  int leavingDepth_ = 0;  ///< above 0 while LostFocus runs
  FormObserver* observer_ = nullptr;
};

}  // namespace korvantes::screen
