#include "desk/firm/Firm.h"
#include "host/data/CDataSet.h"
#include "host/values/Text.h"
#include "tests/support/DeskFixture.h"

namespace quillon {
namespace {

/// Vouchers entered as at the desk, by keys.
class VoucherEntry : public DeskTest {
 protected:
  void SetUp() override {
    OpenNewFirm();
    Db().BeginTrans();
    AddAccount(1, "Cash", 46);
    AddAccount(101, "Sahyadri Bank", 47, "Pune");
    AddAccount(102, "Konkan Bank", 47);
    AddAccount(201, "Asha Traders", 140, "Surat");
    AddAccount(202, "Bharat Mills", 130, "Indore");
    AddAccount(301, "Sales", 200);
    AddAccount(302, "Output Tax", 60);
    AddAccount(311, "Purchases", 210);
    AddAccount(325, "Telephone Expenses", 220);
    Db().Execute("update FAMaster set mTransportCode=31,mAgentCode=41 where mcd in (201,202)");
    Db().Execute("insert into CtgMaster (CtgNo,CtgName) values (220,'Expenses')");
    for (const char* leaf : {"1,101,501,null", "2,101,502,'Y'", "3,101,503,null", "4,101,504,'N'"})
      Db().Execute("insert into ChqLeaves (ID,BankCode,ChqNo,Cancelled) values (" + std::string(leaf) + ")");
    Db().CommitTrans();
    gSession->CommonDb().Execute("insert into Narrations values ('TEL','Telephone bill paid')");
    Open();
  }

  void Open() {
    entry_ = gApp->GetForm("VoucherEntry");
    Do([&] { gApp->ShowForm(entry_); });
    Press("{CTRL+2}");
  }

  /// Keys one after the other: characters, and "{ENTER}", "{F7}", "{CTRL+6}". Answers how many of them are
  /// none of a text.
  int Press(const std::string& keys) {
    static const std::map<std::string, int> kNamed = {
        {"ENTER", keys::kEnter}, {"ESC", keys::kEscape}, {"TAB", keys::kTab}, {"UP", keys::kUp}};
    int pressed = 0;
    for (std::size_t at = 0; at < keys.size(); ++at) {
      if (keys[at] != '{') {
        TypeKeys(*runtime_.ActiveForm(), keys.substr(at, 1));
        continue;
      }
      const std::size_t end = keys.find('}', at);
      const std::string name = keys.substr(at + 1, end - at - 1);
      at = end;
      ++pressed;
      Form& form = *runtime_.ActiveForm();
      if (name.starts_with("CTRL+")) {
        Key(form, name.back(), keys::kCtrl);
      } else if (const auto named = kNamed.find(name); named != kNamed.end()) {
        Key(form, named->second);
      } else {
        Key(form, keys::kF1 - 1 + std::stoi(name.substr(1)));
      }
    }
    return pressed;
  }

  /// The last voucher: its book, type, number and day, then account and amount of each line, its narration.
  std::string Last() const {
    std::string text;
    CDataSet lines;
    for (lines.Open(
             "Select a.*,n.Narration from FAData a left join FANar n on n.NarrationID=a.NarrationID where "
             "a.VoucherID=(select max(VoucherID) from FAData) order by a.dVchSubNo",
             Db());
         !lines.Eof(); lines.MoveNext()) {
      if (text.empty()) {
        text = lines.Field("dBook").ToText() + " " + lines.Field("dTrnType").ToText() + " " +
               lines.Field("dVchNo").ToText() + " " + lines.Field("dVchDate").ToDate().Text() + " '" +
               lines.Field("Narration").ToText() + "'";
      }
      text += " " + lines.Field("dcd").ToText() + ":" + lines.Field("dAmt").ToText();
    }
    return text;
  }

