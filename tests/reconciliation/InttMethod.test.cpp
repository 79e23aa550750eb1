#include "tests/support/DeskFixture.h"

namespace quillon {
namespace {

class InttMethod : public DeskTest {
 protected:
  void SetUp() override {
    OpenNewFirm();
    dialog_ = desk_.Module().GetForm("InttMethod");
  }

  CTextPlus& Rate() { return At<CTextPlus>(dialog_, "txpInttRate"); }
  ComboBox& Method() { return At<ComboBox>(dialog_, "cmbInttMethod"); }

  /// Shows the dialog; the acts are a person's in it, who leaves it at last.
  void Show(const Acts& acts) {
    During([&] { gRuntime->Show(dialog_, true); }, acts);
    EXPECT_FALSE(dialog_->IsLoaded());
  }
  void Press(int button) { At<CButton>(dialog_, "btnOKCancel", button).UserClick(); }

  FormPtr dialog_;
};

TEST_F(InttMethod, OffersTheMethodsAndGivesBackTheChoice) {
  dialog_->Set("InttRate", "9.5");
  Show({[&] {
          EXPECT_TRUE(dialog_->Get("Cancelled").ToFlag());
          EXPECT_EQ(Rate().Text() + " " + Method().Text(), "9.5000 Product Method") << "it was empty";
        },
        [&] { Method().UserChoose("FDR - Charge Only"); }, [&] { Rate().UserType("12.34567"); },
        [&] { Press(0); }});
  EXPECT_FALSE(dialog_->Get("Cancelled").ToFlag());
  EXPECT_EQ(dialog_->Get("InttRate").ToText(), "12.3457");
  EXPECT_EQ(dialog_->Get("InttMethod").ToText(), "FDR - Charge Only");
  // Shown once more it starts from what it gave back, and Cancel leaves that alone.
  Show({[&] { EXPECT_EQ(Method().ListIndex(), 2); }, [&] { Method().UserChoose(4); },
        [&] { Key(*dialog_, keys::kEscape); }});
  EXPECT_TRUE(dialog_->Get("Cancelled").ToFlag());
  EXPECT_EQ(dialog_->Get("InttMethod").ToText(), "FDR - Charge Only");
}

TEST_F(InttMethod, AMethodThatIsNotOfferedGivesTheFirst) {
  for (const bool offered : {false, true}) {
    dialog_->Set("InttMethod", "Business Interest");
    dialog_->Set("ShowBusMethod", offered);
    Show({[&] { EXPECT_EQ(Method().ListCount(), offered ? 6 : 5); },
          [&] { EXPECT_EQ(Method().ListIndex(), offered ? 5 : 0); }, [&] { Press(1); }});
  }
}

TEST_F(InttMethod, ARateIsNeeded) {
  const auto refused = [&](const std::string& typed) {
    AnswerMessage();
    Rate().UserType(typed);
    Key(*dialog_, keys::kF7);
    EXPECT_EQ(Messages(), Texts{"Enter Interest Rate"});
    EXPECT_TRUE(dialog_->IsShownToUser());
    EXPECT_TRUE(Rate().HasFocus());
  };
  Show({[&] { EXPECT_EQ(Rate().Text(), "0.0000"); }, [&] { refused("abc"); }, [&] { refused(""); },
        [&] { refused("0.0"); }, [&] { Rate().UserType("-6.25x"); }, [&] { Key(*dialog_, keys::kF7); }});
  EXPECT_EQ(dialog_->Get("InttRate").ToText(), "-6.25");
}

TEST_F(InttMethod, SavingsBankWarnsWhenThePersonPicksIt) {
  dialog_->Set("InttMethod", "Savings Bank");
  Show({[&] { EXPECT_EQ(Method().ListIndex(), 3); }, [&] { EXPECT_EQ(Messages(), Texts()) << "not at load"; },
        [&] { Method().UserChoose(0); },
        [&] {
          AnswerMessage();
          Method().UserChoose(3);
          EXPECT_EQ(Messages(),
                    Texts{"Savings Bank method is available only for backward compatibility. Product method "
                          "may be used for calculating interest on Savings A/c from F.Y. 2011-12 onwards."});
          EXPECT_EQ(Method().Text(), "Savings Bank");
        },
        [&] { Press(1); }});
}

TEST_F(InttMethod, AnOldYearKnowsTheSavingsBank) {
  desk_.CloseFirm();
  FirmDetails details;
  details.FirmName = "Old";
  CreateFirm(folder_.Path() / "old", details, {2010});
  desk_.OpenFirm((folder_.Path() / "old").string());
  Show({[&] { Method().UserChoose(3); }, [&] { EXPECT_EQ(Messages(), Texts()); }, [&] { Press(1); }});
}

}  // namespace
}  // namespace quillon
