#include "scripts/words.h"

#include <cstdint>
#include <limits>

#include "runtime/ado/characters.h"
#include "scripts/failure.h"
#include "scripts/whole_number.h"

namespace korvantes::scripts {
namespace {

constexpr std::string_view kBlanks = " \t";

std::string_view trimmed(std::string_view text) {
  return ado::trimmed(text, kBlanks);
}

}  // namespace

std::string_view Words::word(std::string_view whatIsMissing) {
  text_ = trimmed(text_);
  if (text_.empty()) throw Failure("falta " + std::string(whatIsMissing));
  const auto length = text_.find_first_of(kBlanks);
  const std::string_view found = text_.substr(0, length);
  text_.remove_prefix(found.size());
  return found;
}

std::size_t Words::number(std::string_view whatItIs, std::size_t smallest) {
  return static_cast<std::size_t>(readWholeNumber(whatItIs, word(whatItIs),
                                                  static_cast<std::int64_t>(smallest),
                                                  std::numeric_limits<std::int32_t>::max()));
}

bool Words::atEnd() const {
  return trimmed(text_).empty();
}

std::string_view Words::rest() const {
  return trimmed(text_);
}

void Words::end() const {
  if (!atEnd()) throw Failure("sobra " + inQuotes(rest()));
}

std::optional<std::string_view> withoutQuotes(std::string_view text) {
  if (text.size() < 2 || !text.starts_with('"') || !text.ends_with('"')) return std::nullopt;
  return text.substr(1, text.size() - 2);
}

}  // namespace korvantes::scripts
