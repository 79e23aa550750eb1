#include "desk/sample/SampleYear.h"

#include <algorithm>
#include <array>
#include <utility>

namespace quillon {

namespace {

constexpr int kReceiptNature = 5001;
constexpr int kPaymentNature = 5011;
constexpr int kCashBankNature = 5021;
constexpr int kChargeNature = 5052;

/// The natures that only count for interest before the last day.
constexpr std::array<int, 6> kLastDayNatures{5054, 5055, 5043, 5032, 5022, 5023};
constexpr std::array<std::pair<int, int>, 3> kContraNatures{{{5002, 5012}, {5024, 5031}, {5041, 5051}}};

const Amount kLeastCash = Amount::OfInteger(15000);
const Amount kMostCash = Amount::OfInteger(90000);

constexpr const char* kTheirBanks[] = {"Sahyadri Bank", "Konkan Co-op. Bank", "Narmada Bank",
                                       "City Merchants Bank"};

Amount Share(Amount value, int percent) {
  return (value * Amount::OfInteger(percent) * Amount::OfText("0.01")).Rounded(2);
}

}  // namespace

SampleVoucher SampleYear::Voucher(Date day, const std::string& book, const std::string& type,
                                  const std::string& narration, int debit, int credit, Amount value,
                                  int nature) {
  SampleVoucher voucher;
  voucher.Day = day;
  voucher.Book = book;
  voucher.Type = type;
  voucher.Narration = narration;
  voucher.Nature = nature;
  voucher.Lines = {{debit, value, {}}, {credit, -value, {}}};
  return voucher;
}

Amount SampleYear::CashInHand() const { return books_.Balances().at(SampleCode::kCash); }

int SampleYear::PickBank() {
  const int roll = random_.Below(10);
  return roll < 6 ? SampleCode::kMainBank : roll < 8 ? SampleCode::kCreditBank : SampleCode::kThirdBank;
}

std::string SampleYear::TheirCheque() {
  return std::to_string(random_.Between(100000, 999999)) + " " + random_.Pick(kTheirBanks);
}

/// When the bank clears a voucher's bank line: mostly within the week, some before the date or much later,
/// some never.
void SampleYear::Clear(SampleVoucher& voucher) {
  const int roll = random_.Below(1000);
  int lag = random_.Between(1, 7);
  if (roll < 15) lag = -random_.Between(1, 3);
  if (roll >= 15 && roll < 65) lag = 0;
  if (roll >= 65 && roll < 105) lag = random_.Between(20, 60);
  const bool never = roll >= 105 && roll < 135;
  const Date cleared = never ? Date() : std::max(voucher.Day.AddDays(lag), start_);
  SampleLine& bank = voucher.Lines.front();
  if (cleared <= end_) bank.Cleared = cleared;
  if (cleared > end_) voucher.ClearedLater = cleared;
}

void SampleYear::WriteTrade(Date day) {
  const int roll = random_.Below(100);
  if (roll < 32) return BankReceipt(day);
  if (roll < 56) return BankPayment(day);
  if (roll < 66) return CashEntry(day);
  if (roll < 84) return Sale(day);
  if (roll < 92) return Purchase(day);
  if (roll < 97) return BankCash(day);
  Journal(day);
}

void SampleYear::BankReceipt(Date day) {
  const int bank = PickBank();
  const SampleAccount& party = PickDebtor();
  const Amount value = random_.Money();
  SampleVoucher voucher =
      Voucher(day, SampleVoucher::BankBook(bank), SampleVoucher::ReceiptType(bank),
              "Chq.No. " + TheirCheque() + " received", bank, party.Code, value, kReceiptNature);
  if (random_.InThousand(150)) {
    const Amount discount = Share(value, 2);
    voucher.Lines[1].Value -= discount;
    voucher.Lines.push_back({SampleCode::kDiscount, discount, {}});
    voucher.Narration += ", less discount 2%";
    voucher.Lines[0].Cleared = day;  // a discount belongs to its year, so the entry may not stay open
  } else {
    Clear(voucher);
  }
  voucher.Party = party.Code;
  voucher.Agent = party.Agent;
  voucher.DocumentRows = 1;
  Post(std::move(voucher));
}

void SampleYear::BankPayment(Date day) {
  const int bank = PickBank();
  const SampleAccount& party = PickCreditor();
  const Amount value = random_.Money();
  SampleLeaf& leaf = cheques_.NextLeaf(bank, day);
  SampleVoucher voucher =
      Voucher(day, SampleVoucher::BankBook(bank), SampleVoucher::PaymentType(bank),
              "Paid by Chq.No. " + std::to_string(leaf.Number), party.Code, bank, value, kPaymentNature);
  std::swap(voucher.Lines[0], voucher.Lines[1]);
  Clear(voucher);
  voucher.Party = party.Code;
  voucher.DocumentRows = 1;
  leaf.Issued = day;
  leaf.Party = party.Code;
  leaf.Value = value;
  leaf.Voucher = Post(std::move(voucher));
}

void SampleYear::CashEntry(Date day) {
  if (random_.InThousand(600) || CashInHand() < kLeastCash) {
    const SampleAccount& party = PickDebtor();
    Post(Voucher(day, "C", "RC1", "Cash received from " + party.Station, SampleCode::kCash, party.Code,
                 Amount::OfInteger(100) * random_.Between(5, 190)));
  } else {
    Post(Voucher(day, "C", "PC1", "Telephone and sundries paid", SampleCode::kTelephone, SampleCode::kCash,
                 Amount::OfInteger(50) * random_.Between(1, 45)));
  }
}

void SampleYear::Sale(Date day) {
  const SampleAccount& party = PickDebtor();
  const Amount goods = random_.Money();
  const Amount tax = Share(goods, 5);
  const std::string bill = books_.NextNumber("SL1");
  SampleVoucher voucher =
      Voucher(day, "JS", "SL1", "Bill No. " + bill, party.Code, SampleCode::kSales, goods + tax);
  voucher.Number = bill;
  voucher.Lines[1].Value = -goods;
  voucher.Lines.push_back({SampleCode::kSalesTax, -tax, {}});
  voucher.Party = party.Code;
  voucher.Transporter = party.Transporter;
  voucher.Agent = party.Agent;
  voucher.DocumentRows = 1;
  voucher.Series = "INV";
  voucher.IsDocumentLocked = random_.InThousand(40);
  Post(std::move(voucher));
}

void SampleYear::Purchase(Date day) {
  const SampleAccount& party = PickCreditor();
  const Amount goods = random_.Money();
  const Amount tax = Share(goods, 5);
  SampleVoucher voucher =
      Voucher(day, "JP", "PR1", "Their Bill No. " + std::to_string(random_.Between(1, 9999)),
              SampleCode::kPurchases, party.Code, goods + tax);
  voucher.Lines[0].Value = goods;
  voucher.Lines.push_back({SampleCode::kPurchaseTax, tax, {}});
  voucher.Party = party.Code;
  voucher.Agent = party.Agent;
  voucher.DocumentRows = 1;
  if (random_.InThousand(500)) voucher.Series = "FAS";
  Post(std::move(voucher));
}

void SampleYear::BankCash(Date day) {
  const int bank = PickBank();
  const Amount value = Amount::OfInteger(1000) * random_.Between(5, 50);
  const bool isDeposit = CashInHand() > kMostCash;
  SampleVoucher voucher =
      isDeposit ? Voucher(day, SampleVoucher::BankBook(bank), SampleVoucher::ReceiptType(bank),
                          "Cash deposited", bank, SampleCode::kCash, value, kCashBankNature)
                : Voucher(day, SampleVoucher::BankBook(bank), SampleVoucher::PaymentType(bank),
                          "Cash withdrawn for expenses", SampleCode::kCash, bank, value, kCashBankNature);
  voucher.Lines[isDeposit ? 0 : 1].Cleared = day;
  Post(std::move(voucher));
}

void SampleYear::Journal(Date day) {
  SampleVoucher voucher = Voucher(day, "J", "JD1", "Transferred as per letter", PickCreditor().Code,
                                  PickDebtor().Code, random_.Money());
  voucher.IsLocked = random_.InThousand(100);
  Post(std::move(voucher));
}

void SampleYear::Memorandum(Date day) {
  Post(Voucher(day, "MEM", "MEM", "Goods sent on approval", PickDebtor().Code, SampleCode::kSales,
               random_.Money()));
}

/// The cheque comes in, comes back, and the party is debited again.
void SampleYear::ReturnedCheque(Date day) {
  const int bank = PickBank();
  const SampleAccount& party = PickDebtor();
  const Amount value = random_.Money();
  const std::string cheque = TheirCheque();
  SampleVoucher receipt = Voucher(day, SampleVoucher::BankBook(bank), SampleVoucher::ReceiptType(bank),
                                  "Chq.No. " + cheque + " received", bank, party.Code, value, kReceiptNature);
  receipt.Lines[0].Cleared = day.AddDays(2);
  receipt.Party = party.Code;
  receipt.Agent = party.Agent;
  receipt.IsReturned = true;
  receipt.DocumentRows = random_.InThousand(300) ? 2 : 1;
  SampleVoucher back =
      Voucher(day.AddDays(3), SampleVoucher::BankBook(bank), SampleVoucher::PaymentType(bank),
              "Chq.No. " + cheque + " returned", party.Code, bank, value, kPaymentNature);
  back.Lines[1].Cleared = day.AddDays(4);
  back.Party = party.Code;
  back.IsReturned = true;
  back.DocumentRows = 1;
  Post(std::move(receipt));
  Post(std::move(back));
}

/// Two entries that take each other out, which the interest leaves aside.
void SampleYear::ContraPair(Date day, int debitNature, int creditNature) {
  const int bank = SampleCode::kCreditBank;
  const Amount value = random_.Money();
  for (const bool isDebit : {true, false}) {
    SampleVoucher voucher = Voucher(
        day, SampleVoucher::BankBook(bank),
        isDebit ? SampleVoucher::ReceiptType(bank) : SampleVoucher::PaymentType(bank),
        isDebit ? "Limit transferred" : "Limit transferred back", isDebit ? bank : SampleCode::kThirdBank,
        isDebit ? SampleCode::kThirdBank : bank, value, isDebit ? debitNature : creditNature);
    for (SampleLine& line : voucher.Lines) line.Cleared = day;
    Post(std::move(voucher));
  }
}

/// A transfer that comes back short: two contra entries that do not take each other out, so that no interest
/// can be worked out on a period that holds them.
void SampleYear::UnequalContraPair(Date day) {
  const int bank = SampleCode::kThirdBank;
  const auto& [debitNature, creditNature] = kContraNatures[0];
  SampleVoucher placed =
      Voucher(day, SampleVoucher::BankBook(bank), SampleVoucher::PaymentType(bank), "Deposit placed",
              SampleCode::kCapital, bank, Amount::OfInteger(25000), creditNature);
  SampleVoucher back =
      Voucher(day, SampleVoucher::BankBook(bank), SampleVoucher::ReceiptType(bank), "Deposit back", bank,
              SampleCode::kCapital, Amount::OfInteger(24400), debitNature);
  placed.Lines[1].Cleared = back.Lines[0].Cleared = day;
  Post(std::move(placed));
  Post(std::move(back));
}

void SampleYear::BankExpense(Date day, int bank, int account, const std::string& narration, Amount value,
                             int nature) {
  SampleVoucher voucher = Voucher(day, SampleVoucher::BankBook(bank), SampleVoucher::PaymentType(bank),
                                  narration, account, bank, value, nature);
  voucher.Lines[1].Cleared = day;
  Post(std::move(voucher));
}

void SampleYear::WriteMonth(Date day) {
  for (const int bank : {SampleCode::kMainBank, SampleCode::kCreditBank, SampleCode::kThirdBank}) {
    BankExpense(day, bank, SampleCode::kBankCharges, "Bank charges",
                Amount::OfInteger(random_.Between(50, 900)), kChargeNature);
  }
  BankExpense(day, SampleCode::kCreditBank, SampleCode::kInterestPaid, "Interest charged", random_.Money(),
              kLastDayNatures[static_cast<std::size_t>(day.Month() % 6)]);
  BankExpense(day, SampleCode::kMainBank, SampleCode::kRent, "Shop rent " + day.Format("MMM-yyyy"),
              Amount::OfInteger(32000), kPaymentNature);
  BankExpense(day, SampleCode::kMainBank, SampleCode::kSalaries, "Salaries for " + day.Format("MMM-yyyy"),
              Amount::OfInteger(46500), kPaymentNature);
  ReturnedCheque(day);
  Memorandum(day);
  SampleVoucher locked = Voucher(day, "J", "JD1", "Rate difference, settled", PickCreditor().Code,
                                 PickDebtor().Code, random_.Money());
  locked.IsLocked = true;
  Post(std::move(locked));
  const auto& [debit, credit] = kContraNatures[static_cast<std::size_t>(day.Month() % 3)];
  ContraPair(day, debit, credit);
  if (day.Month() == 11) UnequalContraPair(day);
}

void SampleYear::WriteYearEnd() {
  for (const int nature : kLastDayNatures) {
    BankExpense(end_, SampleCode::kCreditBank, SampleCode::kInterestPaid, "Interest adjusted",
                random_.Money(), nature);
  }
  // Cheques of the last days, which no bank has seen yet.
  for (const int bank : {SampleCode::kMainBank, SampleCode::kCreditBank, SampleCode::kThirdBank}) {
    SampleVoucher receipt = Voucher(end_, SampleVoucher::BankBook(bank), SampleVoucher::ReceiptType(bank),
                                    "Chq.No. " + TheirCheque() + " received", bank, PickDebtor().Code,
                                    random_.Money(), kReceiptNature);
    receipt.ClearedLater = end_.AddDays(random_.Between(2, 12));
    receipt.Party = receipt.Lines[1].Account;
    receipt.DocumentRows = 1;
    Post(std::move(receipt));
  }
}

}  // namespace quillon
