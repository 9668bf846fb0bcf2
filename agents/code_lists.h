#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "runtime/ado/variant.h"
#include "runtime/screen/controls.h"

namespace korvantes::agents {

/// Lengths of the codes that entries begin with, as they are saved.
constexpr std::size_t kCifrasProvincia = 2, kCifrasPais = 3, kCifrasRegimen = 2;

/// The number in the first characters of an entry ("034 - España"), blanks aside; nothing where
/// there is none.
std::optional<std::int32_t> codigoInicial(std::string_view entrada, std::size_t nCaracteres);
/// A stored code as a number, from a number or its digits; nothing for Null and all else.
std::optional<std::int32_t> codigoGuardado(const ado::Variant& valor);

/// Place of the first entry whose code is that one, among the first characters; nothing when there
/// is none.
std::optional<int> entradaDe(const screen::ComboBox& lista, std::size_t nCaracteres,
                             std::int32_t codigo);

}  // namespace korvantes::agents
