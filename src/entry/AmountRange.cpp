#include "entry/AmountRange.h"

#include "host/services/IStd.h"

namespace quillon {

bool AmountRange::Contains(Amount amount) const {
  return (From.IsZero() || amount >= From) && (To.IsZero() || amount <= To);
}

std::string AmountRange::Words(const std::string& side) const {
  if (IsOpen()) return "";
  const std::string from = gStd->FormatAmount(From, "n2");
  const std::string to = gStd->FormatAmount(To, "n2");
  if (From.IsZero()) return side + " Amt. <= " + to;
  if (To.IsZero()) return side + " Amt. >= " + from;
  return side + " Amt. Between " + from + " and " + to;
}

std::string AmountRange::Bounds(const std::string& amount) const {
  const std::string least = amount + ">=" + From.ToString();
  const std::string most = amount + "<=" + To.ToString();
  if (From.IsZero()) return "(" + most + ")";
  if (To.IsZero()) return "(" + least + ")";
  return "(" + least + " and " + most + ")";
}

std::string AmountRange::DebitCondition() const {
  return IsOpen() ? "" : " and ((a.damt>0 and " + Bounds("a.damt") + ") or a.damt<0)";
}

std::string AmountRange::CreditCondition() const {
  return IsOpen() ? "" : " and ((a.damt<0 and " + Bounds("abs(a.damt)") + ") or a.damt>0)";
}

}  // namespace quillon
