#include "desk/screens/frmVoucher.h"

#include "desk/screens/BankPayments.h"
#include "host/forms/GridRows.h"
#include "host/services/host_services.h"
#include "host/values/Text.h"

namespace quillon {

namespace {

constexpr ScreenSpec kScreen = {
    .className = "frmVoucher",
    .caption = "   Voucher",
    .titleSuffix = " -> Voucher",
    .rightKey = "",
    .registerTitle = "Voucher",
    .iconKey = "Voucher",
    .firstKey = keys::kF3,
    .lastKey = keys::kF9,
};

namespace col {

constexpr int kCode = 0;
constexpr int kHead = 1;
constexpr int kStation = 2;
constexpr int kNarration = 3;
constexpr int kDebit = 4;
constexpr int kCredit = 5;
constexpr int kClearedOn = 6;
constexpr int kCount = 7;

}  // namespace col

}  // namespace

frmVoucher::frmVoucher()
    : ScreenForm(kScreen, Origin::Desk),
      lblDocument(*this, "lblDocument"),
      lblLeaf(*this, "lblLeaf"),
      Grid(*this, "Grid") {
  Member("VoucherID", VoucherID);
  Member("StartYear", StartYear);
  Member("AccountCode", AccountCode);
  Grid.RowChange = [this](int row) { ShowParty(row); };
}

void frmVoucher::ShowParty(int row) {
  if (row < Grid.Rows) MStrip1.Code = ValInteger(Grid.Cell(row, col::kCode));
}

void frmVoucher::SetColumns() {
  gStd->SetupGrid(Grid);
  Grid.Cols = col::kCount;
  SetColumnsInTwips(Grid, {
                              {col::kCode, "", 0, kAlignLeft},
                              {col::kHead, "A/c Head", 0.22, kAlignLeft},
                              {col::kStation, "Station", 0.1, kAlignLeft},
                              {col::kNarration, "Narration", 0.34, kAlignLeft},
                              {col::kDebit, "Debit", 0.11, kAlignRight},
                              {col::kCredit, "Credit", 0.11, kAlignRight},
                              {col::kClearedOn, "Cleared On", 0.1, kAlignLeft},
                          });
}

void frmVoucher::LoadScreen() {
  DesignControls();
  SetColumns();
  year_ = gSession->NewYear();
  bool ok = false;
  year_->Init(true);
  year_->OpenYear(StartYear, ok);
  if (!ok) throw HostError("The firm has no financial year " + std::to_string(StartYear));
  FillLines(year_->Db());
  ShowParty(1);
  ShowDocuments(year_->Db());
  ShowLeaves(year_->Db());
}

void frmVoucher::Pressed(const std::string& key) {
  if (key == "ChqPrint") OpenChequeForm();
  if (key == "Modify") Modify();
}

/// It is entered anew on the screen of its own, and this one would show what it was.
void frmVoucher::Modify() {
  if (StartYear != gSession->Year().StartYear()) {
    gStd->MsgBox("Only vouchers of the open year are changed.", "", "W");
    return;
  }
  const FormPtr alive = Self();
  const FormPtr entry = gApp->GetForm("VoucherEntry");
  entry->Set("VoucherID", VoucherID);
  gRuntime->Unload(*this);
  gApp->ShowForm(entry);
}

void frmVoucher::OpenChequeForm() {
  const std::int64_t bank = BankPayments::BankOf(year_->Db(), VoucherID, AccountCode);
  if (bank == 0) {
    gStd->MsgBox("This voucher pays nothing from a bank account.", "", "W");
    return;
  }
  OpenCheque(Self(), year_, bank, VoucherID);
}

void frmVoucher::FillLines(CDbLink& db) {
  CDataSet lines;
  lines.Open(
      "Select a.dcd,a.dVchNo,a.dVchDate,a.dBook,a.dAmt,a.dBankDate,b.mhd,b.mst,n.Narration from (FAData a "
      "left join FAMaster b on a.dcd=b.mcd) "
      "left join FANar n on a.NarrationID=n.NarrationID where a.VoucherID=" +
          std::to_string(VoucherID) + " order by a.dVchSubNo",
      db);
  Grid.Rows = static_cast<int>(lines.RecordCount()) + 1;
  Amount debits;
  Amount credits;
  for (int row = 1; !lines.Eof(); lines.MoveNext(), ++row) {
    const Amount amount = lines.Field("dAmt").ToAmount();
    if (row == 1) {
      Grid.Title = "Voucher No. " + lines.Field("dVchNo").ToText() + "   Date " +
                   lines.Field("dVchDate").ToDate().Text() + "   Book " + lines.Field("dBook").ToText();
    }
    (amount < Amount() ? credits : debits) += amount.Abs();
    Grid.SetTextMatrix(row, col::kCode, lines.Field("dcd").ToText());
    Grid.SetTextMatrix(row, col::kHead, lines.Field("mhd").ToText());
    Grid.SetTextMatrix(row, col::kStation, lines.Field("mst").ToText());
    Grid.SetTextMatrix(row, col::kNarration, lines.Field("Narration").ToText());
    Grid.SetTextMatrix(row, amount < Amount() ? col::kCredit : col::kDebit,
                       gStd->FormatAmount(amount.Abs(), "c2"));
    Grid.SetTextMatrix(row, col::kClearedOn, lines.Field("dBankDate").ToDate().Text());
  }
  ShowTotals(Grid, 0, col::kNarration, "Totals", {{col::kDebit, debits}, {col::kCredit, credits}});
}

void frmVoucher::ShowDocuments(CDbLink& db) {
  const std::string voucher = std::to_string(VoucherID);
  std::string text;
  CDataSet documents;
  for (documents.Open(
           "Select DocumentID,DocSeries from DocMain where DocVoucherID=" + voucher + " order by DocumentID",
           db);
       !documents.Eof(); documents.MoveNext()) {
    text += "   Document " + documents.Field("DocumentID").ToText();
    const std::string series = documents.Field("DocSeries").ToText();
    if (!series.empty()) text += " Series " + series;
  }
  if (text.empty()) text = "   No document";
  if (db.RowExists("Select * from FADocs where VoucherID=" + voucher + " and ChqReturn='Y'")) {
    text += "   Chq. Returned";
  }
  lblDocument.Caption = text;
}

void frmVoucher::ShowLeaves(CDbLink& db) {
  std::string text;
  CDataSet leaves;
  for (leaves.Open("Select ChqNo,IsuDate,Amount from ChqLeaves where VoucherID=" + std::to_string(VoucherID) +
                       " order by ChqNo",
                   db);
       !leaves.Eof(); leaves.MoveNext()) {
    text += "   Cheque No. " + leaves.Field("ChqNo").ToText();
    const Date issued = leaves.Field("IsuDate").ToDate();
    if (!issued.IsEmpty()) text += " of " + issued.Text();
    const Amount amount = leaves.Field("Amount").ToAmount();
    if (!amount.IsZero()) text += " for " + gStd->FormatAmount(amount, "C2");
  }
  lblLeaf.Caption = text.empty() ? std::string("   No cheque leaf") : text;
}

}  // namespace quillon
