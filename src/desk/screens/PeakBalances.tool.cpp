#include "desk/screens/PeakBalances.h"

#include "desk/screens/AccountTool.h"

namespace quillon {

AccountTool PeakBalancesTool() { return {90, "PeakBalances", "Peak Balances", ShowPeakBalances}; }

}  // namespace quillon
