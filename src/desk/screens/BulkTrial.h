#pragma once

#include <cstdint>
#include <string>

#include "desk/safety/BulkRun.h"

namespace quillon {

class DeskSession;

/// Offers, where the session can carry out a trial, to try the work first on a firm made of the run's copies:
/// what it would do is shown as a list. Answers the choices made there as DialogChoices keeps them; empty
/// without a trial.
std::string TryFirst(DeskSession& session, const BulkRun& run, const BulkEntry& work);

/// In a firm of trial: opens the screen for the account (0 for a merge) and, when it is left, leaves word of
/// what was filled in and told.
void CarryOutTrial(const std::string& form, std::int64_t account);

}  // namespace quillon
