#include "reconciliation/ClearedDates.h"

#include <algorithm>

#include "books/SqlText.h"
#include "books/StoreEntry.h"
#include "host/data/TransactionScope.h"

namespace quillon {

namespace {

/// Stores `to` where the books hold `from`.
bool Exchange(CDbLink& link, const books::EntryKey& entry, Date from, Date to) {
  const std::string held = from.IsEmpty() ? " is null" : "=" + books::SqlDateOrNull(from);
  return books::StoreEntry(link, entry.Voucher,
                           "Update FAData set dBankDate=" + books::SqlDateOrNull(to) +
                               " where VoucherID=" + books::SqlNumber(entry.Voucher) + " and dVchSubNo=" +
                               books::SqlNumber(entry.Line) + " and dBankDate" + held) > 0;
}

std::string Counted(std::size_t count, const std::string& what) {
  return std::to_string(count) + " " + what + (count == 1 ? "" : "s");
}

}  // namespace

void ClearedDates::Note(const Change& change) {
  future_.clear();
  if (open_ == 0 || begins_) past_.emplace_back();
  begins_ = false;
  past_.back().push_back(change);
}

std::optional<ClearedDates::Outcome> ClearedDates::Turn(CDbLink& link, std::vector<Changes>& from,
                                                        std::vector<Changes>& to) {
  if (from.empty()) return {};
  Outcome outcome;
  TransactionScope transaction(link);
  const Changes& act = from.back();
  std::for_each(act.rbegin(), act.rend(), [&](const Change& change) {
    if (Exchange(link, change.Entry, change.After, change.Before)) {
      outcome.Done.push_back({change.Entry, change.After, change.Before});
    } else {
      ++outcome.ChangedSince;
    }
  });
  transaction.Commit();
  from.pop_back();
  if (!outcome.Done.empty()) to.push_back(outcome.Done);
  return outcome;
}

std::optional<ClearedDates::Outcome> ClearedDates::TakeBack(CDbLink& link) {
  return Turn(link, past_, future_);
}

std::optional<ClearedDates::Outcome> ClearedDates::PutBack(CDbLink& link) {
  return Turn(link, future_, past_);
}

void ClearedDates::Forget() {
  past_.clear();
  future_.clear();
}

std::string WordsOf(const std::optional<ClearedDates::Outcome>& outcome, const std::string& done) {
  if (!outcome) return "There is no date to be " + done + ".";
  const std::string words = Counted(outcome->Done.size(), "date") + " " + done;
  if (outcome->ChangedSince == 0) return words + ".";
  return words + ", " + std::to_string(outcome->ChangedSince) + " had been changed since.";
}

}  // namespace quillon
