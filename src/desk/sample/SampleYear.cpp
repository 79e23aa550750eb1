#include "desk/sample/SampleYear.h"

#include <algorithm>

namespace quillon {

namespace {

constexpr int kBanks[] = {SampleCode::kMainBank, SampleCode::kCreditBank, SampleCode::kThirdBank};
constexpr int kLeavesInBook = 50;
constexpr int kFirstCheque = 470001;

}  // namespace

SampleYear::SampleYear(FirebirdLink& year, const SampleMasters& masters, SampleRandom& random, Date start,
                       Date end)
    : year_(year), masters_(masters), random_(random), start_(start), end_(end), books_(year) {}

void SampleYear::Write(SampleCarry& carry, const SampleOptions& options, bool isLast) {
  year_.BeginTrans();
  nextNumber_ = carry.NextCheque;
  for (const int bank : kBanks) ReceiveBook(bank, start_.AddDays(-10));
  masters_.Write(year_, start_);
  WriteOpenings(carry);
  const int before = books_.Vouchers();
  const std::int64_t days = Date::Days(start_, end_) + 1;
  constexpr int kEventVouchers = 155;  // what the months and the year's end write besides the trade
  const int trade = std::max(options.Vouchers - kEventVouchers, 0);
  int done = 0;
  for (std::int64_t d = 0; d < days; ++d) {
    const Date day = start_.AddDays(d);
    for (; done < trade * (d + 1) / days; ++done) WriteTrade(day);
    if (day.Day() == 20) WriteMonth(day);
    if (options.OnDay) options.OnDay();
  }
  WriteYearEnd();
  while (books_.Vouchers() - before < options.Vouchers) Journal(end_);
  if (!isLast) books_.PostClosing(end_);
  WriteLeaves(carry);
  Close(carry);
  year_.CommitTrans();
}

/// What the bank has not cleared is entered again, with its old date, so the opening balance goes without it.
void SampleYear::WriteOpenings(const SampleCarry& carry) {
  std::map<int, Amount> opening = carry.Closing;
  for (const SampleVoucher& open : carry.Open) {
    for (const SampleLine& line : open.Lines) opening[line.Account] -= line.Value;
  }
  for (const auto& [account, value] : opening) books_.PostOpening(account, value, start_);
  for (SampleVoucher open : carry.Open) {
    for (SampleLine& line : open.Lines) {
      if (line.Cleared.IsEmpty()) line.Cleared = open.ClearedLater;
    }
    open.ClearedLater = {};
    Post(std::move(open));
  }
}

int SampleYear::Post(SampleVoucher voucher) {
  if (voucher.Number.empty()) voucher.Number = books_.NextNumber(voucher.Type);
  const int id = books_.Post(voucher);
  if (voucher.Book == "0B" || voucher.Book == "MEM" || !voucher.IsOpen()) return id;
  // An entry that stayed open in the year of its date is mostly cleared in the next one.
  if (voucher.ClearedLater.IsEmpty() && random_.InThousand(800)) {
    voucher.ClearedLater = end_.AddDays(random_.Between(1, 60));
  }
  open_.push_back(std::move(voucher));
  return id;
}

void SampleYear::ReceiveBook(int bank, Date day) {
  int& number = nextNumber_[bank];
  if (number == 0) number = kFirstCheque + (bank - SampleCode::kMainBank) * 100000;
  for (int i = 0; i < kLeavesInBook; ++i) {
    Leaf leaf;
    leaf.Bank = bank;
    leaf.Number = number++;
    leaf.Received = day;
    leaves_[bank].push_back(leaf);
  }
}

SampleYear::Leaf& SampleYear::NextLeaf(int bank, Date day) {
  std::size_t& next = nextLeaf_[bank];
  for (;;) {
    if (next == leaves_[bank].size()) ReceiveBook(bank, day);
    Leaf& leaf = leaves_[bank][next++];
    leaf.IsCancelled = random_.InThousand(30);
    if (!leaf.IsCancelled) return leaf;
  }
}

void SampleYear::WriteLeaves(SampleCarry& carry) {
  int id = 0;
  for (const auto& [bank, leaves] : leaves_) {
    for (const Leaf& leaf : leaves) {
      const Variant none = Variant::Null();
      const bool isIssued = leaf.Voucher != 0;
      const Variant values[] = {++id,
                                bank,
                                leaf.Number,
                                leaf.Received,
                                leaf.Issued,
                                isIssued ? Variant(leaf.Voucher) : none,
                                leaf.IsCancelled ? Variant("Y") : none,
                                isIssued ? Variant(leaf.Party) : none,
                                isIssued ? Variant(leaf.Voucher) : none,
                                isIssued ? Variant(leaf.Value) : none};
      year_.ExecuteWith(
          "insert into ChqLeaves "
          "(ID,BankCode,ChqNo,RctDate,IsuDate,VoucherID,Cancelled,PartyCode,NarrationID,Amount) "
          "values (?,?,?,?,?,?,?,?,?,?)",
          values);
    }
  }
  carry.NextCheque = nextNumber_;
}

/// Incomes and expenses end with the year: their balances become the capital's.
void SampleYear::Close(SampleCarry& carry) {
  carry.Closing = books_.Balances();
  carry.Open = std::move(open_);
  for (const SampleAccount& account : masters_.Accounts()) {
    if (account.IsCarriedOver()) continue;
    carry.Closing[SampleCode::kCapital] += carry.Closing[account.Code];
    carry.Closing[account.Code] = Amount();
  }
}

}  // namespace quillon
