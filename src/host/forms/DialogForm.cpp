#include "host/forms/DialogForm.h"

#include "host/forms/Runtime.h"

namespace quillon {

namespace {

constexpr int kOk = 0;
constexpr int kCancel = 1;
constexpr long kButtonWidth = 1500;
constexpr long kButtonHeight = 420;
constexpr long kEdge = 150;

std::vector<int> Buttons(const DialogSpec& spec) {
  return spec.onlyCloses ? std::vector<int>{kCancel} : std::vector<int>{kOk, kCancel};
}

}  // namespace

DialogForm::DialogForm(const DialogSpec& spec)
    : Form(spec.className, spec.origin),
      btnOKCancel(*this, spec.buttons, Buttons(spec)),
      keepsLoaded_(spec.keepsLoaded) {
  Member("Cancelled", Cancelled);
  Caption = spec.caption;
  Width = spec.width;
  Height = spec.height;
  Left = (gRuntime->ScreenWidth() - Width) / 2;
  Top = (gRuntime->ScreenHeight() - Height) / 2;
  const long top = Height - kButtonHeight - kEdge;
  const long left = Width - kButtonWidth - kEdge;
  btnOKCancel(kCancel).Caption = spec.onlyCloses ? "Esc: Close" : spec.cancelCaption;
  btnOKCancel(kCancel).Move(left, top, kButtonWidth, kButtonHeight);
  btnOKCancel(kCancel).Click = [this] {
    Cancelled = true;
    Close();
  };
  if (spec.onlyCloses) return;
  btnOKCancel(kOk).Caption = spec.okCaption;
  btnOKCancel(kOk).Move(left - kButtonWidth - kEdge, top, kButtonWidth, kButtonHeight);
  btnOKCancel(kOk).Click = [this] { PressOk(); };
}

void DialogForm::OnLoad() {
  Cancelled = true;
  LoadDialog();
}

void DialogForm::PressOk() {
  const FormPtr alive = Self();
  Cancelled = true;
  if (!Confirm()) return;
  Cancelled = false;
  Close();
}

void DialogForm::Close() {
  if (keepsLoaded_) {
    gRuntime->Hide(*this);
  } else {
    gRuntime->Unload(*this);
  }
}

/// The caller still reads what a dialog that keeps its answers was left with. One that was left already goes
/// with its owner.
void DialogForm::OnQueryUnload(bool& cancel, UnloadMode mode) {
  if (mode != UnloadMode::CloseBox || !keepsLoaded_ || !IsShownToUser()) return;
  cancel = true;
  Cancelled = true;
  gRuntime->Hide(*this);
}

void DialogForm::OnKeyDown(KeyEvent& key) {
  if (key.KeyCode != keys::kF7 || key.Shift != 0 || btnOKCancel.Count() < 2) return;
  key.KeyCode = 0;
  btnOKCancel(kOk).Press();
}

}  // namespace quillon
