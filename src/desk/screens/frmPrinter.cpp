#include "desk/screens/frmPrinter.h"

#include "desk/screens/frmProofSheet.h"
#include "host/forms/Runtime.h"
#include "host/services/Calibration.h"
#include "host/services/IPrinter.h"
#include "host/services/IStd.h"
#include "host/services/PrinterDevice.h"
#include "host/values/Text.h"

namespace quillon {

namespace {

enum Measure { kLeft, kTop, kAcross, kDown };

}  // namespace

frmPrinter::frmPrinter()
    : DialogForm({.className = "frmPrinter",
                  .caption = "Printer",
                  .width = 7800,
                  .height = 5100,
                  .origin = Origin::Desk}),
      lblPrinter(*this, "lblPrinter"),
      cmbPrinter(*this, "cmbPrinter"),
      btnProof(*this, "btnProof"),
      lblMeasure(*this, "lblMeasure"),
      txpMeasure(*this, "txpMeasure", {kLeft, kTop, kAcross, kDown}),
      lblUnit(*this, "lblUnit", {kLeft, kTop, kAcross, kDown}),
      lblState(*this, "lblState") {
  DesignControls();
  cmbPrinter.Click = [this] { ShowPrinter(); };
  btnProof.Click = [this] { PrintProof(); };
}

void frmPrinter::LoadDialog() {
  cmbPrinter.Clear();
  for (const PrinterDevice& printer : gRuntime->Printers()) {
    if (printer.DeviceName != IPrinter::kPdfFile) cmbPrinter.AddItem(printer.DeviceName);
  }
  const bool hasPrinter = cmbPrinter.ListCount() > 0;
  btnProof.Enabled = hasPrinter;
  btnOKCancel(0).Enabled = hasPrinter;
  if (hasPrinter) {
    cmbPrinter.SetListIndex(0);
  } else {
    for (auto& [index, field] : txpMeasure) field->Enabled = false;
    lblState.Caption = "This machine has no printer. PDF files need no correction.";
  }
}

void frmPrinter::OnActivate() {
  if (cmbPrinter.ListCount() > 0) cmbPrinter.SetFocus();
}

void frmPrinter::ShowPrinter() {
  const Calibration calibration = Calibration::Of(cmbPrinter.Text());
  const Calibration::Measured& measured = calibration.Measures();
  const double values[] = {measured.Left, measured.Top, measured.Across, measured.Down};
  for (auto& [index, field] : txpMeasure) field->Text = Variant(values[index]).ToText();
  lblState.Caption =
      calibration.IsNone() ? "Pages are not corrected." : "Corrected by " + calibration.Words() + ".";
}

/// The sheet shows what the printer does by itself.
void frmPrinter::PrintProof() {
  IPrinter& printer = gRuntime->Printer();
  const std::string before = printer.DeviceName;
  if (!gRuntime->UsePrinter(cmbPrinter.Text())) {
    gStd->MsgBox("The printer " + cmbPrinter.Text() + " is not there any more.", "", "W");
    return;
  }
  printer.PaperSize = IPrinter::kA4;
  printer.Orientation = IPrinter::kPortrait;
  const auto sheet = std::make_shared<frmProofSheet>(cmbPrinter.Text());
  try {
    gRuntime->PrintForm(*sheet);
  } catch (...) {
    gRuntime->UsePrinter(before);
    throw;
  }
  gRuntime->UsePrinter(before);
}

bool frmPrinter::Confirm() {
  const auto value = [&](Measure measure) { return Val(txpMeasure(measure).Text()); };
  try {
    Calibration::From({value(kLeft), value(kTop), value(kAcross), value(kDown)}).Keep(cmbPrinter.Text());
    return true;
  } catch (const HostError& error) {
    gStd->MsgBox(error.what(), "", "W");
    txpMeasure(kLeft).SetFocus();
    return false;
  }
}

}  // namespace quillon
