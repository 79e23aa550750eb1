#include "desk/safety/BulkCheck.h"

#include "books/SqlText.h"
#include "host/data/CDataSet.h"
#include "host/services/IStd.h"
#include "host/values/Text.h"

namespace quillon {

namespace {

constexpr std::size_t kNamed = 8;
constexpr const char* kDeletion = "acmassdeletion";
constexpr const char* kPurge = "acmassdelete2";
constexpr const char* kTransfer = "acmasstransfer";
constexpr std::int64_t kContra = 19;

std::set<std::int64_t> Codes(CDbLink& year, const std::string& query) {
  std::set<std::int64_t> codes;
  CDataSet rows;
  for (rows.Open(query, year); !rows.Eof(); rows.MoveNext())
    codes.insert(rows.Field(std::size_t{0}).ToInteger());
  return codes;
}

std::map<std::int64_t, Amount> SumsOf(CDbLink& year, const std::string& query) {
  std::map<std::int64_t, Amount> sums;
  CDataSet rows;
  for (rows.Open(query, year); !rows.Eof(); rows.MoveNext()) {
    sums[rows.Field(std::size_t{0}).ToInteger()] = rows.Field(std::size_t{1}).ToAmount();
  }
  return sums;
}

/// "3, 5, 8 and 12 more"
std::string Listed(const std::vector<std::string>& names) {
  std::vector<std::string> first(names.begin(),
                                 names.begin() + static_cast<long>(std::min(kNamed, names.size())));
  std::string text = text::Join(first, ", ");
  if (names.size() > kNamed) text += " and " + std::to_string(names.size() - kNamed) + " more";
  return text;
}

std::string Listed(const std::set<std::int64_t>& numbers) {
  std::vector<std::string> names;
  names.reserve(numbers.size());
  for (const std::int64_t number : numbers) names.push_back(std::to_string(number));
  return Listed(names);
}

Amount At(const std::map<std::int64_t, Amount>& sums, std::int64_t code) {
  const auto sum = sums.find(code);
  return sum == sums.end() ? Amount() : sum->second;
}

std::set<std::int64_t> NotIn(const std::set<std::int64_t>& some, const std::set<std::int64_t>& known) {
  std::set<std::int64_t> rest;
  for (const std::int64_t each : some) {
    if (!known.contains(each)) rest.insert(each);
  }
  return rest;
}

}  // namespace

BulkCheck::BulkCheck(CDbLink& year, std::string formKey, std::int64_t account)
    : year_(year), formKey_(std::move(formKey)), account_(account), before_(Read()) {}

BulkCheck::State BulkCheck::Read() const {
  const std::string named =
      "a.dcd=" + books::SqlNumber(account_) + " or a.dcd2=" + books::SqlNumber(account_);
  State state;
  state.Balances = SumsOf(year_, "select dcd,sum(dAmt) from FAData group by dcd");
  state.Unbalanced = SumsOf(year_,
                            "select VoucherID,sum(dAmt) from FAData where dTrnType<>'0B' group by VoucherID "
                            "having sum(dAmt)<>0");
  state.Lost = Codes(year_,
                     "select distinct dcd from FAData a where not exists (select 1 from FAMaster b where "
                     "b.mcd=a.dcd)");
  if (account_ == 0) return state;
  state.Own = Codes(year_, "select distinct a.VoucherID from FAData a where " + named);
  state.Reached = Codes(
      year_, "select distinct b.dcd from FAData a join FAData b on b.VoucherID=a.VoucherID where " + named);
  return state;
}

std::string BulkCheck::NameOf(std::int64_t account) const {
  const std::string head = year_.Lookup("FAMaster", "mhd", "mcd=" + books::SqlNumber(account)).ToText();
  return head.empty() ? "account " + std::to_string(account) : head;
}

/// Deleting takes from the accounts of the account's own vouchers; a purge leaves the account its balance;
/// moving and merging leave the sum of the accounts that they change as it was.
void BulkCheck::CompareBalances(const Sums& after, BulkFindings& findings) const {
  std::set<std::int64_t> accounts;
  for (const auto& sum : before_.Balances) accounts.insert(sum.first);
  for (const auto& sum : after) accounts.insert(sum.first);
  const bool deletes = formKey_ == kDeletion || formKey_ == kPurge;
  Amount moved;
  std::vector<std::string> changed;
  for (const std::int64_t account : accounts) {
    const Amount was = At(before_.Balances, account);
    const Amount is = At(after, account);
    if (was == is) continue;
    moved += is - was;
    const bool isKept = formKey_ == kPurge && account == account_;
    const bool mayChange = before_.Reached.contains(account) || (formKey_ == kPurge && account == kContra);
    if (deletes && mayChange && !isKept) continue;
    changed.push_back(NameOf(account) + " (" + gStd->FormatAmount(was, "C2") + " before, " +
                      gStd->FormatAmount(is, "C2") + " now)");
  }
  constexpr std::size_t kBoth = 2;
  const bool isMoved = !deletes && moved.IsZero() && (formKey_ != kTransfer || changed.size() <= kBoth);
  if (!changed.empty() && !isMoved)
    findings.Unexplained.push_back("Balances changed: " + Listed(changed) + ".");
}

void BulkCheck::CompareVouchers(const State& after, const std::vector<RowChange>& changes,
                                BulkFindings& findings) const {
  std::set<std::int64_t> touched;
  std::set<std::int64_t> made;
  for (const RowChange& change : changes) {
    if (change.Table != "FADATA") continue;
    const std::int64_t voucher = ValInteger(change.Key);
    (change.What == RowChange::Kind::kAdded ? made : touched).insert(voucher);
  }
  const std::set<std::int64_t> added = NotIn(made, touched);
  if (account_ != 0) {
    const std::set<std::int64_t> foreign = NotIn(touched, before_.Own);
    if (!foreign.empty()) {
      findings.Unexplained.push_back("Vouchers of other accounts were changed: " + Listed(foreign) + ".");
    }
  }
  if (!added.empty()) {
    auto& where = formKey_ == kPurge ? findings.AsItWorks : findings.Unexplained;
    where.push_back("Vouchers were added: " + Listed(added) + ".");
  }
  std::set<std::int64_t> unbalanced;
  for (const auto& voucher : after.Unbalanced) {
    if (At(before_.Unbalanced, voucher.first) != voucher.second) unbalanced.insert(voucher.first);
  }
  if (!unbalanced.empty()) {
    auto& where = formKey_ == kDeletion ? findings.AsItWorks : findings.Unexplained;
    where.push_back("Vouchers do not balance any more: " + Listed(unbalanced) + ".");
  }
}

BulkFindings BulkCheck::Compare(const std::vector<RowChange>& changes) const {
  const State after = Read();
  BulkFindings findings;
  CompareBalances(after.Balances, findings);
  CompareVouchers(after, changes, findings);
  const std::set<std::int64_t> lost = NotIn(after.Lost, before_.Lost);
  if (!lost.empty()) {
    findings.Unexplained.push_back("Entries are left without an account: those of account " + Listed(lost) +
                                   ".");
  }
  return findings;
}

}  // namespace quillon
