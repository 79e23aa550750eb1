#include <random>

#include "desk/services/DeskApp.h"
#include "host/values/Text.h"
#include "tests/support/BankTest.h"

namespace quillon {
namespace {

constexpr int kCleared = 27;

/// The workbench on the statement of bank 101: an opening balance of 10,000 and the vouchers 2 to 5 of
/// 2024-25.
class Workbench : public BankTest {
 protected:
  void SetUp() override {
    BankTest::SetUp();
    AddVoucher({.id = 1, .date = "2024-04-01", .amount = "10000", .book = "0B"});
    AddVoucher({.id = 2, .date = "2024-04-05", .amount = "1500", .narration = "Cheque 101"});
    AddVoucher({.id = 3, .date = "2024-04-08", .amount = "-2500.5", .cleared = "2024-04-10", .other = 202});
    AddVoucher({.id = 4, .date = "2024-04-12", .amount = "1234567.89"});
    AddVoucher({.id = 5, .date = "2024-05-02", .amount = "-700"});
    AddVoucher({.id = 6, .date = "2024-05-03", .amount = "999", .book = "MEM"});
  }

  void Open() {
    OpenBench();
    ASSERT_EQ(bench_->Name(), "frmAcReconciliation");
  }

  CGridPlus& Grid() { return Entries(); }

