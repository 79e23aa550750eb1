#include "tests/support/DeskFixture.h"

namespace quillon {
namespace {

using Texts = std::vector<std::string>;

/// The ways from the books to cheques, layouts and leaves.
class ChequesOfTheDesk : public DeskTest {
 protected:
  void SetUp() override {
    OpenNewFirm();
    AddAccount(101, "Sahyadri Bank", 47, "Pune");
    AddAccount(102, "Deccan Bank", 47);
    AddAccount(201, "Asha Traders", 140, "Surat");
    AddAccount(202, "Bharat Mills");
    AddVoucher({.id = 5, .date = "2024-04-18", .amount = "-100", .other = 202});
    AddVoucher({.id = 9, .date = "2024-04-20", .amount = "-1500.25", .narration = "Paid by Chq.No. 000123"});
    AddVoucher({.id = 7, .date = "2024-04-21", .amount = "70"});
    AddVoucher({.id = 3, .date = "2024-04-21", .amount = "-80", .book = "MEM"});
    AddVoucher({.id = 8, .date = "2024-04-21", .amount = "-300", .other = 202});
    AddVoucher({.id = 4, .date = "2024-04-22", .amount = "-5", .account = 102});
    Db().Execute("insert into ChqLeaves (ID,BankCode,ChqNo,VoucherID) values (1,101,777,8)");
  }

  FormPtr OpenVoucher(int id, int account = 101) {
    const FormPtr main = gApp->MainWindow().MainForm();
    Do([&] { gApp->OpenVoucher(*main, id, 2024, account); });
    return runtime_.ActiveForm();
  }
  static std::string Shown(const FormPtr& cheque) {
    return At<Label>(cheque, "lblPayTo2").Caption() + "|" + At<Label>(cheque, "lblAmount2").Caption() + "|" +
           At<Label>(cheque, "lblDate2").Caption() + "|" + cheque->Get("ChqNo").ToText();
  }
};

TEST_F(ChequesOfTheDesk, AVouchersChequeIsShownAndTheBanksOthersFollow) {
  const FormPtr voucher = OpenVoucher(9);
  Key(*voucher, keys::kF9);
  const FormPtr cheque = runtime_.ActiveForm();
  ASSERT_EQ(cheque->Name(), "frmChqPrint");
  EXPECT_EQ(Shown(cheque), "Asha Traders|**1,500.25|20-Apr-2024|000123");
  EXPECT_EQ(At<Label>(cheque, "lblBankName2").Caption(), "Sahyadri Bank");
  EXPECT_EQ(cheque->Get("Station").ToText(), "Surat");
  EXPECT_EQ(gApp->GetUserSetting("ChqPrinting.LastBankCode"), "101");
  Key(*cheque, keys::kF4);
  EXPECT_EQ(Shown(cheque), "Bharat Mills|**300.00|21-Apr-2024|777");
  EXPECT_EQ(cheque->Caption().find("000123"), std::string::npos)
      << "the title is this cheque's: " << cheque->Caption();
  Key(*cheque, keys::kF4);
  EXPECT_EQ(Shown(cheque), "Bharat Mills|**300.00|21-Apr-2024|777") << "there is no further one";
  Key(*cheque, keys::kF3);
  Key(*cheque, keys::kF3);
  EXPECT_EQ(Shown(cheque), "Bharat Mills|**100.00|18-Apr-2024|");
  Key(*cheque, keys::kEscape);
  const FormPtr receipt = OpenVoucher(7);
  AnswerMessage();
  Key(*receipt, keys::kF9);
  EXPECT_EQ(Messages(), Texts{"This voucher pays nothing from a bank account."});
}

TEST_F(ChequesOfTheDesk, LayoutsOfAllBanksAreOpenedAndCopied) {
  Do([&] { desk_.Menu().Pick("ChequeLayouts"); });
  const FormPtr layouts = runtime_.ActiveForm();
  const auto& grid = At<CGridPlus>(layouts, "Grid");
  EXPECT_EQ(RowTexts(grid, {1, 3}), (Texts{"Deccan Bank|As designed", "Sahyadri Bank|As designed"}));
  Key(*layouts, keys::kEnter);
  const FormPtr cheque = runtime_.ActiveForm();
  EXPECT_EQ(cheque->Get("BankCode").ToInteger(), 102);
  Key(*cheque, keys::kF6);
  Key(*cheque, keys::kF7);
  Key(*cheque, keys::kEscape);
  EXPECT_EQ(runtime_.ActiveForm(), layouts);
  EXPECT_EQ(grid.TextMatrix(1, 3), "Kept");
  Db().Execute("insert into FAHeads (Code,SubCode,Head,PressHead) values (101,0,'Sahyadri Bank','SAHYADRI')");
  runtime_.NextCommand = [&] {
    const FormPtr picker = runtime_.ActiveForm();
    TypeKeys(*picker, "Sahyadri");
    Key(*picker, keys::kEnter);
    return true;
  };
  AnswerMessage(1);
  AnswerMessage();
  Key(*layouts, keys::kF3);
  EXPECT_EQ(Messages(), (Texts{"Do you want to export settings to : Sahyadri Bank", "Settings Saved"}));
  EXPECT_EQ(grid.TextMatrix(2, 3), "Kept");
  EXPECT_EQ(runtime_.ActiveForm(), layouts);
}

TEST_F(ChequesOfTheDesk, LeavesAreOpenedFromABanksStatement) {
  const auto openFrom = [&](int account) {
    const FormPtr statement = ShowStatement(account);
    runtime_.NextCommand = [&] {
      runtime_.PickFromMenu("ChequeLeaves");
      return true;
    };
    Key(*statement, keys::kF7);
    return runtime_.ActiveForm();
  };
  const FormPtr leaves = openFrom(101);
  ASSERT_EQ(leaves->Name(), "frmChqLeaves");
  EXPECT_EQ(At<Label>(leaves, "lblTitle2").Caption(), "Bank: Sahyadri Bank");
  AnswerMessage();
  EXPECT_EQ(openFrom(201)->Name(), "frmAccount");
  EXPECT_EQ(Messages(), Texts{"Only a bank account has cheque leaves."});
}

}  // namespace
}  // namespace quillon
