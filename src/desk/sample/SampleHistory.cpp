#include "desk/sample/SampleHistory.h"

#include "desk/sample/SamplePiece.h"

namespace quillon {

SampleHistory::SampleHistory(FirebirdLink& year, const SampleMasters& masters, std::uint64_t seed, Date start,
                             Date end)
    : year_(year), masters_(masters), random_(seed), start_(start), end_(end), books_(year) {}

void SampleHistory::Write(const SampleCarry& next) {
  year_.BeginTrans();
  masters_.Write(year_, start_);
  for (Date day = start_.AddDays(9); day < end_; day = day.AddDays(30)) WriteMonth(day);
  for (const SampleVoucher& open : next.Open) books_.Post(open);
  WriteOpenings(next);
  books_.PostClosing(end_);
  SampleCheques none(random_);
  for (const SamplePiece& piece : SamplePieces()) {
    if (piece.Write != nullptr) piece.Write({year_, masters_, books_, none, start_, end_});
  }
  year_.CommitTrans();
}

/// What the bank has to do with is cleared on its day, so that nothing of it waits for the next year.
void SampleHistory::WriteMonth(Date day) {
  using Code = SampleCode;
  const std::string book = SampleVoucher::BankBook(Code::kMainBank);
  const std::string received = SampleVoucher::ReceiptType(Code::kMainBank);
  const std::string paid = SampleVoucher::PaymentType(Code::kMainBank);
  for (int i = 0; i < 4; ++i) {
    const int debtor = random_.Pick(masters_.Debtors())->Code;
    const int creditor = random_.Pick(masters_.Creditors())->Code;
    Post(day, "JS", "SL1", "Bill of old", debtor, Code::kSales, random_.Money());
    Post(day.AddDays(3), book, received, "Cheque received", Code::kMainBank, debtor, random_.Money());
    Post(day.AddDays(5), "JP", "PR1", "Their bill of old", Code::kPurchases, creditor, random_.Money());
    Post(day.AddDays(7), book, paid, "Cheque paid", creditor, Code::kMainBank, random_.Money());
  }
  Post(day.AddDays(8), "C", "PC1", "Telephone and sundries paid", Code::kTelephone, Code::kCash,
       Amount::OfInteger(50) * random_.Between(1, 45));
  Post(day.AddDays(9), book, paid, "Shop rent", Code::kRent, Code::kMainBank, Amount::OfInteger(28000));
}

void SampleHistory::Post(Date day, const std::string& book, const std::string& type,
                         const std::string& narration, int debit, int credit, Amount value) {
  SampleVoucher voucher;
  voucher.Day = day;
  voucher.Book = book;
  voucher.Type = type;
  voucher.Narration = narration;
  voucher.Lines = {{debit, value, {}}, {credit, -value, {}}};
  for (SampleLine& line : voucher.Lines) {
    if (SampleVoucher::IsBank(line.Account)) line.Cleared = day;
  }
  books_.Post(voucher);
}

/// The year's profit is the capital's in the next one.
void SampleHistory::WriteOpenings(const SampleCarry& next) {
  std::map<int, Amount> opening = next.Closing;
  for (const auto& [account, moved] : books_.Balances()) opening[account] -= moved;
  for (const SampleAccount& account : masters_.Accounts()) {
    if (account.IsCarriedOver()) continue;
    opening[SampleCode::kCapital] += opening[account.Code];
    opening[account.Code] = Amount();
  }
  for (const auto& [account, value] : opening) books_.PostOpening(account, value, start_);
}

}  // namespace quillon
