#include <QLineEdit>
#include <QPushButton>
#include <QTimer>

#include "desktop/choice_dialog.h"
#include "desktop/file_dialog.h"
#include "desktop/message_dialog.h"
#include "scripts/windows/input_events.h"
#include "tests/desktop/on_windows.h"

namespace korvantes::desktop {

using testing::ElementsAre;

namespace {

/// Shows the box to a user who strikes a key.
screen::Answer answered(QtDesktop& desktop, const screen::MessageBox& box, const char* key) {
  QTimer::singleShot(0, [key] { pressOn(openWindow<MessageDialog>(), key); });
  return desktop.messageBox(box);
}

screen::ListDialog customers() {
  screen::ListDialog dialog;
  dialog.title = "Buscar";
  dialog.codeTitle = "Codigo";
  dialog.nameTitle = "Nombre";
  dialog.codeWidth = 1300;
  dialog.nameWidth = 6000;
  for (const char* name : {"Ángel Ruiz", "Nadal", "Núñez", "Ñíguez", "Óscar", "Zoe"})
    dialog.rows.push_back({std::to_string(dialog.rows.size() + 1), name});
  return dialog;
}

/// Shows the list to a user.
std::optional<std::size_t> chosen(QtDesktop& desktop, const screen::ListDialog& dialog,
                                  const std::function<void(ChoiceDialog&)>& act) {
  QTimer::singleShot(0, [&] { act(openWindow<ChoiceDialog>()); });
  return desktop.chooseFromList(dialog);
}

}  // namespace

TEST(Dialogs, MessageBoxSpeaksSpanishAndAnswersByKey) {
  QtDesktop desktop;
  const screen::MessageBox note{"Hecho", screen::style::Information, "Título"};
  const screen::MessageBox ask{"¿Borrar?", screen::style::Question | screen::style::YesNo, "T"};
  screen::MessageBox safe = ask;
  safe.style |= screen::style::DefaultSecond;
  struct Case {
    const screen::MessageBox& box;
    const char* key;
    screen::Answer answer;
  };
  for (const Case& each :
       {Case{note, "Enter", screen::Answer::Ok}, Case{note, "Escape", screen::Answer::Ok},
        Case{ask, "Enter", screen::Answer::Yes}, Case{safe, "Enter", screen::Answer::No},
        Case{ask, "Escape", screen::Answer::No}, Case{ask, "Alt+F4", screen::Answer::No},
        Case{safe, "s", screen::Answer::Yes}, Case{ask, "n", screen::Answer::No}})
    EXPECT_EQ(answered(desktop, each.box, each.key), each.answer) << each.box.text << each.key;

  QTimer::singleShot(0, [] {
    auto& dialog = openWindow<MessageDialog>();
    EXPECT_EQ(dialog.button(screen::Answer::Yes)->text(), "&Sí");
    EXPECT_EQ(dialog.button(screen::Answer::No)->text(), "&No");
    EXPECT_EQ(dialog.button(screen::Answer::Ok), nullptr);
    EXPECT_EQ(dialog.focusWidget(), dialog.button(screen::Answer::No));
    dialog.close();
  });
  EXPECT_EQ(desktop.messageBox(safe), screen::Answer::No);
}

TEST(Dialogs, ListGoesToTheNameThatIsTyped) {
  QtDesktop desktop;
  struct Case {
    const char* typed;
    std::size_t row;
  };
  for (const Case& each : {Case{"", 0}, Case{"a", 0}, Case{"NUN", 2}, Case{"nun", 2}, Case{"ñ", 3},
                           Case{"os", 4}, Case{"zzz", 5}, Case{"n", 1}})
    EXPECT_EQ(chosen(desktop, customers(),
                     [&](ChoiceDialog& dialog) {
                       for (const QChar letter : QString::fromUtf8(each.typed))
                         scripts::sendPress(dialog, screen::keyTyping(letter.unicode()));
                       pressOn(dialog, "Enter");
                     }),
              each.row)
        << each.typed;
}

TEST(Dialogs, ListIsMovedThroughAndLeftWithNothing) {
  QtDesktop desktop;
  EXPECT_EQ(chosen(desktop, customers(),
                   [](ChoiceDialog& dialog) {
                     pressOn(dialog, "Abajo");
                     pressOn(dialog, "Abajo");
                     pressOn(dialog, "Arriba");
                     pressOn(dialog, "Enter");
                   }),
            1U);
  screen::ListDialog empty = customers();
  empty.rows.clear();
  EXPECT_EQ(chosen(desktop, empty,
                   [](ChoiceDialog& dialog) {
                     pressOn(dialog, "Enter");  // nothing to choose
                     pressOn(dialog, "Escape");
                   }),
            std::nullopt);
}

TEST(Dialogs, FiltersOfTheFileDialogAreTheToolkits) {
  EXPECT_THAT(filtersOf("Imágenes (*.bmp)|*.bmp;*.jpg|Todos|*.*"),
              ElementsAre("Imágenes (*.bmp *.jpg)", "Todos (*)"));
  EXPECT_TRUE(filtersOf("").isEmpty());
  EXPECT_TRUE(filtersOf("sola").isEmpty());
}

TEST(Dialogs, PointerIsTheUsualOneWhileADialogWaits) {
  QtDesktop desktop;
  desktop.mousePointer(13);
  ASSERT_NE(QApplication::overrideCursor(), nullptr);
  QTimer::singleShot(0, [] {
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    pressOn(openWindow<MessageDialog>(), "Enter");
  });
  desktop.messageBox({"x", 0, "y"});
  EXPECT_NE(QApplication::overrideCursor(), nullptr);
  desktop.mousePointer(0);
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

}  // namespace korvantes::desktop
