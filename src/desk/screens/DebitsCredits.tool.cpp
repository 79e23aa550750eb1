#include "desk/screens/AccountGraph.h"
#include "desk/screens/AccountTool.h"
#include "desk/screens/frmAccount.h"

namespace quillon {

AccountTool DebitsCreditsTool() {
  return {50, "DebitsCredits", "Debits against Credits",
          [](frmAccount& statement) { AccountGraph(statement).ShowDebitsAndCredits(); }};
}

}  // namespace quillon
