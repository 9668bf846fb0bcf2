#pragma once

#include <string_view>

namespace korvantes::sample {

/// The text of sample/settlement.guion: the script of a whole settlement on the sample data.
extern const std::string_view kSettlementScript;

}  // namespace korvantes::sample
