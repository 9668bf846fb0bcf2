#pragma once

#include <QPrinter>
#include <exception>
#include <filesystem>
#include <functional>
#include <string>

#include "desktop/modal_dialog.h"

class QPrintPreviewWidget;

namespace korvantes::desktop {

class PreviewBar;
class QtDesktop;

/// A document to view, print and save. It is painted anew each time.
struct PrintDocument {
  std::string title;                     ///< of the window, and the file name that a save offers
  std::function<void(QPrinter&)> setUp;  ///< paper and margins
  std::function<void(QPrinter&)> paint;  ///< all pages
  std::function<void(const std::filesystem::path&)> savePdf;  ///< failures are exceptions
};

/// Shows the pages of a document as they will be printed. A failure while it prints or saves is
/// shown in a message box, and the window stays open.
class PrintPreview : public ModalDialog {
 public:
  PrintPreview(QtDesktop& desktop, WindowStack& stack, const PrintDocument& document);

  /// Returns when the window has been closed. Throws what painting the pages threw.
  void showPages();

 protected:
  void enterPressed() override {}

 private:
  void addButtons();
  void paintPages(QPrinter& printer);
  void print();
  void savePdf();
  void attempt(const std::function<void()>& work);
  void tell(const std::string& words, int style);

  QtDesktop& desktop_;
  WindowStack& stack_;
  const PrintDocument& document_;
  QPrinter printer_;
  QPrintPreviewWidget& pages_;
  PreviewBar& bar_;
  std::exception_ptr failure_;
};

}  // namespace korvantes::desktop
