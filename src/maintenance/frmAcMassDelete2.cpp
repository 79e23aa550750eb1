#include "maintenance/frmAcMassDelete2.h"

#include "books/SqlText.h"
#include "host/forms/BusyPointer.h"
#include "host/forms/Fields.h"
#include "host/forms/Progress.h"
#include "host/forms/Unbroken.h"
#include "host/services/IApp.h"
#include "host/services/IStd.h"
#include "maintenance/DateRangeFields.h"

namespace quillon {

namespace {

constexpr std::int64_t kContra = 19;
constexpr const char* kJournal = "J";
constexpr const char* kNarration = "Last Balance";

}  // namespace

frmAcMassDelete2::frmAcMassDelete2()
    : DeletionDialog("frmAcMassDelete2", "Mass Deletion of Vouchers", 3240),
      Frame2(*this, "Frame2"),
      txpDate1(Frame2, "txpDate1"),
      Label2(*this, "Label2") {
  DesignControls();
  MakeDateField(txpDate1);
}

bool frmAcMassDelete2::Check() {
  if (txpDate1.Text->empty()) return RefuseAt(txpDate1, "Specify Date");
  bool valid = false;
  gApp->ValidDate(txpDate1.Text(), valid);
  return valid;
}

bool frmAcMassDelete2::Delete() {
  if (!Check() || !Confirmed()) return false;
  Counts counts;
  {
    const BusyPointer pointer;
    const Unbroken whole;
    gRuntime->DoEvents();
    CDataSet entries = Entries(" and dvchdate <= " + gStd->SqlDate(DateOf(txpDate1)));
    const Amount balance = DeleteVouchers(entries, counts);
    entries.Close();
    if (!balance.IsZero()) PostBalance(balance);
  }
  if (counts.Vouchers == 0) {
    gStd->MsgBox("No entries found");
    return false;
  }
  gStd->MsgBox(std::to_string(counts.Vouchers) + " Voucher entries deleted.\n" +
               std::to_string(counts.Documents) +
               " Document entries deleted.\n\nRefreshing Statement of Account");
  return true;
}

Amount frmAcMassDelete2::DeleteVouchers(CDataSet& entries, Counts& counts) {
  Amount balance;
  Progress progress("Deleting the vouchers", entries.RecordCount());
  for (; !entries.Eof(); entries.MoveNext()) {
    const std::int64_t voucher = entries.Field("VOUCHERID").ToInteger();
    balance += entries.Field("dAmt").ToAmount();
    if (DeleteDocument(voucher)) ++counts.Documents;
    Db().Execute("Delete from FADocs where VoucherID=" + books::SqlNumber(voucher));
    Db().Execute("Delete from FAData where VoucherID=" + books::SqlNumber(voucher));
    ++counts.Vouchers;
    progress.Step();
  }
  return balance;
}

bool frmAcMassDelete2::DeleteDocument(std::int64_t voucher) {
  const std::int64_t document = DocumentOf(voucher);
  if (document == 0) return false;
  Db().Execute("Delete from DocData where DocumentID=" + books::SqlNumber(document));
  Db().Execute("Delete from DocMain where DocumentID=" + books::SqlNumber(document));
  return true;
}

/// It stands on the last day of what was deleted.
void frmAcMassDelete2::PostBalance(Amount balance) {
  CDataSet entries;
  entries.Open("Select First 1 * from FAData", Db());
  std::string voucher;
  const Date day = DateOf(txpDate1);
  gApp->PostBalanceEntry(entries, voucher, kJournal, kJournal, 1, day, AcCode, kNarration, balance, true,
                         true);
  gApp->PostBalanceEntry(entries, voucher, kJournal, kJournal, 2, day, kContra, kNarration, -balance, true,
                         true);
}

}  // namespace quillon
