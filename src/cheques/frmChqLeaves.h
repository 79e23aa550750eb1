#pragma once

#include <string>

#include "host/controls/CButton.h"
#include "host/controls/CTextPlus.h"
#include "host/controls/ComboBox.h"
#include "host/controls/ControlArray.h"
#include "host/controls/Label.h"
#include "host/controls/Menu.h"
#include "host/controls/PictureBox.h"
#include "host/data/CDataSet.h"
#include "host/forms/ListScreen.h"

namespace quillon {

/// "Chq.Leaves": the register of the cheque leaves that the firm holds for a bank account. Leaves are
/// received by their books, used by vouchers, or cancelled.
class frmChqLeaves : public ListScreen {
 public:
  frmChqLeaves();

  /// 0 asks the user.
  long BankCode = 0;

  /// Reads the leaves anew.
  void FillGrid();

  Label lblTitle2;
  ComboBox cmbRType;

  PictureBox picChqRange;
  Label lblRangeTitle;
  CTextPlus txpFrom;
  CTextPlus txpTo;
  CTextPlus txpRecDate;
  ControlArray<CButton> btnOKCancel;

  PictureBox picFilter;
  Label lblFilterTitle;
  CTextPlus txpChqNo1;
  CTextPlus txpChqNo2;
  CTextPlus txpParties;
  ControlArray<CButton> btnOKCancel2;

  Menu mmOthers;

 protected:
  void BuildBar() override;
  void LoadScreen() override;
  void FirstShow() override;
  void Pressed(const std::string& key) override;
  void Print(bool print) override;
  void ExitPressed(bool& cancel) override;
  void OpenRow(int row) override;
  long AccountOfRow(int row) const override;
  void OnKeyDown(KeyEvent& key) override;

 private:
  void DesignControls();
  void DesignRange();
  void DesignFilter();
  void Connect();
  bool SelectBank();
  void SetupGrid();
  std::string Query() const;
  void ShowLeaf(const CDataSet& leaf, int row);
  void ShowCancelled(int row, bool cancelled);
  void OpenRange(const char* title, bool adds);
  void OpenFilter();
  bool ClosePanel();
  void ConfirmRange();
  bool CheckRange();
  bool AddLeaves();
  void DeleteLeaves();
  void CancelLeaf();
  void ConfirmFilter();
  void PickParties();

  std::string partyClause_;
};

}  // namespace quillon
