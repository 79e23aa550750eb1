#pragma once

#include <memory>
#include <string>

#include "host/controls/CGridPlus.h"
#include "host/controls/CMStrip.h"
#include "host/controls/CTextPlus.h"
#include "host/controls/PictureBox.h"
#include "host/data/CDataSet.h"
#include "host/forms/ScreenForm.h"
#include "host/services/FinYear.h"
#include "reconciliation/ClearedDates.h"

namespace quillon {

/// "Reconciliation Markings": the user keys in the bank's own statement, line by line, as a clear date and a
/// cheque number; the form finds the entry and marks it cleared at once. The page itself is kept nowhere.
class frmAcReconciliationMark : public ScreenForm, public AccountPeriod {
 public:
  frmAcReconciliationMark();

  /// The year whose books are marked; the open one when nothing was set.
  std::shared_ptr<FinYear> FYear;

  // The period is what the title tells; the search does not keep to it.

  /// Finds the entry with that number for a row of Grid, fills the row and stores the clear date. `ok` is
  /// false when none, too many or none of several was taken.
  void FindChequeNo(const std::string& chequeNo, int row, bool& ok);

  PictureBox picInputs;
  CTextPlus txpDays;
  CGridPlus Grid;
  CMStrip MStrip2;

  bool StandsOnCaller() const override { return true; }

 protected:
  void BuildBar() override;
  void LoadScreen() override;
  void FirstShow() override;
  void Pressed(const std::string& key) override;
  void Print(bool print) override;
  const CGridPlus* PrintedGrid() const override { return &Grid; }
  GridModel* MainGrid() override { return &Grid; }

 private:
  void DesignControls();
  void ShowControls(bool visible);
  void ConnectGrid();
  void SetColumns();
  void GoToStart();
  void ShowParty(int row);
  bool IsMatched(int row) const;

  void Grid_BeforeEdit(int row, int col, bool& cancel, std::string& action);
  void Grid_CellEnter(int row, int col);
  void Grid_ValidateCell(int row, int col, std::string& text, bool& cancel);
  void Grid_KeyDown(KeyEvent& key);
  void ValidateClearDate(int row, std::string& text, bool& cancel);
  void ValidateChequeNo(int row, const std::string& text, bool& cancel);
  void txpDays_KeyDown(KeyEvent& key);

  bool PickEntry(CDataSet& entries);
  bool PickFromList(CDataSet& entries);
  void MarkEntry(const CDataSet& entry, int row);
  void FillRow(const CDataSet& entry, int row);
  void FindParty(int row);

  void RemoveMark();
  void RemoveRow(int row);
  void ClearPage();
  void TakeBack();
  void PutBack();

  ClearedDates dates_;
};

}  // namespace quillon
