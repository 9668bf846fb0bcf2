#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include "runtime/ado/connection.h"
#include "runtime/screen/controls.h"

namespace korvantes::plindor {

/// What every form needs for its fields: focus colours, key filter, masks, rounding, the search
/// dialog, the letter of a tax number.
class UtilFormulario {
 public:
  /// Colours of a field with and without the focus.
  double ColorFoco = 65535;
  double ColorNormal = 16777215;

  /// The connection that BuscaEnLista searches. It stays open while this object lives, even if the
  /// service it came from is gone.
  void Conexion(std::shared_ptr<ado::Connection> conexion) { conexion_ = std::move(conexion); }

  /// Check letter of a Spanish tax number (NIF): the number modulo 23 as an index into
  /// "TRWAGMYFPDXBNJZSQVHLCKE". Only digits count; a leading X, Y or Z means 0, 1, 2. Returns
  /// sVacio for no digits or more than eight, which have no letter.
  std::string LetraNif(const std::string& sNif, const std::string& sVacio) const;

  /// Rounds the double's 15 significant decimal digits half away from zero: 1.005 gives 1.01,
  /// 2.925 gives 2.93, -0.005 gives -0.01; never a negative zero. Numbers from 1E+15 on have no
  /// decimals to round and are returned unchanged. Throws ado::ConversionError for infinities, NaN
  /// and a negative number of decimals.
  double Redondea(double dValor, long nDecimales) const;

  /// Shows the field as unfocused. A mask then reformats its text: "dd/mm/yyyy" takes eight or six
  /// bare digits (ddmmyyyy, ddmmyy) or a date with separators, "0.000" and the like take a number.
  /// Any other text, including the empty one, is left unchanged.
  void AlPerderFoco(screen::TextBox& oControl, std::string_view sFormato) const;
  /// Shows the field as focused.
  void AlRecibirFoco(screen::TextBox& oControl, std::string_view sFormato) const;

  /// After a change of the text, removes what the key filter would have refused (pasted text, for
  /// instance). bFlag True: everything but digits. False: everything but digits and one decimal
  /// separator. Does nothing unless the field has the focus: a stored value that the program shows
  /// stays whole, so that saving it again loses nothing. nEstado and sVacio belong to the handler
  /// and are not used.
  void AlCambiarTexto(screen::TextBox& oControl, ado::Variant& nEstado, bool bFlag,
                      const std::string& sVacio) const;

  /// Refuses a key by setting it to 0. bFlag True (dates, postal codes): digits and "/" pass. False
  /// (numbers): digits and one decimal separator pass; a point becomes the separator of the
  /// regional settings. Control characters (below 32) always pass.
  void FiltraTecla(const screen::TextBox& oControl, int& nTecla, bool bFlag) const;

  /// Shows a modal list of the rows of "Select (0),Code,Name FROM …", ordered by sOrden. Returns
  /// the columns of the chosen row, joined by the character 1, or an empty text if the user
  /// cancels. Widths are in twips. Throws ado::Error if the statement fails or Conexion was never
  /// set.
  std::string BuscaEnLista(const std::string& sSql, const std::string& sOrden,
                           const std::string& sCol1, const std::string& sCol2,
                           const std::string& sTitulo, long nAncho1, long nAncho2, long n0) const;

 private:
  std::shared_ptr<ado::Connection> conexion_;
};

/// A column, from 0, of a row returned by BuscaEnLista.
std::string elementoDe(const std::string& sFila, int nColumna);

}  // namespace korvantes::plindor
