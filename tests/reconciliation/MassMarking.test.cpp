#include "tests/support/BankTest.h"

namespace quillon {
namespace {

constexpr int kCleared = 27;
constexpr int kMark = 0;
constexpr int kUnmark = 1;

/// The workbench on bank 101 with entries on the 5th, 8th, 12th and 30th of April and the 2nd of May; that of
/// the 8th was cleared on the 10th.
class MassMarking : public BankTest {
 protected:
  void SetUp() override {
    BankTest::SetUp();
    AddVoucher({.id = 1, .date = "2024-04-01", .amount = "10000", .book = "0B"});
    AddVoucher({.id = 2, .date = "2024-04-05", .amount = "1500"});
    AddVoucher({.id = 3, .date = "2024-04-08", .amount = "-2500.5", .cleared = "2024-04-10"});
    AddVoucher({.id = 4, .date = "2024-04-12", .amount = "1234567.89"});
    AddVoucher({.id = 5, .date = "2024-04-30", .amount = "-700", .line = 3});
    AddVoucher({.id = 6, .date = "2024-05-02", .amount = "80"});
    OpenBench();
  }

  CGridPlus& Grid() { return Entries(); }

  /// F3 and an item of the menu that pops up; below 0 the menu is left.
  void Pick(int item) {
    runtime_.NextCommand = [this, item] {
      if (item < 0) {
        runtime_.LeaveMenu();
      } else {
        runtime_.PickFromMenu(item);
      }
      return true;
    };
    Key(*bench_, keys::kF3);
  }

  void Run(int item, const std::string& first, const std::string& last, int button = 1) {
    AnswerPeriod(first, last);
    AnswerMessage(button);
    Pick(item);
  }

