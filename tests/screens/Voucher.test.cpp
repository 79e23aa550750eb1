#include "tests/support/DeskFixture.h"

namespace quillon {
namespace {

/// The voucher behind a line of a statement.
class Voucher : public DeskTest {
 protected:
  void SetUp() override {
    OpenNewFirm();
    AddAccount(101, "Sahyadri Bank", 47, "Pune");
    AddAccount(201, "Asha Traders", 140, "Surat");
    AddAccount(202, "Bank Charges");
    AddVoucher({.id = 8, .date = "2024-04-18", .amount = "10"});
    AddVoucher(
        {.id = 9, .date = "2024-04-20", .amount = "-1500.25", .cleared = "2024-04-25", .narration = "Paid"});
    Db().Execute("update FAData set dAmt=1490 where VoucherID=9 and dVchSubNo=2");
    Db().Execute(
        "insert into FAData (VoucherID,dVchSubNo,dSrNo,dVchNo,dVchDate,dcd,dcd2,dAmt,dBook,NarrationID) "
        "values (9,3,9,'9','2024-04-20',202,101,10.25,'BNK',9)");
  }

  FormPtr OpenFrom(const FormPtr& statement) {
    Do([&] { At<CGridPlus>(statement, "Grid").UserMoveTo(2, 9); });
    Key(*statement, keys::kEnter);
    FormPtr voucher = runtime_.ActiveForm();
    EXPECT_EQ(voucher->Name(), "frmVoucher");
    return voucher;
  }
};

TEST_F(Voucher, ShowsAllItsLinesAndEscReturnsToTheEntry) {
  const FormPtr statement = ShowStatement();
  const FormPtr voucher = OpenFrom(statement);
  const auto& grid = At<CGridPlus>(voucher, "Grid");
  EXPECT_EQ(RowTexts(grid, {1, 2, 3, 4, 5, 6}),
            (Texts{"Sahyadri Bank|Pune|Paid||1,500.25|25-Apr-2024", "Asha Traders|Surat|Paid|1,490.00||",
                   "Bank Charges||Paid|10.25||"}));
  EXPECT_EQ(grid.Title(), "Voucher No. 9   Date 20-Apr-2024   Book BNK");
  EXPECT_EQ(grid.Footer.TextMatrix(0, 4), "1,500.25");
  EXPECT_EQ(grid.Footer.TextMatrix(0, 5), "1,500.25");
  EXPECT_EQ(At<CMStrip>(voucher, "MStrip1").Code(), 101) << "of the first line";
  EXPECT_EQ(At<Label>(voucher, "lblDocument").Caption(), "   No document");
  EXPECT_EQ(At<Label>(voucher, "lblLeaf").Caption(), "   No cheque leaf");
  Key(*voucher, keys::kEscape);
  EXPECT_EQ(runtime_.ActiveForm(), statement);
  EXPECT_TRUE(At<CGridPlus>(statement, "Grid").HasFocus());
  EXPECT_EQ(At<CGridPlus>(statement, "Grid").Row(), 2);
}

TEST_F(Voucher, TellsItsDocumentsAndCheques) {
  Db().Execute("insert into DocMain (DocumentID,DocVoucherID,DocSeries) values (41,9,'A')");
  Db().Execute("insert into DocMain (DocumentID,DocVoucherID) values (42,9)");
  Db().Execute("update FADocs set ChqReturn='Y' where VoucherID=9");
  Db().Execute(
      "insert into ChqLeaves (ID,BankCode,ChqNo,IsuDate,VoucherID,Amount) "
      "values (1,101,670151,'2024-04-20',9,1500.25)");
  const FormPtr voucher = OpenFrom(ShowStatement());
  EXPECT_EQ(At<Label>(voucher, "lblDocument").Caption(),
            "   Document 41 Series A   Document 42   Chq. Returned");
  EXPECT_EQ(At<Label>(voucher, "lblLeaf").Caption(), "   Cheque No. 670151 of 20-Apr-2024 for 1,500.25");
}

}  // namespace
}  // namespace quillon
