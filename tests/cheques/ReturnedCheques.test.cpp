#include "cheques/frmChqIssueReg2.h"
#include "tests/support/DeskFixture.h"

namespace quillon {
namespace {

/// The report of the cheques that came back, opened by its key on the bank's statement.
class ReturnedCheques : public DeskTest {
 protected:
  void SetUp() override {
    OpenNewFirm();
    Db().BeginTrans();
    AddAccount(101, "Sahyadri Bank", 47, "Pune");
    AddAccount(102, "Deccan Bank", 47);
    AddAccount(201, "Asha Traders", 140, "Surat");
    AddAccount(202, "Bharat Mills", 140, "Indore");
    AddAccount(301, "Joshi Agency", 140);
    Db().Execute("update FAMaster set mAgentCode=301 where mcd=201");
    Returned({.id = 1, .date = "2024-05-02", .amount = "1500.25", .narration = "Chq. 111 received"});
    Returned({.id = 2, .date = "2024-04-20", .amount = "-500", .narration = "Chq. 222 paid", .other = 202});
    AddVoucher({.id = 3, .date = "2024-05-03", .amount = "70"});
    Returned({.id = 4, .date = "2024-07-01", .amount = "80"});
    Returned({.id = 5, .date = "2024-05-04", .amount = "90", .book = "MEM"});
    Returned({.id = 6, .date = "2024-05-05", .amount = "100", .account = 102});
    Returned({.id = 7, .date = "2024-06-30", .amount = "0", .narration = "Nothing"});
    Db().CommitTrans();
  }

  void Returned(const Voucher& voucher) {
    AddVoucher(voucher);
    Db().Execute("update FADocs set ChqReturn='Y' where VoucherID=" + std::to_string(voucher.id));
  }

  FormPtr OpenReport(int account = 101) {
    const FormPtr statement = ShowStatement(account);
    AnswerPeriod("1/4/2024", "30/6/2024");
    Key(*statement, keys::kF3);
    runtime_.NextCommand = [this] {
      runtime_.PickFromMenu("ChqReturned");
      return true;
    };
    Key(*statement, keys::kF7);
    FormPtr report = runtime_.ActiveForm();
    EXPECT_EQ(report->Name(), "frmChqRetReport");
    return report;
  }

  static Texts Rows(const FormPtr& form) {
    return RowTexts(At<CGridPlus>(form, "Grid"), {0, 1, 2, 3, 4, 5, 6, 7, 8});
  }

  static Texts Totals(const FormPtr& form) {
    const auto& grid = At<CGridPlus>(form, "Grid");
    return {grid.Footer.TextMatrix(0, 3), grid.Footer.TextMatrix(0, 7), grid.Footer.TextMatrix(0, 8)};
  }
};

TEST_F(ReturnedCheques, ListTheOtherSidesOfThePeriod) {
  const FormPtr report = OpenReport();
  EXPECT_EQ(Rows(report),
            (Texts{"2|202|20-Apr-2024|Bharat Mills|Indore||Chq. 222 paid|500.00|",
                   "1|201|02-May-2024|Asha Traders|Surat|Joshi Agency|Chq. 111 received||1,500.25",
                   "7|201|30-Jun-2024|Asha Traders|Surat|Joshi Agency|Nothing||0.00"}));
  EXPECT_EQ(Totals(report), (Texts{"Totals", "500.00", "1,500.25"}));
  const auto& grid = At<CGridPlus>(report, "Grid");
  EXPECT_EQ(grid.Title(), "Account: Sahyadri Bank");
  EXPECT_EQ(grid.Cols(), 12);
  EXPECT_TRUE(grid.HasFocus());
  EXPECT_EQ(At<Label>(report, "lblTitle").Caption(), "   Cheque Returned Report");
  EXPECT_EQ(At<Label>(report, "lblTitle2").Caption(), "Period: 01/04/2024 to 30/06/2024");
}

TEST_F(ReturnedCheques, AVoucherWithTwoDocumentsShowsForEach) {
  Db().Execute("insert into FADocs (VoucherID,ChqReturn) values (2,'Y')");
  EXPECT_EQ(Totals(OpenReport())[1], "1,000.00");
  Db().Execute("update FADocs set ChqReturn='N'");
  const FormPtr none = OpenReport(102);
  EXPECT_EQ(Rows(none), Texts{"||||||||"});
  EXPECT_EQ(Totals(none), (Texts{"Totals", "0.00", "0.00"}));
}

TEST_F(ReturnedCheques, TheKeysActOnePlaceBeforeTheirCaptions) {
  const FormPtr report = OpenReport();
  Key(*report, keys::kF4);
  Key(*report, keys::kF7);
  Key(*report, keys::kF8);
  const std::vector<Json> printed = Events("report");
  ASSERT_EQ(printed.size(), 2U);
  EXPECT_EQ(printed[0]["print"], false);
  EXPECT_EQ(printed[1]["print"], true);
  EXPECT_EQ(printed[1]["subtitle"], "Period: 01/04/2024 to 30/06/2024");
  EXPECT_TRUE(report->IsLoaded());
  Key(*report, keys::kF9);
  EXPECT_FALSE(report->IsLoaded());
  EXPECT_EQ(runtime_.ActiveForm()->Name(), "frmAccount");
}

TEST_F(ReturnedCheques, ALineOpensItsVoucherAndItsParty) {
  const FormPtr report = OpenReport();
  auto& grid = At<CGridPlus>(report, "Grid");
  Do([&] { grid.UserMoveTo(2, 3); });
  EXPECT_EQ(At<CMStrip>(report, "MStrip1").Code(), 201);
  Key(*report, keys::kEnter);
  FormPtr opened = runtime_.ActiveForm();
  ASSERT_EQ(opened->Name(), "frmVoucher");
  EXPECT_EQ(opened->Get("VoucherID").ToInteger(), 1);
  Key(*opened, keys::kEscape);
  EXPECT_EQ(runtime_.ActiveForm(), report);
  EXPECT_TRUE(grid.HasFocus());
  std::int64_t account = 0;
  runtime_.NextCommand = [&] {
    opened = runtime_.ActiveForm();
    EXPECT_EQ(opened->Name(), "frmAccountView");
    account = opened->Get("AccountCode").ToInteger();
    Key(*opened, keys::kEscape);
    return true;
  };
  TypeKeys(*report, "/");
  EXPECT_EQ(account, 201);
}

TEST_F(ReturnedCheques, TheIssueRegisterComesUpEmptyWithItsColumns) {
  const auto shown = std::make_shared<frmChqIssueReg2>();
  Do([&] { gRuntime->Show(shown); });
  shown->Call("SetupGrid", {});
  std::string titles;
  for (int col = 0; col < shown->Grid.Cols; ++col) titles += shown->Grid.TextMatrix(0, col) + "|";
  EXPECT_EQ(titles, "||||Party|Bill No.|Vch.Date|Bill Amt.|R.D.|C.D. %|C.D.|B.C.||Net Amt.|||");
  EXPECT_TRUE(shown->Grid.HasFocus());
  EXPECT_TRUE(desk_.App().Windows().empty()) << "it does not enter itself in the list of windows";
  Key(*shown, keys::kEscape);
  EXPECT_FALSE(shown->IsLoaded());
}

}  // namespace
}  // namespace quillon
