// settlement: the screen on which one settlement of commissions is made, changed, deleted and
// printed. Each procedure is in its own file, named after it; positions, captions and colours are
// in frmNewLiquidAgentes_layout.cpp. What does not need the screen is in data/.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "component/search_form.h"
#include "data/settlement_draft.h"
#include "runtime/ado/recordset.h"

namespace korvantes {

/// Settlement of commissions to an agent.
///
/// Whoever opens it sets nLiqui, then calls Show. The screen is in one of three states, which
/// follow from nLiqui and from the frames that are enabled: agent entry (fraAgente enabled),
/// selection (a search filled the list), existing settlement (nLiqui names a stored one).
class frmNewLiquidAgentes : public SearchForm {
 public:
  frmNewLiquidAgentes();

  /// Lca_Id of the settlement on screen, 0 for a new one. A successful save sets it to 0.
  std::int32_t nLiqui = 0;

  /// Shows the settlement nLiqui. Returns True if it was found. With nLiqui 0, or if it cannot be
  /// shown (a message says so), the screen stays empty and the result is False. Errors of the
  /// connection propagate.
  bool msCargaLiquidacion();

  void Form_Load() override;

 private:
  // Indexes of Text1 after the agent's code and name.
  static constexpr int kFecha = 2, kPorIva = 3, kHastaFecha = 4, kObservaciones = 7, kTotal = 8;
  static constexpr int kIva = 9, kBase = 10, kPorRetencion = 11, kRetencion = 12;
  // Columns of ListView1.
  static constexpr std::size_t kColAlbaran = 3, kColComision = 6;
  /// nRegimen until the regime of the agent in Text1(0) has been read.
  static constexpr std::int32_t kRegimenSinLeer = -1;

  void layOut();
  void wire();

  void Text1_LostFocus(int index) override;
  void cmbBuscarFacturas_Click();
  void cmdSelTodo_Click();
  void cmdCancelar_Click();
  void cmdGrabar_Click();
  void cmdBorrar_Click();
  void cmdImprime_Click();
  void cmdExcell_Click();
  void cmdSalir_Click();
  void ListView1_BeforeLabelEdit(int& cancel);
  void ListView1_ColumnClick(int columnIndex);
  void ListView1_ItemCheck();

  /// Looks an agent up; 0 asks the user. Returns the code chosen, 0 for none.
  void msBuscarAgente(std::int32_t& nAgente);
  /// Shows the rates in force on the settlement date. If they cannot be read, the boxes stay empty,
  /// sFalloTasas says why, and the error propagates.
  void msCargaIva();
  void msBuscarFacturas();
  void msCalculaTotales();
  void msGrabarLiquidacion();

  void buscaPorNombre() override;
  void olvidaAgente() override;
  void cargaCabecera(const ado::Recordset& rsLca);
  void cargaDetalle(ado::Connection& conexion);

  /// Number in a box, exact, under the regional settings; an empty box counts as 0. Throws
  /// ado::ConversionError for any other text.
  ado::Decimal exactoEn(int index) const;
  /// Writes an amount into a box, in the general form.
  void muestra(int index, const ado::Decimal& importe);
  bool hayMarcadas() const;

  /// Result of the checks before a save: whether to go on, and whether the user agreed to remove
  /// the stored settlement.
  struct Comprobacion {
    bool bSigue = false;
    bool bEliminar = false;
  };
  Comprobacion compruebaLiquidacion();
  data::SettlementDraft liquidacionEnPantalla() const;
  /// What a save did.
  struct Guardado {
    std::int32_t nAnterior;  ///< nLiqui before it
    std::int32_t nNueva;     ///< 0 if nothing was written
    bool bNoMostrada;        ///< nAnterior could not be shown and was left unchanged
    bool bEliminar;          ///< the user agreed to remove nAnterior
  };
  /// Prints the new settlement if requested, and reports what was done.
  void anunciaGuardado(const Guardado& guardado);
  void imprimeLiquidacion(std::int32_t nNueva);
  /// Shows the report of a stored settlement and returns when it is closed. Throws what the report
  /// object throws.
  static void muestraInforme(std::int32_t nLiquidacion);

  std::int32_t nRegimen = 0;  ///< tax regime of the agent found
  std::int32_t nIdTiva = 0;   ///< row of the rates on screen
  /// Agent whose delivery notes are listed; the code on screen can change later through F1.
  std::int32_t nAgenteLista = 0;
  bool bCargada = false;  ///< a stored settlement was put on the screen
  /// Why the rates on screen are unknown; empty after a successful lookup.
  std::string sFalloTasas;
  /// Why the amounts on screen are unknown; empty after a successful computation.
  std::string sFalloImportes;
  ado::Recordset rsAlb;
  bool bOrdenLista = false;

  // From back to front.
  screen::Frame fraAgente{*this, "fraAgente"};
  screen::Frame Frame1{*this, "Frame1"};
  screen::Frame Frame2{*this, "Frame2"};
  screen::Frame Frame4{*this, "Frame4"};
  screen::ControlArray<screen::Label> Label1;
  screen::ControlArray<screen::TextBox> Text1;
  screen::CheckBox Check1{*this, "Check1"};
  screen::CheckBox Check2{*this, "Check2"};
  screen::CheckBox Check3{*this, "Check3"};
  screen::PictureButton cmbBuscarFacturas{*this, "cmbBuscarFacturas"};
  screen::PictureButton cmdImprime{*this, "cmdImprime"};
  screen::PictureButton cmdExcell{*this, "cmdExcell"};
  screen::PictureButton cmdSelTodo{*this, "cmdSelTodo"};
  screen::PictureButton cmdCancelar{*this, "cmdCancelar"};
  screen::PictureButton cmdGrabar{*this, "cmdGrabar"};
  screen::PictureButton cmdBorrar{*this, "cmdBorrar"};
  screen::PictureButton cmdSalir{*this, "cmdSalir"};
  screen::ListView ListView1{*this, "ListView1"};
};

}  // namespace korvantes
