#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "host/forms/Form.h"
#include "host/services/FinYear.h"

namespace quillon {

/// What a voucher pays from a bank account, as it stands on a cheque.
struct BankPayment {
  std::int64_t Voucher = 0;
  std::int64_t Bank = 0;
  Date Day;
  std::int64_t Party = 0;
  std::string Head;
  std::string Station;
  Amount Value;
  Variant NarrationID;
  std::string Narration;

  /// The first line by which the voucher pays from the account; nothing when there is none.
  static std::optional<BankPayment> Of(CDbLink& db, std::int64_t bank, std::int64_t voucher);

  /// Those of a period that have no cheque leaf, by date and voucher.
  static std::vector<BankPayment> WithoutLeaf(CDbLink& db, std::int64_t bank, Date from, Date to);
};

/// The payments of a bank account in a year, of which the cheque form shows one: its caller, which answers
/// "NextCheque" with the next payment by date and voucher.
class BankPayments : public Object {
 public:
  BankPayments(std::shared_ptr<FinYear> year, std::int64_t bank, std::int64_t voucher)
      : year_(std::move(year)), bank_(bank), voucher_(voucher) {}

  /// The bank account that a voucher pays from, `preferred` where it is one of several; 0 when there is none.
  static std::int64_t BankOf(CDbLink& db, std::int64_t voucher, std::int64_t preferred);

  /// Gives the cheque form the payment at hand.
  void Fill(Form& cheque) const;

  /// Moves on by one payment and shows it; there being none, the form stays as it is.
  void NextCheque(Form& cheque, int direction);

  Variant Call(const std::string& method, const Array& arguments) override;

 private:
  std::shared_ptr<FinYear> year_;
  std::int64_t bank_;
  std::int64_t voucher_;
};

/// Opens the module's cheque form for an account, with a payment of it or, without a voucher, for its layout
/// alone. Nothing opens, and the user is told, when there is no module.
void OpenCheque(const FormPtr& caller, const std::shared_ptr<FinYear>& year, std::int64_t bank,
                std::int64_t voucher);

/// The module's cheque form for an account, not loaded yet; nothing when there is no module.
FormPtr NewChequeForm(const FormPtr& caller, std::int64_t bank);

}  // namespace quillon
