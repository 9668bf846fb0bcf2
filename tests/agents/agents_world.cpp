#include "tests/agents/agents_world.h"

#include "runtime/screen/conversions.h"

namespace korvantes::agents {

namespace {

constexpr const char* kRows[] = {
    "INSERT INTO Age (AGE_ID, AGE_NOM, AGE_NIF, AGE_CP, AGE_PRO, AGE_PAI, AGE_COM, AGE_REG) VALUES "
    "(3, 'Ana Gil', '12345678Z', '28001', '28', 34, 7.5, 2), "
    "(5, 'Luc Roy', Null, 'SW1A 2AA', '99', 33, 10, 1), "
    "(8, 'Eva Sanz', Null, Null, Null, Null, Null, Null)",
    "INSERT INTO Vespara.dbo.PROV VALUES (1, 'Araba'), (28, 'Madrid'), (99, 'Extranjero')",
    "INSERT INTO Vespara.dbo.situaciones VALUES (3, 0, 1, 'General'), (3, 0, 2, 'Inicio')",
    "INSERT INTO Vespara.dbo.PAIS VALUES (1, 'País'), (2, ''), (7, ''), (20, ''), (27, ''), "
    "(30, ''), (31, ''), (32, ''), (33, ''), (34, ''), (36, ''), (39, '')",
};

}  // namespace

screen::TextBox& Screen::field(int index) const {
  return control<screen::TextBox>("txtFields(" + std::to_string(index) + ")");
}

void Screen::typeRegime(std::string_view text) const {
  desktop.user().typeEntry(control<screen::ComboBox>("cboRegFiscal"), text);
}

void Screen::row(std::size_t place) const {
  desktop.user().selectRow(control<screen::DataGrid>("dboOper"), place);
  desktop.user().settle();
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

World::World() {
  sqlAll(kRows);
  otherwise = screen::Answer::Yes;
}

void World::show(const std::function<void(Screen&)>& user) {
  frmAgentes form;
  play(form, [&] {
    Screen screen{{desktop, form}};
    user(screen);
  });
}

std::vector<std::string> World::stored() {
  std::vector<std::string> result;
  const ado::Recordset rows = sql("select * from Age order by AGE_ID");
  for (std::size_t row = 0; row < rows.RecordCount(); ++row) {
    result.emplace_back();
    for (std::size_t field = 0; field + 1 < rows.definitions().size(); ++field)
      result.back() += screen::CStr(rows.cell(row, field)) + "|";
  }
  return result;
}

}  // namespace korvantes::agents
