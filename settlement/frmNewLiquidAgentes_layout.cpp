// Positions (in twips), captions and colours of the settlement screen.
#include "component/appearance.h"
#include "settlement/frmNewLiquidAgentes.h"

namespace korvantes {

using namespace appearance;

namespace {

using screen::Alignment;
using screen::Box;
using screen::Color;
using screen::Font;

constexpr Color kDarkRed = screen::rgb(128, 0, 0);

constexpr Font kAmount{12, true};

struct LabelRow {
  int index;
  const char* caption;
  Box box;
  int tabIndex;
};

// Each is above its field.
constexpr LabelRow kAgentLabels[] = {
    {1, "Codigo", {120, 240, 855, 195}, 8},
    {2, "Nombre (F1 Busqueda alfabetica)", {1080, 240, 5175, 195}, 9},
    {4, "Hasta F.factura", {6480, 240, 1500, 195}, 11},
};
constexpr LabelRow kSettlementLabels[] = {
    {3, "Fecha Liquidación", {240, 360, 1545, 195}, 24},
    {7, "Observaciones", {1800, 360, 7575, 195}, 14},
};
constexpr LabelRow kAmountLabels[] = {
    {10, "Base IVA", {120, 240, 1695, 195}, 15},
    {6, "% IVA", {1920, 240, 735, 195}, 28},
    {9, "Importe IVA", {2760, 240, 1695, 195}, 21},
    {5, "% Reten.", {4680, 240, 825, 195}, 26},
    {12, "Importe Retencion", {5520, 240, 1785, 195}, 22},
    {8, "Total", {7320, 240, 1695, 195}, 23},
};

struct TextRow {
  int index;
  Box box;
  int maxLength;
  int tabIndex;
};

constexpr TextRow kAgentTexts[] = {
    {0, {120, 480, 855, 285}, 6, 0},
    {1, {1080, 480, 5175, 285}, 50, 1},
    {4, {6480, 480, 1335, 285}, 15, 2},
};
constexpr TextRow kSettlementTexts[] = {
    {2, {240, 600, 1335, 285}, 15, 25},
    {7, {1800, 600, 7575, 285}, 100, 13},
};
constexpr TextRow kAmountTexts[] = {
    {10, {120, 480, 1695, 420}, 10, 18},  {3, {1920, 480, 735, 420}, 15, 29},
    {9, {2760, 480, 1695, 420}, 15, 19},  {11, {4680, 480, 735, 420}, 15, 27},
    {12, {5520, 480, 1695, 420}, 15, 17}, {8, {7320, 480, 1695, 420}, 15, 20},
};

struct ColumnRow {
  const char* caption;
  int width;
  Alignment alignment;
};

constexpr ColumnRow kColumns[] = {
    {"Factura", 1440, Alignment::Left},       {"Fecha", 1440, Alignment::Left},
    {"Cliente", 4000, Alignment::Right},      {"Albaran", 1440, Alignment::Left},
    {"Importe", 1701, Alignment::Right},      {"% Comision", 580, Alignment::Right},
    {"Imp.Comision", 1701, Alignment::Right},
};

void setUpFrame(screen::Frame& frame, const char* caption, const Box& box, int tabIndex) {
  appearance::setUpFrame(frame, caption, box, tabIndex, kPaper);
  frame.ForeColor = kDarkRed;
}

template <std::size_t N>
void setUpLabels(const screen::ControlArray<screen::Label>& labels, const LabelRow (&rows)[N],
                 screen::Frame& frame) {
  for (const LabelRow& row : rows) {
    screen::Label& label = labels(row.index);
    label.container(&frame);
    label.Caption = row.caption;
    label.place(row.box);
    label.TabIndex = row.tabIndex;
    label.TextFont = kBold;
    label.ForeColor = kNavy;
  }
}

template <std::size_t N>
void setUpTexts(const screen::ControlArray<screen::TextBox>& texts, const TextRow (&rows)[N],
                screen::Frame& frame, Font font) {
  for (const TextRow& row : rows) {
    screen::TextBox& text = texts(row.index);
    text.container(&frame);
    text.place(row.box);
    text.MaxLength = row.maxLength;
    text.TabIndex = row.tabIndex;
    text.TextFont = font;
  }
}

void setUpCheck(screen::CheckBox& check, screen::Frame& frame, const char* caption, const Box& box,
                int tabIndex, Color background) {
  check.container(&frame);
  check.Caption = caption;
  check.place(box);
  check.TabIndex = tabIndex;
  check.TextFont = kBold;
  check.ForeColor = kNavy;
  check.BackColor = background;
}

}  // namespace

void frmNewLiquidAgentes::layOut() {
  Caption = "Liquidacion de comisiones a Agentes";
  Width = 13755;
  Height = 8490;
  BackColor = kPaper;
  KeyPreview = true;

  setUpFrame(fraAgente, "Datos del Agente", {0, 0, 12735, 855}, 7);
  setUpFrame(Frame1, "Facturas pendientes de liquidar", {0, 960, 13695, 5055}, 10);
  setUpFrame(Frame2, "Datos de la liquidacion", {0, 6120, 13695, 2295}, 12);
  setUpFrame(Frame4, "", {240, 960, 9135, 1095}, 16);
  Frame4.container(&Frame2);
  Frame4.Enabled = false;

  // The heading over the two filters.
  screen::Label& heading = Label1(0);
  heading.container(&fraAgente);
  heading.Caption = "Situacion de cobro de las facturas";
  heading.place({8040, 240, 3135, 540});
  heading.TabIndex = 30;
  heading.TextFont = kBold;
  heading.ForeColor = kDarkRed;
  heading.BackColor = screen::kWindowBackground;
  heading.Transparent = false;
  heading.Bordered = true;
  setUpLabels(Label1, kAgentLabels, fraAgente);
  setUpLabels(Label1, kSettlementLabels, Frame2);
  setUpLabels(Label1, kAmountLabels, Frame4);

  setUpTexts(Text1, kAgentTexts, fraAgente, kRegular);
  setUpTexts(Text1, kSettlementTexts, Frame2, kRegular);
  setUpTexts(Text1, kAmountTexts, Frame4, kAmount);
  for (const TextRow& row : kAmountTexts) {
    Text1(row.index).Locked = true;
    Text1(row.index).ForeColor = kDarkRed;
  }

  setUpCheck(Check1, fraAgente, "Cobradas", {8160, 480, 1215, 255}, 3, screen::kWindowBackground);
  setUpCheck(Check2, fraAgente, "Pendientes", {9600, 480, 1335, 255}, 4, screen::kWindowBackground);
  setUpCheck(Check3, Frame2, "Imprimir liquidación", {9615, 240, 1965, 195}, 31, kPaper);
  Check1.Value = 1;

  cmbBuscarFacturas.container(&fraAgente);
  for (screen::PictureButton* button :
       {&cmdImprime, &cmdExcell, &cmdSelTodo, &cmdCancelar, &cmdBorrar, &cmdGrabar})
    button->container(&Frame2);
  cmbBuscarFacturas.setUp("Iniciar &Búsqueda", "buscar", {11280, 240, 1335, 495}, 5);
  cmdImprime.setUp("&Imprimir Liquidación", "imprimir", {9600, 480, 1935, 495}, 35);
  cmdExcell.setUp("&Exportar a Excel", "hoja", {11640, 480, 1935, 495}, 37);
  cmdSelTodo.setUp("Seleccionar &Todo", "marcar", {9600, 1080, 1935, 495}, 33);
  cmdCancelar.setUp("&Cancelar", "cancelar", {11640, 1080, 1935, 495}, 32);
  // Twice as wide as its neighbours: it covers cmdBorrar until a stored settlement is loaded.
  cmdBorrar.setUp("Borrar Liquidación", "borrar", {11640, 1680, 1935, 495}, 38);
  cmdGrabar.setUp("&Guardar Liquidacion", "guardar", {9600, 1680, 3975, 495}, 34);
  cmdSalir.setUp("&Salir", "salir", {12840, 120, 855, 735}, 39);

  ListView1.container(&Frame1);
  ListView1.place({120, 240, 13455, 4695});
  ListView1.TabIndex = 6;
  ListView1.TextFont = kRegular;
  for (const ColumnRow& column : kColumns)
    ListView1.ColumnHeaders.push_back({column.caption, column.width, column.alignment});
}

}  // namespace korvantes
