// Positions and appearance of the agents' screen. Twips.
#include "agents/fields.h"
#include "agents/frmAgentes.h"
#include "component/appearance.h"

namespace korvantes {

using namespace agents;
using namespace appearance;

namespace {

using screen::Alignment;
using screen::Box;
using screen::Color;

constexpr Color kPanel = screen::rgb(234, 202, 117);
constexpr Color kYellow = screen::rgb(255, 255, 0);

struct LabelRow {
  int index;
  const char* caption;
  int left, top, width;
};

constexpr int kLabelHeight = 195;

// Each is above its field. They come after the tab stops in tab order.
constexpr LabelRow kLabels[] = {
    {5, "Código", 240, 240, 1215},
    {3, "Nombre ", 1560, 240, 7215},
    {4, "Doc. (CIF - NIF)", 240, 840, 1575},
    {0, "Dirección ", 2040, 840, 6735},
    {2, "Cod. Postal ", 240, 1440, 1575},
    {1, "Población ", 2040, 1440, 6735},
    {21, "Provincia", 120, 2040, 4815},
    {23, "Pais", 5160, 2040, 3615},
    {7, "Telf. Fijo ", 240, 2640, 1575},
    {8, "Telf. Movil", 2040, 2640, 1575},
    {9, "Email", 3840, 2640, 4935},
    {11, "Fax", 120, 3240, 1695},
    {6, "% Comisión por defecto", 1920, 3240, 2655},
    {10, "Regimen Fiscal", 4680, 3240, 3975},
};
constexpr int kFirstLabelTab = 25;

struct TextRow {
  int index;
  Box box;
  int tabIndex;
  int maxLength;
};

constexpr TextRow kTexts[] = {
    {kCodigo, {120, 480, 1335, 285}, 0, 8},        {kNombre, {1560, 480, 7215, 285}, 1, 100},
    {kNif, {120, 1080, 1695, 285}, 2, 25},         {kDireccion, {1920, 1080, 6855, 285}, 3, 100},
    {kCodigoPostal, {120, 1680, 1695, 285}, 4, 8}, {kPoblacion, {1920, 1680, 6855, 285}, 5, 40},
    {kTelefono, {120, 2880, 1695, 285}, 8, 25},    {kMovil, {1920, 2880, 1695, 285}, 9, 25},
    {kEmail, {3720, 2880, 5055, 285}, 10, 100},    {kFax, {120, 3480, 1695, 285}, 11, 25},
    {kComision, {2520, 3480, 735, 285}, 12, 6},
};

void setUpCombo(screen::ComboBox& combo, screen::Frame& frame, const Box& box, int tabIndex) {
  combo.container(&frame);
  combo.place(box);
  combo.TabIndex = tabIndex;
  combo.TextFont = kRegular;
}

}  // namespace

void frmAgentes::layOut() {
  Caption = "Agentes Comerciales";
  Width = 12015;
  Height = 7500;
  BackColor = kPaper;
  KeyPreview = true;

  setUpFrame(Frame3, "Listado de Agentes", {0, 15, 12015, 3015}, 23, kPaper);
  setUpFrame(Frame2, "Imagen del Agente", {9000, 3030, 2895, 3480}, 20, kPaper);
  setUpFrame(Frame1, "Datos Generales", {0, 3030, 8895, 4455}, 19, kPanel);

  dboOper.container(&Frame3);
  dboOper.place({120, 240, 11775, 2670});
  dboOper.TabIndex = 24;
  dboOper.TextFont = kRegular;

  int tabIndex = kFirstLabelTab;
  for (const LabelRow& row : kLabels) {
    screen::Label& label = Label1(row.index);
    label.container(&Frame1);
    label.Caption = row.caption;
    label.place({row.left, row.top, row.width, kLabelHeight});
    label.TabIndex = tabIndex++;
    label.TextFont = kRegular;
    label.ForeColor = kNavy;
  }
  LblCodigo.container(&Frame1);
  LblCodigo.Caption = "NUEVO";
  LblCodigo.place({120, 480, 1335, 255});
  LblCodigo.TabIndex = tabIndex;
  LblCodigo.TextFont = kBold;
  LblCodigo.BackColor = kYellow;
  LblCodigo.Transparent = false;
  LblCodigo.TextAlignment = Alignment::Center;
  LblCodigo.Visible = false;

  for (const TextRow& row : kTexts) {
    screen::TextBox& text = txtFields(row.index);
    text.container(&Frame1);
    text.place(row.box);
    text.MaxLength = row.maxLength;
    text.TabIndex = row.tabIndex;
    text.TextFont = kRegular;
    text.ForeColor = kNavy;
  }
  txtFields(kCodigo).TextAlignment = Alignment::Center;
  txtFields(kComision).TextAlignment = Alignment::Center;
  txtFields(kComision).Text = "0,00";

  setUpCombo(cboProvincias, Frame1, {120, 2280, 4815, 315}, 6);
  setUpCombo(cboPais, Frame1, {5040, 2280, 3735, 315}, 7);
  setUpCombo(cboRegFiscal, Frame1, {4680, 3480, 3975, 315}, 13);
  cboRegFiscal.Editable = true;
  cboRegFiscal.Text = "Combo1";

  imgAgente.container(&Frame2);
  imgAgente.place({120, 240, 2655, 2580});
  for (screen::PictureButton* button : {&cmdImagen, &cmdGuardarImagen}) button->container(&Frame2);
  cmdImagen.setUp("Seleccionar Imagen", "imagen", {120, 2895, 1575, 495}, 21);
  cmdGuardarImagen.setUp("Guardar", "guardar", {1800, 2895, 975, 495}, 22);

  XPBorrar.setUp("&Eliminar", "borrar", {120, 7005, 2775, 375}, 18);
  cmdNuevo.setUp("&Nuevo", "nuevo", {3000, 7005, 2895, 375}, 15);
  cmdCancelar.setUp("&Cancelar", "cancelar", {3000, 7005, 2895, 375}, 16);
  cmdSalvar.setUp("&Salvar datos", "guardar", {6000, 7005, 2775, 375}, 14);
  cmdSalir.setUp("&Salir", "salir", {8985, 6720, 2910, 645}, 17);
  for (screen::PictureButton* button : {&cmdNuevo, &cmdCancelar, &cmdSalir})
    button->TabStop = false;

  cmdDialogo.Visible = false;
}

}  // namespace korvantes
