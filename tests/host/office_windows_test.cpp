#include "host/office_windows.h"

#include <QApplication>
#include <QFileDialog>
#include <QPrintPreviewWidget>
#include <QPushButton>
#include <QTimer>
#include <gmock/gmock.h>

#include "desktop/look.h"
#include "desktop/print_preview.h"
#include "desktop/robot.h"
#include "host/desktop_base.h"
#include "runtime/ado/temporary_folder.h"

namespace korvantes::host {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

/// Acts on a window of that type as soon as one is open.
template <class Window>
void whenOpen(std::function<void(Window&)> act) {
  QTimer::singleShot(1, [act] {
    for (QWidget* each : QApplication::topLevelWidgets())
      if (auto* window = dynamic_cast<Window*>(each); window != nullptr && window->isVisible())
        return act(*window);
    whenOpen<Window>(act);
  });
}

void saveAs(const std::filesystem::path& file) {
  whenOpen<QFileDialog>([file](QFileDialog& dialog) {
    dialog.selectFile(desktop::toQt(file.string()));
    QMetaObject::invokeMethod(&dialog, "accept");
  });
}

/// The report screen after a search, with a user who answers Yes and Aceptar.
class OfficeWindows : public testing::Test {
 protected:
  OfficeWindows() {
    screen::Desktop::makeCurrent(&desktop_);
    offerDocumentsOnWindows(desktop_);
    base_.makeSample(path("muestra.db").string());
    desktop_.onMessage = [this](const screen::MessageBox& box) {
      messages_.push_back(box.text);
      return desktop::QtDesktop::Reply<screen::Answer>{box.yesNo() ? screen::Answer::Yes
                                                                   : screen::Answer::Ok};
    };
  }
  ~OfficeWindows() override { screen::Desktop::makeCurrent(nullptr); }

  /// Presses a button of the screen, and gives back whether the screen takes input afterwards.
  bool press(const char* button) {
    bool usable = false;
    desktop_.whileShown = [&](screen::Form& form) {
      desktop::Robot robot(desktop_);
      robot.click(*form.findControl("Check1(0)"));
      robot.click(*form.findControl("cmdBuscar"));
      robot.click(*form.findControl(button));
      usable = form.Enabled();
      robot.close();
    };
    base_.screens().at("informe")(std::nullopt);
    return usable;
  }
  std::filesystem::path path(const char* name) const { return folder_.path() / name; }

  ado::TemporaryFolder folder_;
  desktop::QtDesktop desktop_;
  DesktopBase base_;
  std::vector<std::string> messages_;
};

TEST_F(OfficeWindows, ASpreadsheetAsksWhereToGoAndOffersToOpen) {
  saveAs(path("hoja.xlsx"));
  EXPECT_TRUE(press("cmdExcel"));
  EXPECT_TRUE(std::filesystem::exists(path("hoja.xlsx")));
  EXPECT_THAT(messages_, ElementsAre(HasSubstr(path("hoja.xlsx").string()),
                                     HasSubstr("No se ha podido abrir")));
  messages_.clear();
  whenOpen<QFileDialog>([](QFileDialog& dialog) { dialog.reject(); });
  EXPECT_TRUE(press("cmdExcel"));
  EXPECT_THAT(messages_, ElementsAre());
  saveAs(path("no/hay/hoja.xlsx"));
  EXPECT_TRUE(press("cmdExcel"));
  EXPECT_EQ(messages_.size(), 1U);
}

TEST_F(OfficeWindows, AReportComesUpInAPreviewThatSaves) {
  whenOpen<desktop::PrintPreview>([&](desktop::PrintPreview& preview) {
    EXPECT_GT(preview.findChild<QPrintPreviewWidget*>()->pageCount(), 0);
    for (const char* name : {"no/hay/informe.pdf", "informe.pdf"}) {
      saveAs(path(name));
      for (QPushButton* each : preview.findChildren<QPushButton*>())
        if (each->text().contains("PDF")) each->click();
    }
    preview.reject();
  });
  EXPECT_TRUE(press("cmdEmision"));
  EXPECT_TRUE(std::filesystem::exists(path("informe.pdf")));
  EXPECT_EQ(messages_.size(), 1U);
}

}  // namespace
}  // namespace korvantes::host
