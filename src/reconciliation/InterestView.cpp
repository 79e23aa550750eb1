#include "reconciliation/InterestView.h"

#include "books/SqlText.h"
#include "host/forms/BusyPointer.h"
#include "host/forms/GridColumns.h"
#include "host/forms/GridFill.h"
#include "host/services/AccountColumns.h"
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

std::vector<Movement> MovementsOf(const CGridPlus& source) {
  using namespace account_col;
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
struct InterestView::Sums {
  struct Side {
    Amount product;  ///< without its sign
    std::int64_t days = 0;
    Amount interest;
  };
  Side debit;
  Side credit;
};

InterestView::InterestView(WorkbenchAccount& account, CGridPlus& grid)
    : WorkbenchView(account, grid), contra_(account) {}

void InterestView::SetSource(CGridPlus* source, bool isBanks) {
  source_ = source;
  terms_.IsBanks = isBanks;
}

void InterestView::LetGo() {
  contra_.Close();
  source_ = nullptr;
}

void InterestView::ReadTerms() {
  const FinYear& year = gSession->Year();
  const bool isCalendarYear = gSession->Firm().Parameter(CFirm::kInterestYear) == "Jan-Dec";
  terms_ = {};
  terms_.DayBasis = InterestYearDays(isCalendarYear, year.StartDate(), year.EndDate());
  terms_.Decimals = gSession->Firm().Parameter(CFirm::kAmountDecimals) == "4" ? 4 : 2;
}

std::string InterestView::InterestText(Amount interest, char letter) const {
  return gStd->FormatValue(interest, letter + std::to_string(terms_.Decimals));
}

bool InterestView::Ask() {
  if (source_ == nullptr || contra_.BringToFront() || !RequireComplete(*source_)) return false;
  const CGridPlus* const source = source_;
  // While the alert window was up the user may have left the view or closed the screen.
  return contra_.Check() && account_.Screen().IsLoaded() && source_ == source && AskTerms();
}

bool InterestView::AskTerms() {
  Form& screen = account_.Screen();
  if (terms_.Rate.IsZero()) {
    terms_.Rate = gSession->Year()
                      .Db()
                      .Lookup("RatesPA", "Rate1", "mcd=" + books::SqlNumber(account_.Code()))
                      .ToAmount();
  }
  const auto dialog = std::make_shared<frmInttMethod>();
  dialog->CallingForm = screen.Self();
  dialog->InttRate = terms_.Rate;
  dialog->InttMethod = terms_.Method;
  gRuntime->Show(dialog, true, screen.Self());
  if (dialog->Cancelled || !screen.IsLoaded()) return false;
  terms_.Rate = dialog->InttRate;
  terms_.Method = dialog->InttMethod;
  return true;
}

std::string InterestView::Title() const {
  const std::string method = " p.a. ( Method : " + terms_.Method + " )";
  return terms_.IsBanks ? "Pass Book Interest Calculations @ " + gStd->FormatRate(terms_.Rate) + method
                        : "Interest Calculations @ " + terms_.Rate.ToString() + method;
}

void InterestView::Update(const CGridPlus& source) {
  const BusyPointer pointer;
  try {
    GridFill fill(grid_, Title());
    SetColumns();
    Fill(source);
    fill.Done();
  } catch (const std::exception& error) {
    gApp->ReportError(error, &account_.Screen(), "UpdateGridInterest");
  }
}

void InterestView::SetColumns() {
  grid_.Rows = 1;
  grid_.Cols = col::kCount;
  grid_.HideAllColumns();
  SetColumnsInChars(grid_, {
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
  grid_.Clear();
  grid_.Footer.Clear();
}

void InterestView::Fill(const CGridPlus& source) {
  DayProducts groups(MovementsOf(source), account_.First(), account_.Last());
  Sums sums;
  int row = 0;
  while (const std::optional<DayProduct> group = groups.Next()) {
    if (++row >= grid_.Rows) grid_.Rows = grid_.Rows + kMoreRows;
    AddRow(*group, row, sums);
  }
  grid_.Rows = row + 1;
  grid_.Row = 1;
  for (int painted = 1; painted <= row; ++painted) {
    gStd->SetRowColors(grid_, painted, col::kPay, col::kPay, kPayColor, Control::kDefaultColor);
    gStd->SetRowColors(grid_, painted, col::kCharge, col::kCharge, kChargeColor, Control::kDefaultColor);
  }
  sums.credit.interest = gStd->RoundAmount(sums.credit.interest, "2");
  sums.debit.interest = gStd->RoundAmount(sums.debit.interest, "2");
  ShowSums(sums);
}

void InterestView::AddRow(const DayProduct& group, int row, Sums& sums) {
  grid_.SetTextMatrix(row, col::kDate, group.Day);
  // Both balances are the one after the day's movements.
  for (const int column : {col::kOpening, col::kClosing}) {
    grid_.SetTextMatrix(row, column, gStd->FormatAmount(group.Balance, "c2"));
  }
  grid_.SetTextMatrix(row, col::kDebits, gStd->FormatValue(group.Debits, "c2"));
  grid_.SetTextMatrix(row, col::kCredits, gStd->FormatValue(group.Credits, "c2"));
  grid_.SetTextMatrix(row, col::kDays, std::to_string(group.Days));
  grid_.SetTextMatrix(row, col::kProduct, gStd->FormatAmount(group.Product, "c2"));
  const Amount interest = CalcInterest(group.Product);
  const bool isCredit = group.Product < Amount();
  grid_.SetTextMatrix(row, isCredit ? col::kPay : col::kCharge, InterestText(interest, 'c'));
  Sums::Side& side = isCredit ? sums.credit : sums.debit;
  side.product += group.Product.Abs();
  side.days += group.Days;
  side.interest += interest;
}

void InterestView::ShowSums(const Sums& sums) {
  GridFooter& footer = grid_.Footer;
  footer.SetRows(3);
  footer.SetHeight(kFooterHeight);
  footer.Clear();
  const auto show = [&](int row, const char* title, const Sums::Side& side, int column) {
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
