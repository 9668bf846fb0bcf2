#include <memory>

#include "component/mdoKORVANTES.h"
#include "data/settlement_checks.h"
#include "data/settlement_writing.h"
#include "runtime/ado/transaction.h"
#include "runtime/screen/conversions.h"
#include "settlement/frmNewLiquidAgentes.h"

namespace korvantes {

void frmNewLiquidAgentes::cmdGrabar_Click() {
  msGrabarLiquidacion();
}

void frmNewLiquidAgentes::msGrabarLiquidacion() {
  const std::shared_ptr<plindor::BaseDatos> oDb = mdoKORVANTES::MyBd();
  Guardado guardado{nLiqui, 0, nLiqui > 0 && !bCargada, false};
  std::optional<ado::Transaction> transaccion;
  try {
    const Comprobacion comprobacion = compruebaLiquidacion();
    if (!comprobacion.bSigue) return;
    guardado.bEliminar = comprobacion.bEliminar;
    const data::SettlementDraft liquidacion = liquidacionEnPantalla();
    transaccion.emplace(oDb->Conexion());
    if (liquidacion.replaces > 0) data::removeReplaced(oDb->Conexion(), liquidacion.replaces);
    nLiqui = 0;
    if (!liquidacion.notes.empty()) guardado.nNueva = data::writeSettlement(*oDb, liquidacion);
    transaccion->commit();
  } catch (const std::exception& fallo) {
    // Nothing was changed, so the next save replaces the same settlement.
    nLiqui = guardado.nAnterior;
    std::string texto = data::saveFailureWords(fallo);
    if (transaccion) texto += mdoKORVANTES::deshaz(*transaccion);
    avisa(texto, screen::style::Critical);
    return;
  }

  bCargada = false;
  anunciaGuardado(guardado);
  cmdCancelar_Click();
}

frmNewLiquidAgentes::Comprobacion frmNewLiquidAgentes::compruebaLiquidacion() {
  const bool bMarcadas = hayMarcadas();
  const data::SettlementToCheck datos{nLiqui > 0,           bMarcadas,
                                      Text1(kFecha).Text(), screen::Desktop::current().now(),
                                      sFalloTasas,          sFalloImportes};
  if (const std::optional<data::Refusal> rechazo = data::refusalOf(datos)) {
    const std::string sTexto = data::wordsOf(*rechazo, datos);
    if (*rechazo == data::Refusal::NothingMarked)
      avisa(sTexto, screen::style::Critical, sTituloForm);
    else if (data::concernsDate(*rechazo))
      avisaEn(Text1(kFecha), sTexto, screen::style::Critical);
    else
      avisa(sTexto, screen::style::Critical);
    return {};
  }

  const auto confirma = [&](const std::optional<data::Question>& duda) {
    if (!duda) return true;
    Tag = "e";
    return pregunta(duda->words);
  };
  // The list belongs to the agent that was searched or loaded; F1 can put another one on the screen
  // at any time.
  if (bMarcadas) {
    const std::optional<std::int32_t> nAgente = codigoDe(Text1(kCodigo).Text());
    if (!nAgente) {
      avisaCodigoNoValido();
      return {};
    }
    if (!confirma(data::questionAboutAgent(nAgenteLista, *nAgente, Text1(kNombre).Text())))
      return {};
  }
  if (!bCargada) return {true, false};
  const std::optional<data::Question> duda = data::questionAboutHiddenNotes(
      mdoKORVANTES::Conexion(), nLiqui, ListView1.Count(), bMarcadas);
  return {confirma(duda), duda && duda->removes};
}

bool frmNewLiquidAgentes::hayMarcadas() const {
  for (std::size_t row = 0; row < ListView1.Count(); ++row)
    if (ListView1.item(row).Checked) return true;
  return false;
}

data::SettlementDraft frmNewLiquidAgentes::liquidacionEnPantalla() const {
  data::SettlementDraft liquidacion;
  // A settlement that was never on the screen is not removed.
  liquidacion.replaces = bCargada ? nLiqui : 0;
  for (std::size_t row = 0; row < ListView1.Count(); ++row) {
    const screen::ListView::ListItem& fila = ListView1.item(row);
    if (fila.Checked) liquidacion.notes.push_back({screen::CLng(fila.Tag), fila.cell(kColAlbaran)});
  }
  if (liquidacion.notes.empty()) return liquidacion;

  liquidacion.agent = screen::CLng(Text1(kCodigo).Text());
  liquidacion.until = Text1(kHastaFecha).Text();
  liquidacion.collected = Check1.Value() == 1;
  liquidacion.uncollected = Check2.Value() == 1;
  liquidacion.date = Text1(kFecha).Text();
  liquidacion.rateRow = nIdTiva;
  liquidacion.remarks = Text1(kObservaciones).Text();
  liquidacion.vatPercent = exactoEn(kPorIva);
  liquidacion.withholdingPercent = exactoEn(kPorRetencion);
  liquidacion.amounts = {exactoEn(kBase), exactoEn(kIva), exactoEn(kRetencion), exactoEn(kTotal)};
  return liquidacion;
}

void frmNewLiquidAgentes::anunciaGuardado(const Guardado& guardado) {
  const std::string sAnterior = "La liquidación " + std::to_string(guardado.nAnterior);
  const bool bNueva = guardado.nNueva > 0;
  const bool bImprime = Check3.Value() == 1;
  if (bImprime && bNueva) imprimeLiquidacion(guardado.nNueva);

  std::string sTexto =
      "Proceso de liquidacion de comisiones a agentes concluido satisfactoriamente";
  if (guardado.bNoMostrada) {
    sTexto = sAnterior + " no se pudo mostrar y se ha dejado como estaba. " +
             (bNueva ? "Se ha guardado una liquidación nueva, la " +
                           std::to_string(guardado.nNueva) + "."
                     : "No se ha guardado nada.");
  } else if (!bNueva && (bImprime || guardado.bEliminar)) {
    sTexto = sAnterior + " se ha eliminado." + (bImprime ? " No hay nada que imprimir." : "");
  } else if (bImprime) {
    return;
  }
  Tag = "r";
  screen::MsgBox(sTexto, screen::style::Information);
}

void frmNewLiquidAgentes::imprimeLiquidacion(std::int32_t nNueva) {
  try {
    muestraInforme(nNueva);
  } catch (const std::exception& fallo) {
    // It is stored: the screen is emptied as after a success, or it would be saved twice.
    avisa(std::string("La liquidacion se ha guardado, pero no se ha podido imprimir:\r\n") +
          fallo.what());
  }
}

}  // namespace korvantes
