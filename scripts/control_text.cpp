#include "scripts/control_text.h"

#include "runtime/screen/conversions.h"
#include "scripts/failure.h"

namespace korvantes::scripts {
namespace {

using screen::Control;

constexpr std::string_view kBetweenCells = " | ";

/// nullptr for the kinds whose rows matter most.
const char* mainPropertyOf(Control::Kind kind) {
  switch (kind) {
    case Control::Kind::TextBox:
    case Control::Kind::ComboBox:
      return "Text";
    case Control::Kind::CheckBox:
    case Control::Kind::OptionButton:
      return "Value";
    case Control::Kind::Label:
    case Control::Kind::Frame:
    case Control::Kind::PictureButton:
      return "Caption";
    case Control::Kind::Image:
      return "Picture";
    case Control::Kind::Shape:
      return "BackColor";
    case Control::Kind::CommonDialog:
      return "FileName";
    case Control::Kind::ListView:
    case Control::Kind::DataGrid:
      return nullptr;
  }
  return nullptr;
}

std::size_t rowCount(const Control& control) {
  if (control.kind() == Control::Kind::ListView)
    return static_cast<const screen::ListView&>(control).Count();
  return static_cast<const screen::DataGrid&>(control).RowCount();
}

const screen::PropertyBase& propertyOf(const screen::PropertyOwner& owner, std::string_view name,
                                       const std::string& ownerName) {
  const screen::PropertyBase* property = owner.findProperty(name);
  if (property == nullptr) throw Failure(ownerName + " no tiene la propiedad " + inQuotes(name));
  return *property;
}

/// The texts of the columns shown, joined. `shown` and `text` take a column's position.
template <class Shown, class Text>
std::string joinedCells(std::size_t columns, Shown shown, Text text) {
  std::string line;
  bool first = true;
  for (std::size_t column = 0; column < columns; ++column) {
    if (!shown(column)) continue;
    if (!first) line += kBetweenCells;
    line += text(column);
    first = false;
  }
  return line;
}

}  // namespace

std::string controlLine(const Control& control) {
  const char* property = mainPropertyOf(control.kind());
  const std::string value = property == nullptr
                                ? std::to_string(rowCount(control)) + " filas"
                                : propertyOf(control, property, control.identity()).print();
  return control.identity() + " = " + value;
}

std::string propertyLine(const Control& control, std::string_view name) {
  const screen::PropertyBase& property = propertyOf(control, name, control.identity());
  return control.identity() + "." + std::string(property.name()) + " = " + property.print();
}

std::string propertyLine(const screen::Form& form, std::string_view name) {
  const screen::PropertyBase& property = propertyOf(form, name, form.name());
  return std::string(property.name()) + " = " + property.print();
}

std::vector<std::string> listLines(const screen::ListView& list) {
  const auto& headers = list.ColumnHeaders;
  const auto shown = [&](std::size_t column) { return headers[column].Width > 0; };
  std::vector<std::string> lines;
  lines.push_back(
      joinedCells(headers.size(), shown, [&](std::size_t column) { return headers[column].Text; }));
  for (std::size_t row = 0; row < list.Count(); ++row) {
    const screen::ListView::ListItem& item = list.item(row);
    lines.push_back(
        (item.Checked ? "[x] " : "[ ] ") +
        joinedCells(headers.size(), shown, [&](std::size_t column) { return item.cell(column); }));
  }
  return lines;
}

std::vector<std::string> gridLines(const screen::DataGrid& grid) {
  const auto shown = [&](std::size_t column) { return grid.Columns(column).Visible; };
  std::vector<std::string> lines;
  lines.push_back(joinedCells(grid.ColumnCount(), shown,
                              [&](std::size_t column) { return grid.Columns(column).Caption; }));
  for (std::size_t row = 0; row < grid.RowCount(); ++row)
    lines.push_back(joinedCells(grid.ColumnCount(), shown, [&](std::size_t column) {
      return grid.cellText(row, column, screen::currentRegional());
    }));
  return lines;
}

std::vector<std::string> formLines(const screen::Form& form) {
  std::vector<std::string> lines = {"pantalla = " + form.Caption.print()};
  for (const Control* control : form.controls()) {
    if (!control->shown()) continue;
    lines.push_back(controlLine(*control) + (control->usable() ? "" : " (deshabilitado)"));
  }
  return lines;
}

}  // namespace korvantes::scripts
