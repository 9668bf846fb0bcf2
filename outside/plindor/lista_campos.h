#pragma once

#include <string>
#include <vector>

#include "runtime/ado/variant.h"

namespace korvantes::plindor {

/// The columns of a statement that is being built.
class ListaCampos {
 public:
  /// Type of a value; decides how it is written, see AgregaCampo.
  enum Tipo : long { Entero = 1, Doble = 2, Texto = 3, Fecha = 4, Literal = 6 };

  struct Campo {
    std::string nombre;
    std::string valor;  ///< as written in the statement
  };

  /// Adds a column and its value in the form that the statement needs:
  ///  1 whole number of 32 bits, given as a number or as digits: bare digits;
  ///  2 number, given as a number or as text under the regional settings: a decimal point and
  ///    `nDecimales` places, rounded half away from zero at 15 significant digits;
  ///  3 text: in single quotes, with quotes inside doubled;
  ///  4 date, given as text dd/mm/yyyy: in single quotes;
  ///  6 literal: only "Null", in upper or lower case.
  /// A Null value is written as Null whatever its type.
  /// Throws ado::ConversionError, which names the column, for a value that is not of its type or a
  /// column name that is not a plain name, so that only digits, dates and quoted text ever reach a
  /// statement.
  void AgregaCampo(const std::string& sCampo, long nTipo, const ado::Variant& vValor,
                   int nDecimales);

  void vaciar() { campos_.clear(); }
  const std::vector<Campo>& campos() const { return campos_; }

 private:
  std::vector<Campo> campos_;
};

}  // namespace korvantes::plindor
