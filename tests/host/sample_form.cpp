#include "tests/host/sample_form.h"

#include <string>

#include "outside/screen/desktop.h"
#include "outside/screen/user_input.h"
#include "tests/support/recording_connection.h"

namespace korvantes::host {
namespace {

constexpr int kBehindText = 5;

}  // namespace

SampleForm::SampleForm() : Form("frmPrueba") {
  Caption = "Prueba";
  KeyPreview = true;
  for (screen::Control* control : controls()) control->TabIndex = kBehindText;
  Text1.add(0).MaxLength = 8;
  Text1.add(10).container(&fraOff);
  fraOff.Caption = "Apagado";
  fraOff.Enabled = false;
  Check1.Caption = "Marca";
  cboFixed.AddItem("uno");
  cboFixed.AddItem("dos");
  cboFree.Editable = true;
  cmdAsk.Caption = "&Preguntar";
  cmdAsk.Click = [this] { ask(); };
  cmdHidden.Visible = false;
  Text1(0).LostFocus = [this] {
    if (Text1(0).Text() == "mal") screen::MsgBox("Valor malo", screen::style::Critical);
  };
  fillRows();
}

void SampleForm::fillRows() {
  ListView1.ColumnHeaders = {{"Factura"}, {"Clave", 0}, {"Cliente"}};
  ListView1.Add("A/000002").SubItems = {"2", "Ñuño"};
  ListView1.Add("A/000001").SubItems = {"1", ""};
  ListView1.ItemCheck = [this](const screen::ListView::ListItem& item) {
    lblAnswer.Caption = item.Text + (item.Checked ? " sí" : " no");
  };
  ListView1.ColumnClick = [this](int column) {
    ListView1.SortKey = column - 1;
    ListView1.Sorted = true;
  };
  dbgRows.DataSource(support::resultOf({"Lca_Id", "Nombre"}, {7, "Ana", 9, "Luis"}));
  dbgRows.Columns(0).Button = true;
  dbgRows.columnsChanged();
  dbgRows.ButtonClick = [this](int) {
    lblAnswer.Caption = "fila " + std::to_string(dbgRows.DataSource().Collect("Lca_Id").asLong());
  };
}

void SampleForm::Form_Load() {
  if (failsToLoad) throw ado::Error(1, "no hay\nbase");
}

void SampleForm::Form_KeyUp(int& keyCode, int) {
  if (keyCode == screen::key::Escape) Unload();
  if (keyCode == screen::key::Enter) Tag = Tag() + "e";
}

void SampleForm::ask() {
  constexpr int kStyle = screen::style::Question + screen::style::YesNo;
  const bool yes = screen::MsgBox("¿Sigo?\r\nDos", kStyle, "Duda") == screen::Answer::Yes;
  lblAnswer.Caption = yes ? "sí" : "no";
  if (yes && dlgFile.ShowOpen()) lblAnswer.Caption = dlgFile.FileName();
}

}  // namespace korvantes::host
