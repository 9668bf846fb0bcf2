#include "tests/agents/agents_world.h"

#include "outside/screen/conversions.h"

namespace korvantes::agents {

namespace {

constexpr const char* kRows[] = {
    "INSERT INTO Age (AGE_ID, AGE_NOM, AGE_NIF, AGE_CP, AGE_PRO, AGE_PAI, AGE_COM, AGE_REG) VALUES "
    "(3, 'Ana Gil', '12345678Z', '28001', '28', 34, 7.5, 2)",
    "INSERT INTO Age (AGE_ID, AGE_NOM, AGE_CP, AGE_PRO, AGE_PAI, AGE_COM, AGE_REG) VALUES "
    "(5, 'Luc Roy', 'SW1A 2AA', '99', 33, 10, 1)",
    "INSERT INTO Age (AGE_ID, AGE_NOM) VALUES (8, 'Eva Sanz')",
    "INSERT INTO Vespara.dbo.PROV VALUES (1, 'Araba')",
    "INSERT INTO Vespara.dbo.PROV VALUES (28, 'Madrid')",
    "INSERT INTO Vespara.dbo.PROV VALUES (99, 'Extranjero')",
    "INSERT INTO Vespara.dbo.situaciones VALUES (3, 0, 1, 'General')",
    "INSERT INTO Vespara.dbo.situaciones VALUES (3, 0, 2, 'Inicio')",
};
constexpr int kCountries[] = {1, 2, 7, 20, 27, 30, 31, 32, 33, 34, 36, 39};

}  // namespace

screen::TextBox& Screen::field(int index) const {
  return control<screen::TextBox>("txtFields(" + std::to_string(index) + ")");
}

void Screen::type(int index, std::string_view text) const {
  desktop.user().moveFocus(field(index));
  desktop.user().clearText();
  desktop.type(text);
  desktop.settle();
}

void Screen::click(const std::string& identity) const {
  desktop.user().click(control(identity));
  desktop.settle();
}

void Screen::row(std::size_t place) const {
  desktop.user().selectRow(control<screen::DataGrid>("dboOper"), place);
  desktop.settle();
}

std::vector<std::string> Screen::contents() const {
  std::vector<std::string> result;
  for (int index = 0; index <= 10; ++index) result.push_back(field(index).Text());
  for (const char* list : {"cboProvincias", "cboPais", "cboRegFiscal"})
    result.push_back(text(list));
  result.push_back(std::to_string(rows()) + " agents, now " + std::to_string(form.nIdAgente));
  result.push_back(field(0).Visible() ? "browsing" : "new agent");
  return result;
}

World::World() : component_(KORVAN::Create()), former_(screen::Desktop::makeCurrent(&desktop)) {
  desktop.regional(screen::Regional::named("es-ES"));
  desktop.onMessage = [this](const screen::MessageBox& box) {
    messages.push_back("[" + std::to_string(box.style) + "] " + box.title + " | " + box.text);
    return screen::HeadlessDesktop::Reply<screen::Answer>{box.yesNo() ? answer
                                                                      : screen::Answer::Ok};
  };
  for (const char* row : kRows) sql(row);
  for (const int code : kCountries)
    sql("INSERT INTO Vespara.dbo.PAIS VALUES (" + std::to_string(code) + ", 'País')");
  connection = std::make_shared<Link>(base_.connection());
  component_->MyBd(std::make_shared<plindor::BaseDatos>(connection));
}

World::~World() {
  screen::Desktop::makeCurrent(former_);
}

void World::show(const std::function<void(Screen&)>& user) {
  frmAgentes form;
  desktop.whileShown = [&](screen::Form&) {
    Screen screen{desktop, form};
    user(screen);
    if (form.loaded()) form.Unload();
  };
  form.Show();
}

std::vector<std::string> World::stored() {
  std::vector<std::string> result;
  const ado::Recordset rows = sql("select * from Age order by AGE_ID");
  for (std::size_t row = 0; row < rows.RecordCount(); ++row) {
    std::string line;
    for (std::size_t field = 0; field + 1 < rows.definitions().size(); ++field)
      line += screen::CStr(rows.cell(row, field)) + "|";
    result.push_back(line);
  }
  return result;
}

}  // namespace korvantes::agents
