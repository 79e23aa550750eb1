#include "bench/BenchFirm.h"

#include <algorithm>
#include <string>

#include "desk/firm/Firm.h"
#include "desk/firm/Schema.h"

namespace quillon::bench {

namespace {

/// Writes the vouchers of the bank's book into a year.
class BankBook {
 public:
  explicit BankBook(const FirmYear& year) : year_(year) {}

  void WriteMasters() {
    Send("insert into CtgMaster (CtgNo,CtgName) values (?,?)", {47, "Banks"});
    Send("insert into CtgMaster (CtgNo,CtgName) values (?,?)", {130, "Sundry Debtors"});
    WriteAccount(kBank, "State Bank, Current A/c", 47);
    Send("insert into RatesPA (mcd,Rate1) values (?,?)", {kBank, Amount::OfText("9.5")});
    for (int i = 0; i < kParties; ++i) WriteAccount(kFirstParty + i, "Party No. " + std::to_string(i), 130);
  }

  void WriteEntry(int entry, int entries) {
    const std::int64_t days = Date::Days(year_.StartDate, year_.EndDate) + 1;
    const Date day = year_.StartDate.AddDays(days * entry / entries);
    const bool isOpen = entry % 10 == 3;
    const Date cleared = isOpen ? Date() : std::min(day.AddDays(entry % 7), year_.EndDate);
    const std::int64_t paise = 10000 + std::int64_t{entry} * 7919 % 50000000;
    const Amount amount = Amount::OfUnits(paise * 100);
    const Amount value = entry % 2 == 0 ? amount : -amount;
    const int party = kFirstParty + entry % kParties;
    const int id = entry + 1;
    WriteLine(id, 1, day, kBank, party, value, cleared);
    WriteLine(id, 2, day, party, kBank, -value, Date());
    const std::string number = std::to_string(470001 + entry);
    Send("insert into FANar (NarrationID,Narration) values (?,?)",
         {id, "Chq. No. " + number + " of " + day.Text()});
    Send("insert into FADocs (VoucherID,ChqReturn,PartyCode) values (?,?,?)",
         {id, entry % 50 == 7 ? "Y" : "N", party});
  }

 private:
  void Send(const char* statement, const std::vector<Variant>& values) {
    year_.Db->ExecuteWith(statement, values);
  }

  void WriteAccount(int code, const std::string& head, int group) {
    Send("insert into FAMaster (mcd,mhd,mst,mbshno) values (?,?,?,?)", {code, head, "Indore", group});
  }

  void WriteLine(int id, int line, Date day, int account, int other, Amount value, Date cleared) {
    Send(
        "insert into FAData (VoucherID,dVchSubNo,dSrNo,dVchNo,dVchDate,dcd,dcd2,dAmt,dBook,dTrnType,"
        "dTrnNature,dBankDate,dLocked,NarrationID) values (?,?,?,?,?,?,?,?,?,?,?,?,?,?)",
        {id, line, id, std::to_string(id), day, account, other, value, "B1", "BR1", 1, cleared, 0, id});
  }

  const FirmYear& year_;
};

}  // namespace

void MakeBenchFirm(const std::filesystem::path& folder, int entries) {
  FirmDetails details;
  details.FirmName = "Bench Trading Co.";
  CreateFirm(folder, details, {kYear});
  const std::unique_ptr<Firm> firm = Firm::Open(folder, {.WaitsForDisk = false});
  const FirmYear& year = firm->OpenYear(kYear);
  BankBook book(year);
  year.Db->BeginTrans();
  book.WriteMasters();
  for (int entry = 0; entry < entries; ++entry) book.WriteEntry(entry, entries);
  year.Db->CommitTrans();
  Schema::RefreshStatistics(*year.Db);
}

}  // namespace quillon::bench
