#include "reconciliation/ChequeSearch.h"
#include "tests/support/BankTest.h"

namespace quillon {
namespace {

constexpr int kClearDate = 2;
constexpr int kChequeNo = 3;
constexpr int kNarration = 5;
constexpr int kPreMarked = 8;

/// The marking form on bank 101 with the cheques of a week in April.
class Marking : public BankTest {
 protected:
  void SetUp() override {
    BankTest::SetUp();
    AddAccount(102, "Konkan Bank", 47, "Pune");
    AddVoucher({.id = 2, .date = "2024-04-05", .amount = "1500.5", .narration = "Chq.No. 470251 received"});
    AddVoucher(
        {.id = 3, .date = "2024-04-08", .amount = "-1234567.891", .narration = "By 470252", .other = 202});
    AddVoucher(
        {.id = 4, .date = "2024-04-09", .amount = "-75", .cleared = "2024-04-11", .narration = "By 470253"});
    AddVoucher({.id = 5, .date = "2024-04-08", .amount = "1", .narration = "Chq.No. 470252", .account = 102});
  }

  void Open(const std::string& from = "01-Apr-2024", const std::string& to = "30-Apr-2024") {
    form_ = desk_.Module().GetForm("AcReconciliationMark");
    form_->Set("FYear", std::static_pointer_cast<Object>(gSession->CurrentYear()));
    form_->Set("AccountCode", 101);
    form_->Set("Date1", from);
    form_->Set("Date2", to);
    Do([&] { gApp->ShowForm(form_); });
    Statements();
  }

  CGridPlus& Grid() { return At<CGridPlus>(form_, "Grid"); }
  CButtonBar& Bar() { return At<CButtonBar>(form_, "BtnBar1"); }
  void Days(const std::string& days) {
    Do([&] { At<CTextPlus>(form_, "txpDays").UserType(days); });
  }
  bool Date(int row, const std::string& text) { return EditCell(Grid(), row, kClearDate, text); }
  bool Number(int row, const std::string& text) { return EditCell(Grid(), row, kChequeNo, text); }

  void Match(int row, const std::string& date, const std::string& number) {
    EXPECT_TRUE(Date(row, date));
    EXPECT_TRUE(Number(row, number)) << number;
  }
  std::string Row(int row) { return RowText(Grid(), row, {0, 1, 2, 3, 4, 5, 6, 7, 8, 9}); }
  void AnswerPick(int item) { runtime_.Laid.Add({{"to", "pick"}, {"item", item}}); }

  /// Vouchers from 20 on with "Chq. 5550NN", a day apart from 1 June on.
  void AddCheques(int count) {
    for (int i = 0; i < count; ++i) {
      const std::string day = "2024-06-" + std::string(i < 9 ? "0" : "") + std::to_string(i + 1);
      const std::string narration =
          "Chq. 5550" + std::to_string(10 + i) + " received from the party at Nashik";
      AddVoucher({.id = 20 + i, .date = day.c_str(), .amount = "2500000", .narration = narration.c_str()});
    }
  }

