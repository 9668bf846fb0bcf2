// agents: the master screen of the commission agents. Procedures are in files named after them,
// positions, captions and colours in frmAgentes_layout.cpp.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "outside/plindor/base_datos.h"
#include "outside/plindor/util_formulario.h"
#include "runtime/ado/recordset.h"
#include "runtime/screen/form.h"

namespace korvantes {

/// Master of the commission agents: browsing, changing, adding, and a picture of each.
///
/// The list rsOper and the fields are bound: any move of the list's cursor refills the fields. The
/// screen is in one of two states, new agent (1) or browsing (4); in both the code in txtFields(0)
/// alone decides whether a save changes an agent or adds one.
class frmAgentes : public screen::Form {
 public:
  frmAgentes();

  /// AGE_ID of the current row; 0 while the list is empty, and until the user first moves.
  std::int32_t nIdAgente = 0;

  void Form_Load() override;
  void Form_Unload() override;
  void Form_KeyUp(int& keyCode, int shift) override;

 private:
  enum Estado { AgenteNuevo = 1, Consulta = 4 };

  /// A stored code without an entry in its list, which shows its first entry instead.
  struct CodigoSinEntrada {
    const screen::ComboBox* lista;
    const char* nombre;
    std::string codigo;  ///< empty for Null
  };

  void layOut();
  void wire();

  void txtFields_GotFocus(int index);
  void txtFields_KeyPress(int index, int& character);
  void txtFields_Change(int index);
  void txtFields_LostFocus(int index);
  void cboProvincias_Click();
  void cmdNuevo_Click();
  void cmdCancelar_Click();
  void cmdSalvar_Click();
  void cmdSalir_Click();
  void cmdImagen_Click();
  void cmdGuardarImagen_Click();
  void rsOper_MoveComplete();
  void teclaSoltada(int& keyCode);

  void msCargaProvincias();
  void msCargaPaises();
  void msCargaRegimenes();
  /// Loads all three. A list that cannot be read stays empty, with a message.
  void cargaListas();
  /// Reads the list of agents and shows its first row. On an error the previous list stays.
  void msCargaAgentes();
  /// Moves to the agent or, with bUltimo or if the agent is gone, to the last row.
  void msPosicionAgente(std::int32_t nId, bool bUltimo = false);
  /// Moves to the agent if it is listed; otherwise shows the current row again.
  bool msExisteAgente(const ado::Variant& nId);
  void msBuscarPorNombre();
  void msEstadoPantalla(int nModo);

  /// Shows a stored value in full, bypassing the filter of its field.
  void muestra(screen::TextBox& box, const std::string& guardado);
  void seleccionaEntrada(screen::ComboBox& lista, const char* nombre, std::size_t nCaracteres,
                         const ado::Variant& codigo);

  // Steps of a save. The first asks; the others throw.
  bool confirmaEntrada();
  /// Warns which codes the save would replace with the first entry of their list.
  void avisaCodigosSinEntrada() const;
  void agregaCampos(plindor::BaseDatos& oDb) const;
  std::int32_t anadeAgente(plindor::BaseDatos& oDb);
  void actualizaAgente(plindor::BaseDatos& oDb, std::int32_t nId);
  /// Whether the agent just added is in the table, after a failure that leaves this unclear.
  bool estaGuardado(ado::Connection& conexion, std::int32_t nId) const;

  std::unique_ptr<plindor::UtilFormulario> oUtil;
  ado::Recordset rsOper;
  /// State of AlCambiarTexto, shared by all fields.
  ado::Variant nEstadoCambio;
  bool bSinFiltro = false;
  std::vector<CodigoSinEntrada> codigosSinEntrada;

  // From back to front.
  screen::Frame Frame3{*this, "Frame3"};
  screen::Frame Frame2{*this, "Frame2"};
  screen::Frame Frame1{*this, "Frame1"};
  screen::ControlArray<screen::Label> Label1;
  screen::Label LblCodigo{*this, "LblCodigo"};
  screen::ControlArray<screen::TextBox> txtFields;
  screen::ComboBox cboProvincias{*this, "cboProvincias"};
  screen::ComboBox cboPais{*this, "cboPais"};
  screen::ComboBox cboRegFiscal{*this, "cboRegFiscal"};
  screen::DataGrid dboOper{*this, "dboOper"};
  screen::Image imgAgente{*this, "imgAgente"};
  screen::PictureButton cmdImagen{*this, "cmdImagen"};
  screen::PictureButton cmdGuardarImagen{*this, "cmdGuardarImagen"};
  screen::PictureButton XPBorrar{*this, "XPBorrar"};
  screen::PictureButton cmdCancelar{*this, "cmdCancelar"};
  screen::PictureButton cmdNuevo{*this, "cmdNuevo"};  ///< covers cmdCancelar while it is visible
  screen::PictureButton cmdSalvar{*this, "cmdSalvar"};
  screen::PictureButton cmdSalir{*this, "cmdSalir"};
  screen::CommonDialog cmdDialogo{*this, "cmdDialogo"};
};

}  // namespace korvantes
