#include <fstream>

#include "desk/firebird/BooksDigest.h"
#include "desk/firebird/EngineTools.h"
#include "desk/firm/BulkTurn.h"
#include "desk/safety/CopiedFirm.h"
#include "desk/safety/GoingBack.h"
#include "tests/maintenance/BulkTest.h"
#include "tests/support/FirebirdServer.h"

namespace quillon {
namespace {

namespace fs = std::filesystem;

/// Bulk work with copies before it, on books with entries in two years.
class BulkNet : public BulkTest {
 protected:
  void SetUp() override {
    BulkTest::SetUp();
    Db().Execute(
        "insert into FAHeads (Code,SubCode,Head,PressHead) select mcd,0,mhd,upper(mhd) from FAMaster");
    Enter(1, "2024-04-10", "C", "RC1", {{201, "500", 1}, {1, "-500", 201}});
    Enter(2, "2024-04-11", "C", "PC1", {{201, "40", 1}, {1, "-90", 201}, {202, "50", 1}});
    Enter(3, "2024-04-12", "J", "J", {{201, "25", 202}, {202, "-25", 201}});
    AddDocument(3, 201, "FAS");
    Watch();
  }
  void Watch() {
    desk_.Session().CopiesBulkWork = true;
    desk_.OnGoBack = [this](int run) { wanted_ = run; };
  }

  FirebirdLink& Common() { return *desk_.Session().Books().Common(); }
  FirebirdAddress Year() { return desk_.Session().Books().PlaceOfYear(2024).Database; }
  std::string Copy(const std::string& name) const {
    return (folder_.Path() / "firm" / "copies" / name).string();
  }
  Texts Journal() {
    return Rows("select RunNo,Screen,AccountName,Outcome from BulkRuns order by RunNo", Common());
  }
  void GoBack(int run) {
    desk_.GoBack(run);
    statement_.reset();
    Watch();
  }

  /// The cash entries of the account go; of voucher 2 a line of another account stays.
  void DeleteCash(std::initializer_list<int> answers) {
    for (const int button : answers) AnswerMessage(button);
    Open("MassDeletion", 201, {[this] {
           Type("txpDate1", "1/4/24");
           Type("txpDate2", "31/3/25");
           PressOk();
         }});
  }

  void DeleteWhileAnotherDeskWorks();

  int wanted_ = 0;
};

/// The same books on a server.
class BulkNetOnServer : public BulkNet {
 protected:
  void SetUp() override {
    if (!FirebirdServer::IsInstalled()) GTEST_SKIP() << "the Firebird server is not installed";
    place_.emplace();
    server_ = place_->Address("common.fdb");
    server_.Database.resize(server_.Database.size() - std::string("/common.fdb").size());
    BulkNet::SetUp();
  }
  void TearDown() override {
    statement_.reset();
    desk_.CloseFirm();
  }

