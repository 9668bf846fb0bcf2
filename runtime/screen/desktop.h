#pragma once

#include <cstddef>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <typeindex>
#include <vector>

#include "runtime/ado/date.h"
#include "runtime/screen/form.h"
#include "runtime/screen/picture.h"
#include "runtime/screen/regional.h"

namespace korvantes::screen {

/// Icon, buttons and default button of a message box; values are added.
namespace style {
constexpr int Plain = 0, Critical = 16, Question = 32, Exclamation = 48, Information = 64;
constexpr int YesNo = 4, DefaultSecond = 256;
}  // namespace style

enum class Answer { Ok = 1, Yes = 6, No = 7 };

struct MessageBox {
  std::string text;
  int style = style::Plain;
  std::string title;

  bool yesNo() const { return (style & 7) == style::YesNo; }
  Answer defaultAnswer() const;
};

/// A list to choose a row from: two columns, a code and a name, in the order given.
struct ListDialog {
  struct Row {
    std::string code, name;
  };
  std::string title;
  std::string codeTitle, nameTitle;
  int codeWidth = 0, nameWidth = 0;  ///< twips
  std::vector<Row> rows;             ///< ordered by name, as shown and searched
};

struct FileDialog {
  std::string filter;  ///< "Description|*.a;*.b", pairs joined by |
};

/// Everything that screens need from the machine: windows, dialogs, keys, clock, pictures. One is
/// current at a time; a host makes one current before it shows anything.
class Desktop {
 public:
  Desktop();
  virtual ~Desktop();
  Desktop(const Desktop&) = delete;
  Desktop& operator=(const Desktop&) = delete;

  /// Throws std::logic_error if there is none.
  static Desktop& current();
  /// Returns the previous one, or nullptr; nullptr leaves no current desktop.
  static Desktop* makeCurrent(Desktop* desktop);

  /// Shows a loaded form and returns when it has been unloaded.
  virtual void showModal(Form& form) = 0;
  virtual Answer messageBox(const MessageBox& box) = 0;
  /// The chosen row, from 0; empty if the user cancels.
  virtual std::optional<std::size_t> chooseFromList(const ListDialog& dialog) = 0;
  virtual std::optional<std::string> chooseFile(const FileDialog& dialog) = 0;
  /// Queues keystrokes for the control that has the focus once the running event has ended.
  /// Characters 9, 13 and 27 are Tab, Enter and Escape.
  virtual void sendKeys(std::string_view keys) = 0;
  /// Lets queued events run.
  virtual void processEvents() = 0;
  /// Reads a picture file. Throws ado::Error with a Spanish sentence if it is not one.
  virtual Picture loadPicture(const std::string& path) = 0;
  /// Writes a picture as a bmp file. Throws ado::Error for the empty picture or a bad path.
  virtual void savePicture(const Picture& picture, const std::string& path) = 0;
  /// 0 the default pointer, 13 arrow with hourglass.
  virtual void mousePointer(int shape) { mousePointer_ = shape; }
  int mousePointer() const { return mousePointer_; }
  /// The local clock.
  virtual ado::Moment now() const;

  const Regional& regional() const { return regional_; }
  void regional(Regional settings) { regional_ = std::move(settings); }
  /// Title of message boxes that do not set one.
  static constexpr std::string_view kDefaultTitle = "KORVANTES";

  /// The T that belongs to this desktop, made on first use: a layer above can keep here what must
  /// live as long as the desktop.
  template <class T>
  T& attached() {
    std::shared_ptr<void>& place = attached_[typeid(T)];
    if (!place) place = std::make_shared<T>();
    return *static_cast<T*>(place.get());
  }

 private:
  Regional regional_ = Regional::ofMachine();
  int mousePointer_ = 0;
  std::map<std::type_index, std::shared_ptr<void>> attached_;
};

/// The runtime's MsgBox on the current desktop.
Answer MsgBox(const std::string& text, int boxStyle = style::Plain,
              std::string_view title = Desktop::kDefaultTitle);
void SendKeys(std::string_view keys);
void DoEvents();

}  // namespace korvantes::screen
