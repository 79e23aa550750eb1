#include "desk/screens/AccountGraph.h"
#include "desk/screens/AccountTool.h"
#include "desk/screens/frmAccount.h"

namespace quillon {

AccountTool GraphTool() {
  return {40, "Graph", "Graph", [](frmAccount& statement) { AccountGraph(statement).ShowAmounts(); }};
}

}  // namespace quillon
