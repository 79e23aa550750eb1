#include "host/values/Text.h"
#include "tests/support/BankTest.h"

namespace quillon {
namespace {

constexpr int kInterestButton = 2;
constexpr long kPayColor = 0xE7D8FC;
constexpr long kChargeColor = 0xF0FFE6;

/// The interest of bank 101, asked for in the pass book or straight from the statement of account.
class Interest : public BankTest {
 protected:
  void SetUp() override {
    BankTest::SetUp();
    Db().Execute("insert into RatesPA (mcd,Rate1) values (101,9.5)");
    AddVoucher({.id = 1, .date = "2024-04-01", .amount = "10000", .book = "0B"});
  }

  void AddContra(int id, const char* date, const char* amount, const char* cleared, int nature) {
    AddVoucher({.id = id, .date = date, .amount = amount, .cleared = cleared, .narration = "Contra"});
    SetNature(id, nature);
  }
  void SetNature(int id, int nature) {
    Db().Execute("update FAData set dTrnNature=" + std::to_string(nature) +
                 " where VoucherID=" + std::to_string(id));
  }

  void OpenPassBook() {
    OpenBench();
    Key(*bench_, keys::kF7);
    Statements();
  }
  void PressInterest(const Acts& acts) {
    During([&] { bench_->UserKey(keys::kF5, 0, 0); }, acts);
  }

  /// F5 in the statement of account.
  void OpenInterest(const Acts& acts) {
    if (!statement_) statement_ = ShowStatement();
    During([&] { At<CButtonBar>(statement_, "BtnBar1").UserPress("Interest"); }, acts);
    bench_ = runtime_.ActiveForm();
  }

  FormPtr Top() { return runtime_.ActiveForm(); }
  std::function<void()> Confirm() {
    return [this] { Key(*Top(), keys::kF7); };
  }
  std::function<void()> Leave() {
    return [this] { Key(*Top(), keys::kEscape); };
  }
  std::function<void()> Method(const std::string& method) {
    return [this, method] { At<ComboBox>(Top(), "cmbInttMethod").UserChoose(method); };
  }

  CGridPlus& View() { return InterestRows(); }

