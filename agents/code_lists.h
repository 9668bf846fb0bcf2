#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "runtime/ado/variant.h"
#include "runtime/screen/controls.h"

namespace korvantes::agents {

/// Lengths of the codes at the beginning of the entries, as they are saved.
constexpr std::size_t kCifrasProvincia = 2, kCifrasPais = 3, kCifrasRegimen = 2;

/// The number in the first characters of an entry ("034 - España"), ignoring blanks; empty if they
/// hold no number.
std::optional<std::int32_t> codigoInicial(std::string_view entrada, std::size_t nCaracteres);
/// A stored code as a number, from a number or its digits; empty for Null and other values.
std::optional<std::int32_t> codigoGuardado(const ado::Variant& valor);

/// Position of the first entry that begins with this code, within its first characters; empty if no
/// entry does.
std::optional<int> entradaDe(const screen::ComboBox& lista, std::size_t nCaracteres,
                             std::int32_t codigo);

}  // namespace korvantes::agents
