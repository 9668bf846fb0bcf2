#include "office/sheet/grid_table.h"

#include "runtime/ado/error.h"

namespace korvantes::office {

namespace {

/// The runtime's number for an argument of no use.
constexpr long kInvalidArgument = 5;

SheetColumn::Kind kindOf(ado::FieldType type) {
  switch (type) {
    case ado::FieldType::Date:
      return SheetColumn::Kind::Date;
    case ado::FieldType::Integer:
    case ado::FieldType::Double:
    case ado::FieldType::Currency:
    case ado::FieldType::Numeric:
      return SheetColumn::Kind::Number;
    case ado::FieldType::Boolean:
    case ado::FieldType::VarChar:
    case ado::FieldType::LongVarBinary:
      break;
  }
  return SheetColumn::Kind::Text;
}

SheetColumn described(const ado::FieldDefinition& field, const screen::DataGrid::Column& shown) {
  SheetColumn column{shown.Caption,      shown.Width, shown.TextAlignment,
                     kindOf(field.type), {},          false};
  if (column.kind == SheetColumn::Kind::Date) column.format = dateFormat(shown.NumberFormat);
  if (column.kind != SheetColumn::Kind::Number) return column;
  column.format = numberFormat(shown.NumberFormat);
  // Whole numbers are codes; exact numbers that nobody formatted are as often rates as amounts.
  const bool amount = field.type == ado::FieldType::Currency ||
                      (field.type != ado::FieldType::Integer && column.format.places > 0);
  column.totalled = amount && !isPercentage(shown.Caption);
  return column;
}

}  // namespace

GridTable::GridTable(const ado::Recordset& rows, const screen::DataGrid& grid)
    : rows_(rows.Clone()) {
  const std::vector<ado::FieldDefinition>& definitions = rows_.definitions();
  const bool suits = grid.ColumnCount() == definitions.size();
  for (std::size_t field = 0; field < definitions.size(); ++field) {
    screen::DataGrid::Column shown;
    shown.Caption = definitions[field].name;
    if (suits) shown = grid.Columns(field);
    if (!shown.Visible || shown.Width <= 0) continue;
    columns_.push_back(described(definitions[field], shown));
    fields_.push_back(field);
  }
  if (columns_.empty())
    throw ado::Error(kInvalidArgument, "La cuadrícula no tiene columnas que exportar");
}

}  // namespace korvantes::office
