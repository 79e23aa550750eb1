#include <set>

#include "desk/sample/SampleFirm.h"
#include "desk/screens/DeskMenu.h"
#include "host/values/Text.h"
#include "maintenance/MergeYears.h"
#include "tests/maintenance/BulkTest.h"

namespace quillon {
namespace {

const char* const kAllYears = "W: Are you sure to merge these parties in All Years ?";
const char* const kThisYear = "W: Are you sure to merge these parties in Current F.Year ?";

/// A firm of the years 2022 to 2024, the last open; codes of its accounts differ from year to year.
class MergeParties : public BulkTest {
 protected:
  void SetUp() override {
    const std::string folder = folder_.File("years");
    MakeSampleFirm(folder, {.Years = {2022, 2023, 2024}, .IsEmpty = true});
    desk_.OpenFirm(folder);
    runtime_.Ignore(desk_.App().MainWindow().MainForm().get());
  }

  CDbLink& Year(int start) { return *desk_.Session().Books().OpenYear(start).Db; }
  static void Account(CDbLink& year, int code, const std::string& head, const std::string& station,
                      const std::string& alias = "null") {
    const std::string number = std::to_string(code);
    const std::string quoted = "'" + text::ReplaceAll(head, "'", "''") + "'";
    year.Execute("insert into FAMaster (mcd,mhd,mst,malias1,mbshno) values (" + number + "," + quoted + "," +
                 station + "," + alias + ",140)");
    year.Execute("insert into FAHeads (Code,SubCode,Head,PressHead) values (" + number + ",0," + quoted +
                 ",'X')");
  }

  /// The duplicate alone, both with openings, both with all that can name them.
  void FillYears(CDbLink& first, CDbLink& second) {
    Account(first, 8, "Asha Trader", "'Surat'");
    Enter(1, "2022-04-10", "J", "J", {{8, "70", 9}, {9, "-70", 8}}, &first);
    Account(second, 5, "Asha's Traders", "'Surat'");
    Account(second, 6, "Asha Trader", "'Surat'");
    Enter(1, "2023-04-01", "0B", "0B", {{5, "100"}}, &second);
    Enter(2, "2023-04-01", "0B", "0B", {{6, "-30.25"}}, &second);
    Enter(3, "2023-04-10", "J", "J", {{6, "7", 9}, {9, "-7", 6}}, &second);
    Account(Db(), 201, "Asha's Traders", "'Surat'");
    Account(Db(), 202, "Asha Trader", "'Surat'");
    Account(Db(), 203, "Bharat", "'Pune'");
    Enter(1, "2024-04-01", "0B", "0B", {{202, "69.75"}}, nullptr);
    Enter(2, "2024-04-10", "J", "J", {{202, "5", 203}, {203, "-5", 202}}, nullptr);
    for (const char* change :
         {"insert into FADocs (VoucherID,PartyCode,TransportCode,AgentCode) values (2,202,202,202)",
          "insert into DocData (DocumentID,CustomerID) values (1,202)",
          "insert into DocMain values (1,2,'INV',0,202,202,202,202,202,202)",
          "insert into ParamOBal (dcd) values (202)",
          "insert into RefMaster (RefCode,VoucherID) values (202,2)",
          "update FAMaster set mTransportCode=202,mAgentCode=202 where mcd=203",
          "insert into RatesPA (mcd,Rate1) values (202,12)"}) {
      Db().Execute(change);
    }
  }

