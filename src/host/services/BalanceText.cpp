#include "host/services/BalanceText.h"

#include "host/services/IStd.h"

namespace quillon {

std::string BalanceText(Amount balance, const std::string& key) {
  return gStd->FormatAmount(balance.Abs(), key) + (balance < Amount() ? " Cr." : " Dr.");
}

}  // namespace quillon
