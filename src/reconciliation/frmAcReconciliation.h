#pragma once

#include <map>
#include <memory>
#include <string>
#include <utility>

#include "host/controls/CGridPlus.h"
#include "host/controls/CheckBox.h"
#include "host/controls/ComboBox.h"
#include "host/controls/ControlArray.h"
#include "host/controls/Menu.h"
#include "host/forms/ScreenForm.h"
#include "host/services/CReportOptions.h"
#include "host/services/StatementColumns.h"
#include "reconciliation/InterestOfRow.h"
#include "reconciliation/MarkedTotals.h"

namespace quillon {

class CAlertLog;
class CDataSet;
struct DayProduct;

/// "Reconciliation": the accountant sets, entry by entry, the date on which the bank cleared it. The entries
/// come from the statement of account that opened the screen, and every date goes to the books and back into
/// that statement at once. Four grids share one place, of which one shows: the entries, the reconciliation
/// statement, the pass book and the interest.
class frmAcReconciliation : public ScreenForm {
 public:
  frmAcReconciliation();

  /// Taken from the calling statement when there is one, with the dates.
  long AccountCode = 0;
  Date Date1;
  Date Date2;

  /// Opens straight into the interest of the account.
  bool bCalcInt = false;

  void UpdateGrid();
  void UpdateMarkedTotals();

  /// Stores the cleared date of a row of Grid; an empty text removes it.
  void SaveRow(int row, const std::string& dateText);
  void UpdateGridStatement();
  void SaveStatementRow(int row, const std::string& dateText);
  void UpdateGridPassBook();

  /// Asks for a period and fills, or empties, the cleared date of all entries that show. Dates that are there
  /// already stay.
  void MassMarking(bool unmark);

  /// Asks for the rate and the method, and shows the interest on the pass book, or on the account as it
  /// stands in the books.
  void RunInterest();
  void UpdateGridInterest(const CGridPlus& source);

  /// Of one row of the interest table.
  Amount CalcInterest(Amount product);
  void HideGrids();
  void UpdateRefButton();
  void ZoomRow();

  ControlArray<Label> lblTitle1;
  Label lblTitle2;
  CheckBox chkReturned;
  ComboBox cmbFilter;
  CGridPlus Grid;
  CGridPlus GridStatement;
  CGridPlus GridPBook;
  CGridPlus GridIntt;
  CMStrip MStrip2;
  Menu mmMarking;

 protected:
  void BuildBar() override;
  void LoadScreen() override;
  void FirstShow() override;
  void ButtonPressed(int index) override;
  void ExitPressed(bool& cancel) override;
  void UnloadScreen() override;
  GridModel* MainGrid() override { return &Grid; }

 private:
  void RegisterRoutines();
  void DesignControls();
  void ConnectGrid();
  void ConnectStatement();
  void ConnectPassBook();
  void TakeCaller();
  void ShowEntries();

  // The entries.
  void TakeStatementLayout(CGridPlus& grid);
  void SetGridColumns();
  void CopyStatementRows();
  void StoreClearedDate(int row, Date date);
  int SourceRow(int row) const;
  void SaveRowAndCell(int row, const std::string& dateText);
  void ShowFilterTitle();
  void Grid_BeforeEdit(int row, int col, bool& cancel, std::string& action);
  void Grid_ValidateCell(int row, int col, std::string& text, bool& cancel);
  void Grid_AfterEdit(int row, int col);
  void WarnOutsideYear(Date date);
  void Grid_RowChange(int row);
  void Grid_KeyDown(KeyEvent& key);
  void ShowReturned(int row);
  void chkReturned_Click();
  void cmbFilter_Click();
  void PutCursorOnLastRow();

  // Marking many.
  void PopupMarking();
  void mMarking_Click(int item);
  void MassMarkRow(int row, Date date);

  // The statement as on a date.
  struct Section;
  void AskStatement();
  void FillStatement();
  void SetStatementColumns();
  void AddSection(CDataSet& lines, Section& section, int& row);
  void AddStatementLine(CDataSet& line, const Section& section, int row);
  void AddAdjustedBalance(Amount balance, int& row);
  void GridStatement_BeforeEdit(int row, int col, bool& cancel, std::string& action);
  void GridStatement_ValidateCell(int row, int col, std::string& text, bool& cancel);
  void GridStatement_RowChange(int row);
  void GridStatement_KeyDown(KeyEvent& key);
  void EditStatementRow();
  void EchoIntoEntries(long long voucher, long long subNo, const std::string& dateText);
  std::string StatementTitle() const;

  // The pass book.
  void ShowPassBook();
  void SetPassBookColumns();
  void FillPassBook();
  void AddPassBookEntry(CDataSet& entry, int row);
  void AddPassBookBalances();
  void GridPBook_RowChange(int row);

  // Interest.
  struct InterestSums;
  void ReadInterestTerms();
  void PressInterest();
  bool AskInterest();
  bool CheckContraEntries();
  void ErrorLog(const CDataSet& entry);
  void ShowErrorLog();
  void mErrLog_GridRowDblClick(int row);
  void SetInterestColumns();
  void FillInterest(const CGridPlus& source);
  void AddInterestRow(const DayProduct& group, int row, InterestSums& sums);
  void ShowInterestSums(const InterestSums& sums);
  std::string InterestText(Amount interest, char letter) const;

  // All of them.
  using Save = void (frmAcReconciliation::*)(int, const std::string&);
  bool InvalidDate(bool& cancel);
  bool CopyDateAbove(CGridPlus& grid, int row, int col, std::string& text, bool& cancel);
  void FillDown(CGridPlus& grid, int row, int col, std::string& text, Save save);
  std::string NarrationWithReference(CDataSet& line);
  long CounterAccount(std::int64_t voucherId, Amount amount);
  void OpenVoucherOf(const CGridPlus& grid, int voucherColumn);
  CGridPlus* VisibleGrid();
  void Print(bool print);

  CGridPlus* statement_ = nullptr;  // the calling screen's grid; the form holds the screen while it needs it
  CGridPlus* source_ = nullptr;     // what interest is worked out on
  Date asOn_;
  bool showReference_ = true;
  bool cellEdited_ = false;
  InterestTerms terms_;
  std::shared_ptr<CAlertLog> mErrLog;  // while it is on the screen
  MarkedTotals marked_;
  std::multimap<std::pair<long long, long long>, int>
      gridRows_;  // voucher and line to row of Grid, made when asked for
};

}  // namespace quillon
