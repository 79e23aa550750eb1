#include "reconciliation/frmInttMethod.h"

#include "host/services/ISession.h"
#include "host/services/IStd.h"
#include "host/values/Text.h"

namespace quillon {

namespace {

constexpr const char* kSavingsBank = "Savings Bank";
constexpr int kFirstYearWithoutSavingsBank = 2011;

}  // namespace

frmInttMethod::frmInttMethod()
    : DialogForm(
          {.className = "frmInttMethod", .caption = "Interest Options", .width = 6300, .height = 2550}),
      Frame1(*this, "Frame1"),
      Label1(Frame1, "Label1"),
      cmbInttMethod(Frame1, "cmbInttMethod"),
      txpInttRate(Frame1, "txpInttRate") {
  Member("InttRate", InttRate);
  Member("InttMethod", InttMethod);
  Member("ShowBusMethod", ShowBusMethod);
  DesignControls();
  cmbInttMethod.Click = [this] { cmbInttMethod_Click(); };
}

void frmInttMethod::LoadDialog() {
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
      "calculating interest on Savings A/c from F.Y. 2011-12 onwards.");
}

bool frmInttMethod::Confirm() {
  const double typed = Val(txpInttRate.Text());
  if (typed == 0) {
    gStd->MsgBox("Enter Interest Rate", "", "W");
    txpInttRate.SetFocus();
    return false;
  }
  InttRate = Amount::OfDouble(typed);
  InttMethod = cmbInttMethod.Text();
  return true;
}

}  // namespace quillon
