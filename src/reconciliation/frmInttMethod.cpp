#include "reconciliation/frmInttMethod.h"

#include "host/forms/Runtime.h"
#include "host/services/ISession.h"
#include "host/services/IStd.h"
#include "host/values/Text.h"

namespace quillon {

namespace {

constexpr const char* kSavingsBank = "Savings Bank";
constexpr int kFirstYearWithoutSavingsBank = 2011;

}  // namespace

frmInttMethod::frmInttMethod()
    : Form("frmInttMethod"),
      Frame1(*this, "Frame1"),
      Label1(Frame1, "Label1"),
      cmbInttMethod(Frame1, "cmbInttMethod"),
      txpInttRate(Frame1, "txpInttRate"),
      btnOKCancel(*this, "btnOKCancel", {0, 1}) {
  Member("InttRate", InttRate);
  Member("InttMethod", InttMethod);
  Member("ShowBusMethod", ShowBusMethod);
  Member("Cancelled", Cancelled);
  DesignControls();
  cmbInttMethod.Click = [this] { cmbInttMethod_Click(); };
  btnOKCancel(0).Click = [this] { Confirm(); };
  btnOKCancel(1).Click = [this] { gRuntime->Unload(*this); };
}

void frmInttMethod::OnLoad() {
  Cancelled = true;
  txpInttRate.Text = gStd->FormatAmount(InttRate, "N4");
  FillMethods();
}

void frmInttMethod::FillMethods() {
  cmbInttMethod.Clear();
  for (const char* method :
       {"Product Method", "CC Limit - Pay Only", "FDR - Charge Only", kSavingsBank, "PPF"}) {
    cmbInttMethod.AddItem(method);
  }
  if (ShowBusMethod) cmbInttMethod.AddItem("Business Interest");
  for (int item = 0; !InttMethod.empty() && item < cmbInttMethod.ListCount(); ++item) {
    if (cmbInttMethod.List(item) == InttMethod) cmbInttMethod.SetListIndex(item);
  }
  if (cmbInttMethod.ListIndex() < 0) cmbInttMethod.SetListIndex(0);
}

void frmInttMethod::cmbInttMethod_Click() {
  if (!cmbInttMethod.Visible) return;  // filled at load, nobody chose
  if (cmbInttMethod.Text() != kSavingsBank || gSession->Year().StartYear() < kFirstYearWithoutSavingsBank)
    return;
  gStd->MsgBox(
      "Savings Bank method is available only for backward compatibility. Product method may be used for "
      "calculating "
      "interest on Savings A/c from F.Y. 2011-12 onwards.");
}

void frmInttMethod::Confirm() {
  const double typed = Val(txpInttRate.Text());
  if (typed == 0) {
    gStd->MsgBox("Enter Interest Rate", "", "W");
    txpInttRate.SetFocus();
    return;
  }
  InttRate = Amount::OfDouble(typed);
  InttMethod = cmbInttMethod.Text();
  Cancelled = false;
  gRuntime->Unload(*this);
}

void frmInttMethod::OnKeyDown(KeyEvent& key) {
  if (key.KeyCode != keys::kF7 || key.Shift != 0) return;
  key.KeyCode = 0;
  Confirm();
}

void frmInttMethod::OnKeyPress(int& character) {
  if (character != keys::kEnter) return;
  if (ActiveControl() != nullptr && ActiveControl()->KeepsEnter()) return;
  gStd->SendKeys("{TAB}");
  character = 0;
}

}  // namespace quillon
