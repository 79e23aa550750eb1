#include "reconciliation/frmAcReconciliation.h"

#include "books/SqlText.h"
#include "host/forms/CDateDialog.h"
#include "host/forms/Progress.h"
#include "host/services/host_services.h"
#include "host/values/Text.h"

namespace quillon {

using namespace statement_col;

namespace {

constexpr int kUnmarkItem = 1;
constexpr int kYes = 1;
constexpr int kSecondButton = 2;

constexpr const char* kAskMark =
    "All entries where Cleared on date is not entered shall be filled with the date of transaction for the "
    "given period.\nAre you sure to Mark / Fill cleared on date? ";
constexpr const char* kAskUnmark =
    "Be careful! This will remove cleared on date as entered by you for the given period.\nAre you sure to "
    "Un-Mark / Remove cleared on date? ";

}  // namespace

void frmAcReconciliation::PopupMarking() {
  PopupMenu(mmMarking, BtnBar1.Left + BtnBar1.Buttons("MassMarking").Left(), BtnBar1.Top);
}

void frmAcReconciliation::mMarking_Click(int item) { MassMarking(item == kUnmarkItem); }

void frmAcReconciliation::MassMarking(bool unmark) {
  try {
    CDateDialog period;
    period.SingleDate(false);
    period.SetDate1(Date1);
    period.SetDate2(Date2);
    if (!period.Show()) return;
    if (gStd->MsgBox(unmark ? kAskUnmark : kAskMark, "2", "Q", "", kSecondButton) != kYes) return;
    // Neither the footer nor the statement follows: both stand as they were until they are refreshed.
    marked_.Forget();
    Progress progress(unmark ? "Removing dates" : "Filling dates", Grid.Rows - 1);
    for (int row = 1; row < Grid.Rows; ++row, progress.Step()) {
      if (Grid.Cell(row, kDate).empty() || !Grid.IsRowVisible(row)) continue;
      const Date date = Date::Parse(Grid.Cell(row, kDate));
      if (date < period.Date1() || date > period.Date2()) continue;
      if (unmark) {
        MassMarkRow(row, Date());
      } else if (Grid.Cell(row, kClearedEdit).empty()) {
        MassMarkRow(row, date);
      }
    }
  } catch (const std::exception& error) {
    gApp->ReportError(error, this, "MassMarking");
  }
}

void frmAcReconciliation::MassMarkRow(int row, Date date) {
  StoreClearedDate(row, date);
  Grid.SetTextMatrix(row, kClearedEdit, date.Text());
}

}  // namespace quillon