  std::int64_t Count(const std::string& table, const std::string& where = "") const {
    return Db().Lookup(table, "Count(*)", where).ToInteger();
  }
  std::string Leaf(int number) const {
    CDataSet leaf;
    leaf.Open("Select * from ChqLeaves where ChqNo=" + std::to_string(number), Db());
    return leaf.Field("VoucherID").ToText() + "|" + leaf.Field("IsuDate").ToDate().Text() + "|" +
           leaf.Field("PartyCode").ToText() + "|" + leaf.Field("Amount").ToText();
  }
  std::string Missing() { return text::Trim(At<Label>(entry_, "lblMissing").Caption()); }
  CGridPlus& Grid() { return At<CGridPlus>(entry_, "Grid"); }

  /// Where the cursor stands: the field, and in the lines the cell under edit.
  std::string Cursor() {
    const Control* const at = entry_->ActiveControl();
    if (at != &Grid()) return at != nullptr ? at->Name() : "";
    return Grid().EditMode()
               ? "Grid " + std::to_string(Grid().EditRow()) + "," + std::to_string(Grid().EditCol())
               : "Grid";
  }

  /// What is told, and that nothing was stored and the cursor stands there.
  void ExpectRefused(const std::string& keys, const std::string& why, const std::string& cursor) {
    const std::int64_t lines = Count("FAData");
    AnswerMessage();
    Press(keys);
    EXPECT_EQ(Told(), Texts{"W: " + why});
    EXPECT_EQ(Cursor(), cursor) << why;
    EXPECT_EQ(Count("FAData"), lines) << why;
  }

  /// Leaves what is on the screen for a new voucher.
  void Drop() {
    AnswerMessage(1);
    Press("{F2}");
    EXPECT_EQ(Told(), Texts{"Q: This voucher is not saved. Leave it?"});
  }

