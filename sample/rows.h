#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "runtime/ado/connection.h"
#include "runtime/ado/variant.h"

namespace korvantes::sample {

using Row = std::vector<ado::Variant>;

/// Sends rows to a table, many to a statement. `columns` as the statement writes them: "a, b, c";
/// every row has one value for each.
void insertRows(ado::Connection& connection, std::string_view table, std::string_view columns,
                const std::vector<Row>& rows);

/// The value, or Null if empty.
template <class T>
ado::Variant orNull(const std::optional<T>& value) {
  return value ? ado::Variant(*value) : ado::Variant();
}

/// An exact decimal from its units of 10^-scale, or Null.
ado::Variant decimalOrNull(std::optional<std::int64_t> units, int scale);

}  // namespace korvantes::sample
