#pragma once

#include <cstdint>
#include <exception>
#include <stdexcept>
#include <string>

#include "data/settlement_draft.h"
#include "outside/plindor/base_datos.h"

namespace korvantes::data {

// The steps of a save and of a deletion. The caller opens the transaction around them, and commits
// it or, after a failure, rolls it back: all or nothing.

/// A step of a save that failed, in a sentence for the user.
class SaveFailure : public std::runtime_error {
 public:
  enum class Step {
    Replaced,  ///< another user has changed or deleted the settlement that is to be replaced
    Header,
    Detail,  ///< also a note that another settlement has; the words name it
    Mark,    ///< also a note that no longer exists
  };
  SaveFailure(Step step, const std::string& why);
  Step step() const { return step_; }

 private:
  Step step_;
};

/// The sentence for the user after any failure of a save.
std::string saveFailureWords(const std::exception& failure);

/// Removes a stored settlement before it is rewritten, and frees its delivery notes. Throws
/// SaveFailure if it no longer exists.
void removeReplaced(ado::Connection& connection, std::int32_t settlement);

/// Writes header, details and the number into each delivery note; the draft has at least one.
/// @return the number of the new settlement Throws SaveFailure, or the error for a value of the
/// wrong type for its column.
std::int32_t writeSettlement(plindor::BaseDatos& service, const SettlementDraft& draft);

/// Deletes a stored settlement and frees its delivery notes. Throws ado::Error of kind Gone if
/// nothing of it is left.
void deleteSettlement(plindor::BaseDatos& service, std::int32_t settlement);

}  // namespace korvantes::data
