#include "tests/support/DeskFixture.h"

namespace quillon {
namespace {

/// The dialogs that narrow a statement, and the screens that they narrow.
class Filters : public DeskTest {
 protected:
  void SetUp() override {
    OpenNewFirm();
    Db().BeginTrans();
    AddAccount(101, "Sahyadri Bank", 47, "Pune");
    AddAccount(201, "Asha Traders", 140);
    AddVoucher({.id = 1, .date = "2024-04-01", .amount = "-1000", .book = "0B"});
    AddVoucher({.id = 2, .date = "2024-04-20", .amount = "1500.25", .narration = "Ravi's goods"});
    AddVoucher({.id = 3, .date = "2024-05-03", .amount = "-200", .book = "J", .narration = "Rent"});
    AddVoucher({.id = 4, .date = "2024-05-03", .amount = "900", .book = "MEM"});
    AddVoucher({.id = 5, .date = "2024-06-01", .amount = "40", .book = "ODD", .narration = "interest"});
    AddVoucher({.id = 6, .date = "2024-06-01", .amount = "-3000", .narration = "Rent of June"});
    Db().Execute("update FAData set dBook='O''D' where dBook='ODD'");
    Db().CommitTrans();
  }

  FormPtr Make(const char* key) { return gSession->Modules().Item("DutyworksModule")->GetForm(key); }
  void Ask(const FormPtr& dialog, const Acts& acts) {
    During([&] { gStd->ShowDialog(dialog, nullptr); }, acts);
  }
  void Type(const FormPtr& dialog, int field, const std::string& text) {
    At<CTextPlus>(dialog, "txp1", field).UserType(text);
  }
  void Choose(const FormPtr& dialog, int side) { At<OptionButton>(dialog, "Option1", side).UserClick(); }
  static void Tick(ListBox& list, const std::string& item, bool ticked) {
    for (int i = 0; i < list.ListCount(); ++i) {
      if (list.List(i) == item) return list.UserCheck(i, ticked);
    }
    ADD_FAILURE() << "no item " << item;
  }

