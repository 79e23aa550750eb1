#include "desk/screens/DayBookFilter.h"

#include "books/SqlText.h"
#include "host/services/IStd.h"
#include "host/values/Text.h"

namespace quillon {

namespace {

/// A lower limit below it only keeps out entries of no amount.
constexpr Amount kPaisa = Amount::OfUnits(100);

}  // namespace

void DayBookFilter::Add(const std::string& condition, const std::string& words) {
  condition_ += " and " + condition;
  words_ += (words_.empty() ? "" : ", ") + words;
}

void DayBookFilter::TakeList(Form& dialog, const char* member, const char* column, const char* title) {
  const std::string list = dialog.Get(member).ToText();
  if (!list.empty()) {
    Add(std::string(column) + " in (" + list + ")", title + text::ReplaceAll(list, "'", ""));
  }
}

/// A range of one side leaves the other side's entries in.
void DayBookFilter::TakeRange(Form& dialog, bool debits) {
  const Amount from = dialog.Get(debits ? "Amt1" : "Amt3").ToAmount();
  const Amount to = dialog.Get(debits ? "Amt2" : "Amt4").ToAmount();
  if (from.IsZero() && to.IsZero()) return;
  const std::string most = to.IsZero() ? "" : " and abs(a.dAmt)<=" + to.ToString();
  std::string words = debits ? "Dr. Amt." : "Cr. Amt.";
  if (from >= kPaisa) words += " from " + gStd->FormatAmount(from, "n2");
  if (!to.IsZero()) words += (from >= kPaisa ? " to " : " up to ") + gStd->FormatAmount(to, "n2");
  Add(std::string("(a.dAmt") + (debits ? "<0" : ">0") + " or (abs(a.dAmt)>=" + from.ToString() + most + "))",
      words);
}

void DayBookFilter::Take(Form& dialog) {
  Clear();
  WholeVouchers = dialog.Get("PrintVouchers").ToFlag();
  DayTotals = dialog.Get("ShowTotals").ToFlag();
  Documents = dialog.Get("ShowStock").ToFlag();
  namesBooks_ = !dialog.Get("Books").ToText().empty();
  const std::string side = dialog.Get("DRCR").ToText();
  if (side == "DR") Add("a.dAmt>0", "Debit Entries Only");
  if (side == "CR") Add("a.dAmt<0", "Credit Entries Only");
  TakeList(dialog, "Books", "a.dBook", "Books: ");
  TakeList(dialog, "TrnTypes", "a.dTrnType", "Trn. Types: ");
  TakeRange(dialog, true);
  TakeRange(dialog, false);
  const std::string accounts = dialog.Get("AcCnd").ToText();
  if (!accounts.empty()) Add(accounts, dialog.Get("AcCndTxt").ToText());
}

/// Memorandum entries stand in it only where their book is asked for by name.
std::string DayBookFilter::Condition(Date first, Date last) const {
  return "a.dVchDate between " + books::SqlDate(first, last) + " and " +
         (namesBooks_ ? "a.dBook<>'0B'" : books::InLists("a.dBook")) + condition_;
}

}  // namespace quillon
