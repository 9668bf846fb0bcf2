#include <QLineEdit>
#include <QPushButton>
#include <gmock/gmock.h>

#include "desktop/choice_dialog.h"
#include "desktop/file_dialog.h"
#include "desktop/message_dialog.h"
#include "tests/desktop/on_windows.h"

namespace korvantes::desktop {

namespace {

/// Dialogs in front of a real user, who strikes keys on them.
class Dialogs : public OnWindows {
 protected:
  Dialogs() { stage.cues() = {}; }

  template <class Dialog>
  static void whenOpen(const std::function<void(Dialog&)>& act) {
    QTimer::singleShot(0, [act] { act(openWindow<Dialog>()); });
  }
  screen::Answer answered(const screen::MessageBox& box, const char* key) {
    whenOpen<MessageDialog>([key](MessageDialog& dialog) { pressOn(dialog, key); });
    return desktop.messageBox(box);
  }
  /// The row from 0, or -1.
  int chosen(const screen::ListDialog& list, std::initializer_list<const char*> keys) {
    whenOpen<ChoiceDialog>([&](ChoiceDialog& dialog) {
      for (const char* key : keys) pressOn(dialog, key);
    });
    const auto row = desktop.chooseFromList(list);
    return row ? static_cast<int>(*row) : -1;
  }
};

}  // namespace

TEST_F(Dialogs, MessageBoxSpeaksSpanishAndAnswersByKey) {
  using screen::Answer;
  const int ask = screen::style::Question | screen::style::YesNo;
  const int safe = ask | screen::style::DefaultSecond;
  const std::tuple<int, const char*, Answer> cases[] = {
      {screen::style::Information, "Enter", Answer::Ok},
      {screen::style::Information, "Escape", Answer::Ok},
      {ask, "Enter", Answer::Yes},
      {ask, "Escape", Answer::No},
      {ask, "Alt+F4", Answer::No},
      {ask, "n", Answer::No},
      {safe, "Enter", Answer::No},
      {safe, "s", Answer::Yes}};
  for (const auto& [style, key, answer] : cases)
    EXPECT_EQ(answered({"¿Borrar?", style, "T"}, key), answer) << key;
  // The pointer is the usual one while a dialog waits in the middle of long work.
  desktop.mousePointer(13);
  whenOpen<MessageDialog>([](MessageDialog& dialog) {
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    EXPECT_EQ(dialog.button(Answer::Yes)->text() + dialog.button(Answer::No)->text(), "&Sí&No");
    EXPECT_EQ(dialog.button(Answer::Ok), nullptr);
    EXPECT_EQ(dialog.focusWidget(), dialog.button(Answer::No));
    dialog.close();
  });
  EXPECT_EQ(desktop.messageBox({"", safe, ""}), Answer::No);
  EXPECT_NE(QApplication::overrideCursor(), nullptr);
  desktop.mousePointer(0);
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(Dialogs, ListGoesToTheNameThatIsTyped) {
  screen::ListDialog list{"Buscar", "Codigo", "Nombre", 1300, 6000, {}};
  EXPECT_EQ(chosen(list, {"Enter", "Escape"}), -1) << "nothing to choose";
  for (const char* name : {"Ángel Ruiz", "Nadal", "Núñez", "Ñíguez", "Óscar", "Zoe"})
    list.rows.push_back({std::to_string(list.rows.size() + 1), name});
  EXPECT_EQ(chosen(list, {"Enter"}), 0);
  EXPECT_EQ(chosen(list, {"N", "U", "N", "Enter"}), 2);
  EXPECT_EQ(chosen(list, {"ñ", "Enter"}), 3);
  EXPECT_EQ(chosen(list, {"o", "s", "Enter"}), 4);
  EXPECT_EQ(chosen(list, {"n", "x", "Enter"}), 1) << "where none begins so, the row stays";
  EXPECT_EQ(chosen(list, {"Abajo", "Abajo", "Arriba", "Enter"}), 1);
}

TEST(FileDialogs, FiltersAreTheToolkits) {
  EXPECT_EQ(filtersOf("Imágenes (*.bmp)|*.bmp;*.jpg|Todos|*.*|sola").join('|'),
            "Imágenes (*.bmp *.jpg)|Todos (*)");
}

}  // namespace korvantes::desktop