  /// What is sent to make 202 one with 201, up to the opening rows.
  static Texts JoiningStatements() {
    Texts joined;
    for (const char* column :
         {"FADATA DCD", "FADATA DCD2", "FADOCS PARTYCODE", "FADOCS TRANSPORTCODE", "FADOCS AGENTCODE",
          "DOCDATA CUSTOMERID", "DOCMAIN PARTYCODE", "DOCMAIN DEBITCODE", "DOCMAIN TRANSPORTCODE",
          "FAMASTER MTRANSPORTCODE", "DOCMAIN AGENTCODE", "FAMASTER MAGENTCODE", "DOCMAIN CONSIGNEECODE",
          "DOCMAIN CONSIGNORCODE", "PARAMOBAL DCD", "REFMASTER REFCODE"}) {
      const Texts parts = text::Split(column, " ");
      joined.push_back("UPDATE " + parts[0] + " SET " + parts[1] + "=201 WHERE " + parts[1] + "=202");
    }
    joined.insert(joined.end(), {"EXECUTE PROCEDURE DELETE_MASTER(202)",
                                 "SELECT SUM(DAMT) FROM FADATA WHERE DTRNTYPE='0B' AND DCD=201",
                                 "SELECT FIRST 1 * FROM FADATA WHERE DTRNTYPE='0B' AND DCD=201"});
    return joined;
  }

  /// The screen, opened from the menu; what a person does in it.
  void OpenMerge(const Acts& acts) {
    Acts all;
    for (const auto& act : acts) {
      all.emplace_back([this, act] {
        dialog_ = runtime_.ActiveForm();
        act();
      });
    }
    IModule& module = *gSession->Modules().Item("DutyworksModule");
    During([&] { DeskMenu(module, desk_.Session(), DeskMenuLines()).Pick("MergeParties"); }, all);
  }
  CGridPlus& Grid() { return At<CGridPlus>(dialog_, "Grid"); }
  void Pick(int row, int col, const std::string& head, const std::string& station) {
    ASSERT_TRUE(Grid().UserEnterCell(row, col));
    auto& list = At<CSelGrid>(dialog_, "SelGrid1");
    for (int line = 1; line < list.Grid.Rows; ++line) {
      if (list.Cell(line, 0) != head || list.Cell(line, 2) != station) continue;
      list.UserPick(line);
      EXPECT_TRUE(Grid().UserLeaveCell());
      return;
    }
    ADD_FAILURE() << "not in the list: " << head;
  }
  Texts List() { return RowTexts(Grid(), {2, 0, 3, 4, 1, 5, 6}); }
  void TickAllYears() { At<CheckBox>(dialog_, "chkAllYears").UserCheck(true); }
};

TEST_F(MergeParties, InAllYearsWhatBothHaveIsJoinedAndTheDuplicateAloneIsRenamed) {
  CDbLink& first = Year(2022);
  CDbLink& second = Year(2023);
  FillYears(first, second);
  for (const int button : {2, 1, 1}) AnswerMessage(button);
  OpenMerge({[this] {
               EXPECT_TRUE(Grid().HasFocus());
               EXPECT_EQ(At<Label>(dialog_, "lblWarning").Caption(),
                         "Warning: You must take backup before merging parties.");
               EXPECT_FALSE(Grid().UserEnterCell(1, 5)) << "the original comes first";
               Pick(1, 3, "Asha's Traders", "Surat");
               EXPECT_FALSE(Grid().UserEnterCell(1, 4)) << "the pick fills it";
               Pick(1, 5, "Asha Trader", "Surat");
               EXPECT_EQ(List(), Texts{"1|201|Asha's Traders|Surat|202|Asha Trader|Surat"});
               TickAllYears();
               EXPECT_EQ(At<Label>(dialog_, "lblWarning").Caption(),
                         "Warning: You must take backup of All Years before merging parties.");
               PressOk();
             },
             [this] {
               Statements();
               Events("busy");
               PressOk();
             }});
  EXPECT_EQ(Told(), (Texts{kAllYears, kAllYears, ": Done"}));
  Texts busy;
  for (const Json& event : Events("busy")) busy.push_back(event.at("text"));
  EXPECT_EQ(busy, (Texts{"Please wait ...", "Processing: 2022-23 ...", "Processing: 2023-24 ...",
                         "Processing: 2024-25 ...", ""}));
  const Texts sent = Statements();
  const std::string lookup = "select first 1 MCD from FAMASTER where MHD=";
  EXPECT_EQ(
      Texts(sent.begin(), sent.begin() + 5),
      (Texts{lookup + "'Asha''s Traders' AND MST='Surat'", lookup + "'Asha Trader' AND MST='Surat'",
             "UPDATE FAMASTER SET MHD='Asha''s Traders',MST='Surat' WHERE MCD=8",
             "UPDATE FAHEADS SET HEAD='Asha''s Traders',PRESSHEAD='ASHASTRADERS' WHERE CODE=8 AND SUBCODE=0",
             lookup + "'Asha''s Traders' AND MST='Surat'"}));
  const auto last = std::find(sent.begin(), sent.end(), "UPDATE FADATA SET DCD=201 WHERE DCD=202");
  ASSERT_GE(sent.end() - last, 20);
  EXPECT_EQ(Texts(last, last + 19), JoiningStatements());
  EXPECT_EQ(Rows("select mcd,mhd from FAMaster", first), Texts{"8|Asha's Traders"});
  EXPECT_EQ(Rows("select mcd,mhd from FAMaster", second), Texts{"5|Asha's Traders"});
  EXPECT_EQ(Rows("select mcd,mTransportCode,mAgentCode from FAMaster order by 1"),
            (Texts{"201||", "203|201|201"}));
  EXPECT_EQ(Balances(first), (Texts{"8|70", "9|-70"}));
  EXPECT_EQ(Rows("select dcd,dcd2,dAmt,dTrnType from FAData order by VoucherID,dVchSubNo", second).size(), 3U)
      << "one opening row is left";
  EXPECT_EQ(Balances(second), (Texts{"5|76.75", "9|-7"}));
  EXPECT_EQ(Balances(), (Texts{"201|74.75", "203|-5"}));
  EXPECT_EQ(Rows("select dcd2 from FAData where dcd=203"), Texts{"201"});
  EXPECT_EQ(Rows("select * from DocMain"), Texts{"1|2|INV|0|201|201|201|201|201|201"});
  EXPECT_EQ(Rows("select PartyCode,TransportCode,AgentCode from FADocs"), Texts{"201|201|201"});
  EXPECT_EQ(
      Rows("select CustomerID from DocData union all select dcd from ParamOBal union all select RefCode from "
           "RefMaster"),
      (Texts{"201", "201", "201"}));
  EXPECT_EQ(Rows("select mcd from RatesPA"), Texts());
}

/// A firm of these years, without books.
class SomeYears : public FinYear {
 public:
  explicit SomeYears(std::set<int> years) : years_(std::move(years)) {}
  CDbLink& Db() override { return gSession->MainDb(); }
  Date StartDate() const override { return {}; }
  Date EndDate() const override { return {}; }
  int StartYear() const override { return 0; }
  int StartMonth() const override { return 0; }
  void Init(bool) override {}
  void OpenYear(int year, bool& ok) override { ok = years_.contains(year); }

