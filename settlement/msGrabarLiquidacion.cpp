#include <memory>
#include <stdexcept>

#include "component/mdoKORVANTES.h"
#include "runtime/ado/transaction.h"
#include "runtime/screen/conversions.h"
#include "runtime/screen/desktop.h"
#include "settlement/frmNewLiquidAgentes.h"

namespace korvantes {

namespace {

constexpr const char* kLiberaCav = "Update Cav set Cav_IdLca = Null ";
constexpr const char* kWhereIdLca = "where Cav_IdLca = ";
constexpr const char* kBorraLcd = "delete from Lcd where Lcd_IdLca=";
constexpr const char* kBorraLca = "delete from Lca where Lca_Id=";
constexpr const char* kUltimaLca = "Select max(Lca_id) from Lca";
constexpr const char* kMarcaCav = "Update Cav set Cav_IdLca = ";
constexpr const char* kWhereCav = "where cav_id = ";

constexpr const char* kAlbaranesDe = "Select Lcd_IdCav from Lcd where Lcd_IdLca = ";
constexpr const char* kLiquidacionDe = "Select Lcd_IdLca from Lcd where Lcd_IdCav = ";

constexpr const char* kSalto = "\r\n";

constexpr int kDecimales = 2;

/// A failure inside the transaction of a save, in the words that the user gets.
class FalloAlGrabar : public std::runtime_error {
 public:
  FalloAlGrabar(const std::string& que, const std::string& porQue)
      : std::runtime_error(que + kSalto + porQue) {}
};

void aviso(screen::Form& form, const std::string& texto, int style = screen::style::Critical,
           std::string_view title = screen::Desktop::kDefaultTitle) {
  form.Tag = "e";
  screen::MsgBox(texto, style, title);
}

/// Who has the delivery note of a row, where a settlement of another user has it.
std::string yaLiquidado(ado::Connection& conexion, const screen::ListView::ListItem& fila) {
  try {
    const ado::Recordset rsLcd = conexion.Execute(kLiquidacionDe + fila.Tag);
    if (rsLcd.isEOF()) return "";
    return std::string(kSalto) + "El albarán " + fila.cell(3) + " ya está en la liquidación " +
           screen::CStr(rsLcd.Collect("Lcd_IdLca")) + ".";
  } catch (const std::exception&) {
    return "";
  }
}

}  // namespace

void frmNewLiquidAgentes::cmdGrabar_Click() {
  msGrabarLiquidacion();
}

void frmNewLiquidAgentes::msGrabarLiquidacion() {
  const std::shared_ptr<plindor::BaseDatos> oDb = mdoKORVANTES::MyBd();
  const std::int32_t nLiquiAnterior = nLiqui;
  std::optional<ado::Transaction> transaccion;
  std::int32_t nNueva = 0;
  try {
    if (!compruebaLiquidacion()) return;
    transaccion.emplace(oDb->Conexion());
    // What was never on the screen is not removed.
    if (nLiqui > 0 && bCargada) borraLiquidacionAnterior(oDb->Conexion());
    nLiqui = 0;
    if (hayMarcadas()) nNueva = escribeLiquidacion(*oDb);
    transaccion->commit();
  } catch (const std::exception& fallo) {
    // What was stored stands as before, so the next save replaces the same settlement.
    nLiqui = nLiquiAnterior;
    std::string texto = fallo.what();
    if (!dynamic_cast<const FalloAlGrabar*>(&fallo))
      texto = std::string("Error grabando la liquidacion:") + kSalto + texto;
    if (transaccion) texto += mdoKORVANTES::deshaz(*transaccion);
    aviso(*this, texto);
    return;
  }
  bCargada = false;

  if (Check3.Value() == 1) {
    imprimeLiquidacion(nNueva);
  } else {
    Tag = "r";
    screen::MsgBox("Proceso de liquidacion de comisiones a agentes concluido satisfactoriamente",
                   screen::style::Information);
  }
  cmdCancelar_Click();
}

bool frmNewLiquidAgentes::compruebaLiquidacion() {
  if (nLiqui <= 0 && !hayMarcadas()) {
    aviso(*this, "No ha marcado facturas para liquidar", screen::style::Critical, sTituloForm);
    return false;
  }
  screen::TextBox& fecha = Text1(2);
  const auto rechaza = [&](const char* texto) {
    aviso(*this, texto);
    fecha.SetFocus();
    return false;
  };
  if (fecha.Text().empty()) return rechaza("Es necesario introducir una fecha para la liquidacion");
  const std::optional<ado::Date> dia = screen::toDate(fecha.Text());
  if (!dia) return rechaza("Es necesario introducir una fecha valida para la liquidacion");
  if (ado::Moment{*dia, 0} > screen::Desktop::current().now())
    return rechaza("La fecha de la liquidacion no puede ser superior a la actual");
  return (!hayMarcadas() || confirmaAgente()) && (!bCargada || confirmaAlbaranesOcultos());
}

// The list belongs to the agent that was searched or loaded, while F1 can put another one on the
// screen at any time.
bool frmNewLiquidAgentes::confirmaAgente() {
  const std::optional<std::int32_t> nAgente = codigoDe(Text1(0).Text());
  if (!nAgente) {
    avisaCodigoNoValido();
    return false;
  }
  if (*nAgente == nAgenteLista) return true;
  Tag = "e";
  return screen::MsgBox(
             "Las facturas de la lista son del agente " + std::to_string(nAgenteLista) +
                 " y la liquidación va a ser del agente " + Text1(0).Text() + " (" +
                 Text1(1).Text() + "). ¿Desea guardarla así?",
             screen::style::Exclamation | screen::style::YesNo | screen::style::DefaultSecond,
             sTituloForm) == screen::Answer::Yes;
}

// A delivery note that has lost its invoice or its customer belongs to the settlement, but the list
// cannot show it, and the save keeps what is listed.
bool frmNewLiquidAgentes::confirmaAlbaranesOcultos() {
  const std::size_t nAlbaranes =
      mdoKORVANTES::Conexion().Execute(kAlbaranesDe + std::to_string(nLiqui)).RecordCount();
  if (nAlbaranes <= ListView1.Count()) return true;
  Tag = "e";
  return screen::MsgBox(
             "Albaranes de la liquidación que no aparecen en la lista, porque han perdido su "
             "factura o su cliente: " +
                 std::to_string(nAlbaranes - ListView1.Count()) +
                 ". Al guardarla dejarán de estar en ella, y los importes quedarán como se ven. "
                 "¿Desea guardarla así?",
             screen::style::Exclamation | screen::style::YesNo | screen::style::DefaultSecond,
             sTituloForm) == screen::Answer::Yes;
}

bool frmNewLiquidAgentes::hayMarcadas() const {
  for (std::size_t row = 0; row < ListView1.Count(); ++row)
    if (ListView1.item(row).Checked) return true;
  return false;
}

void frmNewLiquidAgentes::borraLiquidacionAnterior(ado::Connection& conexion) {
  const std::string sLiqui = std::to_string(nLiqui);
  conexion.Execute(std::string(kLiberaCav) + kWhereIdLca + sLiqui);
  conexion.Execute(kBorraLcd + sLiqui);
  long long nBorradas = 0;
  conexion.Execute(kBorraLca + sLiqui, &nBorradas);
  if (nBorradas == 0)
    throw FalloAlGrabar("La liquidación " + sLiqui + " ya no existe:",
                        "otro usuario la ha cambiado o eliminado. Cierre y vuelva a buscarla.");
}

std::int32_t frmNewLiquidAgentes::escribeLiquidacion(plindor::BaseDatos& oDb) {
  insertaCabecera(oDb);
  const std::int32_t nNueva =
      oDb.Conexion().Execute(kUltimaLca).Fields(std::size_t{0}).Value().asLong();
  for (std::size_t row = 0; row < ListView1.Count(); ++row) {
    const screen::ListView::ListItem& fila = ListView1.item(row);
    if (fila.Checked) insertaDetalle(oDb, nNueva, fila);
  }
  return nNueva;
}

void frmNewLiquidAgentes::insertaCabecera(plindor::BaseDatos& oDb) {
  using plindor::ListaCampos;
  const std::string& sHastaFecha = Text1(4).Text();
  std::string sError;
  oDb.LimpiaSentencia(0);
  oDb.Tabla = "Lca";
  ListaCampos& campos = oDb.Campos;
  campos.AgregaCampo("Lca_IdAg", ListaCampos::Entero, Text1(0).Text(), kDecimales);
  if (sHastaFecha.empty())
    campos.AgregaCampo("Lca_HFecha", ListaCampos::Literal, "Null", kDecimales);
  else
    campos.AgregaCampo("Lca_HFecha", ListaCampos::Fecha, sHastaFecha, kDecimales);
  campos.AgregaCampo("Lca_Cob", ListaCampos::Entero, Check1.Value(), kDecimales);
  campos.AgregaCampo("Lca_NCob", ListaCampos::Entero, Check2.Value(), kDecimales);
  campos.AgregaCampo("Lca_Fecha", ListaCampos::Fecha, Text1(2).Text(), kDecimales);
  campos.AgregaCampo("Lca_IdTiva", ListaCampos::Entero, nIdTiva, kDecimales);
  campos.AgregaCampo("Lca_Obs", ListaCampos::Texto, Text1(7).Text(), kDecimales);
  campos.AgregaCampo("Lca_Base", ListaCampos::Doble, numeroEn(10), kDecimales);
  campos.AgregaCampo("Lca_PorIva", ListaCampos::Doble, numeroEn(3), kDecimales);
  campos.AgregaCampo("Lca_Iva", ListaCampos::Doble, numeroEn(9), kDecimales);
  campos.AgregaCampo("Lca_PorRetencion", ListaCampos::Doble, numeroEn(11), kDecimales);
  campos.AgregaCampo("Lca_Retencion", ListaCampos::Doble, numeroEn(12), kDecimales);
  campos.AgregaCampo("Lca_Total", ListaCampos::Doble, numeroEn(8), kDecimales);
  oDb.Condicion = "";
  if (!oDb.InsertaFila(sError)) throw FalloAlGrabar("Error registrando liquidacion:", sError);
}

void frmNewLiquidAgentes::insertaDetalle(plindor::BaseDatos& oDb, std::int32_t nNueva,
                                         const screen::ListView::ListItem& fila) {
  using plindor::ListaCampos;
  const std::int32_t nIdCav = screen::CLng(fila.Tag);
  std::string sError;
  oDb.LimpiaSentencia(0);
  oDb.Tabla = "Lcd";
  oDb.Campos.AgregaCampo("Lcd_IdLca", ListaCampos::Entero, nNueva, kDecimales);
  oDb.Campos.AgregaCampo("Lcd_IdCav", ListaCampos::Entero, nIdCav, kDecimales);
  oDb.Condicion = " ";
  if (!oDb.InsertaFila(sError))
    throw FalloAlGrabar("Error registrando relacion liquidacion/factura:",
                        sError + yaLiquidado(oDb.Conexion(), fila));

  try {
    long long nMarcadas = 0;
    oDb.Conexion().Execute(kMarcaCav + std::to_string(nNueva) + kWhereCav + fila.Tag, &nMarcadas);
    if (nMarcadas != 1) throw std::runtime_error("El albarán " + fila.cell(3) + " ya no existe.");
  } catch (const std::exception& fallo) {
    throw FalloAlGrabar("Error actualizando facturas liquidadas:", fallo.what());
  }
}

void frmNewLiquidAgentes::imprimeLiquidacion(std::int32_t nNueva) {
  try {
    muestraInforme(nNueva);
  } catch (const std::exception& fallo) {
    // It is stored: the screen is emptied as after a success, or it would be saved twice.
    aviso(*this,
          std::string("La liquidacion se ha guardado, pero no se ha podido imprimir:") + kSalto +
              fallo.what(),
          screen::style::Exclamation);
  }
}

}  // namespace korvantes
