#include "tests/maintenance/BulkTest.h"

namespace quillon {
namespace {

class MassDeletion : public BulkTest {};

TEST_F(MassDeletion, CashEntriesGoOnTheChosenSideAndThoseWithDocumentsStay) {
  Enter(1, "2024-04-10", "C", "RC1", {{201, "500", 1}, {1, "-500", 201}});
  Enter(2, "2024-04-11", "C", "RC1", {{201, "-300", 1, true}, {1, "300", 201, true}});
  Enter(3, "2024-04-12", "C", "RC1", {{201, "70", 1}, {1, "-70", 201}});
  AddDocument(3, 201, "INV");
  Enter(4, "2024-04-12", "BNK", "BR1", {{201, "100", 101}, {101, "-100", 201}});
  Enter(5, "2024-04-15", "C", "PC1", {{201, "40", 1}, {201, "60", 1}, {1, "-90", 201}, {202, "-10", 1}});
  Enter(6, "2024-04-16", "C", "PC1", {{201, "9", 1}, {1, "-9", 201}});
  for (const int button : {1, 2, 1, 1, 1}) AnswerMessage(button);
  Open("MassDeletion", 201,
       {[this] {
          EXPECT_EQ(At<TextBox>(dialog_, "Text1").Text(), "Asha Traders");
          EXPECT_EQ(At<Label>(dialog_, "Label1").Caption(), "Only Cash Entries will be deleted.");
          PressOk();
        },
        [this] {
          Type("txpDate1", "10/4");
          At<CTextPlus>(dialog_, "txpDate2").SetFocus();
          EXPECT_EQ(At<CTextPlus>(dialog_, "txpDate2").Text(), "10/4");
          Type("txpDate2", "15/4");
          PressOk();
        },
        [this] { PressOk(); }});
  EXPECT_EQ(Told(), (Texts{": Specify From Date", "Q: Are you sure to delete entries",
                           "Q: Are you sure to delete entries",
                           "W: 1 entries could not be deleted. Ref. found in Inventory / Document file.",
                           ": 4 Entries deleted.\n\nRefreshing Statement of Account"}));
  const Texts sent = Statements();
  const auto of = [](const std::string& voucher) {
    return "Delete from FAData where VoucherID=" + voucher + " and dBook='C' and (dcd=201 or dcd2=201)";
  };
  const auto document = [](const std::string& voucher) {
    return "select first 1 DOCUMENTID from DOCMAIN where DocVoucherID=" + voucher;
  };
  const Texts wanted = {
      "select first 1 mhd from FAMASTER where mcd=201",
      "Select * from FAData where dcd=201 and dvchdate between '2024-04-10' and '2024-04-15' and dbook='C' ",
      document("1"),
      of("1"),
      document("2"),
      of("2"),
      document("3"),
      document("5"),
      of("5"),
      document("5"),
      of("5")};
  ASSERT_GE(sent.size(), wanted.size());
  EXPECT_EQ(Texts(sent.begin(), sent.begin() + static_cast<long>(wanted.size())), wanted);
  EXPECT_EQ(Balances(), (Texts{"1|-79", "101|-100", "201|179", "202|-10"}));
  EXPECT_FALSE(dialog_->Get("Cancelled").ToFlag());
  EXPECT_EQ(RowTexts(At<CGridPlus>(statement_, "Grid"), {0}), (Texts{"3", "4", "6"}))
      << "the statement reads anew";
}

TEST_F(MassDeletion, NothingFoundOnASideLeavesItOpenAndOnlyHeldEntriesCloseIt) {
  Enter(1, "2024-04-10", "C", "RC1", {{201, "500", 1}, {1, "-500", 201}});
  AddDocument(1, 201, "FAS");
  for (int message = 0; message < 8; ++message) AnswerMessage();
  Open("MassDeletion", 201,
       {[this] {
          Type("txpDate1", "10/4");
          PressOk();
        },
        [this] {
          Type("txpDate2", "9/4");
          PressOk();
        },
        [this] {
          At<CTextPlus>(dialog_, "txpDate2").SetFocus();
          At<CTextPlus>(dialog_, "txpDate2").UserType("31/2");
          PressOk();
        },
        [this] {
          Type("txpDate2", "10/4");
          At<OptionButton>(dialog_, "Option1", 1).UserClick();
          PressOk();
          EXPECT_EQ(gRuntime->MousePointer(), kPointerDefault);
        },
        [this] {
          At<OptionButton>(dialog_, "Option1", 0).UserClick();
          PressOk();
        }});
  const std::string asked = "Q: Are you sure to delete entries";
  EXPECT_EQ(Told(), (Texts{": Specify To Date", ": To Date can't be less than From Date", "E: Invalid Date",
                           asked, ": No entries found", asked,
                           "W: 1 entries could not be deleted. Ref. found in Inventory / Document file.",
                           ": No Entries deleted."}));
  EXPECT_FALSE(dialog_->Get("Cancelled").ToFlag());
  EXPECT_EQ(Changes(), Texts());

  Open("MassDeletion", 201, {[this] { Key(*dialog_, keys::kEscape); }});
  EXPECT_TRUE(dialog_->Get("Cancelled").ToFlag());
}

TEST_F(MassDeletion, WhatWentBeforeAFailureIsGoneAndTheDialogCloses) {
  for (const int id : {1, 2, 3}) Enter(id, "2024-04-10", "C", "RC1", {{201, "5", 1}, {1, "-5", 201}});
  Refuse("before delete", "old.VoucherID=2");
  AnswerMessage();
  Open("MassDeletion", 201, {[this] {
         Type("txpDate1", "1/4");
         Type("txpDate2", "30/4");
         PressOk();
       }});
  const std::vector<Json> errors = Events("error");
  ASSERT_EQ(errors.size(), 1U);
  EXPECT_EQ(errors[0]["routine"], "Command2_Click");
  EXPECT_TRUE(dialog_->Get("Cancelled").ToFlag());
  EXPECT_EQ(gRuntime->MousePointer(), kPointerDefault);
  EXPECT_EQ(Balances(), (Texts{"1|-10", "201|10"}));
  EXPECT_EQ(RowTexts(At<CGridPlus>(statement_, "Grid"), {0}), (Texts{"2", "3"})) << "read anew all the same";
}

TEST_F(MassDeletion, CashItselfAndThoseWithoutTheRightAreRefused) {
  Enter(1, "2024-04-10", "C", "RC1", {{201, "5", 1}, {1, "-5", 201}});
  for (const char* tool : {"MassDeletion", "Purge"}) {
    AnswerMessage();
    Open(tool, 1, {});
    EXPECT_EQ(Told(), Texts{"W: Mass Deletion of Cash Account not allowed."});
  }
  gSession->CommonDb().Execute("insert into Users (UserName,UserLevel) values ('Clerk',8)");
  const std::string folder = desk_.Session().Books().Folder().string();
  desk_.OpenFirm(folder, "Clerk");
  runtime_.Ignore(desk_.App().MainWindow().MainForm().get());
  statement_.reset();
  for (const char* tool : {"MassDeletion", "Purge", "MassTransfer"}) {
    AnswerMessage();
    Open(tool, 201, {});
    EXPECT_EQ(Told(), Texts{"W: You have no right to open this screen."});
  }
  gSession->CommonDb().Execute("insert into UserRights values ('Clerk','bulk.purge','N')");
  Open("Purge", 201, {[this] { Key(*dialog_, keys::kEscape); }});
  EXPECT_EQ(dialog_->Name(), "frmAcMassDelete2");
}

class Purge : public BulkTest {};

TEST_F(Purge, WholeVouchersGoWithTheirDocumentsAndTheBalanceIsPostedBack) {
  Enter(1, "2024-04-01", "0B", "0B", {{201, "-1000"}});
  Enter(2, "2024-04-20", "JS", "SL1", {{201, "250.5", 202}, {202, "-250.5", 201}});
  AddDocument(2, 201, "INV", true);
  Enter(3, "2024-04-30", "BNK", "BR1", {{201, "30", 101, true}, {201, "20", 101}, {101, "-50", 201}});
  Enter(4, "2024-05-01", "J", "J", {{201, "7", 202}, {202, "-7", 201}});
  Enter(5, "2024-04-30", "J", "J", {{202, "3", 101}, {101, "-3", 202}});
  AddDocument(5, 202, "FAS");
  for (int message = 0; message < 5; ++message) AnswerMessage();
  Open("Purge", 201,
       {[this] {
          EXPECT_EQ(At<Label>(dialog_, "Label2").Caption(),
                    " Balance, if any, shall be kept as pervious balance.");
          PressOk();
        },
        [this] {
          Type("txpDate1", "31/3/2024");
          PressOk();
        },
        [this] {
          Type("txpDate1", "30/4");
          Statements();
          PressOk();
        }});
  EXPECT_EQ(
      Told(),
      (Texts{
          ": Specify Date", "Q: Are you sure to delete entries", ": No entries found",
          "Q: Are you sure to delete entries",
          ": 4 Voucher entries deleted.\n1 Document entries deleted.\n\nRefreshing Statement of Account"}));
  Texts sent = Changes();
  ASSERT_GE(sent.size(), 10U);
  sent.resize(10);
  EXPECT_EQ(sent, (Texts{"Delete from FADocs where VoucherID=1", "Delete from FAData where VoucherID=1",
                         "Delete from DocData where DocumentID=92", "Delete from DocMain where DocumentID=92",
                         "Delete from FADocs where VoucherID=2", "Delete from FAData where VoucherID=2",
                         "Delete from FADocs where VoucherID=3", "Delete from FAData where VoucherID=3",
                         "Delete from FADocs where VoucherID=3", "Delete from FAData where VoucherID=3"}));
  EXPECT_EQ(Balances(), (Texts{"19|699.5", "101|-3", "201|-692.5", "202|-4"}))
      << "202 has lost its side of the sale";
  const std::string lines =
      "select a.VoucherID,a.dVchSubNo,a.dVchNo,a.dVchDate,a.dcd,a.dcd2,a.dAmt,a.dBook,n.Narration from FAData a "
      "join FANar n on a.NarrationID=n.NarrationID where a.dTrnType='J' and a.VoucherID>5 order by 2";
  EXPECT_EQ(Rows(lines), (Texts{"6|1|6|30-Apr-2024|201|19|-699.5|J|Last Balance",
                                "6|2|6|30-Apr-2024|19|201|699.5|J|Last Balance"}));
  EXPECT_EQ(Rows("select DocumentID from DocData"), Texts{"95"});
  EXPECT_EQ(Rows("select VoucherID from FADocs"), Texts{"5"});

  // The voucher lies in what a second run takes.
  for (int message = 0; message < 2; ++message) AnswerMessage();
  Open("Purge", 201, {[this] {
         Type("txpDate1", "30/4");
         PressOk();
       }});
  EXPECT_EQ(Told().back().substr(0, 27), ": 1 Voucher entries deleted");
  EXPECT_EQ(Balances(), (Texts{"19|699.5", "101|-3", "201|-692.5", "202|-4"}));
  EXPECT_EQ(Rows(lines).size(), 2U);
}

TEST_F(Purge, EntriesThatComeToZeroLeaveNoVoucherAndAFailureLeavesTheBalanceLost) {
  Enter(1, "2024-04-10", "J", "J", {{201, "5", 202}, {202, "-5", 201}});
  Enter(2, "2024-04-11", "J", "J", {{201, "-5", 202}, {202, "5", 201}});
  Enter(3, "2024-04-20", "J", "J", {{201, "8", 202}, {202, "-8", 201}});
  Enter(4, "2024-04-21", "J", "J", {{201, "9", 202}, {202, "-9", 201}});
  for (int message = 0; message < 3; ++message) AnswerMessage();
  const auto purge = [this](const std::string& day) {
    Open("Purge", 201, {[this, day] {
           Type("txpDate1", day);
           PressOk();
         }});
  };
  purge("11/4");
  EXPECT_EQ(Told().size(), 2U);
  EXPECT_EQ(Rows("select distinct VoucherID from FAData order by 1"), (Texts{"3", "4"}));
  Refuse("before delete", "old.VoucherID=4");
  purge("30/4");
  EXPECT_EQ(Errors().size(), 1U);
  EXPECT_TRUE(dialog_->Get("Cancelled").ToFlag());
  EXPECT_EQ(gRuntime->MousePointer(), kPointerDefault);
  EXPECT_EQ(Balances(), (Texts{"201|9", "202|-9"}));
}

}  // namespace
}  // namespace quillon
