#pragma once

#include <string>

#include "host/controls/MSHFlexGrid.h"
#include "host/forms/ScreenForm.h"

namespace quillon {

/// "Ledger Index": the accounts of a ledger with the pages that each is printed on and, when they are asked
/// for, their balances.
class frmLedgerIndex : public ScreenForm {
 public:
  frmLedgerIndex();

  // Set before the form is shown.

  /// What is listed, with the columns AcCode, AcHead, Station, Page1 and Page2.
  std::string TblName;
  std::string Title;
  std::string Title1;

  /// The period of the ledger.
  Date Date1;
  Date Date2;

  /// Balances of all entries up to Date2, not only of those in the period.
  bool WithOpening = false;

  /// An index of stock items, which have no station and no balance.
  bool StockIndex = false;

  Label lblGridTitle;
  MSHFlexGrid Grid;

  /// Reads the list and the balances anew.
  void Fill();

 protected:
  void BuildBar() override;
  void LoadScreen() override;
  void FirstShow() override { Fill(); }
  void Pressed(const std::string& key) override;
  void Print(bool print) override;
  GridModel* MainGrid() override { return &Grid; }

 private:
  void Connect();
  void SetColumns();
  void AddRows();
  std::string BalanceCondition() const;
  void ShowBalanceOf(int row, const std::string& account, const std::string& condition);
  void FlipBalances();
  void OpenAccount();

  bool showBalance_ = false;
};

}  // namespace quillon
