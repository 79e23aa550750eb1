#include "desk/services/DeskApp.h"
#include "host/data/CDataSet.h"
#include "tests/support/BankTest.h"

namespace quillon {
namespace {

constexpr int kClearedOn = 4;    // of the account's own statement
constexpr int kReturned = 28;    // of it, and of the entries
constexpr int kCleared = 27;     // of the entries
constexpr int kViewCleared = 6;  // of the reconciliation statement

/// Screens that stand on the statement of bank 101, with another bank beside it.
class StandingScreens : public BankTest {
 protected:
  void SetUp() override {
    BankTest::SetUp();
    AddAccount(102, "Deccan Bank", 47);
    AddVoucher({.id = 1, .date = "2024-04-01", .amount = "10000", .book = "0B"});
    AddVoucher({.id = 2, .date = "2024-04-05", .amount = "1500", .narration = "Cheque 777101"});
    AddVoucher({.id = 3, .date = "2024-04-08", .amount = "-2500.5", .cleared = "2024-04-10"});
    AddVoucher({.id = 4, .date = "2024-04-12", .amount = "700"});
    AddVoucher({.id = 50, .date = "2024-07-01", .amount = "50", .account = 102});
    OpenBench();
  }

  CGridPlus& View() { return StatementRows(); }
  void Front(const FormPtr& form) {
    Do([&] { runtime_.BringToFront(*form); });
  }
  void OpenView(const std::string& asOn) {
    AnswerDate(asOn);
    Do([&] { Bar().UserPress("Statement"); });
    ASSERT_TRUE(View().Visible);
  }
  static int RowOf(const CGridPlus& grid, int col, const std::string& text) {
    for (int row = 1; row < grid.Rows; ++row) {
      if (grid.TextMatrix(row, col) == text) return row;
    }
    ADD_FAILURE() << text;
    return 1;
  }
};

TEST_F(StandingScreens, TheStatementKeepsItsAccountAndPeriodWhileTheyAreOpen) {
  Front(statement_);
  runtime_.NextCommand = [&] {
    At<CSelGrid>(runtime_.ActiveForm(), "SelGrid1").UserPick("Deccan Bank");
    return true;
  };
  Key(*statement_, keys::kF2);
  const FormPtr other = runtime_.ActiveForm();
  ASSERT_NE(other, statement_);
  EXPECT_EQ(other->Get("AccountCode").ToInteger(), 102);
  EXPECT_EQ(statement_->Get("AccountCode").ToInteger(), 101);
  Front(statement_);
  AnswerMessage();
  Key(*statement_, keys::kF3);
  EXPECT_EQ(Messages(), Texts{"Close the reconciliation of this statement first."});

  Front(bench_);
  Choose(2);
  EXPECT_EQ(RowTexts(Entries(), {0}), (Texts{"", "2", "4"})) << "still the rows of the first bank";
  OpenView("30-Apr-2024");
  EXPECT_EQ(View().Footer.TextMatrix(0, 3), "Bal. per Sahyadri Bank");

  Key(*bench_, keys::kEscape);
  Do([&] { runtime_.Unload(*bench_); });
  Front(statement_);
  AnswerPeriod("1/4/2024", "9/4/2024");
  Key(*statement_, keys::kF3);
  EXPECT_EQ(Source().Rows(), 4) << "with nothing standing on it the period is free again";
}

TEST_F(StandingScreens, ClosingTheStatementClosesTheLastOpenedFirstAndOneThatRefusesKeepsBoth) {
  Front(statement_);
  Key(*statement_, keys::kF4);
  const FormPtr markings = runtime_.ActiveForm();
  ASSERT_EQ(markings->Name(), "frmAcReconciliationMark");
  Front(bench_);
  TypeInCell(Entries(), 2, kCleared, "soon");
  Front(statement_);
  AnswerMessage();
  Do([&] { runtime_.Unload(*statement_); });
  EXPECT_EQ(Messages(), Texts{"Invalid Date"}) << "a date that cannot be stored is not dropped";
  EXPECT_TRUE(statement_->IsLoaded());
  EXPECT_TRUE(bench_->IsLoaded());
  EXPECT_FALSE(markings->IsLoaded());
  Do([&] { Entries().UserType("6"); });
  Do([&] { runtime_.Unload(*statement_); });
  EXPECT_EQ(Stored(2), "06-Apr-2024");
  EXPECT_FALSE(bench_->IsLoaded());
  EXPECT_FALSE(statement_->IsLoaded());
}

TEST_F(StandingScreens, TheStatementReadsTheMarksOfOthersWhenItBecomesCurrent) {
  Db().Execute("update FAData set dBankDate='2024-04-20' where VoucherID=4");
  Db().Execute("update FADocs set ChqReturn='Y' where VoucherID=2");
  AddVoucher({.id = 9, .date = "2024-04-02", .amount = "5"});
  Do([&] { Source().Row = 4; });
  Front(statement_);
  EXPECT_EQ(RowTexts(Source(), {0, kClearedOn, kReturned}),
            (Texts{"||", "2||Y", "3|10-Apr-2024|", "4|20-Apr-2024|"}));
  EXPECT_EQ(Source().Row(), 4);
  Front(bench_);
  Do([&] { runtime_.Unload(*bench_); });
  EXPECT_EQ(RowTexts(Source(), {0}), (Texts{"", "9", "2", "3", "4"})) << "alone it reads anew";
  EXPECT_EQ(Source().Row(), 5) << "the cursor is on its entry";
}

TEST_F(StandingScreens, ARowThatIsNoEntryIsNeverDatedNorASourceOfADate) {
  OpenView("09-Apr-2024");
  const int credit = RowOf(View(), 10, "3");
  const int between = credit - 1;
  ASSERT_EQ(View().TextMatrix(between, 3), "Amounts Credited by us only:-");
  EXPECT_TRUE(EditCell(View(), credit, kViewCleared, "="));
  EXPECT_EQ(Stored(3), "") << "a heading has no date to give";
  EXPECT_TRUE(EditCell(View(), credit, kViewCleared, "7"));
  EXPECT_EQ(View().TextMatrix(between, kViewCleared), "");

  Key(*bench_, keys::kEscape);
  EXPECT_EQ(Entries().TextMatrix(1, kCleared), "") << "the opening row";
  const Array late = {1, "05-Apr-2024"};
  EXPECT_THROW(bench_->Call("SaveRow", late), HostError);
  EXPECT_THROW(bench_->Call("SaveRow", {99, "05-Apr-2024"}), HostError);
  EXPECT_THROW(bench_->Call("SaveRow", {2, "soon"}), HostError);
  EXPECT_THROW(bench_->Call("SaveRow", {2}), HostError);
  EXPECT_EQ(Entries().TextMatrix(1, kCleared), "");
  EXPECT_EQ(Db().Lookup("FAData", "count(*)", "dBankDate is not null").ToInteger(), 1);
}

TEST_F(StandingScreens, FillDownOverAHeadingDatesTheEntriesAlone) {
  AddVoucher({.id = 5, .date = "2024-04-13", .amount = "-80"});
  Do([&] { runtime_.Unload(*bench_); });
  bench_ = ShowWorkbench(statement_);
  OpenView("09-Apr-2024");
  const int first = RowOf(View(), 10, "2");
  const int credit = RowOf(View(), 10, "3");
  ASSERT_GT(credit, first + 1);
  EXPECT_TRUE(EditCell(View(), first, kViewCleared, "6"));
  EXPECT_TRUE(EditCell(View(), credit, kViewCleared, "00"));
  EXPECT_EQ(Stored(3), "06-Apr-2024");
  for (int row = first + 1; row < credit; ++row) EXPECT_EQ(View().TextMatrix(row, kViewCleared), "") << row;
  Key(*bench_, keys::kEscape);
  EXPECT_EQ(Entries().TextMatrix(1, kCleared), "");
  EXPECT_EQ(Source().TextMatrix(1, kClearedOn), "");
}

TEST_F(StandingScreens, ADateOfAnEntryThatTheFilterHidesIsNotLost) {
  Choose(1);
  ASSERT_EQ(RowTexts(Entries(), {0}), (Texts{"3"}));
  OpenView("30-Apr-2024");
  EXPECT_TRUE(EditCell(View(), RowOf(View(), 10, "4"), kViewCleared, "20"));
  EXPECT_EQ(Source().TextMatrix(4, kClearedOn), "20-Apr-2024");
  Key(*bench_, keys::kEscape);
  Choose(0);
  EXPECT_EQ(RowTexts(Entries(), {0, kCleared}), (Texts{"|", "2|", "3|10-Apr-2024", "4|20-Apr-2024"}));
  Do([&] { Entries().UserMoveTo(2, kCleared); });
  Do([&] { Returned().UserClick(); });
  Choose(2);
  EXPECT_EQ(RowTexts(Entries(), {0, kReturned}), (Texts{"|", "2|Y"}))
      << "nor is the mark of a returned cheque";
  EXPECT_EQ(Entries().Paints(2).at(0).backColor, 0x5EAEFF);
}

TEST_F(StandingScreens, TheReturnedBoxShowsAndActsOverTheEntriesAlone) {
  Do([&] { Entries().UserMoveTo(2, kCleared); });
  ASSERT_TRUE(Returned().Visible);
  OpenView("30-Apr-2024");
  EXPECT_FALSE(Returned().Visible);
  Key(*bench_, keys::kF7);
  EXPECT_FALSE(Returned().Visible);
  Refuses([&] { Returned().UserClick(); }, "chkReturned is hidden");
  Key(*bench_, keys::kEscape);
  ASSERT_TRUE(Returned().Visible);

  Db().Execute("delete from FADocs where VoucherID=2");
  AnswerMessage();
  Do([&] { Returned().UserClick(); });
  EXPECT_EQ(Messages(), Texts{"This entry has no document to mark."});
  EXPECT_EQ(Returned().CheckValue(), 0);
  EXPECT_EQ(Entries().TextMatrix(2, kReturned), "");

  Do([&] { Entries().UserMoveTo(3, kCleared); });
  Db().Execute("alter table FADocs alter ChqReturn to Elsewhere");
  Do([&] { Returned().UserClick(); });
  EXPECT_EQ(Errors().size(), 1U);
  EXPECT_EQ(Returned().CheckValue(), 0) << "as the books have it";
  EXPECT_TRUE(Returned().Visible);
  Db().Execute("alter table FADocs alter Elsewhere to ChqReturn");
}

TEST_F(StandingScreens, AViewThatFailedShowsNoTotalsAndIsNeitherPrintedNorReckonedWith) {
  OpenView("30-Apr-2024");
  ASSERT_EQ(View().Footer.TextMatrix(0, 5), "-7,499.50");
  for (const int id : {60, 61}) AddVoucher({.id = id, .date = "2024-04-20", .amount = "900000000000000"});
  const auto refuses = [&](int key, const std::string& title) {
    AnswerMessage();
    Key(*bench_, key);
    const Texts told = Messages();
    ASSERT_EQ(told.size(), 1U);
    EXPECT_TRUE(told[0].starts_with(title)) << told[0];
  };
  Key(*bench_, keys::kEscape);
  OpenView("20-Apr-2024");
  EXPECT_EQ(Errors().size(), 1U);
  EXPECT_EQ(View().Title(), "Reconciliation Statement as on 20/04/2024 (not complete)");
  EXPECT_EQ(View().Footer.TextMatrix(0, 5), "") << "nor a closing line of another date";
  refuses(keys::kF8, "Reconciliation Statement as on 20/04/2024 (not complete)");
  Key(*bench_, keys::kEscape);

  Db().Execute("update FAData set dBankDate='2024-04-21' where VoucherID in (60,61)");
  Key(*bench_, keys::kF7);
  EXPECT_EQ(Errors().size(), 1U);
  CGridPlus& book = At<CGridPlus>(bench_, "GridPBook");
  ASSERT_TRUE(book.Visible) << "what was read stays to be seen";
  EXPECT_EQ(book.Title(), "Pass Book (not complete)");
  EXPECT_EQ(book.Footer.Rows(), 0);
  refuses(keys::kF5, "Pass Book (not complete)");
  EXPECT_EQ(Events("report").size(), 0U);

  Do([&] { runtime_.Unload(*bench_); });  // back to the entries
  Do([&] { runtime_.Unload(*bench_); });
  EXPECT_EQ(Errors().size(), 1U) << "the statement of account reads anew, and fails too";
  EXPECT_EQ(Source().Title(), "Sahyadri Bank, Pune (not complete)");
  EXPECT_EQ(Source().Footer.TextMatrix(0, 24), "");
  AnswerMessage();
  Key(*statement_, keys::kF6);
  EXPECT_EQ(Messages().size(), 1U);
  EXPECT_EQ(runtime_.ActiveForm(), statement_) << "no reconciliation of half an account";
}

TEST_F(StandingScreens, ARightThatCannotBeReadIsNone) {
  Do([&] { runtime_.Unload(*bench_); });
  OpenAsClerk();
  statement_ = ShowStatement();
  gSession->CommonDb().Execute("drop table UserRights");
  const FormPtr bench = desk_.Module().GetForm("acreconciliation");
  bench->CallingForm = statement_;
  Do([&] { gApp->ShowForm(bench); });
  EXPECT_EQ(Errors().size(), 1U);
  EXPECT_FALSE(bench->IsLoaded());
  EXPECT_EQ(runtime_.ActiveForm(), statement_);
}

TEST_F(StandingScreens, AFormThatFailedToLoadLetsGoOfItsCaller) {
  Do([&] { runtime_.Unload(*bench_); });
  const FormPtr bench = desk_.Module().GetForm("acreconciliation");
  bench->CallingForm = statement_;
  gSession->CommonDb().Execute("alter table FirmParameters alter ParameterText to Elsewhere");
  Do([&] { gApp->ShowForm(bench); });
  EXPECT_EQ(Errors().size(), 2U) << "the entries and the interest year";
  EXPECT_FALSE(bench->IsLoaded());
  EXPECT_EQ(bench->CallingForm, nullptr);
  Front(statement_);
  Do([&] { runtime_.Unload(*statement_); });
  EXPECT_FALSE(statement_->IsLoaded());
}

TEST_F(StandingScreens, InterestAloneShowsNoOtherView) {
  Do([&] { runtime_.Unload(*bench_); });
  runtime_.NextCommand = [&] {
    Do([&] { At<CTextPlus>(runtime_.ActiveForm(), "txpInttRate").TextBox.Text = "9"; });
    Key(*runtime_.ActiveForm(), keys::kF7);
    return true;
  };
  Do([&] { At<CButtonBar>(statement_, "BtnBar1").UserPress("Interest"); });
  bench_ = runtime_.ActiveForm();
  ASSERT_TRUE(InterestRows().Visible);
  CButtonBar& bar = At<CButtonBar>(bench_, "BtnBar1");
  for (const char* key : {"MassMarking", "Statement", "PassBook"})
    EXPECT_FALSE(bar.Buttons(key).Enabled()) << key;
  for (const int key : {keys::kF3, keys::kF6, keys::kF7}) Key(*bench_, key);
  EXPECT_THROW(bench_->Call("UpdateGridPassBook", {}), HostError);
  EXPECT_TRUE(InterestRows().Visible);
  EXPECT_EQ(Events("date").size(), 0U);
  Key(*bench_, keys::kEscape);
  EXPECT_FALSE(bench_->IsLoaded());
}

}  // namespace
}  // namespace quillon
