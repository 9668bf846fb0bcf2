#include "office/print/amounts.h"

#include "runtime/ado/error.h"

namespace korvantes::office {

namespace {

constexpr int kCents = 2;
/// The runtime's number for a value that does not fit.
constexpr long kOverflow = 6;

}  // namespace

std::optional<ado::Decimal> inCents(const ado::Variant& value) {
  switch (value.kind()) {
    case ado::VariantKind::Null:
      return std::nullopt;
    case ado::VariantKind::Decimal:
      return value.decimal().rescaled(kCents);
    case ado::VariantKind::Whole:
      return ado::Decimal(value.whole(), 0).rescaled(kCents);
    default:
      return ado::decimalFromDouble(value.asDouble(), kCents);
  }
}

void Total::add(const std::optional<ado::Decimal>& amount) {
  if (!amount) return;
  if (__builtin_add_overflow(cents_, amount->rescaled(kCents).units(), &cents_))
    throw ado::Error(kOverflow, "La suma de los importes es demasiado grande");
}

}  // namespace korvantes::office
