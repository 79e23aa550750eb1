#include "host/forms/ScreenForm.h"

#include <utility>

#include "host/forms/GridFill.h"
#include "host/forms/Runtime.h"
#include "host/services/IApp.h"
#include "host/services/ISession.h"
#include "host/services/IStd.h"

namespace quillon {

namespace {

constexpr long kTitleHeight = 420;
constexpr long kStripHeight = 360;
constexpr long kBarHeight = 510;
constexpr long kStandardButtonsWidth = 1200;

}  // namespace

ScreenForm::ScreenForm(const ScreenSpec& spec, Origin origin)
    : Form(spec.className, origin),
      lblTitle(*this, "lblTitle"),
      MStrip1(*this, "MStrip1"),
      BtnBar1(*this, "BtnBar1"),
      QuillonStdButtons1(*this, "QuillonStdButtons1"),
      spec_(spec) {
  lblTitle.Caption = spec.caption;
  Caption = spec.registerTitle;
  HelpContext = spec.helpContext;
  BtnBar1.ButtonPressed = [this](int index) {
    if (BtnBar1.Buttons(index).Enabled()) PressKey(BtnBar1.Buttons(index).Key());
  };
  QuillonStdButtons1.ButtonClick = [this](int index, bool& cancel) {
    if (index != CStdButtons::kExit) return;
    ExitPressed(cancel);
    if (!cancel && HasUnsavedWork()) {
      cancel = !gStd->AskYesNo("Do you want to exit without saving?", "Q", IStd::kNo);
    }
  };
}

void ScreenForm::MemberPeriod(AccountPeriod& period) {
  Member("AccountCode", period.AccountCode);
  Member("Date1", period.Date1);
  Member("Date2", period.Date2);
}

/// What is being typed is dealt with first, so that what is asked for has it; Exit deals with it itself.
void ScreenForm::PressKey(const std::string& key) {
  if (key == "Exit") {
    PressExit();
  } else if (!EndEditing()) {
    return;
  } else if (key == "Preview" || key == "Print") {
    const CGridPlus* const grid = PrintedGrid();
    if (!MayPrint() || (grid != nullptr && !RequireComplete(*grid))) return;
    if (grid != nullptr && grid->HasView()) {
      gRuntime->Say("The pages have all rows, in the order of the screen itself.");
    }
    Print(key == "Print");
  } else if (key != "PrintAll" || MayPrint()) {
    Pressed(key);
  }
}

long ScreenForm::ContentTop() const { return MStrip1.Top + MStrip1.Height; }

long ScreenForm::ContentBottom() const { return BtnBar1.Top; }

void ScreenForm::PlaceFrame() {
  Move(gSession->FormLeft(), gSession->FormTop(), gSession->FormWidth(), gSession->FormHeight());
  lblTitle.Move(0, 0, Width, kTitleHeight);
  QuillonStdButtons1.Move(Width - kStandardButtonsWidth, 0, kStandardButtonsWidth, kTitleHeight);
  MStrip1.Move(0, kTitleHeight, Width, kStripHeight);
  BtnBar1.Move(0, Height - kBarHeight, Width, kBarHeight);
}

void ScreenForm::OnLoad() {
  if (spec_.initForm) gApp->InitForm(*this);
  PlaceFrame();
  if (CallingForm && *spec_.titleSuffix != '\0') {
    lblTitle.Caption = dynamic_cast<Label&>(CallingForm->ControlAt("lblTitle")).Caption + spec_.titleSuffix;
  }
  BtnBar1.RemoveButtons();
  BuildBar();
  LoadScreen();
}

void ScreenForm::OnActivate() {
  const bool first = std::exchange(firstShowing_, false);
  if ((first || spec_.rightEachTime) && !MayOpen()) return;
  if (!first) {
    ShownAgain();
    return;
  }
  try {
    FirstShow();
  } catch (...) {
    if (IsLoaded()) Register();
    throw;
  }
  if (IsLoaded()) Register();
}

/// Anything but a clear yes to the right is a no, and the screen closes.
bool ScreenForm::MayOpen() {
  if (*spec_.rightKey == '\0') return true;
  bool denied = true;
  try {
    gApp->CheckRight(spec_.rightKey, "N", denied);
  } catch (...) {
    gRuntime->Unload(*this);
    throw;
  }
  if (denied) gRuntime->Unload(*this);
  return !denied;
}

bool ScreenForm::MayPrint() {
  bool denied = true;
  if (*spec_.rightKey != '\0') gApp->CheckRight(spec_.rightKey, "P", denied);
  return *spec_.rightKey == '\0' || !denied;
}

void ScreenForm::Register() {
  if (!QuillonForm && *spec_.registerTitle != '\0') {
    gApp->RegisterForm(*this, spec_.registerTitle, spec_.iconKey);
    registered_ = true;
  }
  if (GridModel* grid = MainGrid(); grid != nullptr) grid->SetFocus();
}

void ScreenForm::OnUnload() {
  firstShowing_ = true;
  if (std::exchange(registered_, false)) gApp->UnregisterForm(*this);
  UnloadScreen();
}

void ScreenForm::OnKeyDown(KeyEvent& key) {
  if (OfferHotKey(key) || key.Shift != 0 || key.KeyCode < spec_.firstKey || key.KeyCode > spec_.lastKey)
    return;
  const int index = key.KeyCode - spec_.firstKey;
  key.KeyCode = 0;
  BtnBar1.PressByKey(index);
}

}  // namespace quillon
