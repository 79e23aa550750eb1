#include "envelopes/FromBlock.h"
#include "host/values/Text.h"
#include "tests/support/DeskFixture.h"
#include "tests/support/PdfReader.h"

namespace quillon {
namespace {

using Texts = std::vector<std::string>;

TEST(FromBlockRules, TheSenderStandsThreeBlanksIn) {
  Sender sender{"Sharda", "14, Peth", "Near Post", "Laxmi Road", "Pune", "411002", "Maharashtra", "020-1"};
  EXPECT_EQ(FromBlock(sender),
            "From: -\r\n   Sharda\r\n   14, Peth, Near Post\r\n   Laxmi Road\r\n   Pune - 411002\r\n"
            "   Maharashtra\r\n   Phone : 020-1");
  sender = {"Sharda", "", "Near Post", "", "", "", "Goa", ""};
  EXPECT_EQ(FromBlock(sender), "From: -\r\n   Sharda\r\n   Near Post\r\n    (Goa)");
  sender = {"Sharda", "14, Peth", "", "", "Pune", "411002", "", ""};
  EXPECT_EQ(FromBlock(sender), "From: -\r\n   Sharda\r\n   14, Peth\r\n   Pune - 411002");
}

class Envelopes : public DeskTest {
 protected:
  void SetUp() override {
    OpenNewFirm();
    AddAccount(201, "Asha Traders", 140, "Surat");
    AddAccount(202, "O'Neil <& Sons>", 140);
    Db().Execute("update FAMaster set mName='Shri Asha',mhda1='Ring Road',mPhoneOff='0261-22' where mcd=201");
  }

