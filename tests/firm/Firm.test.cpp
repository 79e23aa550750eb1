#include "desk/firm/Firm.h"

#include <fstream>
#include <gtest/gtest.h>
#include <unistd.h>

#include "desk/firm/Schema.h"
#include "host/data/CDataSet.h"
#include "host/values/Errors.h"
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
  CreateFirm(Folder(), kDetails, {2024});
  const auto firm = Firm::Open(Folder());
  FirebirdLink& db = *firm->OpenYear(2024).Db;
  for (const char* sql :
       {"insert into FAData "
        "(VoucherID,dVchSubNo,dSrNo,dVchNo,dVchDate,dcd,dcd2,dAmt,dBook,dTrnType,dTrnNature,"
        "dBankDate,dLocked,NarrationID) values "
        "(1,1,1,'BR-1','2024-04-05',101,201,-1500.25,'BR1','BR1',5002,null,0,1)",
        "insert into FANar (NarrationID,Narration) values (1,'By cash')",
        "insert into FAMaster "
        "(mcd,mhd,mst,mhda1,malias1,mName,mbshno,mgrpno,mPhoneOff,mCellNo,mAadharNo,mBankName,"
        "mBankBranch,mBankStn,mIFSCCode,mBankAcNo,mDeactiveDate,mTransportCode,mAgentCode) values (201,'श्री "
        "ट्रेडर्स',"
        "'Pune','1 "
        "Road','SHRI','Ganesh',130,1,'1','2','3','SBI','Camp','Pune','SBIN0001','123',null,301,401)",
        "insert into FAMaster (mcd,mhd) values (202,'Second')",
        "insert into FAHeads (Code,SubCode,Head,PressHead) values (201,0,'Shri','SHRI')",
        "insert into CtgMaster (CtgNo,CtgName,CtgType) values (47,'Bank Accounts','A')",
        "insert into FADocs (VoucherID,ChqReturn,PartyCode,TransportCode,AgentCode) values "
        "(1,'Y',201,301,401)",
        "insert into FADocs (VoucherID,ChqReturn) values (1,'N')",
        "insert into DocMain "
        "(DocumentID,DocVoucherID,DocSeries,dLocked,PartyCode,DebitCode,TransportCode,AgentCode,"
        "ConsigneeCode,ConsignorCode) values (1,1,'FAS',0,201,201,301,401,201,201)",
        "insert into DocData (DocumentID,CustomerID) values (1,201)",
        "insert into RefMaster (RefCode,VoucherID) values (201,1)",
        "insert into ParamOBal (dcd) values (201)", "insert into RatesPA (mcd,Rate1) values (201,12.5)",
        "insert into VATClasses (VATClassName,VATClassNo,PressHead) values ('Gst 5',1,'GST5')",
        "insert into StkHeads (head,code,SubCode,PressHead) values ('Cotton',1,0,'COTTON')",
        "insert into StkMaster (qmcd,qsize) values (1,'44 in')",
        "insert into ChqLeaves (ID,BankCode,ChqNo,RctDate) values (1,101,470001,'2024-04-01')",
        "insert into EntryForms (FormName,FormTitle,BookCode) values ('BR1','Receipts','BR1')",
        "insert into EntryFormDetails (FormName,ColName,ColTitle,ColNumeric,ColDrCr,ColPosition,ColWidthChar,"
        "ColDecimals,ColTotalRqr,ColPostingCode,ColAutoIncrement) values "
        "('BR1','AMOUNT','Amount',-1,'D',1,12,2,-1,"
        "0,0)"}) {
    EXPECT_NO_THROW(db.Execute(sql)) << sql;
  }
  for (const char* table :
       {"BANKMASTER", "MSTCLASSES", "TDSDEP", "VATCATEGORYTAXRATES", "FIRMDETAILS", "COMDATA"}) {
    EXPECT_TRUE(db.TableExists(table)) << table;
  }
  firm->Common()->Execute("Insert into Narrations (NarrationCode,Narration) values ('A','Being cash paid')");
  firm->Common()->Execute(
      "Create Table MLetters (ID Int,LetterName Varchar(100),LetterText Blob sub_type text)");
  EXPECT_TRUE(firm->Common()->TableExists("MLETTERS"));

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
  Write("firm.json", R"({"schema":2,"anything":"else"})");
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

  Firm::Open(Folder())->OpenYear(2024).Db->Execute("update SchemaVersion set Version=2");
  EXPECT_TRUE(Has(Refusal(), "2024.fdb was written by a newer version"));
}

TEST_F(FirmTest, AFirmThatCannotBeWrittenIsRefused) {
  if (geteuid() != 0) GTEST_SKIP() << "only root can act as another user";
  CreateFirm(Folder(), kDetails, {2024});
  FirebirdEngine::Prepare();
  std::filesystem::permissions(folder_.Path(), std::filesystem::perms::all);
  constexpr uid_t kNobody = 65534;
  ASSERT_EQ(seteuid(kNobody), 0);
  const std::string refusal = Refusal();
  const auto create = [&] { CreateFirm(Folder() / "inner", kDetails, {2024}); };
  EXPECT_THROW(create(), HostError);
  ASSERT_EQ(seteuid(0), 0);
  EXPECT_TRUE(Has(refusal, "no permission to write")) << refusal;
}

TEST_F(FirmTest, EnginesThatDoNotKnowEachOtherAreKeptApart) {
  CreateFirm(Folder(), kDetails, {2024});
  auto first = Firm::Open(Folder());
  EXPECT_EQ(Refusal(), "opened") << "several desks of one user share a firm";
  const std::string locks = std::getenv("FIREBIRD_LOCK");
  setenv("FIREBIRD_LOCK", "/another/user", 1);
  const std::string refusal = Refusal();
  first.reset();
  const std::string alone = Refusal();
  setenv("FIREBIRD_LOCK", locks.c_str(), 1);
  EXPECT_TRUE(Has(refusal, "another user")) << refusal;
  EXPECT_EQ(alone, "opened");
}

TEST_F(FirmTest, TheEngineFindsALineOfAVoucherByItsVoucher) {
  CreateFirm(Folder(), kDetails, {2024});
  {
    const auto db = Firm::Open(Folder())->OpenYear(2024).Db;
    db->Execute(
        "execute block as declare i int = 0; begin while (i < 3000) do begin insert into FAData "
        "(VoucherID,dVchSubNo,dcd,dcd2,dVchDate,dBook) values (:i,1,101,mod(:i,40),'2024-04-01','J'); i = i "
        "+ 1; "
        "end end");
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
  theirs.Execute("Update FAData set dBankDate='2024-04-05' where VoucherID=1 and dVchSubNo=1");
  CDataSet set;
  set.Open("select * from FAData", mine, 3, 3);
  EXPECT_EQ(set.Field("dBankDate").ToDate(), Date::Of(2024, 4, 5));

  theirs.BeginTrans();
  theirs.Execute("Update FAData set dAmt=600 where VoucherID=1 and dVchSubNo=1");
  set.SetField("dAmt", 700);
  try {
    set.Update();
    ADD_FAILURE() << "the record is locked";
  } catch (const DbError& error) {
    EXPECT_EQ(error.SqlState(), "40001");
  }
  theirs.CommitTrans();
  set.Update();
  EXPECT_EQ(theirs.Lookup("FADATA", "dAmt", "").ToAmount(), Amount::OfInteger(700));

  server.Stop();
  EXPECT_TRUE(Has(Refusal(), "cannot be opened on its server"));
}

}  // namespace
}  // namespace quillon
