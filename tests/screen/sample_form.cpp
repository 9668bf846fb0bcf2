#include "tests/screen/sample_form.h"

#include <tuple>

namespace korvantes::screen {

SampleForm::SampleForm() : Form("SampleForm") {
  layOut();
  for (const char* entry : {"Alemania", "España", "Estonia"}) {
    fixedList.AddItem(entry);
    openList.AddItem(entry);
  }
  openList.Editable = true;
  list.ColumnHeaders = {{"Factura", 1440, Alignment::Left}, {"Importe", 1440, Alignment::Right}};
  for (int i = 1; i <= 40; ++i) list.Add("F" + std::to_string(i)).SubItems = {"1,50"};
  grid.DataSource(sampleRows(60));
  grid.Columns(0).Visible = false;
  grid.Columns(2).Button = true;
  grid.columnsChanged();
  for (Control* control : controls()) watch(*control);
}

void SampleForm::Form_KeyUp(int& code, int shift) {
  write("form", "up " + std::to_string(code) + (shift == 0 ? "" : "/" + std::to_string(shift)));
  if (keyUp) keyUp(code);
}

void SampleForm::also(std::function<void()>& event, std::function<void()> step) {
  event = [before = event, step = std::move(step)] {
    before();
    step();
  };
}

void SampleForm::write(const std::string& who, const std::string& what) {
  log += (log.empty() ? "" : ", ") + who + " " + what;
}

void SampleForm::layOut() {
  Caption = "Muestra";
  Width = 9000;
  Height = 7200;
  KeyPreview = true;
  for (int i = 0; i < 3; ++i) text.add(i);
  const std::tuple<Control&, Frame*, Box> inTabOrder[] = {
      {text(0), &box, {120, 480, 1200, 285}},       {text(1), &box, {1420, 480, 1200, 285}},
      {text(2), &box, {2720, 480, 1200, 285}},      {check, &inner, {120, 300, 1200, 255}},
      {first, &inner, {1400, 300, 1200, 255}},      {second, &inner, {2700, 300, 1200, 255}},
      {fixedList, nullptr, {120, 2500, 2000, 315}}, {openList, nullptr, {2300, 2500, 2000, 315}},
      {save, nullptr, {4500, 2500, 1500, 495}},     {leave, nullptr, {6200, 2500, 1500, 495}},
      {list, nullptr, {120, 3200, 4200, 3600}},     {grid, nullptr, {4500, 3200, 4300, 3600}},
      {box, nullptr, {0, 0, 9000, 2400}},           {inner, &box, {4500, 300, 4300, 900}},
      {heading, &box, {120, 240, 900, 195}},        {image, nullptr, {8000, 2500, 495, 495}},
      {shape, nullptr, {0, 2450, 9000, 700}}};
  int tab = 0;
  for (const auto& [control, frame, place] : inTabOrder) {
    control.container(frame);
    control.place(place);
    control.TabIndex = tab++;
  }
  box.Caption = "&Datos";
  check.Caption = "Co&bradas";
  save.Caption = "&Guardar";
  save.Icon = "guardar";
}

void SampleForm::watch(Control& control) {
  const std::string who = control.identity();
  const auto note = [this, who](const std::string& what) { write(who, what); };
  control.GotFocus = [this, who] { log += (log.empty() ? "+" : ", +") + who; };
  control.LostFocus = [this, who] { log += (log.empty() ? "-" : ", -") + who; };
  control.Click = [note] { note("Click"); };
  control.KeyUp = [note](int& code, int) { note("up " + std::to_string(code)); };
  if (auto* field = dynamic_cast<TextBox*>(&control)) {
    field->Change = [field, note] { note("= " + field->Text()); };
    field->KeyPress = [note](int& character) { note("press " + std::to_string(character)); };
  } else if (auto* combo = dynamic_cast<ComboBox*>(&control)) {
    combo->Change = [combo, note] { note("= " + combo->Text()); };
  } else if (&control == &list) {
    list.ItemCheck = [note](const auto& item) {
      note(item.Text + (item.Checked ? " on" : " off"));
    };
    list.ColumnClick = [note](int column) { note("column " + std::to_string(column)); };
    list.BeforeLabelEdit = [](int& cancel) { cancel = 1; };
  } else if (&control == &grid) {
    grid.ButtonClick = [note](int column) { note("button " + std::to_string(column)); };
  }
}

ado::Recordset sampleRows(int count) {
  ado::Recordset rows;
  rows.Fields().Append("Id", ado::FieldType::Integer);
  for (const char* name : {"Nombre", "Fecha"})
    rows.Fields().Append(name, ado::FieldType::VarChar, 40);
  rows.Open();
  for (int i = 1; i <= count; ++i) {
    rows.AddNew();
    rows.Collect("Id", i);
    rows.Collect("Nombre", "Agente " + std::to_string(i));
    rows.Update();
  }
  if (count > 0) rows.MoveFirst();
  return rows;
}

}  // namespace korvantes::screen
