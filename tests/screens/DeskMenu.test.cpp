#include "desk/screens/DeskMenu.h"

#include "books/Right.h"
#include "tests/support/DeskFixture.h"

namespace quillon {
namespace {

/// A module that has two forms.
class TwoForms : public IModule {
 public:
  void Init(HostApp&) override {}
  void Terminate() override {}
  std::string ID() const override { return "TwoForms"; }
  std::string Description() const override { return ""; }
  FormPtr GetForm(const std::string& name) override {
    if (name != "envelopeprint" && name != "bulkrate") return nullptr;
    return std::make_shared<Form>(name);
  }
  std::int16_t RunProc(const std::string&, const std::string&) override { return 0; }
  IModule& Obj() override { return *this; }
};

const std::vector<DeskMenuLine> kLines = {
    {.Menu = "&Books", .Place = 1, .Key = "Rates", .Caption = "&Rates", .FormKey = "bulkrate"},
    {.Menu = "&Books", .Place = 2, .Key = "Graph", .Caption = "&Graph", .FormKey = "graph"},
    {.Menu = "&Masters",
     .Place = 3,
     .Key = "Envelopes",
     .Caption = "&Envelopes",
     .RightKey = "mst.envelopes",
     .FormKey = "envelopeprint",
     .MenuEvent = "Elsewhere"},
};

class MenuOfDesk : public DeskTest {
 protected:
  std::vector<std::string> Shown(const DeskMenu& menu) {
    std::vector<std::string> shown;
    for (const DeskMenuLine& line : menu.Lines())
      shown.push_back(std::string(line.Key) + (menu.IsOn(line) ? "" : " off"));
    return shown;
  }

  TwoForms module_;
};

TEST_F(MenuOfDesk, HasTheLinesOfTheModulesFormsAndOpensThem) {
  OpenNewFirm();
  DeskMenu menu(module_, desk_.Session(), kLines);
  EXPECT_EQ(Shown(menu), (std::vector<std::string>{"Rates", "Envelopes"}));
  Do([&] { menu.Pick("Rates"); });
  const FormPtr rates = runtime_.ActiveForm();
  ASSERT_TRUE(rates);
  EXPECT_EQ(rates->Name(), "bulkrate");
  EXPECT_EQ(rates->CallingForm, gApp->MainWindow().MainForm());
  std::vector<std::string> events;
  gApp->MainWindow().MainMenuClick.Connect(&events,
                                           [&](const std::string& key, bool&) { events.push_back(key); });
  Do([&] { menu.Pick("Envelopes"); });
  gApp->MainWindow().MainMenuClick.Disconnect(&events);
  EXPECT_EQ(events, std::vector<std::string>{"Elsewhere"});
  EXPECT_EQ(runtime_.ActiveForm(), rates) << "the module opens what its event is for";
  EXPECT_THROW(menu.Pick("Graph"), HostError) << "the module has no such form";
}

TEST_F(MenuOfDesk, ALineIsOffForWhoHasNoRight) {
  OpenNewFirm();
  OpenAsClerk();
  DeskMenu menu(module_, desk_.Session(), kLines);
  EXPECT_EQ(Shown(menu), (std::vector<std::string>{"Rates", "Envelopes off"}));
  Refuses([&] { menu.Pick("Envelopes"); }, "The user has no right to \"Envelopes\"");
  Grant("Clerk", "mst.envelopes", "P");
  EXPECT_EQ(Shown(menu).back(), "Envelopes off") << "printing is another right";
  Grant("Clerk", "mst.envelopes", "N");
  EXPECT_EQ(Shown(menu).back(), "Envelopes");
}

TEST_F(MenuOfDesk, EachRightKeyOfALineIsOneOfTheRights) {
  for (const DeskMenuLine& line : DeskMenuLines()) {
    const std::string key = line.RightKey;
    if (key.empty()) continue;
    EXPECT_NE(RightCaption(key), key) << line.Key << " names a right that nobody is given";
  }
}

}  // namespace
}  // namespace quillon
