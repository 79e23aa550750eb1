#include "tests/support/DeskFixture.h"

namespace quillon {
namespace {

using Texts = std::vector<std::string>;

/// A dialog with two fields and a grid that tells what happens to it.
class Dialog : public Form {
 public:
  Dialog() : Form("Dialog") {
    btnOKCancel(0).Click = [this] { gRuntime->Hide(*this); };
    btnOKCancel(1).Click = [this] { gRuntime->Unload(*this); };
    txtFirst.Validate = [this](bool& cancel) { cancel = txtFirst.Text == "bad"; };
    Grid.Rows = 4;
    Grid.Cols = 3;
  }

  CTextPlus txtFirst{*this, "txtFirst"};
  CTextPlus txtSecond{*this, "txtSecond"};
  CGridPlus Grid{*this, "Grid"};
  ControlArray<CButton> btnOKCancel{*this, "btnOKCancel", {0, 1}};
  std::function<void()> Leaving;
  std::function<void(KeyEvent&)> Pressed;
  Texts Told;

 protected:
  void OnLoad() override { Told.push_back(txtFirst.Visible ? "load, seen" : "load"); }
  void OnActivate() override { Told.push_back(txtFirst.Visible ? "activate, seen" : "activate"); }
  void OnUnload() override {
    Told.push_back("unload");
    if (Leaving) Leaving();
  }
  void OnKeyDown(KeyEvent& key) override {
    if (Pressed) Pressed(key);
  }
  void OnKeyPress(int& character) override {
    if (character != keys::kEnter || ActiveControl()->KeepsEnter()) return;
    gStd->SendKeys("{TAB}");
    character = 0;
  }
};

class FormLife : public DeskTest {
 protected:
  void SetUp() override { OpenNewFirm(); }

  std::shared_ptr<Dialog> Shown() {
    auto dialog = std::make_shared<Dialog>();
    Do([&] { gRuntime->Show(dialog); });
    return dialog;
  }
};

TEST_F(FormLife, LoadsIsSeenActivatesAndUnloads) {
  const auto first = Shown();
  EXPECT_EQ(first->Told, (Texts{"load", "activate, seen"}));
  const auto second = Shown();
  Do([&] { gRuntime->Unload(*second); });
  EXPECT_EQ(second->Told.back(), "unload");
  EXPECT_EQ(first->Told, (Texts{"load", "activate, seen", "activate, seen"}));
  EXPECT_EQ(gRuntime->Forms(Form::Origin::Module), std::vector<FormPtr>{first});
}

TEST_F(FormLife, AClosedFormKeepsItsCellsAsLongAsItsCallerMayLook) {
  const auto owner = Shown();
  const auto asked = std::make_shared<Dialog>();
  const auto picker = std::make_shared<Dialog>();
  picker->Grid.SetTextMatrix(3, 1, "Harbour Mills");
  std::string taken;
  owner->Pressed = [&](KeyEvent& key) {
    key.KeyCode = 0;
    gRuntime->Show(asked, true);
  };
  asked->Pressed = [&](KeyEvent& key) {
    if (key.KeyCode != keys::kF2) return;
    key.KeyCode = 0;
    gRuntime->Show(picker, true);
    taken = picker->Grid.TextMatrix(3, 1);
  };
  During([&] { owner->UserKey(keys::kF2, 0, 0); },
         {[&] { Key(*asked, keys::kF2); }, [&] { Key(*picker, keys::kEscape); },
          [&] { EXPECT_EQ(picker->Grid.Rows(), 2) << "who asked is done"; },
          [&] { Key(*asked, keys::kEscape); }});
  EXPECT_EQ(taken, "Harbour Mills");
  EXPECT_EQ(owner->Grid.Rows(), 4);
}

TEST_F(FormLife, AFormMayCloseInItsOwnKeyHandler) {
  const auto dialog = Shown();
  Do([&] { dialog->UserFocus(dialog->Grid); });
  dialog->Grid.BeforeEdit = [](int, int, bool&, std::string&) {};
  dialog->Grid.EditKeyDown = [&](int, int, KeyEvent&) { gRuntime->Unload(*dialog); };
  TypeKeys(*dialog, "5");
  Key(*dialog, keys::kEnter);
  EXPECT_FALSE(dialog->IsLoaded());
  const auto other = Shown();
  other->Pressed = [&](KeyEvent&) { gRuntime->Unload(*other); };
  TypeKeys(*other, "x");
  EXPECT_FALSE(other->IsLoaded());
  EXPECT_EQ(other->txtFirst.Text(), "");
}

TEST_F(FormLife, TerminateEndsAllFormsAlsoThoseThatFail) {
  const auto first = Shown();
  const auto second = Shown();
  first->Leaving = [] { throw HostError("Not now"); };
  desk_.Module().Terminate();
  EXPECT_FALSE(second->IsLoaded());
  EXPECT_FALSE(first->IsLoaded()) << "what fails in its unload is gone all the same";
  EXPECT_TRUE(gRuntime->Forms(Form::Origin::Module).empty());
  EXPECT_EQ(gRuntime->ActiveForm(), nullptr);
}

TEST_F(FormLife, EnterIsTabAndAVetoKeepsTheFocus) {
  const auto dialog = Shown();
  EXPECT_TRUE(dialog->txtFirst.HasFocus());
  Texts order;
  dialog->txtFirst.LostFocus = [&] { order.push_back("first lost"); };
  dialog->txtSecond.GotFocus = [&] { order.push_back("second got"); };
  TypeKeys(*dialog, "bad");
  Key(*dialog, keys::kEnter);
  EXPECT_TRUE(dialog->txtFirst.HasFocus());
  Key(*dialog, keys::kTab);
  Do([&] { EXPECT_FALSE(dialog->UserFocus(dialog->Grid)); });
  Do([&] { dialog->btnOKCancel(0).UserClick(); });
  EXPECT_TRUE(dialog->IsShownToUser()) << "a button is not reached past a refused field";
  EXPECT_EQ(order, Texts());
  Do([&] { dialog->txtFirst.UserType("good"); });
  Key(*dialog, keys::kEnter);
  EXPECT_EQ(order, (Texts{"first lost", "second got"}));
  Do([&] { dialog->txtFirst.UserType("bad"); });
  Key(*dialog, keys::kEscape);
  EXPECT_FALSE(dialog->IsLoaded()) << "Esc leaves without asking the field";
}

/// The grid of the dialog, telling its events in the order in which they come.
class EditCycle : public FormLife {
 protected:
  void SetUp() override {
    FormLife::SetUp();
    dialog_ = Shown();
    Grid().BeforeEdit = [this](int row, int col, bool& cancel, std::string& action) {
      Tell("before", row, col);
      cancel = col == 1;
      if (row == 3) action = "Stop";
    };
    Grid().CellGotFocus = [this](int row, int col) { Tell("got", row, col); };
    Grid().CellEnter = [this](int row, int col) { Tell("enter", row, col); };
    Grid().Changed = [this] { told_.push_back("changed"); };
    Grid().ValidateCell = [this](int row, int col, std::string& text, bool& cancel) {
      Tell("validate " + text, row, col);
      cancel = text == "bad";
      if (text == "a") text = "A";
    };
    Grid().CellLostFocus = [this](int row, int col) { Tell("lost", row, col); };
    Grid().AfterEdit = [this](int row, int col) { Tell("after " + Grid().TextMatrix(row, col), row, col); };
    Grid().RowChange = [this](int row) { told_.push_back("row " + std::to_string(row)); };
    Do([&] { Grid().UserMoveTo(1, 0); });
    told_.clear();
  }

