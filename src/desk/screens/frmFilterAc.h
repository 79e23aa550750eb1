#pragma once

#include <string>
#include <vector>

#include "host/controls/CommandButton.h"
#include "host/controls/Label.h"
#include "host/controls/ListBox.h"
#include "host/forms/DialogForm.h"

namespace quillon {

/// "FilterAc": the host's filter of accounts, by ticks. The caller reads the condition and its words.
class frmFilterAc : public DialogForm {
 public:
  frmFilterAc();

  bool SelectionOnly = false;  ///< accounts are chosen by ticks alone, which is all that this filter does
  bool pBackOnly = false;      ///< the answer goes back to the caller and is not kept

  /// A condition on the lines' account, in terms of FAData's alias a; empty when all accounts are ticked.
  std::string AcCnd;

  /// The same in words; empty with the condition.
  std::string CaptionTitle;

  Label lblTitle;
  ListBox lstAccounts;
  CommandButton cmdCheck;
  CommandButton cmdUnCheck;

 protected:
  void LoadDialog() override;
  bool Confirm() override;

 private:
  void DesignControls();

  std::vector<std::int64_t> codes_;  // of the list's items
};

}  // namespace quillon
