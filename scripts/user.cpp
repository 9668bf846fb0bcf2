#include "scripts/user.h"

#include "runtime/ado/utf8.h"

namespace korvantes::scripts {

using screen::UserInput;

void User::moveFocus(screen::Control& control) {
  tell([&](UserInput& input) { return input.moveFocus(control); });
}

void User::type(std::string_view text) {
  for (const char32_t character : ado::toCodePoints(text)) stroke(screen::keyTyping(character));
}

bool User::paste(std::string_view text) {
  return tell([&](UserInput& input) { return input.paste(text); });
}

bool User::clearText() {
  return tell([](UserInput& input) { return input.clearText(); });
}

void User::click(screen::Control& control) {
  tell([&](UserInput& input) { return input.click(control); });
}

void User::tick(screen::ListView& list, std::size_t row, bool checked) {
  tell([&](UserInput& input) { return input.tick(list, row, checked); });
}

void User::clickColumn(screen::ListView& list, int column) {
  tell([&](UserInput& input) { return input.clickColumn(list, column); });
}

void User::selectEntry(screen::ComboBox& combo, int entry) {
  tell([&](UserInput& input) { return input.selectEntry(combo, entry); });
}

void User::typeEntry(screen::ComboBox& combo, std::string_view text) {
  tell([&](UserInput& input) { return input.typeEntry(combo, text); });
}

void User::selectRow(screen::DataGrid& grid, std::size_t row) {
  tell([&](UserInput& input) { return input.selectRow(grid, row); });
}

void User::pressCellButton(screen::DataGrid& grid, int column) {
  tell([&](UserInput& input) { return input.pressCellButton(grid, column); });
}

void User::close() {
  tell([](UserInput& input) {
    input.close();
    return true;
  });
}

}  // namespace korvantes::scripts
