#include "desk/firm/Firm.h"

#include <fstream>
#include <gtest/gtest.h>
#include <unistd.h>

#include "desk/firm/Schema.h"
#include "host/data/CDataSet.h"
#include "host/values/Errors.h"
#include "host/values/Text.h"
#include "tests/support/FirebirdServer.h"
#include "tests/support/TempFolder.h"

namespace quillon {
namespace {

const FirmDetails kDetails{"Sharda Trading Co.", "R. K. Joshi", "Partner", "14, Budhwar Peth",
                           "Near City Post",     "Opp. Bank",   "Pune",    "411002",
                           "Maharashtra",        "020-24451122"};

class FirmTest : public testing::Test {
 protected:
  std::filesystem::path Folder() const { return folder_.Path() / "firm"; }
  std::string File(const std::string& name) const { return (Folder() / name).string(); }

  void Write(const std::string& name, const std::string& text) const {
    std::ofstream(File(name), std::ios::trunc) << text;
  }

  /// What opening the firm, and a year, is refused with.
  std::string Refusal(int year = 2024) const {
    try {
      Firm::Open(Folder())->OpenYear(year);
    } catch (const HostError& error) {
      return error.what();
    }
    return "opened";
  }

  static bool Has(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
  }

  TempFolder folder_;
};

TEST_F(FirmTest, ANewFirmHasItsRowYearsAndTables) {
  CreateFirm(Folder(), kDetails, {2024, 2023});
  const auto firm = Firm::Open(Folder());
  EXPECT_EQ(firm->Name(), "Sharda Trading Co.");
  EXPECT_EQ(firm->Years(), (std::vector<int>{2023, 2024}));
  CDataSet row;
  row.Open("select * from Firm", *firm->Common());
  EXPECT_EQ(row.Field("AuthDesig").ToText(), "Partner");
  EXPECT_EQ(row.Field("Pin").ToText(), "411002");
  EXPECT_EQ(row.RecordCount(), 1);

  const FirmYear& year = firm->OpenYear(2024);
  EXPECT_EQ(year.StartDate, Date::Of(2024, 4, 1));
  EXPECT_EQ(year.EndDate, Date::Of(2025, 3, 31));
  EXPECT_EQ(year.Db->Label(), "2024");
  EXPECT_EQ(&firm->OpenYear(2024), &year) << "one link for each year";
  EXPECT_FALSE(firm->Common()->TableExists("MLETTERS"));
  EXPECT_THROW(CreateFirm(Folder(), kDetails, {2024}), HostError);
  EXPECT_EQ(Refusal(2022), "The firm Sharda Trading Co. has no year 2022-23");
}

TEST_F(FirmTest, RowsThatNameTheKnownColumnsGoIntoEveryTable) {
  // The sample firm fills the others by their columns.
  CreateFirm(Folder(), kDetails, {2024});
  const auto firm = Firm::Open(Folder());
  FirebirdLink& db = *firm->OpenYear(2024).Db;
  for (const char* sql :
       {"insert into FAMaster (mcd,mhd,mst,mhda1,malias1,mName,mbshno,mgrpno,mPhoneOff,mCellNo,mAadharNo,"
        "mBankName,mBankBranch,mBankStn,mIFSCCode,mBankAcNo,mDeactiveDate,mTransportCode,mAgentCode) "
        "values (201,'श्री ट्रेडर्स','Pune','1 Road','SHRI','Ganesh',130,1,'1','2','3','SBI','Camp','Pune',"
        "'SBIN0001','123',null,301,401)",
        "insert into FAMaster (mcd,mhd) values (202,'Second')",
        "insert into FAHeads (Code,SubCode,Head,PressHead) values (201,0,'Shri','SHRI')",
        "insert into RatesPA (mcd,Rate1) values (201,12.5)"}) {
    EXPECT_NO_THROW(db.Execute(sql)) << sql;
  }
  for (const char* table :
       {"BANKMASTER", "MSTCLASSES", "TDSDEP", "VATCATEGORYTAXRATES", "FIRMDETAILS", "COMDATA"}) {
    EXPECT_TRUE(db.TableExists(table)) << table;
  }
  firm->Common()->Execute(
      "Create Table MLetters (ID Int,LetterName Varchar(100),LetterText Blob sub_type text)");
  EXPECT_EQ(db.Lookup("V_FAHEADS1", "mbshno", "PressHead like 'SH%'").ToInteger(), 130);
  db.Execute("EXECUTE PROCEDURE DELETE_MASTER(201)");
  for (const char* table : {"FAMaster", "RatesPA"})
    EXPECT_FALSE(db.RowExists(std::string("select * from ") + table + " where mcd=201"));
  EXPECT_FALSE(db.RowExists("select * from FAHeads"));
  EXPECT_TRUE(db.RowExists("select * from FAMaster where mcd=202"));
}

TEST_F(FirmTest, WhatCannotBeOpenedSaysWhy) {
  EXPECT_TRUE(Has(Refusal(), "There is no folder"));
  std::filesystem::create_directory(Folder());
  EXPECT_TRUE(Has(Refusal(), "holds no firm"));
  CreateFirm(Folder(), kDetails, {2024});
  EXPECT_EQ(Refusal(), "opened");

  const std::string whole = [&] {
    std::ifstream in(File("firm.json"));
    return std::string(std::istreambuf_iterator<char>(in), {});
  }();
  for (const std::string& damaged : {std::string("{"), std::string("[]"), std::string("{\"schema\":1}"),
                                     whole.substr(0, whole.size() / 2)}) {
    Write("firm.json", damaged);
    EXPECT_TRUE(Has(Refusal(), "firm.json is damaged")) << damaged << ": " << Refusal();
  }
  const auto with = [&](const std::string& from, const std::string& to) {
    return text::ReplaceAll(whole, from, to);
  };
  for (const std::string& strange :
       {with("\"2024\"", "\"2024x\""), with("\"2024\"", "\"20244\""), with("2024-04-01", "2025-04-02"),
        with("\"2024-04-01\"", "5"), with("\"2024.fdb\"", "[]"), with("\"common.fdb\"", "7")}) {
    Write("firm.json", strange);
    EXPECT_TRUE(Has(Refusal(), "firm.json is damaged")) << strange << ": " << Refusal();
  }
  Write("firm.json", R"({"schema":99,"anything":"else"})");
  EXPECT_TRUE(Has(Refusal(), "newer version"));
  Write("firm.json", whole);

  std::filesystem::rename(File("2024.fdb"), File("away"));
  EXPECT_TRUE(Has(Refusal(), "2024.fdb of the firm is missing"));
  Write("2024.fdb", "this is no database");
  EXPECT_TRUE(Has(Refusal(), "damaged")) << Refusal();
  std::filesystem::copy_file(File("away"), File("2024.fdb"),
                             std::filesystem::copy_options::overwrite_existing);
  std::filesystem::resize_file(File("2024.fdb"), std::filesystem::file_size(File("away")) / 4);
  EXPECT_NE(Refusal(), "opened") << "half a database";
  std::filesystem::rename(File("away"), File("2024.fdb"));
  EXPECT_EQ(Refusal(), "opened");

  Firm::Open(Folder())->OpenYear(2024).Db->Execute("update SchemaVersion set Version=99");
  EXPECT_TRUE(Has(Refusal(), "2024.fdb was written by a newer version"));
}

/// What is done in a folder that cannot be written; root, who may write everywhere, acts as another user.
template <class Act>
void WithoutTheRight(const std::filesystem::path& folder, Act act) {
  namespace fs = std::filesystem;
  FirebirdEngine::Prepare();
  constexpr uid_t kNobody = 65534;
  const bool isRoot = geteuid() == 0;
  fs::permissions(folder.parent_path(), fs::perms::all);
  fs::permissions(folder, static_cast<fs::perms>(0555));
  ASSERT_TRUE(!isRoot || seteuid(kNobody) == 0);
  act();
  ASSERT_TRUE(!isRoot || seteuid(0) == 0);
  fs::permissions(folder, fs::perms::all);
}

TEST_F(FirmTest, AFirmThatCannotBeWrittenIsRefused) {
  CreateFirm(Folder(), kDetails, {2024});
  std::filesystem::remove(File("firm.lock"));
  std::string refusal;
  std::string making;
  WithoutTheRight(Folder(), [&] {
    refusal = Refusal();
    try {
      CreateFirm(Folder() / "inner", kDetails, {2024});
    } catch (const HostError& error) {
      making = error.what();
    }
  });
  EXPECT_TRUE(Has(refusal, "no permission to write")) << refusal;
  EXPECT_TRUE(Has(making, "no permission to write")) << making;
}

TEST_F(FirmTest, AMakingThatFailsLeavesNothingBehind) {
  std::filesystem::create_directory(Folder());
  Write("2024.fdb", "somebody else's file");
  EXPECT_THROW(CreateFirm(Folder(), kDetails, {2023, 2024}), HostError);
  EXPECT_FALSE(std::filesystem::exists(File("common.fdb")));
  EXPECT_FALSE(std::filesystem::exists(File("2023.fdb")));
  std::filesystem::remove(File("2024.fdb"));
  CreateFirm(Folder(), kDetails, {2023, 2024});
  EXPECT_EQ(Refusal(), "opened");
}

TEST_F(FirmTest, AnotherUserOrMachineIsKeptOut) {
  CreateFirm(Folder(), kDetails, {2024});
  auto first = Firm::Open(Folder());
  EXPECT_EQ(Refusal(), "opened") << "several desks of one user share a firm";
  std::ifstream in(File("firm.lock"));
  const std::string own(std::istreambuf_iterator<char>(in), {});
  const auto with = [&](const std::string& part, const std::string& value) {
    const std::size_t at = own.find(part + " ") + part.size() + 1;
    return own.substr(0, at) + value + own.substr(own.find('\n', at));
  };
  for (const std::string& other :
       {with("user", "4711"), with("machine", "m2"), with("boot", "b2"), with("place", "1:2")}) {
    Write("firm.lock", other);
    EXPECT_NE(Refusal(), "opened") << other;
  }
  Write("firm.lock", own);
  first.reset();
  EXPECT_EQ(Refusal(), "opened");

  Write("firm.lock", with("boot", "earlier"));
  EXPECT_EQ(Refusal(), "opened") << "this machine was started anew: whoever had the firm open is gone";
  Write("firm.lock",
        text::ReplaceAll(with("machine", "m2"), own.substr(own.find("host ")), "host far-away\n"));
  try {
    Firm::Open(Folder());
    ADD_FAILURE() << "the other machine's lock holds";
  } catch (const OtherMachineError& error) {
    EXPECT_EQ(error.Host(), "far-away");
  }
  EXPECT_THROW(Firm::Open(Folder(), {.TakeOver = "another"}), OtherMachineError);
  Firm::Open(Folder(), {.TakeOver = "far-away"});
  EXPECT_EQ(Refusal(), "opened");
}

TEST_F(FirmTest, AFileThatIsReplacedWhileItIsOpenTakesNoMore) {
  CreateFirm(Folder(), kDetails, {2024});
  const auto firm = Firm::Open(Folder());
  FirebirdLink& db = *firm->OpenYear(2024).Db;
  db.Execute("insert into FANar values (1,'kept')");
  std::filesystem::copy_file(File("2024.fdb"), File("copy.fdb"));
  std::filesystem::rename(File("copy.fdb"), File("2024.fdb"));
  EXPECT_THROW(db.Execute("insert into FANar values (2,'lost')"), DbError);
  std::filesystem::remove(File("2024.fdb"));
  EXPECT_THROW(db.Execute("insert into FANar values (2,'lost')"), DbError);
  firm->Common()->Execute("insert into Narrations values ('A','kept')");
}

TEST_F(FirmTest, AFirmThatWasNotSurvivedIsToldOnce) {
  CreateFirm(Folder(), kDetails, {2024});
  std::ofstream(FirmLock::Folder().Path() / "opening") << File("2024.fdb");
  EXPECT_TRUE(Has(Refusal(), "ended while it was opening " + File("2024.fdb"))) << Refusal();
  EXPECT_EQ(Refusal(), "opened");
}

TEST_F(FirmTest, AFolderHasAnyName) {
  for (const char* name : {"देवी & Co", "10:30", "caf\xe9"}) {
    const std::filesystem::path place = folder_.Path() / name;
    CreateFirm(place, kDetails, {2024});
    Firm::Open(place)->OpenYear(2024).Db->Execute("insert into FANar values (1,'kept')");
    std::filesystem::create_directory_symlink(place, Folder());
    EXPECT_TRUE(Firm::Open(Folder())->OpenYear(2024).Db->RowExists("select * from FANar")) << "by a link";
    std::filesystem::remove(Folder());
    std::filesystem::rename(place, Folder());
    EXPECT_TRUE(Firm::Open(Folder())->OpenYear(2024).Db->RowExists("select * from FANar")) << "moved";
    std::filesystem::rename(Folder(), place);
  }
}

/// The version that firms are made in, and the program's own steps with more behind them.
const int kNow = VersionAfter(AllSchemaSteps());

std::vector<SchemaStep> After(const std::vector<SchemaStep>& more) {
  std::vector<SchemaStep> steps = AllSchemaSteps();
  steps.insert(steps.end(), more.begin(), more.end());
  return steps;
}

TEST_F(FirmTest, AnOlderFirmIsBroughtUpInAllItsDatabasesOrNone) {
  using Kind = SchemaStep::Database;
  CreateFirm(Folder(), kDetails, {2023, 2024});
  Firm::Open(Folder())->OpenYear(2024).Db->Execute("insert into FANar values (1,'kept')");
  std::vector<SchemaStep> steps =
      After({{1, Kind::kYear, kNow, {"create table Letters (Code integer)"}},
             {1, Kind::kCommon, kNow, {"create table Styles (Code integer)"}},
             {1, Kind::kYear, kNow + 1, {"insert into Letters values (7)"}},
             {1, Kind::kCommon, kNow + 1, {"create table Styles (Twice integer)"}}});
  const auto open = [&] { return Firm::Open(Folder(), {.TakeOver = "", .Steps = &steps}); };
  try {
    open();
    ADD_FAILURE() << "the last step cannot be carried out";
  } catch (const DbError& error) {
    EXPECT_TRUE(Has(error.what(), "It is as it was")) << error.what();
    EXPECT_TRUE(Has(error.Details(), "STYLES")) << error.Details();
  }
  for (const int year : {2023, 2024}) {
    EXPECT_FALSE(Firm::Open(Folder())->OpenYear(year).Db->TableExists("LETTERS")) << year;
  }
  steps.pop_back();
  {
    const auto other = Firm::Open(Folder());
    EXPECT_THROW(open(), HostError) << "another program has it open";
  }
  const auto firm = open();
  for (const int year : {2023, 2024}) {
    EXPECT_EQ(firm->OpenYear(year).Db->Lookup("Letters", "Code", "").ToInteger(), 7) << year;
  }
  EXPECT_EQ(firm->OpenYear(2024).Db->Lookup("FANar", "Narration", "").ToText(), "kept");
  EXPECT_TRUE(firm->Common()->TableExists("STYLES"));
  EXPECT_FALSE(std::filesystem::exists(File("2024.fdb.before")));
  EXPECT_TRUE(Has(Refusal(), "newer version")) << "a program that does not know the steps stays out";
}

TEST_F(FirmTest, AFirmOnAServerIsBroughtUpInAllItsDatabasesOrNone) {
  if (!FirebirdServer::IsInstalled()) GTEST_SKIP() << "the Firebird server is not installed";
  using Kind = SchemaStep::Database;
  FirebirdServer server;
  std::filesystem::create_directory(server.Folder() / "books");
  CreateFirm(Folder(), kDetails, {2023, 2024}, server.Address("books"));
  std::vector<SchemaStep> steps = After({{1, Kind::kYear, kNow, {"create table Letters (Code integer)"}},
                                         {1, Kind::kCommon, kNow, {"create table Styles (Code nothing)"}}});
  const auto open = [&] { return Firm::Open(Folder(), {.TakeOver = "", .Steps = &steps}); };
  EXPECT_THROW(open(), DbError);
  EXPECT_FALSE(Firm::Open(Folder())->OpenYear(2023).Db->TableExists("LETTERS"));
  steps.back().Statements = {"create table Styles (Code integer)"};
  const auto firm = open();
  EXPECT_TRUE(firm->OpenYear(2023).Db->TableExists("LETTERS"));
  EXPECT_TRUE(firm->Common()->TableExists("STYLES"));
}

TEST_F(FirmTest, TheEngineFindsALineOfAVoucherByItsVoucher) {
  CreateFirm(Folder(), kDetails, {2024});
  {
    const auto db = Firm::Open(Folder())->OpenYear(2024).Db;
    db->Execute(
        "execute block as declare i int = 0; begin while (i < 3000) do "
        "begin insert into FAData (VoucherID,dVchSubNo,dcd,dcd2,dVchDate,dBook) "
        "values (:i,1,101,mod(:i,40),'2024-04-01','J'); i = i + 1; end end");
  }
  const auto firm = Firm::Open(Folder());
  FirebirdLink& db = *firm->OpenYear(2024).Db;
  const std::string attachment = db.Lookup("rdb$database", "current_connection", "").ToText();
  const auto reads = [&] {
    // The engine's counters stand still inside a transaction.
    const auto watch = FirebirdLink::Open({File("2024.fdb"), "", ""}, "");
    return watch
        ->Lookup("mon$attachments a join mon$record_stats r on a.mon$stat_id=r.mon$stat_id",
                 "r.mon$record_idx_reads", "a.mon$attachment_id=" + attachment)
        .ToInteger();
  };
  const auto indexedReads = [&](const std::string& where) {
    db.Lookup("FAData", "count(*)", where);
    const std::int64_t before = reads();
    db.Lookup("FAData", "count(*)", where);
    return reads() - before;
  };
  const std::int64_t byKey = indexedReads("VoucherID=2900");
  EXPECT_EQ(indexedReads("VoucherID=2900 and dcd=101"), byKey);
  EXPECT_EQ(indexedReads("VoucherID=2900 and dcd2=20"), byKey);
}

TEST_F(FirmTest, TwoDesksShareAFirmThroughAServer) {
  if (!FirebirdServer::IsInstalled()) GTEST_SKIP() << "the Firebird server is not installed";
  FirebirdServer server;
  FirebirdAddress place = server.Address("books");
  std::filesystem::create_directory(server.Folder() / "books");
  CreateFirm(Folder(), kDetails, {2023, 2024}, place);
  EXPECT_FALSE(std::filesystem::exists(File("2024.fdb")));
  const auto one = Firm::Open(Folder());
  const auto other = Firm::Open(Folder());
  FirebirdLink& mine = *one->OpenYear(2024).Db;
  FirebirdLink& theirs = *other->OpenYear(2024).Db;
  mine.Execute("insert into FAData (VoucherID,dVchSubNo,dcd,dAmt) values (1,1,101,500)");
  mine.Execute("insert into FANar (NarrationID,Narration) values (1,'नमस्ते')");
  EXPECT_EQ(theirs.Lookup("FANAR", "Narration", "NarrationID=1").ToText(), "नमस्ते");
  theirs.BeginTrans();
  theirs.Execute("Update FAData set dAmt=600 where VoucherID=1 and dVchSubNo=1");
  CDataSet set;
  set.Open("select * from FAData", mine, 3, 3);
  set.SetField("dAmt", 700);
  EXPECT_THROW(set.Update(), DbError) << "the record is locked";
  theirs.CommitTrans();
  set.Update();
  EXPECT_EQ(theirs.Lookup("FADATA", "dAmt", "").ToAmount(), Amount::OfInteger(700));
  server.Stop();
  EXPECT_TRUE(Has(Refusal(), "cannot be opened on its server"));
}

}  // namespace
}  // namespace quillon
