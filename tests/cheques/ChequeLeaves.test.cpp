#include "tests/support/DeskFixture.h"

namespace quillon {
namespace {

using Texts = std::vector<std::string>;

/// The register of a bank that has one leaf in each state.
class ChequeLeaves : public DeskTest {
 protected:
  void SetUp() override {
    OpenNewFirm();
    AddAccount(101, "Sahyadri Bank", 47);
    AddAccount(102, "Deccan Bank", 47);
    AddAccount(201, "Asha Traders", 140, "Surat");
    AddVoucher({.id = 7, .date = "2024-05-02", .amount = "-1500.25", .narration = "Bill 12"});
    Leaf("1,101,8,'2024-04-05','2024-05-02',7,null,201,7,1500.25");
    Leaf("2,101,9,'2024-04-05',null,null,'Y',null,null,10");
    Leaf("5,101,5,'2024-04-05',null,null,'N',null,null,null");
    Leaf("9,102,5,'2024-04-05',null,null,null,null,null,null");
  }

  void Leaf(const std::string& values) {
    Db().Execute(
        "insert into ChqLeaves (ID,BankCode,ChqNo,RctDate,IsuDate,VoucherID,Cancelled,PartyCode,NarrationID,"
        "Amount) values (" +
        values + ")");
  }

  FormPtr Open(int bank = 101) {
    form_ = desk_.Module().GetForm("chqleaves");
    form_->Set("BankCode", bank);
    Do([&] { gApp->ShowForm(form_); });
    Statements();
    return form_;
  }

  CGridPlus& Grid() const { return At<CGridPlus>(form_, "Grid"); }
  Texts Rows() const { return RowTexts(Grid(), {4, 5, 6, 7, 8, 9, 10}); }
  std::string Numbers() const {
    std::string numbers;
    for (const std::string& row : RowTexts(Grid(), {4})) numbers += row + " ";
    return numbers;
  }
  std::int64_t Count() const { return Db().Lookup("ChqLeaves", "count(*)", "BankCode=101").ToInteger(); }
  void Type(const char* field, const std::string& text) {
    Do([&] { At<CTextPlus>(form_, field).UserType(text); });
  }

  /// Fills the panel of a run, opened by its key already, and presses OK.
  void Run(const std::string& from, const std::string& to, const std::string& received = "") {
    Type("txpFrom", from);
    Type("txpTo", to);
    if (!received.empty()) Type("txpRecDate", received);
    Key(*form_, keys::kF7);
  }
  void OpenDelete() {
    runtime_.NextCommand = [this] {
      runtime_.PickFromMenu("Delete");
      return true;
    };
    Key(*form_, keys::kF7);
  }