  Texts Rows() { return RowTexts(View(), {0, 1, 2, 3, 4, 5, 6, 7, 8}); }
  Texts Footer() {
    Texts rows;
    for (int row = 0; row < View().Footer.Rows(); ++row) {
      std::string text;
      for (int col = 4; col <= 8; ++col) text += (col == 4 ? "" : "|") + View().Footer.TextMatrix(row, col);
      rows.push_back(text);
    }
    return rows;
  }
};

TEST_F(Interest, OfThePassBookByTheDaysOfTheBank) {
  AddVoucher({.id = 2, .date = "2024-06-01", .amount = "-30000", .cleared = "2024-04-11"});
  AddVoucher({.id = 3, .date = "2024-04-02", .amount = "24000", .cleared = "2024-10-08"});
  AddVoucher({.id = 4, .date = "2024-04-02", .amount = "1000", .cleared = "2024-10-08"});
  AddVoucher({.id = 5, .date = "2024-04-02", .amount = "777"});
  OpenPassBook();
  PressInterest({[&] {
                   EXPECT_EQ(At<CTextPlus>(Top(), "txpInttRate").Text(), "9.5000");
                   EXPECT_FALSE(View().Visible);
                 },
                 Confirm()});
  EXPECT_EQ(Rows(), (Texts{"01-Apr-2024|-10,000.00|||-10,000.00|10|-1,00,000.00|26.03|",
                           "11-Apr-2024|20,000.00|30,000.00||20,000.00|180|36,00,000.00||936.99",
                           "08-Oct-2024|-5,000.00||25,000.00|-5,000.00|175|-8,75,000.00|227.74|"}));
  EXPECT_EQ(Footer(), (Texts{"Product (Cr)|185|9,75,000.00|253.77|", "Product (Dr)|180|36,00,000.00||936.99",
                             "Net Dr|365|26,25,000.00||683.22"}));
  EXPECT_EQ(View().Footer.BackColor(2), kChargeColor);
  EXPECT_EQ(View().Title(), "Pass Book Interest Calculations @ 9.50 p.a. ( Method : Product Method )");
  ASSERT_EQ(View().Cols(), 10);
  EXPECT_EQ(ShownTitles(View()),
            "Date|O.Balance|Debits|Credits|C.Balance|Days|Product|Intt. (Pay)|Intt. (Charge)");
  for (int row = 1; row < View().Rows; ++row) {
    std::map<int, long> colors;
    for (const GridModel::Paint& paint : View().Paints(row)) colors[paint.firstCol] = paint.backColor;
    EXPECT_EQ(colors, (std::map<int, long>{{7, kPayColor}, {8, kChargeColor}})) << row;
  }
  EXPECT_TRUE(View().HasFocus());
  EXPECT_FALSE(PassBookRows().Visible);
  EXPECT_FALSE(Bar().Buttons(kInterestButton).Enabled());
  EXPECT_EQ(Bar().Buttons(1).Caption(), "") << "there are no references here";
  Key(*bench_, keys::kF9);
  EXPECT_EQ(One("report", {{"title", View().Title()}})["grid"][2][8], "936.99");
}

TEST_F(Interest, OfTheBooksStraightFromTheStatementOfAccount) {
  AddVoucher({.id = 2, .date = "2024-04-11", .amount = "-30000"});
  // On the last day of the period this nature does not count, the day before it does.
  AddVoucher({.id = 3, .date = "2025-03-30", .amount = "-1000", .cleared = "2025-03-30"});
  AddVoucher({.id = 4, .date = "2025-03-31", .amount = "-500"});
  for (const int id : {3, 4}) SetNature(id, 5022);
  AddContra(5, "2024-05-01", "7000", "", 5041);
  AddContra(6, "2024-04-11", "-7000", "", 5051);
  AnswerMessage();
  OpenInterest({[&] {
                  EXPECT_EQ(Top()->Caption(), "Alert window");
                  EXPECT_FALSE(At<CGridPlus>(runtime_.Forms(Form::Origin::Module).at(0), "Grid").Visible);
                },
                Leave(), Confirm()});
  EXPECT_EQ(Told(),
            Texts{"W: Contra entries found. These entries will be ignored for Interest Calculations"});
  ASSERT_EQ(bench_->Name(), "frmAcReconciliation");
  EXPECT_EQ(Rows(), (Texts{"01-Apr-2024|10,000.00|||10,000.00|10|1,00,000.00||26.03",
                           "11-Apr-2024|-20,000.00||30,000.00|-20,000.00|20|-4,00,000.00|104.11|",
                           "01-May-2024|-20,000.00|||-20,000.00|333|-66,60,000.00|1,733.42|",
                           "30-Mar-2025|-21,000.00||1,000.00|-21,000.00|1|-21,000.00|5.47|",
                           "31-Mar-2025|-21,000.00|||-21,000.00|1|-21,000.00|5.47|"}));
  EXPECT_EQ(Footer(), (Texts{"Product (Cr)|355|71,02,000.00|1,848.47|", "Product (Dr)|10|1,00,000.00||26.03",
                             "Net Cr|365|70,02,000.00|1,822.44|"}));
  EXPECT_EQ(View().Footer.BackColor(2), kPayColor);
  EXPECT_EQ(View().Title(), "Interest Calculations @ 9.5 p.a. ( Method : Product Method )");
  EXPECT_TRUE(View().HasFocus());
  EXPECT_FALSE(Entries().Visible);
  EXPECT_FALSE(At<ComboBox>(bench_, "cmbFilter").Visible);
  EXPECT_EQ(desk_.App().Windows().back().Title, "Reconciliation");
  Key(*bench_, keys::kEscape);
  EXPECT_FALSE(bench_->IsLoaded()) << "there are no entries to go back to";
  EXPECT_EQ(Top(), statement_);
}

TEST_F(Interest, ACancelledDialogChangesNothing) {
  AddVoucher({.id = 2, .date = "2024-04-11", .amount = "-30000", .cleared = "2024-04-12"});
  OpenInterest({Leave()});
  EXPECT_EQ(bench_, statement_) << "the screen had nothing else to show";
  EXPECT_EQ(desk_.App().Windows().size(), 1U);
  OpenPassBook();
  PressInterest({Leave()});
  EXPECT_TRUE(PassBookRows().Visible);
  EXPECT_FALSE(View().Visible);
  EXPECT_EQ(View().Rows(), 2) << "as it never was filled";
  EXPECT_TRUE(Bar().Buttons(kInterestButton).Enabled());
  EXPECT_EQ(Bar().Buttons(1).Key(), "ShowRef");
}

TEST_F(Interest, OnlyThePassBookGivesTheBanksInterest) {
  OpenPassBook();
  const auto told = [&] {
    AnswerMessage();
    Key(*bench_, keys::kF5);
    EXPECT_EQ(Told(), Texts{"W: Click on 'F7: Pass Book' option to calculate interest "
                            "as charged / paid by bank."});
  };
  Key(*bench_, keys::kEscape);
  told();
  AnswerDate("30-Apr-2024");
  Key(*bench_, keys::kF6);
  told();
  EXPECT_FALSE(View().Visible);
  // From the interest the pass book's key is off until Esc has gone back to the entries.
  Key(*bench_, keys::kEscape);
  Key(*bench_, keys::kF7);
  PressInterest({Confirm()});
  ASSERT_TRUE(View().Visible);
  Key(*bench_, keys::kF7);
  Key(*bench_, keys::kF5);
  EXPECT_TRUE(View().Visible);
  Key(*bench_, keys::kEscape);
  EXPECT_TRUE(Entries().HasFocus());
  for (int button = 0; button <= 5; ++button) EXPECT_TRUE(Bar().Buttons(button).Enabled()) << button;
  told();
}

TEST_F(Interest, TheRateInHandIsReadOnceAndTheMethodKept) {
  AddVoucher({.id = 2, .date = "2024-04-11", .amount = "-30000", .cleared = "2024-04-12"});
  OpenPassBook();
  PressInterest({[&] { At<CTextPlus>(Top(), "txpInttRate").UserType("12.34567"); },
                 Method("CC Limit - Pay Only"), Confirm()});
  EXPECT_EQ(View().Title(),
            "Pass Book Interest Calculations @ 12.3457 p.a. ( Method : CC Limit - Pay Only )");
  EXPECT_EQ(RowText(View(), 1, {7, 8}), "|") << "the bank pays nothing";
  Db().Execute("update RatesPA set Rate1=20");
  Key(*bench_, keys::kEscape);
  Key(*bench_, keys::kF7);
  PressInterest({[&] {
                   EXPECT_EQ(At<CTextPlus>(Top(), "txpInttRate").Text(), "12.3457");
                   EXPECT_EQ(At<ComboBox>(Top(), "cmbInttMethod").Text(), "CC Limit - Pay Only");
                 },
                 Method("FDR - Charge Only"), Confirm()});
  EXPECT_EQ(RowText(View(), 2, {7, 8}), "|");
  // A screen that is opened anew asks the books again.
  Key(*bench_, keys::kEscape);
  Key(*bench_, keys::kEscape);
  OpenPassBook();
  PressInterest({[&] { EXPECT_EQ(At<CTextPlus>(Top(), "txpInttRate").Text(), "20.0000"); }, Leave()});
}

TEST_F(Interest, MethodsWithoutARuleShowProductsAlone) {
  Db().Execute("delete from RatesPA");
  OpenPassBook();
  PressInterest({[&] { EXPECT_EQ(At<CTextPlus>(Top(), "txpInttRate").Text(), "0.0000"); },
                 [&] { At<CTextPlus>(Top(), "txpInttRate").UserType("4"); }, Method("PPF"), Confirm()});
  EXPECT_EQ(View().Title(), "Pass Book Interest Calculations @ 4.00 p.a. ( Method : PPF )");
  EXPECT_EQ(Rows(), Texts{"01-Apr-2024|-10,000.00|||-10,000.00|365|-36,50,000.00||"});
  EXPECT_EQ(Footer(),
            (Texts{"Product (Cr)|365|36,50,000.00||", "Product (Dr)|0|||", "Net Cr|365|36,50,000.00||0.00"}))
      << "equal totals stand on the charge's side";
}

TEST_F(Interest, TheFirmChoosesTheYearAndTheDecimals) {
  gSession->CommonDb().Execute("insert into FirmParameters values (1025,'4')");
  gSession->CommonDb().Execute("insert into FirmParameters values (1029,'Jan-Dec')");
  AddVoucher({.id = 2, .date = "2024-04-11", .amount = "-30000", .cleared = "2024-04-11"});
  OpenPassBook();
  PressInterest({Confirm()});
  EXPECT_EQ(Rows(), (Texts{"01-Apr-2024|-10,000.00|||-10,000.00|10|-1,00,000.00|25.9563|",
                           "11-Apr-2024|20,000.00|30,000.00||20,000.00|355|71,00,000.00||1,842.8962"}))
      << "2024 has 366 days";
  EXPECT_EQ(Footer(),
            (Texts{"Product (Cr)|10|1,00,000.00|25.9600|", "Product (Dr)|355|71,00,000.00||1,842.9000",
                   "Net Dr|365|70,00,000.00||1,816.9400"}))
      << "totals have two decimals whatever the rows have";
}

TEST_F(Interest, ImproperContraEntriesStopIt) {
  AddContra(5, "2024-05-02", "7000", "", 5002);
  AddContra(6, "2024-04-11", "-7000.5", "", 5012);
  AddContra(7, "2023-04-11", "0.5", "", 5024);  // before the period
  Db().Execute("update FANar set Narration='A' || ascii_char(9) || 'tab' where NarrationID=6");
  const auto look = [&] {
    CGridPlus& grid = At<CGridPlus>(Top(), "Grid");
    ASSERT_EQ(Top()->Caption(), "Alert window");
    EXPECT_EQ(At<Label>(Top(), "lblHeading").Caption(), "Contra Entries found");
    EXPECT_EQ(RowTexts(grid, {0, 1, 2, 3, 4, 5}),
              (Texts{"11-Apr-2024|BNK|A\ttab||7,000.50|6", "02-May-2024|BNK|Contra|7,000.00||5"}));
    EXPECT_EQ(grid.ColWidth(5), 0);
  };
  OpenPassBook();
  Statements();
  AnswerMessage();
  PressInterest({look, [&] { At<CGridPlus>(Top(), "Grid").UserDoubleClickRow(2); },
                 [&] {
                   EXPECT_EQ(Top()->Name(), "frmVoucher");
                   EXPECT_EQ(Top()->Get("VoucherID").ToInteger(), 5);
                   Key(*Top(), keys::kEscape);
                 },
                 [&] {
                   // Asked again while it is up, nothing is counted twice.
                   Key(*bench_, keys::kF5);
                   EXPECT_EQ(Top()->Caption(), "Alert window");
                   EXPECT_EQ(At<CGridPlus>(Top(), "Grid").Rows(), 3);
                 },
                 Leave()});
  EXPECT_EQ(Told(), Texts{"E: Improper contra entries found. Total of Contra entries is not 0 "
                          "Can't calculate Interest."});
  EXPECT_TRUE(PassBookRows().Visible) << "no dialog, no table";
  EXPECT_FALSE(View().Visible);
  AnswerMessage();
  OpenInterest({Leave()});
  EXPECT_EQ(Top(), bench_);
  for (const FormPtr& form : runtime_.Forms(Form::Origin::Module))
    EXPECT_FALSE(form->Get("bCalcInt").ToFlag());
}

TEST_F(Interest, WhoLeavesWhileTheAlertIsUpHasLeft) {
  AddContra(5, "2024-05-02", "7000", "2024-05-02", 5002);
  AddContra(6, "2024-05-02", "-7000", "2024-05-02", 5012);
  OpenPassBook();
  AnswerMessage();
  PressInterest({[&] { Key(*bench_, keys::kEscape); }, Leave()});
  EXPECT_TRUE(Entries().Visible) << "back among the entries no dialog comes up";
  Key(*bench_, keys::kF7);
  AnswerMessage();
  PressInterest({[&] {
    Key(*bench_, keys::kEscape);
    Key(*bench_, keys::kEscape);
  }});
  EXPECT_FALSE(bench_->IsLoaded());
  EXPECT_EQ(Top(), statement_);
  EXPECT_EQ(runtime_.AllForms(), std::vector<FormPtr>{statement_}) << "the alert went too";
  EXPECT_EQ(Messages().size(), 2U);
}

TEST_F(Interest, WhatLeavesTheRangeIsReportedAndTheTableStaysAsFarAsItGot) {
  AddVoucher({.id = 2, .date = "2024-04-11", .amount = "9000000000000", .cleared = "2024-04-11"});
  OpenPassBook();
  PressInterest({Confirm()});
  One("error", {{"routine", "UpdateGridInterest"}});
  EXPECT_TRUE(View().Redraw());
  EXPECT_EQ(View().TextMatrix(1, 6), "-1,00,000.00");
  EXPECT_EQ(gRuntime->MousePointer(), kPointerDefault);
  Key(*bench_, keys::kEscape);
  EXPECT_TRUE(Entries().Visible);
}

}  // namespace
}  // namespace quillon
