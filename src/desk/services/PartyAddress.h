#pragma once

#include <string>
#include <vector>

#include "host/data/CDataSet.h"

namespace quillon {

/// The address lines of the master in the set's current row, name first; lines without a text are left out.
std::vector<std::string> PartyAddress(const CDataSet& master);

}  // namespace quillon