  FormPtr form_;
};

TEST_F(ChequeLeaves, TheRegisterShowsABankAndItsKinds) {
  runtime_.Laid.Add({{"to", "pick"}, {"item", 1}});
  Open(0);
  EXPECT_EQ(At<Label>(form_, "lblTitle2").Caption(), "Bank: Sahyadri Bank");
  EXPECT_EQ(Rows(), (Texts{"5|05/04/2024|||||", "8|05/04/2024|02/05/2024|Asha Traders|Surat|Bill 12|1,500.25",
                           "9|05/04/2024||-CANCELLED-|||10.00"}));
  EXPECT_EQ(Grid().Footer.TextMatrix(0, 7) + Grid().Footer.TextMatrix(0, 10), "Total1,510.25");
  EXPECT_EQ(Grid().Paints(3).at(0).backColor, 13359855);
  EXPECT_EQ(desk_.App().Windows().at(0).Title, "Chq.Leaves");
  Do([&] { Grid().UserMoveTo(2, 4); });
  EXPECT_EQ(At<CMStrip>(form_, "MStrip1").Code(), 201);
  Key(*form_, keys::kEnter);
  EXPECT_EQ(runtime_.ActiveForm()->Get("VoucherID").ToInteger(), 7);
  Key(*runtime_.ActiveForm(), keys::kEscape);
  for (const auto& [kind, numbers] : {std::pair("Pending Only", "5 "),
                                      {"Issued Only", "8 "},
                                      {"Cancelled Only", "9 "},
                                      {"All", "5 8 9 "}}) {
    Do([&, chosen = kind] { At<ComboBox>(form_, "cmbRType").UserChoose(chosen); });
    EXPECT_EQ(Numbers(), numbers);
  }
  EXPECT_TRUE(Grid().HasFocus());
  Key(*form_, keys::kF8);
  EXPECT_EQ(Events("report").at(0).at("subtitle"), "Bank: Sahyadri Bank");
  Key(*form_, keys::kEscape);
  EXPECT_FALSE(form_->IsLoaded());
  runtime_.Laid.Add({{"to", "pick"}, {"cancel", true}});
  Open(0);
  EXPECT_FALSE(form_->IsLoaded());
  Db().Execute("delete from ChqLeaves where BankCode=102");
  Open(102);
  EXPECT_EQ(Grid().Rows(), 2);
  EXPECT_EQ(Grid().Footer.TextMatrix(0, 10), "0.00");
}

TEST_F(ChequeLeaves, ABookIsReceivedWholeOrNotAtAll) {
  Open();
  Key(*form_, keys::kF2);
  EXPECT_EQ(At<Label>(form_, "lblRangeTitle").Caption(), "Add Cheque Leaves");
  const struct {
    const char* from;
    const char* to;
    const char* why;
    const char* field;
  } refused[] = {{"", "", "Enter cheque no. from", "txpFrom"},
                 {"1", "", "Enter cheque no. to", "txpTo"},
                 {"9", "8", "Cheque to cannot be less than cheque from.", "txpTo"},
                 {"1", "102", "Can't add/delete more than 100 leaves.", "txpTo"},
                 {"100", "200", "Enter rct. date", "txpRecDate"}};
  for (const auto& each : refused) {
    AnswerMessage();
    Run(each.from, each.to);
    EXPECT_EQ(Messages(), Texts{each.why});
    EXPECT_TRUE(At<CTextPlus>(form_, each.field).HasFocus()) << each.why;
  }
  AnswerMessage();
  Do([&] { At<CTextPlus>(form_, "txpRecDate").TextBox.UserType("31/2"); });
  Key(*form_, keys::kF7);
  EXPECT_EQ(Messages(), Texts{"Invalid Date"});
  EXPECT_TRUE(At<CTextPlus>(form_, "txpRecDate").HasFocus());
  Type("txpRecDate", "5/4");
  AnswerMessage();
  Run("9", "12");
  EXPECT_EQ(Messages(), Texts{"Following cheque no. already exists: \r\n9"});
  EXPECT_EQ(Count(), 3);
  AnswerMessage();
  Run("100", "200");
  EXPECT_EQ(Messages(), Texts{"101 records created."});
  EXPECT_FALSE(At<PictureBox>(form_, "picChqRange").Visible);
  EXPECT_EQ(Grid().Rows(), 105);
  EXPECT_EQ(Db().Lookup("ChqLeaves", "RctDate", "ID=10 and ChqNo=100").ToDate().Text(), "05-Apr-2024");
  // A number that the books cannot take undoes the run.
  Key(*form_, keys::kF2);
  Run("2147483646", "2147483648", "5/4");
  EXPECT_EQ(Errors().size(), 1U);
  EXPECT_EQ(Count(), 104);
  EXPECT_FALSE(Db().InTransaction());
  Key(*form_, keys::kEscape);
  EXPECT_TRUE(form_->IsLoaded()) << "Esc leaves the panel first";
}

TEST_F(ChequeLeaves, LeavesAreDeletedUpToOneThatIsIssued) {
  for (const int number : {6, 7, 10}) {
    Leaf(std::to_string(10 + number) + ",101," + std::to_string(number) + ",'2024-04-05'" +
         ",null,null,null,null,null,null");
  }
  Open();
  OpenDelete();
  EXPECT_EQ(At<CTextPlus>(form_, "txpFrom").Text() + "-" + At<CTextPlus>(form_, "txpTo").Text(), "5-5");
  EXPECT_FALSE(At<CTextPlus>(form_, "txpRecDate").Visible);
  AnswerMessage(2);
  AnswerMessage(1);
  AnswerMessage();
  Run("5", "10");
  EXPECT_EQ(Numbers(), "5 6 7 8 9 10 ");
  OpenDelete();
  Run("5", "10");
  EXPECT_EQ(Messages(),
            (Texts{"Do you want to delete cheque no. 5 to 10 ?", "Do you want to delete cheque no. 5 to 10 ?",
                   "Cheque No. 8 is associated with a voucher. You must delete the voucher before deleting "
                   "this cheque."}));
  EXPECT_EQ(Numbers(), "8 9 10 ");
  Do([&] { At<ComboBox>(form_, "cmbRType").UserChoose("Pending Only"); });
  AnswerMessage(1);
  AnswerMessage();
  OpenDelete();
  Run("8", "20");
  EXPECT_EQ(Messages().back(), "1 records deleted.") << "what the list does not show stays";
  EXPECT_EQ(Count(), 2);
}

TEST_F(ChequeLeaves, ALeafIsCancelledAndTakenBack) {
  Open();
  AnswerMessage(1);
  Key(*form_, keys::kF3);
  EXPECT_EQ(Rows()[0], "5|05/04/2024||-CANCELLED-|||");
  EXPECT_EQ(Statements().back(), "UPDATE CHQLEAVES SET CANCELLED='Y' WHERE ID=5");
  AnswerMessage(1);
  Key(*form_, keys::kF3);
  EXPECT_EQ(Rows()[0], "5|05/04/2024|||||");
  EXPECT_TRUE(Grid().Paints(1).empty()) << "the row has the colours of the list again";
  Do([&] { Grid().UserMoveTo(2, 4); });
  AnswerMessage();
  Key(*form_, keys::kF3);
  const std::vector<Json> asked = Events("message");
  EXPECT_EQ(asked.at(0).at("text"), "Do you want to cancel this cheque ?");
  EXPECT_EQ(asked.at(0).at("default"), 2);
  EXPECT_EQ(asked.at(1).at("text"),
            "This cheque is already cancelled. Do you want to un-cancel this cheque ?");
  EXPECT_EQ(asked.at(2).at("text"),
            "This cheque is associated with a voucher. You must delete the voucher before cancelling this "
            "cheque. Can't continue.");
}

TEST_F(ChequeLeaves, AFilterIsKeptUntilItIsChanged) {
  Open();
  Key(*form_, keys::kF4);
  AnswerMessage();
  Type("txpChqNo1", "9");
  Type("txpChqNo2", "8");
  Key(*form_, keys::kF7);
  EXPECT_EQ(Messages(), Texts{"Chq. To cannot be less than Chq. From."});
  Type("txpChqNo2", "");
  Key(*form_, keys::kF7);
  EXPECT_EQ(Numbers(), "9 ");
  Key(*form_, keys::kF4);
  Type("txpChqNo1", "");
  Type("txpChqNo2", "8");
  runtime_.Laid.Add({{"to", "parties"}, {"clause", "M.mst='Surat'"}, {"caption", "Station: Surat"}});
  Do([&] { form_->UserFocus(At<CTextPlus>(form_, "txpParties")); });
  Key(*form_, keys::kDown);
  EXPECT_EQ(At<CTextPlus>(form_, "txpParties").Text(), "Station: Surat");
  Key(*form_, keys::kF7);
  EXPECT_EQ(Numbers(), "8 ");
  EXPECT_EQ(Events("parties").size(), 1U);
}

}  // namespace
}  // namespace quillon
