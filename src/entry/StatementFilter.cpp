#include "entry/StatementFilter.h"

#include "host/data/CDataSet.h"
#include "host/forms/Fields.h"
#include "host/services/ISession.h"
#include "host/services/IStd.h"
#include "host/values/Text.h"

namespace quillon {

namespace {

constexpr long kWidth = 7500;
constexpr long kListHeight = 2550;
constexpr long kAmountsHeight = 1350;
constexpr long kNarrationHeight = 780;
constexpr long kGap = 90;
constexpr long kInset = 180;
constexpr long kButtons = 870;

constexpr int kDebitsOnly = 0;
constexpr int kCreditsOnly = 1;
constexpr int kFirstDebit = 0;
constexpr int kFirstCredit = 2;

}  // namespace

StatementFilter::StatementFilter(const char* className, bool keepsLoaded, long top)
    : DialogForm({.className = className,
                  .caption = "Filter A/c Statement",
                  .width = kWidth,
                  .height = top + kListHeight + kAmountsHeight + kNarrationHeight + 2 * kGap + kButtons,
                  .keepsLoaded = keepsLoaded}),
      Frame1(*this, "Frame1"),
      Option1(Frame1, "Option1", {0, 1, 2}),
      Frame2(*this, "Frame2"),
      List2(Frame2, "List2"),
      cmdCheck(Frame2, "cmdCheck"),
      cmdUnCheck(Frame2, "cmdUnCheck"),
      Frame3(*this, "Frame3"),
      Frame4(*this, "Frame4"),
      txp1("txp1", {{&Frame3, {0, 1, 2, 3}}, {&Frame4, {kNarrationField}}}) {
  Member("FilterTxt", FilterTxt);
  Member("Amt1", Amt1);
  Member("Amt2", Amt2);
  Member("Amt3", Amt3);
  Member("Amt4", Amt4);
  DesignControls(top);
  cmdCheck.Click = [this] { TickAll(List2, true); };
  cmdUnCheck.Click = [this] { TickAll(List2, false); };
  for (auto& [index, option] : Option1) {
    option->Click = [this] {
      ShowRange(kFirstDebit, ChosenSide() != Side::kCredits);
      ShowRange(kFirstCredit, ChosenSide() != Side::kDebits);
    };
  }
}

void StatementFilter::DesignControls(long top) {
  PlaceSideAndBooks(top, kListHeight);
  PlaceAmounts(top + kListHeight + kGap);
  Frame4.Move(kEdge, Frame3.Top + Frame3.Height + kGap, kWidth - 2 * kEdge, kNarrationHeight);
  CTextPlus& narration = txp1(kNarrationField);
  narration.Caption = "Narration Contains";
  narration.LabelWidth = 2160;
  narration.Move(kInset, (kNarrationHeight - kLine) / 2, Frame4.Width - 2 * kInset, kLine);
}

void StatementFilter::PlaceSideAndBooks(long top, long height) {
  const long half = (kWidth - 3 * kEdge) / 2;
  Frame1.Caption = "Entry Type";
  Frame1.Move(kEdge, top, half, height);
  const char* const sides[] = {"Debit Entries Only", "Credit Entries Only", "Both Debit/Credit Entries"};
  for (auto& [index, option] : Option1) {
    option->Caption = sides[index];
    option->Move(kInset, 390 + index * 510L, half - 2 * kInset, kLine);
  }
  Option1(2).Chosen = true;
  Frame2.Caption = "Book";
  Frame2.Move(2 * kEdge + half, top, half, height);
  const long button = (half - 2 * kInset - kGap) / 2;
  List2.Move(kInset, 390, half - 2 * kInset, height - 390 - 390 - 2 * kGap);
  cmdCheck.Caption = "Check All";
  cmdCheck.Move(kInset, height - 390 - kGap, button, 390);
  cmdUnCheck.Caption = "Un-Check All";
  cmdUnCheck.Move(kInset + button + kGap, height - 390 - kGap, button, 390);
}

void StatementFilter::PlaceAmounts(long top) {
  Frame3.Caption = "Amount Range";
  Frame3.Move(kEdge, top, kWidth - 2 * kEdge, kAmountsHeight);
  const char* const captions[] = {"Debit Amounts :   From", "To", "Credit Amounts : From", "To"};
  for (int field = 0; field < kNarrationField; ++field) {
    const bool second = field % 2 != 0;
    CTextPlus& amount = txp1(field);
    amount.Caption = captions[field];
    amount.LabelWidth = second ? 480 : 2160;
    amount.Move(second ? 4440 : kInset, 360 + field / 2 * 480L, second ? 2580 : 4080, kLine);
    amount.TextNumericOnly = true;
    amount.AllowDecimalPoints = true;
  }
}

void StatementFilter::ShowRange(int first, bool shown) {
  for (const int field : {first, first + 1}) {
    txp1(field).Visible = shown;
    if (!shown) txp1(field).Text = "";
  }
}

void StatementFilter::OnActivate() {
  if (ActiveControl() == nullptr) FirstField().SetFocus();
}

/// The side that is chosen or, where no side is asked for, the first amount.
Control& StatementFilter::FirstField() {
  if (!Frame1.Visible) return txp1(kFirstDebit);
  return Option1(static_cast<int>(ChosenSide()));
}

void StatementFilter::FillBooks() {
  FillCheckList(
      List2, FirstColumn("Select distinct dBook from FAData where dBook<>'MEM'", gSession->MainDb()), true);
}

StatementFilter::Side StatementFilter::ChosenSide() {
  if (Option1(kDebitsOnly).Chosen) return Side::kDebits;
  return Option1(kCreditsOnly).Chosen ? Side::kCredits : Side::kBoth;
}

void StatementFilter::TakeAmounts() {
  int field = 0;
  for (Amount* amount : {&Amt1, &Amt2, &Amt3, &Amt4}) *amount = gStd->ParseAmount(txp1(field++).Text());
}

void StatementFilter::AddWords(const std::string& words) {
  if (!FilterTxt.empty() && !words.empty()) FilterTxt += ", ";
  FilterTxt += words;
}

void StatementFilter::AddSideWords() {
  if (ChosenSide() == Side::kDebits) AddWords("Debit Entries Only");
  if (ChosenSide() == Side::kCredits) AddWords("Credit Entries Only");
}

void StatementFilter::AddBookWords() {
  if (!AreAllBooksTicked()) AddWords("Books: " + text::Join(TickedItems(List2), ","));
}

void StatementFilter::AddNarrationWords() {
  if (!Narration().empty()) AddWords("Narration: " + Narration());
}

void StatementFilter::AddAmountWords() {
  AddWords(Debits().Words("Dr."));
  AddWords(Credits().Words("Cr."));
}

}  // namespace quillon
