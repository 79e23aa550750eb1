#include "host/services/PrintSetup.h"

#include <algorithm>

#include "host/data/CNameValues.h"
#include "host/forms/Runtime.h"
#include "host/services/IApp.h"
#include "host/values/Text.h"

namespace quillon {

namespace {

constexpr const char* kPrinter = "Printer";
constexpr const char* kColorMode = "ColorMode";
constexpr const char* kCopies = "Copies";

}  // namespace

PrintSetup::PrintSetup() : Form("PrintSetup", Origin::Desk) {
  Caption = "Print";
  Member("PrinterNameSetting", PrinterNameSetting);
  Member("OE", OE);
  Member("Color", Color);
  Member("PrintStamp", PrintStamp);
  Member("PageFrom", PageFrom);
  Member("PageTo", PageTo);
  Member("MaxPage", MaxPage);
  Member("Copies", Copies);
  Member("SeeFirst", SeeFirst);
  Member("Orientation", Orientation);
  Member("ColorMode", ColorMode);
  Member("PrinterObj", printerName_);
  Member("Cancelled", Cancelled);
}

void PrintSetup::Show(int /*modal*/) { AskInstead(); }

bool PrintSetup::AskInstead() {
  Cancelled = true;
  if (!PrinterObj && !printerName_.empty()) PrinterObj = PrinterDevice{printerName_};
  Recall();
  if (!PrinterObj) PrinterObj = PrinterDevice{gRuntime->Printer().DeviceName};
  const std::optional<PrinterDevice> offered = PrinterObj;
  Cancelled = !gRuntime->AskPrint(*this);
  if (Cancelled) PrinterObj = offered;
  printerName_ = PrinterObj ? PrinterObj->DeviceName : std::string();
  if (!Cancelled) Keep();
  return true;
}

void PrintSetup::TakePrinter() const {
  if (PrinterObj) gRuntime->UsePrinter(PrinterObj->DeviceName);
  gRuntime->Printer().ColorMode = ColorMode;
  gRuntime->Printer().SeeFirst = SeeFirst;
}

/// A printer that the caller asks for comes first; one that is gone gives way to the Printer.
void PrintSetup::Recall() {
  if (PrinterNameSetting.empty() || gApp == nullptr) return;
  CNameValues kept;
  try {
    kept.Load(gApp->GetUserSetting(Key()));
  } catch (const HostError& error) {
    gApp->ReportError(error, nullptr, Key());
    return;
  }
  const PrinterDevice printer{kept.Item(kPrinter)};
  const std::vector<PrinterDevice> printers = gRuntime->Printers();
  if (!PrinterObj && std::find(printers.begin(), printers.end(), printer) != printers.end())
    PrinterObj = printer;
  const auto color = static_cast<int>(ValInteger(kept.Item(kColorMode)));
  if (Color != "X" && (color == IPrinter::kMonochrome || color == IPrinter::kColor)) ColorMode = color;
  const auto copies = static_cast<int>(ValInteger(kept.Item(kCopies)));
  if (Copies > 0 && copies > 0) Copies = copies;
}

void PrintSetup::Keep() const {
  if (PrinterNameSetting.empty() || gApp == nullptr || !PrinterObj) return;
  CNameValues kept;
  kept.SetItem(kPrinter, PrinterObj->DeviceName);
  kept.SetItem(kColorMode, std::to_string(ColorMode));
  kept.SetItem(kCopies, std::to_string(Copies));
  gApp->PutUserSetting(Key(), kept.Text());
}

}  // namespace quillon