  /// The vouchers of the rows that are to be seen.
  static Texts Seen(const GridModel& grid) {
    Texts vouchers;
    for (int row = 1; row < grid.Rows; ++row) {
      if (grid.IsRowVisible(row)) vouchers.push_back(grid.TextMatrix(row, 0));
    }
    return vouchers;
  }
};

TEST_F(Filters, WhatIsChosenBecomesAConditionAndItsWords) {
  const struct {
    int side;
    const char* unticked;
    Texts fields;
    const char* condition;
    const char* words;
  } cases[] = {
      {2, "", {}, "", ""},
      {0,
       "",
       {"10", ""},
       " and a.dAmt>0 and ((a.damt>0 and (a.damt>=10)) or a.damt<0)",
       "Debit Entries Only, Dr. Amt. >= 10.00"},
      {1,
       "BNK",
       {"", "", "", "99.5"},
       " and a.dAmt<0 and a.dBook in ('0B','J','O''D') and ((a.damt<0 and (abs(a.damt)<=99.5)) or a.damt>0)",
       "Credit Entries Only, Books: 0B,J,O'D, Cr. Amt. <= 99.50"},
      {2,
       "",
       {"5", "10", "1", "2000", "Ravi's"},
       " and a.Narration like '%Ravi''s%' and ((a.damt>0 and (a.damt>=5 and a.damt<=10)) or a.damt<0) and "
       "((a.damt<0 and (abs(a.damt)>=1 and abs(a.damt)<=2000)) or a.damt>0)",
       "Narration: Ravi's, Dr. Amt. Between 5.00 and 10.00, Cr. Amt. Between 1.00 and 2000.00"},
  };
  const FormPtr dialog = Make("acfilter");
  for (const auto& one : cases) {
    Ask(dialog, {[&] {
          Choose(dialog, 2);
          At<CommandButton>(dialog, "cmdCheck").UserClick();
          for (int field = 0; field < 5; ++field) Type(dialog, field, "");
          if (*one.unticked != '\0') Tick(At<ListBox>(dialog, "List2"), one.unticked, false);
          for (int field = 0; field < static_cast<int>(one.fields.size()); ++field) {
            Type(dialog, field, one.fields[static_cast<std::size_t>(field)]);
          }
          Choose(dialog, one.side);
          Key(*dialog, keys::kF7);
        }});
    EXPECT_FALSE(dialog->Get("Cancelled").ToFlag());
    EXPECT_EQ(dialog->Get("FilterCnd").ToText(), one.condition);
    EXPECT_EQ(dialog->Get("FilterTxt").ToText(), one.words);
  }
  AnswerMessage();
  Ask(dialog, {[&] {
        Type(dialog, 0, "7");
        Choose(dialog, 1);
        EXPECT_FALSE(At<CTextPlus>(dialog, "txp1", 0).Visible);
        EXPECT_EQ(At<CTextPlus>(dialog, "txp1", 0).Text(), "") << "what cannot be seen narrows nothing";
        At<CommandButton>(dialog, "cmdUnCheck").UserClick();
        Key(*dialog, keys::kF7);
        EXPECT_TRUE(At<ListBox>(dialog, "List2").HasFocus());
        Key(*dialog, keys::kEscape);
      }});
  EXPECT_EQ(Told(), Texts{"W: No book selected."});
  EXPECT_TRUE(dialog->IsLoaded()) << "the caller still reads it";
  EXPECT_TRUE(dialog->Get("Cancelled").ToFlag()) << "although it was left by OK before";
  Do([&] { gRuntime->Unload(*dialog); });
}

TEST_F(Filters, AnAmountRangeAloneIsASmallDialog) {
  const FormPtr dialog = Make("acfilter");
  const long height = dialog->Height;
  dialog->Set("AmtRangeOnly", true);
  Statements();
  Ask(dialog, {[&] {
        for (const char* frame : {"Frame1", "Frame2", "Frame4"})
          EXPECT_FALSE(dialog->ControlAt(frame).Visible);
        EXPECT_LT(dialog->Height(), height / 2);
        Type(dialog, 3, "0.5");
        Key(*dialog, keys::kF7);
      }});
  EXPECT_TRUE(Statements().empty());
  EXPECT_EQ(dialog->Get("Amt4").ToText(), "0.5");
  EXPECT_EQ(dialog->Get("FilterTxt").ToText(), "Cr. Amt. <= 0.50");
  Do([&] { gRuntime->Unload(*dialog); });
}

TEST_F(Filters, AStatementKeepsItsFilterInSightUntilOneKeyTakesItAway) {
  const FormPtr statement = ShowStatement();
  const auto& grid = At<CGridPlus>(statement, "Grid");
  const auto toggle = [&] { Key(*statement, 'L', keys::kCtrl | keys::kShift); };
  const std::string title = At<Label>(statement, "lblTitle2").Caption();
  During(toggle, {[&] { Key(*runtime_.ActiveForm(), keys::kEscape); }});
  EXPECT_EQ(Seen(grid).size(), 5U);
  During(toggle, {[&] {
           const FormPtr dialog = runtime_.ActiveForm();
           Type(dialog, 4, "Rent");
           Key(*dialog, keys::kF7);
         }});
  EXPECT_EQ(Seen(grid), (Texts{"3", "6"}));
  EXPECT_EQ(RowText(grid, 5, {6, 25, 26}), "5|3,000.00|2,659.75 Cr.") << "the account's own balance";
  EXPECT_EQ(grid.Footer.TextMatrix(0, 24) + "|" + grid.Footer.TextMatrix(0, 25), "0.00|3,200.00");
  EXPECT_EQ(grid.Row(), 3);
  EXPECT_EQ(At<Label>(statement, "lblTitle2").Caption(), "Filter: Narration: Rent");
  Key(*statement, keys::kF8);
  EXPECT_EQ(One("report")["subtitle"], "Period: 01/04/2024 to 31/03/2025   Filter: Narration: Rent");

  const FormPtr bench = ShowWorkbench(statement);
  EXPECT_EQ(Seen(At<CGridPlus>(bench, "Grid")), (Texts{"3", "6"}));
  EXPECT_EQ(At<Label>(bench, "lblTitle2").Caption(), "Filter: Narration: Rent");
  AnswerMessage();
  toggle();
  EXPECT_EQ(Told(), Texts{"W: Close the reconciliation of this statement first."});
  Key(*bench, keys::kEscape);
  EXPECT_EQ(Seen(grid), (Texts{"3", "6"})) << "it reads anew under its filter";
  toggle();
  EXPECT_EQ(Seen(grid).size(), 5U);
  EXPECT_EQ(At<Label>(statement, "lblTitle2").Caption(), title);
  Do([&] { gRuntime->Unload(*statement, UnloadMode::CloseBox); });
  EXPECT_FALSE(statement->IsLoaded()) << "the dialog that was left keeps nothing open";
}

TEST_F(Filters, TheWorkbenchNarrowsItsRowsInMemory) {
  const FormPtr statement = ShowStatement();
  const FormPtr bench = ShowWorkbench(statement);
  auto& grid = At<CGridPlus>(bench, "Grid");
  const auto filter = [&](const std::function<void(const FormPtr&)>& act) {
    During([&] { Key(*bench, 'L', keys::kCtrl | keys::kShift); }, {[&] {
             const FormPtr dialog = runtime_.ActiveForm();
             act(dialog);
             Key(*dialog, keys::kF7);
           }});
  };
  Statements();
  filter([&](const FormPtr& dialog) {
    EXPECT_EQ(At<CTextPlus>(dialog, "txpDate2").Text(), "31-Mar-2025");
    Choose(dialog, 1);
    At<CTextPlus>(dialog, "txpDate1").UserType("2/5");
    Type(dialog, 3, "2500");
    Type(dialog, 4, "RENT");
  });
  EXPECT_EQ(Seen(grid), Texts{"3"});
  EXPECT_EQ(grid.Title(), "Filter: Credit Entries Only, Narration: RENT, Cr. Amt. <= 2500.00");
  EXPECT_FALSE(grid.IsColVisible(24) || grid.IsColVisible(26));
  EXPECT_EQ(grid.Footer.TextMatrix(0, 24) + "|" + grid.Footer.TextMatrix(0, 25), "|200.00");
  filter([&](const FormPtr& dialog) { Tick(At<ListBox>(dialog, "List2"), "BNK", false); });
  EXPECT_EQ(Seen(grid), (Texts{"", "3", "5"}));
  EXPECT_TRUE(grid.IsColVisible(24) && grid.IsColVisible(26));
  filter([](const FormPtr&) {});
  EXPECT_EQ(grid.Title(), "Reconciliation Workings");
  EXPECT_EQ(Seen(grid).size(), 5U);
}

TEST_F(Filters, TheZoomOfABookIsNarrowedByLists) {
  Db().Execute("update FAData set dTrnType='RC1' where VoucherID=2");
  Db().Execute("update FAData set dTrnType='JD1' where VoucherID<>2");
  Db().Execute("insert into VATClasses (VATClassNo,VATClassName,PressHead) values (7,'Exempted','EXEMPTED')");
  Db().Execute("insert into CtgMaster (CtgNo,CtgName) values (140,'Debtors')");
  const FormPtr dialog = Make("filterzoomold");
  dialog->Set("Date1", "02-Apr-2024");
  dialog->Set("Date2", "30-Jun-2024");
  for (int message = 0; message < 3; ++message) AnswerMessage();
  auto& period = At<CPeriod>(dialog, "CPeriod1");
  const auto pick = [&](const std::string& text) {
    auto& field = At<CTextPlus>(dialog, "txpVATClass");
    dialog->UserFocus(field);
    field.UserType(text);
    Key(*dialog, keys::kEnter);
  };
  Ask(dialog, {[&] {
                 EXPECT_EQ(At<ListBox>(dialog, "lstBooks").ListCount(), 4);
                 period.Date2.UserType("1/4");
                 Key(*dialog, keys::kF7);
                 period.Date2.UserType("30/6");
                 At<CheckBox>(dialog, "chkBooks").UserCheck(false);
                 Key(*dialog, keys::kF7);
                 Tick(At<ListBox>(dialog, "lstBooks"), "O'D", true);
                 Tick(At<ListBox>(dialog, "lstBooks"), "J", true);
                 At<CheckBox>(dialog, "chkTrnTypes").UserCheck(false);
                 Key(*dialog, keys::kF7);
                 At<CheckBox>(dialog, "chkTrnTypes").UserCheck(true);
                 Type(dialog, 1, "500");
                 Type(dialog, 2, "3");
                 Choose(dialog, 0);
                 pick("Exem");
                 At<CheckBox>(dialog, "chkShowTotals").UserCheck(true);
                 At<CTextPlus>(dialog, "txpAcRange").UserPickButton();
               },
               [&] {
                 const FormPtr accounts = runtime_.ActiveForm();
                 At<ComboBox>(accounts, "cmbGroup").UserChoose("Debtors");
                 Key(*accounts, keys::kF7);
                 Key(*dialog, keys::kF7);
               }});
  EXPECT_EQ(Told(), (Texts{"W: To Date can't be less than From Date", "W: No books selected.",
                           "W: No trn.types selected."}));
  const std::pair<const char*, const char*> members[] = {{"Cancelled", "False"},
                                                         {"Date2", "30-Jun-2024"},
                                                         {"Books", "'J','O''D'"},
                                                         {"TrnTypes", ""},
                                                         {"DRCR", "DR"},
                                                         {"Amt1", "0.001"},
                                                         {"Amt2", "500"},
                                                         {"Amt3", "3"},
                                                         {"Amt4", "0"},
                                                         {"AcCnd", "b.mbshno=140"},
                                                         {"VATClassNo", "7"},
                                                         {"VATClass", "Exempted"},
                                                         {"AcCndTxt", "Group: Debtors"},
                                                         {"PrintVouchers", "False"},
                                                         {"ShowTotals", "True"}};
  for (const auto& [member, value] : members) EXPECT_EQ(dialog->Get(member).ToText(), value) << member;
  EXPECT_TRUE(dialog->IsLoaded());
  Ask(dialog, {[&] {
        pick("");
        EXPECT_EQ(At<CTextPlus>(dialog, "txpVATClass").Tag(), "");
        Key(*dialog, keys::kEscape);
      }});
  EXPECT_TRUE(dialog->Get("Cancelled").ToFlag());
  EXPECT_FALSE(dialog->IsLoaded());
}

TEST_F(Filters, PeaksAreThoseOfTheEndsOfDays) {
  const FormPtr statement = ShowStatement(101, "01-May-2024", "30-Jun-2024");
  AddVoucher({.id = 7, .date = "2024-05-03", .amount = "9000"});
  AddVoucher({.id = 8, .date = "2024-05-03", .amount = "-9000"});
  AddVoucher({.id = 9, .date = "2024-06-20", .amount = "2659.75"});
  AddVoucher({.id = 10, .date = "2024-06-21", .amount = "300.25"});
  std::string told;
  During([&] { Key(*statement, keys::kF7); }, {[&] { runtime_.PickFromMenu("PeakBalances"); },
                                               [&] {
                                                 const FormPtr peaks = runtime_.ActiveForm();
                                                 for (int row = 0; row < 4; ++row) {
                                                   told += At<Label>(peaks, "Label1", row).Caption() + " " +
                                                           At<TextBox>(peaks, "Text1", row).Text() + " " +
                                                           At<TextBox>(peaks, "Text2", row).Text() + "\n";
                                                 }
                                                 Key(*peaks, keys::kEscape);
                                               }});
  EXPECT_EQ(told,
            "Maximum Debit 300.25 03-May-2024\nMinimum Debit 300.25 03-May-2024\n"
            "Maximum Credit 2,659.75 01-Jun-2024\nMinimum Credit 2,659.75 01-Jun-2024\n");
  const FormPtr stock = Make("peakbalances");
  const long height = stock->Height;
  stock->Set("StkMode", true);
  Ask(stock, {[&] {
        EXPECT_FALSE(stock->ControlAt("Frame1", 1).Visible);
        EXPECT_EQ(At<Label>(stock, "Label1", 1).Caption(), "Minimum Balance");
        EXPECT_EQ(At<Label>(stock, "Label2", 0).BackColor(), 9598313);
        EXPECT_EQ(stock->Height(),
                  stock->ControlAt("Command1").Top + stock->ControlAt("Command1").Height + 200);
        EXPECT_LT(stock->Height(), height);
        At<CButton>(stock, "Command1").UserClick();
      }});
}

}  // namespace
}  // namespace quillon
