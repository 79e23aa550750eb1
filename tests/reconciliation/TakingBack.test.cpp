#include "tests/support/BankTest.h"

namespace quillon {
namespace {

constexpr int kCleared = 27;

/// What was stored of cleared dates is taken back and put back, act by act.
class TakingBack : public BankTest {
 protected:
  void SetUp() override {
    BankTest::SetUp();
    AddVoucher({.id = 2, .date = "2024-04-05", .amount = "1500", .narration = "Cheque 470251"});
    AddVoucher({.id = 3, .date = "2024-04-08", .amount = "-2500", .cleared = "2024-04-10", .other = 202});
    AddVoucher({.id = 4, .date = "2024-04-12", .amount = "700"});
    AddVoucher({.id = 5, .date = "2024-05-02", .amount = "-900"});
    OpenBench();
  }

  std::string Books() { return Stored(2) + "|" + Stored(3) + "|" + Stored(4) + "|" + Stored(5); }
  Texts Said() { return Take("said", "text"); }
  void Back() { Key(*runtime_.ActiveForm(), 'Z', keys::kCtrl); }
  void Again() { Key(*runtime_.ActiveForm(), 'Y', keys::kCtrl); }
  std::string MarkedBalance() { return Entries().Footer.TextMatrix(1, 26); }
};

TEST_F(TakingBack, EachActGoesByItselfWithAllThatItStored) {
  const std::string balance = MarkedBalance();
  Back();
  EXPECT_EQ(Said(), Texts{"There is no date to be taken back."});
  EXPECT_TRUE(EditCell(Entries(), 1, kCleared, "6"));
  EXPECT_TRUE(EditCell(Entries(), 2, kCleared, ""));
  EXPECT_TRUE(EditCell(Entries(), 4, kCleared, "00"));
  EXPECT_EQ(Books(), "06-Apr-2024|06-Apr-2024|06-Apr-2024|06-Apr-2024");
  Back();
  EXPECT_EQ(Books(), "06-Apr-2024|||") << "the fill-down was one act";
  EXPECT_EQ(Source().TextMatrix(3, 4), "");
  Back();
  EXPECT_EQ(Books(), "06-Apr-2024|10-Apr-2024||");
  EXPECT_EQ(Entries().TextMatrix(2, kCleared), "10-Apr-2024");
  EXPECT_EQ(Source().TextMatrix(2, 4), "10-Apr-2024");
  Back();
  EXPECT_EQ(Books(), "|10-Apr-2024||");
  EXPECT_EQ(MarkedBalance(), balance);
  Again();
  Key(*bench_, 'Z', keys::kCtrl | keys::kShift);
  EXPECT_EQ(Books(), "06-Apr-2024|||");
  EXPECT_EQ(Said(), (Texts{"3 dates taken back.", "1 date taken back.", "1 date taken back.",
                           "1 date put back.", "1 date put back."}));
  EXPECT_TRUE(EditCell(Entries(), 3, kCleared, "15"));
  Again();
  EXPECT_EQ(Said(), Texts{"There is no date to be put back."}) << "something else was stored since";
  EXPECT_EQ(Books(), "06-Apr-2024||15-Apr-2024|");
  Do([&] { Entries().UserMoveTo(3, kCleared); });
  Key(*bench_, keys::kDelete);
  EXPECT_EQ(Stored(4), "") << "Del is an edit like another";
  Back();
  EXPECT_EQ(Stored(4), "15-Apr-2024");
}

TEST_F(TakingBack, WhatSomebodyElseHasChangedSinceStays) {
  AnswerPeriod("01-Apr-2024", "31-Mar-2025");
  AnswerMessage();
  Do([&] { bench_->Call("MassMarking", {false}); });
  One("message", {{"title", "01/04/2024 to 31/03/2025"}});
  EXPECT_EQ(Books(), "05-Apr-2024|10-Apr-2024|12-Apr-2024|02-May-2024");
  Db().Execute("update FAData set dBankDate='2024-04-30' where VoucherID=4 and dVchSubNo=1");
  Choose(2);
  ASSERT_EQ(Entries().Rows(), 2) << "all are marked, so none is shown";
  Do([&] { bench_->UserFocus(Entries()); });
  Back();
  EXPECT_EQ(Said(), Texts{"2 dates taken back, 1 had been changed since."});
  EXPECT_EQ(Books(), "|10-Apr-2024|30-Apr-2024|");
  Choose(2);
  EXPECT_EQ(RowTexts(Entries(), {0}), (Texts{"2", "5"})) << "rows that the filter had hidden follow too";
  Do([&] { bench_->UserFocus(Entries()); });
  Again();
  EXPECT_EQ(Books(), "05-Apr-2024|10-Apr-2024|30-Apr-2024|02-May-2024");

  Db().Execute(
      "create trigger Keeps for FAData before update as declare x integer; begin if (old.VoucherID=2) then x=1/0; end");
  Back();
  EXPECT_EQ(Errors().size(), 1U);
  EXPECT_EQ(Books(), "05-Apr-2024|10-Apr-2024|30-Apr-2024|02-May-2024") << "an act goes whole or not at all";
  Db().Execute("drop trigger Keeps");
  Back();
  EXPECT_EQ(Books(), "|10-Apr-2024|30-Apr-2024|");
}

TEST_F(TakingBack, AColumnOfDatesIsPastedAsIfTypedAndIsOneAct) {
  const auto paste = [this](int row, int col, const std::string& text) {
    Do([&] { Entries().UserMoveTo(row, col); });
    runtime_.SetClipboardText(text);
    Key(*bench_, 'V', keys::kCtrl);
  };
  AnswerMessage();
  paste(1, kCleared, "2024-04-06\r\n\r\n14/4\r\n31/2\r\n3/5\r\n");
  EXPECT_EQ(Messages(), Texts{"Invalid Date"});
  EXPECT_EQ(Books(), "06-Apr-2024|10-Apr-2024|14-Apr-2024|") << "an empty line passes its row by";
  EXPECT_FALSE(Entries().EditMode());
  EXPECT_EQ(Entries().Row(), 4);
  Back();
  EXPECT_EQ(Books(), "|10-Apr-2024||");
  EXPECT_EQ(Said(), (Texts{"2 lines of 4 stored: line 4, \"31/2\": it was refused.", "2 dates taken back."}));

  for (const char* text : {"=\n5", "00\n5"}) {
    AnswerMessage();
    paste(3, kCleared, text);
  }
  EXPECT_EQ(Messages(), (Texts{"Invalid Date", "Invalid Date"})) << "no date of another row";
  paste(1, 11, "5\n6");
  EXPECT_EQ(Books(), "|10-Apr-2024||");
  AnswerMessage();
  paste(3, kCleared, "2/4/2025\n3/4/2025\n4/4/2025");
  EXPECT_EQ(Messages(), Texts{"Be careful, Date does not fall in current F.Year"}) << "told once";
  EXPECT_EQ(Books(), "|10-Apr-2024|02-Apr-2025|03-Apr-2025");
  EXPECT_EQ(Said().back(), "2 lines of 3 stored: line 3, \"4/4/2025\": there is no row for it.");
  paste(1, kCleared, "7\n");
  EXPECT_TRUE(Entries().EditMode()) << "one line is typed, and waits to be left";
  EXPECT_EQ(Entries().EditBox.Text(), "7");
}

TEST_F(TakingBack, TheViewsShareTheListAndAnEditorKeepsItsOwn) {
  EXPECT_TRUE(EditCell(Entries(), 1, kCleared, "6"));
  AnswerDate("30-Apr-2024");
  EXPECT_EQ(At<CMStrip>(bench_, "MStrip2").Code(), 201);
  Key(*bench_, keys::kF6);
  EXPECT_EQ(At<CMStrip>(bench_, "MStrip2").Code(), 0) << "the balance has no other side";
  const int row = 3;  // below "Amounts Debited by us only:-"
  ASSERT_EQ(StatementRows().TextMatrix(row, 10), "4");
  EXPECT_TRUE(EditCell(StatementRows(), row, 6, "2/5"));
  Do([&] { ASSERT_TRUE(StatementRows().UserEnterCell(row, 6)); });
  TypeKeys(*bench_, "39");
  Back();
  EXPECT_EQ(StatementRows().EditBox.Text(), "3");
  Back();
  EXPECT_EQ(StatementRows().EditBox.Text(), "02-May-2024");
  Again();
  EXPECT_EQ(StatementRows().EditBox.Text(), "3");
  Key(*bench_, keys::kEscape);
  EXPECT_EQ(Stored(4), "02-May-2024");
  Back();
  EXPECT_EQ(Stored(4), "");
  EXPECT_EQ(StatementRows().TextMatrix(row, 6), "");
  EXPECT_EQ(Entries().TextMatrix(3, kCleared), "");
  Back();
  EXPECT_EQ(Stored(2), "");
  EXPECT_EQ(Entries().TextMatrix(1, kCleared), "");
}

TEST_F(TakingBack, AMatchAndARemovedMarkInTheMarkings) {
  Db().Execute("update FAData set dBankDate='2024-04-20' where VoucherID=2 and dcd=201");
  const FormPtr page = desk_.Module().GetForm("acreconciliationmark");
  page->Set("AccountCode", 101);
  Do([&] { gApp->ShowForm(page); });
  CGridPlus& rows = At<CGridPlus>(page, "Grid");
  EXPECT_TRUE(EditCell(rows, 1, 2, "8/4/2024"));
  EXPECT_TRUE(EditCell(rows, 1, 3, "470251"));
  Key(*page, keys::kEscape);
  EXPECT_EQ(Stored(2), "08-Apr-2024");
  Do([&] { rows.UserMoveTo(1, 5); });
  AnswerMessage();
  Key(*page, keys::kF3);
  EXPECT_EQ(Stored(2) + Stored(2, 2), "");
  Back();
  EXPECT_EQ(Stored(2) + "|" + Stored(2, 2), "08-Apr-2024|20-Apr-2024") << "every line that lost its mark";
  Back();
  EXPECT_EQ(Stored(2) + "|" + Stored(2, 2), "|20-Apr-2024");
  Again();
  EXPECT_EQ(Stored(2), "08-Apr-2024");
  EXPECT_EQ(Said(), (Texts{"2 dates taken back.", "1 date taken back.", "1 date put back."}));
}

}  // namespace
}  // namespace quillon
