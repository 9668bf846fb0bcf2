#include <QFileDialog>
#include <QPainter>
#include <QPrintPreviewWidget>
#include <QPushButton>
#include <QSpinBox>
#include <QTest>
#include <fstream>

#include "desktop/look.h"
#include "desktop/print_preview.h"
#include "desktop/save_dialog.h"
#include "runtime/ado/temporary_folder.h"
#include "tests/desktop/on_windows.h"

namespace korvantes::desktop {

using testing::ElementsAre, testing::HasSubstr;

namespace {

namespace fs = std::filesystem;
using screen::Answer;

class Documents : public OnWindows {
 protected:
  /// Shows the preview of a document of 30 pages, lets the user act on it, and closes it.
  void preview(const std::function<void(PrintPreview&)>& act) {
    QTimer::singleShot(0, [act] {
      auto& window = openWindow<PrintPreview>();
      act(window);
      pressOn(window, "Escape");
      EXPECT_FALSE(window.isVisible());
    });
    const auto paint = [](QPrinter& printer) {
      QPainter painter(&printer);
      for (int page = 1; page < 30; ++page) printer.newPage();
    };
    desktop.preview({"Liquidación 13", [](QPrinter&) {}, paint,
                     [](const fs::path& file) {
                       if (file.filename() == "lleno.pdf")
                         throw std::runtime_error("No queda sitio.");
                       std::ofstream(file) << "pdf";
                     }});
  }

  /// What the user does with the save dialog that the next action opens: accepts a name, or leaves.
  void whenAskedToSave(const QString& name) {
    QTimer::singleShot(0, [this, name] {
      auto& dialog = openWindow<QFileDialog>();
      suggested_ = fromQt(dialog.selectedFiles().value(0));
      if (name.isEmpty()) return dialog.reject();
      dialog.setDirectory(toQt(folder_.path().string()));
      dialog.selectFile(name);
      pressOn(dialog, "Enter");
      if (dialog.isVisible()) dialog.reject();
    });
  }

  static void press(const QWidget& window, const char* caption) {
    for (QPushButton* each : window.findChildren<QPushButton*>())
      if (each->text() == caption) each->click();
  }

  ado::TemporaryFolder folder_;
  fs::path suggested_;
};

}  // namespace

TEST_F(Documents, PreviewTurnsPagesSavesAndStaysWhenThatFails) {
  preview([&](PrintPreview& window) {
    auto& pages = *window.findChild<QPrintPreviewWidget*>();
    auto& page = *window.findChild<QSpinBox*>();
    EXPECT_EQ(pages.pageCount(), 30);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    QTest::keyClick(&window, Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return pages.currentPage() == 2 && page.value() == 2; }));
    page.setValue(30);
    EXPECT_EQ(pages.currentPage(), 30);
    const auto save = [&](const char* name) {
      whenAskedToSave(name);
      press(window, "&Guardar como PDF…");
    };
    save("");
    EXPECT_EQ(suggested_.filename(), "Liquidación 13.pdf");
    save("lleno");
    EXPECT_THAT(messages, ElementsAre(HasSubstr("No queda sitio.")));
    EXPECT_TRUE(window.isVisible());
    save("bien");
    EXPECT_TRUE(fs::exists(folder_.file("bien.pdf")));
    save("");
    EXPECT_EQ(suggested_, folder_.file("Liquidación 13.pdf")) << "the folder used last";
  });
}

TEST_F(Documents, EnterOnAMessageAboveThePreviewIsNoKeyOfTheForm) {
  stage.onMessage = [&](const screen::MessageBox& box) {
    messages.push_back(box.text);
    return scripts::Reply(Answer::Ok, true);
  };
  play([&] {
    preview([&](PrintPreview& window) { press(window, "Im&primir…"); });
    user.settle();
    EXPECT_EQ(form.taken(), "");
  });
  EXPECT_THAT(messages, ElementsAre(HasSubstr("No hay ninguna impresora")));
  // Pages that cannot be painted are the caller's matter.
  const auto fail = [](QPrinter&) { throw std::runtime_error("no hay páginas"); };
  EXPECT_THROW(desktop.preview({"", [](QPrinter&) {}, fail, {}}), std::runtime_error);
}

TEST_F(Documents, AFileIsReplacedOnlyWithConsent) {
  std::ofstream(folder_.file("hoja.xlsx")) << "x";
  for (const auto reply : {Answer::No, Answer::Yes}) {
    stage.onMessage = [&](const screen::MessageBox& box) {
      EXPECT_THAT(box.text, HasSubstr("Ya existe hoja.xlsx"));
      return reply;
    };
    whenAskedToSave("hoja");
    const auto file = desktop.askWhereToSave({"Guardar", "Libros|*.xlsx", "xlsx", "hoja.xlsx"});
    EXPECT_EQ(file.value_or(""), reply == Answer::Yes ? folder_.file("hoja.xlsx") : "");
  }
}

}  // namespace korvantes::desktop
