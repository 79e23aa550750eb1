#include "desk/screens/AccountTool.h"
#include "desk/screens/frmAccount.h"

namespace quillon {

AccountTool FilterTool() {
  return {95, "Filter", "Filter …", [](frmAccount& statement) { statement.AskFilter(); }};
}

}  // namespace quillon
