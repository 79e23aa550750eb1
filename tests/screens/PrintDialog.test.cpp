#include "host/services/host_services.h"
#include "tests/support/DeskFixture.h"
#include "tests/support/SpoolerPath.h"

namespace quillon {
namespace {

class PrintDialog : public DeskTest {
 protected:
  PrintDialog() { OpenNewFirm(); }

  /// Shows a dialog of that name with the answer laid.
  std::shared_ptr<PrintSetup> Ask(const std::string& name, Json answer) {
    answer["to"] = "printdialog";
    runtime_.Laid.Add(answer);
    std::shared_ptr<PrintSetup> setup = gReports->Print("Print");
    setup->PrinterNameSetting = name;
    gStd->ShowDialog(setup, nullptr);
    return setup;
  }
  std::string Offered() { return Events("printdialog").back().at("printer"); }

  TempFolder tools_;
  SpoolerPath spooler_{tools_, "echo Canteen", "lpstat"};
};

TEST_F(PrintDialog, ThePrinterIsKeptUnderItsNameAndNowhereElse) {
  std::shared_ptr<PrintSetup> setup = Ask("ChqPrint", {{"printer", "Canteen"}});
  EXPECT_FALSE(setup->Cancelled);
  setup->TakePrinter();
  EXPECT_EQ(runtime_.Printer().DeviceName, "Canteen");

  // Where the last job went, the next may be kept from: the PDF is a printer like any other.
  setup = Ask("", {{"printer", "PDF file"}});
  setup->TakePrinter();
  EXPECT_EQ(runtime_.Printer().DeviceName, "PDF file");
  EXPECT_EQ(setup->Get("PrinterObj").ToText(), "PDF file");

  setup = Ask("ChqPrint", {{"cancel", true}});
  EXPECT_EQ(Offered(), "Canteen");
  EXPECT_TRUE(setup->Cancelled);
  Ask("ChqPrint", Json::object());
  EXPECT_EQ(Offered(), "Canteen") << "what was cancelled is not kept";
  Ask("Other", Json::object());
  EXPECT_EQ(Offered(), "PDF file");

  // A printer that is gone gives way to the one at hand.
  const SpoolerPath fewer(tools_, "", "lpstat");
  Ask("ChqPrint", Json::object());
  EXPECT_EQ(Offered(), "PDF file");
  EXPECT_FALSE(runtime_.UsePrinter("Canteen"));
  EXPECT_THROW(Ask("", {{"printer", "Canteen"}}), HostError);
}

TEST_F(PrintDialog, AFontThatIsMissingIsToldByItsNumber) {
  const FormPtr form = gApp->GetForm("SelectAc");
  FontProperty& font = form->ControlAt("lblTitle").Font;
  font = {"times new roman", 9};
  try {
    font = {"Marrowgate Script", 9};
    ADD_FAILURE() << "a font that is nowhere was taken";
  } catch (const MissingFontError& error) {
    EXPECT_EQ(MissingFontError::kNumber, 380);
    EXPECT_EQ(std::string(error.what()), "Missing Font: Marrowgate Script");
  }
  EXPECT_EQ(font().Name, "times new roman");
}

}  // namespace
}  // namespace quillon
