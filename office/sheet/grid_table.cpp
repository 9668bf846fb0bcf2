#include "office/sheet/grid_table.h"

#include <algorithm>
#include <string_view>

#include "runtime/ado/error.h"
#include "runtime/ado/text_order.h"

namespace korvantes::office {

namespace {

/// The runtime's number for an invalid argument.
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

/// "Lca" of "Lca_Base": the table of a field. Empty for a computed field.
std::string_view tableOf(const ado::FieldDefinition& field) {
  const std::string_view name = field.name;
  const std::size_t end = name.find('_');
  return end == name.npos ? std::string_view() : name.substr(0, end);
}

/// Whether a field of one table may repeat in several rows, because the rows also differ by the key
/// of another: the gross amount of an invoice in the rows of each settlement that it is in.
bool repeats(const ado::FieldDefinition& field,
             const std::vector<ado::FieldDefinition>& definitions) {
  const std::string_view table = tableOf(field);
  return !table.empty() &&
         std::any_of(definitions.begin(), definitions.end(), [&](const auto& other) {
           const std::string_view name = other.name, owner = tableOf(other);
           return !owner.empty() && ado::sameName(name.substr(owner.size()), "_Id") &&
                  !ado::sameName(owner, table);
         });
}

SheetColumn described(const ado::FieldDefinition& field, const screen::DataGrid::Column& shown,
                      bool repeated) {
  SheetColumn column{shown.Caption,      shown.Width, shown.TextAlignment,
                     kindOf(field.type), {},          false};
  if (column.kind == SheetColumn::Kind::Date) column.format = dateFormat(shown.NumberFormat);
  if (column.kind != SheetColumn::Kind::Number) return column;
  column.format = numberFormat(shown.NumberFormat);
  // Whole numbers are codes; exact numbers without a format may be rates as well as amounts.
  const bool amount = field.type == ado::FieldType::Currency ||
                      (field.type != ado::FieldType::Integer && column.format.places > 0);
  column.totalled = amount && !repeated && !isPercentage(shown.Caption);
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
    columns_.push_back(
        described(definitions[field], shown, repeats(definitions[field], definitions)));
    fields_.push_back(field);
  }
  if (columns_.empty())
    throw ado::Error(kInvalidArgument, "La cuadrícula no tiene columnas que exportar");
}

}  // namespace korvantes::office
