#include "tests/support/DeskFixture.h"

namespace quillon {
namespace {

/// The index at the head of a ledger.
class LedgerIndex : public DeskTest {
 protected:
  void SetUp() override {
    OpenNewFirm();
    AddAccount(101, "Sahyadri Bank", 47, "Pune");
    AddAccount(201, "Asha Traders", 140);
    AddAccount(202, "Bharat Mills", 140);
    AddVoucher({.id = 1, .date = "2024-04-01", .amount = "-1000", .book = "0B"});
    AddVoucher({.id = 2, .date = "2024-06-20", .amount = "150000.5"});
    AddVoucher({.id = 3, .date = "2024-06-21", .amount = "7", .book = "MEM"});
    Db().Execute(
        "create table Pages (AcCode integer, AcHead varchar(80), Station varchar(40), Page1 integer, Page2 integer)");
  }

  FormPtr Show(bool withOpening, bool stock = false) {
    FormPtr form = gSession->Modules().Item("DutyworksModule")->GetForm("ledgerindex");
    form->Set("TblName", "Pages");
    form->Set("Title", "  Ledger of Sharda ");
    form->Set("Title1", "Year 2024");
    form->Set("Date1", "01-May-2024");
    form->Set("Date2", "30-Jun-2024");
    form->Set("WithOpening", withOpening);
    form->Set("StockIndex", stock);
    Statements();
    Do([&] { gApp->ShowForm(form); });
    return form;
  }
  void AddPages() {
    for (const char* row :
         {"101,'Sahyadri Bank','Pune',3,5", "201,'Asha Traders','',1,1", "202,'Bharat Mills','',2,2"})
      Db().Execute("insert into Pages values (" + std::string(row) + ")");
  }
  static Texts Rows(const FormPtr& form) {
    return RowTexts(At<MSHFlexGrid>(form, "Grid"), {0, 1, 2, 3, 5, 6, 7});
  }
};

TEST_F(LedgerIndex, AccountsWithTheirPagesAndBalances) {
  AddPages();
  const FormPtr form = Show(true);
  EXPECT_EQ(Rows(form),
            (Texts{"1|Asha Traders||1-1||1,49,000.50|201", "2|Bharat Mills||2-2|---   |---   |202",
                   "3|Sahyadri Bank|Pune|3-5|1,49,000.50||101"}));
  EXPECT_EQ(
      Statements().at(1),
      "select first 1 Sum(dAmt) from FADATA where dBook<>'MEM' and dVchDate<='2024-06-30' and dcd=201 and "
      "dBook<>'MEM'");
  EXPECT_EQ(At<Label>(form, "lblTitle").Caption(), "Ledger of Sharda   ");
  EXPECT_EQ(Rows(Show(false))[2], "3|Sahyadri Bank|Pune|3-5|1,50,000.50||101") << "those of the period alone";

  const auto& grid = At<MSHFlexGrid>(form, "Grid");
  Do([&] { gRuntime->BringToFront(*form); });
  Statements();
  EXPECT_FALSE(grid.IsColVisible(5));
  Key(*form, keys::kF4);
  EXPECT_TRUE(grid.IsColVisible(5) && grid.IsColVisible(6));
  EXPECT_EQ(At<CButtonBar>(form, "BtnBar1").Buttons(0).Caption(), "F4: Hide Balance");
  EXPECT_TRUE(Statements().empty());
  Key(*form, keys::kF4);
  EXPECT_FALSE(grid.IsColVisible(5));
  EXPECT_EQ(At<CButtonBar>(form, "BtnBar1").Buttons(0).Caption(), "F4: Show Balance");
  Key(*form, keys::kF8);
  EXPECT_EQ(One("report")["subtitle"], "Year 2024");

  Key(*form, keys::kDown);
  Key(*form, keys::kDown);
  EXPECT_EQ(At<CMStrip>(form, "MStrip1").Code(), 101);
  Key(*form, keys::kEnter);
  const FormPtr statement = runtime_.ActiveForm();
  EXPECT_EQ(statement->Name() + statement->Get("AccountCode").ToText() + statement->Get("Date1").ToText(),
            "frmAccount10101-May-2024");
  EXPECT_EQ(At<Label>(statement, "lblTitle").Caption(), "Ledger of Sharda    -> Statement of Account");
}

TEST_F(LedgerIndex, OfNothingOfItemsAndOfATableThatIsNotThere) {
  const FormPtr none = Show(true);
  EXPECT_EQ(Rows(none), Texts{"||||||"});
  Key(*none, keys::kEnter);
  EXPECT_EQ(runtime_.ActiveForm(), none);
  AddPages();
  const FormPtr items = Show(true, true);
  EXPECT_EQ(Statements().size(), 1U) << "items have no balance";
  EXPECT_FALSE(At<MSHFlexGrid>(items, "Grid").IsColVisible(2));
  Key(*items, keys::kF4);
  EXPECT_FALSE(At<MSHFlexGrid>(items, "Grid").IsColVisible(5));
  Db().Execute("alter table Pages drop Page2");
  const FormPtr damaged = Show(true);
  EXPECT_EQ(One("error")["routine"], "Fill");
  EXPECT_TRUE(damaged->IsShownToUser());
}

}  // namespace
}  // namespace quillon
