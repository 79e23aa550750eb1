#include "desk/services/CrossReference.h"

#include <array>

#include "host/data/CDataSet.h"
#include "host/forms/Progress.h"

namespace quillon {

namespace {

constexpr const char* kLargest =
    "Select First 1 a.dcd,b.mhd from FAData a inner join FAMaster b on a.dcd=b.mcd where a.VoucherID=? and ";
constexpr const char* kOrder = " order by abs(a.dAmt) desc,a.dVchSubNo";

}  // namespace

OtherSide FindOtherSide(CDbLink& db, std::int64_t voucherId, Amount amount) {
  if (voucherId == 0 || amount.IsZero()) return {};
  const std::string side = amount > Amount() ? "a.dAmt<0" : "a.dAmt>0";
  const std::array<Variant, 1> values = {Variant(voucherId)};
  const std::vector<Variant> line = db.FirstRowWith(kLargest + side + kOrder, values);
  if (line.empty()) return {};
  return {line[0].ToInteger(), line[1].ToText()};
}

OtherSide ExpectedSides::Find(std::int64_t voucherId, Amount amount) {
  if (voucherId == 0 || amount.IsZero()) return {};
  if (!isRead_) Read();
  const auto found = sides_.find(voucherId);
  if (found == sides_.end()) return FindOtherSide(db_, voucherId, amount);
  const Line& line = amount > Amount() ? found->second.Credit : found->second.Debit;
  if (line.Head == nullptr) return FindOtherSide(db_, voucherId, amount);
  return {line.Code, *line.Head};
}

void ExpectedSides::ReadHeads() {
  CDataSet heads;
  for (heads.Open("Select mcd,mhd from FAMaster", db_); !heads.Eof(); heads.MoveNext()) {
    heads_.emplace(heads.Field(std::size_t{0}).ToInteger(), heads.Field(std::size_t{1}).ToText());
  }
}

void ExpectedSides::Read() {
  ReadHeads();
  Progress progress("Reading the other sides", 0);
  CDataSet lines;
  for (
      lines.Open(
          "Select l.VoucherID,l.dVchSubNo,l.dcd,l.dAmt from FAData a join FAData l on l.VoucherID=a.VoucherID and l.dVchSubNo<>a.dVchSubNo where " +
              condition_ + " and ((a.dAmt>0 and l.dAmt<0) or (a.dAmt<0 and l.dAmt>0))",
          db_);
      !lines.Eof(); lines.MoveNext(), progress.Step()) {
    const std::int64_t code = lines.Field(std::size_t{2}).ToInteger();
    const auto head = heads_.find(code);
    if (head == heads_.end()) continue;
    Sides& sides = sides_[lines.Field(std::size_t{0}).ToInteger()];
    const Amount amount = lines.Field(std::size_t{3}).ToAmount();
    Take(amount > Amount() ? sides.Debit : sides.Credit,
         {amount.Abs(), lines.Field(std::size_t{1}).ToInteger(), &head->second, code});
  }
  isRead_ = true;
}

void ExpectedSides::Take(Line& largest, const Line& line) {
  const bool isLarger =
      line.Value > largest.Value || (line.Value == largest.Value && line.Number < largest.Number);
  if (largest.Head == nullptr || isLarger) largest = line;
}

}  // namespace quillon
