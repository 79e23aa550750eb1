#include "desk/services/SimilarVouchers.h"

#include <algorithm>

#include "books/BooksNames.h"
#include "books/SqlText.h"
#include "desk/services/NarrationText.h"
#include "desk/services/VoucherBooks.h"
#include "host/data/CDataSet.h"
#include "host/values/Text.h"

namespace quillon {

namespace {

constexpr int kDaysAround = 7;

/// A narration tells a cheque by its digits, with zeros before them or without.
std::string NumberIn(std::string narration) {
  std::string number;
  ChqNoFromNarration(narration, number);
  const std::size_t first = number.find_first_not_of('0');
  return first == std::string::npos ? std::string() : number.substr(first);
}

}  // namespace

std::int64_t SimilarVouchers::Account() const {
  if (const std::int64_t party = PartyOf(year_, draft_); party != 0) return party;
  const auto largest = std::max_element(
      draft_.Lines.begin(), draft_.Lines.end(),
      [](const VoucherLine& a, const VoucherLine& b) { return a.Value.Abs() < b.Value.Abs(); });
  return largest != draft_.Lines.end() ? largest->Account : 0;
}

std::vector<SimilarEntry> SimilarVouchers::Find() const {
  std::vector<SimilarEntry> found;
  const std::int64_t account = Account();
  AddAmounts(found, account);
  AddCheques(found);
  if (IsBill(draft_.Kind)) AddBills(found, account);
  std::sort(found.begin(), found.end(), [](const SimilarEntry& a, const SimilarEntry& b) {
    return std::pair(a.Day, a.Voucher) < std::pair(b.Day, b.Voucher);
  });
  const auto repeated =
      std::unique(found.begin(), found.end(),
                  [](const SimilarEntry& a, const SimilarEntry& b) { return a.Voucher == b.Voucher; });
  found.erase(repeated, found.end());
  return found;
}

std::vector<SimilarEntry> SimilarVouchers::Read(const std::string& condition) const {
  std::vector<SimilarEntry> found;
  CDataSet rows;
  for (
      rows.Open(
          "Select a.VoucherID,a.dVchDate,a.dBook,a.dVchNo,a.dAmt,n.Narration from FAData a left join FANar n "
          "on a.NarrationID=n.NarrationID where " +
              condition + " and a.VoucherID<>" + books::SqlNumber(self_) + " and " +
              books::InLists("a.dBook"),
          year_);
      !rows.Eof(); rows.MoveNext()) {
    found.push_back({rows.Field("VoucherID").ToInteger(), rows.Field("dVchDate").ToDate(),
                     rows.Field("dBook").ToText(), rows.Field("dVchNo").ToText(),
                     rows.Field("Narration").ToText(), rows.Field("dAmt").ToAmount()});
  }
  return found;
}

void SimilarVouchers::AddAmounts(std::vector<SimilarEntry>& found, std::int64_t account) const {
  if (draft_.Kind == VoucherKind::kContra) return;  // it is with nobody
  for (const VoucherLine& line : draft_.AllLines()) {
    if (line.Account != account) continue;
    const auto same = Read("a.dcd=" + books::SqlNumber(account) + " and a.dAmt=" + line.Value.ToString() +
                           " and a.dVchDate between " +
                           books::SqlDate(draft_.Day.AddDays(-kDaysAround), draft_.Day.AddDays(kDaysAround)));
    found.insert(found.end(), same.begin(), same.end());
  }
}

/// Of our own cheques and of those that were received.
std::string SimilarVouchers::ChequeNumber() const {
  return draft_.Cheque != 0 ? std::to_string(draft_.Cheque) : NumberIn(draft_.Narration);
}

void SimilarVouchers::AddCheques(std::vector<SimilarEntry>& found) const {
  const std::string number = ChequeNumber();
  const std::string banks = "Select mcd from FAMaster where mbshno=" + books::SqlNumber(books::kBankGroup);
  if (number.empty() || draft_.Main == 0 ||
      !year_.RowExists(banks + " and mcd=" + books::SqlNumber(draft_.Main)))
    return;
  const int side = SpecOf(draft_.Kind).MainSide;
  for (const SimilarEntry& entry :
       Read("a.dcd=" + books::SqlNumber(draft_.Main) + (side > 0 ? " and a.dAmt>0" : " and a.dAmt<0") +
            " and n.Narration containing " + books::SqlString(number))) {
    if (NumberIn(entry.Narration) == number) found.push_back(entry);
  }
}

void SimilarVouchers::AddBills(std::vector<SimilarEntry>& found, std::int64_t account) const {
  if (draft_.Number.empty()) return;
  const auto same =
      Read("a.dcd=" + books::SqlNumber(account) + " and a.dVchNo=" + books::SqlString(draft_.Number) +
           " and a.dTrnType starting with " + books::SqlString(SpecOf(draft_.Kind).TypePrefix));
  found.insert(found.end(), same.begin(), same.end());
}

}  // namespace quillon
