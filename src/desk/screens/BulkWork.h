#pragma once

#include <memory>
#include <string>

namespace quillon {

class DeskSession;
class Form;
class frmAccount;

/// Opens a dialog of the module that changes many entries of the statement's account, for those who have the
/// right to it; `screen` is what the journal calls it. When it is left the statement reads its entries anew,
/// whatever came of it.
void OpenBulkWork(frmAccount& statement, const std::string& form, const std::string& screen,
                  const std::string& right);

/// Opens the merge of parties, which goes through all years around the open one.
void OpenMergeOfParties(const std::shared_ptr<Form>& form);

/// Tells the runs that a program left which ended in between.
void TellBrokenOffRuns(DeskSession& session);

}  // namespace quillon