  CGridPlus& Grid() { return dialog_->Grid; }
  void Tell(const std::string& what, int row, int col) {
    told_.push_back(what + " " + std::to_string(row) + "," + std::to_string(col));
  }

  std::shared_ptr<Dialog> dialog_;
  Texts told_;
};

TEST_F(EditCycle, EventsComeInTheirOrder) {
  TypeKeys(*dialog_, "a");
  EXPECT_EQ(told_, (Texts{"before 1,0", "got 1,0", "enter 1,0", "changed"}));
  told_.clear();
  Key(*dialog_, keys::kEnter);
  EXPECT_EQ(told_, (Texts{"validate a 1,0", "lost 1,0", "after A 1,0", "before 1,1", "before 1,2", "got 1,2",
                          "enter 1,2"}));
  told_.clear();
  TypeKeys(*dialog_, "bad");
  Key(*dialog_, keys::kEnter);
  Do([&] { Refuses([&] { Grid().UserMoveTo(2, 0); }, "The cell under edit was refused"); });
  Do([&] { EXPECT_FALSE(dialog_->UserFocus(dialog_->txtFirst)); });
  EXPECT_TRUE(Grid().EditMode());
  EXPECT_EQ(Grid().EditBox.Text(), "bad");
  EXPECT_EQ(Grid().TextMatrix(1, 2), "");
  told_.clear();
  Do([&] { Grid().UserType("c"); });
  Key(*dialog_, keys::kTab);
  EXPECT_EQ(told_, (Texts{"changed", "validate c 1,2", "lost 1,2", "after c 1,2", "before 2,0", "row 2",
                          "got 2,0", "enter 2,0"}));
}

TEST_F(EditCycle, StopEndsTheMoveAndHiddenRowsArePassedOver) {
  Grid().SetRowHeight(2, 0);
  Do([&] { Grid().SetCell(1, 2); });
  told_.clear();
  Key(*dialog_, keys::kEnter);
  EXPECT_EQ(told_, (Texts{"validate  1,2", "lost 1,2", "after  1,2", "before 3,0"}));
  EXPECT_FALSE(Grid().EditMode());
  EXPECT_EQ(Grid().Row(), 1) << "the cursor stays";
  Key(*dialog_, keys::kDown);
  EXPECT_EQ(Grid().Row(), 3);
}

TEST_F(EditCycle, AHandlerThatFailsKeepsTheTypedText) {
  bool broken = true;
  Grid().ValidateCell = [&](int, int, std::string&, bool&) {
    if (broken) throw HostError("The connection was lost");
  };
  EXPECT_FALSE(EditCell(Grid(), 2, 0, "typed"));
  EXPECT_EQ(Errors(), Texts{"The connection was lost"});
  EXPECT_TRUE(Grid().EditMode());
  EXPECT_EQ(Grid().EditBox.Text(), "typed");
  EXPECT_EQ(Grid().TextMatrix(2, 0), "");
  broken = false;
  Key(*dialog_, keys::kEnter);
  EXPECT_EQ(Grid().TextMatrix(2, 0), "typed");
}

TEST_F(EditCycle, AnEditCancelledInItsValidationIsLeftOnce) {
  Grid().ValidateCell = [&](int, int, std::string&, bool&) { Grid().CancelEdit(); };
  EXPECT_TRUE(EditCell(Grid(), 2, 0, "typed"));
  EXPECT_EQ(std::count(told_.begin(), told_.end(), "lost 2,0"), 1);
  EXPECT_EQ(Grid().TextMatrix(2, 0), "");
}

}  // namespace
}  // namespace quillon
