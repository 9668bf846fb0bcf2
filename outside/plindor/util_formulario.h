#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include "runtime/ado/connection.h"
#include "runtime/screen/controls.h"

namespace korvantes::plindor {

/// What every form asks of its fields: focus colours, key filter, masks, rounding, the search
/// dialog, the letter of a tax number.
class UtilFormulario {
 public:
  /// Colours of a field with and without the focus.
  double ColorFoco = 65535;
  double ColorNormal = 16777215;

  /// The connection that BuscaEnLista searches. It stays open for as long as this object lives,
  /// whatever becomes of the service it came from.
  void Conexion(std::shared_ptr<ado::Connection> conexion) { conexion_ = std::move(conexion); }

  /// Check letter of a Spanish tax number (NIF): number modulo 23 into "TRWAGMYFPDXBNJZSQVHLCKE".
  /// Digits alone count; a leading X, Y or Z stands for 0, 1, 2. Without digits, or with more than
  /// eight, there is no letter: sVacio is given back.
  std::string LetraNif(const std::string& sNif, const std::string& sVacio) const;

  /// Rounds the decimal that the double stands for at 15 significant digits, half away from zero:
  /// 1.005 gives 1.01, 2.925 gives 2.93, -0.005 gives -0.01; never a negative zero. From 1E+15 on
  /// a number has no decimals to round and stays as it is. Throws ado::ConversionError for
  /// infinities, NaN and a negative number of decimals.
  double Redondea(double dValor, long nDecimales) const;

  /// Shows the field as unfocused. With a mask, its text is then written in it: "dd/mm/yyyy" takes
  /// eight or six bare digits (ddmmyyyy, ddmmyy) or a date with separators; "0.000" and its like
  /// take a number. A text that is neither stays as it is, and so does the empty text.
  void AlPerderFoco(screen::TextBox& oControl, std::string_view sFormato) const;
  /// Shows the field as focused.
  void AlRecibirFoco(screen::TextBox& oControl, std::string_view sFormato) const;

  /// After a change of the text: takes out what does not belong into the field, should it have come
  /// in by another way than the keys. bFlag True: all but digits. False: all but digits and one
  /// decimal separator. Only while the field has the focus: a stored value that the program shows
  /// elsewhere stays whole, so that saving it again loses nothing. nEstado and sVacio are the
  /// handler's own and are left alone.
  void AlCambiarTexto(screen::TextBox& oControl, ado::Variant& nEstado, bool bFlag,
                      const std::string& sVacio) const;

  /// Refuses a key by setting it to 0. bFlag True (dates, postal codes): digits and "/". False
  /// (numbers): digits and one decimal separator of the regional settings, for which the point
  /// stands in. Control characters (below 32) always pass.
  void FiltraTecla(const screen::TextBox& oControl, int& nTecla, bool bFlag) const;

  /// Modal list over a statement "Select (0),Code,Name FROM …", ordered by sOrden. Gives the chosen
  /// row's columns joined by the character 1, or an empty text when none was chosen. Widths are in
  /// twips. Throws ado::Error when the statement fails or Conexion was never set.
  std::string BuscaEnLista(const std::string& sSql, const std::string& sOrden,
                           const std::string& sCol1, const std::string& sCol2,
                           const std::string& sTitulo, long nAncho1, long nAncho2, long n0) const;

 private:
  std::shared_ptr<ado::Connection> conexion_;
};

/// Column of a row that BuscaEnLista gave, from 0.
std::string elementoDe(const std::string& sFila, int nColumna);

}  // namespace korvantes::plindor
