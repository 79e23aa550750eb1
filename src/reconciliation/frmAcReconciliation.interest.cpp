#include "reconciliation/frmAcReconciliation.h"

#include "books/BooksNames.h"
#include "books/SqlText.h"
#include "host/controls/RedrawHold.h"
#include "host/data/CDataSet.h"
#include "host/forms/Busy.h"
#include "host/forms/CAlertLog.h"
#include "host/services/host_services.h"
#include "host/values/Text.h"
#include "reconciliation/DayProducts.h"
#include "reconciliation/frmInttMethod.h"

namespace quillon {

namespace {

namespace col {

constexpr int kDate = 0;
constexpr int kOpening = 1;
constexpr int kDebits = 2;
constexpr int kCredits = 3;
constexpr int kClosing = 4;
constexpr int kDays = 5;
constexpr int kProduct = 6;
constexpr int kPay = 7;
constexpr int kCharge = 8;
constexpr int kCount = 10;

}  // namespace col

constexpr long kPayColor = 0xE7D8FC;
constexpr long kChargeColor = 0xF0FFE6;
constexpr long kFooterHeight = 900;
constexpr int kMoreRows = 19;
constexpr int kAlertVoucher = 5;

std::vector<Movement> MovementsOf(const CGridPlus& source) {
  using namespace statement_col;
  std::vector<Movement> movements;
  movements.reserve(static_cast<std::size_t>(source.Rows()));
  for (int row = 1; row < source.Rows; ++row) {
    movements.push_back({source.TextMatrix(row, kDate), ValInteger(source.Cell(row, kNature)),
                         source.Cell(row, kNarration) == "Opening Balance",
                         gStd->ParseAmount(source.Cell(row, kDebit)),
                         gStd->ParseAmount(source.Cell(row, kCredit))});
  }
  return movements;
}

}  // namespace

/// What the two sides of the table add up to.
struct frmAcReconciliation::InterestSums {
  struct Side {
    Amount product;  ///< without its sign
    std::int64_t days = 0;
    Amount interest;
  };
  Side debit;
  Side credit;
};

/// The length of the interest year and the decimals are the firm's choice.
void frmAcReconciliation::ReadInterestTerms() {
  const FinYear& year = gSession->Year();
  const bool isCalendarYear = gSession->Firm().Parameter(CFirm::kInterestYear) == "Jan-Dec";
  terms_ = {};
  terms_.DayBasis = InterestYearDays(isCalendarYear, year.StartDate(), year.EndDate());
  terms_.Decimals = gSession->Firm().Parameter(CFirm::kAmountDecimals) == "4" ? 4 : 2;
}

std::string frmAcReconciliation::InterestText(Amount interest, char letter) const {
  return gStd->FormatValue(interest, letter + std::to_string(terms_.Decimals));
}

void frmAcReconciliation::PressInterest() {
  if (!GridPBook.Visible) {
    gStd->MsgBox("Click on 'F7: Pass Book' option to calculate interest as charged / paid by bank.", "", "W");
    return;
  }
  const FormPtr alive = Self();
  RunInterest();
  UpdateRefButton();
}

void frmAcReconciliation::RunInterest() {
  if (source_ == nullptr) return;
  if (mErrLog) {
    gRuntime->BringToFront(*mErrLog->Form());
    return;
  }
  const FormPtr alive = Self();
  const CGridPlus* const source = source_;
  if (!CheckContraEntries()) return;
  // While the alert window was up the user may have left the view or closed the screen.
  if (!IsLoaded() || source_ != source || !AskInterest()) return;
  HideGrids();
  UpdateGridInterest(*source_);
  GridIntt.BackColor = source_->BackColor();
  GridIntt.Visible = true;
  GridIntt.SetFocus();
  const std::string method = " p.a. ( Method : " + terms_.Method + " )";
  GridIntt.Title = source_ == &GridPBook
                       ? "Pass Book Interest Calculations @ " + gStd->FormatRate(terms_.Rate) + method
                       : "Interest Calculations @ " + terms_.Rate.ToString() + method;
  BtnBar1.Buttons("Interest").SetEnabled(false);
}

bool frmAcReconciliation::AskInterest() {
  if (terms_.Rate.IsZero()) {
    terms_.Rate =
        gSession->Year().Db().Lookup("RatesPA", "Rate1", "mcd=" + books::SqlNumber(AccountCode)).ToAmount();
  }
  const auto dialog = std::make_shared<frmInttMethod>();
  dialog->CallingForm = Self();
  dialog->InttRate = terms_.Rate;
  dialog->InttMethod = terms_.Method;
  gRuntime->Show(dialog, true, Self());
  if (dialog->Cancelled || !IsLoaded()) return false;
  terms_.Rate = dialog->InttRate;
  terms_.Method = dialog->InttMethod;
  return true;
}

/// Shows the contra entries of the period, which interest leaves out; false when they do not take each other
/// out, for then the balances without them would be wrong.
bool frmAcReconciliation::CheckContraEntries() {
  CDataSet entries;
  entries.Open(
      "Select a.dVchDate,a.dBook,n.Narration,a.dAmt,a.VoucherID from FAData a Left Join FANar n on "
      "a.NarrationID=n.NarrationID where a.dcd=" +
          books::SqlNumber(AccountCode) + " and a.dVchDate between " + gStd->SqlDate(Date1, Date2) +
          " and a.dTrnNature in (" + books::SqlNumbers(books::kContraNatures) + ") order by dVchDate",
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
  ShowErrorLog();
  return sum.IsZero();
}

void frmAcReconciliation::ErrorLog(const CDataSet& entry) {
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

void frmAcReconciliation::ShowErrorLog() {
  const std::shared_ptr<CAlertLog> log = mErrLog;
  try {
    log->Show(Self());
    log->Form()->Caption = "Alert window";
    gRuntime->WaitWhileVisible(*log->Form());
  } catch (...) {
    mErrLog.reset();
    throw;
  }
  mErrLog.reset();
}

void frmAcReconciliation::mErrLog_GridRowDblClick(int row) {
  const long long voucher = ValInteger(mErrLog->Grid().Cell(row, kAlertVoucher));
  if (voucher != 0) gApp->OpenVoucher(*this, voucher, gSession->Year().StartYear(), AccountCode);
}

Amount frmAcReconciliation::CalcInterest(Amount product) {
  terms_.IsBanks = source_ != nullptr && source_->Name() == "GridPBook";
  return InterestOfRow(product, terms_);
}

void frmAcReconciliation::UpdateGridInterest(const CGridPlus& source) {
  const BusyPointer pointer;
  try {
    const RedrawHold hold(GridIntt);
    SetInterestColumns();
    FillInterest(source);
    GridIntt.Visible = true;
  } catch (const std::exception& error) {
    gApp->ReportError(error, this, "UpdateGridInterest");
  }
}

void frmAcReconciliation::SetInterestColumns() {
  GridIntt.Rows = 1;
  GridIntt.Cols = col::kCount;
  GridIntt.HideAllColumns();
  SetColumnsInChars(GridIntt, {
                                  {col::kDate, "Date", 13, kAlignCentre},
                                  {col::kOpening, "O.Balance", 16, kAlignRight},
                                  {col::kDebits, "Debits", 14, kAlignRight},
                                  {col::kCredits, "Credits", 14, kAlignRight},
                                  {col::kClosing, "C.Balance", 16, kAlignRight},
                                  {col::kDays, "Days", 6, kAlignRight},
                                  {col::kProduct, "Product", 18, kAlignRight},
                                  {col::kPay, "Intt. (Pay)", 13, kAlignRight},
                                  {col::kCharge, "Intt. (Charge)", 13, kAlignRight},
                              });
  GridIntt.Clear();
  GridIntt.Footer.Clear();
}

void frmAcReconciliation::FillInterest(const CGridPlus& source) {
  DayProducts groups(MovementsOf(source), Date1, Date2);
  InterestSums sums;
  int row = 0;
  while (const std::optional<DayProduct> group = groups.Next()) {
    if (++row >= GridIntt.Rows) GridIntt.Rows = GridIntt.Rows + kMoreRows;
    AddInterestRow(*group, row, sums);
  }
  GridIntt.Rows = row + 1;
  GridIntt.Row = 1;
  for (int painted = 1; painted <= row; ++painted) {
    gStd->SetRowColors(GridIntt, painted, col::kPay, col::kPay, kPayColor, kDefaultColor);
    gStd->SetRowColors(GridIntt, painted, col::kCharge, col::kCharge, kChargeColor, kDefaultColor);
  }
  sums.credit.interest = gStd->RoundAmount(sums.credit.interest, "2");
  sums.debit.interest = gStd->RoundAmount(sums.debit.interest, "2");
  ShowInterestSums(sums);
}

void frmAcReconciliation::AddInterestRow(const DayProduct& group, int row, InterestSums& sums) {
  GridIntt.SetTextMatrix(row, col::kDate, group.Day);
  // Both balances are the one after the day's movements.
  for (const int column : {col::kOpening, col::kClosing}) {
    GridIntt.SetTextMatrix(row, column, gStd->FormatAmount(group.Balance, "c2"));
  }
  GridIntt.SetTextMatrix(row, col::kDebits, gStd->FormatValue(group.Debits, "c2"));
  GridIntt.SetTextMatrix(row, col::kCredits, gStd->FormatValue(group.Credits, "c2"));
  GridIntt.SetTextMatrix(row, col::kDays, std::to_string(group.Days));
  GridIntt.SetTextMatrix(row, col::kProduct, gStd->FormatAmount(group.Product, "c2"));
  const Amount interest = CalcInterest(group.Product);
  const bool isCredit = group.Product < Amount();
  GridIntt.SetTextMatrix(row, isCredit ? col::kPay : col::kCharge, InterestText(interest, 'c'));
  InterestSums::Side& side = isCredit ? sums.credit : sums.debit;
  side.product += group.Product.Abs();
  side.days += group.Days;
  side.interest += interest;
}

void frmAcReconciliation::ShowInterestSums(const InterestSums& sums) {
  GridFooter& footer = GridIntt.Footer;
  footer.SetRows(3);
  footer.SetHeight(kFooterHeight);
  footer.Clear();
  const auto show = [&](int row, const char* title, const InterestSums::Side& side, int column) {
    footer.SetTextMatrix(row, col::kClosing, title);
    footer.SetTextMatrix(row, col::kDays, std::to_string(side.days));
    footer.SetTextMatrix(row, col::kProduct, gStd->FormatValue(side.product, "c2"));
    footer.SetTextMatrix(row, column, InterestText(side.interest, 'c'));
  };
  show(0, "Product (Cr)", sums.credit, col::kPay);
  show(1, "Product (Dr)", sums.debit, col::kCharge);
  const Amount product = sums.credit.product - sums.debit.product;
  const Amount interest = sums.credit.interest - sums.debit.interest;
  const bool isPaid = interest > Amount();
  footer.SetTextMatrix(2, col::kClosing, product > Amount() ? "Net Cr" : "Net Dr");
  footer.SetTextMatrix(2, col::kDays, std::to_string(sums.debit.days + sums.credit.days));
  footer.SetTextMatrix(2, col::kProduct, gStd->FormatValue(product.Abs(), "C2"));
  footer.SetTextMatrix(2, isPaid ? col::kPay : col::kCharge, InterestText(interest.Abs(), 'C'));
  footer.PaintRow(2, isPaid ? kPayColor : kChargeColor);
}

}  // namespace quillon
