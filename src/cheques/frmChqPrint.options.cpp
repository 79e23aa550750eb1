#include "cheques/frmChqPrint.h"

#include <filesystem>

#include "books/SqlText.h"
#include "cheques/ChequeDefinition.h"
#include "cheques/ChequeSettings.h"
#include "host/forms/AccountPicker.h"
#include "host/services/host_services.h"
#include "host/values/Text.h"
#include "layout/StoredLayout.h"

namespace quillon {

namespace {

constexpr long kShownColor = 0xC00000;
constexpr long kHiddenColor = 0x808080;
constexpr double kWidestWords = 10;    // inches
constexpr double kNarrowestWords = 2;  // inches
constexpr std::size_t kLongestFileName = 40;
constexpr const char* kDefFolders[] = {"Def", "ChqDef"};
constexpr const char* kFileFilter = "XML Files (*.xml)|*.xml|All Files (*.*)|*.*";

long ColorOf(bool shown) { return shown ? kShownColor : kHiddenColor; }

/// Asks for one line; false when it was left empty.
bool AskLine(const std::string& prompt, const std::string& title, std::string& text) {
  const InputRequest request{prompt, title, text};
  return gRuntime->AskInput(request, text) && !text.empty();
}

void Flip(CheckBox& box) { box.CheckValue = box.CheckValue == 0 ? 1 : 0; }

}  // namespace

void frmChqPrint::ConnectOptions() {
  const auto shows = [this](CheckBox& option, const std::vector<int>& objects,
                            const std::vector<Label*>& preview) {
    option.Click = [this, &option, objects, preview] {
      const bool shown = option.CheckValue != 0;
      for (const int object : objects) Lbl(object).Visible = shown;
      for (Label* label : preview) label->ForeColor = ColorOf(shown);
      LeaveToPanel();
    };
    for (Label* label : preview) label->ForeColor = ColorOf(option.CheckValue != 0);
  };
  shows(Check1, {4, 5}, {&lblFor2, &lblSignatory2});
  shows(Check3, {6}, {&lblPayeesAc2});
  shows(Check4, {1}, {&lblDate2});
  shows(chkNotExceeding, {10}, {});
  Check2.Click = [this] { LeaveToPanel(); };
  chkBankDetails.Click = [this] { LeaveToPanel(); };
  chkStation.Click = [this] {
    UpdateLabels();
    LeaveToPanel();
  };
  cmbDateStyle.Click = [this] { ChooseDateStyle(); };
  for (auto& [index, object] : Lbl) {
    object->Click = [this, &clicked = *object] {
      board_.Select(clicked);
      LeaveToPanel();
    };
  }
}

void frmChqPrint::ConnectPreview() {
  const auto acts = [](Label& label, const auto& act) {
    label.MousePointer = kPointerHand;
    label.Click = act;
  };
  acts(lblDate2, [this] { Flip(Check4); });
  acts(lblPayeesAc2, [this] { Flip(Check3); });
  acts(lblFor2, [this] { Flip(Check1); });
  acts(lblPayTo2, [this] { AskPayTo(); });
  acts(lblAcNo2, [this] { AskAcNo(); });
  acts(lblAcNo20, [this] { AskAcNo(); });
  acts(lblRemarks2, [this] { AskRemarks(); });
  acts(lblRemarks20, [this] { AskRemarks(); });
}

void frmChqPrint::ConnectButtons() {
  const auto asks = [this](CommandButton& button, void (frmChqPrint::*ask)()) {
    button.Click = [this, ask] {
      (this->*ask)();
      LeaveToPanel();
    };
  };
  asks(btnPayTo, &frmChqPrint::AskPayTo);
  asks(btnAcNo, &frmChqPrint::AskAcNo);
  asks(btnRemarks, &frmChqPrint::AskRemarks);
  asks(btnAmtWidth, &frmChqPrint::AskAmtWidth);
  asks(btnFont, &frmChqPrint::AskFont);
  for (auto& [index, button] : btnSettings) {
    button->Click = [this, pressed = index] {
      PressSettings(pressed);
      LeaveToPanel();
    };
  }
  btnOKCancel(0).Click = [this] {
    PrintChq(true);
    gRuntime->Unload(*this);
  };
  btnOKCancel(1).Click = [this] { gRuntime->Unload(*this); };
}

void frmChqPrint::AskPayTo() {
  std::string payee = PayTo;
  if (!IsShownToUser() || !AskLine("Enter Pay To", "PayTo", payee)) return;
  PayTo = text::Trim(payee);
  Station.clear();
  ShowPayTo();
  ClearPayeesAcOfSelf();
}

void frmChqPrint::AskAcNo() {
  std::string number = Kept.BankAcNo;
  if (!IsShownToUser() || !AskLine("Enter Bank A/c No.", "A/c No.", number)) return;
  Kept.BankAcNo = text::Trim(number);
  ShowAcNo();
}

void frmChqPrint::AskRemarks() {
  std::string remarks = Remarks;
  if (!IsShownToUser() || !AskLine("Enter Remarks", "Remarks", remarks)) return;
  Remarks = text::Trim(remarks);
  ShowRemarks();
}

void frmChqPrint::ShowAcNo() {
  const bool shown = !Kept.BankAcNo.empty();
  if (shown) Lbl(7).Caption = "A/c No : " + Kept.BankAcNo;
  Lbl(7).Visible = shown;
  lblAcNo2.Caption = Kept.BankAcNo;
  lblAcNo2.ForeColor = ColorOf(shown);
}

void frmChqPrint::ShowRemarks() {
  const bool shown = !Remarks.empty();
  if (shown) Lbl(9).Caption = "Remarks : " + Remarks;
  Lbl(9).Visible = shown;
  lblRemarks2.Caption = Remarks;
  lblRemarks2.ForeColor = ColorOf(shown);
}

void frmChqPrint::AskAmtWidth() {
  std::string width = Variant(Kept.AmtWd).ToText();
  if (!IsShownToUser() || !AskLine("Enter Width (Inches) to Print Amount in Words", "Amount Width", width)) {
    return;
  }
  const double inches = Val(width);
  Kept.AmtWd = inches < kWidestWords ? inches : 0;
  if (Kept.AmtWd > 0 && Kept.AmtWd < kNarrowestWords) {
    gStd->MsgBox(
        "Amount width should be greater than or equal to 2 inches. Width less than 2 inches will be ignored.",
        "", "W");
  }
}

void frmChqPrint::AskFont() {
  quillon::Font chosen = Lbl(0).Font();
  if (!IsShownToUser() || !gRuntime->AskFont(chosen)) return;
  StoredLayout reading(*this, "Font", "W");
  TakeFonts(chosen.Name, chosen.Size, chosen.Bold, reading);
}

bool frmChqPrint::RequireBank() const {
  if (BankCode == 0) gStd->MsgBox("No bank account is chosen.", "", "W");
  return BankCode != 0;
}

/// Of the array's places one has no button.
void frmChqPrint::PressSettings(int index) {
  constexpr int kImport = 4;
  if (index != kImport && !RequireBank()) return;
  switch (index) {
    case 0:
      ChequeSettings(ChequeSettings::KeyOf(BankCode)).Save(*this);
      break;
    case 1:
      DeleteSettings();
      break;
    case 2:
      ExportChqSettings();
      break;
    case 3:
      SaveChqDef();
      break;
    case kImport:
      ImportChqDef();
      break;
    default:
      break;
  }
}

void frmChqPrint::DeleteSettings() {
  if (!gStd->AskYesNo("Are you sure to Delete settings?", "W")) return;
  ChequeSettings(ChequeSettings::KeyOf(BankCode)).Delete();
  gRuntime->Unload(*this);
}

std::string frmChqPrint::DefFileName() const {
  const std::string head =
      gSession->MainDb().Lookup("FAMASTER", "MHD", "MCD=" + books::SqlNumber(BankCode)).ToText();
  const FormPtr mainDb = gSession->Modules().Item("StoreworksModule")->GetForm("MainDB");
  return text::Left(mainDb->Call("MakeFileName", {0, head}).ToText(), kLongestFileName);
}

void frmChqPrint::SaveChqDef() {
  std::string name = DefFileName();
  if (!gApp->InputBox(name, "Enter def. filename")) return;
  IFiles& files = gStd->Files();
  std::string folder = gApp->MainWindow().DataFolder();
  for (const char* part : kDefFolders) {
    folder = files.Combine(folder, part);
    if (!files.FolderExists(folder)) files.CreateFolder(folder);
  }
  const std::string file = files.Combine(folder, name + ".xml");
  ChequeDefinition(*this).Write(file);
  gStd->MsgBox("Def. File created: " + file);
  if (!gStd->AskYesNo("Do you want to copy this file to another location ?")) return;
  std::string copy = name + ".xml";
  if (gRuntime->AskFile({.Save = true, .Title = "", .Filter = kFileFilter, .Path = copy}, copy)) {
    files.CopyFile(file, copy, 0);
  }
}

void frmChqPrint::ImportChqDef() {
  std::string folder = gApp->MainWindow().DataFolder();
  for (const char* part : kDefFolders) folder = gStd->Files().Combine(folder, part);
  if (!gStd->Files().FolderExists(folder)) folder.clear();
  std::string file;
  if (!gRuntime->AskFile({.Save = false, .Title = "", .Filter = kFileFilter, .Path = folder}, file)) return;
  if (!ChequeDefinition(*this).Read(file)) {
    gStd->MsgBox("Invalid Cheque Definition file: " + file, "", "W");
  }
}

void frmChqPrint::ExportChqSettings() {
  if (!RequireBank()) return;
  AccountQuestion question;
  question.Title = "   Export Cheque Settings";
  question.ListTitle = "Select an Account";
  question.Table = "FAHEADS";
  question.Query =
      "Select a.Head,a.code,b.mst,a.presshead from FAHeads a inner join FAMaster b on a.code=b.mcd where "
      "(b.mdeactivedate>" +
      gStd->SqlDate(gSession->Year().StartDate()) + " or b.mdeactivedate is null) order by a.presshead";
  const std::optional<PickedAccount> target = PickAccount(*this, question);
  if (!target || !gStd->AskYesNo("Do you want to export settings to : " + target->Head)) return;
  const ChequeSettings settings(ChequeSettings::KeyOf(target->Code));
  if (settings.AreStored() &&
      !gStd->AskYesNo("Cheque Settings for this A/c already exists. Do you want to overwrite?", "Q",
                      IStd::kNo)) {
    return;
  }
  // An account's number never goes to another account.
  const std::string own = std::exchange(Kept.BankAcNo, std::string());
  try {
    settings.Save(*this);
  } catch (...) {
    Kept.BankAcNo = own;
    throw;
  }
  Kept.BankAcNo = own;
  gStd->MsgBox("Settings Saved", "", "I");
}

}  // namespace quillon