 private:
  std::set<int> years_;
};

TEST(MergeYears, FiveOnEitherSideAtMostAndNoneBeyondAGap) {
  SomeYears many({2010, 2011, 2012, 2013, 2014, 2015, 2016, 2017, 2018, 2019, 2020, 2021, 2022});
  const MergeYears reached = MergeYears::Around(2016, many);
  EXPECT_EQ(reached.First, 2011);
  EXPECT_EQ(reached.Last, 2021);
  SomeYears few({2013, 2015, 2016, 2018});
  EXPECT_EQ(MergeYears::Around(2016, few).First, 2015);
  EXPECT_EQ(MergeYears::Around(2016, few).Last, 2016);
}

TEST_F(MergeParties, TheSearchListsEachPairAndAPairOfOneNameDeletesTheAccount) {
  Account(Db(), 11, "Om Mills", "null");
  Account(Db(), 12, "Om Mills", "''");
  Account(Db(), 13, "Om Mills", "null");
  Account(Db(), 14, "Om Mills", "'Pune'", "'OM'");
  Account(Db(), 15, "Anand", "null", "'OM'");
  Account(Db(), 16, "Zenith", "'Pune'", "'Z'");
  AnswerMessage(1);
  AnswerMessage(1);
  OpenMerge({[this] {
    Statements();
    At<CButton>(dialog_, "btnSearchDuplicate").UserClick();
    const Texts sent = Statements();
    ASSERT_EQ(sent.size(), 4U);
    EXPECT_EQ(sent[0], "UPDATE FAMASTER SET MST='' WHERE MST IS NULL");
    EXPECT_EQ(sent[1], "UPDATE FAMASTER SET MALIAS1='' WHERE MALIAS1 IS NULL");
    EXPECT_EQ(List(), (Texts{"1|11|Om Mills||12|Om Mills|", "2|11|Om Mills||13|Om Mills|",
                             "3|15|Anand||14|Om Mills|Pune", "||||||"}));
    for (const int row : {1, 2}) Grid().RemoveItem(row == 1 ? 1 : 2);
    EXPECT_EQ(List(), (Texts{"2|11|Om Mills||13|Om Mills|", "||||||"}));
    PressOk();
  }});
  EXPECT_EQ(Told(), (Texts{kThisYear, ": Done"}));
  EXPECT_EQ(Rows("select mcd from FAMaster order by 1"), (Texts{"12", "13", "14", "15", "16"}));
}

TEST_F(MergeParties, AFailureLeavesItsYearToBeKeptOrUndoneAndTheOthersAsTheyAre) {
  for (const int start : {2022, 2023, 2024}) {
    Account(Year(start), 1, "Asha", "'Surat'");
    Account(Year(start), 2, "Asha Old", "'Surat'");
    Enter(1, std::to_string(start) + "-04-10", "J", "J", {{2, "5", 9}, {9, "-5", 2}}, &Year(start));
  }
  Refuse("before update", "old.dcd2=2", &Year(2023));
  for (const int button : {1, 2}) AnswerMessage(button);
  OpenMerge({[this] {
               Pick(1, 3, "Asha", "Surat");
               Pick(1, 5, "Asha Old", "Surat");
               TickAllYears();
               PressOk();
             },
             [this] { Key(*dialog_, keys::kEscape); }});
  EXPECT_EQ(Errors().size(), 1U);
  const Texts told = Told();
  ASSERT_EQ(told.size(), 2U) << "the question, and Keep or Undo";
  EXPECT_NE(told[1].find("What this step changed in the year 2023-24 is not yet kept."), std::string::npos);
  EXPECT_EQ(Balances(Year(2022)), (Texts{"1|5", "9|-5"})) << "committed";
  EXPECT_EQ(Balances(Year(2023)), (Texts{"2|5", "9|-5"})) << "undone";
  EXPECT_EQ(Balances(), (Texts{"2|5", "9|-5"})) << "not reached";
}

TEST_F(MergeParties, OnlyASupervisorAndWhatIsDroppedWhileTyping) {
  Account(Db(), 1, "Asha", "'Surat'");
  Account(Db(), 2, "Bharat", "'Pune'");
  AnswerMessage();
  OpenMerge({[this] {
    Pick(1, 3, "Asha", "Surat");
    ASSERT_TRUE(Grid().UserEnterCell(1, 3));
    At<CSelGrid>(dialog_, "SelGrid1").UserPick("Bharat");
    Key(*dialog_, keys::kEscape);
    Key(*dialog_, keys::kEscape);
    EXPECT_EQ(List(), Texts{"1|1|Asha|Surat|||"}) << "code and station go back with the name";
    EditCell(Grid(), 1, 3, "");
    EXPECT_EQ(List(), Texts{"1||||||"});
    Key(*dialog_, keys::kEscape);
  }});
  gSession->CommonDb().Execute("insert into Users (UserName,UserLevel) values ('Clerk',8)");
  gSession->CommonDb().Execute("insert into UserRights values ('Clerk','bulk.mergeparties','N')");
  desk_.OpenFirm(folder_.File("years"), "Clerk");
  runtime_.Ignore(desk_.App().MainWindow().MainForm().get());
  OpenMerge({});
  EXPECT_EQ(Told(), Texts{"E: Access Denied."});
}

}  // namespace
}  // namespace quillon
