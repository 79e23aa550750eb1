#include "desk/sample/SampleVoucher.h"

#include <algorithm>

#include "desk/sample/SampleMasters.h"

namespace quillon {

namespace {

std::string WithBankNumber(std::string text, int bank) {
  return text += static_cast<char>('1' + bank - SampleCode::kMainBank);
}

}  // namespace

bool SampleVoucher::IsBank(int account) {
  return account >= SampleCode::kMainBank && account <= SampleCode::kThirdBank;
}

bool SampleVoucher::IsOpen() const {
  return std::any_of(Lines.begin(), Lines.end(),
                     [](const SampleLine& line) { return IsBank(line.Account) && line.Cleared.IsEmpty(); });
}

std::string SampleVoucher::BankBook(int bank) { return WithBankNumber("B", bank); }

std::string SampleVoucher::ReceiptType(int bank) { return WithBankNumber("BR", bank); }

std::string SampleVoucher::PaymentType(int bank) { return WithBankNumber("BP", bank); }

}  // namespace quillon
