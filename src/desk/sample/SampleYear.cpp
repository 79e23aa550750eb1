#include "desk/sample/SampleYear.h"

#include <algorithm>

#include "desk/sample/SamplePiece.h"

namespace quillon {

namespace {

constexpr int kBanks[] = {SampleCode::kMainBank, SampleCode::kCreditBank, SampleCode::kThirdBank};

}  // namespace

SampleYear::SampleYear(FirebirdLink& year, const SampleMasters& masters, SampleRandom& random, Date start,
                       Date end)
    : year_(year),
      masters_(masters),
      random_(random),
      start_(start),
      end_(end),
      books_(year),
      cheques_(random) {}

void SampleYear::Write(SampleCarry& carry, const SampleOptions& options, bool isLast) {
  year_.BeginTrans();
  cheques_.Begin(carry.NextCheque);
  for (const int bank : kBanks) cheques_.ReceiveBook(bank, start_.AddDays(-10));
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
  for (const SamplePiece& piece : SamplePieces()) {
    if (piece.Write != nullptr) piece.Write({year_, masters_, books_, cheques_, start_, end_});
  }
  carry.NextCheque = cheques_.NextNumbers();
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
