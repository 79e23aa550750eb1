#pragma once

#include <string>
#include <vector>

#include "host/controls/ComboBox.h"
#include "host/controls/CommandButton.h"
#include "host/controls/Label.h"
#include "host/controls/ListBox.h"
#include "host/forms/DialogForm.h"

namespace quillon {

/// "FilterAc": the host's filter of accounts: a group of them, or all, and of these by ticks. The caller
/// reads the condition and its words.
class frmFilterAc : public DialogForm {
 public:
  frmFilterAc();

  bool SelectionOnly = false;  ///< accounts are chosen by ticks alone, which is all that this filter does
  bool pBackOnly = false;      ///< the answer goes back to the caller and is not kept

  /// A condition on accounts, in terms of FAMaster's alias b; empty when all accounts are ticked.
  std::string AcCnd;

  /// The same in words; empty with the condition.
  std::string CaptionTitle;

  Label lblTitle;
  ComboBox cmbGroup;
  ListBox lstAccounts;
  CommandButton cmdCheck;
  CommandButton cmdUnCheck;

 protected:
  void LoadDialog() override;
  void OnActivate() override;
  bool Confirm() override;

 private:
  void DesignControls();
  void FillAccounts();

  /// Of the group that is chosen, on alias b; empty for all groups.
  std::string GroupCondition() const;
  std::string Condition() const;
  std::string Words() const;

  std::vector<std::int64_t> codes_;  // of the list's items
};

}  // namespace quillon
