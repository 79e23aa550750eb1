#include "tests/cheques/ChequeFixture.h"

namespace quillon {
namespace {

constexpr long kShown = 0xC00000;
constexpr long kHidden = 0x808080;

class ChequeLayout : public ChequeTest {
 protected:
  static std::string Caption(const FormPtr& form, const std::string& label) {
    return At<Label>(form, label).Caption();
  }
  static Texts Captions(const FormPtr& form) {
    Texts captions;
    for (int object = 0; object <= 10; ++object) captions.push_back(Object(form, object).Caption());
    return captions;
  }
  static std::string Shown(const FormPtr& form) {
    std::string shown;
    for (int object = 0; object <= 10; ++object) shown += Object(form, object).Visible.Own() ? '1' : '0';
    return shown;
  }
  static std::string Place(const FormPtr& form, int object) {
    return std::to_string(Object(form, object).Left()) + "," + std::to_string(Object(form, object).Top());
  }
};

TEST_F(ChequeLayout, ABankWithoutALayoutShowsItsChequeAsDesigned) {
  const FormPtr form = NewCheque();
  form->Set("Narration", "Chq.No. 004411 paid");
  EXPECT_EQ(Shown(form), "11111110100") << "an object's mark counts before the form is shown";
  Do([&] { gApp->ShowForm(form); });
  EXPECT_EQ(form->Caption(), "Cheque Printing - Chq.No. 004411 paid") << "the number leaves the caption";
  form->Set("Narration", "paid");
  form->Set("ChqNo", "");
  Do([&] { form->Call("UpdateLabels", {}); });
  EXPECT_EQ(form->Caption(), "Cheque Printing - paid") << "another cheque";
  EXPECT_EQ(Captions(form),
            (Texts{"Pay To : Asha Traders", "Date : 05-Apr-2024",
                   "Rupees : One Thousand Two Hundred Fifty and Paise Seventy Five Only", "Rs. : **1,250.75",
                   "For Sharda Trading Co.", "", "Payee's A/c Only", "A/c No:", "Amount in words - 2",
                   "Remarks", "NOT EXCEEDING Rs. 1,251/-"}));
  EXPECT_EQ(Caption(form, "lblAmountInWords2"), "One Thousand Two Hundred Fifty and Paise");
  EXPECT_EQ(Caption(form, "lblAmountInWords22"), "Seventy Five Only");
  EXPECT_EQ(Caption(form, "lblBankName2") + Caption(form, "lblBankAdd2"), "Sahyadri BankPune");
  EXPECT_EQ(Caption(form, "lblChqNo2"), "Chq.No: 004411");
  EXPECT_EQ(At<CTextPlus>(form, "txpDateChrGap").Text(), "");
  EXPECT_EQ(Place(form, 3) + " " + Place(form, 8), "8460,1560 870,1500");
  EXPECT_EQ(desk_.App().Windows().at(0).Title, "Cheque Print");

  // The words of the preview are clicked on, and a click on the payee renames him.
  Click(At<Label>(form, "lblDate2"));
  EXPECT_EQ(At<CheckBox>(form, "Check4").CheckValue(), 0);
  EXPECT_EQ(At<Label>(form, "lblDate2").ForeColor(), kHidden);
  AnswerInput(" Cash ");
  Click(At<Label>(form, "lblPayTo2"));
  EXPECT_EQ(form->Get("PayTo").ToText(), "Cash");
  EXPECT_EQ(form->Get("Station").ToText(), "");
  form->Call("UpdateLabels", {});
  EXPECT_EQ(Caption(form, "lblPayTo2"), "SELF");
  EXPECT_EQ(At<CheckBox>(form, "Check3").CheckValue(), 0) << "to oneself there is no payee's line";
  AnswerInput("");
  Click(At<Label>(form, "lblRemarks2"));
  AnswerInput(" 50100 ");
  Click(At<Label>(form, "lblAcNo20"));
  EXPECT_EQ(Caption(form, "lblAcNo2"), "50100");
  EXPECT_EQ(At<Label>(form, "lblAcNo2").ForeColor(), kShown);
  EXPECT_EQ(Shown(form), "10111101100");
  Key(*form, keys::kF7);
  EXPECT_EQ(gApp->GetFirmSetting("ChqSetting.101.Settings"), "") << "the preview has no F7";
  Key(*form, keys::kEscape);
  EXPECT_FALSE(form->IsLoaded());
}

TEST_F(ChequeLayout, TheNarrationMayNameThePayeeAndTheCallerMovesOn) {
  class Caller : public Form {
   public:
    Caller() : Form("Caller", Origin::Desk) { Routine("NextCheque", &Caller::NextCheque); }
    void NextCheque(const FormPtr& cheque, int direction) {
      cheque->Set("PayTo", direction > 0 ? "Next" : "Previous");
      cheque->Call("UpdateLabels", {});
    }
  };
  const FormPtr form = NewCheque();
  form->Set("Narration", "Paid on behalf::Bharat Mills");
  form->Set("fDataForm", std::static_pointer_cast<quillon::Object>(std::make_shared<Caller>()));
  Do([&] { gApp->ShowForm(form); });
  EXPECT_EQ(form->Get("PayTo").ToText() + "|" + form->Get("Station").ToText(), "Bharat Mills|");
  form->Set("Narration", "");
  Key(*form, keys::kF3);
  EXPECT_EQ(Caption(form, "lblPayTo2"), "Previous");
  Key(*form, keys::kF4);
  EXPECT_EQ(Caption(form, "lblPayTo2"), "Next");
  Key(*form, keys::kEscape);
  const FormPtr alone = ShowCheque();
  Key(*alone, keys::kF4);
  EXPECT_EQ(Caption(alone, "lblPayTo2"), "Asha Traders");
}

TEST_F(ChequeLayout, ALayoutIsWorkedOutWithTheKeyboardAndKept) {
  const FormPtr form = ShowLayout();
  EXPECT_FALSE(At<CButtonBar>(form, "BtnBar1").Visible);
  Key(*form, keys::kPageUp);
  EXPECT_EQ(Object(form, 8).ForeColor(), 0x8000000E) << "hidden objects are passed over";
  Click(Object(form, 2));
  Key(*form, keys::kPageUp);
  Key(*form, keys::kPageUp);
  EXPECT_EQ(Object(form, 2).BackColor(), 0xFFFFFF) << "one object is marked at a time";
  for (int i = 0; i < 8; ++i) Key(*form, keys::kLeft);
  Key(*form, keys::kUp, keys::kCtrl);
  EXPECT_EQ(Place(form, 0), "0,705") << "the edge holds it";
  Key(*form, keys::kRight, keys::kCtrl);
  Key(*form, keys::kDown);
  EXPECT_EQ(Place(form, 0), "15,825");
  Do([&] { form->UserFocus(At<CTextPlus>(form, "txpTopMargin")); });
  Key(*form, keys::kRight);
  EXPECT_EQ(Place(form, 0), "15,825") << "the field uses the key itself";
  Type(form, "txpTopMargin", "0.25");
  Do([&] { At<ComboBox>(form, "cmbDateStyle").UserChoose("Box Style"); });
  EXPECT_EQ(At<CTextPlus>(form, "txpDateChrGap").Text(), "225");
  EXPECT_EQ(Object(form, 1).Caption(), "Date : 05  04  2024");
  Key(*form, keys::kRight);
  EXPECT_EQ(Place(form, 0), "135,825") << "the list gave the keys back";
  Click(At<CheckBox>(form, "chkStation"));
  EXPECT_EQ(Object(form, 0).Caption(), "Pay To : Asha Traders - Surat");
  Click(At<CheckBox>(form, "Check1"));
  Click(At<CheckBox>(form, "chkNotExceeding"));
  AnswerInput("Against bill 12");
  Click(At<CommandButton>(form, "btnRemarks"));
  runtime_.Laid.Add({{"to", "font"}, {"name", "Arial"}, {"size", 11}, {"bold", false}});
  Click(At<CommandButton>(form, "btnFont"));
  for (const auto& [reply, kept] : {std::pair("12", "0"), {"1.5", "1.5"}, {"", "1.5"}, {"3.5", "3.5"}}) {
    AnswerInput(reply);
    Click(At<CommandButton>(form, "btnAmtWidth"));
    AnswerInput("");
    Click(At<CommandButton>(form, "btnAmtWidth"));
    EXPECT_EQ(Events("input").back().at("text"), kept) << reply;
  }
  EXPECT_EQ(Messages(), Texts{"Amount width should be greater than or equal to 2 inches. Width less than 2 "
                              "inches will be ignored."});
  Key(*form, keys::kF7);
  Key(*form, keys::kEscape);

  const FormPtr again = ShowCheque();
  EXPECT_EQ(Shown(again), "11110010111");
  EXPECT_EQ(Place(again, 0), "135,825");
  EXPECT_EQ(Object(again, 6).Font().Name + (Object(again, 6).Font().Underline ? " underlined" : ""),
            "Arial underlined");
  EXPECT_EQ(Object(again, 9).Caption(), "Remarks : Against bill 12");
  EXPECT_EQ(At<CTextPlus>(again, "txpTopMargin").Text(), "0.25");
  EXPECT_EQ(Object(again, 1).Caption(), "Date : 05  04  2024");
  EXPECT_EQ(Place(ShowCheque(102), 0), "870,720") << "another bank has a layout of its own";
}

TEST_F(ChequeLayout, AStoredLayoutIsTakenAsFarAsItGoes) {
  const std::string columns =
      "PrintStamp,FontName,FontSize,FontBold,Landscape,PayeesA/c,BankAcNo,AmtWd,TMargin,LMargin,DateStyle,"
      "DateChrGap,PrintStation,Remarks,NotExceeding,BankDetails";
  CTextTable options;
  options.SetFields(columns);
  const auto put = [&](const char* name, const char* value) { options.SetField(0, name, value); };
  put("FontName", "No Such Face");
  put("FontSize", "14");
  put("FontBold", "False");
  put("DateStyle", "2");
  put("DateChrGap", "0");
  CTextTable objects;
  objects.SetFields("ObjID,PosX,PosY");
  int row = 0;
  for (const auto& [id, left] : {std::pair("DESIG", "3000"), {"Nobody", "1"}, {"PayTo", "-5"}}) {
    objects.SetField(static_cast<std::size_t>(row), "ObjID", id);
    objects.SetField(static_cast<std::size_t>(row), "PosX", left);
    objects.SetField(static_cast<std::size_t>(row++), "PosY", "90");
  }
  gApp->PutFirmSetting("ChqSetting.101.Settings", options.RowText(0));
  gApp->PutFirmSetting("ChqSetting.101.Objs", objects.Text());
  AnswerMessage();
  const FormPtr form = ShowLayout();
  EXPECT_EQ(Messages(), Texts{"Missing Font: No Such Face"});
  EXPECT_EQ(Object(form, 3).Font(), (Font{"Tahoma", 14, false, false, false}));
  EXPECT_EQ(At<CTextPlus>(form, "txpDateChrGap").Text(), "225");
  EXPECT_EQ(At<CheckBox>(form, "Check1").CheckValue(), 1);
  EXPECT_EQ(Place(form, 5) + " " + Place(form, 0), "3000,90 -5,90");
  Click(Object(form, 0));
  Key(*form, keys::kLeft);
  EXPECT_EQ(Place(form, 0), "0,90") << "it only comes back to the edge";
  Key(*form, keys::kEscape);

  gApp->PutFirmSetting("ChqSetting.101.Settings", options.RowText(0).substr(0, 9));
  const FormPtr damaged = ShowCheque();
  EXPECT_EQ(Events("error").at(0).at("routine"), "Load");
  EXPECT_EQ(Place(damaged, 5), "3000,90") << "the places still come";
}

TEST_F(ChequeLayout, WithoutABankNothingIsAskedAndNothingWritten) {
  const FormPtr form = ShowLayout(0);
  EXPECT_EQ(Caption(form, "lblBankName2"), "Marrowgate Softwares Pvt. Ltd.");
  EXPECT_TRUE(At<PictureBox>(form, "picBankName").Visible.Own());
  for (int i = 0; i < 4; ++i) AnswerMessage();
  Key(*form, keys::kF7);
  Click(At<CButton>(form, "btnSettings", 1));
  Click(At<CButton>(form, "btnSettings", 3));
  Do([&] { form->Call("ExportChqSettings", {}); });
  EXPECT_EQ(Messages(), Texts(4, "No bank account is chosen."));
  EXPECT_EQ(gApp->GetFirmSetting("ChqSetting.0.Settings"), "");
  Key(*form, keys::kEscape);
  gApp->PutUserSetting("ChqPrinting.LastBankCode", "102");
  const FormPtr last = ShowLayout(0);
  EXPECT_EQ(At<TextBox>(last, "txpBank").Text(), "Deccan Bank");
  Key(*last, keys::kF7);
  EXPECT_NE(gApp->GetFirmSetting("ChqSetting.102.Settings"), "");
  AnswerMessage(1);
  Click(At<CButton>(last, "btnSettings", 1));
  EXPECT_EQ(gApp->GetFirmSetting("ChqSetting.102.Settings") + gApp->GetFirmSetting("ChqSetting.102.Objs"),
            "");
  EXPECT_FALSE(last->IsLoaded());
}

}  // namespace
}  // namespace quillon
