#pragma once

#include <QMainWindow>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "desktop/qt_desktop.h"
#include "host/base_card.h"
#include "host/desktop_base.h"
#include "host/desktop_entries.h"
#include "host/entry_button.h"

class QVBoxLayout;

namespace korvantes::host {

/// The main window: the database in use and the screens that can be opened on it.
///
/// A failure in it, or an exception that leaves a screen, becomes a message box. Closing it ends
/// the program: forms that are open are unloaded, which stores nothing and asks nothing.
class DesktopWindow : public QMainWindow {
 public:
  explicit DesktopWindow(desktop::QtDesktop& desktop);
  ~DesktopWindow() override;

  /// Opens the first database. If that fails, the window says why and stays usable.
  void openBase(const std::optional<std::string>& url);

  // What the menus and buttons do.
  void openScreen(const DesktopEntry& entry);
  void useFile(const std::string& path);
  void makeSample(const std::string& path);
  void tellAbout();

  const BaseCard& baseCard() const { return card_; }

 protected:
  void closeEvent(QCloseEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void addHeader(QVBoxLayout& layout);
  void addEntries(QVBoxLayout& layout);
  void addBase(QVBoxLayout& layout);
  void addMenus();
  void askForBase();
  void askForSample();
  void attempt(const std::function<void()>& work);
  void takesInput(bool takes);
  void refresh();

  desktop::QtDesktop& desktop_;
  DesktopBase base_;
  BaseCard& card_;
  std::vector<EntryButton*> buttons_;
  std::vector<QAction*> entryActions_;
  std::string problem_;
};

}  // namespace korvantes::host
