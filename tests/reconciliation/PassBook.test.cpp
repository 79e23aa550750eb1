#include "tests/support/BankTest.h"

namespace quillon {
namespace {

/// The pass book of bank 101, reached by F7 from the workbench.
class PassBook : public BankTest {
 protected:
  void Open(const std::string& from = "01-Apr-2024", const std::string& to = "31-Mar-2025") {
    OpenBench(from, to);
    Key(*bench_, keys::kF7);
  }

  CGridPlus& View() { return PassBookRows(); }

  /// Voucher, date, book, narration, withdrawal, deposit and balance of each row.
  Texts Rows() { return RowTexts(View(), {0, 8, 9, 11, 24, 25, 26}); }
  std::string Footer() {
    std::string text;
    for (const int col : {11, 24, 25, 26}) text += (col == 11 ? "" : "|") + View().Footer.TextMatrix(0, col);
    return text;
  }
};

TEST_F(PassBook, ShowsWhatTheBankHasClearedByItsDatesWithSidesSwapped) {
  // All of these are in the opening balance: what was cleared before, and an opening whenever it was.
  AddVoucher({.id = 1, .date = "2024-04-01", .amount = "10000", .book = "0B", .cleared = "2024-05-01"});
  AddVoucher({.id = 2, .date = "2024-04-02", .amount = "-12500.5", .cleared = "2024-04-09"});
  // These two stand nowhere.
  AddVoucher({.id = 3, .date = "2024-04-02", .amount = "77"});
  AddVoucher({.id = 4, .date = "2024-04-02", .amount = "78", .book = "MEM", .cleared = "2024-04-20"});
  AddVoucher({.id = 5, .date = "2024-04-20", .amount = "123456.75", .cleared = "2024-04-10", .other = 202});
  AddVoucher({.id = 6, .date = "2024-03-20", .amount = "-120956.25", .cleared = "2024-04-30"});
  AddVoucher({.id = 7, .date = "2024-04-20", .amount = "0", .cleared = "2024-04-30", .narration = "None"});
  AddVoucher({.id = 8, .date = "2024-04-20", .amount = "5", .cleared = "2024-04-30", .narration = "Five"});
  AddVoucher({.id = 9, .date = "2024-04-30", .amount = "9", .cleared = "2024-05-01"});
  // On one day by number, which is a text, and within a number by its place in the day.
  Db().Execute("update FAData set dVchNo='10',dSrNo=2 where VoucherID=6");
  Db().Execute("update FAData set dVchNo='10',dSrNo=1 where VoucherID=7");
  Db().Execute("update FAData set dVchNo='09',dSrNo=3 where VoucherID=8");
  Open("10-Apr-2024", "30-Apr-2024");
  EXPECT_EQ(Rows(), (Texts{"|10-Apr-2024||Opening Balance|2,500.50||2,500.50 Dr.",
                           "5|10-Apr-2024|BNK| : Bharat Mills||1,23,456.75|1,20,956.25 Cr.",
                           "8|30-Apr-2024|BNK|Five : Asha Traders||5.00|1,20,961.25 Cr.",
                           "7|30-Apr-2024|BNK|None|||1,20,961.25 Cr.",
                           "6|30-Apr-2024|BNK| : Asha Traders|1,20,956.25||5.00 Cr."}));
  EXPECT_EQ(Footer(), "Totals|1,23,456.75|1,23,461.75|-5.00");
  EXPECT_EQ(View().Title(), "Pass Book");
  EXPECT_EQ(ShownTitles(View()), "Date|Book|Narration|Dr.(Withdrawls)|Cr.(Deposits)|Balance");
  for (int row = 1; row < View().Rows; ++row)
    EXPECT_EQ(View().TextMatrix(row, 3), "") << "no nature: the interest counts every row";
  EXPECT_TRUE(View().HasFocus());
  EXPECT_FALSE(Bar().Buttons(4).Enabled());
  EXPECT_FALSE(Entries().Visible);
  EXPECT_FALSE(At<ComboBox>(bench_, "cmbFilter").Visible);
}

TEST_F(PassBook, NothingClearedAndNothingOpen) {
  AddVoucher({.id = 1, .date = "2024-04-01", .amount = "300", .book = "0B"});
  AddVoucher({.id = 2, .date = "2024-04-01", .amount = "-300", .book = "0B"});
  AddVoucher({.id = 3, .date = "2024-04-10", .amount = "10"});
  Open();
  EXPECT_EQ(Rows(), Texts{"||||||N I L  "});
  EXPECT_EQ(Footer(), "Totals|0.00|0.00|");
  // Without an opening row the first entry is the first row.
  Key(*bench_, keys::kEscape);
  AddVoucher({.id = 4, .date = "2024-04-11", .amount = "10", .cleared = "2024-04-11"});
  AddVoucher({.id = 5, .date = "2024-04-12", .amount = "-10", .cleared = "2024-04-12"});
  Key(*bench_, keys::kF7);
  EXPECT_EQ(Rows(), (Texts{"4|11-Apr-2024|BNK| : Asha Traders||10.00|10.00 Cr.",
                           "5|12-Apr-2024|BNK| : Asha Traders|10.00||N I L  "}));
}

TEST_F(PassBook, ReferencesComeAndGoAndBalancesStay) {
  Db().BeginTrans();
  for (int id = 1; id <= 250; ++id) {
    AddVoucher({.id = id,
                .date = "2024-04-10",
                .amount = id % 3 == 0 ? "-20.25" : "10.5",
                .cleared = "2024-04-12",
                .narration = "Slip",
                .other = id % 2 == 0 ? 201 : 202});
  }
  Db().CommitTrans();
  Open();
  ASSERT_EQ(View().Rows(), 251) << "room is made by the hundred";
  const Texts with = Rows();
  const Texts balances = RowTexts(View(), {26});
  const std::string footer = Footer();
  EXPECT_EQ(View().TextMatrix(1, 11), "Slip : Bharat Mills");
  Key(*bench_, keys::kF4);
  EXPECT_EQ(View().TextMatrix(1, 11), "Slip");
  EXPECT_EQ(Bar().Buttons(1).Caption(), "F4: Show Ref.");
  EXPECT_EQ(RowTexts(View(), {26}), balances);
  Key(*bench_, keys::kF4);
  EXPECT_EQ(Rows(), with);
  EXPECT_EQ(Footer(), footer);
}

TEST_F(PassBook, ARowLeadsToItsOtherSideAndItsVoucher) {
  AddVoucher({.id = 1, .date = "2024-04-01", .amount = "500", .book = "0B"});
  AddVoucher({.id = 2, .date = "2024-04-10", .amount = "-1234.5", .cleared = "2024-04-12"});
  AddVoucher({.id = 3, .date = "2024-04-11", .amount = "0.25", .cleared = "2024-04-13", .other = 202});
  // A second credit, larger than the other side: the sign of the row decides which side is looked for.
  Db().Execute(
      "insert into FAData (VoucherID,dVchSubNo,dVchDate,dcd,dAmt,dBook) "
      "values (2,3,'2024-04-10',202,-9999,'BNK')");
  Open();
  CMStrip& strip = At<CMStrip>(bench_, "MStrip2");
  EXPECT_EQ(strip.Code(), 0) << "the opening balance has no voucher";
  Key(*bench_, keys::kEnter);
  EXPECT_EQ(runtime_.ActiveForm(), bench_) << "the opening balance is none";
  Key(*bench_, keys::kDown);
  EXPECT_EQ(strip.Code(), 201) << "1 withdrawn: the digits before the comma";
  Key(*bench_, keys::kEnter);
  ASSERT_EQ(runtime_.ActiveForm()->Name(), "frmVoucher");
  EXPECT_EQ(runtime_.ActiveForm()->Get("VoucherID").ToInteger(), 2);
  EXPECT_EQ(runtime_.ActiveForm()->Get("AccountCode").ToInteger(), 101);
  Key(*runtime_.ActiveForm(), keys::kEscape);
  Do([&] { View().UserDoubleClickRow(3); });
  EXPECT_EQ(strip.Code(), 202);
  ASSERT_EQ(runtime_.ActiveForm()->Name(), "frmVoucher");
  EXPECT_EQ(runtime_.ActiveForm()->Get("VoucherID").ToInteger(), 3);
  Key(*runtime_.ActiveForm(), keys::kEscape);
  for (const int col : {8, 11, 25})
    EXPECT_FALSE(EditCell(View(), 3, col, "5")) << "the bank's book is its own";
  EXPECT_TRUE(View().Visible);
}

TEST_F(PassBook, ADateGivenAmongTheEntriesIsInThePassBookAtOnce) {
  AddVoucher({.id = 2, .date = "2024-04-10", .amount = "100"});
  AddVoucher({.id = 3, .date = "2024-04-11", .amount = "-40"});
  Open();
  EXPECT_EQ(View().TextMatrix(1, 0), "");
  Key(*bench_, keys::kEscape);
  TypeInCell(Entries(), 2, 27, "15");
  Key(*bench_, keys::kF7);
  EXPECT_EQ(Rows(), Texts{"3|15-Apr-2024|BNK| : Asha Traders|40.00||40.00 Dr."});
}

TEST_F(PassBook, PrintsWithItsFooter) {
  AddVoucher({.id = 2, .date = "2024-04-10", .amount = "100", .cleared = "2024-04-12", .narration = "Slip"});
  Open();
  for (const int key : {keys::kF9, keys::kF8}) {
    Key(*bench_, key);
    const Json report = One("report", {{"title", "Pass Book"},
                                       {"subtitle", At<Label>(statement_, "lblTitle1", 2).Caption()},
                                       {"print", key == keys::kF9}});
    EXPECT_EQ(report["grid"][1][11], "Slip : Asha Traders");
  }
  EXPECT_EQ(View().Rows(), 2) << "the footer is no row here";
}

TEST_F(PassBook, ItsStatementsAreTheseTexts) {
  AddVoucher({.id = 2, .date = "2024-04-10", .amount = "1200.5", .cleared = "2024-04-12"});
  Open("01-Apr-2024", "30-Jun-2024");
  Texts sent;
  for (const std::string& sql : Statements()) {
    const bool isOfOtherSides = sql.find("FAData l") != std::string::npos;
    if (sql.find("dBankDate") != std::string::npos && !isOfOtherSides) sent.push_back(sql);
  }
  ASSERT_EQ(sent.size(), 2U);
  EXPECT_NE(sent[0].find("Sum(dAmt)"), std::string::npos);
  EXPECT_TRUE(
      sent[0].ends_with("FADATA where dcd=101 and (dBankDate<'2024-04-01' or dBook='0B') and dBook<>'MEM'"))
      << sent[0];
  EXPECT_EQ(sent[1],
            "Select a.*,n.Narration from FAData a Left Join FANar n on a.NarrationID=n.NarrationID "
            "where a.dcd=101 and a.dBankDate between '2024-04-01' and '2024-06-30' and a.dBook<>'MEM' "
            "and a.dBook<>'0B' order by a.dBankDate,a.dVchNo,a.dSrNo");
}

}  // namespace
}  // namespace quillon
