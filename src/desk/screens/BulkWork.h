#pragma once

#include <string>

namespace quillon {

class frmAccount;

/// Opens a dialog of the module that changes many entries of the statement's account, for those who have the
/// right to it. When it is left the statement reads its entries anew, whatever came of it.
void OpenBulkWork(frmAccount& statement, const std::string& form, const std::string& right);

}  // namespace quillon
