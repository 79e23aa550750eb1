#include "host/data/CDataSet.h"
#include "tests/support/DeskFixture.h"

namespace quillon {
namespace {

/// The statement of account and the picker that it asks for an account.
class Account : public DeskTest {
 protected:
  void SetUp() override {
    OpenNewFirm();
    Db().BeginTrans();
    AddAccount(101, "Sahyadri Bank", 47, "Pune");
    AddAccount(201, "Asha Traders");
    AddVoucher({.id = 1, .date = "2024-04-01", .amount = "-1000", .book = "0B"});
    AddVoucher(
        {.id = 2, .date = "2024-04-20", .amount = "1500.25", .cleared = "2024-04-25", .narration = "In"});
    AddVoucher({.id = 3, .date = "2024-05-03", .amount = "-200", .narration = "Out"});
    AddVoucher({.id = 4, .date = "2024-05-03", .amount = "9", .book = "MEM"});
    AddVoucher({.id = 5, .date = "2024-06-01", .amount = "40"});
    Db().Execute("update FADocs set ChqReturn='Y' where VoucherID=3");
    Db().CommitTrans();
  }

  static Texts Rows(const FormPtr& form) {
    return RowTexts(At<CGridPlus>(form, "Grid"), {0, 1, 4, 5, 6, 8, 9, 11, 24, 25, 26, 28});
  }
};

TEST_F(Account, RowsBalanceAndFooter) {
  const FormPtr form = ShowStatement();
  EXPECT_EQ(Rows(form), (Texts{"|0B|||1|01-Apr-2024|0B|Opening Balance||1,000.00|1,000.00 Cr.|",
                               "2|BNK|25-Apr-2024|1|2|20-Apr-2024|BNK|In|1,500.25||500.25 Dr.|",
                               "3|BNK||1|3|03-May-2024|BNK|Out||200.00|300.25 Dr.|Y",
                               "5|BNK||1|4|01-Jun-2024|BNK||40.00||340.25 Dr.|"}));
  const auto& grid = At<CGridPlus>(form, "Grid");
  EXPECT_EQ(grid.Cols(), 29);
  EXPECT_EQ(grid.Footer.TextMatrix(0, 24), "1,540.25");
  EXPECT_EQ(grid.Footer.TextMatrix(0, 25), "1,200.00");
  EXPECT_EQ(grid.Footer.TextMatrix(0, 26), "340.25 Dr.");
  EXPECT_EQ(At<Label>(form, "lblTitle1", 2).Caption(), "Period: 01/04/2024 to 31/03/2025");
  EXPECT_EQ(form->Get("FAMaster").ToObject()->Get("AcHead").ToText(), "Sahyadri Bank");
}

TEST_F(Account, APeriodBeginsWithAllThatLiesBeforeIt) {
  const FormPtr form = ShowStatement();
  for (const auto& [from, to] : {std::pair{"31/3/2024", "31/5/2024"}, {"1/5/2024", "1/4/2025"}}) {
    AnswerPeriod(from, to);
    AnswerMessage();
  }
  AnswerPeriod("1/5/2024", "31/5/2024");
  Key(*form, keys::kF3);
  EXPECT_EQ(Told(), Texts(2, "W: The year runs from 01-Apr-2024 to 31-Mar-2025."));
  EXPECT_EQ(Rows(form), (Texts{"|0B|||1|01-May-2024|0B|Opening Balance|500.25||500.25 Dr.|",
                               "3|BNK||1|2|03-May-2024|BNK|Out||200.00|300.25 Dr.|Y"}));
  const FormPtr bare = gApp->GetForm("account");
  bare->Set("AccountCode", 101);
  bare->Set("Date1", "01-May-2024");
  bare->Set("WithOpening", false);
  Do([&] { gApp->ShowForm(bare); });
  EXPECT_EQ(Rows(bare).front(), "3|BNK||1|1|03-May-2024|BNK|Out||200.00|200.00 Cr.|Y");
}

TEST_F(Account, NarrationsAreReadWhenSomebodyLooksAtThem) {
  const FormPtr form = ShowStatement();
  const FormPtr workbench = ShowWorkbench(form);
  Statements();
  EXPECT_EQ(At<CGridPlus>(workbench, "Grid").TextMatrix(3, 11), "Out");
  EXPECT_EQ(Statements(), Texts{"Select NarrationID,Narration from FANar where NarrationID between 2 and 5"});
  EXPECT_EQ(At<CGridPlus>(form, "Grid").TextMatrix(2, 11), "In");
  EXPECT_TRUE(Statements().empty()) << "the copies share what was read";
}

TEST_F(Account, ANarrationThatCannotBeReadIsNoEmptyOne) {
  const FormPtr form = ShowStatement();
  Db().Execute("drop table FANar");
  const auto& grid = At<CGridPlus>(form, "Grid");
  EXPECT_THROW(grid.TextMatrix(2, 11), DbError);
  Key(*form, keys::kF8);
  EXPECT_EQ(Errors().size(), 1U) << "a page without its narrations is not printed";
  EXPECT_TRUE(Events("report").empty());
  EXPECT_EQ(grid.TextMatrix(2, 24), "1,500.25");
}

TEST_F(Account, EntriesOfADayStandByTheirNumbers) {
  Db().BeginTrans();
  for (const int id : {20, 18, 19}) AddVoucher({.id = id, .date = "2024-05-03", .amount = "1"});
  Db().Execute("update FAData set dSrNo=null where VoucherID=20");
  Db().Execute("update FAData set dSrNo=1 where VoucherID=19");
  Db().CommitTrans();
  const FormPtr form = ShowStatement();
  EXPECT_EQ(RowTexts(At<CGridPlus>(form, "Grid"), {0}), (Texts{"", "2", "20", "19", "3", "18", "5"}));
}

TEST_F(Account, TheOtherSidesOfManyAreThoseOfEach) {
  Db().BeginTrans();
  AddAccount(202, "Bansal");
  for (int id = 30; id < 60; ++id) {
    // Lines of several parties and of the bank itself, equal ones, none, and one that no master names.
    for (int line = 1; line <= 2 + id % 4; ++line) {
      const int account = line == 1 ? 101 : 199 + (id + line) % 4;
      const int amount = (id * 7 + line * 13) % 5 - 2;
      Db().Execute("insert into FAData (VoucherID,dVchSubNo,dVchDate,dcd,dAmt,dBook) values (" +
                   std::to_string(id) + "," + std::to_string(9 - line) + ",'2024-07-01'," +
                   std::to_string(account == 199 ? 101 : account) + "," + std::to_string(amount) + ",'BNK')");
    }
  }
  Db().CommitTrans();
  const auto all = [&] {
    Texts sides;
    CDataSet lines;
    for (lines.Open("select VoucherID,dAmt from FAData where dcd=101 order by VoucherID,dVchSubNo", Db());
         !lines.Eof(); lines.MoveNext()) {
      std::int64_t code = 0;
      std::string text;
      gApp->VoucherCrossRef(Db(), lines.Field("VoucherID").ToInteger(), lines.Field("dAmt").ToAmount(), code,
                            text);
      sides.push_back(std::to_string(code) + " " + text);
    }
    return sides;
  };
  const Texts each = all();
  const auto expected = gApp->ExpectCrossRefs(Db(), "a.dcd=101");
  Statements();
  EXPECT_EQ(all(), each);
  EXPECT_LT(Statements().size(), each.size() / 2);
}

TEST_F(Account, WithoutAnAccountItAsksForOne) {
  std::function<void()> act = [&] { Key(*runtime_.ActiveForm(), keys::kEscape); };
  runtime_.NextCommand = [&] {
    EXPECT_EQ(runtime_.ActiveForm()->Name(), "frmSelectAc");
    Do(act);
    return true;
  };
  const FormPtr left = ShowStatement(0);
  EXPECT_FALSE(left->IsLoaded()) << "a person who picks none closes the screen";
  act = [&] {
    TypeKeys(*runtime_.ActiveForm(), "sah");
    Key(*runtime_.ActiveForm(), keys::kEnter);
  };
  const FormPtr form = ShowStatement(0);
  EXPECT_EQ(form->Get("AccountCode").ToInteger(), 101);
  EXPECT_EQ(Rows(form).size(), 4U);
}

TEST_F(Account, EnterInThePickerTakesOnlyWhatWasTypedOrMovedTo) {
  const auto picker = [&] { return runtime_.ActiveForm(); };
  const auto type = [&](const std::string& text) {
    At<CTextPlus>(picker(), "txpAccount").UserType("");
    TypeKeys(*picker(), text);
  };
  const auto enter = [&](int key, const std::string& told) {
    AnswerMessage();
    Key(*picker(), key);
    EXPECT_EQ(Messages(), Texts{told});
    EXPECT_EQ(picker()->Name(), "frmSelectAc");
  };
  const Acts acts = {[&] {
                       enter(keys::kEnter,
                             "Type the beginning of a word of the account's head, or move to its line.");
                     },
                     [&] {
                       type("asha");
                       type("zzz");
                       enter(keys::kEnter, "No account is found by \"zzz\".");
                       enter(keys::kF7, "No account is found by \"zzz\".");
                     },
                     [&] {
                       Key(*picker(), keys::kDown);
                       enter(keys::kEnter, "No account is found by \"zzz\".");
                       type("");
                       Key(*picker(), keys::kDown);
                       Key(*picker(), keys::kEnter);
                     }};
  During([&] { ShowStatement(0); }, acts);
  EXPECT_EQ(runtime_.ActiveForm()->Get("AccountCode").ToInteger(), 101)
      << "the line below the one that was found last";
}

TEST_F(Account, AnAccountThatThereIsNotIsToldInPlainWords) {
  const FormPtr form = ShowStatement(999);
  EXPECT_EQ(Errors(), Texts{"There is no account with the code 999"});
  EXPECT_FALSE(form->IsLoaded());
}

}  // namespace
}  // namespace quillon