  /// What the footer must say, counted anew over all rows.
  void ExpectTotals(const std::string& when) {
    Amount debits;
    Amount credits;
    for (int row = 1; row < Grid().Rows; ++row) {
      if (Grid().TextMatrix(row, kCleared).empty() && Grid().TextMatrix(row, 9) != "0B") continue;
      debits += gStd->ParseAmount(Grid().TextMatrix(row, 24));
      credits += gStd->ParseAmount(Grid().TextMatrix(row, 25));
    }
    const bool credit = credits > debits;
    const Amount difference = credit ? credits - debits : debits - credits;
    EXPECT_EQ(Grid().Footer.TextMatrix(1, 11), "Totals (O.Bal / Marked Entries)");
    EXPECT_EQ(Grid().Footer.TextMatrix(1, 24), gStd->FormatAmount(debits, "C2")) << when;
    EXPECT_EQ(Grid().Footer.TextMatrix(1, 25), gStd->FormatAmount(credits, "C2")) << when;
    EXPECT_EQ(Grid().Footer.TextMatrix(1, 26),
              gStd->FormatAmount(difference, "C2") + (credit ? " Cr." : " Dr."))
        << when;
  }
};

TEST_F(Workbench, ADamagedDateClosesNothingAndIsSetRight) {
  Db().Execute("update FAData set dBankDate='0024-04-10' where VoucherID=3");
  Db().Execute("update FAData set dVchDate='0001-01-01' where VoucherID=4");
  Open();
  EXPECT_EQ(RowTexts(Grid(), {8, kCleared}),
            (Texts{"01-Apr-2024|", "05-Apr-2024|", "08-Apr-2024|10-Apr-0024", "02-May-2024|"}));
  AnswerDate("30-Apr-2024");
  Do([&] { Bar().UserPress("Statement"); });
  const Texts dates = RowTexts(StatementRows(), {0});
  EXPECT_NE(std::find(dates.begin(), dates.end(), "01-Jan-0001"), dates.end());
  Key(*bench_, keys::kEscape);
  AnswerMessage();
  EXPECT_FALSE(EditCell(Grid(), 3, kCleared, "10/4/0024")) << "nobody types such a date";
  EXPECT_EQ(Messages(), Texts{"Invalid Date"});
  EXPECT_TRUE(EditCell(Grid(), 3, kCleared, "10"));
  EXPECT_EQ(Stored(3), "10-Apr-2024");
}

TEST_F(Workbench, OpensOnTheStatementWithItsRowsTitlesAndTotals) {
  Open();
  EXPECT_EQ(At<Label>(bench_, "lblTitle").Caption(), "   Statement of Account -> Reconciliation");
  EXPECT_EQ(At<Label>(bench_, "lblTitle1", 0).Caption(), "   Reconciliation");
  EXPECT_EQ(At<Label>(bench_, "lblTitle1", 2).Caption(), "Period: 01/04/2024 to 31/03/2025");
  EXPECT_EQ(At<CMStrip>(bench_, "MStrip1").Code(), 101);
  EXPECT_EQ(Grid().Rows(), 6) << "the opening balance and four entries; the memorandum is none";
  EXPECT_EQ(ShownTitles(Grid()), "Date|Book|Narration|Debit|Credit|Balance|Cleared On");
  EXPECT_EQ(RowText(Grid(), 3, {kCleared, 29}), "10-Apr-2024|3");
  EXPECT_EQ(Grid().Footer.TextMatrix(0, 24), "12,46,067.89");
  EXPECT_EQ(Grid().Footer.TextMatrix(0, 26), Source().Footer.TextMatrix(0, 26));
  ExpectTotals("at the start");
  EXPECT_EQ(Grid().Footer.TextMatrix(1, 26), "7,499.50 Dr.");
  EXPECT_EQ(Grid().Row(), 5);
  EXPECT_EQ(Grid().Col(), kCleared);
  EXPECT_TRUE(Grid().HasFocus());
  CMStrip& strip = At<CMStrip>(bench_, "MStrip2");
  EXPECT_EQ(strip.Code(), 201) << "the other side of the row under the cursor";
  for (const auto& [row, code] : {std::pair{3, 202}, {4, 201}, {1, 0}}) {
    Do([&, at = row] { Grid().UserMoveTo(at, 8); });
    EXPECT_EQ(strip.Code(), code) << row;
  }
  EXPECT_EQ(ShownCaptions(Bar()),
            "F3: Mass Mark||F5 : Interest|F6 : Statement|F7 : Pass Book|F8 : Preview|F9 : Print|Esc : Exit");
}

TEST_F(Workbench, AFirmThatShowsSerialNumbersSeesThem) {
  gSession->CommonDb().Execute("insert into FirmParameters values (962,'Yes')");
  Open();
  EXPECT_EQ(Grid().TextMatrix(0, 6), "Sr. No.");
  EXPECT_EQ(Grid().ColWidth(6), 5 * gRuntime->TextWidth(Grid().Font, "9"));
  Choose(1);
  EXPECT_EQ(Grid().Rows(), 2);
  EXPECT_EQ(Grid().TextMatrix(1, 6), "1") << "the rows are numbered as they stand";
}

TEST_F(Workbench, AnAcceptedDateIsStoredAtOnceAndEchoed) {
  Open();
  EXPECT_TRUE(EditCell(Grid(), 2, kCleared, "9"));
  const Texts sent = Statements();
  EXPECT_EQ(sent.back(), "Update FAData set dBankDate='2024-04-09' where VoucherID=2 and dVchSubNo=1");
  EXPECT_EQ(Grid().TextMatrix(2, kCleared), "09-Apr-2024");
  EXPECT_EQ(Source().TextMatrix(2, 4), "09-Apr-2024");
  EXPECT_EQ(Stored(2), "09-Apr-2024");
  EXPECT_EQ(Stored(2, 2), "") << "the other line of the voucher is the other account's";
  ExpectTotals("after a date");

  EXPECT_TRUE(EditCell(Grid(), 3, kCleared, "="));
  EXPECT_EQ(Stored(3), "09-Apr-2024");
  EXPECT_TRUE(EditCell(Grid(), 2, kCleared, "="));
  EXPECT_EQ(Stored(2), "") << "the opening row above has no date";
  EXPECT_EQ(Source().TextMatrix(2, 4), "");
  ExpectTotals("after = from an empty row");
  Do([&] { ASSERT_TRUE(Grid().UserEnterCell(3, kCleared)); });
  Statements();
  Do([&] { ASSERT_TRUE(Grid().UserLeaveCell()); });
  EXPECT_EQ(Statements(), Texts()) << "an untouched cell stores nothing";
  EXPECT_TRUE(EditCell(Grid(), 3, kCleared, ""));
  EXPECT_EQ(Statements().back(), "Update FAData set dBankDate=Null where VoucherID=3 and dVchSubNo=1");
  EXPECT_EQ(Grid().Footer.TextMatrix(1, 26), "10,000.00 Dr.");
  ExpectTotals("after a removed date");
}

TEST_F(Workbench, DatesAreTakenFromAYearBeforeTheYearOn) {
  Open();
  AnswerMessage();
  EXPECT_FALSE(EditCell(Grid(), 2, kCleared, "31/3/2023"));
  EXPECT_EQ(Messages(), Texts{"Invalid Date"});
  EXPECT_TRUE(Grid().EditMode()) << "a refusal keeps the user in the cell";
  EXPECT_EQ(Grid().EditBox.Text(), "31/3/2023");
  EXPECT_EQ(Stored(2), "");
  AnswerMessage();
  EXPECT_TRUE(EditCell(Grid(), 2, kCleared, "1/4/2023"));
  EXPECT_EQ(Told(), Texts{"I: Be careful, Date does not fall in current F.Year"});
  EXPECT_EQ(Stored(2), "01-Apr-2023");
  EXPECT_TRUE(EditCell(Grid(), 2, kCleared, "1/4/2024"));
  EXPECT_TRUE(EditCell(Grid(), 2, kCleared, "31/3/2025"));
  EXPECT_EQ(Messages(), Texts()) << "both ends belong to the year";
  AnswerMessage();
  EXPECT_TRUE(EditCell(Grid(), 2, kCleared, "1/4/2025"));
  EXPECT_EQ(Messages(), Texts{"Be careful, Date does not fall in current F.Year"});
  for (const char* nonsense : {"31/2", "abc", "*"}) {
    AnswerMessage();
    EXPECT_FALSE(EditCell(Grid(), 2, kCleared, nonsense)) << nonsense;
    EXPECT_EQ(Told(), Texts{"E: Invalid Date"});
  }
  EXPECT_EQ(Stored(2), "01-Apr-2025");
  EXPECT_TRUE(EditCell(Grid(), 2, kCleared, "20/4/2024"));
  ExpectTotals("after refusals");
}

TEST_F(Workbench, TheFirstRowHasNoRowAbove) {
  statement_ = gApp->GetForm("Account");
  statement_->Set("AccountCode", 101);
  statement_->Set("WithOpening", false);
  Do([&] { gApp->ShowForm(statement_); });
  bench_ = ShowWorkbench(statement_);
  ASSERT_EQ(Grid().TextMatrix(1, 0), "2");
  for (const char* text : {"=", "00"}) {
    AnswerMessage();
    EXPECT_FALSE(EditCell(Grid(), 1, kCleared, text));
    EXPECT_EQ(Messages(), Texts{"Invalid Date"}) << text;
  }
  EXPECT_TRUE(EditCell(Grid(), 1, kCleared, "7"));
  EXPECT_EQ(Stored(2), "07-Apr-2024");
}

TEST_F(Workbench, NeitherTheOpeningRowNorOtherColumnsAreEdited) {
  Open();
  for (const int col : {8, 11, 24, 28}) {
    EXPECT_FALSE(EditCell(Grid(), 3, col, "x")) << col;
    EXPECT_FALSE(Grid().EditMode());
  }
  EXPECT_FALSE(EditCell(Grid(), 1, kCleared, "5"));
  EXPECT_EQ(Grid().TextMatrix(1, kCleared), "");
  // Enter goes from cell to cell and stops past the last row.
  Do([&] { Grid().UserMoveTo(4, kCleared); });
  TypeKeys(*bench_, "15");
  Key(*bench_, keys::kEnter);
  EXPECT_EQ(Stored(4), "15-Apr-2024");
  EXPECT_EQ(Grid().EditRow(), 5);
  TypeKeys(*bench_, "6");
  Key(*bench_, keys::kEnter);
  EXPECT_EQ(Stored(5), "06-May-2024");
  EXPECT_FALSE(Grid().EditMode());
  EXPECT_EQ(Grid().Row(), 5);
  EXPECT_EQ(Grid().Rows(), 6);
}

TEST_F(Workbench, FillDownTakesTheNearestVisibleDate) {
  Open();
  Events("pointer");  // the statement that was read has turned it too
  EXPECT_TRUE(EditCell(Grid(), 5, kCleared, "00"));
  for (const int voucher : {3, 4, 5}) EXPECT_EQ(Stored(voucher), "10-Apr-2024") << voucher;
  EXPECT_EQ(Stored(2), "");
  for (int row = 3; row <= 5; ++row) {
    EXPECT_EQ(Grid().TextMatrix(row, kCleared), "10-Apr-2024");
    EXPECT_EQ(Source().TextMatrix(row, 4), "10-Apr-2024");
  }
  ExpectTotals("after a fill-down");
  EXPECT_EQ(Events("busy").size(), 2U);
  EXPECT_EQ(Events("pointer").back()["value"], kPointerDefault);

  // A hidden row neither gives its date nor takes one.
  EXPECT_TRUE(EditCell(Grid(), 3, kCleared, ""));
  EXPECT_TRUE(EditCell(Grid(), 2, kCleared, "6"));
  EXPECT_TRUE(EditCell(Grid(), 5, kCleared, ""));
  Grid().SetRowHeight(4, 0);
  EXPECT_TRUE(EditCell(Grid(), 5, kCleared, "00"));
  EXPECT_EQ(Stored(3) + Stored(4) + Stored(5), "06-Apr-202410-Apr-202406-Apr-2024");
  ExpectTotals("after a fill-down over a hidden row");
}

TEST_F(Workbench, FillDownWithNoDateAboveDoesNothing) {
  Open();
  Statements();
  EXPECT_TRUE(EditCell(Grid(), 2, kCleared, "00"));
  for (const std::string& sql : Statements()) EXPECT_EQ(sql.find("Update"), std::string::npos) << sql;
  EXPECT_NE(Grid().TextMatrix(2, kCleared), "00") << "00 itself is not stored";
  EXPECT_EQ(Source().TextMatrix(2, 4), "");
  EXPECT_EQ(Events("busy").size(), 0U);
  ExpectTotals("after a fill-down without a date");
}

TEST_F(Workbench, AFilteredViewKeepsTheRoadToTheStatement) {
  Open();
  Choose(2);
  EXPECT_EQ(Grid().Title(), "Reconciliation Workings ( Filter: Unmarked Entries )");
  ASSERT_EQ(Grid().Rows(), 5) << "the opening row has no date";
  EXPECT_EQ(Grid().TextMatrix(3, 0), "4");
  EXPECT_TRUE(EditCell(Grid(), 3, kCleared, "20"));
  EXPECT_EQ(Source().TextMatrix(4, 4), "20-Apr-2024");
  EXPECT_EQ(Source().TextMatrix(3, 4), "10-Apr-2024");
  EXPECT_EQ(Grid().Rows(), 5) << "the row stays until the filter is chosen again";
  ExpectTotals("in a filtered view");
  Choose(1);
  EXPECT_EQ(Grid().Title(), "Reconciliation Workings ( Filter: Marked Entries )");
  ASSERT_EQ(Grid().Rows(), 3);
  EXPECT_EQ(Grid().TextMatrix(2, 0), "4");
  ExpectTotals("with the marked only");
  EXPECT_TRUE(EditCell(Grid(), 1, kCleared, ""));
  EXPECT_TRUE(EditCell(Grid(), 2, kCleared, ""));
  Choose(1);
  EXPECT_EQ(Grid().Rows(), 2);
  EXPECT_EQ(Grid().TextMatrix(1, 0), "");
  EXPECT_FALSE(Returned().Visible) << "an empty row has no voucher to return";
  ExpectTotals("with nothing left");
  Source().SetRowHeight(5, 0);
  Choose(0);
  EXPECT_EQ(Grid().Rows(), 5) << "what the statement hides stays hidden";
}

TEST_F(Workbench, ARefusedCellKeepsTheFilter) {
  Open();
  TypeInCell(Grid(), 2, kCleared, "nonsense");
  AnswerMessage();
  Choose(1);
  EXPECT_EQ(Messages(), Texts{"Invalid Date"});
  EXPECT_EQ(At<ComboBox>(bench_, "cmbFilter").ListIndex(), 0);
  EXPECT_TRUE(Grid().EditMode());
  EXPECT_TRUE(EditCell(Grid(), 2, kCleared, "8"));
}

TEST_F(Workbench, ReturnedChequesAreMarkedForTheWholeVoucher) {
  Db().Execute("update FADocs set ChqReturn='Y' where VoucherID=3");
  Open();
  EXPECT_EQ(Grid().Paints(3).at(0).backColor, 0x5EAEFF);
  EXPECT_EQ(Grid().Paints(3).at(0).lastCol, 29);
  Do([&] { Grid().UserMoveTo(1, 8); });
  EXPECT_FALSE(Returned().Visible) << "the opening balance is no voucher";
  Do([&] { Grid().UserMoveTo(3, 8); });
  EXPECT_TRUE(Returned().Visible);
  EXPECT_EQ(Returned().CheckValue(), 1);
  EXPECT_EQ(Returned().BackColor(), 0x5EAEFF);
  Do([&] { Grid().UserMoveTo(4, 8); });
  EXPECT_EQ(Returned().CheckValue(), 0);
  EXPECT_EQ(Returned().BackColor(), At<Label>(bench_, "lblTitle2").BackColor());
  for (const std::string& sql : Statements()) EXPECT_EQ(sql.find("UPDATE FADOCS"), std::string::npos) << sql;
  Do([&] { Returned().UserClick(); });
  EXPECT_EQ(Statements().back(), "UPDATE FADOCS SET CHQRETURN='Y' WHERE VOUCHERID=4");
  EXPECT_EQ(Grid().TextMatrix(4, 28), "Y");
  EXPECT_EQ(Source().TextMatrix(4, 28), "");
  EXPECT_TRUE(Grid().HasFocus());
  Do([&] { Returned().UserClick(); });
  EXPECT_EQ(Db().Lookup("FADocs", "ChqReturn", "VoucherID=4").ToText(), "N");
}

TEST_F(Workbench, TotalsStayRightThroughAnyWorkingDay) {
  for (int id = 10; id < 40; ++id) {
    AddVoucher({.id = id,
                .date = "2024-06-10",
                .amount = id % 3 == 0 ? "-1110.25" : "2220.75",
                .cleared = id % 4 == 0 ? "2024-06-12" : ""});
  }
  Open();
  std::mt19937 random(7);
  const auto pick = [&](int count) { return static_cast<int>(random() % static_cast<unsigned>(count)); };
  const Texts typed = {"", "=", "00", "15", "20/6", "1/7/2024"};
  for (int step = 0; step < 120; ++step) {
    const int row = 2 + pick(Grid().Rows - 2);
    if (pick(15) == 0) Choose(pick(3));
    if (Grid().Rows < 4) Choose(0);
    if (row < Grid().Rows && ValInteger(Grid().TextMatrix(row, 0)) > 1) {
      EditCell(Grid(), row, kCleared, typed[static_cast<std::size_t>(pick(6))]);
    }
    ExpectTotals("step " + std::to_string(step));
    if (HasFailure()) return;
  }
  for (int row = 1; row < Source().Rows; ++row) {
    const int id = static_cast<int>(ValInteger(Source().TextMatrix(row, 0)));
    if (id > 1) {
      EXPECT_EQ(Source().TextMatrix(row, 4), Stored(id)) << id;
    }
  }
}

TEST_F(Workbench, EscGoesBackStepByStep) {
  Open();
  AnswerDate("30-Apr-2024");
  Key(*bench_, keys::kF6);
  ASSERT_TRUE(StatementRows().Visible);
  EXPECT_FALSE(Grid().Visible);
  EXPECT_FALSE(At<ComboBox>(bench_, "cmbFilter").Visible);
  EXPECT_EQ(Bar().Buttons(1).Caption(), "F4: Hide Ref.");
  EXPECT_FALSE(Bar().Buttons(3).Enabled());
  Key(*bench_, keys::kF6);
  EXPECT_EQ(Events("date").size(), 1U) << "a disabled button does not answer its key";
  Do([&] { StatementRows().UserMoveTo(3, 6); });
  Key(*bench_, keys::kEnter);
  ASSERT_TRUE(StatementRows().EditMode());
  Key(*bench_, keys::kEscape);
  EXPECT_FALSE(StatementRows().EditMode());
  EXPECT_TRUE(StatementRows().Visible);
  EXPECT_TRUE(StatementRows().HasFocus());
  Key(*bench_, keys::kEscape);
  EXPECT_TRUE(Grid().Visible);
  EXPECT_TRUE(Grid().HasFocus());
  EXPECT_TRUE(Bar().Buttons(3).Enabled());
  EXPECT_EQ(Bar().Buttons(1).Key(), "");
  Key(*bench_, keys::kF4);
  EXPECT_FALSE(StatementRows().Visible) << "F4 has no work among the entries";
  Key(*bench_, keys::kEscape);
  EXPECT_FALSE(bench_->IsLoaded());
  EXPECT_EQ(runtime_.ActiveForm(), statement_);
  EXPECT_EQ(desk_.App().Windows().size(), 1U);
  EXPECT_FALSE(bench_->CallingForm);
}

TEST_F(Workbench, AClosedWindowKeepsWhatIsTypedOrAsks) {
  Open();
  const auto type = [&](const char* text) { TypeInCell(Grid(), 2, kCleared, text); };
  const auto close = [&] { Do([&] { runtime_.Unload(*bench_, UnloadMode::CloseBox); }); };
  constexpr const char* kAsked =
      "Q: What is typed in the cell is not valid and was not stored. Close without it?";
  type("31/2");
  AnswerMessage();
  AnswerMessage(2);
  close();
  EXPECT_EQ(Told(), (Texts{"E: Invalid Date", kAsked}));
  EXPECT_TRUE(Grid().EditMode());
  EXPECT_EQ(Grid().EditBox.Text(), "31/2");
  AnswerMessage();
  AnswerMessage(1);
  close();
  EXPECT_FALSE(bench_->IsLoaded());
  EXPECT_EQ(Stored(2), "");

  Open();
  type("9/4");
  close();
  EXPECT_FALSE(bench_->IsLoaded());
  EXPECT_EQ(Stored(2), "09-Apr-2024");
}

TEST_F(Workbench, KeysGoToTheHostTheBarAndTheVoucher) {
  Open();
  Key(*bench_, keys::kF6, keys::kShift);
  EXPECT_TRUE(Grid().Visible) << "a function key with Shift held is no button";
  Do([&] { Grid().UserMoveTo(3, kCleared); });
  Key(*bench_, keys::kEnter, keys::kCtrl);
  FormPtr voucher = runtime_.ActiveForm();
  ASSERT_EQ(voucher->Name(), "frmVoucher");
  EXPECT_EQ(voucher->Get("VoucherID").ToInteger(), 3);
  EXPECT_EQ(voucher->Get("AccountCode").ToInteger(), 101);
  Key(*voucher, keys::kEscape);
  EXPECT_EQ(runtime_.ActiveForm(), bench_);
  // The host's own keys: the next window, and the master of the account.
  Key(*bench_, keys::kTab, keys::kCtrl);
  EXPECT_EQ(runtime_.ActiveForm(), statement_);
  Key(*statement_, keys::kTab, keys::kCtrl);
  EXPECT_EQ(runtime_.ActiveForm(), bench_);
  runtime_.NextCommand = [&] {
    const FormPtr master = runtime_.ActiveForm();
    EXPECT_EQ(master->Name(), "frmAccountView");
    EXPECT_EQ(master->Get("AccountCode").ToInteger(), 101);
    Refuses([&] { Grid().UserMoveTo(2, 8); }, "The form frmAcReconciliation is covered by another one");
    Key(*master, keys::kEscape);
    return true;
  };
  Key(*bench_, 77, keys::kCtrl);
  EXPECT_EQ(runtime_.ActiveForm(), bench_);
}

TEST_F(Workbench, AUserWithoutTheRightIsTurnedAway) {
  OpenAsClerk();
  statement_ = ShowStatement();
  const FormPtr denied = desk_.Module().GetForm("acreconciliation");
  denied->CallingForm = statement_;
  for (int attempt = 0; attempt < 2; ++attempt) {
    denied->CallingForm = statement_;
    AnswerMessage();
    Do([&] { gApp->ShowForm(denied); });
    EXPECT_EQ(Messages().size(), 1U) << "a second attempt is asked about again";
    EXPECT_FALSE(denied->IsLoaded());
    EXPECT_EQ(desk_.App().Windows().size(), 1U);
  }
  Grant("Clerk", "acst.reconciliation", "N");
  bench_ = ShowWorkbench(statement_);
  ASSERT_EQ(bench_->Name(), "frmAcReconciliation");
  AnswerMessage();
  Do([&] { Bar().UserPress("Print"); });
  EXPECT_EQ(Messages().size(), 1U);
  EXPECT_EQ(Events("report").size(), 0U);
  Grant("Clerk", "acst.reconciliation", "NP");
  Do([&] { Bar().UserPress("Preview"); });
  EXPECT_EQ(Events("report").size(), 1U);
}

}  // namespace
}  // namespace quillon