  FormPtr form_;
};

TEST_F(Marking, OpensOnAnEmptyPage) {
  Open();
  EXPECT_EQ(Grid().Title(), "Period: 01/04/2024 to 30/04/2024");
  EXPECT_EQ(desk_.App().Windows().back().Title, "Reconciliation");
  EXPECT_EQ(desk_.App().Windows().back().IconKey, "Modify");
  EXPECT_EQ(At<CTextPlus>(form_, "txpDays").Text(), "3");
  EXPECT_EQ(At<CMStrip>(form_, "MStrip2").Code(), 101);
  EXPECT_TRUE(Grid().HasFocus());
  EXPECT_EQ(Grid().Rows(), 2);
  EXPECT_EQ((std::pair{Grid().Row(), Grid().Col()}), (std::pair{1, kClearDate}));
  EXPECT_EQ(ShownTitles(Grid()), "Clear Date|Chq. No.|Vch.Date|Narration|Debit|Credit|Pre Marked|Cross Ref.");
  EXPECT_EQ(ShownCaptions(Bar()), "F3: Remove Mark|F6: Clear Page|F8: Preview|F9: Print|Esc: Exit");
  Key(*form_, keys::kEscape);
  EXPECT_FALSE(form_->IsLoaded());
  EXPECT_EQ(desk_.App().Windows().size(), 0U);
}

TEST_F(Marking, ARunOfChequesOfOneDateIsTypedByNumbersAlone) {
  Open();
  TypeKeys(*form_, "8/4");
  Key(*form_, keys::kEnter);
  EXPECT_EQ(Grid().TextMatrix(1, kClearDate), "08-Apr-2024");
  TypeKeys(*form_, "470251");
  Statements();
  Key(*form_, keys::kEnter);
  EXPECT_EQ(Updates(),
            Texts{"UPDATE FADATA SET DBANKDATE='2024-04-08' WHERE DCD=101 AND VOUCHERID=2 AND DVCHSUBNO=1"});
  EXPECT_EQ(Row(1), "2|201|08-Apr-2024|470251|05-Apr-2024|Chq.No. 470251 received|1500.50|||Asha Traders");
  EXPECT_EQ(Stored(2), "08-Apr-2024");
  EXPECT_EQ(Stored(2, 2), "");

  // The date above was offered and taken: the next number is asked for.
  EXPECT_EQ(Grid().Rows(), 3);
  EXPECT_EQ((std::pair{Grid().EditRow(), Grid().EditCol()}), (std::pair{2, kChequeNo}));
  EXPECT_TRUE(Grid().EditMode());
  EXPECT_EQ(At<CMStrip>(form_, "MStrip1").Code(), 0);
  TypeKeys(*form_, "470252");
  Key(*form_, keys::kEnter);
  EXPECT_EQ(Row(2), "3|202|08-Apr-2024|470252|08-Apr-2024|By 470252||1234567.89||Bharat Mills");
  EXPECT_EQ(Stored(3), "08-Apr-2024");
  EXPECT_EQ(Stored(5), "") << "the other bank's cheque";

  // Another date: out of the empty number, one column back.
  Key(*form_, keys::kEnter);
  EXPECT_FALSE(Grid().EditMode()) << "nobody runs ahead of a row without its entry";
  EXPECT_EQ(Grid().Rows(), 4);
  Key(*form_, keys::kLeft);
  TypeKeys(*form_, "9");
  Key(*form_, keys::kEnter);
  EXPECT_EQ(Grid().TextMatrix(3, kClearDate), "09-Apr-2024") << "month and year are those of the row above";
  Key(*form_, keys::kUp);
  EXPECT_EQ(At<CMStrip>(form_, "MStrip1").Code(), 202);
}

TEST_F(Marking, AnEntryMarkedBeforeKeepsItsDateAndCountsAsMatched) {
  Open();
  Match(1, "12/4/2024", "470253");
  EXPECT_EQ(Events("beep").size(), 1U);
  EXPECT_EQ(Updates(), Texts());
  EXPECT_EQ(Row(1), "4|201|12-Apr-2024|470253|09-Apr-2024|By 470253||75.00|11-Apr-2024|Asha Traders");
  EXPECT_EQ(Stored(4), "11-Apr-2024");
  EXPECT_TRUE(Grid().EditMode());
  EXPECT_EQ((std::pair{Grid().EditRow(), Grid().EditCol()}), (std::pair{2, kClearDate})) << "it moves on";
  EXPECT_EQ(Grid().EditBox.Text(), "12-Apr-2024") << "with the date above";
  EXPECT_EQ(Grid().EditBox.SelStart, 0);
  EXPECT_EQ(Grid().EditBox.SelLength, 99);
  TypeKeys(*form_, "1");
  EXPECT_EQ(Grid().EditBox.Text(), "1") << "which the first key replaces";
  // The number of a matched row may be typed over; nothing is looked up any more.
  Statements();
  EXPECT_TRUE(Number(1, "999999"));
  EXPECT_EQ(Row(1).substr(0, 24), "4|201|12-Apr-2024|999999");
  for (const std::string& sql : Statements()) EXPECT_FALSE(sql.starts_with("SELECT A.VOUCHERID")) << sql;
}

TEST_F(Marking, OnlyRowsInTurnAndColumnsInTurnAreEdited) {
  Open();
  EXPECT_FALSE(Number(1, "470251")) << "first the date";
  for (const int col : {4, kNarration, 6, 7, kPreMarked, 9})
    EXPECT_FALSE(EditCell(Grid(), 1, col, "x")) << col;
  EXPECT_TRUE(Date(1, ""));
  Do([&] { Grid().UserMoveTo(1, kClearDate); });
  TypeKeys(*form_, "8/4/2024");
  Key(*form_, keys::kEnter);
  ASSERT_EQ(Grid().EditCol(), kChequeNo);
  Key(*form_, keys::kEnter);
  EXPECT_FALSE(Grid().EditMode());
  EXPECT_EQ(Grid().Rows(), 2) << "no row is added under one without its entry";
  Grid().Rows = 3;
  EXPECT_FALSE(Date(2, "9")) << "nor is one entered";
  EXPECT_TRUE(Number(1, "470251"));
  EXPECT_TRUE(Date(2, "9"));
}

TEST_F(Marking, AWrongDateKeepsTheCell) {
  Open();
  for (const char* wrong : {"31/2", "abc", "470251"}) {
    AnswerMessage();
    EXPECT_FALSE(Date(1, wrong)) << wrong;
    EXPECT_EQ(Told(), Texts{"W: Invalid date"});
    EXPECT_TRUE(Grid().EditMode());
    EXPECT_EQ(Grid().EditBox.Text(), wrong);
  }
  EXPECT_TRUE(Date(1, "8/4"));
  EXPECT_EQ(Grid().TextMatrix(1, kClearDate), "08-Apr-2024");
}

TEST_F(Marking, ANumberOfFourCharactersIsLeftAlone) {
  Open();
  EXPECT_TRUE(Date(1, "8/4/2024"));
  Statements();
  for (const char* number : {"4702", "4702510000000000"}) {
    EXPECT_TRUE(Number(1, number));
    EXPECT_EQ(RowText(Grid(), 1, {0, kChequeNo}), "|" + std::string(number));
  }
  EXPECT_EQ(Statements(), Texts());
  EXPECT_TRUE(Number(1, "70251")) << "a part of the number is enough";
  EXPECT_EQ(Stored(2), "08-Apr-2024");

  const std::string date = "08-Apr-2024";
  for (int length = 0; length <= 24; ++length) {
    const std::string number(static_cast<std::size_t>(length), '7');
    const bool silent = length == 0 || length == 4 || length == 16 || length == 20;
    EXPECT_EQ(IsSearched(date, number), !silent) << length;
  }
  EXPECT_FALSE(IsSearched("", "470251"));
  EXPECT_FALSE(IsSearched(date, "पुणे")) << "characters count, not the bytes of their storage";
  EXPECT_TRUE(IsSearched(date, "४७०२५१"));
}

TEST_F(Marking, TheSearchKeepsToItsDays) {
  Open();
  EXPECT_TRUE(Date(1, "9/4/2024"));
  AnswerMessage();
  EXPECT_FALSE(Number(1, "470251"));
  EXPECT_EQ(Told(), Texts{"W: Cheque no. not found: 470251"}) << "dated four days before";
  Do([&] { Grid().CancelEdit(); });
  Days("4x.");
  EXPECT_EQ(At<CTextPlus>(form_, "txpDays").Text(), "4") << "digits only";
  EXPECT_TRUE(Number(1, "470251"));
  EXPECT_EQ(Stored(2), "09-Apr-2024");

  // No day before, and none after it.
  for (const char* days : {"0", ""}) {
    Days(days);
    Key(*form_, keys::kF6);
    EXPECT_TRUE(Date(1, "7/4/2024"));
    AnswerMessage();
    EXPECT_FALSE(Number(1, "470252"));
    EXPECT_EQ(Messages().size(), 1U);
    Do([&] { Grid().CancelEdit(); });
    EXPECT_TRUE(Date(1, "8/4/2024"));
    EXPECT_TRUE(Number(1, "470252"));
    EXPECT_EQ(Stored(3), "08-Apr-2024");
  }
  EXPECT_EQ(Events("beep").size(), 1U) << "the second time it was marked already";
}

TEST_F(Marking, UpToTenMatchesAreOfferedInAListAndElevenAreTooMany) {
  AddCheques(10);
  Db().Execute("update FAData set dBankDate='2024-06-09' where VoucherID=27 and dcd=101");
  Open();
  Days("30");
  EXPECT_TRUE(Date(1, "15/6/2024"));
  EXPECT_TRUE(Number(1, "5550")) << "four characters";
  runtime_.Laid.Add({{"to", "pick"}, {"cancel", true}});
  EXPECT_FALSE(Number(1, "55501"));
  const Json items = One("pick", {{"title", "Multiple matching records found ... Select one"}})["items"];
  ASSERT_EQ(items.size(), 10U);
  int third = 0;
  while (items[static_cast<std::size_t>(third)][0] != "03/06/2024") ++third;
  EXPECT_EQ(Line(items[static_cast<std::size_t>(third)]),
            R"(["03/06/2024","Chq. 555012 received from the ","25,00,000.00"])");
  EXPECT_EQ(Grid().TextMatrix(1, 0), "") << "nothing was picked";
  EXPECT_TRUE(Grid().EditMode());
  EXPECT_EQ(Updates(), Texts());
  AnswerPick(third);
  EXPECT_TRUE(Number(1, "55501"));
  EXPECT_EQ(Grid().TextMatrix(1, 0), "22");
  EXPECT_EQ(Stored(22), "15-Jun-2024");
  EXPECT_EQ(Db().Lookup("FAData", "count(*)", "dBankDate is not null and VoucherID>=20").ToInteger(), 2);
  AddVoucher({.id = 30, .date = "2024-06-11", .amount = "1", .narration = "Chq. 555020"});
  EXPECT_TRUE(Date(2, "15/6/2024"));
  AnswerMessage();
  EXPECT_FALSE(Number(2, "555"));
  EXPECT_EQ(Told(), Texts{"W: 11 records found, can't continue."});
  EXPECT_EQ(Events("pick").size(), 1U) << "only those that were picked from";
}

TEST_F(Marking, OfTwoLinesOfOneVoucherTheFirstIsTaken) {
  Db().Execute(
      "insert into FAData (VoucherID,dVchSubNo,dVchDate,dcd,dAmt,dBook,NarrationID) "
      "values (2,7,'2024-04-05',101,9,'BNK',2)");
  Db().Execute("update FAData set dBankDate='2024-04-01' where VoucherID=2 and dVchSubNo=7");
  Open();
  EXPECT_TRUE(Date(1, "8/4/2024"));
  AnswerPick(1);
  EXPECT_TRUE(Number(1, "470251"));
  EXPECT_EQ(Events("pick").at(0)["items"].size(), 2U);
  EXPECT_EQ(Grid().TextMatrix(1, 6), "1500.50") << "the lines without a date come first";
  EXPECT_EQ(Grid().TextMatrix(1, kPreMarked), "");
  EXPECT_EQ(Stored(2), "08-Apr-2024");
  EXPECT_EQ(Stored(2, 7), "01-Apr-2024");
}

TEST_F(Marking, TheLargestOtherLineNamesTheParty) {
  Db().Execute("update FAData set dAmt=-500 where VoucherID=2 and dcd=201");
  for (const char* values : {"2,3,'2024-04-05',202,-1000.5,'BNK',2", "6,1,'2024-04-05',101,30,'BNK',6"}) {
    Db().Execute("insert into FAData (VoucherID,dVchSubNo,dVchDate,dcd,dAmt,dBook,NarrationID) values (" +
                 std::string(values) + ")");
  }
  Db().Execute("insert into FANar values (6,'Alone 470666')");
  Open();
  Match(1, "8/4/2024", "470251");
  EXPECT_EQ(RowText(Grid(), 1, {1, 9}), "202|Bharat Mills");
  Match(2, "8/4/2024", "470666");
  EXPECT_EQ(Row(2), "6||08-Apr-2024|470666|05-Apr-2024|Alone 470666|30.00|||");
}

TEST_F(Marking, RemovedMarksGoFromEveryLineOfTheVoucher) {
  Open();
  EXPECT_TRUE(Date(1, "8/4/2024"));
  Key(*form_, keys::kF3);
  EXPECT_EQ(Events("message").size(), 0U) << "a row without its entry has no mark";
  EXPECT_TRUE(Number(1, "470251"));
  EXPECT_TRUE(Number(2, "470252"));
  Db().Execute("update FAData set dBankDate='2024-04-20' where VoucherID=2 and dcd=201");
  Do([&] { Grid().UserMoveTo(1, kNarration); });
  AnswerMessage(2);
  Key(*form_, keys::kF3);
  EXPECT_EQ(Stored(2), "08-Apr-2024") << "No";
  Events("message");
  Statements();
  AnswerMessage();
  Key(*form_, keys::kF3);
  One("message", {{"text", "Do you want to remove mark date of this entry?"},
                  {"icon", "Q"},
                  {"buttons", {"Yes", "No"}}});
  EXPECT_EQ(Updates(), Texts{"UPDATE FADATA SET DBANKDATE=NULL WHERE VOUCHERID=2"});
  EXPECT_EQ(Stored(2), "");
  EXPECT_EQ(Stored(2, 2), "") << "the other account's line too";
  EXPECT_EQ(Stored(3), "08-Apr-2024");
  EXPECT_EQ(Grid().TextMatrix(1, 0), "3") << "the row is gone from the page";
  EXPECT_EQ(At<CMStrip>(form_, "MStrip1").Code(), 202) << "and the strip tells of the row that came there";

  // Down to the last row there is always one to key in.
  while (Grid().Rows > 2) Do([&] { Grid().RemoveItem(2); });
  AnswerMessage();
  Key(*form_, keys::kF3);
  EXPECT_EQ(Grid().Rows(), 2);
  EXPECT_EQ(Row(1), "|||||||||");
  Match(1, "8/4/2024", "470251");
  EXPECT_EQ(Stored(2), "08-Apr-2024");
}

TEST_F(Marking, ANewPageUndoesNothing) {
  Open();
  Match(1, "8/4/2024", "470251");
  EXPECT_TRUE(Number(2, "470252"));
  Statements();
  Key(*form_, keys::kF6);
  EXPECT_EQ(Updates(), Texts());
  EXPECT_EQ(Stored(2), "08-Apr-2024");
  EXPECT_EQ(Grid().Rows(), 2);
  EXPECT_EQ(Row(1), "|||||||||");
  EXPECT_EQ((std::pair{Grid().Row(), Grid().Col()}), (std::pair{1, kClearDate}));
  EXPECT_EQ(At<CMStrip>(form_, "MStrip1").Code(), 0);
  Do([&] {
    ASSERT_TRUE(Grid().UserEnterCell(1, kClearDate));
    EXPECT_EQ(Grid().EditBox.Text(), "") << "no date is offered on a new page";
    Grid().UserType("31/2");
  });
  AnswerMessage();
  Key(*form_, keys::kF6);
  EXPECT_FALSE(Grid().EditMode());
  EXPECT_EQ(Row(1), "|||||||||");
}

TEST_F(Marking, ThePageIsPreviewedAndPrinted) {
  Open();
  Match(1, "8/4/2024", "470251");
  for (const int key : {keys::kF8, keys::kF9}) {
    Key(*form_, key);
    const Json report = One("report", {{"title", "Period: 01/04/2024 to 30/04/2024"},
                                       {"subtitle", "   Reconciliation Markings"},
                                       {"print", key == keys::kF9}});
    EXPECT_EQ(report["grid"][1][kNarration], "Chq.No. 470251 received");
  }
}

TEST_F(Marking, ANumberThatBreaksTheQueryIsReported) {
  Open();
  EXPECT_TRUE(Date(1, "8/4/2024"));
  EXPECT_FALSE(Number(1, "470'51"));
  One("error", {{"routine", "FindChequeNo"}});
  EXPECT_TRUE(Grid().EditMode());
  EXPECT_TRUE(Number(1, "47_251")) << "the number stands in the pattern as it is";
  EXPECT_EQ(Stored(2), "08-Apr-2024");
}

TEST_F(Marking, AFailedStoreLeavesTheRowUnmatched) {
  Db().Execute(
      "create trigger Keeps for FAData before update as declare x integer; "
      "begin if (old.VoucherID=2) then x=1/0; end");
  Open();
  EXPECT_TRUE(Date(1, "8/4/2024"));
  EXPECT_FALSE(Number(1, "470251"));
  EXPECT_EQ(Events("error").size(), 1U);
  EXPECT_EQ(Row(1), "||08-Apr-2024|||||||");
}

TEST_F(Marking, OtherYearsAreMarkedInTheirOwnBooks) {
  const std::shared_ptr<FinYear> last = gSession->NewYear();
  bool ok = false;
  last->Init(true);
  last->OpenYear(2023, ok);
  ASSERT_TRUE(ok);
  last->Db().Execute("insert into FANar values (2,'Chq.No. 470251')");
  last->Db().Execute(
      "insert into FAData (VoucherID,dVchSubNo,dVchDate,dcd,dAmt,dBook,NarrationID) "
      "values (2,1,'2024-03-30',101,9,'BNK',2)");
  form_ = desk_.Module().GetForm("acreconciliationmark");
  form_->Set("FYear", std::static_pointer_cast<Object>(last));
  form_->Set("AccountCode", 101);
  Do([&] { gApp->ShowForm(form_); });
  Match(1, "30/3/2024", "470251");
  EXPECT_EQ(last->Db().Lookup("FAData", "dBankDate", "VoucherID=2").ToDate().Text(), "30-Mar-2024");
  EXPECT_EQ(Stored(2), "");
  AnswerMessage();
  Do([&] { Grid().UserMoveTo(1, kNarration); });
  Key(*form_, keys::kF3);
  EXPECT_TRUE(last->Db().Lookup("FAData", "dBankDate", "VoucherID=2").ToDate().IsEmpty());
}

TEST_F(Marking, FromTheStatementAndBackTheDatesAreThere) {
  const FormPtr statement = ShowStatement();
  Key(*statement, keys::kF4);
  form_ = runtime_.ActiveForm();
  ASSERT_EQ(form_->Name(), "frmAcReconciliationMark");
  EXPECT_EQ(At<Label>(form_, "lblTitle").Caption(), "   Statement of Account -> Reconciliation Markings");
  EXPECT_EQ(Grid().Title(), "Period: 01/04/2024 to 31/03/2025");
  Match(1, "8/4/2024", "470251");
  CGridPlus& rows = At<CGridPlus>(statement, "Grid");
  EXPECT_EQ(rows.TextMatrix(1, 4), "");
  Key(*form_, keys::kEscape);
  EXPECT_EQ(runtime_.ActiveForm(), form_) << "the next number was being asked for";
  Key(*form_, keys::kEscape);
  EXPECT_EQ(runtime_.ActiveForm(), statement);
  EXPECT_EQ(rows.TextMatrix(1, 4), "08-Apr-2024");
  const FormPtr bench = ShowWorkbench(statement);
  EXPECT_EQ(At<CGridPlus>(bench, "Grid").TextMatrix(1, 27), "08-Apr-2024");
}

}  // namespace
}  // namespace quillon
