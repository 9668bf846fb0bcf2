#pragma once

#include <string>
#include <vector>

#include "runtime/ado/variant.h"

namespace korvantes::plindor {

/// The columns of a statement being built.
class ListaCampos {
 public:
  /// What a value is, and so how it is written: see AgregaCampo.
  enum Tipo : long { Entero = 1, Doble = 2, Texto = 3, Fecha = 4, Literal = 6 };

  struct Campo {
    std::string nombre;
    std::string valor;  ///< as it stands in the statement
  };

  /// Adds a column with its value as the statement will carry it:
  ///  1 whole number of 32 bits, from a number or its digits: bare digits;
  ///  2 number, from a number or from a text under the regional settings: a point and `nDecimales`
  ///    places, rounded half away from zero at 15 significant digits;
  ///  3 text: between single quotes, quotes inside doubled;
  ///  4 date as text dd/mm/yyyy: between single quotes; a text that is no date is refused;
  ///  6 literal: only "Null", in any case.
  /// A Null value is written as Null whatever the type.
  /// Throws ado::ConversionError naming the column for a value that is none of its type, so that
  /// nothing but digits, a date or quoted text ever reaches a statement; the column's name too must
  /// be a plain name.
  void AgregaCampo(const std::string& sCampo, long nTipo, const ado::Variant& vValor,
                   int nDecimales);

  void vaciar() { campos_.clear(); }
  const std::vector<Campo>& campos() const { return campos_; }

 private:
  std::vector<Campo> campos_;
};

}  // namespace korvantes::plindor
