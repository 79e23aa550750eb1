#include "host/values/Text.h"
#include "tests/support/DeskFixture.h"
#include "tests/support/PdfReader.h"
#include "tests/support/PrintServer.h"

namespace quillon {
namespace {

/// A bank with five payments, two of which share a narration, and the leaves 123 to 130, of which 126 is
/// cancelled and 127 used.
class ChequeRun : public DeskTest {
 protected:
  void SetUp() override {
    OpenNewFirm();
    AddAccount(101, "Sahyadri Bank", 47, "Pune");
    AddAccount(201, "Asha Traders", 140, "Surat");
    AddAccount(202, "Bharat Mills");
    AddVoucher({.id = 5, .date = "2024-04-18", .amount = "-100", .narration = "Bill 12"});
    AddVoucher(
        {.id = 6, .date = "2024-04-19", .amount = "-250.50", .narration = "Freight::Ram", .other = 202});
    AddVoucher({.id = 7, .date = "2024-04-20", .amount = "-40", .narration = "By Chq.No. 000999"});
    AddVoucher({.id = 8, .date = "2024-04-21", .amount = "-70", .other = 202});
    AddVoucher({.id = 9, .date = "2024-04-22", .amount = "-80"});
    AddVoucher({.id = 10, .date = "2024-04-22", .amount = "90"});
    AddVoucher({.id = 11, .date = "2024-04-23", .amount = "-11"});
    AddVoucher({.id = 12, .date = "2024-04-23", .amount = "-12", .book = "MEM"});
    Db().Execute("update FAData set NarrationID=5 where VoucherID=9");
    Db().Execute("update FAData set NarrationID=null where VoucherID=8");
    for (int number = 123; number <= 130; ++number) {
      Db().Execute("insert into ChqLeaves (ID,BankCode,ChqNo,Cancelled,VoucherID) values (" +
                   std::to_string(number) + ",101," + std::to_string(number) + "," +
                   (number == 126   ? "'Y',null)"
                    : number == 127 ? "null,11)"
                                    : "null,null)"));
    }
  }

  void Open() {
    const FormPtr statement = ShowStatement(101);
    runtime_.NextCommand = [&] {
      runtime_.PickFromMenu("ChequeRun");
      return true;
    };
    Key(*statement, keys::kF7);
    run_ = runtime_.ActiveForm();
  }
  CGridPlus& Grid() const { return At<CGridPlus>(run_, "Grid"); }
  Texts Rows() const { return RowTexts(Grid(), {1, 2, 3, 6}); }
  bool Waits() const { return At<PictureBox>(run_, "picRun").Visible; }
  std::string State() const { return At<Label>(run_, "lblRun").Caption; }

  /// Marks all payments, and prints from that leaf on.
  void Start(const std::string& leaf, const std::string& every = "",
             const std::string& printer = "PDF file") {
    Key(*run_, keys::kF3);
    Do([&] { At<CTextPlus>(run_, "txpFirst").UserType(leaf); });
    if (!every.empty()) Do([&] { At<CTextPlus>(run_, "txpEvery").UserType(every); });
    runtime_.Laid.Add({{"to", "printdialog"}, {"printer", printer}});
    Key(*run_, keys::kF9);
  }

  /// The leaf as the books have it.
  std::string Leaf(int number) const {
    CDataSet leaf;
    leaf.Open(
        "select l.*,n.Narration from ChqLeaves l left join FANar n on n.NarrationID=l.NarrationID where ChqNo=" +
            std::to_string(number),
        Db());
    Texts fields;
    for (const char* field : {"VoucherID", "Cancelled", "IsuDate", "PartyCode", "Amount", "Narration"})
      fields.push_back(leaf.Field(field).ToText());
    return text::Join(fields, "|");
  }
  std::string Narration(int voucher) const {
    return Db()
        .Lookup("FAData a left join FANar n on n.NarrationID=a.NarrationID", "list(distinct n.Narration,'/')",
                "a.VoucherID=" + std::to_string(voucher))
        .ToText();
  }
  std::int64_t Outgoing() const { return Db().Lookup("ChqGoingOut", "count(*)", "").ToInteger(); }

