#include "tests/support/DeskFixture.h"
#include "tests/support/PdfReader.h"

namespace quillon {
namespace {

class Module : public DeskTest {
 protected:
  void SetUp() override { OpenNewFirm(); }
};

TEST_F(Module, SaysWhoItIsAndMakesItsForms) {
  IModule& module = desk_.Module();
  EXPECT_EQ(module.ID(), "DutyworksModule");
  EXPECT_EQ(module.Description(), "Quillon Financial Accounting Extensions");
  EXPECT_EQ(&module.Obj(), &module);
  EXPECT_EQ(gSession->Modules().Item("DutyworksModule"), &module);
  const FormPtr form = module.GetForm("AcReConciliation");
  ASSERT_TRUE(form);
  EXPECT_EQ(form->Name(), "frmAcReconciliation");
  EXPECT_FALSE(form->IsLoaded()) << "made, not loaded";
  EXPECT_NE(module.GetForm("INTTMETHOD"), module.GetForm("inttmethod")) << "each call gives a new one";
  for (const char* unknown : {"", "acreconciliation ", "frmAcReconciliation", "mailmerges"}) {
    EXPECT_EQ(module.GetForm(unknown), nullptr) << unknown;
  }
  for (const char* name : {"", "acreconciliation", "Reconcile"}) EXPECT_EQ(module.RunProc(name, "1"), 0);
  EXPECT_TRUE(gRuntime->AllForms().empty());
}

TEST_F(Module, TerminateEndsItsFormsAndItsEar) {
  const FormPtr dialog = desk_.Module().GetForm("inttmethod");
  AddAccount(101, "Sahyadri Bank", 47);
  const FormPtr statement = ShowStatement();
  const FormPtr bench = ShowWorkbench(statement);
  Do([&] { gRuntime->Show(dialog); });
  desk_.Module().Terminate();
  EXPECT_FALSE(dialog->IsLoaded());
  EXPECT_FALSE(bench->IsLoaded());
  EXPECT_TRUE(statement->IsLoaded()) << "the desk's own screens are not the module's";
  desk_.Module().Terminate();
  bool cancel = false;
  gApp->MainWindow().MainMenuClick.Raise("MailMerge", cancel);
  EXPECT_FALSE(cancel);
  EXPECT_EQ(gRuntime->AllForms(), std::vector<FormPtr>{statement});
}

TEST(ModuleFile, KnowsNeitherTheToolkitNorTheDatabase) {
  const std::string libraries = PdfReader::Run("ldd " MODULE_FILE);
  EXPECT_NE(libraries.find("libquillon_host"), std::string::npos);
  for (const char* foreign : {"Qt", "fbclient", "Firebird"}) {
    EXPECT_EQ(libraries.find(foreign), std::string::npos) << libraries;
  }
  const std::string symbols = PdfReader::Run("nm -D --defined-only --format=posix " MODULE_FILE);
  std::string names;
  std::istringstream lines(symbols);
  for (std::string line; std::getline(lines, line);) names += line.substr(0, line.find(' ')) + ";";
  EXPECT_EQ(names, "CreateQuillonModule;");
}

}  // namespace
}  // namespace quillon
