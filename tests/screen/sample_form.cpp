#include "tests/screen/sample_form.h"

namespace korvantes::screen {

SampleForm::SampleForm() : Form("SampleForm") {
  layOut();
  for (const char* entry : {"Alemania", "España", "Estonia"}) {
    fixedList.AddItem(entry);
    openList.AddItem(entry);
  }
  list.ColumnHeaders = {{"Factura", 1440, Alignment::Left}, {"Importe", 1440, Alignment::Right}};
  for (int i = 1; i <= 40; ++i)
    list.Add("F" + std::to_string(i)).SubItems = {std::to_string(i) + ",50"};
  grid.DataSource(sampleRows(60));
  grid.Columns(0).Visible = false;
  grid.Columns(2).Button = true;
  grid.columnsChanged();
  for (Control* control : controls()) logEvents(*control);
}

void SampleForm::Form_KeyUp(int& code, int shift) {
  log.push_back("Form KeyUp " + std::to_string(code) +
                (shift == 0 ? "" : "/" + std::to_string(shift)));
  if (keyUp) keyUp(code);
}

void SampleForm::also(std::function<void()>& event, std::function<void()> step) {
  event = [before = event, step = std::move(step)] {
    before();
    step();
  };
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
  Caption = "Muestra";
  Width = 9000;
  Height = 7200;
  KeyPreview = true;
  box.place(0, 0, 9000, 2400);
  box.Caption = "&Datos";
  inner.place(4500, 300, 4300, 900);
  heading.Caption = "Código";
  heading.place(120, 240, 900, 195);
  for (int i = 0; i < 3; ++i) Text1.add(i).place(120 + 1300 * i, 480, 1200, 285);
  for (Control* control :
       std::initializer_list<Control*>{&inner, &heading, &Text1(0), &Text1(1), &Text1(2)})
    control->container(&box);
  Text1(2).MaxLength = 6;
  Text1(2).KeyPress = [](int& character) {
    if (character >= ' ' && (character < '0' || character > '9')) character = 0;
  };
  int left = 120;
  for (Control* control : std::initializer_list<Control*>{&check, &first, &second}) {
    control->container(&inner);
    control->place(std::exchange(left, left + 1300), 300, 1200, 255);
  }
  check.Caption = "Co&bradas";
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
  int tab = 0;
  for (Control* control : std::initializer_list<Control*>{
           &Text1(0), &Text1(1), &Text1(2), &check, &first, &second, &fixedList, &openList, &save,
           &leave, &list, &grid, &box, &inner, &heading})
    control->TabIndex = tab++;
}

void SampleForm::logEvents(Control& control) {
  const auto write = [this, who = control.identity()](const std::string& what) {
    log.push_back(who + " " + what);
  };
  control.GotFocus = [write] { write("GotFocus"); };
  control.LostFocus = [write] { write("LostFocus"); };
  control.Click = [write] { write("Click"); };
  control.KeyUp = [write](int& code, int) { write("KeyUp " + std::to_string(code)); };
  if (auto* text = dynamic_cast<TextBox*>(&control)) {
    text->Change = [text, write] { write("Change " + text->Text()); };
    text->KeyPress = [write, filter = text->KeyPress](int& character) {
      write("KeyPress " + std::to_string(character));
      if (filter) filter(character);
    };
  } else if (auto* combo = dynamic_cast<ComboBox*>(&control)) {
    combo->Change = [combo, write] { write("Change " + combo->Text()); };
  } else if (&control == &list) {
    list.ItemCheck = [write](const ListView::ListItem& item) {
      write("ItemCheck " + item.Text + (item.Checked ? " on" : " off"));
    };
    list.ColumnClick = [write](int column) { write("ColumnClick " + std::to_string(column)); };
    list.BeforeLabelEdit = [write](int& cancel) {
      write("BeforeLabelEdit");
      cancel = 1;
    };
  } else if (&control == &grid) {
    grid.ButtonClick = [write](int column) { write("ButtonClick " + std::to_string(column)); };
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

}  // namespace korvantes::screen
