#include "books/Right.h"
#include "desk/screens/DeskMenu.h"
#include "desk/services/UserAdmin.h"
#include "tests/support/DeskFixture.h"

namespace quillon {
namespace {

/// The dialogs in which a firm is set up.
class FirmSetup : public DeskTest {
 protected:
  void SetUp() override { OpenNewFirm(); }

  void Open(const std::string& line, const std::function<void()>& act) {
    IModule& module = *gSession->Modules().Item("DutyworksModule");
    During([&] { DeskMenu(module, desk_.Session(), DeskMenuLines()).Pick(line); }, {[&] {
             form_ = runtime_.ActiveForm();
             act();
             if (form_->IsLoaded()) Key(*form_, keys::kEscape);
           }});
  }
  ComboBox& Choice(int index) { return At<ComboBox>(form_, "cmbChoice", index); }
  Label& State() { return At<Label>(form_, "lblState"); }
  void Answer(const std::string& name) { runtime_.Laid.Add({{"to", "input"}, {"text", name}}); }
  std::string Users() {
    std::string users;
    for (const User& user : UserAdmin(gSession->CommonDb()).All())
      users += user.Name + " " + std::to_string(user.Level) + "; ";
    return users;
  }

  FormPtr form_;
};

TEST_F(FirmSetup, OnlyTheParametersThatWereChangedAreStored) {
  gSession->CommonDb().Execute("insert into FirmParameters (ParameterNo,ParameterText) values (1025,'4')");
  Open("Parameters", [this] {
    EXPECT_EQ(Choice(0).Text() + Choice(2).Text() + Choice(3).Text() + Choice(4).Text(),
              "NoFourThe financial yearPages");
    Choice(1).UserChoose("Yes");
    Choice(4).UserChoose("Plain text");
    gSession->CommonDb().Execute("update FirmParameters set ParameterText='2' where ParameterNo=1025");
    Key(*form_, keys::kF7);
  });
  CFirm& firm = gSession->Firm();
  EXPECT_EQ(firm.Parameter(CFirm::kSerialColumn), "Yes");
  EXPECT_EQ(firm.Parameter(CFirm::kForbidSimilarBills), "");
  EXPECT_EQ(firm.Parameter(CFirm::kAmountDecimals), "2") << "another user's change stands";
  EXPECT_EQ(gApp->GetUserSetting("PrinterMode"), "2");
  Open("Parameters", [this] { Choice(3).UserChoose("The calendar year"); });
  EXPECT_EQ(firm.Parameter(CFirm::kInterestYear), "") << "left by Esc";
}

TEST_F(FirmSetup, UsersAreAddedGivenRightsAndDeleted) {
  Open("Users", [this] {
    EXPECT_EQ(State().Caption(),
              "This firm keeps no users: everybody may do everything. F2 adds the first one.");
    Answer("Asha");
    Key(*form_, keys::kF2);
    EXPECT_EQ(State().Caption(), "A user of level 9 may do everything.");
    EXPECT_FALSE(At<ListBox>(form_, "lstOpen").Enabled);
    Answer("Meera");
    Key(*form_, keys::kF2);
    Answer("meera");
    Key(*form_, keys::kF2);
    At<ComboBox>(form_, "cmbLevel").UserChoose("3");
    At<ListBox>(form_, "lstOpen").UserCheck(0, true);
    Key(*form_, keys::kF7);
  });
  EXPECT_EQ(Told(), Texts{"W: There is a user meera already."});
  EXPECT_EQ(Users(), "Asha 9; Meera 3; ");
  const std::string right = Rights().front().Key;
  CDbLink& common = gSession->CommonDb();
  EXPECT_TRUE(MayDo(common, {"Meera", 3}, right, "N"));
  EXPECT_FALSE(MayDo(common, {"Meera", 3}, right, "P"));

  // Letters that the dialog does not know stay; what was ticked is not lost when another user is chosen.
  Grant("Meera", right, "NX");
  AnswerMessage();
  Open("Users", [this] {
    At<ComboBox>(form_, "cmbUser").UserChoose("Meera");
    At<ListBox>(form_, "lstPrint").UserCheck(0, true);
    At<ComboBox>(form_, "cmbUser").UserChoose("Asha");
    At<ComboBox>(form_, "cmbLevel").UserChoose("8");
    Key(*form_, keys::kF7);
    EXPECT_TRUE(At<ComboBox>(form_, "cmbLevel").HasFocus());
  });
  EXPECT_EQ(UserAdmin(common).ActionsOf("Meera").at(right), "XNP");
  EXPECT_EQ(Told(), (Texts{"Q: What Meera may do was changed. Save it?",
                           "W: The firm needs a user of level 9 beside Asha."}));
  AnswerMessage();
  Open("Users", [this] {
    At<ComboBox>(form_, "cmbUser").UserChoose("Meera");
    Key(*form_, keys::kF3);
  });
  EXPECT_EQ(Users(), "Asha 9; ");
  EXPECT_TRUE(UserAdmin(common).ActionsOf("Meera").empty());
}

TEST_F(FirmSetup, IsNotForThoseWithoutTheRight) {
  OpenAsClerk();
  IModule& module = *gSession->Modules().Item("DutyworksModule");
  DeskMenu menu(module, desk_.Session(), DeskMenuLines());
  Refuses([&] { menu.Pick("Users"); }, "The user has no right to \"Users and Rights\"");
  Grant("Clerk", "firm.users", "N");
  During([&] { menu.Pick("Users"); }, {[this] {
           form_ = runtime_.ActiveForm();
           At<ComboBox>(form_, "cmbUser").UserChoose("Clerk");
           Key(*form_, keys::kF3);
           Key(*form_, keys::kEscape);
         }});
  EXPECT_EQ(Told(), Texts{"W: You work as Clerk."});
}

}  // namespace
}  // namespace quillon
