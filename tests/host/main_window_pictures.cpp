// Leaves pictures of the main window, with a database and without one, and of a report's preview in
// a folder:
//   korvantes_main_window_pictures FOLDER
// They are for the eye: nothing compares them.
#include <QApplication>
#include <QPushButton>
#include <QTimer>
#include <filesystem>
#include <iostream>

#include "desktop/application.h"
#include "desktop/print_preview.h"
#include "desktop/robot.h"
#include "host/desktop_window.h"
#include "host/office_windows.h"
#include "host/temporary_folder.h"

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "Uso: " << argv[0] << " CARPETA\n";
    return 1;
  }
  namespace host = korvantes::host;
  const std::filesystem::path folder = argv[1];
  std::filesystem::create_directories(folder);
  const korvantes::desktop::Application application;
  korvantes::desktop::QtDesktop desktop;
  const host::TemporaryFolder work;
  host::DesktopWindow window(desktop);
  window.show();
  const auto take = [&](const char* name) {
    // A sentence of several lines makes the window grow, which is laid out once more.
    for (int turn = 0; turn < 3; ++turn) QCoreApplication::processEvents();
    window.grab().save(QString::fromStdString((folder / name).string()), "png");
    std::cout << name << '\n';
  };
  window.openBase("sqlite:/srv/comisiones/no-hay/ventas.db");
  take("escritorio-sin-base.png");
  window.makeSample((work.path() / "muestra.db").string());
  take("escritorio.png");

  // A report of the search screen, before it is saved.
  korvantes::screen::Desktop::makeCurrent(&desktop);
  host::offerDocumentsOnWindows(desktop);
  const auto capture = [&](const char* name) {
    desktop.capture((folder / name).string());
    std::cout << name << '\n';
    QApplication::activeModalWidget()->close();
  };
  QTimer::singleShot(1000, [&] {
    QTimer::singleShot(500, [&] { capture("guardar.png"); });
    auto& preview = *QApplication::activeModalWidget();
    preview.findChildren<QPushButton*>().at(1)->click();
    capture("vista-previa.png");
  });
  desktop.whileShown = [&](korvantes::screen::Form& form) {
    korvantes::desktop::Robot robot(desktop);
    for (const char* control : {"Check1(0)", "cmdBuscar", "cmdEmision"})
      robot.click(*form.findControl(control));
    robot.close();
  };
  window.openScreen(host::kDesktopEntries[1]);
  korvantes::screen::Desktop::makeCurrent(nullptr);
  return 0;
}
