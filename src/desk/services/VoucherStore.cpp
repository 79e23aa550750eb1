#include "desk/services/VoucherStore.h"

#include <algorithm>

#include "books/SqlText.h"
#include "host/data/CDataSet.h"
#include "host/data/TransactionScope.h"
#include "host/values/Errors.h"
#include "host/values/Text.h"

namespace quillon {

namespace {

struct StoredLine {
  int Number;
  VoucherLine Line;
};

void CheckLine(const NewVoucher& voucher, const VoucherLine& line) {
  if (voucher.Day.IsEmpty()) throw HostError("The voucher has no date");
  if (line.Account == 0) throw HostError("A line of the voucher has no account");
  if (line.Value.IsZero()) throw HostError("A line of the voucher has no amount");
}

void CheckWhole(const NewVoucher& voucher) {
  if (voucher.Lines.size() < 2) throw HostError("A voucher has at least two lines");
  Amount sum;
  for (const VoucherLine& line : voucher.Lines) {
    CheckLine(voucher, line);
    sum += line.Value;
  }
  if (!sum.IsZero())
    throw HostError("The debits and credits of the voucher differ by " + sum.Abs().ToString());
}

/// The account that names the other side of a line: the largest line of the other sign. 0 when there is none.
std::int64_t OtherSideOf(const VoucherLine& line, const std::vector<StoredLine>& lines) {
  const VoucherLine* other = nullptr;
  for (const StoredLine& stored : lines) {
    const VoucherLine& one = stored.Line;
    const bool opposite = (one.Value < Amount()) != (line.Value < Amount());
    if (opposite && (other == nullptr || one.Value.Abs() > other->Value.Abs())) other = &one;
  }
  return other != nullptr ? other->Account : 0;
}

}  // namespace

std::int64_t VoucherStore::Store(const NewVoucher& voucher) {
  CheckWhole(voucher);
  TransactionScope work(year_);
  const Common common = NewCommon(voucher);
  int number = 0;
  for (const VoucherLine& line : voucher.Lines) WriteLine(common, voucher, line, ++number);
  NameOtherSides(common.Id);
  work.Commit();
  return ValInteger(common.Id);
}

std::int64_t VoucherStore::Begin(const NewVoucher& voucher, int line) {
  CheckLine(voucher, voucher.Lines.at(0));
  TransactionScope work(year_);
  const Common common = NewCommon(voucher);
  WriteLine(common, voucher, voucher.Lines.front(), line);
  work.Commit();
  return ValInteger(common.Id);
}

void VoucherStore::AddLine(std::int64_t id, const NewVoucher& voucher, int line) {
  CheckLine(voucher, voucher.Lines.at(0));
  TransactionScope work(year_);
  CDataSet known;
  known.Open("Select First 1 dVchNo,NarrationID from FAData where VoucherID=" + books::SqlNumber(id) +
                 " order by dVchSubNo",
             year_);
  if (known.Eof()) throw HostError("There is no voucher " + std::to_string(id) + " to post to");
  const Common common{books::SqlNumber(id), books::SqlString(known.Field("dVchNo").ToText()),
                      books::SqlNumber(known.Field("NarrationID").ToInteger())};
  WriteLine(common, voucher, voucher.Lines.front(), line);
  NameOtherSides(common.Id);
  work.Commit();
}

VoucherStore::Common VoucherStore::NewCommon(const NewVoucher& voucher) {
  return {books::SqlNumber(NextId("FAData", "VoucherID")),
          books::SqlString(voucher.Number.empty() ? NextNumber(voucher.Type) : voucher.Number),
          StoreNarration(voucher.Narration)};
}

void VoucherStore::WriteLine(const Common& common, const NewVoucher& voucher, const VoucherLine& line,
                             int number) {
  const std::string day = books::SqlDate(voucher.Day);
  const std::int64_t serial = year_.Lookup("FAData", "Max(dSrNo)", "dVchDate=" + day).ToInteger() + 1;
  year_.Execute(
      "insert into FAData (VoucherID,dVchSubNo,dSrNo,dVchNo,dVchDate,dcd,dAmt,dBook,dTrnType,dTrnNature,"
      "dLocked,NarrationID) values (" +
      common.Id + "," + std::to_string(number) + "," + books::SqlNumber(serial) + "," + common.Number + "," +
      day + "," + books::SqlNumber(line.Account) + "," + line.Value.ToString() + "," +
      books::SqlString(voucher.Book) + "," + books::SqlString(voucher.Type) + "," +
      std::to_string(voucher.Nature) + ",0," + common.Narration + ")");
}

void VoucherStore::NameOtherSides(const std::string& id) {
  std::vector<StoredLine> lines;
  CDataSet rows;
  for (rows.Open("Select dVchSubNo,dcd,dAmt from FAData where VoucherID=" + id + " order by dVchSubNo",
                 year_);
       !rows.Eof(); rows.MoveNext()) {
    lines.push_back({static_cast<int>(rows.Field("dVchSubNo").ToInteger()),
                     {rows.Field("dcd").ToInteger(), rows.Field("dAmt").ToAmount()}});
  }
  for (const StoredLine& line : lines) {
    const std::int64_t other = OtherSideOf(line.Line, lines);
    if (other == 0) continue;
    year_.Execute("update FAData set dcd2=" + books::SqlNumber(other) + " where VoucherID=" + id +
                  " and dVchSubNo=" + std::to_string(line.Number));
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