  FormPtr run_;
};

TEST_F(ChequeRun, ALeafOnItsWayIsNeitherDeletedNorCancelled) {
  Db().Execute(
      "insert into ChqGoingOut (LeafID,VoucherID,Program) select ID,5,'gone' from ChqLeaves where ChqNo=124");
  const FormPtr leaves = desk_.Module().GetForm("chqleaves");
  leaves->Set("BankCode", 101);
  Do([&] { gApp->ShowForm(leaves); });
  auto& grid = At<CGridPlus>(leaves, "Grid");
  for (int row = 1; row < grid.Rows; ++row) {
    if (grid.TextMatrix(row, 4) == "124") grid.Row = row;
  }
  AnswerMessage();
  Key(*leaves, keys::kF3);
  During([&] { Key(*leaves, keys::kF7); }, {[this] { runtime_.PickFromMenu("Delete"); }});
  AnswerMessage();
  Key(*leaves, keys::kF7);
  EXPECT_EQ(
      Errors(),
      Texts(2, "Cheque No. 124 was sent to a printer. Open the firm anew and say whether it was printed."));
  Key(*leaves, keys::kEscape);
  EXPECT_EQ(Leaf(124), "|||||");
  EXPECT_EQ(Outgoing(), 1);
}

TEST_F(ChequeRun, ChosenPaymentsArePrintedOneAfterTheOtherAndTakeTheirLeaves) {
  Open();
  EXPECT_EQ(Rows(), (Texts{"|18/04/2024|Asha Traders|100.00", "|19/04/2024|Bharat Mills|250.50",
                           "|20/04/2024|Asha Traders|40.00", "|21/04/2024|Bharat Mills|70.00",
                           "|22/04/2024|Asha Traders|80.00"}));
  Key(*run_, keys::kEnter);
  EXPECT_EQ(Rows()[0].substr(0, 1), "Y");
  EXPECT_EQ(Grid().Footer.TextMatrix(0, 3) + " " + Grid().Footer.TextMatrix(0, 6), "Chosen: 1 100.00");
  Start("123", "2");
  ASSERT_TRUE(Waits());
  EXPECT_EQ(State(), "Printed 2 of 5. The next leaf is 000125.");
  EXPECT_EQ(Leaf(123), "5||18-Apr-2024|201|100|Bill 12 Chq.No. 000123");
  EXPECT_EQ(Leaf(124), "6||19-Apr-2024|202|250.5|Freight Chq.No. 000124::Ram");
  EXPECT_EQ(Narration(5), "Bill 12 Chq.No. 000123") << "on both lines of the voucher";
  EXPECT_EQ(Narration(9), "Bill 12") << "another voucher keeps the narration that it shared";
  EXPECT_EQ(PdfReader(folder_.File("print-2.pdf")).Find("**250.50").page, 1);
  EXPECT_EQ(PdfReader(folder_.File("print-2.pdf")).Find("Ram").page, 1);
  EXPECT_EQ(Leaf(125), "|||||") << "the run waits";

  // The first of the two came out badly.
  Do([&] { At<ListBox>(run_, "lstPrinted").UserChoose(0); });
  AnswerMessage(1);
  Key(*run_, keys::kF6);
  ASSERT_TRUE(Waits());
  EXPECT_EQ(Leaf(123), "|Y||||");
  EXPECT_EQ(Leaf(125), "5||18-Apr-2024|201|100|Bill 12 Chq.No. 000125");
  EXPECT_EQ(Narration(5), "Bill 12 Chq.No. 000125");
  EXPECT_EQ(Db().Lookup("FANar", "count(*)", "Narration like '%000123%'").ToInteger(), 0);
  EXPECT_EQ(State(), "Printed 2 of 5. The next leaf is 000126.");

  // The next leaf in the tray is one that was cancelled: what is left stays marked.
  AnswerMessage();
  Key(*run_, keys::kF7);
  EXPECT_EQ(Messages().back(), "Cheque leaf 000126 is cancelled.");
  EXPECT_FALSE(Waits());
  EXPECT_EQ(Rows(), (Texts{"Y|20/04/2024|Asha Traders|40.00", "Y|21/04/2024|Bharat Mills|70.00",
                           "Y|22/04/2024|Asha Traders|80.00"}));
  EXPECT_TRUE(At<CTextPlus>(run_, "txpFirst").HasFocus());
  EXPECT_EQ(Events("printdialog").size(), 1U) << "the printer is asked for once";

  Do([&] { At<CTextPlus>(run_, "txpFirst").UserType("128"); });
  Do([&] { At<CTextPlus>(run_, "txpEvery").UserType(""); });
  runtime_.Laid.Add({{"to", "printdialog"}});
  Key(*run_, keys::kF9);
  EXPECT_EQ(Narration(7), "By Chq.No. 000999") << "it has a number";
  EXPECT_EQ(Leaf(128), "7||20-Apr-2024|201|40|By Chq.No. 000999");
  Key(*run_, keys::kF7);
  EXPECT_EQ(Leaf(129), "8||21-Apr-2024|202|70|Chq.No. 000129");
  Key(*run_, keys::kEscape);
  EXPECT_EQ(Rows(), Texts{"Y|22/04/2024|Asha Traders|80.00"});
  EXPECT_EQ(At<CTextPlus>(run_, "txpFirst").Text(), "130");
  EXPECT_TRUE(run_->IsLoaded()) << "Esc leaves the run first";
  EXPECT_EQ(Outgoing(), 0);
}

TEST_F(ChequeRun, ALeafThatCannotBeUsedIsRefusedInTheField) {
  Open();
  auto& field = At<CTextPlus>(run_, "txpFirst");
  Key(*run_, keys::kF5);
  for (const char* number : {"126", "127", "131"}) {
    AnswerMessage();
    Do([&] { field.UserType(number); });
    Do([&] { run_->UserFocus(At<CTextPlus>(run_, "txpEvery")); });
    EXPECT_TRUE(field.HasFocus()) << number;
  }
  EXPECT_EQ(Messages(), (Texts{"Cheque leaf 000126 is cancelled.", "Cheque leaf 000127 is used by a voucher.",
                               "Cheque leaf 000131 is not among the leaves of this bank."}));
  Do([&] { field.UserType(""); });
  AnswerMessage();
  AnswerMessage();
  Key(*run_, keys::kF9);
  Key(*run_, keys::kF3);
  Key(*run_, keys::kF9);
  EXPECT_EQ(Messages(), (Texts{"Mark the payments whose cheques shall be printed.",
                               "Enter the number of the first leaf in the tray."}));

  // The printer is not chosen, or the first page discarded: nothing was sent and nobody is asked.
  Do([&] { field.UserType("123"); });
  runtime_.Laid.Add({{"to", "printdialog"}, {"cancel", true}});
  Key(*run_, keys::kF9);
  runtime_.Laid.Add({{"to", "printdialog"}, {"seefirst", true}});
  runtime_.Laid.Add({{"to", "sight"}, {"print", false}});
  Key(*run_, keys::kF9);
  EXPECT_EQ(Outgoing(), 0);
  EXPECT_EQ(Leaf(123), "|||||");
  EXPECT_EQ(Rows().size(), 5U);
}

TEST_F(ChequeRun, WhatAQueueDoesNotDoIsAskedAbout) {
  if (!PrintServer::IsInstalled()) GTEST_SKIP() << "cups-daemon and cups-client are not installed";
  const PrintServer server;
  Open();
  run_->Set("Patience", 1);
  Start("123", "", "Laser");
  EXPECT_EQ(State(), "Printed 1 of 5. The next leaf is 000124.");
  EXPECT_EQ(PdfReader(server.Await(1).at(0).File).Find("**100.00").page, 1);
  EXPECT_EQ(Messages(), Texts{});

  // Put off, it is asked again when the screen is opened, and then it must not come out after all.
  server.StopQueue("Laser");
  AnswerMessage();
  AnswerMessage(3);
  Key(*run_, keys::kF7);
  EXPECT_EQ(Messages(), (Texts{"The printer Laser is stopped. What was sent waits in its queue.",
                               "Was cheque 000124 printed?"}));
  EXPECT_EQ(Rows().size(), 3U) << "it is neither printed nor to be printed";
  Key(*run_, keys::kEscape);
  AnswerMessage(2);
  Open();
  EXPECT_EQ(Messages(), Texts{"Was cheque 000124 printed?"});
  EXPECT_EQ(Rows().size(), 4U);
  server.RestartQueue("Laser");
  run_->Set("Patience", 1);
  server.Jam();
  AnswerMessage();
  AnswerMessage(1);
  Start("124", "", "Laser");
  EXPECT_EQ(Messages(), (Texts{"The printer Laser has not done the cheque within 1 seconds.",
                               "Was cheque 000124 printed?"}));
  EXPECT_EQ(Leaf(124), "6||19-Apr-2024|202|250.5|Freight Chq.No. 000124::Ram");
  server.GoOn();
  EXPECT_EQ(server.Await(2).size(), 2U);

  // The queue vanishes between the dialog and the next cheque; the voucher is gone when it is asked about.
  server.RemoveQueue("Laser");
  AnswerMessage(3);
  Key(*run_, keys::kF7);
  EXPECT_EQ(Errors().size(), 1U);
  EXPECT_EQ(Messages(), Texts{"Was cheque 000125 printed?"});
  Db().Execute("delete from FAData where VoucherID=7");
  run_.reset();
  desk_.CloseFirm();
  AnswerMessage(1);
  AnswerMessage();
  desk_.OpenFirm(folder_.File("firm"));
  EXPECT_EQ(Messages(), (Texts{"Was cheque 000125 printed?",
                               "The voucher of cheque 000125 is gone. Its leaf is cancelled."}));
  EXPECT_EQ(Outgoing(), 0);
  EXPECT_EQ(Leaf(125), "|Y||||");
}

}  // namespace
}  // namespace quillon
