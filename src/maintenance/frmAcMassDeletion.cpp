#include "maintenance/frmAcMassDeletion.h"

#include <optional>

#include "books/SqlText.h"
#include "host/forms/BusyPointer.h"
#include "host/forms/Progress.h"
#include "host/forms/Unbroken.h"
#include "host/services/IStd.h"

namespace quillon {

namespace {

constexpr int kDebits = 0;
constexpr int kCredits = 1;

}  // namespace

frmAcMassDeletion::frmAcMassDeletion()
    : DeletionDialog("frmAcMassDeletion", "Mass Deletion of Entries", 4050),
      Dates(*this, "Frame2"),
      Frame3(*this, "Frame3"),
      Option1(Frame3, "Option1", {0, 1, 2}),
      Label1(*this, "Label1") {
  DesignControls();
}

std::string frmAcMassDeletion::Condition() {
  const char* const side = Option1(kCredits).Chosen  ? " and dAmt<0"
                           : Option1(kDebits).Chosen ? " and dAmt>0"
                                                     : "";
  return " and dvchdate between " + Dates.Sql() + " and dbook='C' " + side;
}

bool frmAcMassDeletion::Delete() {
  if (!Dates.Check() || !Confirmed()) return false;
  std::optional<Counts> counts;
  {
    const BusyPointer pointer;
    const Unbroken whole;
    gRuntime->DoEvents();
    CDataSet entries = Entries(Condition());
    if (!entries.Eof()) counts = DeleteVouchers(entries);
  }
  if (!counts) {
    gStd->MsgBox("No entries found");
    return false;
  }
  Tell(*counts);
  return true;
}

/// A voucher comes once for each of its lines; only the first time there is anything left to delete.
frmAcMassDeletion::Counts frmAcMassDeletion::DeleteVouchers(CDataSet& entries) {
  Counts counts;
  Progress progress("Deleting the entries", entries.RecordCount());
  const std::string account = books::SqlNumber(AcCode);
  for (; !entries.Eof(); entries.MoveNext()) {
    const std::int64_t voucher = entries.Field("VOUCHERID").ToInteger();
    if (DocumentOf(voucher) != 0) {
      ++counts.Held;
    } else {
      Db().Execute("Delete from FAData where VoucherID=" + books::SqlNumber(voucher) +
                   " and dBook='C' and (dcd=" + account + " or dcd2=" + account + ")");
      ++counts.Deleted;
    }
    progress.Step();
  }
  return counts;
}

void frmAcMassDeletion::Tell(const Counts& counts) {
  if (counts.Held != 0) {
    gStd->MsgBox(std::to_string(counts.Held) +
                     " entries could not be deleted. Ref. found in Inventory / Document file.",
                 "", "W");
  }
  gStd->MsgBox(counts.Deleted != 0
                   ? std::to_string(counts.Deleted) + " Entries deleted.\n\nRefreshing Statement of Account"
                   : "No Entries deleted.");
}

}  // namespace quillon
