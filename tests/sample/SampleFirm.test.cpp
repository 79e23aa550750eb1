#include "desk/sample/SampleFirm.h"

#include <gtest/gtest.h>
#include <map>
#include <sys/wait.h>

#include "desk/firm/Firm.h"
#include "host/data/CDataSet.h"
#include "host/values/Errors.h"
#include "tests/support/TempFolder.h"

namespace quillon {
namespace {

/// All rows of a query as text.
std::string Dump(FirebirdLink& link, const std::string& sql) {
  std::string text;
  CDataSet set;
  for (set.Open(sql, link); !set.Eof(); set.MoveNext()) {
    for (std::size_t i = 0; i < set.FieldNames().size(); ++i) text += set.Field(i).ToText() + "|";
    text += '\n';
  }
  return text;
}

std::string DumpFirm(const std::filesystem::path& folder) {
  const auto firm = Firm::Open(folder);
  std::string text = Dump(*firm->Common(), "select * from Narrations order by NarrationCode");
  for (const int start : firm->Years()) {
    FirebirdLink& db = *firm->OpenYear(start).Db;
    for (const char* sql :
         {"select * from FAData order by VoucherID,dVchSubNo", "select * from FANar order by NarrationID",
          "select * from FAMaster order by mcd", "select * from FADocs order by DocsID",
          "select * from DocMain order by DocumentID", "select * from ChqLeaves order by ID"}) {
      text += Dump(db, sql);
    }
  }
  return text;
}

std::map<int, Amount> Sums(FirebirdLink& db, const std::string& where) {
  std::map<int, Amount> sums;
  CDataSet set;
  for (set.Open("select dcd,sum(dAmt) as total from FAData where dBook<>'MEM' and " + where + " group by dcd",
                db);
       !set.Eof(); set.MoveNext()) {
    const Amount total = set.Field("total").ToAmount();
    if (!total.IsZero()) sums[static_cast<int>(set.Field("dcd").ToInteger())] = total;
  }
  return sums;
}

/// All but the capital, which takes the profit, and the incomes and expenses.
const std::string kBalanceAccounts = "(dcd<200 and dcd<>20 or dcd>1000)";

std::string Before(Date start) { return "dVchDate<'" + start.Format("yyyy-MM-dd") + "'"; }

TEST(SampleFirm, IsOnTheDiskWhenItIsMade) {
  const TempFolder folder;
  const std::filesystem::path place = folder.Path() / "firm";
  MakeSampleFirm(place, {.Years = {2024}, .Vouchers = 40});
  const auto forced = [&place](bool waits) {
    const auto firm = Firm::Open(place, {.WaitsForDisk = waits});
    return firm->OpenYear(2024).Db->Lookup("mon$database", "mon$forced_writes", "").ToInteger() +
           firm->Common()->Lookup("mon$database", "mon$forced_writes", "").ToInteger();
  };
  EXPECT_EQ(forced(true), 2);
  EXPECT_EQ(forced(false), 0) << "as while it is made";
  EXPECT_EQ(forced(true), 2) << "whoever opens it after a making that was killed waits for the disk again";
}

TEST(SampleFirm, TheSameSeedGivesTheSameRows) {
  TempFolder folder;
  SampleOptions options;
  options.Years = {2024};
  options.Vouchers = 400;
  const auto made = [&](const std::string& name) {
    MakeSampleFirm(folder.Path() / name, options);
    return DumpFirm(folder.Path() / name);
  };
  const std::string first = made("one");
  EXPECT_EQ(first, made("two"));
  options.Seed = 2;
  EXPECT_NE(first, made("three"));
  EXPECT_THROW(made("three"), HostError) << "a firm is never overwritten";
}

TEST(SampleFirm, EachYearTakesOverTheBalancesAndTheEntriesThatTheBankHasNotCleared) {
  TempFolder folder;
  MakeSampleFirm(folder.Path() / "firm", {{2025, 2023, 2024}, 600, 7, false, nullptr, true});
  const auto firm = Firm::Open(folder.Path() / "firm");
  ASSERT_EQ(firm->Years(), (std::vector<int>{2022, 2023, 2024, 2025}));
  for (const int start : firm->Years()) {
    const FirmYear& year = firm->OpenYear(start);
    EXPECT_EQ(Dump(*year.Db,
                   "select VoucherID from FAData where dBook<>'0B' group by VoucherID having sum(dAmt)<>0"),
              "");
    EXPECT_EQ(year.Db->Lookup("FAData", "sum(dAmt)", "").ToAmount(), Amount());
    const std::string own =
        "dBook<>'0B' and dTrnType<>'zzz' and dVchNo not starting with 'F' and not " + Before(year.StartDate);
    EXPECT_EQ(year.Db->Lookup("FAData", "count(distinct VoucherID)", own).ToInteger(),
              start == 2022 ? 225 : 600)
        << start;
    EXPECT_FALSE(year.Db->RowExists("select * from FAData where dVchDate>'" +
                                    year.EndDate.Format("yyyy-MM-dd") + "'"));
  }
  for (const int start : {2023, 2024, 2025}) {
    FirebirdLink& last = *firm->OpenYear(start - 1).Db;
    const FirmYear& year = firm->OpenYear(start);
    std::map<int, Amount> closing = Sums(last, kBalanceAccounts);
    EXPECT_EQ(Sums(*year.Db, "(dBook='0B' or " + Before(year.StartDate) + ") and " + kBalanceAccounts),
              closing);
    const std::string open = "dBook<>'MEM' and dBook<>'0B' and dcd in (101,102,103)";
    const std::string entry = "select dVchDate,dVchNo,dcd,dAmt from FAData where ";
    const std::string order = " order by dVchDate,dVchNo,dcd,dAmt";
    const std::string carried = Dump(*year.Db, entry + open + " and " + Before(year.StartDate) + order);
    EXPECT_EQ(carried, Dump(last, entry + open + " and dBankDate is null" + order));
    EXPECT_NE(carried, "");
  }
}

TEST(SampleFirm, TheBooksHaveEverySituationThatTheScreensTreat) {
  TempFolder folder;
  MakeSampleFirm(folder.Path() / "firm", {{2023, 2024}, 700, 3, false});
  const auto firm = Firm::Open(folder.Path() / "firm");
  FirebirdLink& db = *firm->OpenYear(2024).Db;
  const auto expect = [&](const std::string& from) {
    EXPECT_TRUE(db.RowExists("select 1 from " + from)) << from;
  };
  for (
      const char* from :
      {"FAData where dBook='MEM'",
       "FAData where dcd in (101,102,103) and dBankDate<dVchDate",
       "FAData where dcd in (101,102,103) and dBankDate>dVchDate and dVchDate>='2024-04-01'",
       "FAData where dcd in (101,102,103) and dBankDate is null and dVchDate>='2024-04-01' and dBook<>'0B'",
       "FAData where dVchDate<'2024-04-01' and dBankDate>='2024-04-01'",
       "FAData where dLocked=1",
       "FAData where dTrnNature=5022 and dVchDate='2025-03-31'",
       "FADocs d join FAData a on a.VoucherID=d.VoucherID where d.ChqReturn='Y' and a.dcd=101",
       "FADocs group by VoucherID having count(*)>1",
       "FADocs where TransportCode>0 and AgentCode>0",
       "FANar where Narration like '%Chq.No. 47%'",
       "(select a.dcd,substring(n.Narration from 1 for 14) as Cheque from FAData a join FANar n on a.NarrationID=n.NarrationID where a.dcd in (101,102,103) and n.Narration starting with 'Chq.No. ' and extract(day from a.dVchDate) between 20 and 23) group by dcd,Cheque having count(*)=2",
       "DocMain m join DocData d on d.DocumentID=m.DocumentID where DocSeries='FAS'",
       "DocMain where DocSeries<>'FAS' and dLocked=1",
       "ChqLeaves where Cancelled='Y'",
       "ChqLeaves where VoucherID is not null and Amount>0",
       "ChqLeaves where VoucherID is null and Cancelled is null",
       "FAMaster where mbshno=130 and mst='पुणे' and mhda1<>''",
       "FAMaster where mDeactiveDate is not null",
       "FAMaster where mTransportCode>0 and mAgentCode>0",
       "FAMaster group by mhd,mst having count(*)>1",
       "FAMaster where malias1<>'' group by malias1 having count(*)>1",
       "StkHeads a join StkMaster b on a.code=b.qmcd"}) {
    expect(from);
  }
  EXPECT_EQ(db.Lookup("FAData", "count(distinct dTrnNature)",
                      "dTrnNature in (5002,5012,5024,5031,5041,5051,5054,5055,5043,5032,5022,5023)")
                .ToInteger(),
            12);
  EXPECT_TRUE(firm->OpenYear(2023).Db->RowExists("select * from FAData where dTrnType='zzz'"));
  EXPECT_FALSE(db.RowExists("select * from FAData where dTrnType='zzz'"));
  EXPECT_TRUE(firm->Common()->RowExists("select * from Narrations"));
}

TEST(SampleFirm, TheProgramTakesItsOptions) {
  TempFolder folder;
  const auto run = [&](const std::string& options) {
    const std::string command =
        std::string(SAMPLE_PROGRAM) + " '" + folder.File("firm") + "' " + options + " >/dev/null 2>&1";
    return WEXITSTATUS(std::system(command.c_str()));
  };
  EXPECT_EQ(run("--vouchers many"), 2);
  EXPECT_EQ(run("--seed"), 2);
  EXPECT_EQ(run("--everything"), 2);
  EXPECT_FALSE(std::filesystem::exists(folder.File("firm")));
  EXPECT_EQ(run("--empty --years 2024,2022 --seed 5"), 0);
  EXPECT_EQ(run("--empty"), 1) << "there is a firm already";
  const auto firm = Firm::Open(folder.File("firm"));
  EXPECT_EQ(firm->Years(), (std::vector<int>{2022, 2024}));
  FirebirdLink& db = *firm->OpenYear(2024).Db;
  EXPECT_FALSE(db.RowExists("select * from FAMaster"));
  EXPECT_FALSE(db.RowExists("select * from FAData"));
}

}  // namespace
}  // namespace quillon
