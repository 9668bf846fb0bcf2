#include "office/sheet/spreadsheet.h"

#include "office/sheet/grid_table.h"
#include "office/sheet/list_table.h"
#include "office/sheet/sheet_file.h"
#include "office/sheet/sheet_text.h"
#include "office/sheet/workbook_writer.h"
#include "runtime/ado/error.h"
#include "runtime/ado/text_order.h"
#include "runtime/screen/conversions.h"

namespace korvantes::office {

namespace {

// The runtime's numbers.
constexpr long kInvalidArgument = 5;
constexpr long kNoSuchMember = 438;
constexpr long kWrongArguments = 450;

constexpr const char* kListTitle = "Albaranes de la liquidación";
constexpr const char* kGridTitle = "Listado";

[[noreturn]] void refuseMember(std::string_view name) {
  throw ado::Error(kNoSuchMember,
                   "La hoja de cálculo no tiene el miembro «" + std::string(name) + "»");
}

[[noreturn]] void refuseArguments(const std::string& wanted) {
  throw ado::Error(kWrongArguments, wanted);
}

template <class T>
const T& controlIn(const Argument& argument, screen::Control::Kind kind, const char* wanted) {
  const auto* control = std::get_if<screen::Control*>(&argument);
  if (control == nullptr || *control == nullptr || (*control)->kind() != kind)
    refuseArguments(wanted);
  return static_cast<const T&>(**control);
}

}  // namespace

void Spreadsheet::set(std::string_view property, const Argument& value) {
  if (!ado::sameName(property, "sTitulo")) refuseMember(property);
  const auto* title = std::get_if<ado::Variant>(&value);
  if (title == nullptr) refuseArguments("El título de la hoja de cálculo tiene que ser un texto");
  title_ = screen::CStr(*title);
}

ado::Variant Spreadsheet::call(std::string_view method, const std::vector<Argument>& arguments) {
  if (ado::sameName(method, "ListToExcel")) {
    if (arguments.size() != 1) refuseArguments("ListToExcel espera una lista");
    listToExcel(arguments[0]);
  } else if (ado::sameName(method, "GridToExcel")) {
    if (arguments.size() != 2)
      refuseArguments("GridToExcel espera un conjunto de registros y una cuadrícula");
    gridToExcel(arguments[0], arguments[1]);
  } else {
    refuseMember(method);
  }
  return {};
}

void Spreadsheet::listToExcel(const Argument& list) const {
  const auto& view = controlIn<screen::ListView>(list, screen::Control::Kind::ListView,
                                                 "ListToExcel espera una lista");
  deliver(ListTable(view, screen::currentRegional()), title_.empty() ? kListTitle : title_);
}

void Spreadsheet::gridToExcel(const Argument& rows, const Argument& grid) const {
  const auto* recordset = std::get_if<ado::Recordset>(&rows);
  if (recordset == nullptr)
    refuseArguments("GridToExcel espera un conjunto de registros en primer lugar");
  const auto& shown = controlIn<screen::DataGrid>(
      grid, screen::Control::Kind::DataGrid, "GridToExcel espera una cuadrícula en segundo lugar");
  deliver(GridTable(*recordset, shown), title_.empty() ? kGridTitle : title_);
}

void Spreadsheet::deliver(const SheetTable& table, const std::string& title) const {
  if (table.rows() > kMostRows) {
    throw ado::Error(kInvalidArgument, "Una hoja de cálculo admite " + std::to_string(kMostRows) +
                                           " filas y el listado tiene " +
                                           std::to_string(table.rows()) + "; acote la búsqueda");
  }
  const auto place = outlet_->fileFor(fileNameFor(title));
  if (!place) return;
  SheetFile file(*place);
  writeWorkbook(table, title, file.draft(), file.folder(), *place);
  file.commit();
  outlet_->written(*place, table.rows());
}

}  // namespace korvantes::office
