#include "desk/services/VoucherDraft.h"

#include "desk/services/AmountFormat.h"

namespace quillon {

namespace {

using Field = VoucherFault::Field;

std::string Rupees(Amount amount) { return "Rs. " + FormatAmount(amount.Abs(), "C2"); }

Amount Sum(const std::vector<VoucherLine>& lines) {
  Amount sum;
  for (const VoucherLine& line : lines) sum += line.Value;
  return sum;
}

/// The column of an amount that is not typed yet: the side that the main account leaves.
Field SideOf(const VoucherDraft& draft) {
  const int main = SpecOf(draft.Kind).MainSide;
  const bool isCredit = main > 0 || (main == 0 && draft.Difference() > Amount());
  return isCredit ? Field::kCredit : Field::kDebit;
}

std::optional<VoucherFault> LineFault(const VoucherDraft& draft, std::size_t at) {
  const VoucherLine& line = draft.Lines[at];
  if (line.Account == 0) return VoucherFault{Field::kAccount, at, "This line has no account."};
  if (line.Account == draft.Main) {
    return VoucherFault{
        Field::kAccount, at,
        std::string("This account is the voucher's ") + SpecOf(draft.Kind).MainCaption + " already."};
  }
  if (line.Value.IsZero()) return VoucherFault{SideOf(draft), at, "This line has no amount."};
  return {};
}

/// Debits and credits are held against the limit one by one, before any sum is made of them.
std::optional<VoucherFault> LimitFault(const VoucherDraft& draft) {
  Amount debits;
  Amount credits;
  for (std::size_t at = 0; at < draft.Lines.size(); ++at) {
    const Amount value = draft.Lines[at].Value;
    const bool isCredit = value < Amount();
    if (value.Abs() < kAmountLimit && ((isCredit ? credits : debits) += value.Abs()) < kAmountLimit) continue;
    return VoucherFault{isCredit ? Field::kCredit : Field::kDebit, at,
                        "A voucher's amounts stay below " + Rupees(kAmountLimit) + "."};
  }
  return {};
}

std::optional<VoucherFault> BalanceFault(const VoucherDraft& draft) {
  const Amount difference = draft.Difference();
  if (!difference.IsZero()) {
    return VoucherFault{difference > Amount() ? Field::kCredit : Field::kDebit, draft.Lines.size() - 1,
                        "The voucher is not even: " + StillMissing(draft) + "."};
  }
  const int side = SpecOf(draft.Kind).MainSide;
  const Amount main = draft.MainValue();
  if (side == 0 || (side > 0 ? main > Amount() : main < Amount())) return {};
  return VoucherFault{
      side > 0 ? Field::kCredit : Field::kDebit, 0,
      std::string(SpecOf(draft.Kind).MainCaption) + " would be " +
          (main.IsZero() ? "neither debited nor credited"
                         : (main > Amount() ? "debited with " : "credited with ") + Rupees(main)) +
          "; a " + SpecOf(draft.Kind).Name + (side > 0 ? " debits" : " credits") + " it."};
}

}  // namespace

Amount VoucherDraft::MainValue() const { return HasMain() ? -Sum(Lines) : Amount(); }

std::vector<VoucherLine> VoucherDraft::AllLines() const {
  std::vector<VoucherLine> all;
  if (HasMain()) all.push_back({Main, MainValue()});
  all.insert(all.end(), Lines.begin(), Lines.end());
  return all;
}

Amount VoucherDraft::Difference() const { return HasMain() ? Amount() : Sum(Lines); }

std::optional<VoucherFault> FaultOf(const VoucherDraft& draft) {
  if (draft.Day.IsEmpty()) return VoucherFault{Field::kDay, 0, "The voucher has no date."};
  if (draft.HasMain() && draft.Main == 0) {
    return VoucherFault{Field::kMain, 0,
                        std::string("Choose the account: ") + SpecOf(draft.Kind).MainCaption + "."};
  }
  if (draft.Lines.empty()) return VoucherFault{Field::kAccount, 0, "The voucher has no line yet."};
  if (auto fault = LimitFault(draft)) return fault;
  for (std::size_t at = 0; at < draft.Lines.size(); ++at) {
    if (auto fault = LineFault(draft, at)) return fault;
  }
  return BalanceFault(draft);
}

std::string StillMissing(const VoucherDraft& draft) {
  const auto limit = LimitFault(draft);
  if (!limit && !draft.Difference().IsZero() && !draft.Lines.empty()) {
    const Amount difference = draft.Difference();
    return Rupees(difference) + " more on the " + (difference > Amount() ? "credit" : "debit") + " side";
  }
  const std::optional<VoucherFault> fault = FaultOf(draft);
  return fault ? fault->Why : "Complete. F7 saves it.";
}

}  // namespace quillon
