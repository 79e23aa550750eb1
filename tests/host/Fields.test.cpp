#include "host/forms/ScreenForm.h"
#include "host/services/IStd.h"
#include "tests/support/DeskFixture.h"

namespace quillon {
namespace {

using Texts = std::vector<std::string>;

class frmLetter : public Form {
 public:
  frmLetter() : Form("frmLetter") {
    Width = 12000;
    Height = 9000;
    txpName.Move(9000, 300, 2400, 375);
    txtLetter.MultiLine = true;
    txtLetter.Move(300, 900, 4500, 1500);
    Grid.Move(300, 3000, 6000, 2400);
    Grid.SetColWidth(0, 1200);
    fraTo.Move(600, 8000, 6000, 900);
    txtToAc.Move(150, 300, 3000, 345);
    SelGrid1.Move(0, 0, 4000, 3000);
    SelGrid1.Visible = false;
  }

  CTextPlus txpName{*this, "txpName"};
  TextBox txtLetter{*this, "txtLetter"};
  ControlArray<Label> Lbl{*this, "Lbl", {0, 2}};
  Frame fraTo{*this, "fraTo"};
  TextBox txtToAc{fraTo, "txtToAc"};
  CheckBox chkCopy{*this, "chkCopy"};
  CEditGrid Grid{*this, "Grid"};
  CSelGrid SelGrid1{*this, "SelGrid1"};

 protected:
  void OnKeyPress(int& character) override {
    if (character != keys::kEnter || ActiveControl()->KeepsEnter()) return;
    gStd->SendKeys("{TAB}");
    character = 0;
  }
};

class Fields : public DeskTest {
 protected:
  void SetUp() override {
    OpenNewFirm();
    form_ = std::make_shared<frmLetter>();
    Do([&] { gRuntime->Show(form_); });
  }

  TextBox& Letter() { return form_->txtLetter; }
  CSelGrid& List() { return form_->SelGrid1; }

  void LoadParties() {
    AddAccount(201, "Deccan Bank");
    AddAccount(202, "Harbour Mills");
    List().Load("Select MHD,MCD from FAMaster where MCD>200 and MCD<300 order by MHD", Db(), false, 0);
  }

