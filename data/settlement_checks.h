#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "runtime/ado/connection.h"
#include "runtime/ado/date.h"

namespace korvantes::data {

/// Why a settlement is not saved.
enum class Refusal { NothingMarked, DateMissing, DateInvalid, DateAhead, RatesUnknown, SumUnknown };

/// What the checks before a save look at.
struct SettlementToCheck {
  bool stored = false;     ///< it is a stored settlement that is saved again
  bool anyMarked = false;  ///< at least one delivery note goes into it
  std::string date;        ///< settlement date as entered
  ado::Moment now;
  std::string ratesFailure{};  ///< why the last lookup of rates failed; empty if it did not
  std::string sumFailure{};    ///< why the amounts could not be computed; empty if they could
};

/// The first check that fails; empty if the settlement may be saved.
std::optional<Refusal> refusalOf(const SettlementToCheck& settlement);
/// The sentence for the user.
std::string wordsOf(Refusal refusal, const SettlementToCheck& settlement);
/// True if another settlement date can fix it.
bool concernsDate(Refusal refusal);

/// What the user must confirm before a save; a program that cannot ask treats it as a refusal.
struct Question {
  bool removes = false;  ///< yes removes the stored settlement
  std::string words;
};

/// An agent other than the one whose notes were listed.
std::optional<Question> questionAboutAgent(std::int32_t listed, std::int32_t agent,
                                           const std::string& name);

/// Asks about a stored settlement that has no delivery notes, or some that the list cannot show
/// because they, their invoice or their customer are gone: saving it drops those notes, and removes
/// the settlement if nothing is marked. Does not ask if the user unmarked every note. Sends one
/// statement.
std::optional<Question> questionAboutHiddenNotes(ado::Connection& connection,
                                                 std::int32_t settlement, std::size_t listed,
                                                 bool anyMarked);

}  // namespace korvantes::data
