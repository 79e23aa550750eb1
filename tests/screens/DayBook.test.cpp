#include "tests/support/DeskFixture.h"

namespace quillon {
namespace {

/// The day book under its filters.
class DayBook : public DeskTest {
 protected:
  void SetUp() override {
    OpenNewFirm();
    Db().BeginTrans();
    AddAccount(101, "Bank", 47);
    AddAccount(201, "Asha", 140);
    AddAccount(202, "Bharat", 140);
    Db().Execute(
        "insert into VATClasses (VATClassNo,VATClassName,PressHead) values (7,'Exempted','EXEMPTED')");
    AddVoucher({.id = 1, .date = "2024-04-01", .amount = "-1000", .book = "0B"});
    AddVoucher({.id = 2, .date = "2024-04-20", .amount = "1500", .narration = "In"});
    AddVoucher({.id = 3, .date = "2024-04-20", .amount = "-200", .book = "J", .other = 202});
    AddVoucher({.id = 4, .date = "2024-05-03", .amount = "9", .book = "MEM"});
    AddVoucher({.id = 5, .date = "2024-06-01", .amount = "40"});
    Db().Execute("update FAData set dTrnType='J'");
    Db().Execute("insert into DocMain (DocumentID,DocVoucherID,DocSeries) values (17,3,'FAS')");
    Db().CommitTrans();
    book_ = gApp->GetForm("DayBook");
    Do([&] { gApp->ShowForm(book_); });
  }

  const CGridPlus& Grid() { return At<CGridPlus>(book_, "Grid"); }
  Texts Rows() { return RowTexts(Grid(), {0, 5, 6, 7, 8, 9}); }
  std::string Totals() { return Grid().Footer.TextMatrix(0, 8) + " " + Grid().Footer.TextMatrix(0, 9); }
  void Ask(int key, const std::function<void(const FormPtr&)>& act, int shift = 0) {
    During([&] { Key(*book_, key, shift); }, {[&] {
             const FormPtr dialog = runtime_.ActiveForm();
             act(dialog);
             Key(*dialog, keys::kF7);
           }});
  }
  static void Tick(const FormPtr& dialog, const char* box) { At<CheckBox>(dialog, box).UserCheck(true); }

  FormPtr book_;
};

TEST_F(DayBook, ItsFilterNarrowsAndShowsTheEntries) {
  EXPECT_EQ(Rows(), (Texts{"2|Bank|In||1,500.00|", "2|Asha|In|||1,500.00", "3|Bank||||200.00",
                           "3|Bharat|||200.00|", "5|Bank|||40.00|", "5|Asha||||40.00"}));
  EXPECT_EQ(Totals(), "1,740.00 1,740.00");
  Ask(keys::kF4, [&](const FormPtr& dialog) {
    At<CheckBox>(dialog, "chkBooks").UserCheck(false);
    At<ListBox>(dialog, "lstBooks").UserCheck(1, true);
    for (const char* box : {"chkPrintVouchers", "chkShowTotals", "chkShowStock"}) Tick(dialog, box);
  });
  EXPECT_EQ(Rows(), (Texts{"3|Bank||17 FAS||200.00", "3|Bharat||17 FAS|200.00|",
                           "||Totals of 20-Apr-2024||200.00|200.00"}));
  EXPECT_EQ(Grid().Title(), "Entries   Filter: Books: J");
  AnswerMessage();
  Ask(keys::kF4, [&](const FormPtr& dialog) {
    At<CheckBox>(dialog, "chkBooks").UserCheck(true);
    At<CheckBox>(dialog, "chkPrintVouchers").UserCheck(false);
    At<CTextPlus>(dialog, "txp1", 0).UserType("100");
    At<CTextPlus>(dialog, "txp1", 3).UserType("1000");
    At<CPeriod>(dialog, "CPeriod1").Date2.UserType("31/5");
    At<CTextPlus>(dialog, "txpVATClass").UserType("Exem");
    dialog->UserFocus(At<CTextPlus>(dialog, "txpVATClass"));
    At<CSelGrid>(dialog, "SelGrid1").UserPick("Exempted");
  });
  EXPECT_EQ(Told(), Texts{"W: These books keep no VAT class."});
  EXPECT_EQ(Rows(), (Texts{"2|Bank|In||1,500.00|", "3|Bank||17 FAS||200.00",
                           "||Totals of 20-Apr-2024||1,500.00|200.00"}))
      << "one line of each voucher";
  EXPECT_EQ(Grid().Title(), "Entries   Filter: Dr. Amt. from 100.00, Cr. Amt. up to 1000.00");
  EXPECT_EQ(book_->Get("Date2").ToText(), "31-May-2024");
  Key(*book_, keys::kF8);
  EXPECT_EQ(One("report")["title"], "Day Book: " + Grid().Title());
  Key(*book_, 'L', keys::kCtrl | keys::kShift);
  EXPECT_EQ(Rows().size(), 4U) << "of the period that stays";
  FormPtr dialog;
  During([&] { Key(*book_, keys::kF4); }, {[&] {
                                             dialog = runtime_.ActiveForm();
                                             At<CTextPlus>(dialog, "txpAcRange").UserPickButton();
                                           },
                                           [&] {
                                             const FormPtr accounts = runtime_.ActiveForm();
                                             At<CommandButton>(accounts, "cmdUnCheck").UserClick();
                                             At<ListBox>(accounts, "lstAccounts").UserCheck(2, true);
                                             Key(*accounts, keys::kF7);
                                             Key(*dialog, keys::kF7);
                                           }});
  EXPECT_EQ(Rows(), (Texts{"3|Bank||||200.00", "3|Bharat|||200.00|"})) << "the whole voucher";
  EXPECT_EQ(Grid().Title(), "Entries   Filter: Accounts: Bharat");
}

TEST_F(DayBook, TheDaysTotalsAskARangeAndTheGraphShowsTheDebits) {
  Ask(keys::kF5, [&](const FormPtr& dialog) {
    EXPECT_FALSE(dialog->ControlAt("Frame1").Visible);
    At<CTextPlus>(dialog, "txp1", 0).UserType("100");
  });
  EXPECT_EQ(Rows(), (Texts{"||2||1,700.00|1,700.00", "||1||0.00|40.00"}));
  EXPECT_EQ(Grid().Title(), "Totals of the Days   Filter: Dr. Amt. >= 100.00");
  Key(*book_, keys::kEnter);
  EXPECT_EQ(runtime_.ActiveForm(), book_) << "a day is no voucher";
  Key(*book_, keys::kF5);
  EXPECT_EQ(Rows().size(), 6U);
  Key(*book_, keys::kF6);
  const FormPtr graph = runtime_.ActiveForm();
  EXPECT_EQ(graph->Name(), "frmGraph");
  EXPECT_EQ(At<Label>(graph, "lblTitle1", 1).Caption(), "Day Book: debits");
  Do([&] { gRuntime->Unload(*graph); });
  Key(*book_, keys::kEnter);
  EXPECT_EQ(runtime_.ActiveForm()->Name(), "frmVoucher");
}

}  // namespace
}  // namespace quillon
