#include "tests/support/DeskFixture.h"

namespace quillon {
namespace {

/// The two warnings that come while something is entered.
class Similar : public DeskTest {
 protected:
  void SetUp() override {
    OpenNewFirm();
    gSession->CommonDb().Execute("update or insert into FirmParameters values (586,'Yes')");
  }

  FormPtr Make(const char* key) { return gSession->Modules().Item("DutyworksModule")->GetForm(key); }
};

TEST_F(Similar, TheUserDecidesWhetherAVoucherThatResemblesOthersIsSaved) {
  const struct {
    const char* type;
    int voucher;
    const char* captions;
    bool mayGoOn;
  } cases[] = {{"RC1", 0, "Save Voucher|Do not Save Voucher", true},
               {"S", 0, "Save Voucher|Do not Save Voucher", false},
               {"PR2", 9, "Modify this Voucher|Do not Modify this Voucher", false},
               {"SX", 9, "Modify this Voucher|Do not Modify this Voucher", true}};
  for (const auto& one : cases) {
    const FormPtr form = Make("similarvoucher");
    form->Set("dTrnType", one.type);
    form->Set("CurVoucherID", one.voucher);
    form->Call("AddEntry", {Variant(Array{"01-Apr-2024", "C", "7", "Being paid", "1,200.00"})});
    form->Call("AddEntry", {Variant(Array{"02-Apr-2024", "C"})});
    auto& grid = At<MSHFlexGrid>(form, "Grid");
    EXPECT_FALSE(grid.Redraw);
    auto& save = At<CommandButton>(form, "Command1", 0);
    if (!one.mayGoOn) AnswerMessage();
    During([&] { gStd->ShowDialog(form, nullptr); }, {[&] {
             EXPECT_TRUE(grid.Redraw);
             EXPECT_EQ(RowTexts(grid, {0, 1, 2, 3, 4}),
                       (Texts{"01-Apr-2024|C|7|Being paid|1,200.00", "02-Apr-2024|C|||"}));
             EXPECT_EQ(save.Caption() + "|" + At<CommandButton>(form, "Command1", 1).Caption(), one.captions);
             EXPECT_EQ(save.Enabled(), one.mayGoOn);
             At<CheckBox>(form, "Check1").UserCheck(true);
             At<CommandButton>(form, "Command1", one.mayGoOn ? 0 : 1).UserClick();
           }});
    EXPECT_EQ(form->Get("Cancelled").ToFlag(), !one.mayGoOn);
    EXPECT_EQ(form->Get("DontShow").ToFlag(), one.mayGoOn);
  }
  EXPECT_EQ(Told(), (Texts{"I: Voucher Not Saved", "I: Voucher Not Modified"}));
  const FormPtr left = Make("similarvoucher");
  During([&] { gStd->ShowDialog(left, nullptr); }, {[&] {
           EXPECT_EQ(At<MSHFlexGrid>(left, "Grid").Rows(), 1);
           Key(*left, keys::kEscape);
         }});
  EXPECT_TRUE(left->Get("Cancelled").ToFlag());
  EXPECT_TRUE(Told().empty()) << "Esc says nothing";
}

TEST_F(Similar, MastersAreFoundByTheBeginningOfTheirPressedHead) {
  AddAccount(201, "Asha Traders", 140, "Surat");
  AddAccount(202, "Asha Trading", 140);
  AddAccount(203, "Bharat", 140);
  Db().Execute(
      "insert into FAHeads (Code,SubCode,Head,PressHead) select mcd,0,mhd,upper(replace(mhd,' ','')) from FAMaster");
  Db().Execute("insert into FAHeads (Code,SubCode,Head,PressHead) values (203,1,'Ashapuri','ASHAPURI')");
  Db().Execute("insert into StkHeads (head,code,SubCode,PressHead) values ('Dhoti',4,0,'DHOTI')");
  Db().Execute("insert into StkMaster (qmcd,qsize) values (4,'48 in')");
  const struct {
    bool stock;
    const char* head;
    Texts rows;
    const char* titles;
  } cases[] = {{false,
                "ASHA",
                {"Asha Traders|Surat|201", "Asha Trading||202", "Ashapuri||203"},
                "Account Head|Station"},
               {false, "Q", {}, "Account Head|Station"},
               {true, "DHO", {"Dhoti|48 in|4"}, "Item Name|Size"}};
  for (const auto& one : cases) {
    const FormPtr form = Make("similarachead");
    form->Set("StkMode", one.stock);
    form->Set("mhd", one.head);
    During([&] { gStd->ShowDialog(form, nullptr); }, {[&] {
             const auto& grid = At<MSHFlexGrid>(form, "Grid");
             EXPECT_EQ(RowTexts(grid, {0, 1, 2}), one.rows);
             EXPECT_EQ(RowText(grid, 0, {0, 1}), one.titles);
             EXPECT_EQ(form->Caption(), one.stock ? "List of Similar Items" : "List of Similar Accounts");
             Key(*form, keys::kEscape);
           }});
    EXPECT_FALSE(form->IsLoaded());
  }
}

}  // namespace
}  // namespace quillon
