#pragma once

#include <QString>
#include <functional>
#include <memory>
#include <optional>

#include "runtime/screen/form.h"
#include "runtime/screen/user_input.h"

class QKeyEvent;
class QPoint;
class QWidget;

namespace korvantes::desktop {

/// What the faces of controls need from the window that contains them.
class FaceWindow {
 public:
  using Action = std::function<void(screen::UserInput& user)>;

  virtual ~FaceWindow() = default;
  /// Handles user input: the action notifies the model, then the window shows the result.
  virtual void report(const Action& action) = 0;
  virtual const screen::Form& form() const = 0;
};

/// The widget of one control. The widget belongs to its parent widget.
class ControlFace {
 public:
  ControlFace(screen::Control& control, FaceWindow& window) : control_(control), window_(window) {}
  virtual ~ControlFace() = default;
  ControlFace(const ControlFace&) = delete;
  ControlFace& operator=(const ControlFace&) = delete;

  screen::Control& control() const { return control_; }
  virtual QWidget& widget() const = 0;
  /// Moves the widget to the position of the control.
  virtual void place();
  /// Shows the state of the control, except for its rows.
  void show();
  /// Shows the rows, after rowsChanged.
  virtual void showRows() {}
  /// Handles a key that belongs to the toolkit, not the model: clipboard, opening a list.
  virtual void command(const QKeyEvent&) {}

 protected:
  virtual void showControl() = 0;
  FaceWindow& window() const { return window_; }
  /// True if the control and its containers are enabled. A form disabled while it works looks as
  /// usual.
  bool looksEnabled() const;
  /// Background behind the control: that of its frame, or of the form.
  screen::Color background() const;

 private:
  screen::Control& control_;
  FaceWindow& window_;
};

// One function for each kind of control; a common dialog has no face.
std::unique_ptr<ControlFace> makeFace(screen::Label& label, FaceWindow& window, QWidget& parent);
std::unique_ptr<ControlFace> makeFace(screen::Frame& frame, FaceWindow& window, QWidget& parent);
std::unique_ptr<ControlFace> makeFace(screen::TextBox& box, FaceWindow& window, QWidget& parent);
std::unique_ptr<ControlFace> makeFace(screen::CheckBox& box, FaceWindow& window, QWidget& parent);
std::unique_ptr<ControlFace> makeFace(screen::OptionButton& option, FaceWindow& window,
                                      QWidget& parent);
std::unique_ptr<ControlFace> makeFace(screen::ComboBox& combo, FaceWindow& window, QWidget& parent);
std::unique_ptr<ControlFace> makeFace(screen::PictureButton& button, FaceWindow& window,
                                      QWidget& parent);
std::unique_ptr<ControlFace> makeFace(screen::ListView& list, FaceWindow& window, QWidget& parent);
std::unique_ptr<ControlFace> makeFace(screen::DataGrid& grid, FaceWindow& window, QWidget& parent);
std::unique_ptr<ControlFace> makeFace(screen::Image& image, FaceWindow& window, QWidget& parent);
std::unique_ptr<ControlFace> makeFace(screen::Shape& shape, FaceWindow& window, QWidget& parent);
/// For a control of any kind; nullptr for one without a face.
std::unique_ptr<ControlFace> makeFaceOf(screen::Control& control, FaceWindow& window,
                                        QWidget& parent);

}  // namespace korvantes::desktop
