// The report and the spreadsheet of the last result.
#include "component/mdoKORVANTES.h"
#include "outside/office/objects.h"
#include "report/frmLiquidAgentes.h"
#include "runtime/screen/desktop.h"

namespace korvantes {

namespace {

constexpr const char* kInforme = "marzenes.MZPrint";
constexpr const char* kHoja = "BELTRIS.bSheets";
constexpr int kInformeLiquidaciones = 12;

constexpr int kPunteroNormal = 0, kPunteroOcupado = 13;

/// Disables the form and shows the busy pointer for its lifetime, so that a failure of the report
/// undoes both.
class Ocupada {
 public:
  explicit Ocupada(screen::Form& form) : form_(form) {
    form_.Enabled = false;
    screen::Desktop::current().mousePointer(kPunteroOcupado);
  }
  ~Ocupada() {
    screen::Desktop::current().mousePointer(kPunteroNormal);
    form_.Enabled = true;
  }
  Ocupada(const Ocupada&) = delete;
  Ocupada& operator=(const Ocupada&) = delete;

 private:
  screen::Form& form_;
};

}  // namespace

std::string frmLiquidAgentes::textoRango() const {
  const std::string& sDesde = Text1(kDesde).Text();
  const std::string& sHasta = Text1(kHasta).Text();
  return (sDesde.empty() ? "Primera" : sDesde) + " y " + (sHasta.empty() ? "Ultima" : sHasta);
}

void frmLiquidAgentes::cmdEmision_Click() {
  sSqlLiqui = sCriterio;
  const std::string sRango = textoRango();
  if (!rs.isOpen() || rs.RecordCount() == 0) return;

  const Ocupada ocupada(*this);
  auto oInforme = office::CreateObject(kInforme);
  oInforme->set("sAcotacion1", ado::Variant("Entre las fechas de liquidación " + sRango));
  oInforme->set("MyBd", mdoKORVANTES::MyBd());
  if (Check1(kPorAlbaranes).Value() == 0) {
    const office::Omitted omitido;
    oInforme->call("ShowReport", {ado::Variant(kInformeLiquidaciones), ado::Variant(""),
                                  ado::Variant(0), omitido, omitido, omitido, omitido, rs});
  } else {
    oInforme->call("ShowReport",
                   {ado::Variant(kInformeLiquidaciones), ado::Variant(sSqlLiqui), ado::Variant(0)});
  }
  oInforme.reset();
  screen::Desktop::current().mousePointer(kPunteroNormal);
  screen::DoEvents();
}

void frmLiquidAgentes::cmdExcel_Click() {
  const auto oHoja = office::CreateObject(kHoja);
  oHoja->set("sTitulo", ado::Variant("Informe de Liquidación de comisiones a Agentes"));
  oHoja->call("GridToExcel", {rs, &dbgLiqui});
}

}  // namespace korvantes