  FormPtr entry_;
};

TEST_F(VoucherEntry, ACashPaymentTakesSixKeysBesideWhatIsTyped) {
  EXPECT_EQ(Cursor(), "txpDay");
  const int pressed = Press("5/4{ENTER}exp{ENTER}450.5{ENTER}{ENTER}tel{F7}");
  EXPECT_LE(pressed, 6);
  EXPECT_EQ(Last(), "C PC1 1 05-Apr-2024 'Telephone bill paid' 1:-450.5 325:450.5");
  EXPECT_EQ(At<CTextPlus>(entry_, "txpNumber").Text(), "2") << "of the next one, which begins at once";
  EXPECT_LE(Press("7{ENTER}asha{ENTER}1200{ENTER}{ENTER}.Tel{ENTER}{F7}"), 6);
  EXPECT_EQ(Last(), "C PC1 2 07-Apr-2024 'Telephone bill paid' 1:-1200 201:1200") << "in the month before";
  EXPECT_EQ(Count("FADocs"), 1) << "of the party alone";
  EXPECT_EQ(Take("said", "text"), (Texts{"Cash Payment No. 1 of 05-Apr-2024 is saved.",
                                         "Cash Payment No. 2 of 07-Apr-2024 is saved."}));
}

TEST_F(VoucherEntry, EachKindStandsInItsBook) {
  Press("{CTRL+1}5/4{ENTER}asha{ENTER}100{ENTER}{ENTER}Received{F7}");
  EXPECT_EQ(Last(), "C RC1 1 05-Apr-2024 'Received' 1:100 201:-100");
  Press(
      "{CTRL+3}{ENTER}konkan{ENTER}asha{ENTER}1000{ENTER}teleph{ENTER}{ENTER}20{ENTER}{ENTER}Less discount{F7}");
  EXPECT_EQ(Last(), "B1 BR1 1 05-Apr-2024 'Less discount' 102:980 201:-1000 325:20");
  EXPECT_EQ(Db().Lookup("FAData", "dTrnNature", "dTrnType='BR1'").ToInteger(), 5001);
  Press("{CTRL+4}{ENTER}sahya{ENTER}bha{ENTER}750{ENTER}{ENTER}Bill 7{ENTER}{F7}");
  EXPECT_EQ(Last(), "B2 BP2 1 05-Apr-2024 'Bill 7 Chq.No. 000501' 101:-750 202:750");
  EXPECT_EQ(Leaf(501),
            std::to_string(Db().Lookup("FAData", "max(VoucherID)", "").ToInteger()) + "|05-Apr-2024|202|750");
  Press("{CTRL+5}{ENTER}cash{ENTER}sahya{ENTER}300{ENTER}{ENTER}Deposited{F7}");
  EXPECT_EQ(Last(), "B2 CN1 1 05-Apr-2024 'Deposited' 1:-300 101:300");
  Press("{CTRL+6}6{ENTER}asha{ENTER}60{ENTER}bharat{ENTER}{ENTER}{ENTER}Set off{F7}");
  EXPECT_EQ(Last(), "J JD1 1 06-Apr-2024 'Set off' 201:60 202:-60") << "the missing side is offered";
  EXPECT_EQ(At<CTextPlus>(entry_, "txpNumber").Text(), "2") << "of the next journal";
  Press(
      "{CTRL+7}{ENTER}S/41{ENTER}bharat{ENTER}sales{ENTER}1000{ENTER}output{ENTER}50{ENTER}{ENTER}Bill{F7}");
  EXPECT_EQ(Last(), "JS SL1 S/41 06-Apr-2024 'Bill' 202:1050 301:-1000 302:-50");
  Press("{CTRL+8}{ENTER}{ENTER}asha{ENTER}purch{ENTER}90{ENTER}{ENTER}{F7}");
  EXPECT_EQ(Last(), "JP PR1 1 06-Apr-2024 '' 201:-90 311:90");
  Texts documents;
  CDataSet rows;
  for (rows.Open("Select * from FADocs order by VoucherID", Db()); !rows.Eof(); rows.MoveNext())
    documents.push_back(rows.Field("PartyCode").ToText() + "|" + rows.Field("TransportCode").ToText() + "|" +
                        rows.Field("AgentCode").ToText());
  EXPECT_EQ(documents, (Texts{"201||41", "201||41", "202||41", "201||41", "202|31|41", "201||41"}));
  EXPECT_EQ(Db().Lookup("FAData", "Sum(dAmt)", "").ToAmount(), Amount());
}

TEST_F(VoucherEntry, WhatCannotStandIsRefusedWithTheCursorInItsField) {
  AddVoucher({.id = 1, .date = "2024-04-10", .book = "MEM"});
  Db().Execute("update FAData set dTrnType='zzz' where VoucherID=1");
  ExpectRefused("9/4{ENTER}",
                "The books are closed on 10-Apr-2024; nothing is entered or changed before that.", "txpDay");
  ExpectRefused("31/3/24{ENTER}", "31-Mar-2024 is outside the year 2024-25.", "txpDay");
  ExpectRefused("31/6{ENTER}", "Invalid Date", "txpDay");
  Press("12/4{ENTER}");
  ExpectRefused("zebra{ENTER}", "No account is found by \"zebra\".", "Grid 1,1");
  AnswerMessage();
  Press("{ESC}{ESC}{F7}");
  EXPECT_EQ(Told(), Texts{"W: The voucher has no line yet."});
  EXPECT_EQ(Cursor(), "Grid 1,1");
  Press("asha{ENTER}");
  ExpectRefused("1000000000000{ENTER}", "An amount stays below Rs. 10,00,00,00,00,000.00.", "Grid 1,3");
  Press("{ESC}");
  ExpectRefused("{F7}", "This line has no amount.", "Grid 1,3");
  ExpectRefused("{ENTER}99{F7}", "Cash A/c would be debited with Rs. 99.00; a Cash Payment credits it.",
                "Grid 2,1");
  Press("{CTRL+6}");
  EXPECT_EQ(Missing(), "Rs. 99.00 more on the debit side");
  ExpectRefused("{F7}", "The voucher is not even: Rs. 99.00 more on the debit side.", "Grid 2,1");
  Press("bharat{ENTER}98");
  ExpectRefused("{F7}", "The voucher is not even: Rs. 1.00 more on the debit side.", "Grid 2,3");
  Press("99{ENTER}");
  EXPECT_EQ(Missing(), "Complete. F7 saves it.");
  EXPECT_EQ(Grid().Footer.TextMatrix(1, 3), "99.00");
  Drop();
  Press("{CTRL+4}{ENTER}sahya{ENTER}bha{ENTER}7{ENTER}{ENTER}{ENTER}");
  EXPECT_EQ(Cursor(), "txpChqNo");
  ExpectRefused("502{F7}", "Cheque leaf 000502 is cancelled.", "txpChqNo");
  At<CTextPlus>(entry_, "txpChqNo").TextBox.SelectAll();
  ExpectRefused("777{F7}", "Cheque leaf 000777 is not among the leaves of this bank.", "txpChqNo");
  At<CTextPlus>(entry_, "txpChqNo").TextBox.SelectAll();
  Press("501{F7}");
  EXPECT_EQ(Last(), "B1 BP1 1 12-Apr-2024 'Chq.No. 000501' 101:-7 202:7");
  Press("{ENTER}{ENTER}asha{ENTER}8{ENTER}{ENTER}{ENTER}");
  EXPECT_EQ(At<CTextPlus>(entry_, "txpChqNo").Text(), "000503")
      << "the next that is neither used nor cancelled";
  ExpectRefused("501{F7}", "Cheque leaf 000501 is used by a voucher.", "txpChqNo");
}

TEST_F(VoucherEntry, AVoucherIsCalledUpChangedAndDeleted) {
  Press("{CTRL+4}5/4{ENTER}sahya{ENTER}bha{ENTER}750{ENTER}{ENTER}Bill 7{ENTER}{F7}");
  Press("6{ENTER}{ENTER}asha{ENTER}80{ENTER}{ENTER}Bill 8{ENTER}{F7}");
  EXPECT_EQ(Leaf(503), "2|06-Apr-2024|201|80");
  Press("1/9{ENTER}{F8}");
  EXPECT_EQ(At<CTextPlus>(entry_, "txpNumber").Text(), "2");
  EXPECT_EQ(RowText(Grid(), 1, {1, 2, 3, 4}), "Asha Traders|Surat|80.00|");
  Press("{F8}");
  EXPECT_EQ(At<CTextPlus>(entry_, "txpNarration").Text(), "Bill 7 Chq.No. 000501");
  Press("8{ENTER}{ENTER}bharat{ENTER}70{ENTER}{ENTER}");
  EXPECT_EQ(Cursor(), "txpNarration");
  AnswerMessage(2);
  Press("{F9}");
  EXPECT_EQ(Told(), Texts{"Q: This voucher is not saved. Leave it?"});
  Press("{ENTER}504{F7}");
  EXPECT_EQ(Leaf(501), "|||") << "given free";
  EXPECT_EQ(Leaf(504), "1|08-Apr-2024|202|820");
  EXPECT_EQ(Count("FAData"), 5) << "the line that was added to it";
  EXPECT_EQ(Db().Lookup("FANar", "Narration", "NarrationID=(select max(NarrationID) from FANar)").ToText(),
            "Bill 7 Chq.No. 000504");
  Press("{F8}{F8}");
  AnswerMessage(1);
  Press("{F3}");
  EXPECT_EQ(Told(), Texts{"W: Delete Bank Payment No. 1 of 08-Apr-2024?"});
  EXPECT_EQ(Leaf(504), "|||");
  EXPECT_EQ(Count("FAData"), 2);
  EXPECT_EQ(Count("FANar"), 1);
  EXPECT_EQ(Count("FADocs"), 1);
  Db().Execute("update FAData set dLocked=1,dBankDate='2024-04-20' where VoucherID=2");
  Press("{F8}");
  ExpectRefused("{F3}", "This voucher is locked.", "txpDay");
  Db().Execute("update FAData set dLocked=0 where VoucherID=2");
  Press("{F2}{F8}{ENTER}{ENTER}asha{ENTER}90");
  AnswerMessage(2);
  Press("{F7}");
  EXPECT_EQ(Told(),
            Texts{"W: The bank has cleared this entry on 20-Apr-2024. Saved like this it is not cleared any "
                  "more. Save it?"});
  AnswerMessage(2);
  Press("{ESC}");
  EXPECT_EQ(Told(), Texts{"Q: Do you want to exit without saving?"});
  EXPECT_TRUE(entry_->IsShownToUser());
}

TEST_F(VoucherEntry, SimilarVouchersAreShownBeforeOneIsSaved) {
  Press("{CTRL+3}5/4{ENTER}sahya{ENTER}asha{ENTER}500{ENTER}{ENTER}Chq.No. 4471 Kalyan Bank{F7}");
  const auto warned = [&](const std::string& keys, int button, bool never = false) {
    const std::int64_t before = Count("FAData");
    std::string rows;
    const auto decide = [&] {
      const FormPtr warning = runtime_.ActiveForm();
      ASSERT_EQ(warning->Name(), "frmSimilarVoucher");
      rows = text::Join(RowTexts(At<GridModel>(warning, "Grid"), {0, 2, 3, 4}), " ");
      if (never) At<CheckBox>(warning, "Check1").UserCheck(true);
      At<CommandButton>(warning, "Command1", button).UserClick();
    };
    Press(keys);
    During([&] { Press("{F7}"); }, {decide});
    EXPECT_EQ(Count("FAData") - before, button == 0 ? 2 : 0);
    return rows;
  };
  const std::string first = "05-Apr-2024|1|Chq.No. 4471 Kalyan Bank|500.00";
  AnswerMessage();
  EXPECT_EQ(warned("12{ENTER}{ENTER}asha{ENTER}500{ENTER}{ENTER}Again", 1), first) << "the seventh day";
  EXPECT_EQ(Told(), Texts{"I: Voucher Not Saved"});
  Drop();
  Press("13{ENTER}{ENTER}asha{ENTER}500{ENTER}{ENTER}Next{F7}");
  EXPECT_EQ(Count("FAData"), 4) << "the eighth day is none";
  EXPECT_EQ(warned("25{ENTER}{ENTER}bhar{ENTER}1{ENTER}{ENTER}Chq.No. 004471", 0), first)
      << "the same cheque";
  Press("{CTRL+4}13{ENTER}sahya{ENTER}asha{ENTER}500{ENTER}{ENTER}Paid{F7}");
  EXPECT_EQ(Count("FAData"), 8) << "the other side is none";
  Press("{CTRL+8}1/5{ENTER}B-7{ENTER}asha{ENTER}purch{ENTER}40{ENTER}{ENTER}{F7}");
  EXPECT_EQ(warned("1/6{ENTER}B-7{ENTER}asha{ENTER}purch{ENTER}41{ENTER}{ENTER}", 0, true),
            "01-May-2024|B-7||40.00");
  Press("2/6{ENTER}B-7{ENTER}asha{ENTER}purch{ENTER}41{ENTER}{ENTER}{F7}");
  EXPECT_EQ(Count("FAData"), 14) << "no more warnings for this account";
  Press("{CTRL+2}3/6{ENTER}bhar{ENTER}5{ENTER}{ENTER}{F7}{F8}6/6{F7}");
  EXPECT_EQ(Last().substr(0, 20), "C PC1 1 06-Jun-2024 ") << "it is no double of itself";
}

TEST_F(VoucherEntry, AnAccountIsAddedAndAChequeOpenedOnTheWay) {
  Db().Execute(
      "insert into FAHeads (Code,SubCode,Head,PressHead) values (201,0,'Asha Traders','ASHATRADERS')");
  Press("{CTRL+4}5/4{ENTER}sahya{ENTER}");
  During([&] { Press("{F5}"); }, {[&] {
                                    AnswerMessage(1);
                                    Press("Asha{ENTER}{ENTER}exp{F7}");
                                  },
                                  [&] {
                                    EXPECT_EQ(runtime_.ActiveForm()->Name(), "frmSimilarAcHead");
                                    Press("{ESC}");
                                  }});
  EXPECT_EQ(Told(), Texts{"Q: Add \"Asha\" all the same?"});
  EXPECT_EQ(Cursor(), "Grid 1,3");
  Press("70{ENTER}{ENTER}Wages{F4}");
  EXPECT_EQ(Last(), "B1 BP1 1 05-Apr-2024 'Wages Chq.No. 000501' 101:-70 326:70");
  const FormPtr cheque = runtime_.ActiveForm();
  EXPECT_EQ(cheque->Name(), "frmChqPrint");
  EXPECT_EQ(cheque->Get("Amount").ToAmount(), Amount::OfInteger(70));
  Do([&] { gRuntime->Unload(*cheque); });
  Press("{F6}");
  EXPECT_EQ(runtime_.ActiveForm()->Name(), "frmChqLeaves");
  EXPECT_EQ(runtime_.ActiveForm()->Get("BankCode").ToInteger(), 101);
}

TEST_F(VoucherEntry, APaymentFromTwoBanksIsShownLineByLineAndKeepsItsLeaf) {
  Press("{CTRL+4}5/4{ENTER}sahya{ENTER}asha{ENTER}750{ENTER}{ENTER}Bill{F7}");
  Db().Execute("update FAData set dAmt=-700 where dcd=101");
  Db().Execute(
      "insert into FAData (VoucherID,dVchSubNo,dSrNo,dVchNo,dVchDate,dcd,dAmt,dBook,dTrnType,NarrationID) select "
      "VoucherID,3,9,dVchNo,dVchDate,102,-50,dBook,dTrnType,NarrationID from FAData where dcd=101");
  Press("{F8}");
  EXPECT_EQ(RowTexts(Grid(), {1, 3, 4}),
            (Texts{"Sahyadri Bank||700.00", "Asha Traders|750.00|", "Konkan Bank||50.00", "||"}));
  Press("7{ENTER}{F7}");
  EXPECT_EQ(Last(), "B1 BP1 1 07-Apr-2024 'Bill Chq.No. 000501' 101:-700 201:750 102:-50");
  EXPECT_EQ(Leaf(501), "1|07-Apr-2024|201|700");
}

TEST_F(VoucherEntry, AVoucherThatIsReadIsCalledUpToBeChanged) {
  Press("{CTRL+6}5/4{ENTER}asha{ENTER}5{ENTER}bharat{ENTER}{ENTER}{ENTER}{F7}{ESC}");
  const FormPtr book = gApp->GetForm("DayBook");
  Do([&] { gApp->ShowForm(book); });
  Press("{ENTER}{F3}");
  entry_ = runtime_.ActiveForm();
  ASSERT_EQ(entry_->Name(), "frmVoucherEntry");
  EXPECT_EQ(RowText(Grid(), 2, {1, 3, 4}), "Bharat Mills||5.00");
  Do([&] { entry_->UserFocus(Grid()); });
  EditCell(Grid(), 1, 3, "6");
  EditCell(Grid(), 2, 4, "6");
  Press("{F7}{ESC}");
  EXPECT_EQ(Last(), "J JD1 1 05-Apr-2024 '' 201:6 202:-6");
  EXPECT_EQ(RowText(At<CGridPlus>(book, "Grid"), 1, {5, 8}), "Asha Traders|6.00") << "which is read anew";
}

TEST_F(VoucherEntry, OnlyWhoHasTheRightEntersAndStores) {
  OpenAsClerk();
  const auto open = [&] {
    entry_ = gApp->GetForm("VoucherEntry");
    Do([&] { gApp->ShowForm(entry_); });
  };
  AnswerMessage();
  open();
  EXPECT_FALSE(entry_->IsShownToUser());
  Grant("Clerk", "vch.entry", "N");
  open();
  Press("{CTRL+2}5/4{ENTER}asha{ENTER}5{ENTER}{ENTER}");
  Grant("Clerk", "vch.entry", "");
  AnswerMessage();
  Press("{F7}");
  EXPECT_EQ(Told().size(), 2U);
  EXPECT_EQ(Count("FAData"), 0) << "the right was taken away meanwhile";
}

}  // namespace
}  // namespace quillon
