#include "tests/support/BankTest.h"

namespace quillon {
namespace {

constexpr int kClearedOn = 6;
constexpr int kCleared = 27;

/// The reconciliation statement of bank 101, reached by F6 from the workbench.
class Statement : public BankTest {
 protected:
  void Open(const std::string& asOn) {
    OpenBench();
    AnswerDate(asOn);
    Do([&] { Bar().UserPress("Statement"); });
    ASSERT_TRUE(View().Visible);
  }

  CGridPlus& View() { return StatementRows(); }

  /// The visible columns and the hidden sign.
  std::string Row(int row) { return RowText(View(), row, {0, 1, 3, 4, 5, 6, 7}); }
  Texts Rows() { return RowTexts(View(), {0, 1, 3, 4, 5, 6, 7}); }
};

TEST_F(Statement, EachEntryStandsWhereBooksAndBankDisagree) {
  AddVoucher({.id = 1, .date = "2024-04-01", .amount = "50000", .book = "0B"});
  AddVoucher({.id = 2, .date = "2024-04-10", .amount = "1200.5", .narration = "Deposit"});
  AddVoucher({.id = 3, .date = "2024-04-20", .amount = "800", .cleared = "2024-05-03", .other = 202});
  AddVoucher({.id = 4, .date = "2024-04-30", .amount = "-3000", .narration = "Cheque 7"});
  AddVoucher({.id = 5, .date = "2024-05-02", .amount = "410", .cleared = "2024-04-29"});
  AddVoucher({.id = 6, .date = "2024-05-04", .amount = "-95.25", .cleared = "2024-04-30", .other = 202});
  // These stand nowhere: cleared on the day, later and uncleared, cleared later, nothing, and memorandum.
  AddVoucher({.id = 7, .date = "2024-04-30", .amount = "70", .cleared = "2024-04-30"});
  AddVoucher({.id = 8, .date = "2024-05-01", .amount = "71"});
  AddVoucher({.id = 9, .date = "2024-05-01", .amount = "72", .cleared = "2024-05-01"});
  AddVoucher({.id = 10, .date = "2024-04-15", .amount = "0"});
  AddVoucher({.id = 11, .date = "2024-04-15", .amount = "999", .book = "MEM"});
  Open("30-Apr-2024");
  EXPECT_EQ(Rows(), (Texts{"30-Apr-2024||Balance as per Our Books||49,070.50 Dr.||",
                           "||Amounts Debited by us only:-||||",
                           "10-Apr-2024|BNK|Deposit : Asha Traders|1,200.50|||1",
                           "20-Apr-2024|BNK| : Bharat Mills|800.00|2,000.50 Cr.|03-May-2024|1",
                           "||Amounts Credited by us only:-||||",
                           "30-Apr-2024|BNK|Cheque 7 : Asha Traders|3,000.00|3,000.00 Dr.||-1",
                           "||Amounts Not Debited by us:-||||",
                           "02-May-2024|BNK| : Asha Traders|410.00|410.00 Dr.|29-Apr-2024|",
                           "||Amounts Not Credited by us:-||||",
                           "04-May-2024|BNK| : Bharat Mills|95.25|95.25 Cr.|30-Apr-2024|",
                           "||Adjusted Balance||50,384.75 Dr.||"}));
  std::string ruled;
  for (int row = 1; row < View().Rows; ++row) ruled += View().TextMatrix(row, 11) == "*hline1*" ? "x" : "-";
  EXPECT_EQ(ruled, "x--x-x-x-x-") << "above each heading and above the last balance";
  EXPECT_EQ(View().TextMatrix(3, 9) + "/" + View().TextMatrix(3, 10), "1/2");
  for (const int row : {1, 2, 11})
    EXPECT_EQ(View().Paints(row).at(0).backColor, row == 2 ? 0xC0FFFF : 0xFFFFFF);
  EXPECT_EQ(View().Footer.TextMatrix(0, 3), "Bal. per Sahyadri Bank");
  EXPECT_EQ(View().Footer.TextMatrix(0, 5), "-50,384.75");
  EXPECT_EQ(View().Title(), "Reconciliation Statement as on 30/04/2024");
  One("date", {{"title", "Reconciliation Statement as on"},
               {"caption", "As on"},
               {"single", true},
               {"date1", "31-Mar-2025"}});
  const Texts with = Rows();
  Key(*bench_, keys::kF4);
  EXPECT_EQ(RowText(View(), 3, {3}) + RowText(View(), 4, {3}), "Deposit") << "without the other sides' names";
  EXPECT_EQ(Bar().Buttons(1).Caption(), "F4: Show Ref.");
  Key(*bench_, keys::kF4);
  EXPECT_EQ(Rows(), with);
}

TEST_F(Statement, NothingOutstandingAndNothingAtAll) {
  AddVoucher({.id = 1, .date = "2024-04-01", .amount = "-500", .book = "0B"});
  AddVoucher({.id = 2, .date = "2024-05-10", .amount = "500", .cleared = "2024-05-10"});
  Open("30-Apr-2024");
  EXPECT_EQ(Rows(), (Texts{"30-Apr-2024||Balance as per Our Books||500.00 Cr.||",
                           "||Adjusted Balance||500.00 Cr.||"}));
  EXPECT_EQ(View().Footer.TextMatrix(0, 5), "500.00");
  Key(*bench_, keys::kEscape);
  AnswerDate("10/5/2024");
  Key(*bench_, keys::kF6);
  EXPECT_EQ(Rows(),
            (Texts{"10-May-2024||Balance as per Our Books||N I L  ||", "||Adjusted Balance||  N I L  ||"}));
  EXPECT_EQ(View().Footer.TextMatrix(0, 5), "");
  EXPECT_EQ(Events("date").back()["date1"], "30-Apr-2024") << "the last date is offered again";
  Key(*bench_, keys::kEscape);
  runtime_.Laid.Add({{"to", "date"}, {"cancel", true}});
  Key(*bench_, keys::kF6);
  EXPECT_TRUE(Entries().Visible) << "a cancelled date changes nothing";
}

TEST_F(Statement, AnEditedDateReachesTheBooksTheEntriesAndTheStatementOfAccount) {
  AddVoucher({.id = 2, .date = "2024-04-10", .amount = "1200.5"});
  AddVoucher({.id = 3, .date = "2024-04-11", .amount = "-40", .line = 7});
  AddVoucher({.id = 4, .date = "2024-04-12", .amount = "-41"});
  Open("30-Apr-2024");
  ASSERT_EQ(View().TextMatrix(5, 10), "3");
  Statements();
  EXPECT_TRUE(EditCell(View(), 5, kClearedOn, "25"));
  EXPECT_EQ(Statements().back(),
            "Update FAData set dBankDate='2024-04-25' where VoucherID=3 and dVchSubNo=7");
  EXPECT_EQ(View().TextMatrix(5, kClearedOn), "25-Apr-2024");
  EXPECT_EQ(Entries().TextMatrix(2, kCleared), "25-Apr-2024");
  EXPECT_EQ(Source().TextMatrix(2, 4), "25-Apr-2024");
  EXPECT_EQ(Row(1), "30-Apr-2024||Balance as per Our Books||1,119.50 Dr.||") << "nothing is built anew";
  EXPECT_EQ(View().TextMatrix(6, 5), "81.00 Dr.");
  // No lower bound, and no warning about the year.
  EXPECT_TRUE(EditCell(View(), 5, kClearedOn, "1/1/2020"));
  EXPECT_TRUE(EditCell(View(), 6, kClearedOn, "00"));
  EXPECT_EQ(Stored(4), "01-Jan-2020");
  EXPECT_TRUE(EditCell(View(), 5, kClearedOn, ""));
  EXPECT_EQ(Statements().back(), "Update FAData set dBankDate=Null where VoucherID=3 and dVchSubNo=7");
  EXPECT_TRUE(EditCell(View(), 6, kClearedOn, "="));
  EXPECT_EQ(Entries().TextMatrix(3, kCleared), "");
  AnswerMessage();
  EXPECT_FALSE(EditCell(View(), 6, kClearedOn, "31/2"));
  EXPECT_EQ(Messages(), Texts{"Invalid Date"});
  EXPECT_TRUE(EditCell(View(), 6, kClearedOn, "29"));
  // Headings, balances and other columns are not edited.
  for (const int row : {1, 2, 4, 7}) EXPECT_FALSE(EditCell(View(), row, kClearedOn, "5")) << row;
  EXPECT_FALSE(EditCell(View(), 5, 3, "x"));
  // Left by its button in the middle of an edit, what was typed goes and the view stays.
  TypeInCell(View(), 5, kClearedOn, "7");
  Do([this] { Bar().UserPress("Exit"); });
  EXPECT_FALSE(View().EditMode());
  EXPECT_TRUE(View().Visible);
  EXPECT_EQ(Stored(3, 7), "");
  // Back among the entries the totals count what was marked here.
  Key(*bench_, keys::kEscape);
  EXPECT_TRUE(EditCell(Entries(), 1, kCleared, "12"));
  EXPECT_EQ(Entries().Footer.TextMatrix(1, 24), "1,200.50");
  EXPECT_EQ(Entries().Footer.TextMatrix(1, 25), "41.00");
}

TEST_F(Statement, KeysOfTheStatement) {
  AddVoucher({.id = 2, .date = "2024-04-10", .amount = "1200.5"});
  AddVoucher({.id = 3, .date = "2024-04-11", .amount = "-40", .other = 202});
  AddVoucher({.id = 4, .date = "2024-05-11", .amount = "-41", .cleared = "2024-04-20", .other = 202});
  Open("30-Apr-2024");
  CMStrip& strip = At<CMStrip>(bench_, "MStrip2");
  Do([&] { View().UserMoveTo(2, kClearedOn); });
  Key(*bench_, keys::kEnter);
  EXPECT_FALSE(View().EditMode()) << "a heading has no voucher";
  Do([&] { View().UserDoubleClickRow(3); });
  EXPECT_TRUE(View().EditMode());
  EXPECT_EQ(View().EditCol(), kClearedOn);
  EXPECT_EQ(strip.Code(), 201);
  TypeKeys(*bench_, "15");
  Key(*bench_, keys::kEnter);
  EXPECT_EQ(View().TextMatrix(3, kClearedOn), "15-Apr-2024");
  EXPECT_EQ(View().EditRow(), 5) << "the automatic move passes over the heading";
  EXPECT_EQ(strip.Code(), 202);
  Key(*bench_, keys::kEnter, keys::kCtrl);
  ASSERT_EQ(runtime_.ActiveForm()->Name(), "frmVoucher");
  EXPECT_EQ(runtime_.ActiveForm()->Get("VoucherID").ToInteger(), 3);
  Key(*runtime_.ActiveForm(), keys::kEscape);
  Key(*bench_, keys::kEscape);
  Do([&] { View().UserMoveTo(7, kClearedOn); });
  EXPECT_EQ(View().TextMatrix(7, 10), "4");
  EXPECT_EQ(strip.Code(), 0) << "in the last two sections the amount reads as 0";
}

TEST_F(Statement, PrintsWithItsFooterAsTheLastRow) {
  AddVoucher({.id = 2, .date = "2024-04-10", .amount = "1200.5", .narration = "Deposit"});
  Open("30-Apr-2024");
  const int rows = View().Rows;
  Do([&] { Bar().UserPress("Print"); });
  EXPECT_EQ(View().Rows(), rows);
  EXPECT_TRUE(View().Redraw());
  const Json report = One("report", {{"title", "Reconciliation Statement as on 30/04/2024"},
                                     {"subtitle", At<Label>(statement_, "lblTitle1", 2).Caption()},
                                     {"print", true}});
  EXPECT_EQ(report["grid"].back()[3], "Bal. per Sahyadri Bank");
  EXPECT_EQ(static_cast<int>(report["grid"].size()), rows + 1);
  Key(*bench_, keys::kEscape);
  Do([&] { Bar().UserPress("Preview"); });
  One("report", {{"title", "Reconciliation Workings"}, {"print", false}});
}

TEST_F(Statement, ItsStatementsAreTheseTexts) {
  AddVoucher({.id = 2, .date = "2024-04-10", .amount = "1200.5"});
  Open("30-Apr-2024");
  const std::string lines =
      "Select a.*,n.Narration from FAData a,FANar n "
      "where a.NarrationID=n.NarrationID and a.dcd=101 and a.dBook<>'MEM' and a.dBook<>'0B' and ";
  Texts sent;
  for (const std::string& sql : Statements()) {
    if (sql.find("FADATA") != std::string::npos || sql.starts_with("Select a.*")) sent.push_back(sql);
  }
  ASSERT_EQ(sent.size(), 3U);
  EXPECT_NE(sent[0].find("Sum(dAmt)"), std::string::npos);
  EXPECT_TRUE(sent[0].ends_with("FADATA where dcd=101 and dvchdate<='2024-04-30' and dBook<>'MEM'"))
      << sent[0];
  EXPECT_EQ(sent[1], lines +
                         "a.dvchdate<='2024-04-30' "
                         "and (a.dBankDate is null OR a.dBankDate>'2024-04-30') order by a.dvchdate,a.dbook");
  EXPECT_EQ(sent[2],
            lines + "a.dvchdate>'2024-04-30' and a.dBankDate<='2024-04-30' order by a.dvchdate,a.dbook");
}

}  // namespace
}  // namespace quillon
