#pragma once

#include <string>
#include <vector>

#include "host/controls/CGridPlus.h"
#include "host/controls/CSelGrid.h"
#include "host/controls/CheckBox.h"
#include "host/controls/Label.h"
#include "host/forms/DialogForm.h"
#include "maintenance/DuplicateSearch.h"

namespace quillon {

class CDbLink;

/// "Merge Parties": folds accounts that were entered twice into those that are to stay, in the open year or
/// in all years. The list of pairs is typed or found, and lives only as long as the form.
class frmMergeParties : public DialogForm {
 public:
  frmMergeParties();

  CGridPlus Grid;
  CheckBox chkAllYears;
  Label lblWarning;
  CButton btnSearchDuplicate;
  CSelGrid SelGrid1;

 protected:
  void LoadDialog() override;
  void OnActivate() override;
  bool Confirm() override;

 private:
  void DesignControls();
  void SetColumns();
  void ConnectGrid();
  void chkAllYears_Click();
  void btnSearchDuplicate_Click();
  void ShowPairs(const std::vector<AccountPair>& pairs, int& row);

  void Grid_BeforeEdit(int row, int column, bool& cancel, std::string& action);
  void Grid_CellGotFocus(int row, int column);
  void Grid_CellLostFocus(int row, int column);
  void LoadList();
  void SelGrid1_Selected();
  void PutAccount(int row, int column, const std::string& code, const std::string& station);
  bool HasCode(int row, int column) const;
  void NumberRow(int row);

  bool Confirmed() const;

  /// All rows of the list, in one transaction, which an error leaves open.
  void MergeRows(CDbLink& year);
  void MergeAllYears();

  // Of the cell under edit: what stood beside it before, and whether its text was stored.
  std::string codeBefore_;
  std::string stationBefore_;
  bool stored_ = false;
};

}  // namespace quillon
