#pragma once

#include <map>
#include <string>
#include <vector>

#include "desk/sample/SampleBooks.h"
#include "desk/sample/SampleCheques.h"
#include "desk/sample/SampleFirm.h"
#include "desk/sample/SampleMasters.h"
#include "desk/sample/SampleRandom.h"

namespace quillon {

/// What goes over from one year to the next.
struct SampleCarry {
  std::map<int, Amount> Closing;    ///< by account
  std::vector<SampleVoucher> Open;  ///< vouchers with a line that the bank has not cleared
  std::map<int, int> NextCheque;    ///< by bank, the number of its next leaf
};

/// Invents a year of the firm's trade and writes it.
class SampleYear {
 public:
  SampleYear(FirebirdLink& year, const SampleMasters& masters, SampleRandom& random, Date start, Date end);

  /// Writes opening balances, what was open last year and so many vouchers; takes over from `carry` and
  /// leaves in it what the next year takes.
  void Write(SampleCarry& carry, const SampleOptions& options, bool isLast);

 private:
  void WriteOpenings(const SampleCarry& carry);
  void WriteMonth(Date day);
  void WriteYearEnd();
  void WriteTrade(Date day);
  void Close(SampleCarry& carry);

  int Post(SampleVoucher voucher);
  SampleVoucher Voucher(Date day, const std::string& book, const std::string& type,
                        const std::string& narration, int debit, int credit, Amount value, int nature = 0);

  void BankReceipt(Date day);
  void BankPayment(Date day);
  void CashEntry(Date day);
  void Sale(Date day);
  void Purchase(Date day);
  void BankCash(Date day);
  void Journal(Date day);
  void Memorandum(Date day);
  void ReturnedCheque(Date day);
  void ContraPair(Date day, int debitNature, int creditNature);
  void UnequalContraPair(Date day);
  void BankExpense(Date day, int bank, int account, const std::string& narration, Amount value, int nature);

  Amount CashInHand() const;
  int PickBank();
  const SampleAccount& PickDebtor() { return *random_.Pick(masters_.Debtors()); }
  const SampleAccount& PickCreditor() { return *random_.Pick(masters_.Creditors()); }
  void Clear(SampleVoucher& voucher);
  std::string TheirCheque();

  FirebirdLink& year_;
  const SampleMasters& masters_;
  SampleRandom& random_;
  Date start_;
  Date end_;
  SampleBooks books_;
  std::vector<SampleVoucher> open_;
  SampleCheques cheques_;
};

}  // namespace quillon
