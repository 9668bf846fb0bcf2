// settlement: the screen on which one settlement of commissions is made, changed, deleted and
// printed. Each procedure stands in a file of its own, named after it; positions, captions and
// colours stand in frmNewLiquidAgentes_layout.cpp.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "outside/plindor/base_datos.h"
#include "outside/plindor/util_formulario.h"
#include "runtime/ado/recordset.h"
#include "runtime/screen/form.h"

namespace korvantes {

/// Settlement of commissions to an agent.
///
/// Whoever opens it sets nLiqui, then calls Show. The screen is in one of three states, which
/// follow from nLiqui and from the frames that are enabled: agent entry (fraAgente enabled),
/// selection (a search filled the list), existing settlement (nLiqui names a stored one).
class frmNewLiquidAgentes : public screen::Form {
 public:
  frmNewLiquidAgentes();

  /// Lca_Id of the settlement on screen, 0 for a new one. A save that ends well sets it to 0.
  std::int32_t nLiqui = 0;

  /// Puts the settlement nLiqui on the screen. True when it was found; with nLiqui 0, or a
  /// settlement that is no longer there, the screen stays empty and the result is False. Errors of
  /// the connection travel on.
  bool msCargaLiquidacion();

  void Form_Load() override;
  void Form_KeyUp(int& keyCode, int shift) override;

 private:
  void layOut();
  void wire();

  void Text1_GotFocus(int index);
  void Text1_LostFocus(int index);
  void Text1_KeyPress(int index, int& character);
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

  /// Looks an agent up; 0 asks the user. Gives back the code chosen, 0 for none.
  void msBuscarAgente(std::int32_t& nAgente);
  void msCargaIva();
  void msCargaRegimen();
  void msBuscarFacturas();
  void msCalculaTotales();
  void msGrabarLiquidacion();

  void cargaDetalle(ado::Connection& conexion, const std::string& sLiqui);

  /// The code that a text of nothing but digits stands for; nothing when it is anything else or no
  /// Long.
  static std::optional<std::int32_t> codigoDe(std::string_view texto);
  /// Says that the code in Text1(0) is none, drops the agent found before, and gives the focus to
  /// the box.
  void avisaCodigoNoValido();
  /// Number in a box, under the regional settings; an empty box counts as 0.
  double numeroEn(int index) const;
  bool hayMarcadas() const;
  /// The checks before a save, in their order. False when one has ended it.
  bool compruebaLiquidacion();
  bool confirmaAgente();
  bool confirmaAlbaranesOcultos();
  /// Steps of a save inside its transaction. Give the new settlement's number.
  std::int32_t escribeLiquidacion(plindor::BaseDatos& oDb);
  void borraLiquidacionAnterior(ado::Connection& conexion);
  void insertaCabecera(plindor::BaseDatos& oDb);
  void insertaDetalle(plindor::BaseDatos& oDb, std::int32_t nNueva,
                      const screen::ListView::ListItem& fila);
  void imprimeLiquidacion(std::int32_t nNueva);
  /// The three statements of a deletion, inside its transaction. Throws when one fails, or when
  /// there was nothing left to delete.
  void borraLiquidacion(plindor::BaseDatos& oDb);
  /// Shows the report of a stored settlement and returns when it is closed. Throws what the report
  /// object throws.
  static void muestraInforme(std::int32_t nLiquidacion);

  std::unique_ptr<plindor::UtilFormulario> oUtil;
  std::int32_t nIdAgente = 0;  ///< found by the last agent lookup, 0 for none
  std::int32_t nRegimen = 0;   ///< fiscal regime of the agent found
  std::int32_t nIdTiva = 0;    ///< row of the rates on screen
  /// Agent whose delivery notes are listed; the code on screen can change later through F1.
  std::int32_t nAgenteLista = 0;
  bool bCargada = false;  ///< a stored settlement was put on the screen
  std::string sTituloForm;
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
