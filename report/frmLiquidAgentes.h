// report: the screen on which stored settlements are searched, opened, printed and exported. Each
// procedure has a file named after it; the texts of the statements are in search_statements.cpp,
// the columns of the result in result_columns.cpp, positions, captions and colours in
// frmLiquidAgentes_layout.cpp.
#pragma once

#include <cstdint>
#include <string>

#include "component/search_form.h"
#include "report/search_statements.h"
#include "runtime/ado/recordset.h"

namespace korvantes {

/// Search of stored settlements by agent and date: one row per settlement, per invoice of a
/// settlement, or per delivery note line. Every statement that it sends is a SELECT. nIdAgente is
/// the agent of the filter, 0 for all.
class frmLiquidAgentes : public SearchForm {
 public:
  frmLiquidAgentes();

  /// Searches with the filters on screen and shows the result. An invalid date is reported and gets
  /// the focus, and nothing else changes. Errors of the connection propagate; the screen then shows
  /// no result.
  void msBuscarLiquidaciones();

  void Form_Load() override;

 private:
  // Indexes of Text1 after the agent's code and name, of Check1 and of Option1.
  static constexpr int kDesde = 2, kHasta = 3;
  static constexpr int kSerie = 4, kDesdeNumero = 5, kHastaNumero = 6;
  static constexpr int kPorFacturas = 0, kPorAlbaranes = 1;
  static constexpr int kPorFecha = 0, kPorCliente = 1;

  void layOut();
  void wire();

  void Check1_Click(int index);
  void Text1_LostFocus(int index) override;
  void cmdBuscar_Click();
  void cmdSalir_Click();
  void cmdEmision_Click();
  void cmdExcel_Click();
  void dbgLiqui_ButtonClick(int columnIndex);

  /// Looks an agent up; a negative code asks the user.
  void msBuscarAgente(const std::int32_t& nCodigo);
  void buscaPorNombre() override;

  /// True if both limits are empty or dates; otherwise reports the first that is neither.
  bool compruebaFechas();
  /// Clears the last result.
  void retiraResultado();
  report::Filtros filtros() const;
  report::Forma forma() const;
  /// "Primera y 31/12/2026": the limits of the date on screen.
  std::string textoRango() const;

  std::string sSqlLiqui;  ///< the statement being built
  std::string sCriterio;  ///< set by the search for the report
  ado::Recordset rs;      ///< the result that dbgLiqui shows

  // From back to front. The shape hides Label1(1).
  screen::ControlArray<screen::Label> Label1;
  screen::Shape Shape1{*this, "Shape1"};
  screen::Label lblTotales{*this, "lblTotales"};
  screen::Label Label2{*this, "Label2"};
  screen::Frame Frame1{*this, "Frame1"};
  screen::ControlArray<screen::OptionButton> Option1;
  screen::ControlArray<screen::CheckBox> Check1;
  screen::ControlArray<screen::TextBox> Text1;
  screen::PictureButton cmdBuscar{*this, "cmdBuscar"};
  screen::PictureButton cmdSalir{*this, "cmdSalir"};
  screen::PictureButton cmdEmision{*this, "cmdEmision"};
  screen::PictureButton cmdExcel{*this, "cmdExcel"};
  screen::DataGrid dbgLiqui{*this, "dbgLiqui"};
};

}  // namespace korvantes