  FormPtr Open(int party = 201) {
    FormPtr form = desk_.Module().GetForm("envelopeprint");
    form->Set("AcCode", party);
    Do([&] { gApp->ShowForm(form); });
    return form;
  }
  static Label& Object(const FormPtr& form, int index) { return At<Label>(form, "Lbl", index); }
  static Texts PartyOf(const FormPtr& form) {
    Texts captions;
    for (int object = 1; object <= 4; ++object) captions.push_back(Object(form, object).Caption());
    return captions;
  }
  static std::string Place(const FormPtr& form, int object) {
    return std::to_string(Object(form, object).Left()) + "," + std::to_string(Object(form, object).Top());
  }
  void Click(Control& control) {
    Do([&] { control.UserClick(); });
  }
  void Choose(const FormPtr& form, const char* combo, const char* text) {
    Do([&] { At<ComboBox>(form, combo).UserChoose(text); });
  }
};

TEST_F(Envelopes, APartysEnvelopeShowsAndPrintsWhatIsKnownOfIt) {
  const FormPtr form = Open();
  EXPECT_EQ(PartyOf(form), (Texts{"Shri Asha", "Asha Traders\r\nRing Road\r\nSurat", "Phone : 0261-22", ""}));
  EXPECT_EQ(Object(form, 5).Caption().substr(0, 32), "From: -\r\n   Sharda Trading Co.\r\n");
  for (const char* button : {"Previous", "Next", "PrintAll"}) {
    EXPECT_FALSE(At<CButtonBar>(form, "BtnBar1").Buttons(button).Enabled());
  }
  Choose(form, "Combo1", "SPEED POST");
  runtime_.Laid.Add({{"to", "printdialog"}, {"copies", 2}});
  Key(*form, keys::kF9);
  const PdfReader pdf(folder_.File("print-1.pdf"));
  ASSERT_EQ(pdf.Pages().size(), 2U);
  const double tolerance = 0.2 * PdfReader::kTwipsPerMillimetre;
  EXPECT_NEAR(pdf.Find("Shri", 2).left, 420, tolerance);
  EXPECT_NEAR(pdf.Find("Surat").left, 420, tolerance);
  EXPECT_NEAR(pdf.Find("Phone").top - pdf.Find("Asha", 1).top, 2640 - 960, tolerance + 30);
  EXPECT_EQ(pdf.Text(1).find("Mobile"), std::string::npos);
  EXPECT_NE(pdf.Text(1).find("SPEED POST"), std::string::npos);
  EXPECT_EQ(pdf.Text(1).find("Custom"), std::string::npos);

  Choose(form, "Combo1", "-None-");
  EXPECT_EQ(Object(form, 0).Caption(), "");
  Do([&] { At<ComboBox>(form, "Combo1").UserType("BY CAMEL"); });
  Key(*form, keys::kEscape);
  const FormPtr again = Open(202);
  EXPECT_EQ(Object(again, 0).Caption(), "BY CAMEL") << "the way of posting is kept for the user";
  EXPECT_EQ(PartyOf(again), (Texts{"O'Neil <& Sons>", "O'Neil <& Sons>", "", ""}))
      << "the lines begin with the name";
  Do([&] { again->Call("ShowParty", {0, true}); });
  EXPECT_EQ(PartyOf(again), Texts(4, ""));
  Do([&] { again->Call("ShowParty", {777, true}); });
  EXPECT_EQ(PartyOf(again), Texts(4, "")) << "a party that is gone";
}

TEST_F(Envelopes, EachSizeKeepsALayoutOfItsOwn) {
  FormPtr form = Open();
  const auto& combo = At<ComboBox>(form, "Combo1");
  Click(Object(form, 1));
  runtime_.Laid.Add({{"to", "font"}, {"name", "Tahoma"}, {"size", 9.75}, {"bold", true}});
  Key(*form, keys::kSpace);
  EXPECT_EQ(Events("font").size(), 1U) << "by the keyboard too";
  for (int i = 0; i < 4; ++i) Key(*form, keys::kLeft);
  Key(*form, keys::kDown, keys::kCtrl);
  EXPECT_EQ(Place(form, 1), "0,975");
  Do([&] { form->UserFocus(At<ComboBox>(form, "Combo1")); });
  Key(*form, keys::kUp);
  EXPECT_EQ(combo.Text(), "U.P.C.") << "the list uses the key itself";
  EXPECT_EQ(Place(form, 1), "0,975");
  Object(form, 2).Left = 427;
  runtime_.Laid.Add({{"to", "font"}, {"name", "Arial"}, {"size", 14}, {"italic", true}});
  Do([&] { Object(form, 2).UserDoubleClick(); });
  Click(At<CommandButton>(form, "btnConfig"));
  EXPECT_EQ(At<Label>(form, "Label2").Caption(), "Envelope Configuration - Medium");
  Key(*form, keys::kF7);
  Key(*form, keys::kRight);
  EXPECT_EQ(Place(form, 1), "0,975") << "nothing moves behind the frame";
  Click(At<CheckBox>(form, "Check1", 3));
  Click(At<CheckBox>(form, "Check1", 6));
  Do([&] { At<TextBox>(form, "Text1", 4).UserType("By hand <|||> only"); });
  Do([&] { At<TextBox>(form, "Text2", 1).UserType("0.5"); });
  Click(At<CheckBox>(form, "chkLandscape"));
  Key(*form, keys::kEscape);
  EXPECT_TRUE(form->IsLoaded()) << "Esc leaves the frame first";
  EXPECT_TRUE(Object(form, 7).Visible.Own());
  AnswerMessage();
  Key(*form, keys::kF7);
  EXPECT_EQ(Messages(), Texts{"Settings Saved"});
  Choose(form, "Combo2", "Large");
  EXPECT_EQ(Place(form, 1), "0,975") << "a size without a layout keeps what is shown";
  Key(*form, keys::kEscape);

  form = Open();
  EXPECT_EQ(Place(form, 1) + " " + Place(form, 2), "0,975 420,1200");
  EXPECT_EQ(Object(form, 2).Font(), (Font{"Arial", 14, false, true, false}));
  EXPECT_FALSE(Object(form, 3).Visible.Own());
  EXPECT_EQ(Object(form, 10).Caption(), "By hand <|||> only");
  EXPECT_EQ(Object(form, 1).Caption(), "Shri Asha");
  runtime_.Laid.Add({{"to", "printdialog"}});
  Key(*form, keys::kF9);
  const PdfReader pdf(folder_.File("print-1.pdf"));
  EXPECT_GT(pdf.Pages()[0].width, pdf.Pages()[0].height);
  EXPECT_NEAR(pdf.Find("Shri").left, 720, 0.2 * PdfReader::kTwipsPerMillimetre);
}

TEST_F(Envelopes, ADamagedLayoutIsToldAndTheRestStillComes) {
  FormPtr form = Open();
  AnswerMessage();
  Key(*form, keys::kF7);
  Key(*form, keys::kEscape);
  std::string stored = gApp->GetFirmSetting("EnvSettings.Medium");
  stored = text::ReplaceAll(stored, "Tahoma", "No Such Face");
  stored = text::ReplaceAll(stored, "Name,1,,28,64", "Name,1,,99999,64");
  gApp->PutFirmSetting("EnvSettings.Medium", stored);
  AnswerMessage();
  form = Open();
  EXPECT_EQ(Messages(), (Texts{"Settings Saved", "Missing Font: No Such Face"}));
  EXPECT_EQ(Place(form, 1), "20370,960") << "it is pulled back onto the form";
  Key(*form, keys::kEscape);
  gApp->PutFirmSetting("EnvSettings.Medium", "half<|||>half");
  form = Open();
  EXPECT_EQ(Events("error").at(0).at("routine"), "LoadEnvSettings");
  EXPECT_EQ(Place(form, 1), "420,960");
}

TEST_F(Envelopes, APartyIsAskedForOnce) {
  int asked = 0;
  runtime_.NextCommand = [&] {
    ++asked;
    const FormPtr picker = runtime_.ActiveForm();
    EXPECT_EQ(At<Label>(picker, "lblTitle").Caption(), "   Select Account");
    TypeKeys(*picker, "asha");
    Key(*picker, keys::kEnter);
    return true;
  };
  FormPtr form = Open(0);
  EXPECT_EQ(asked, 1);
  EXPECT_EQ(PartyOf(form)[0], "Shri Asha");
  Key(*form, keys::kEscape);
  runtime_.NextCommand = [&] {
    Key(*runtime_.ActiveForm(), keys::kEscape);
    return true;
  };
  form = Open(0);
  EXPECT_FALSE(form->IsLoaded());
}

TEST_F(Envelopes, TheRightIsAskedForEachTimeTheScreenComesUp) {
  OpenAsClerk();
  Grant("Clerk", "mst.envelopes", "N");
  const FormPtr form = Open();
  const FormPtr other = Open(202);
  AnswerMessage();
  Key(*other, keys::kF9);
  Grant("Clerk", "mst.envelopes", "");
  AnswerMessage();
  Key(*other, keys::kEscape);
  EXPECT_EQ(Messages(),
            (Texts{"You have no right to print here.", "You have no right to open this screen."}));
  EXPECT_FALSE(form->IsLoaded());
}

}  // namespace
}  // namespace quillon
