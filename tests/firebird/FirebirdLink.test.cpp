#include "desk/firebird/FirebirdLink.h"

#include <fstream>
#include <gtest/gtest.h>
#include <thread>

#include "host/data/CDataSet.h"
#include "host/values/Errors.h"
#include "host/values/Text.h"
#include "tests/support/TempFolder.h"

namespace quillon {
namespace {

class Recorder : public SqlObserver {
 public:
  void OnStatement(const CDbLink&, const std::string& db, const std::string& sql, std::int64_t rows,
                   const std::string& error) override {
    Lines.push_back(db + "|" + sql + "|" + std::to_string(rows) + (error.empty() ? "" : "|failed"));
  }
  std::vector<std::string> Lines;
};

/// A database with a small ledger: entries keyed by voucher and line, narrations keyed, notes without a key.
class LinkTest : public testing::Test {
 protected:
  LinkTest() {
    FirebirdAttachment::Create(address_);
    link_ = FirebirdLink::Open(address_, "2024");
    link_->Execute(
        "create table entries (id int not null, line int not null, vdate date, amt numeric(18,4), nar int, "
        "mark varchar(1), primary key (id, line))");
    link_->Execute("create table narrations (nar int not null primary key, narration varchar(250))");
    link_->Execute("create table notes (who varchar(40), what blob sub_type text)");
    Fill(40);
  }

  void Fill(int count) {
    link_->BeginTrans();
    for (int i = 1; i <= count; ++i) {
      const std::string id = std::to_string(i);
      link_->Execute("insert into entries (id,line,vdate,amt,nar) values (" + id + ",1,'2024-04-05'," + id +
                     ".25," + std::to_string(i % 3 + 1) + ")");
    }
    link_->Execute("insert into narrations values (1,'By cash')");
    link_->Execute("insert into narrations values (2,'Chq 4711')");
    link_->Execute("insert into narrations values (3,'Rent')");
    link_->CommitTrans();
  }

  template <class Action>
  static DbError ErrorOf(Action action) {
    try {
      action();
    } catch (const DbError& error) {
      return error;
    }
    ADD_FAILURE() << "no error came";
    return {"", "", ""};
  }

