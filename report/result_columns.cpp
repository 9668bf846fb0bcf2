// The columns that the grid shows of each result. Widths in twips.
#include "report/result_columns.h"

namespace korvantes::report {

namespace {

using screen::Alignment;

struct ColumnRow {
  std::size_t position;
  const char* caption;
  int width;
  Alignment alignment = Alignment::Left;
  const char* numberFormat = "";
  bool button = false;
};

constexpr ColumnRow kSummary[] = {
    {1, "Agente", 6900},
    {2, "Fecha Liquidacion", 1800, Alignment::Center, "", true},
    {3, "Base", 1300, Alignment::Right, "0.00"},
    {4, "Iva", 1300, Alignment::Right, "0.00"},
    {5, "Retencion", 1300, Alignment::Right, "0.00"},
    {6, "Total", 1300, Alignment::Right, "0.00"},
};

constexpr ColumnRow kByInvoice[] = {
    {2, "Agente", 4000},
    {3, "F.Liquidac.", 1100, Alignment::Center, "", true},
    {7, "Base", 1100, Alignment::Right, "##,##0.00 "},
    {8, "Comision", 900, Alignment::Right, "##,##0.00 "},
    {9, "  %", 700, Alignment::Right, "##0.00 "},
};

constexpr ColumnRow kByNote[] = {
    {2, "Agente", 2700},
    {3, "F.Liquidac.", 1100, Alignment::Center, "", true},
    {18, "Albaran", 900, Alignment::Right, "#,##0.00 "},
    {19, "Descripcion", 2000},
    {20, "Importe", 900, Alignment::Right, "#,##0.00 "},
    {21, "%", 700, Alignment::Center, "#0.00"},
    {22, "Comision", 800, Alignment::Right, "#,##0.00 "},
};

// Positions 4 to 6 of both detail shapes, by the order of the rows.
constexpr ColumnRow kInvoiceFirst[] = {
    {4, "Factura", 1000},
    {5, "F.Factura", 1100, Alignment::Center},
};
constexpr std::size_t kCustomerBehind = 6;
constexpr ColumnRow kInvoiceBehind[] = {
    {5, "Factura", 1000},
    {6, "F.Factura", 1100, Alignment::Center},
};
constexpr std::size_t kCustomerFirst = 4;
constexpr int kCustomerByInvoice = 3800, kCustomerByNote = 2500;

void show(screen::DataGrid& grid, const ColumnRow& row) {
  screen::DataGrid::Column& column = grid.Columns(row.position);
  column.Caption = row.caption;
  column.Width = row.width;
  column.TextAlignment = row.alignment;
  column.NumberFormat = row.numberFormat;
  column.Button = row.button;
  column.Visible = true;
}

template <std::size_t N>
void show(screen::DataGrid& grid, const ColumnRow (&rows)[N]) {
  for (const ColumnRow& row : rows) show(grid, row);
}

void showDetail(screen::DataGrid& grid, bool bPorFecha, int customerWidth) {
  show(grid, bPorFecha ? kInvoiceFirst : kInvoiceBehind);
  show(grid, {bPorFecha ? kCustomerBehind : kCustomerFirst, "Cliente", customerWidth});
}

}  // namespace

void setUpColumns(screen::DataGrid& grid, Forma forma, bool bPorFecha) {
  for (std::size_t position = 0; position < grid.ColumnCount(); ++position)
    grid.Columns(position).Visible = false;
  switch (forma) {
    case Forma::Resumen:
      show(grid, kSummary);
      break;
    case Forma::Factura:
      show(grid, kByInvoice);
      showDetail(grid, bPorFecha, kCustomerByInvoice);
      break;
    case Forma::Albaran:
      show(grid, kByNote);
      showDetail(grid, bPorFecha, kCustomerByNote);
      break;
  }
  grid.columnsChanged();
}

}  // namespace korvantes::report