  std::shared_ptr<frmLetter> form_;
};

TEST_F(Fields, ALetterIsWrittenByKeys) {
  const std::string paragraph =
      "We have received your letter of the fifth and thank you for the payment that came with it yesterday.";
  Do([&] {
    form_->UserFocus(Letter());
    form_->UserPaste("Dear Sir,\n\n" + paragraph + "\nYours");
  });
  EXPECT_EQ(Letter().Text(), "Dear Sir,\r\n\r\n" + paragraph + "\r\nYours");
  const auto lines = [&] { return Letter().Lines().All(); };
  ASSERT_GE(lines().size(), 5U) << "the paragraph goes over several lines";
  std::string joined;
  for (std::size_t i = 2; i + 1 < lines().size(); ++i) {
    joined += lines()[i].text;
    EXPECT_LE(gRuntime->TextWidth(Letter().Font, lines()[i].text), Letter().Width());
  }
  EXPECT_EQ(joined, paragraph) << "and loses nothing";
  const int second = lines()[3].start;
  // Up and down the lines as they are shown, about as far from the left.
  Key(*form_, keys::kHome, keys::kCtrl);
  for (int i = 0; i < 6; ++i) Key(*form_, keys::kRight);
  Key(*form_, keys::kDown);
  EXPECT_EQ(Letter().Caret(), lines()[1].start) << "an empty line has one place";
  Key(*form_, keys::kDown);
  Key(*form_, keys::kDown);
  EXPECT_NEAR(Letter().Caret(), second + 6, 2);
  Key(*form_, keys::kHome);
  EXPECT_EQ(Letter().Caret(), second);
  Key(*form_, keys::kEnd, keys::kShift);
  EXPECT_EQ(Letter().Lines().LineAt(Letter().Caret()), 3) << "the end of a broken line is not the next one";
  EXPECT_GE(Letter().SelLength, static_cast<int>(lines()[3].text.size()) - 1);
  Key(*form_, keys::kUp);
  Key(*form_, keys::kPageDown);
  EXPECT_EQ(Letter().Lines().LineAt(Letter().Caret()), static_cast<int>(lines().size()) - 1);
  Key(*form_, keys::kPageUp);
  EXPECT_EQ(Letter().Lines().LineAt(Letter().Caret()), 0);
  // What is selected over lines goes as one.
  Key(*form_, keys::kHome, keys::kCtrl);
  Key(*form_, keys::kDown, keys::kShift);
  Key(*form_, keys::kDown, keys::kShift);
  Key(*form_, keys::kDelete);
  EXPECT_EQ(Letter().Text(), paragraph + "\r\nYours");
  Key(*form_, keys::kEnd, keys::kCtrl);
  Key(*form_, keys::kEnter);
  TypeKeys(*form_, "x");
  EXPECT_EQ(Letter().Text(), paragraph + "\r\nYours\r\nx");
  Letter().Locked = true;
  Refuses([&] { form_->UserPaste("y"); }, "txtLetter is locked");
  Do([&] {
    form_->UserFocus(form_->txpName);
    form_->UserPaste("First\nSecond");
  });
  EXPECT_EQ(form_->txpName.Text(), "First");
}

TEST_F(Fields, AListUnderAFieldTakesOnlyWhatWasTypedOrGoneTo) {
  LoadParties();
  Texts picked;
  List().Selected = [&] { picked.push_back(List().Cell(List().Grid.Row, 1)); };
  form_->txpName.GotFocus = [&] { List().OpenUnder(form_->txpName); };
  form_->txpName.LostFocus = [&] { List().Close(); };
  const auto enter = [&](const char* text) {
    Do([&] {
      form_->UserFocus(form_->txpName);
      form_->txpName.UserType(text);
    });
    Key(*form_, keys::kEnter);
  };
  Do([&] { form_->UserFocus(form_->txtToAc); });
  enter("har");
  EXPECT_EQ(picked, Texts{"202"});
  EXPECT_EQ(form_->txpName.Text(), "Harbour Mills");
  EXPECT_TRUE(List().Visible);
  EXPECT_EQ(List().Left(), 8000) << "moved to the left, so that it ends with the form";
  EXPECT_EQ(List().Top(), 675);
  Key(*form_, keys::kEnter);
  EXPECT_FALSE(List().Visible) << "the next Enter goes on";
  enter("zzz");
  EXPECT_EQ(picked.size(), 1U);
  EXPECT_EQ(form_->txpName.Text(), "zzz") << "a text that finds nothing is the user's own";
  EXPECT_FALSE(form_->txpName.HasFocus());
  enter("");
  EXPECT_EQ(picked.size(), 1U) << "nothing typed takes nothing";
  // In a frame at the bottom of the form it stands above the box.
  Do([&] {
    form_->UserFocus(form_->txtToAc);
    List().OpenUnder(form_->txtToAc);
  });
  EXPECT_EQ(List().Left(), 750);
  EXPECT_EQ(List().Top() + List().Height(), 8300);
  Key(*form_, keys::kUp);
  Key(*form_, keys::kEnter);
  EXPECT_EQ(form_->txtToAc.Text(), "Deccan Bank");
  EXPECT_THROW(List().OpenUnder(form_->fraTo), HostError);
}

TEST_F(Fields, AListNarrowsToWhatIsTypedBestFirst) {
  AddAccount(201, "Bank of Pune", 140, "Pune");
  AddAccount(202, "Asha Traders", 140, "Bankura");
  AddAccount(203, "Sahyadri Bank", 140, "Pune");
  AddAccount(204, "Embankment Works", 140, "Nashik");
  List().Load("Select MHD,MCD,MST from FAMaster where MCD>200 and MCD<300 order by MCD", Db(), false, 0);
  List().Grid.SetColWidth(1, 0);
  Texts picked;
  List().Selected = [&] { picked.push_back(List().Cell(List().Grid.Row, 1)); };
  Do([&] {
    form_->UserFocus(form_->txpName);
    List().OpenUnder(form_->txpName);
  });
  const auto shown = [&](const std::string& typed) {
    Do([&] { form_->txpName.UserType(typed); });
    return List().Grid.ShownRows();
  };
  EXPECT_EQ(shown("bank"), (std::vector<int>{1, 3, 2})) << "the name's beginning, a word of it, the station";
  EXPECT_EQ(shown("pune sah"), std::vector<int>{3});
  EXPECT_EQ(shown("203"), std::vector<int>()) << "a column that nobody sees finds nothing";
  Key(*form_, keys::kDown);
  EXPECT_FALSE(List().HasChoice());
  EXPECT_EQ(shown(""), (std::vector<int>{1, 2, 3, 4})) << "the caller's order before anything is typed";
  EXPECT_EQ(shown("bank"), (std::vector<int>{1, 3, 2}));
  Key(*form_, keys::kDown);
  Key(*form_, keys::kEnter);
  EXPECT_EQ(picked, Texts{"203"});
  EXPECT_EQ(List().Grid.Row(), 3) << "rows are those of the list";
  List().TakesNewNames = true;
  shown("traders");
  EXPECT_FALSE(List().HasChoice()) << "a new name is not taken for another";
  shown("as");
  EXPECT_TRUE(List().HasChoice());
}

TEST_F(Fields, AListUnderACellFollowsTheCell) {
  LoadParties();
  CEditGrid& grid = form_->Grid;
  grid.Cols = 2;
  grid.Rows = 4;
  grid.BeforeEdit = [](int, int, bool&, std::string&) {};
  grid.CellGotFocus = [&](int, int) { List().OpenUnder(grid, {120, 4200, 120}); };
  grid.CellLostFocus = [&](int, int) { List().Close(); };
  Do([&] { grid.UserEnterCell(2, 1); });
  EXPECT_EQ(List().Left(), grid.Left + grid.CellLeft() + 120);
  EXPECT_EQ(List().Top(), grid.Top + grid.CellTop() + grid.CellHeight());
  EXPECT_EQ(List().Width(), 4200);
  EXPECT_EQ(List().Top() + List().Height(), 9000 - 120);
  TypeKeys(*form_, "h");
  Key(*form_, keys::kEnter);
  EXPECT_EQ(grid.EditBox.Text(), "Harbour Mills") << "picked without leaving the cell";
  Key(*form_, keys::kEnter);
  EXPECT_EQ(grid.TextMatrix(2, 1), "Harbour Mills");
  EXPECT_EQ(grid.EditRow(), 3) << "and the next Enter goes on";
  Do([&] { grid.CancelEdit(); });
  EXPECT_FALSE(List().Visible);
  EXPECT_EQ(List().Width(), 4000);
}

TEST_F(Fields, LateCallersReachWhatIsInside) {
  form_->Set("SelGrid1.TitleLabel.Caption", "Existing Letters");
  form_->Set("Lbl(2).Caption", "Phone");
  form_->Set("txpName.TextBox.MaxLength", 3);
  form_->Set("Grid.FlexGrid.Rows", 9);
  EXPECT_EQ(List().Title.Caption() + form_->Lbl(0).Caption() + form_->Lbl(2).Caption(),
            "Existing LettersPhone");
  Do([&] { form_->txpName.UserType("12345"); });
  EXPECT_EQ(form_->Get("txpName.Text").ToText(), "123");
  EXPECT_EQ(form_->Grid.Rows(), 9);
  EXPECT_EQ(form_->Get("ScaleWidth").ToInteger(), 12000);
  EXPECT_THROW(form_->Set("Lbl(1).Caption", "x"), HostError);
  EXPECT_THROW(form_->Get("SelGrid1.Footer.Rows"), HostError);
}

/// A screen with a hidden and a disabled button, which answers F1 itself when it is told to.
class frmBar : public ScreenForm {
 public:
  frmBar() : ScreenForm(kSpec, Origin::Module) {}

