#include "tests/settlement/settlement_world.h"

#include "tests/support/rows.h"

namespace korvantes::settlement {

namespace {

constexpr const char* kRows[] = {
    "INSERT INTO Age (AGE_ID, AGE_NOM, AGE_REG) VALUES (5, 'Ana Gil', 2), (6, 'Luis Paz', Null), "
    "(7, 'Eva Sanz', 9)",
    "INSERT INTO Vespara.dbo.Tivas VALUES (1, 2, 1, '01/01/2020', 18, 15), "
    "(2, 2, 1, '01/07/2026', 21, 19), (3, 2, 2, '01/09/2026', 4, 0), (4, 1, 1, '01/01/2020', 10, "
    "0)",
    "INSERT INTO Cli (Cli_Id, Cli_Nom) VALUES (1, 'Bar Pepe')",
    "INSERT INTO Fav (Fav_Id, Fav_Serie, Fav_Numero, Fav_Fecha, Fav_IdCli) VALUES "
    "(1, 'A', 101, '10/10/2026', 1), (2, '', 1234567, '11/10/2026', 1)",
    "INSERT INTO Cav VALUES (1, 'A', 15, 'Bar Pepe', 10, 5, 1, 5, 2, Null), "
    "(2, '', 16, 'Bar Pepe', 0, 0, 2, 5, 2, 0), (3, 'A', 17, 'Bar Pepe', 0, 0, 1, 5, 2, Null), "
    "(4, 'A', 18, 'Bar Pepe', 0, 0, 1, 5, 2, Null)",
    "INSERT INTO Lav (Lav_Id, Lav_IdCav, Lav_Importe, Lav_Comi) VALUES (1, 1, 10.05, 7.5), "
    "(2, 1, 20.05, 7.5), (3, 3, 200, 5), (4, 4, -500, 10)",
};

constexpr const char* kTables[] = {"select * from Lca order by Lca_Id",
                                   "select * from Lcd order by Lcd_IdLca, Lcd_IdCav",
                                   "select Cav_Id, Cav_IdLca from Cav order by Cav_Id"};

std::string box(int index) {
  return "Text1(" + std::to_string(index) + ")";
}

}  // namespace

screen::TextBox& Screen::text(int index) const {
  return control<screen::TextBox>(box(index));
}

void Screen::paste(int index, std::string_view pasted) const {
  pasteInto(box(index), pasted);
}

void Screen::type(int index, std::string_view typed) const {
  typeInto(box(index), typed);
}

void Screen::tick(std::size_t row, bool checked) const {
  desktop.user().tick(list(), row, checked);
  desktop.user().settle();
}

void Screen::search(std::string_view agent, bool collected, bool pending) const {
  type(0, agent);
  for (const auto& [name, wanted] : {std::pair{"Check1", collected}, {"Check2", pending}})
    if ((control<screen::CheckBox>(name).Value() == 1) != wanted) click(name);
  click("cmbBuscarFacturas");
}

void Screen::makeOut(const std::vector<int>& notes) const {
  search("5", false, false);
  type(2, "24112026");
  for (int note : notes) tick(rowOf(note));
}

std::size_t Screen::rowOf(int note) const {
  for (std::size_t row = 0; row < list().Count(); ++row)
    if (list().item(row).Tag == std::to_string(note)) return row;
  throw std::logic_error("note " + std::to_string(note) + " is not listed");
}

std::vector<std::string> Screen::contents() const {
  std::vector<std::string> result;
  for (int index : {0, 1, 2, 3, 4, 7, 8, 9, 10, 11, 12}) result.push_back(text(index).Text());
  for (std::size_t row = 0; row < list().Count(); ++row)
    result.push_back((list().item(row).Checked ? "x " : "- ") + list().item(row).Tag);
  return result;
}

World::World() {
  sqlAll(kRows);
}

void World::show(const std::function<void(Screen&)>& user, int nLiqui) {
  frmNewLiquidAgentes form;
  form.nLiqui = nLiqui;
  play(form, [&] {
    Screen screen{{desktop, form}};
    user(screen);
  });
}

void World::addNote(int note, int agent, const std::string& amount) {
  const std::string id = std::to_string(note);
  sql("INSERT INTO Cav VALUES (" + id + ", 'Z', 1, 'x', 0, 0, 1, " + std::to_string(agent) +
      ", 2, Null)");
  sql("INSERT INTO Lav (Lav_Id, Lav_IdCav, Lav_Importe, Lav_Comi) VALUES (" + id + ", " + id +
      ", " + amount + ", 100)");
}

std::vector<std::string> World::stored() {
  std::vector<std::string> result;
  for (const char* table : kTables)
    for (const std::string& row : support::rowsOf(sql(table))) result.push_back(row);
  return result;
}

int World::settle(const std::vector<int>& notes) {
  show([&](Screen& screen) {
    screen.makeOut(notes);
    screen.click("cmdGrabar");
  });
  messages.clear();
  return sql("Select max(Lca_id) from Lca").cell(0, 0).asLong();
}

}  // namespace korvantes::settlement
