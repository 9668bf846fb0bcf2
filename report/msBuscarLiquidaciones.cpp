#include "component/mdoKORVANTES.h"
#include "report/frmLiquidAgentes.h"
#include "report/merged_invoices.h"
#include "report/result_columns.h"
#include "runtime/screen/conversions.h"
#include "runtime/screen/desktop.h"

namespace korvantes {

namespace {

constexpr const char* kSinTotal = "Total Base Liquidacion:";
constexpr const char* kMascaraTotal = "#,###,###,##0.00";

}  // namespace

bool frmLiquidAgentes::compruebaFechas() {
  struct Limite {
    int index;
    const char* aviso;
  };
  for (const Limite& limite : {Limite{kDesde, "La fecha «Desde F.Liquidac.» no es válida"},
                               Limite{kHasta, "La fecha «Hasta F.Liquidac.» no es válida"}}) {
    const std::string& sFecha = Text1(limite.index).Text();
    if (sFecha.empty() || screen::IsDate(sFecha)) continue;
    avisaEn(Text1(limite.index), limite.aviso, screen::style::Exclamation, sTituloForm);
    return false;
  }
  return true;
}

void frmLiquidAgentes::retiraResultado() {
  cmdEmision.Enabled = false;
  cmdExcel.Enabled = false;
  lblTotales.Caption = kSinTotal;
  rs = ado::Recordset();
  dbgLiqui.DataSource(rs);
}

report::Filtros frmLiquidAgentes::filtros() const {
  return {nIdAgente,
          Text1(kDesde).Text(),
          Text1(kHasta).Text(),
          Text1(kSerie).Text(),
          Text1(kDesdeNumero).Text(),
          Text1(kHastaNumero).Text()};
}

report::Forma frmLiquidAgentes::forma() const {
  if (Check1(kPorFacturas).Value() == 0) return report::Forma::Resumen;
  return Check1(kPorAlbaranes).Value() == 0 ? report::Forma::Factura : report::Forma::Albaran;
}

void frmLiquidAgentes::msBuscarLiquidaciones() {
  if (!compruebaFechas()) return;
  // From here on a failure leaves no result, rather than the rows of other filters.
  retiraResultado();

  const std::string sFiltro = report::filtroDe(filtros());
  sSqlLiqui = report::sentenciaTotal(sFiltro);
  rs = mdoKORVANTES::Conexion().Execute(sSqlLiqui);
  const ado::Variant& suma = rs.Collect("SumaLiquidacion");
  lblTotales.Caption = "Total Base Liquidacion: " +
                       screen::Format(suma.isNull() ? ado::Variant(0) : suma, kMascaraTotal) + " €";
  sCriterio = sFiltro;
  rs = ado::Recordset();

  const bool bPorFecha = Option1(kPorFecha).Value();
  switch (forma()) {
    case report::Forma::Resumen:
      sSqlLiqui = report::sentenciaResumen(sFiltro, report::kOrdenResumen);
      sCriterio = sSqlLiqui;
      rs = mdoKORVANTES::Conexion().Execute(sSqlLiqui);
      break;
    case report::Forma::Albaran:
      sSqlLiqui = report::sentenciaDetalle(forma(), bPorFecha, sFiltro);
      sCriterio = sSqlLiqui;
      rs = mdoKORVANTES::Conexion().Execute(sSqlLiqui);
      break;
    case report::Forma::Factura:
      sSqlLiqui = report::sentenciaDetalle(forma(), bPorFecha, sFiltro);
      rs = report::facturasDe(mdoKORVANTES::Conexion().Execute(sSqlLiqui), bPorFecha, *oUtil);
      break;
  }
  const bool bResultado = rs.isOpen();
  if (!bResultado) rs = mdoKORVANTES::Conexion().Execute(report::kSentenciaVacia);

  dbgLiqui.DataSource(rs);
  if (rs.isEOF()) {
    screen::MsgBox("No existen liquidaciones entre los datos seleccionados",
                   screen::style::Information, sTituloForm);
    return;
  }
  cmdExcel.Enabled = true;
  if (Check1(kPorFacturas).Value() == 1) cmdEmision.Enabled = Check1(kPorAlbaranes).Value() == 0;
  report::setUpColumns(dbgLiqui, forma(), bPorFecha);
  dbgLiqui.SetFocus();
}

}  // namespace korvantes