  std::vector<std::string> PressedKeys;
  bool AnswersHelp = false;

 protected:
  void BuildBar() override {
    BtnBar1.AddButtons({"One,F2: One", "Two,F3: Two", "Three,F4: Three"});
    BtnBar1.HideButtons({"Two"});
    BtnBar1.DisableButtons({2});
  }
  void LoadScreen() override { HelpContext = 12; }
  void Pressed(const std::string& key) override { PressedKeys.push_back(key); }
  void OnKeyDown(KeyEvent& key) override {
    if (AnswersHelp && key.KeyCode == keys::kF1) {
      gStd->ShowHelp(7);
      key.KeyCode = 0;
    }
    ScreenForm::OnKeyDown(key);
  }

 private:
  static constexpr ScreenSpec kSpec{"frmBar", "Bar", "", "", "", "", keys::kF2, keys::kF4};
};

TEST_F(Fields, AFunctionKeyNeverPressesAButtonThatAPersonCannotPress) {
  const auto screen = std::make_shared<frmBar>();
  Do([&] { gRuntime->Show(screen); });
  for (const int key : {keys::kF2, keys::kF3, keys::kF4}) Key(*screen, key);
  EXPECT_EQ(screen->PressedKeys, std::vector<std::string>{"One"});
  Refuses([&] { screen->BtnBar1.UserPress("Two"); }, "BtnBar1 button Two is hidden");
  Refuses([&] { screen->BtnBar1.UserPress("Three"); }, "BtnBar1 button Three is disabled");
}

TEST_F(Fields, ACheckBoxIsTurnedByTheBlankKey) {
  int turned = 0;
  form_->chkCopy.Click = [&turned] { ++turned; };
  Do([this] { form_->UserFocus(form_->chkCopy); });
  for (const int value : {1, 0}) {
    Key(*form_, keys::kSpace);
    EXPECT_EQ(form_->chkCopy.CheckValue, value);
  }
  Key(*form_, keys::kSpace, keys::kCtrl);
  EXPECT_EQ(turned, 2);
}

TEST_F(Fields, HelpIsTheFormsOwnAffair) {
  const auto screen = std::make_shared<frmBar>();
  Do([&] { gRuntime->Show(screen); });
  Key(*screen, keys::kF1);
  One("help", {{"context", 12}});
  screen->AnswersHelp = true;
  Key(*screen, keys::kF1);
  One("help", {{"context", 7}});  // once, and as the form says
  screen->QuillonStdButtons1.Buttons(CStdButtons::kHelp).Click();
  One("help", {{"context", 12}});
  screen->QuillonStdButtons1.ButtonClick = [](int, bool& cancel) { cancel = true; };
  for (int i = 0; i < CStdButtons::kCount; ++i) screen->QuillonStdButtons1.Buttons(i).Click();
  EXPECT_EQ(Events("help").size(), 0U) << "Cancel holds for every button";
  EXPECT_TRUE(screen->IsLoaded());
}

}  // namespace
}  // namespace quillon