 private:
  std::optional<FirebirdServer> place_;
};

TEST_F(BulkNet, ADeletionIsGoneBackOnAndTheGoingBackToo) {
  const BooksDigest before = BooksDigest::Of(Year());
  constexpr int kGoBack = 2;
  DeleteCash({1, 1, kGoBack});
  const Texts told = Messages();
  ASSERT_EQ(told.size(), 3U);
  EXPECT_EQ(told.back(),
            "As this screen works:\nVouchers do not balance any more: 2.\n\nKeep it, or go back to before?");
  EXPECT_EQ(wanted_, 1);
  EXPECT_EQ(Journal(), Texts{"1|Mass Deletion|Asha Traders|Done"});
  EXPECT_EQ(
      Rows("select Told from BulkRuns", Common()),
      Texts{"Are you sure to delete entries - Yes\n2 Entries deleted.  Refreshing Statement of Account"});
  EXPECT_EQ(Rows("select Choices from BulkRuns", Common()),
            Texts{"Asha Traders\nFrom 1/4/24\nTo 31/3/25\nBoth"});
  const BooksDigest after = BooksDigest::Of(Year());
  EXPECT_EQ(Rows("select VoucherID,dVchSubNo from FAData where VoucherID<3"), Texts{"2|3"});

  // What is entered afterwards is told before it goes too.
  Db().Execute("insert into FANar (NarrationID,Narration) values (9,'Later')");
  Db().Execute("update FAMaster set mst='Goa' where mcd=202");
  EXPECT_EQ(GoingBack(desk_.Session().Books(), 1, "").Since(),
            (Texts{"2024-25: 1 row added to FANAR", "2024-25: 1 row changed in FAMASTER"}));
  const std::string place = Year().Database;
  GoBack(1);
  EXPECT_NE(Year().Database, place);
  EXPECT_EQ(BooksDigest::Of(Year()), before);
  EXPECT_EQ(Journal(), (Texts{"1|Mass Deletion|Asha Traders|Gone back", "2|Going back|No. 1|Done"}));
  EXPECT_THROW(FirebirdLink::Open({place, "", ""}, ""), DbError) << "nobody writes into what was left";
  AddDocument(1, 201, "INV");

  GoBack(2);
  EXPECT_EQ(Rows("select mst from FAMaster where mcd=202"), Texts{"Goa"});
  Db().Execute("update FAMaster set mst='Pune' where mcd=202");
  Db().Execute("delete from FANar where NarrationID=9");
  EXPECT_EQ(BooksDigest::Of(Year()), after);
}

TEST_F(BulkNet, WhatTheScreenDoesNotExplainIsTold) {
  // A trigger of somebody else's changes what is none of the screen's business.
  Enter(8, "2024-04-20", "J", "J", {{202, "7", 101}, {101, "-7", 202}});
  Db().Execute(
      "create trigger Meddling for FAData after delete as begin update FAData set dAmt=dAmt+1 where "
      "VoucherID=8 and dVchSubNo=1; end");
  DeleteCash({1, 1, 1});
  const Json asked = Events("message").back();
  EXPECT_EQ(
      asked.at("text"),
      "What Mass Deletion does not explain:\nVouchers of other accounts were changed: 8.\n\n"
      "As this screen works:\nVouchers do not balance any more: 2, 8.\n\nKeep it, or go back to before?");
  EXPECT_EQ(wanted_, 0);
  EXPECT_EQ(asked.at("default"), 2) << "going back, without looking";
}

/// Another desk works on while the dialog is open; what it stored stays when the deletion is gone back on.
void BulkNet::DeleteWhileAnotherDeskWorks() {
  for (const int button : {1, 1, 1, 1}) AnswerMessage(button);
  Open("MassDeletion", 201, {[this] {
         Type("txpDate1", "1/4/24");
         Type("txpDate2", "31/3/25");
         const std::unique_ptr<Firm> other = Firm::Open(folder_.Path() / "firm");
         EXPECT_THROW(BulkTurn(*other->Common(), "Ravi", "Purge"), HostError) << "one at a time";
         other->OpenYear(2024).Db->Execute("update FAMaster set mst='Goa' where mcd=202");
         PressOk();
       }});
  EXPECT_EQ(Messages()[1], "The copy is older than 1 entries. Copy again?");
  GoBack(1);
  EXPECT_EQ(Rows("select mst from FAMaster where mcd=202"), Texts{"Goa"}) << "and the deletion is undone";
  EXPECT_EQ(Rows("select count(*) from FAData"), Texts{"7"});
}

TEST_F(BulkNet, WhatOthersWroteSinceTheCopyIsCopiedAgain) { DeleteWhileAnotherDeskWorks(); }

TEST_F(BulkNet, WhatARunHadDoneWhenItFailedIsGoneBackOn) {
  const BooksDigest before = BooksDigest::Of(Year());
  Refuse("before delete or update", "old.VoucherID=2 and old.dVchSubNo<3");
  const auto run = [this, &before](const std::string& tool, const std::function<void()>& fill) {
    AnswerMessage();
    Acts acts{[&] {
      fill();
      PressOk();
    }};
    if (tool == "MassTransfer") acts.emplace_back([this] { Key(*dialog_, keys::kEscape); });
    Open(tool, 201, acts);
    EXPECT_EQ(Errors().size(), 1U) << tool;
    EXPECT_NE(BooksDigest::Of(Year()), before) << tool << " had begun";
    const auto number = static_cast<int>(Common().Lookup("BulkRuns", "max(RunNo)", "").ToInteger());
    GoBack(number);
    EXPECT_EQ(BooksDigest::Of(Year()), before) << tool;
  };
  run("MassDeletion", [this] {
    Type("txpDate1", "1/4/24");
    Type("txpDate2", "31/3/25");
  });
  run("MassTransfer", [this] {
    dialog_->ControlAt("txtToAc").Set("Text", "Bharat Mills");
    dialog_->ControlAt("txtToAc").Set("Tag", "202");
    Type("txpDate2", "31/3/25");
  });
}

TEST_F(BulkNet, NothingRunsWithoutACopyUnlessOneMayAndWantsTo) {
  std::ofstream(folder_.Path() / "firm" / "copies") << "in the way";
  AnswerMessage(1);
  Open("MassDeletion", 201, {});
  EXPECT_EQ(Told().front().substr(0, 34), "W: The books could not be copied: ");
  DeleteCash({2, 1, 1});
  EXPECT_EQ(Journal(), (Texts{"1|Mass Deletion|Asha Traders|Not run: no copy",
                              "2|Mass Deletion|Asha Traders|Done without a copy"}));
  Told();
  EXPECT_THROW(GoingBack(desk_.Session().Books(), 2, ""), HostError);
}

TEST_F(BulkNet, ADialogThatChangesNothingKeepsNoCopy) {
  Open("MassDeletion", 201, {[this] {
         EXPECT_TRUE(fs::exists(Copy("1-2024.fbk")));
         Key(*dialog_, keys::kEscape);
       }});
  EXPECT_FALSE(fs::exists(Copy("1-2024.fbk")));
  EXPECT_EQ(Journal(), Texts{"1|Mass Deletion|Asha Traders|Nothing changed"});
}

TEST_F(BulkNet, OnlyTheLastCopiesAreKept) {
  gApp->PutFirmSetting("BulkCopies.Runs", "1");
  DeleteCash({1, 1, 1});
  Enter(5, "2024-05-10", "C", "RC1", {{201, "5", 1}, {1, "-5", 201}});
  DeleteCash({1, 1});
  EXPECT_FALSE(fs::exists(Copy("1-2024.fbk")));
  EXPECT_TRUE(fs::exists(Copy("2-2024.fbk")));
  EXPECT_EQ(Rows("select RunNo,Gone from BookCopies order by RunNo", Common()), (Texts{"1|1", "2|0"}));
  Told();
}

TEST_F(BulkNet, ACopyIsLookedAtBesideTheBooks) {
  const BooksDigest before = BooksDigest::Of(Year());
  DeleteCash({1, 1, 1});
  Messages();
  fs::path shown;
  desk_.Session().ShowCopy = [&shown](const std::string& folder) { shown = folder; };
  const FormPtr journal = gApp->GetForm("BulkRuns");
  const auto look = [&] {
    Do([&] { gApp->ShowForm(journal); });
    Key(*journal, keys::kF5);
  };
  look();
  ASSERT_FALSE(shown.empty());
  const FirmFile copied = FirmFile::Read(shown);
  EXPECT_EQ(copied.Name.substr(0, 8), "COPY of ");
  {
    const CopiedFirm::Visit visit(shown);
    const FirebirdAddress year = copied.Years.at(2024).Database;
    EXPECT_EQ(BooksDigest::Of(year), before);
    try {
      FirebirdLink::Open(year, "")->Execute("update FAMaster set mst='Goa'");
      ADD_FAILURE() << "a copy takes no change";
    } catch (const DbError& error) {
      EXPECT_EQ(std::string(error.what()),
                "These books are a copy to look at: nothing can be stored in them.");
    }
    look();
    EXPECT_EQ(Told(), Texts{"W: The copy of No. 1 is open already."});
    CopiedFirm::RemoveLeft(desk_.Session().Books());
    EXPECT_TRUE(fs::exists(year.Database));
  }
  EXPECT_FALSE(fs::exists(shown));
}

TEST_F(BulkNet, WhatKilledProgramsLeftIsRemovedByTheNextRun) {
  const fs::path firm = folder_.Path() / "firm";
  const std::vector<fs::path> left{firm / "2024-run7.fdb", firm / "2024-run7-2.fdb",
                                   firm / "copies/7-2024.part", firm / "copies/7-2024.scratch.fdb",
                                   firm / "copies/trial-7/common.fdb"};
  fs::create_directories(firm / "copies/trial-7");
  for (const fs::path& file : left) std::ofstream(file) << "half";
  DeleteCash({1, 1, 1});
  GoBack(1);
  for (const fs::path& file : left) EXPECT_FALSE(fs::exists(file)) << file;
  const std::string place = Year().Database;
  DeleteCash({1, 1, 1});
  EXPECT_TRUE(fs::exists(place)) << "where the year lies now";
  EXPECT_TRUE(fs::exists(firm / "2024.fdb")) << "what the going back left";
  GoBack(3);
  EXPECT_EQ(Rows("select count(*) from FAData where VoucherID<3"), Texts{"5"});
}

TEST_F(BulkNet, ACopyOfAnOlderVersionIsBroughtUp) {
  for (const char* later : {"table LedgerPages", "trigger LeafIsNotDeleted", "trigger LeafIsNotCancelled",
                            "exception LeafOnItsWay"}) {
    Db().Execute(std::string("drop ") + later);
  }
  Db().Execute("update SchemaVersion set Version=3");
  DeleteCash({1, 1, 1});
  GoBack(1);
  EXPECT_TRUE(Db().TableExists("LEDGERPAGES"));
}

TEST_F(BulkNet, OneAtATimeAndTheDeadAreReleased) {
  {
    const BulkTurn turn(Common(), "Meera", "Purge of Bharat Mills");
    Open("MassDeletion", 201, {});
    const Texts errors = Errors();
    ASSERT_EQ(errors.size(), 1U);
    EXPECT_EQ(errors.front().substr(0, 80),
              "Bulk work is going on in this firm: Purge of Bharat Mills, by Meera since " +
                  SpokenTime(TimeNow()).substr(0, 6));
  }
  // A program that was taking the firm back ended when it had shut the year.
  const FirebirdAddress year = Year();
  Common().Execute(
      "insert into BulkTurn (TurnNo,Program,UserName,Since,Doing,AllLeave) values (1,'gone 1 1','Meera','','',1)");
  desk_.CloseFirm();
  statement_.reset();
  EngineTools::ShutDown(year);
  desk_.OpenFirm((folder_.Path() / "firm").string());
  EXPECT_EQ(Rows("select count(*) from FAData"), Texts{"7"});
  EXPECT_EQ(Rows("select count(*) from BulkTurn", Common()), Texts{"0"});

  Common().Execute(
      "insert into BulkRuns (RunNo,BeganAt,UserName,Screen) values (4,'2024-05-01 10:20:30','Meera','Purge')");
  desk_.OpenFirm((folder_.Path() / "firm").string());
  EXPECT_EQ(
      Told(),
      Texts{"W: This run did not come to its end: No. 4, Purge, 01-May-2024 10:20, by Meera.\nWhat it had "
            "changed until then stands. Books > Bulk Work takes the firm back to before it."});
}

TEST_F(BulkNet, AGoingBackThatFailsLeavesTheFirmAsItWas) {
  DeleteCash({1, 1, 1});
  Messages();
  const BooksDigest after = BooksDigest::Of(Year());
  const std::string place = Year().Database;
  // The copy has other rows than were noted.
  BooksDigest().Write(Copy("1-2024.before"));
  EXPECT_THROW(GoBack(1), HostError);
  statement_.reset();
  EXPECT_EQ(Year().Database, place);
  EXPECT_EQ(BooksDigest::Of(Year()), after);
  EXPECT_FALSE(fs::exists(folder_.Path() / "firm" / "2024-run1.fdb"));
}

/// The same by hand on a firm whose files the engine reaches in another way.
void GoBackOn(const fs::path& folder, const FirebirdAddress& server) {
  FirmDetails details;
  details.FirmName = "Sharda";
  CreateFirm(folder, details, {2023, 2024}, server);
  const std::unique_ptr<Firm> mine = Firm::Open(folder);
  const std::unique_ptr<Firm> theirs = Firm::Open(folder);
  const auto add = [&theirs](int code) {
    theirs->OpenYear(2024).Db->Execute("insert into FAMaster (mcd,mhd) values (" + std::to_string(code) +
                                       ",'A')");
  };
  add(1);
  BulkJournal journal(*mine->Common());
  const int run = journal.Begin({.User = "Meera", .Screen = "Purge"});
  BookCopies copies(*mine);
  for (const int year : mine->Years()) copies.Make(run, year);
  add(2);
  EXPECT_EQ(GoingBack(*mine, run, "Meera").Since(),
            std::vector<std::string>{"2024-25: 1 row added to FAMASTER"});
  const std::unique_ptr<Firm> idle = Firm::Open(folder);
  EXPECT_EQ(idle->OpenYear(2024).Db->Lookup("FAMaster", "count(*)", "").ToInteger(), 2);
  GoingBack(*mine, run, "Meera").Do(0);
  EXPECT_THROW(add(3), HostError) << "who is thrown out stores nothing more";
  const std::unique_ptr<Firm> again = Firm::Open(folder);
  EXPECT_EQ(again->OpenYear(2024).Db->Lookup("FAMaster", "count(*)", "").ToInteger(), 1);
}

TEST(BulkNetElsewhere, InAFolderThatTheEngineCannotName) {
  const TempFolder folder;
  GoBackOn(folder.Path() / "a:b", {});
}

TEST_F(BulkNetOnServer, WhatOthersWroteSinceTheCopyIsCopiedAgain) { DeleteWhileAnotherDeskWorks(); }

TEST(BulkNetElsewhere, OnAServer) {
  if (!FirebirdServer::IsInstalled()) GTEST_SKIP() << "the Firebird server is not installed";
  const TempFolder folder;
  const FirebirdServer server;
  FirebirdAddress place = server.Address("common.fdb");
  place.Database.resize(place.Database.size() - std::string("/common.fdb").size());
  GoBackOn(folder.Path() / "firm", place);
}

}  // namespace
}  // namespace quillon
