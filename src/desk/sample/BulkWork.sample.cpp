#include <algorithm>
#include <string>

#include "desk/sample/SamplePiece.h"
#include "host/values/Text.h"

namespace quillon {

namespace {

constexpr int kTransporter = 3001;
constexpr int kTransporterTwice = 3011;
constexpr int kRenamed = 1030;  ///< from 2024 on it is there once more, under its new name
constexpr int kRenamedTwice = 1506;
constexpr int kGone = 1507;  ///< was taken out of the books before 2024
constexpr int kFirstYearAfter = 2024;

/// Entries that come to nothing over the year, so that no balance of it changes.
class EntriesAside {
 public:
  explicit EntriesAside(const SampleYearSoFar& year)
      : year_(year), voucher_(year.Link.Lookup("FAData", "Max(VoucherID)", "").ToInteger()) {}

  /// An amount against purchases, and a month later back again.
  void Add(int account, int days, int amount, const std::string& narration, const std::string& back) {
    Post(account, year_.Start.AddDays(days), -amount, narration);
    Post(account, year_.Start.AddDays(days + 30), amount, back);
  }

 private:
  void Post(int account, Date day, int amount, const std::string& narration) {
    const Variant note[] = {++voucher_, narration};
    year_.Link.ExecuteWith("insert into FANar (NarrationID,Narration) values (?,?)", note);
    int line = 0;
    for (const int side : {1, -1}) {
      const int own = side > 0 ? account : SampleCode::kPurchases;
      const int other = side > 0 ? SampleCode::kPurchases : account;
      const Variant values[] = {voucher_, ++line, 9000 + line, "F" + std::to_string(voucher_),
                                day,      own,    other,       amount * side,
                                voucher_};
      year_.Link.ExecuteWith(
          "insert into FAData (VoucherID,dVchSubNo,dSrNo,dVchNo,dVchDate,dcd,dcd2,dAmt,NarrationID,dBook,dTrnType,"
          "dTrnNature,dLocked) values (?,?,?,?,?,?,?,?,?,'J','JD1',0,0)",
          values);
    }
  }

  const SampleYearSoFar& year_;
  std::int64_t voucher_;
};

const SampleAccount& AccountOf(const SampleMasters& masters, int code) {
  return *std::find_if(masters.Accounts().begin(), masters.Accounts().end(),
                       [code](const SampleAccount& account) { return account.Code == code; });
}

/// The account of that code once more, under another code and head.
void Double(const SampleYearSoFar& year, int code, int twice, const std::string& head) {
  const Variant master[] = {twice, head, code};
  year.Link.ExecuteWith(
      "insert into FAMaster (mcd,mhd,mst,mhda1,mbshno,mgrpno) select ?,?,mst,mhda1,mbshno,mgrpno from FAMaster "
      "where mcd=?",
      master);
  const Variant search[] = {twice, head,
                            text::ReplaceAll(text::ReplaceAll(text::Upper(head), " ", ""), ".", "")};
  year.Link.ExecuteWith("insert into FAHeads (Code,SubCode,Head,PressHead) values (?,0,?,?)", search);
}

/// Cash vouchers with a document or a lock, and documents of the accounts with another party's name.
void MarkVouchers(const SampleYearSoFar& year) {
  const Variant last[] = {year.Link.Lookup("DocMain", "Max(DocumentID)", "").ToInteger()};
  year.Link.ExecuteWith(
      "insert into DocMain (DocumentID,DocVoucherID,DocSeries,dLocked,PartyCode) select cast(? as integer)+"
      "row_number() over (order by VoucherID),VoucherID,'CM',0,dcd from FAData where dBook='C' and dcd<>1 and "
      "mod(VoucherID,9)=0",
      last);
  year.Link.Execute("update FAData set dLocked=1 where dBook='C' and mod(VoucherID,7)=0");
  year.Link.Execute("update DocMain set PartyCode=2011 where DocSeries='FAS' and mod(DocumentID,4)=0");
}

/// A transporter who stands in the books twice, and has entries.
void DoubleTransporter(const SampleYearSoFar& year, EntriesAside& entries) {
  Double(year, kTransporter, kTransporterTwice, "Sahyadri Road Lines");
  for (const char* change :
       {"update DocMain set TransportCode=3011 where TransportCode=3001 and mod(DocVoucherID,3)=0",
        "update FADocs set TransportCode=3011 where TransportCode=3001 and mod(VoucherID,3)=0",
        "update FAMaster set mTransportCode=3011 where mTransportCode=3001 and mod(mcd,4)=0"}) {
    year.Link.Execute(change);
  }
  for (const int code : {kTransporter, kTransporterTwice}) {
    for (const int days : {40, 130, 220}) {
      entries.Add(code, days, 500 + days, "Freight of goods received", "Freight taken back, goods damaged");
    }
  }
}

void WriteBulkWork(const SampleYearSoFar& year) {
  EntriesAside entries(year);
  MarkVouchers(year);
  DoubleTransporter(year, entries);
  const std::string head = AccountOf(year.Masters, kRenamed).Head;
  if (year.Start.Year() >= kFirstYearAfter) {
    Double(year, kRenamed, kRenamedTwice, head + " Pvt. Ltd.");
    entries.Add(kRenamedTwice, 60, 8200, "Goods bought of them", "Goods sent back");
  } else {
    Double(year, kRenamed, kGone, head + " (Retail)");
    entries.Add(kGone, 60, 3100, "Goods bought of them", "Goods sent back");
  }
}

}  // namespace

SamplePiece BulkWorkSample() { return {40, WriteBulkWork}; }

}  // namespace quillon
