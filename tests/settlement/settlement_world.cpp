#include "tests/settlement/settlement_world.h"

#include "data/schema.h"
#include "engines/sqlite/sqlite_connection.h"
#include "engines/tsql/compiler.h"
#include "outside/screen/conversions.h"

namespace korvantes::settlement {

namespace {

constexpr const char* kRows[] = {
    "INSERT INTO Age (AGE_ID, AGE_NOM, AGE_REG) VALUES (5, 'Ana Gil', 2)",
    "INSERT INTO Age (AGE_ID, AGE_NOM, AGE_REG) VALUES (6, 'Luis Paz', Null)",
    "INSERT INTO Age (AGE_ID, AGE_NOM, AGE_REG) VALUES (7, 'Eva Sanz', 9)",
    "INSERT INTO Vespara.dbo.Tivas VALUES (1, 2, 1, '01/01/2020', 18, 15)",
    "INSERT INTO Vespara.dbo.Tivas VALUES (2, 2, 1, '01/07/2026', 21, 19)",
    "INSERT INTO Vespara.dbo.Tivas VALUES (3, 2, 2, '01/09/2026', 4, 0)",
    "INSERT INTO Vespara.dbo.Tivas VALUES (4, 1, 1, '01/01/2020', 10, 0)",
    "INSERT INTO Cli (Cli_Id, Cli_Nom) VALUES (1, 'Bar Pepe')",
    "INSERT INTO Fav (Fav_Id, Fav_Serie, Fav_Numero, Fav_Fecha, Fav_IdCli) VALUES (1, 'A', 101, "
    "'10/10/2026', 1)",
    "INSERT INTO Fav (Fav_Id, Fav_Serie, Fav_Numero, Fav_Fecha, Fav_IdCli) VALUES (2, '', "
    "1234567, '11/10/2026', 1)",
    "INSERT INTO Cav VALUES (1, 'A', 15, 'Bar Pepe', 10, 5, 1, 5, 2, Null)",
    "INSERT INTO Cav VALUES (2, '', 16, 'Bar Pepe', 0, 0, 2, 5, 2, 0)",
    "INSERT INTO Cav VALUES (3, 'A', 17, 'Bar Pepe', 0, 0, 1, 5, 2, Null)",
    "INSERT INTO Cav VALUES (4, 'A', 18, 'Bar Pepe', 0, 0, 1, 5, 2, Null)",
    "INSERT INTO Lav (Lav_Id, Lav_IdCav, Lav_Importe, Lav_Comi) VALUES (1, 1, 10.05, 7.5)",
    "INSERT INTO Lav (Lav_Id, Lav_IdCav, Lav_Importe, Lav_Comi) VALUES (2, 1, 20.05, 7.5)",
    "INSERT INTO Lav (Lav_Id, Lav_IdCav, Lav_Importe, Lav_Comi) VALUES (3, 3, 200, 5)",
    "INSERT INTO Lav (Lav_Id, Lav_IdCav, Lav_Importe, Lav_Comi) VALUES (4, 4, -500, 10)",
};

constexpr const char* kTables[] = {"select * from Lca order by Lca_Id",
                                   "select * from Lcd order by Lcd_IdLca, Lcd_IdCav",
                                   "select Cav_Id, Cav_IdLca from Cav order by Cav_Id"};

}  // namespace

screen::Control& Screen::control(const std::string& identity) const {
  screen::Control* found = form.findControl(identity);
  if (found == nullptr) throw std::logic_error("no control " + identity);
  return *found;
}

screen::TextBox& Screen::text(int index) const {
  return dynamic_cast<screen::TextBox&>(control("Text1(" + std::to_string(index) + ")"));
}

screen::ListView& Screen::list() const {
  return dynamic_cast<screen::ListView&>(control("ListView1"));
}

void Screen::go(const std::string& identity) const {
  desktop.user().moveFocus(control(identity));
  desktop.settle();
}

void Screen::paste(int index, std::string_view pasted) const {
  go(text(index).identity());
  desktop.user().clearText();
  desktop.user().paste(pasted);
  desktop.settle();
}

void Screen::type(int index, std::string_view typed) const {
  go(text(index).identity());
  desktop.user().clearText();
  desktop.type(typed);
  desktop.settle();
}

void Screen::click(const std::string& identity) const {
  desktop.user().click(control(identity));
  desktop.settle();
}

void Screen::tick(std::size_t row, bool checked) const {
  desktop.user().tick(list(), row, checked);
  desktop.settle();
}

void Screen::search(std::string_view agent, bool collected, bool pending) const {
  type(0, agent);
  for (const auto& [name, wanted] : {std::pair{"Check1", collected}, {"Check2", pending}}) {
    auto& check = dynamic_cast<screen::CheckBox&>(control(name));
    if ((check.Value() == 1) != wanted) click(name);
  }
  click("cmbBuscarFacturas");
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

World::World()
    : real_(std::make_shared<sqlite::SqliteConnection>(path(), sqlite::OpenOptions{true, 100})),
      component_(KORVAN::Create()),
      former_(screen::Desktop::makeCurrent(&desktop)) {
  desktop.regional(screen::Regional::named("es-ES"));
  desktop.clock = ado::Moment{{2026, 11, 24}, 12 * 3600};
  desktop.onMessage = [this](const screen::MessageBox& box) {
    messages.push_back("[" + std::to_string(box.style) + "] " + box.title + " | " + box.text);
    screen::Answer answer = box.defaultAnswer();
    if (box.yesNo() && !answers.empty()) {
      answer = answers.front();
      answers.pop_front();
    }
    return screen::HeadlessDesktop::Reply<screen::Answer>{answer};
  };
  desktop.whileShown = [this](screen::Form& form) { users_.back()(form); };
  real_->BeginTrans();
  for (const std::string& statement : tsql::splitStatements(data::kSchema))
    real_->Execute(statement);
  for (const char* row : kRows) real_->Execute(row);
  real_->CommitTrans();
  connection = std::make_shared<Link>(real_);
  component_->MyBd(std::make_shared<plindor::BaseDatos>(connection));
}

World::~World() {
  screen::Desktop::makeCurrent(former_);
}

void World::show(const std::function<void(Screen&)>& user, int nLiqui) {
  frmNewLiquidAgentes form;
  form.nLiqui = nLiqui;
  users_.push_back([&](screen::Form&) {
    Screen screen{desktop, form};
    user(screen);
    if (form.loaded()) form.Unload();
  });
  form.Show();
  users_.pop_back();
}

ado::Recordset World::sql(std::string_view statement) {
  return real_->Execute(statement);
}

std::vector<std::string> World::stored() {
  std::vector<std::string> result;
  for (const char* table : kTables) {
    const ado::Recordset rows = sql(table);
    for (std::size_t row = 0; row < rows.RecordCount(); ++row) {
      std::string line;
      for (std::size_t field = 0; field < rows.definitions().size(); ++field)
        line += rows.definitions()[field].name + "=" + screen::CStr(rows.cell(row, field)) + " ";
      result.push_back(line);
    }
  }
  return result;
}

int World::settle(const std::vector<int>& notes) {
  show([&](Screen& screen) {
    screen.search("5", false, false);
    screen.type(2, "24112026");
    for (int note : notes) screen.tick(screen.rowOf(note));
    screen.click("cmdGrabar");
  });
  messages.clear();
  return sql("Select max(Lca_id) from Lca").cell(0, 0).asLong();
}

}  // namespace korvantes::settlement