  TempFolder folder_;
  FirebirdAddress address_{folder_.File("books.fdb"), "", ""};
  std::shared_ptr<FirebirdLink> link_;
};

TEST_F(LinkTest, SortsBeforeItJoinsAndGivesTheSameRows) {
  link_->Execute("update entries set nar=null where id=7");
  link_->Execute("update entries set nar=9 where id=8");
  const std::string left =
      "Select a.*,n.Narration from entries a Left Join narrations n on a.nar=n.nar where ";
  const std::string both = "Select a.*,n.Narration from entries a,narrations n where a.nar=n.nar and ";
  for (
      const std::string& query :
      {left + "a.id between 2 and 30 and (a.mark is null or a.id>9) order by a.amt",
       left + "a.id<>4 order by a.vdate,a.nar", both + "a.id<20 order by a.nar,a.id",
       std::string(
           "Select n.narration,a.id from entries a join narrations n on n.nar=a.nar where a.id in (1,7,3) order by a.amt")}) {
    EXPECT_TRUE(link_->Leaner(query)) << query;
    const std::string plain = "select first 1000 " + query.substr(7) + ",a.id,a.line";
    ASSERT_FALSE(link_->Leaner(plain));
    CDataSet lean;
    CDataSet rows;
    lean.Open(query, *link_);
    rows.Open(plain, *link_);
    ASSERT_EQ(lean.RecordCount(), rows.RecordCount()) << query;
    for (; !rows.Eof(); rows.MoveNext(), lean.MoveNext()) {
      for (std::size_t i = 0; i < lean.FieldNames().size(); ++i) {
        EXPECT_EQ(lean.Field(i).ToText(), rows.Field(i).ToText()) << query;
      }
    }
  }
  // The columns that its reader names come alone, whether the join needs another or not.
  using Names = std::vector<std::string>;
  for (const Names& reads : {Names{"amt", "id"}, Names{"id", "NAR"}}) {
    CDataSet set;
    set.Reads = reads;
    set.Open(both + "a.id between 7 and 9 order by a.id", *link_);
    EXPECT_EQ(set.FieldNames(), (Names{text::Upper(reads[0]), text::Upper(reads[1]), "NARRATION"}));
    EXPECT_EQ(set.RecordCount(), 1);
    EXPECT_EQ(set.Field("Id").ToInteger(), 9);
    EXPECT_THROW(static_cast<void>(set.Field("vdate")), SubscriptError);
  }
}

TEST_F(LinkTest, LeavesOtherQueriesAsTheyStand) {
  const std::string entries = "select a.id from entries a left join narrations n on a.nar=n.nar where ";
  for (const std::string& query : std::vector<std::string>{
           entries + "n.narration='Rent' order by a.id", entries + "a.id=1 order by n.narration",
           entries + "a.id=1", entries + "id=1 order by a.id", entries + "a.id=1 order by a.id desc",
           entries + "a.id in (select nar from narrations) order by a.id",
           entries + "a.amt>1.5 order by a.id",
           "select a.id from entries a,narrations n where a.nar=n.nar and a.id=1 or a.id=2 order by a.id",
           "select count(*) from entries a left join narrations n on a.nar=n.nar where a.id=1 order by a.id",
           "select distinct a.id from entries a join narrations n on a.nar=n.nar where a.id=1 order by a.id",
           "select a.id from entries a right join narrations n on a.nar=n.nar where a.id=1 order by a.id"}) {
    EXPECT_FALSE(link_->Leaner(query)) << query;
  }
  const DbError error = ErrorOf([&] {
    CDataSet set;
    set.Open(
        "select a.nil,n.narration from entries a left join narrations n on a.nar=n.nar where a.id=1 order by a.id",
        *link_);
  });
  EXPECT_NE(error.EngineText().find("NIL"), std::string::npos);
  EXPECT_EQ(error.Statement().find("select a.nil,n.narration from entries a left"), 0U)
      << "the statement is told as it was asked";
}

TEST_F(LinkTest, ValuesOfAllTypesComeBackAsTheyWereStored) {
  link_->Execute(
      "create table kinds (id int not null primary key, small smallint, big bigint, money numeric(18,4), "
      "rate numeric(9,6), ratio double precision, flag boolean, vdate date, stamp timestamp, fixed char(8), "
      "name varchar(40), letter blob sub_type text)");
  const std::vector<std::pair<const char*, Variant>> kinds = {
      {"small", -7},
      {"big", 9007199254740993LL},
      {"money", Amount::OfText("-922337203685477.5807")},
      {"rate", Amount::OfText("9.5")},
      {"ratio", 0.125},
      {"flag", true},
      {"vdate", Date::Of(1899, 12, 31)},
      {"stamp", Date::Of(2024, 2, 29)},
      {"fixed", "ab"},
      {"name", "श्री गणेश ट्रेडर्स"},
      {"letter", std::string(100000, 'x') + "ळ"}};
  CDataSet set;
  set.Open("select * from kinds", *link_, 3, 3);
  set.AddNew();
  set.SetField("id", 1);
  for (const auto& [name, value] : kinds) set.SetField(name, value);
  set.Update();
  EXPECT_FALSE(set.Bof());
  set.AddNew();
  set.SetField("id", 2);
  set.Update();
  EXPECT_EQ(set.RecordCount(), 2);
  set.Open("select * from kinds order by id", *link_);
  for (const auto& [name, value] : kinds) {
    EXPECT_EQ(set.Field(name).ToText(), value.ToText()) << name;
    EXPECT_EQ(set.Field(name).IsNumeric(), value.IsNumeric()) << name;
  }
  set.MoveNext();
  for (const auto& [name, value] : kinds) EXPECT_TRUE(set.Field(name).IsNull()) << name;
}

TEST_F(LinkTest, LookupGivesAggregatesListsAndAnEmptyValueWithoutARow) {
  EXPECT_EQ(link_->Lookup("ENTRIES", "Sum(amt)", "").As<Amount>(), Amount::OfText("830"));
  EXPECT_EQ(link_->Lookup("entries", "Max(id)", "").ToInteger(), 40);
  EXPECT_EQ(link_->Lookup("entries", "Count(id)", "nar=1").ToInteger(), 13);
  EXPECT_EQ(link_->Lookup("entries", "LIST(id)", "id<=3").As<std::string>(), "1,2,3");
  EXPECT_EQ(link_->Lookup("narrations", "narration", "nar=2").As<std::string>(), "Chq 4711");
  EXPECT_TRUE(link_->Lookup("narrations", "narration", "nar=9").IsEmpty());
  EXPECT_TRUE(link_->Lookup("entries", "Sum(amt)", "id=0").IsEmpty());
  EXPECT_TRUE(link_->Lookup("entries", "mark", "id=1").IsEmpty());
  EXPECT_TRUE(link_->TableExists("NOTES"));
  EXPECT_FALSE(link_->TableExists("LETTERS"));
  EXPECT_TRUE(link_->RowExists("select * from entries where id=40"));
  EXPECT_FALSE(link_->RowExists("select * from entries where id=41"));
  EXPECT_TRUE(link_->RowExists("select mark from entries where id=40"));
}

TEST_F(LinkTest, StatementsCommitByThemselvesAndTransactionsHoldTogether) {
  const auto other = FirebirdLink::Open(address_, "2024");
  std::int64_t rows = 0;
  link_->Execute("Update entries set mark='Y' where nar=1", rows, CDbLink::kNoRows);
  EXPECT_EQ(rows, 13);
  EXPECT_EQ(other->Lookup("entries", "count(*)", "mark='Y'").ToInteger(), 13);

  link_->BeginTrans();
  link_->Execute("delete from entries where nar=1");
  EXPECT_EQ(link_->Lookup("entries", "count(*)", "").ToInteger(), 27);
  EXPECT_EQ(other->Lookup("entries", "count(*)", "").ToInteger(), 40);
  CDataSet inside;
  inside.Open("select id from entries", *link_);
  EXPECT_THROW(link_->BeginTrans(), HostError);
  link_->RollbackTrans();
  EXPECT_EQ(inside.RecordCount(), 27) << "a set opened in a transaction outlives it";
  EXPECT_EQ(link_->Lookup("entries", "count(*)", "").ToInteger(), 40);
  EXPECT_THROW(link_->CommitTrans(), HostError);
  EXPECT_THROW(link_->RollbackTrans(), HostError);

  link_->BeginTrans();
  link_->Execute("delete from entries where id=1");
  link_.reset();
  EXPECT_TRUE(other->RowExists("select * from entries where id=1")) << "what is not committed is rolled back";
}

TEST_F(LinkTest, AnOpenSetIsWalkedBothWaysWhileStatementsCommit) {
  link_->Execute("delete from entries");
  link_->Execute("delete from narrations");
  Fill(1000);
  CDataSet set;
  set.Open("select a.*,n.narration from entries a, narrations n where a.nar=n.nar order by a.id", *link_);
  for (int i = 1; i <= 600; ++i, set.MoveNext()) {
    ASSERT_EQ(set.Field("id").ToInteger(), i);
    ASSERT_EQ(set.Field("Narration").ToText(), i % 3 == 0 ? "By cash" : i % 3 == 1 ? "Chq 4711" : "Rent");
    link_->Execute("Update entries set mark='Y' where id=" + std::to_string(i) + " and line=1");
  }
  set.MovePrevious();
  EXPECT_EQ(set.Field("id").ToInteger(), 600);
  EXPECT_EQ(set.RecordCount(), 1000);
  set.MoveLast();
  EXPECT_EQ(set.Field("amt").ToAmount(), Amount::OfText("1000.25"));
  set.MoveNext();
  EXPECT_TRUE(set.Eof());
  EXPECT_THROW(set.Field("id"), HostError);
  set.MovePrevious();
  EXPECT_EQ(set.Field("id").ToInteger(), 1000);
  set.Find("ID=777");
  EXPECT_EQ(set.Field(0).ToInteger(), 777);
  set.Find("ID=7777");
  EXPECT_TRUE(set.Eof());
  set.MoveFirst();
  set.MovePrevious();
  EXPECT_TRUE(set.Bof());
  EXPECT_THROW(set.Field("nothing"), SubscriptError);
  EXPECT_EQ(link_->Lookup("entries", "count(*)", "mark='Y'").ToInteger(), 600);
}

TEST_F(LinkTest, AChangedRowIsWrittenByItsKeyWhateverJoinsTheQueryHas) {
  Recorder recorder;
  link_->SetObserver(&recorder);
  CDataSet set;
  set.Open(
      "Select A.*,n.nar as n2,n.narration from entries a Inner Join narrations n on a.nar=n.nar "
      "Left Join entries b on b.id=a.id+1 where a.id in (5,6) order by a.id",
      *link_, 3, 3);
  set.SetField("amt", Amount::OfText("77.5"));
  set.SetField("mark", "Y");
  set.Update();
  EXPECT_EQ(recorder.Lines.back(), "2024|update ENTRIES set AMT=77.5,MARK='Y' where ID=5 and LINE=1|1");
  EXPECT_EQ(set.Field("amt").As<Amount>(), Amount::OfText("77.5"));
  set.SetField("narration", "It's changed");
  set.SetField("vdate", Variant::Null());
  set.Update();
  set.MoveNext();
  const std::size_t sent = recorder.Lines.size();
  set.Update();
  EXPECT_EQ(recorder.Lines.size(), sent) << "a row without changes sends nothing";
  EXPECT_TRUE(
      link_->RowExists("select * from entries where id=5 and amt=77.5 and mark='Y' and vdate is null"));
  EXPECT_EQ(link_->Lookup("entries", "count(*)", "amt=77.5").ToInteger(), 1);
  EXPECT_EQ(link_->Lookup("narrations", "narration", "nar=3").ToText(), "It's changed");

  link_->Execute("delete from entries where id=6");
  set.SetField("mark", "N");
  EXPECT_EQ(ErrorOf([&] { set.Update(); }).SqlState(), "02000");
  link_->SetObserver(nullptr);
}

TEST_F(LinkTest, RowsAreChangedAlsoWhereTheQueryOrTheTableHasNoKey) {
  CDataSet amounts;
  amounts.Open("select first 2 e.amt, e.mark from entries e where e.id>10 order by e.id", *link_, 1, 3);
  EXPECT_EQ(amounts.FieldNames(), (std::vector<std::string>{"AMT", "MARK"}));
  amounts.MoveNext();
  amounts.SetField("mark", "Z");
  amounts.Update();
  EXPECT_EQ(link_->Lookup("entries", "id", "mark='Z'").ToInteger(), 12);

  CDataSet notes;
  notes.Open("select * from notes n", *link_, 3, 3);
  EXPECT_TRUE(notes.Eof());
  for (const char* who : {"Asha", "Asha", "Bela"}) {
    notes.AddNew();
    notes.SetField("who", who);
    notes.SetField("what", std::string("letter to ") + who);
    notes.Update();
  }
  notes.SetField("who", "Bela K.");
  notes.Update();
  EXPECT_EQ(link_->Lookup("notes", "what", "who='Bela K.'").ToText(), "letter to Bela")
      << "a new row is known";
  notes.Open("select * from notes where who='Asha'", *link_, 1, 3);
  notes.SetField("what", "answered");
  notes.Update();
  notes.Close();
  EXPECT_EQ(link_->Lookup("notes", "count(*)", "what='answered'").ToInteger(), 1);

  link_->Execute(
      "create table numbered (id integer generated by default as identity primary key, who varchar(9))");
  CDataSet numbered;
  numbered.Open("select * from numbered", *link_, 3, 3);
  for (const char* who : {"Asha", "Bela"}) {
    numbered.AddNew();
    numbered.SetField("who", who);
    numbered.Update();
  }
  EXPECT_EQ(numbered.Field("id").ToInteger(), 2);
  numbered.SetField("who", "Chitra");
  numbered.Update();
  EXPECT_EQ(link_->Lookup("numbered", "list(who)", "").ToText(), "Asha,Chitra");

  CDataSet totals;
  totals.Open("select nar, sum(amt) as total from entries group by nar", *link_, 3, 3);
  EXPECT_EQ(totals.RecordCount(), 3);
  totals.SetField("total", 1);
  EXPECT_THROW(totals.Update(), HostError);
  CDataSet readOnly;
  readOnly.Open("select * from entries", *link_, 3, 1);
  readOnly.SetField("mark", "N");
  EXPECT_THROW(readOnly.Update(), HostError);
}

TEST_F(LinkTest, ADetachedSetNeedsNoConnection) {
  CDataSet set;
  set.CursorLocation = CDataSet::kUseClient;
  set.Open("select * from entries order by id", *link_, 3, 3);
  set.SetActiveConnection(nullptr);
  link_.reset();
  EXPECT_EQ(set.RecordCount(), 40);
  set.MoveLast();
  EXPECT_EQ(set.Field("id").ToInteger(), 40);
  set.SetField("mark", "Y");
  EXPECT_THROW(set.Update(), HostError);
}

TEST_F(LinkTest, ARefusedStatementSaysWhatWhyAndWhich) {
  Recorder recorder;
  link_->SetObserver(&recorder);
  const std::string wrong = "Update entry set mark='Y'";
  const DbError unknown = ErrorOf([&] { link_->Execute(wrong); });
  EXPECT_EQ(unknown.SqlState(), "42S02");
  EXPECT_EQ(unknown.Statement(), wrong);
  EXPECT_NE(unknown.Details().find("ENTRY"), std::string::npos);
  EXPECT_NE(unknown.Details().find(wrong), std::string::npos);
  EXPECT_EQ(recorder.Lines.back(), "2024|" + wrong + "|0|failed");
  const DbError twice = ErrorOf([&] { link_->Execute("insert into narrations values (1,'again')"); });
  EXPECT_EQ(twice.SqlState(), "23000");
  EXPECT_STREQ(twice.what(), "There is a record with this key already.");
  CDataSet set;
  EXPECT_EQ(ErrorOf([&] { set.Open("select 1/0 from narrations", *link_); }).SqlState(), "22012");
  EXPECT_EQ(set.State(), 0);
  EXPECT_EQ(ErrorOf([&] { link_->Lookup("narrations", "nothing", ""); }).SqlState(), "42S22");
  EXPECT_EQ(link_->Lookup("narrations", "count(*)", "").ToInteger(), 3) << "the link goes on after an error";
  EXPECT_EQ(ErrorOf([&] {
              FirebirdLink::Open({folder_.File("none.fdb"), "", ""}, "2023");
            })
                .SqlState()
                .substr(0, 2),
            "08");
  for (const char* sql : {"commit", "rollback", "commit retain", "set transaction"}) {
    EXPECT_THROW(link_->Execute(sql), HostError) << sql;
    link_->BeginTrans();
    link_->Execute("Update narrations set narration='x' where nar=1");
    EXPECT_THROW(link_->Execute(sql), HostError) << sql;
    link_->RollbackTrans();
    EXPECT_EQ(link_->Lookup("narrations", "narration", "nar=1").ToText(), "By cash") << sql;
  }
  link_->SetObserver(nullptr);
}

TEST_F(LinkTest, ALongTextIsStoredWholeInAStatement) {
  const std::string letter = "it's " + text::ReplaceAll(std::string(100000, 'x'), "xxxx", "ळ''x");
  link_->Execute("Update or insert into notes (who,what) values ('Asha','" +
                 text::ReplaceAll(letter, "'", "''") + "') matching (who)");
  EXPECT_EQ(link_->Lookup("notes", "what", "who='Asha'").ToText(), letter);
}

TEST_F(LinkTest, StatementsThatDifferInTheirValuesMeanWhatTheirTextsSay) {
  const auto rows = [&](const std::string& sql) {
    std::int64_t changed = -1;
    link_->Execute(sql, changed, CDbLink::kNoRows);
    return changed;
  };
  const auto prepared = [&] {
    return link_->Lookup("mon$statements", "count(*)", "mon$sql_text like 'Update entries%?%'");
  };
  for (int i = 1; i <= 20; ++i) {
    EXPECT_EQ(rows("Update entries set vdate='2024-05-" + std::to_string(i + 10) +
                   "',mark='Y' where id=" + std::to_string(i) + " and line=1"),
              1);
  }
  EXPECT_EQ(prepared().ToInteger(), 1) << "one statement serves them all";
  EXPECT_EQ(link_->Lookup("entries", "max(vdate)", "mark='Y'").ToDate(), Date::Of(2024, 5, 30));

  EXPECT_EQ(rows("Update entries set mark='N' where id=1.5"), 0);
  EXPECT_EQ(rows("Update entries set mark='N' where id='1'"), 1);
  EXPECT_EQ(rows("Update entries set mark='X' where id=99999999999"), 0);
  EXPECT_EQ(rows("Update entries set amt=-5 where id=2"), 1);
  EXPECT_EQ(rows("Update entries set amt=7 where id=3"), 1);
  EXPECT_EQ(rows("Update entries set mark='longer' where mark='longer'"), 0);
  EXPECT_EQ(rows("Update entries set mark=null where id=4 or id=5"), 2);
  EXPECT_EQ(rows("Update entries set vdate='1-JUN-2024' where id=6 -- where id=7"), 1);
  EXPECT_EQ(rows("Update narrations set narration='It''s ?, = 5' where nar=1"), 1);
  EXPECT_EQ(rows("Insert Into narrations (nar,narration) values (7,'a,b')"), 1);
  EXPECT_EQ(rows("delete from entries where id=9 and mark='Y'"), 1);
  EXPECT_EQ(link_->Lookup("entries", "amt", "id=2").ToAmount(), Amount::OfInteger(-5));
  EXPECT_EQ(link_->Lookup("entries", "amt", "id=3").ToAmount(), Amount::OfInteger(7));
  EXPECT_EQ(link_->Lookup("entries", "mark", "id=1").ToText(), "N");
  EXPECT_EQ(link_->Lookup("entries", "vdate", "id=6").ToDate(), Date::Of(2024, 6, 1));
  EXPECT_EQ(link_->Lookup("narrations", "narration", "nar=1").ToText(), "It's ?, = 5");
  EXPECT_EQ(ErrorOf([&] { rows("Update entries set vdate='2024-02-31' where id=1"); }).SqlState(), "22018");
  const std::string twice = "Insert Into narrations (nar,narration) values (7,'c')";
  EXPECT_EQ(ErrorOf([&] { rows(twice); }).Statement(), twice);

  link_->Execute("alter table entries drop mark");
  EXPECT_EQ(ErrorOf([&] { rows("Update entries set mark='N' where id=1"); }).SqlState(), "42S22");
}

TEST_F(LinkTest, ALockedRecordIsRefusedInsteadOfHanging) {
  const auto other = FirebirdLink::Open(address_, "2024");
  other->BeginTrans();
  other->Execute("Update entries set mark='A' where id=7 and line=1");
  const DbError locked =
      ErrorOf([&] { link_->Execute("Update entries set mark='B' where id=7 and line=1"); });
  EXPECT_EQ(locked.SqlState(), "40001");
  EXPECT_NE(std::string(locked.what()).find("Another user"), std::string::npos);
  link_->Execute("Update entries set mark='B' where id=8 and line=1");
  other->CommitTrans();
  link_->Execute("Update entries set mark='C' where id=7 and line=1");
  EXPECT_EQ(other->Lookup("entries", "mark", "id=7").ToText(), "C");
}

TEST_F(LinkTest, AConflictThatPassesIsNotTold) {
  const auto other = FirebirdLink::Open(address_, "2024");
  other->BeginTrans();
  other->Execute("Update entries set mark='A' where id=7 and line=1");
  std::string told = "stored";
  std::thread store([&] {
    try {
      link_->Execute("Update entries set mark='B' where id=7 and line=1");
    } catch (const DbError& error) {
      told = error.what();
    }
  });
  // What is being carried out stands still within a transaction, so each look is a link of its own.
  const std::string waiting =
      "select 1 from mon$statements where mon$state=1 and mon$sql_text starting 'Update'";
  const auto until = std::chrono::steady_clock::now() + std::chrono::milliseconds(700);
  while (std::chrono::steady_clock::now() < until && !FirebirdLink::Open(address_, "")->RowExists(waiting)) {
  }
  // The one that waits has seen a record that is changed now: the engine calls that a conflict.
  other->CommitTrans();
  store.join();
  EXPECT_EQ(told, "stored");
  EXPECT_EQ(other->Lookup("entries", "mark", "id=7").ToText(), "B");
}

TEST_F(LinkTest, AnotherProcessReadsAndWritesWhileTheDeskHasTheDatabaseOpen) {
  if (std::system("command -v isql-fb >/dev/null") != 0) GTEST_SKIP() << "isql-fb is not installed";
  CDataSet set;
  set.Open("select * from entries order by id", *link_);
  link_->BeginTrans();
  link_->Execute("Update entries set mark='D' where id=1");
  std::ofstream(folder_.File("other.sql"))
      << "update entries set mark='O' where id=2; commit;\n"
         "set heading off; select count(*) from entries where mark='D';\n";
  const std::string command = "isql-fb -q -b -user SYSDBA -i '" + folder_.File("other.sql") + "' -o '" +
                              folder_.File("out.txt") + "' '" + address_.Database + "'";
  ASSERT_EQ(std::system(command.c_str()), 0);
  link_->CommitTrans();
  std::ifstream out(folder_.File("out.txt"));
  int seen = -1;
  out >> seen;
  EXPECT_EQ(seen, 0) << "the other process must not see what is not committed";
  EXPECT_EQ(link_->Lookup("entries", "mark", "id=2").ToText(), "O");
  EXPECT_EQ(set.RecordCount(), 40);
}

}  // namespace
}  // namespace quillon
