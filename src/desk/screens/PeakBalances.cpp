#include "desk/screens/PeakBalances.h"

#include "desk/screens/frmAccount.h"
#include "host/data/CDataSet.h"
#include "host/services/host_services.h"

namespace quillon {

namespace {

PeakBalances PeaksOf(const frmAccount& statement) {
  PeakBalances peaks;
  Amount balance = statement.Opening();
  CDataSet days;
  for (days.Open("Select a.dVchDate,Sum(a.dAmt) from FAData a where " + statement.EntriesCondition() +
                     " group by a.dVchDate order by a.dVchDate",
                 gSession->MainDb());
       !days.Eof(); days.MoveNext()) {
    balance += days.Field(std::size_t{1}).ToAmount();
    peaks.Take(days.Field(std::size_t{0}).ToDate(), balance);
  }
  return peaks;
}

}  // namespace

void PeakBalances::Take(Date day, Amount balance) {
  if (balance.IsZero()) return;
  OneSide& side = balance > Amount() ? debit_ : credit_;
  const Peak here{balance.Abs(), day};
  if (here.Balance > side.Most.Balance) side.Most = here;
  if (side.Least.Day.IsEmpty() || here.Balance < side.Least.Balance) side.Least = here;
}

void ShowPeakBalances(frmAccount& statement) {
  const PeakBalances peaks = PeaksOf(statement);
  const FormPtr form = statement.ModuleScreen("peakbalances");
  if (!form) return;
  int row = 0;
  for (const Peak& peak : {peaks.MostDebit(), peaks.LeastDebit(), peaks.MostCredit(), peaks.LeastCredit()}) {
    form->ControlAt("Text1", row).Set("Text", gStd->FormatAmount(peak.Balance, "C2"));
    form->ControlAt("Text2", row).Set("Text", peak.Day.Text());
    ++row;
  }
  gStd->ShowDialog(form, statement.Self());
}

}  // namespace quillon
