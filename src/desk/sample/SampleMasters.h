#pragma once

#include <string>
#include <vector>

#include "host/values/Amount.h"
#include "host/values/Date.h"

namespace quillon {

class FirebirdLink;
class SampleRandom;

/// Groups of the balance sheet, as CtgMaster numbers them.
enum class SampleGroup {
  kCapital = 10,
  kFixedAssets = 30,
  kCash = 46,
  kBanks = 47,
  kDuties = 60,
  kSuspense = 70,
  kDebtors = 130,
  kCreditors = 140,
  kTransporters = 150,
  kAgents = 160,
  kSales = 200,
  kPurchases = 210,
  kExpenses = 220,
  kIncomes = 230
};

/// An account of the sample firm.
struct SampleAccount {
  int Code = 0;
  std::string Head;
  std::string Station;
  SampleGroup Group = SampleGroup::kSuspense;
  std::string Address;
  std::string Alias;
  int Transporter = 0;
  int Agent = 0;
  bool IsDeactivated = false;
  Amount Opening;  ///< on the first day of the first year

  /// Whether its balance goes over to the next year; that of the others goes to the capital.
  bool IsCarriedOver() const { return Group < SampleGroup::kSales; }
};

/// Codes that the vouchers name.
struct SampleCode {
  static constexpr int kCash = 1;
  static constexpr int kBalanceContra = 19;
  static constexpr int kCapital = 20;
  static constexpr int kMainBank = 101;
  static constexpr int kCreditBank = 102;
  static constexpr int kThirdBank = 103;
  static constexpr int kSales = 201;
  static constexpr int kSalesTax = 202;
  static constexpr int kPurchases = 211;
  static constexpr int kPurchaseTax = 212;
  static constexpr int kBankCharges = 221;
  static constexpr int kInterestPaid = 222;
  static constexpr int kRent = 223;
  static constexpr int kSalaries = 224;
  static constexpr int kTelephone = 225;
  static constexpr int kDiscount = 226;
};

/// The accounts of the firm and what hangs on them besides vouchers.
class SampleMasters {
 public:
  explicit SampleMasters(SampleRandom& random);

  const std::vector<SampleAccount>& Accounts() const { return accounts_; }

  /// The accounts that trade is done with, without those put out of use.
  const std::vector<const SampleAccount*>& Debtors() const { return debtors_; }
  const std::vector<const SampleAccount*>& Creditors() const { return creditors_; }

  /// Writes accounts, heads, groups, rates, articles and data forms into a year that starts on that day.
  void Write(FirebirdLink& year, Date start) const;

 private:
  void AddFirmAccounts();
  void AddHelpers(SampleRandom& random);
  void AddParties(SampleRandom& random, SampleGroup group, int firstCode, int count);
  void AddDoubles();
  void BalanceOpenings();

  std::vector<SampleAccount> accounts_;
  std::vector<const SampleAccount*> debtors_;
  std::vector<const SampleAccount*> creditors_;
};

}  // namespace quillon
