#pragma once

#include <string>

#include "host/controls/CGridPlus.h"
#include "host/controls/CheckBox.h"
#include "host/controls/ComboBox.h"
#include "host/controls/ControlArray.h"
#include "host/controls/Menu.h"
#include "host/forms/ScreenForm.h"
#include "reconciliation/EntriesView.h"
#include "reconciliation/InterestView.h"
#include "reconciliation/PassBookView.h"
#include "reconciliation/StatementView.h"

namespace quillon {

/// "Reconciliation": the accountant sets, entry by entry, the date on which the bank cleared it. The entries
/// come from the account's own statement, which opened the screen, and every date goes to the books and back
/// into that statement at once. Four views share one place, of which one shows: the entries, the
/// reconciliation statement, the pass book and the interest.
class frmAcReconciliation : public ScreenForm, public AccountPeriod {
 public:
  frmAcReconciliation();

  // The account and period are taken from the calling statement when there is one.

  /// Opens straight into the interest of the account, and shows no other view.
  bool bCalcInt = false;

  void UpdateGrid();
  void UpdateMarkedTotals();

  /// Stores the cleared date of a row of Grid; an empty text removes it.
  void SaveRow(int row, const std::string& dateText);
  void UpdateGridStatement();
  void SaveStatementRow(int row, const std::string& dateText);
  void UpdateGridPassBook();
  void MassMarking(bool unmark);

  /// Asks which of the entries are to be seen.
  void Filter();

  /// Asks for the rate and the method, and shows the interest on the pass book, or on the account as it
  /// stands in the books.
  void RunInterest();
  void UpdateGridInterest(const CGridPlus& source);

  /// Of one row of the interest table.
  Amount CalcInterest(Amount product);
  void HideGrids();
  void UpdateRefButton();
  void ZoomRow();

  bool StandsOnCaller() const override { return true; }

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
  void Pressed(const std::string& key) override;
  void Print(bool print) override;
  const CGridPlus* PrintedGrid() const override;
  bool EndEditing() override;
  void ExitPressed(bool& cancel) override;
  void OnQueryUnload(bool& cancel, UnloadMode mode) override;
  void UnloadScreen() override;
  GridModel* MainGrid() override { return bCalcInt ? &GridIntt : &Grid; }

 private:
  void RegisterRoutines();
  void DesignControls();
  void TakeCaller();
  void ShowTurned(const std::optional<ClearedDates::Outcome>& outcome, const char* done);
  void PopupMarking();
  void ShowReferences();
  void PressInterest();
  void AskStatement();
  void ShowEntries();
  void ShowView(WorkbenchView& view, const char* button);
  void RequireAllViews() const;
  WorkbenchView* VisibleView() const;

  WorkbenchAccount account_;
  EntriesView entries_;
  StatementView statement_;
  PassBookView passBook_;
  InterestView interest_;
  WorkbenchView* const views_[4] = {&entries_, &statement_, &passBook_, &interest_};
};

}  // namespace quillon
