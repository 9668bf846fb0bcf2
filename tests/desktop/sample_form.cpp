#include "tests/desktop/sample_form.h"

#include "runtime/screen/desktop.h"
#include "runtime/screen/user_input.h"

namespace korvantes::desktop {

namespace {

/// Adds where it comes from; digits alone pass.
void digitsOnly(int& character) {
  if (character >= ' ' && (character < '0' || character > '9')) character = 0;
}

}  // namespace

SampleForm::SampleForm() : Form("SampleForm") {
  layOut();
  for (screen::Control* control : controls()) logEvents(*control);
}

void SampleForm::Form_Load() {
  for (const char* entry : {"Uno", "Dos", "Tres"}) {
    fixedList.AddItem(entry);
    openList.AddItem(entry);
  }
  list.ColumnHeaders = {{"Factura", 1440, screen::Alignment::Left},
                        {"Importe", 1440, screen::Alignment::Right}};
  for (int i = 1; i <= 40; ++i)
    list.Add("F" + std::to_string(i)).SubItems = {std::to_string(i) + ",50"};
  grid.DataSource(sampleRows(60));
  grid.Columns(0).Visible = false;
  grid.Columns(2).Button = true;
  grid.columnsChanged();
}

void SampleForm::Form_KeyUp(int& keyCode, int shift) {
  log("Form", "KeyUp " + std::to_string(keyCode) + "/" + std::to_string(shift));
  if (keyCode == screen::key::Enter) {
    keyCode = 0;
    if (Tag().empty()) screen::SendKeys("\t");
    Tag = "";
  } else {
    Tag = "";
    screen::DoEvents();
  }
}

void SampleForm::log(const std::string& who, const std::string& what) {
  events.push_back(who + " " + what);
}

std::string SampleForm::state() const {
  std::string state = ActiveControl() == nullptr ? "-" : ActiveControl()->identity();
  for (const auto& [index, text] : Text1.all()) state += " " + text->Text.print();
  state += " check " + check.Value.print() + " second " + second.Value.print();
  state += " lists " + fixedList.Text.print() + openList.Text.print();
  state += " cursor " + list.SelectedRow.print();
  const auto row = grid.currentRow();
  return state + " row " + (row ? std::to_string(*row) : std::string("-"));
}

void SampleForm::layOut() {
  Caption = "Todo lo que hay";
  Width = 9000;
  Height = 7200;
  KeyPreview = true;
  box.place(0, 0, 9000, 2400);
  box.Caption = "&Datos";
  inner.container(&box);
  inner.place(4500, 300, 4300, 900);
  heading.container(&box);
  heading.Caption = "Código";
  heading.place(120, 240, 900, 195);
  for (int i = 0; i < 3; ++i) {
    Text1.add(i).container(&box);
    Text1(i).place(120 + 1300 * i, 480, 1200, 285);
    Text1(i).TabIndex = i;
  }
  Text1(0).MaxLength = 6;
  Text1(0).KeyPress = digitsOnly;
  check.container(&inner);
  check.Caption = "Co&bradas";
  check.place(120, 300, 1200, 255);
  first.container(&inner);
  first.place(1400, 300, 1200, 255);
  second.container(&inner);
  second.place(2700, 300, 1200, 255);
  fixedList.place(120, 2500, 2000, 315);
  openList.place(2300, 2500, 2000, 315);
  openList.Editable = true;
  save.Caption = "&Guardar";
  save.Icon = "guardar";
  save.place(4500, 2500, 1500, 495);
  leave.Caption = "&Salir";
  leave.place(6200, 2500, 1500, 495);
  list.place(120, 3200, 4200, 3600);
  grid.place(4500, 3200, 4300, 3600);
  image.place(8000, 2500, 495, 495);
  shape.place(0, 2450, 9000, 700);
  int tab = 3;
  for (screen::Control* control : std::initializer_list<screen::Control*>{
           &check, &first, &second, &fixedList, &openList, &save, &leave, &list, &grid})
    control->TabIndex = tab++;
  for (screen::Control* control : std::initializer_list<screen::Control*>{&box, &inner, &heading})
    control->TabIndex = tab++;
}

void SampleForm::logEvents(screen::Control& control) {
  const std::string who = control.identity();
  control.GotFocus = [this, who] { log(who, "GotFocus"); };
  control.LostFocus = [this, who] { log(who, "LostFocus"); };
  control.Click = [this, who] { log(who, "Click"); };
  control.KeyUp = [this, who](int& code, int) { log(who, "KeyUp " + std::to_string(code)); };
  if (auto* text = dynamic_cast<screen::TextBox*>(&control)) {
    text->Change = [this, text, who] { log(who, "Change " + text->Text.print()); };
    text->KeyPress = [this, who, filter = text->KeyPress](int& character) {
      log(who, "KeyPress " + std::to_string(character));
      if (filter) filter(character);
    };
  } else if (auto* combo = dynamic_cast<screen::ComboBox*>(&control)) {
    combo->Change = [this, combo, who] { log(who, "Change " + combo->Text.print()); };
  } else if (&control == &list) {
    list.ItemCheck = [this](const screen::ListView::ListItem& item) {
      log("list", "ItemCheck " + item.Text + (item.Checked ? " on" : " off"));
    };
    list.ColumnClick = [this](int column) { log("list", "ColumnClick " + std::to_string(column)); };
    list.BeforeLabelEdit = [this](int& cancel) {
      log("list", "BeforeLabelEdit");
      cancel = 1;
    };
  } else if (&control == &grid) {
    grid.ButtonClick = [this](int column) { log("grid", "ButtonClick " + std::to_string(column)); };
  }
}

ado::Recordset sampleRows(int count) {
  ado::Recordset rows;
  rows.Fields().Append("Id", ado::FieldType::Integer);
  rows.Fields().Append("Nombre", ado::FieldType::VarChar, 40);
  rows.Fields().Append("Fecha", ado::FieldType::VarChar, 10);
  rows.Open();
  for (int i = 1; i <= count; ++i) {
    rows.AddNew();
    rows.Collect("Id", ado::Variant(i));
    rows.Collect("Nombre", ado::Variant("Agente " + std::to_string(i)));
    rows.Collect("Fecha", ado::Variant("01/07/2026"));
    rows.Update();
  }
  if (count > 0) rows.MoveFirst();
  return rows;
}

}  // namespace korvantes::desktop
