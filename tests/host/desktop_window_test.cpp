#include "host/desktop_window.h"

#include <QApplication>
#include <QFileDialog>
#include <QLabel>
#include <QPrintPreviewWidget>
#include <QPushButton>
#include <QTimer>
#include <gmock/gmock.h>

#include "desktop/look.h"
#include "desktop/print_preview.h"
#include "host/office_windows.h"
#include "runtime/ado/temporary_folder.h"
#include "scripts/windows/window_desktop.h"

namespace korvantes::host {
namespace {

using testing::ElementsAre, testing::HasSubstr;

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

void saveAs(const std::string& file) {
  whenOpen<QFileDialog>([file](QFileDialog& dialog) {
    dialog.selectFile(desktop::toQt(file));
    QMetaObject::invokeMethod(&dialog, "accept");
  });
}

/// The main window, with a user who answers Yes and Aceptar.
class DesktopWindowTest : public testing::Test {
 protected:
  DesktopWindowTest() {
    screen::Desktop::makeCurrent(&desktop_);
    desktop_.onMessage = [this](const screen::MessageBox& box) {
      messages_.push_back(box.text);
      return box.yesNo() ? screen::Answer::Yes : screen::Answer::Ok;
    };
    desktop_.onClosed = [this](const screen::Form& form) { closed_.push_back(form.name()); };
    offerDocumentsOnWindows(desktop_);
    window_.show();
  }
  ~DesktopWindowTest() override { screen::Desktop::makeCurrent(nullptr); }

  std::string path(const char* name) const { return folder_.file(name); }
  /// Presses a button of the report screen after a search, and gives back whether the screen takes
  /// input afterwards.
  bool press(const char* button) {
    bool usable = false;
    desktop_.whileShown = [&](screen::Form& form) {
      for (const char* each : {"Check1(0)", "cmdBuscar", button})
        desktop_.user().click(*form.findControl(each));
      usable = form.Enabled();
      desktop_.user().close();
    };
    for (const DesktopEntry& each : kDesktopEntries)
      if (each.screen == std::string_view("informe")) window_.openScreen(each);
    return usable;
  }
  QPushButton& entry() { return *window_.findChild<EntryButton*>(); }
  std::string cardText() const {
    std::string text;
    for (const QLabel* label : window_.baseCard().findChildren<QLabel*>())
      text += label->text().toStdString() + "|" + label->toolTip().toStdString() + "|";
    return text;
  }

  ado::TemporaryFolder folder_;
  scripts::WindowDesktop desktop_;
  DesktopWindow window_{desktop_};
  std::vector<std::string> messages_, closed_;
};

TEST_F(DesktopWindowTest, ABaseThatCannotBeOpenedLeavesAWayToAnotherOne) {
  window_.openBase("sqlite:" + path("no-hay.db"));
  EXPECT_THAT(cardText(), HasSubstr("no existe"));
  EXPECT_FALSE(entry().isEnabled());
  EXPECT_THAT(messages_, ElementsAre());

  window_.makeSample(path("muestra.db"));
  EXPECT_THAT(cardText(), HasSubstr(path("muestra.db")));
  EXPECT_TRUE(entry().isEnabled());

  // What fails from now on takes nothing away.
  openFile(path("vacia.db"), OpenMode::Create);
  window_.makeSample(path("muestra.db"));
  window_.useFile(path("vacia.db"));
  window_.useFile(path("no-hay.db"));
  EXPECT_THAT(messages_,
              ElementsAre("Ya existe la base «" + path("muestra.db") + "»; elija otro nombre.",
                          HasSubstr("no tiene las tablas del programa."), HasSubstr("no existe")));
  EXPECT_THAT(cardText(), HasSubstr(path("muestra.db")));
  EXPECT_TRUE(entry().isEnabled());
}

TEST_F(DesktopWindowTest, WhatLeavesAScreenBecomesAMessageAndTheWindowStays) {
  window_.makeSample(path("muestra.db"));
  desktop_.whileShown = [](screen::Form&) {
    throw std::runtime_error("se ha perdido\nla conexión");
  };
  entry().click();
  window_.tellAbout();
  EXPECT_THAT(closed_, ElementsAre("frmNewLiquidAgentes"));
  EXPECT_THAT(messages_, ElementsAre("Se ha perdido la conexión.",
                                     HasSubstr("KORVANTES " KORVANTES_EXPECTED_VERSION)));
  EXPECT_TRUE(window_.isVisible());
}

TEST_F(DesktopWindowTest, ClosingItWhileAScreenIsOpenEndsTheProgramWithoutAsking) {
  window_.makeSample(path("muestra.db"));
  std::size_t openForms = 0;
  QTimer::singleShot(0, [&] { entry().click(); });
  QTimer::singleShot(50, [&] {
    openForms = desktop_.forms().size();
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr) << "the frame button would do nothing";
    EXPECT_FALSE(entry().isEnabled());
    window_.close();
  });
  QTimer::singleShot(5000, [] { QCoreApplication::exit(1); });
  EXPECT_EQ(QApplication::exec(), 0);
  EXPECT_EQ(openForms, 1U);
  EXPECT_THAT(closed_, ElementsAre("frmNewLiquidAgentes"));
  EXPECT_THAT(messages_, ElementsAre());
}

TEST_F(DesktopWindowTest, ASpreadsheetAsksWhereToGoAndOffersToOpen) {
  window_.makeSample(path("muestra.db"));
  saveAs(path("hoja.xlsx"));
  EXPECT_TRUE(press("cmdExcel"));
  EXPECT_TRUE(std::filesystem::exists(path("hoja.xlsx")));
  EXPECT_THAT(messages_,
              ElementsAre(HasSubstr(path("hoja.xlsx")), HasSubstr("No se ha podido abrir")));
  messages_.clear();
  whenOpen<QFileDialog>([](QFileDialog& dialog) { dialog.reject(); });
  EXPECT_TRUE(press("cmdExcel"));
  EXPECT_THAT(messages_, ElementsAre());
  saveAs(path("no/hay/hoja.xlsx"));
  EXPECT_TRUE(press("cmdExcel"));
  EXPECT_EQ(messages_.size(), 1U);
}

TEST_F(DesktopWindowTest, AReportComesUpInAPreview) {
  window_.makeSample(path("muestra.db"));
  whenOpen<desktop::PrintPreview>([&](desktop::PrintPreview& preview) {
    EXPECT_GT(preview.findChild<QPrintPreviewWidget*>()->pageCount(), 0);
    preview.reject();
  });
  EXPECT_TRUE(press("cmdEmision"));
}

}  // namespace
}  // namespace korvantes::host
