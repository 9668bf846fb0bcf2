// Positions and appearance of the settlement search screen. Twips.
#include "component/appearance.h"
#include "report/frmLiquidAgentes.h"

namespace korvantes {

using namespace appearance;

namespace {

using screen::Alignment;
using screen::Box;
using screen::Color;

constexpr Color kDarkRed = screen::rgb(192, 0, 0);
constexpr screen::Font kTotal{12, true};

struct TextRow {
  int index;
  Box box;
  int tabIndex;
  int maxLength;
  Alignment alignment;
  bool visible;
};

constexpr TextRow kTexts[] = {
    {0, {120, 360, 855, 285}, 0, 6, Alignment::Center, true},
    {1, {1080, 360, 6735, 285}, 4, 50, Alignment::Left, true},
    {2, {7920, 360, 1455, 285}, 1, 10, Alignment::Center, true},
    {3, {9600, 360, 1455, 285}, 2, 10, Alignment::Center, true},
    // These three are never shown.
    {4, {3600, 120, 855, 285}, 15, 4, Alignment::Center, false},
    {5, {4680, 120, 1455, 285}, 16, 10, Alignment::Center, false},
    {6, {6360, 120, 1455, 285}, 17, 10, Alignment::Center, false},
};

struct LabelRow {
  int index;
  const char* caption;
  Box box;
  int tabIndex;
  bool visible;
};

constexpr LabelRow kLabels[] = {
    {4, "Agente  (F1 Buscar agente)", {120, 120, 3255, 195}, 7, true},
    {7, "Desde F.Liquidac.", {7920, 120, 1575, 195}, 6, true},
    {2, "Hasta F.Liquidac.", {9600, 120, 1575, 270}, 5, true},
    {8, "Serie", {3645, -120, 660, 195}, 14, false},
    {5, "Desde Numero", {4680, -120, 1455, 195}, 13, false},
    {0, "Hasta Numero", {6360, -120, 1455, 195}, 12, false},
    {1, "Numero Factura", {840, 360, 1455, 255}, 3, true},
};

/// Caption, position and tab order, which labels, buttons, check boxes and options share.
template <class T>
void setUp(T& control, const char* caption, const Box& box, int tabIndex) {
  control.Caption = caption;
  control.place(box);
  control.TabIndex = tabIndex;
}

template <class T>
void setUpChoice(T& choice, const char* caption, const Box& box, int tabIndex, bool enabled) {
  setUp(choice, caption, box, tabIndex);
  choice.BackColor = kPaper;
  choice.Enabled = enabled;
}

}  // namespace

void frmLiquidAgentes::layOut() {
  Caption = "GESTION LIQUIDACION DE COMISIONES A AGENTES";
  Width = 14580;
  Height = 7710;
  BackColor = kPaper;
  KeyPreview = true;

  Shape1.place({0, 0, 14580, 7695});
  Shape1.BackColor = kPaper;

  for (const TextRow& row : kTexts) {
    screen::TextBox& text = Text1(row.index);
    text.place(row.box);
    text.TabIndex = row.tabIndex;
    text.MaxLength = row.maxLength;
    text.TextAlignment = row.alignment;
    text.Visible = row.visible;
  }
  Text1(kNombre).Locked = true;

  for (const LabelRow& row : kLabels) {
    screen::Label& label = Label1(row.index);
    setUp(label, row.caption, row.box, row.tabIndex);
    label.Visible = row.visible;
  }

  setUp(Frame1, "Informe ordenado por", {120, 720, 5535, 735}, 8);
  Frame1.BackColor = kPaper;
  Frame1.ForeColor = kDarkRed;
  for (const auto& [index, option] : Option1.all()) option->container(&Frame1);
  setUpChoice(Option1(kPorFecha), "Por Agente-Fecha liquidacion", {120, 360, 2895, 200}, 9, true);
  setUpChoice(Option1(kPorCliente), "Por Agente-Cliente", {3120, 360, 1935, 200}, 23, false);
  Option1(kPorFecha).Value = true;

  setUpChoice(Check1(kPorFacturas), "Desglosar por facturas", {5880, 840, 2295, 255}, 20, true);
  setUpChoice(Check1(kPorAlbaranes), "Desglosar por albaranes", {6240, 1080, 2415, 255}, 24, false);

  cmdBuscar.setUp("Iniciar Busqueda", "buscar", {11160, 240, 1575, 495}, 19);
  cmdSalir.setUp("Salir", "salir", {12840, 240, 1575, 495}, 18);
  cmdEmision.setUp("&Emitir Informe", "imprimir", {11160, 840, 1575, 480}, 21);
  cmdExcel.setUp("&Exportar a Excell", "hoja", {12840, 840, 1575, 480}, 25);

  for (screen::PictureButton* button : {&cmdEmision, &cmdExcel}) button->Enabled = false;

  dbgLiqui.place({120, 1560, 14340, 5775});
  dbgLiqui.TabIndex = 10;

  setUp(lblTotales, "Total Base Liquidacion:", {11400, 7320, 3060, 330}, 11);
  lblTotales.TextFont = kTotal;
  lblTotales.ForeColor = kDarkRed;
  setUp(Label2, "Total Liquidación:", {3600, 7320, 2160, 330}, 22);
  Label2.Visible = false;
}

}  // namespace korvantes
