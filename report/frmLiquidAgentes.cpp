#include "report/frmLiquidAgentes.h"

#include "component/mdoKORVANTES.h"
#include "runtime/screen/conversions.h"
#include "runtime/screen/desktop.h"
#include "settlement/frmNewLiquidAgentes.h"

namespace korvantes {

namespace {

constexpr int kModal = 1;
constexpr const char* kTeclaEscape = "\x1b";

}  // namespace

frmLiquidAgentes::frmLiquidAgentes()
    : SearchForm("frmLiquidAgentes", Text1, {kDesde, kHasta}),
      Label1(*this, "Label1", {1}),
      Option1(*this, "Option1", {kPorFecha, kPorCliente}),
      Check1(*this, "Check1", {kPorFacturas, kPorAlbaranes}),
      Text1(*this, "Text1",
            {kCodigo, kNombre, kDesde, kHasta, kSerie, kDesdeNumero, kHastaNumero}) {
  for (int index : {0, 2, 4, 5, 7, 8}) Label1.add(index);
  layOut();
  wire();
}

void frmLiquidAgentes::wire() {
  for (const auto& [number, check] : Check1.all())
    check->Click = [this, index = number] { Check1_Click(index); };
  wireBoxes();
  cmdBuscar.Click = [this] { cmdBuscar_Click(); };
  cmdSalir.Click = [this] { cmdSalir_Click(); };
  cmdEmision.Click = [this] { cmdEmision_Click(); };
  cmdExcel.Click = [this] { cmdExcel_Click(); };
  dbgLiqui.ButtonClick = [this](int column) { dbgLiqui_ButtonClick(column); };
}

void frmLiquidAgentes::Form_Load() {
  creaUtil();
  sTituloForm = " Informe de liquidaciones a agentes";
  Caption = sTituloForm + "(Versión " + mdoKORVANTES::version() + ")";
  rs = ado::Recordset();
  for (const auto& [index, box] : Text1.all()) box->Text = "";
  Option1(kPorFecha).Value = true;
  Check1(kPorFacturas).Value = 0;
  Check1(kPorAlbaranes).Value = 0;
  Check1(kPorAlbaranes).Enabled = false;
}

void frmLiquidAgentes::Check1_Click(int index) {
  if (index != kPorFacturas) return;
  const bool bFacturas = Check1(kPorFacturas).Value() != 0;
  Option1(kPorCliente).Enabled = bFacturas;
  if (!bFacturas) Option1(kPorFecha).Value = true;
  Check1(kPorAlbaranes).Enabled = bFacturas;
}

void frmLiquidAgentes::Text1_LostFocus(int index) {
  screen::TextBox& box = Text1(index);
  oUtil->AlPerderFoco(box, "");
  if (box.Text().empty()) {
    if (index == kCodigo) olvidaAgente();
    return;
  }

  if (index == kCodigo) {
    // The key filter lets a decimal separator through.
    const std::optional<std::int32_t> nCodigo = codigoDe(box.Text());
    if (!nCodigo) return avisaCodigoNoValido(sTituloForm);
    msBuscarAgente(*nCodigo);
    if (nIdAgente == 0)
      avisaEn(box, "Codigo agente no existe", screen::style::Exclamation, sTituloForm);
  } else if (esFecha(index)) {
    oUtil->AlPerderFoco(box, "dd/mm/yyyy");
  }
}

void frmLiquidAgentes::cmdBuscar_Click() {
  msBuscarLiquidaciones();
}

void frmLiquidAgentes::cmdSalir_Click() {
  screen::SendKeys(kTeclaEscape);
}

void frmLiquidAgentes::dbgLiqui_ButtonClick(int columnIndex) {
  if (!rs.isOpen() || rs.RecordCount() < 1) return;
  if (columnIndex != 2 && columnIndex != 3) return;
  const bool bFacturas = Check1(kPorFacturas).Value() == 1;
  if (!(columnIndex == 3 && bFacturas) && !(columnIndex == 2 && !bFacturas)) return;

  {
    frmNewLiquidAgentes oFrm;
    oFrm.nLiqui = rs.Collect("Lca_Id").asLong();
    oFrm.Show(kModal);
  }
  // The rows may be out of date, and the search clears nothing if it stops at an invalid date.
  retiraResultado();
  msBuscarLiquidaciones();
  screen::DoEvents();
}

}  // namespace korvantes