  /// The dates of the vouchers 2 to 6 in the books, and of the rows in a grid.
  Texts Stored() {
    Texts dates;
    for (int id = 2; id <= 6; ++id) {
      dates.push_back(Db().Lookup("FAData", "dBankDate", "dcd=101 and VoucherID=" + std::to_string(id))
                          .ToDate()
                          .Format("dd/MM"));
    }
    return dates;
  }
  static Texts Column(const CGridPlus& grid, int col) {
    Texts texts;
    for (int row = 1; row < grid.Rows; ++row)
      texts.push_back(Date::Parse(grid.TextMatrix(row, col)).Format("dd/MM"));
    return texts;
  }
};

TEST_F(MassMarking, FillsEmptyDatesOfAPeriodWithBothItsEnds) {
  const Texts footer = {Grid().Footer.TextMatrix(1, 24), Grid().Footer.TextMatrix(1, 26)};
  Run(kMark, "05-Apr-2024", "30-Apr-2024");
  One("menu", {{"items", {"Mass Marking of Entries", "Mass Un-Marking of Entries"}}});
  One("date", {{"single", false}});
  One("message",
      {{"text",
        "All entries where Cleared on date is not entered shall be filled with the date of transaction "
        "for the given period.\nAre you sure to Mark / Fill cleared on date? "},
       {"icon", "Q"},
       {"default", 2}});
  EXPECT_EQ(Updates(), (Texts{"Update FAData set dBankDate='2024-04-05' where VoucherID=2 and dVchSubNo=1",
                              "Update FAData set dBankDate='2024-04-12' where VoucherID=4 and dVchSubNo=1",
                              "Update FAData set dBankDate='2024-04-30' where VoucherID=5 and dVchSubNo=3"}));
  EXPECT_EQ(Stored(), (Texts{"05/04", "10/04", "12/04", "30/04", ""})) << "the date that was there stays";
  EXPECT_EQ(Db().Lookup("FAData", "count(*)", "dcd=201 and dBankDate is not null").ToInteger(), 0);
  EXPECT_EQ(Column(Grid(), kCleared), (Texts{"", "05/04", "10/04", "12/04", "30/04", ""}));

  // What the menu does not refresh: the statement and the totals of the marked.
  EXPECT_EQ(Column(Source(), 4), (Texts{"", "", "10/04", "", "", ""}));
  EXPECT_EQ((Texts{Grid().Footer.TextMatrix(1, 24), Grid().Footer.TextMatrix(1, 26)}), footer);
  Do([&] {
    ASSERT_TRUE(Grid().UserEnterCell(3, kCleared));
    ASSERT_TRUE(Grid().UserLeaveCell());
  });
  EXPECT_EQ(Grid().Footer.TextMatrix(1, 24), "12,46,067.89") << "the next edit counts all of them";

  Run(kMark, "05-Apr-2024", "30-Apr-2024");
  EXPECT_EQ(Updates(), Texts()) << "with every date there nothing is written";
  Choose(1);
  EXPECT_EQ(Column(Grid(), kCleared), (Texts{"05/04", "10/04", "12/04", "30/04"}))
      << "the statement still has the old dates, but what was stored from here is not lost";
}

TEST_F(MassMarking, EmptiesTheDatesOfAPeriod) {
  Run(kMark, "05-Apr-2024", "02-May-2024");
  EXPECT_EQ(Stored(), (Texts{"05/04", "10/04", "12/04", "30/04", "02/05"}));
  const std::string marked = Grid().Footer.TextMatrix(1, 26);
  Statements();
  Events("message");
  Run(kUnmark, "08-Apr-2024", "30-Apr-2024");
  One("message", {{"text",
                   "Be careful! This will remove cleared on date as entered by you for the given period.\n"
                   "Are you sure to Un-Mark / Remove cleared on date? "},
                  {"default", 2}});
  EXPECT_EQ(Updates(), (Texts{"Update FAData set dBankDate=Null where VoucherID=3 and dVchSubNo=1",
                              "Update FAData set dBankDate=Null where VoucherID=4 and dVchSubNo=1",
                              "Update FAData set dBankDate=Null where VoucherID=5 and dVchSubNo=3"}));
  EXPECT_EQ(Stored(), (Texts{"05/04", "", "", "", "02/05"})) << "the entry's own date counts, not the bank's";
  EXPECT_EQ(Column(Grid(), kCleared), (Texts{"", "05/04", "", "", "", "02/05"}));
  EXPECT_EQ(Column(Source(), 4), (Texts{"", "", "10/04", "", "", ""}));
  EXPECT_EQ(Grid().Footer.TextMatrix(1, 26), marked);
}

TEST_F(MassMarking, LeavesWhatIsHiddenAndWhatTheFilterHolds) {
  Grid().SetRowHeight(4, 0);
  Run(kMark, "01-Apr-2024", "31-May-2024");
  EXPECT_EQ(Grid().TextMatrix(1, kCleared), "") << "nor is the opening balance";
  EXPECT_EQ(Stored(), (Texts{"05/04", "10/04", "", "30/04", "02/05"})) << "a hidden row is no entry";
  Choose(1);
  Run(kUnmark, "08-Apr-2024", "31-May-2024");
  EXPECT_EQ(Stored(), (Texts{"05/04", "", "", "", ""}));
  Choose(2);
  Statements();
  Run(kMark, "12-Apr-2024", "12-Apr-2024");
  EXPECT_EQ(Stored(), (Texts{"05/04", "", "12/04", "", ""}));
  Run(kUnmark, "01-Apr-2024", "31-May-2024");
  EXPECT_EQ(Stored(), (Texts{"05/04", "", "", "", ""})) << "a marked entry is hidden here";
  Db().Execute("update FAData set dBankDate=null");
  Do([&] { runtime_.BringToFront(*statement_); });
  Do([&] { runtime_.BringToFront(*bench_); });
  Choose(1);
  ASSERT_EQ(Grid().TextMatrix(1, 8), "") << "a filter that leaves nothing leaves an empty row";
  Statements();
  Run(kMark, "01-Apr-2024", "31-May-2024");
  Run(kUnmark, "01-Apr-2024", "31-May-2024");
  EXPECT_EQ(Updates(), Texts());
}

TEST_F(MassMarking, ChangesNothingUntilAllIsConfirmed) {
  const Texts before = Stored();
  Pick(-1);
  EXPECT_EQ(Events("date").size(), 0U) << "the menu was left";
  for (const int item : {kMark, kUnmark}) {
    runtime_.Laid.Add({{"to", "date"}, {"cancel", true}});
    Pick(item);
    EXPECT_EQ(Events("message").size(), 0U) << "the dialog was left";
    Run(item, "01-Apr-2024", "31-May-2024", 2);
    EXPECT_EQ(Events("message").size(), 1U);
    Run(item, "03-May-2024", "31-Mar-2025");
    Run(item, "31-May-2024", "01-Apr-2024");
    Events("message");
  }
  EXPECT_EQ(Updates(), Texts());
  EXPECT_EQ(Stored(), before);
}

TEST_F(MassMarking, ADateThatIsBeingTypedIsStoredFirst) {
  TypeInCell(Grid(), 2, kCleared, "9");
  Run(kMark, "05-Apr-2024", "12-Apr-2024");
  EXPECT_EQ(Stored(), (Texts{"09/04", "10/04", "12/04", "", ""}));
  Events("message");
  Events("menu");
  // In the middle of a nonsense date there is no menu.
  TypeInCell(Grid(), 2, kCleared, "nonsense");
  AnswerMessage();
  Key(*bench_, keys::kF3);
  EXPECT_EQ(Messages(), Texts{"Invalid Date"});
  EXPECT_EQ(Events("menu").size(), 0U);
  Do([&] { Grid().CancelEdit(); });
}

TEST_F(MassMarking, AFailureIsReportedAndWhatWasStoredStays) {
  Db().Execute(
      "create trigger Keeps for FAData before update as declare x integer; "
      "begin if (old.VoucherID=4) then x=1/0; end");
  Run(kMark, "01-Apr-2024", "31-May-2024");
  One("error", {{"routine", "MassMarking"}});
  EXPECT_EQ(Stored(), (Texts{"05/04", "10/04", "", "", ""}));
  EXPECT_EQ(Grid().TextMatrix(4, kCleared), "") << "a date stands in the grid when it stands in the books";
}

}  // namespace
}  // namespace quillon
