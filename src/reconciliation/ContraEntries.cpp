#include "reconciliation/ContraEntries.h"

#include "books/BooksNames.h"
#include "books/SqlText.h"
#include "host/forms/CAlertLog.h"
#include "host/services/host_services.h"
#include "host/values/Text.h"

namespace quillon {

namespace {

constexpr int kAlertVoucher = 5;

}  // namespace

ContraEntries::~ContraEntries() = default;

bool ContraEntries::BringToFront() {
  if (!mErrLog) return false;
  gRuntime->BringToFront(*mErrLog->Form());
  return true;
}

void ContraEntries::Close() {
  if (mErrLog) gRuntime->Unload(*mErrLog->Form());
}

bool ContraEntries::Check() {
  CDataSet entries;
  entries.Open(
      "Select a.dVchDate,a.dBook,n.Narration,a.dAmt,a.VoucherID from FAData a "
      "Left Join FANar n on a.NarrationID=n.NarrationID where a.dcd=" +
          books::SqlNumber(account_.Code()) + " and a.dVchDate between " +
          gStd->SqlDate(account_.First(), account_.Last()) + " and a.dTrnNature in (" +
          books::SqlNumbers(books::kContraNatures) + ") order by dVchDate",
      gSession->Year().Db());
  if (entries.RecordCount() == 0) return true;
  Amount sum;
  for (; !entries.Eof(); entries.MoveNext()) sum += entries.Field("dAmt").ToAmount();
  if (sum.IsZero()) {
    gStd->MsgBox("Contra entries found. These entries will be ignored for Interest Calculations", "", "W");
  } else {
    gStd->MsgBox("Improper contra entries found. Total of Contra entries is not 0 Can't calculate Interest.",
                 "", "E");
  }
  for (entries.MoveFirst(); !entries.Eof(); entries.MoveNext()) ErrorLog(entries);
  entries.Close();
  ShowLog();
  return sum.IsZero();
}

void ContraEntries::ErrorLog(const CDataSet& entry) {
  if (!mErrLog) {
    mErrLog = gApp->NewAlertLog();
    mErrLog->GridRowDblClick = [this](int row) { mErrLog_GridRowDblClick(row); };
    mErrLog->Title("Contra Entries");
    mErrLog->Heading("Contra Entries found");
    mErrLog->SetColumns({"Date,12", "Book,6", "Narration,40", "Debit,15", "Credit,15", "VoucherID,0"});
  }
  const Amount amount = entry.Field("dAmt").ToAmount();
  mErrLog->AddRow(
      {entry.Field("dVchDate").ToDate().Text(), entry.Field("dBook").ToText(),
       entry.Field("Narration").ToText(), amount > Amount() ? gStd->FormatValue(amount, "c2") : "",
       amount < Amount() ? gStd->FormatValue(-amount, "c2") : "", entry.Field("VoucherID").ToText()});
}

void ContraEntries::ShowLog() {
  const std::shared_ptr<CAlertLog> log = mErrLog;
  try {
    log->Show(account_.Screen().Self());
    log->Form()->Caption = "Alert window";
    gRuntime->WaitWhileVisible(*log->Form());
  } catch (...) {
    mErrLog.reset();
    throw;
  }
  mErrLog.reset();
}

void ContraEntries::mErrLog_GridRowDblClick(int row) {
  const long long voucher = ValInteger(mErrLog->Grid().Cell(row, kAlertVoucher));
  if (voucher != 0) account_.OpenVoucher(voucher);
}

}  // namespace quillon
