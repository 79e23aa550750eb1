#include "desk/services/VoucherStore.h"

#include <algorithm>

#include "books/SqlText.h"
#include "host/data/TransactionScope.h"
#include "host/values/Errors.h"
#include "host/values/Text.h"

namespace quillon {

namespace {

void Check(const NewVoucher& voucher) {
  if (voucher.Day.IsEmpty()) throw HostError("The voucher has no date");
  if (voucher.Lines.size() < 2) throw HostError("A voucher has at least two lines");
  Amount sum;
  for (const VoucherLine& line : voucher.Lines) {
    if (line.Account == 0) throw HostError("A line of the voucher has no account");
    if (line.Value.IsZero()) throw HostError("A line of the voucher has no amount");
    sum += line.Value;
  }
  if (!sum.IsZero())
    throw HostError("The debits and credits of the voucher differ by " + sum.Abs().ToString());
}

/// The account that names the other side of a line: the largest line of the other sign.
std::int64_t OtherSideOf(const VoucherLine& line, const std::vector<VoucherLine>& lines) {
  const VoucherLine* other = nullptr;
  for (const VoucherLine& one : lines) {
    const bool opposite = (one.Value < Amount()) != (line.Value < Amount());
    if (opposite && (other == nullptr || one.Value.Abs() > other->Value.Abs())) other = &one;
  }
  return other != nullptr ? other->Account : 0;
}

}  // namespace

std::int64_t VoucherStore::Store(const NewVoucher& voucher) {
  Check(voucher);
  TransactionScope work(year_);
  const std::int64_t id = StoreLines(voucher);
  work.Commit();
  return id;
}

void VoucherStore::Append(std::int64_t id, const NewVoucher& more) {
  Check(more);
  TransactionScope work(year_);
  const std::string where = "VoucherID=" + books::SqlNumber(id);
  const std::int64_t last = year_.Lookup("FAData", "Max(dVchSubNo)", where).ToInteger();
  if (last == 0) throw HostError("There is no voucher " + std::to_string(id));
  WriteLines(id, static_cast<int>(last) + 1, year_.Lookup("FAData", "dVchNo", where).ToText(), more);
  work.Commit();
}

std::int64_t VoucherStore::StoreLines(const NewVoucher& voucher) {
  const std::int64_t id = NextId("FAData", "VoucherID");
  WriteLines(id, 1, voucher.Number.empty() ? NextNumber(voucher.Type) : voucher.Number, voucher);
  return id;
}

void VoucherStore::WriteLines(std::int64_t id, int firstLine, const std::string& number,
                              const NewVoucher& voucher) {
  const std::string narration = StoreNarration(voucher.Narration);
  const std::string day = books::SqlDate(voucher.Day);
  std::int64_t serial = year_.Lookup("FAData", "Max(dSrNo)", "dVchDate=" + day).ToInteger();
  int line = firstLine;
  for (const VoucherLine& one : voucher.Lines) {
    year_.Execute(
        "insert into FAData "
        "(VoucherID,dVchSubNo,dSrNo,dVchNo,dVchDate,dcd,dcd2,dAmt,dBook,dTrnType,dTrnNature,"
        "dLocked,NarrationID) values (" +
        books::SqlNumber(id) + "," + std::to_string(line++) + "," + std::to_string(++serial) + "," +
        books::SqlString(number) + "," + day + "," + books::SqlNumber(one.Account) + "," +
        books::SqlNumber(OtherSideOf(one, voucher.Lines)) + "," + one.Value.ToString() + "," +
        books::SqlString(voucher.Book) + "," + books::SqlString(voucher.Type) + "," +
        std::to_string(voucher.Nature) + ",0," + narration + ")");
  }
}

std::int64_t VoucherStore::NextId(const std::string& table, const std::string& column) {
  return year_.Lookup(table, "Max(" + column + ")", "").ToInteger() + 1;
}

/// Numbers are texts, so that the longest of the greatest counts.
std::string VoucherStore::NextNumber(const std::string& type) {
  const Variant last = year_.Lookup(
      "FAData", "Max(cast(dVchNo as integer))",
      "dTrnType=" + books::SqlString(type) + " and dVchNo similar to '[0-9]+' and char_length(dVchNo)<10");
  return std::to_string(last.ToInteger() + 1);
}

std::string VoucherStore::StoreNarration(const std::string& narration) {
  const std::int64_t id = NextId("FANar", "NarrationID");
  year_.Execute("insert into FANar (NarrationID,Narration) values (" + books::SqlNumber(id) + "," +
                books::SqlString(narration) + ")");
  return books::SqlNumber(id);
}

}  // namespace quillon
