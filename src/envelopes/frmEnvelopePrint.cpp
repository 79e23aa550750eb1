#include "envelopes/frmEnvelopePrint.h"

#include "envelopes/EnvelopeSettings.h"
#include "envelopes/FromBlock.h"
#include "envelopes/PartiesAhead.h"
#include "host/forms/AccountPicker.h"
#include "host/services/host_services.h"
#include "host/values/Text.h"

namespace quillon {

namespace {

constexpr ScreenSpec kScreen = {
    .className = "frmEnvelopePrint",
    .caption = "   Envelopes",
    .titleSuffix = "",
    .rightKey = "mst.envelopes",
    .registerTitle = "Envelopes",
    .iconKey = "Account",
    .firstKey = keys::kF4,
    .lastKey = keys::kF9,
    .rightEachTime = true,
    .helpContext = 10,
};

constexpr const char* kModeSetting = "Envelope.PostMode";
constexpr const char* kNoMode = "-None-";
constexpr const char* kLineEnd = "\r\n";
constexpr int kCustomCheck = 6;
constexpr int kFirstCustom = 6;
constexpr int kLastCustom = 10;
constexpr int kAllPages = 9999;
constexpr long kEdge = 120;  // twips of an object that stay inside

Sender FirmAsSender() {
  const CDataSet& firm = gApp->MainWindow().FirmRecord();
  const auto field = [&](const char* name) { return firm.Field(name).ToText(); };
  return {field("FirmName"), field("Address1"), field("Address2"), field("Address3"),
          field("Station"),  field("Pin"),      field("State"),    field("Phone")};
}

std::string Labelled(const char* label, const std::string& text) {
  return text.empty() ? text : label + text;
}

}  // namespace

frmEnvelopePrint::frmEnvelopePrint()
    : ScreenForm(kScreen, Origin::Module),
      Lbl(*this, "Lbl", {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10}),
      Picture1(*this, "Picture1"),
      lblMode(Picture1, "lblMode"),
      Combo1(Picture1, "Combo1"),
      lblSize(Picture1, "lblSize"),
      Combo2(Picture1, "Combo2"),
      btnConfig(Picture1, "btnConfig"),
      lblHint(Picture1, "lblHint"),
      Frame1(*this, "Frame1"),
      Label2(Frame1, "Label2"),
      Check1(Frame1, "Check1", {0, 1, 2, 3, 4, 5, 6}),
      Text1(Frame1, "Text1", {0, 1, 2, 3, 4}),
      lblMargin(Frame1, "lblMargin", {0, 1}),
      Text2(Frame1, "Text2", {0, 1}),
      chkLandscape(Frame1, "chkLandscape"),
      btnOK(Frame1, "btnOK") {
  Member("fAdLbl", fAdLbl);
  Member("AcCode", AcCode);
  Member("ShownCode", shownCode_);
  Routine("DrawGrid", &frmEnvelopePrint::DrawGrid);
  Routine("ShowParty", &frmEnvelopePrint::ShowParty);
  Routine("PrintEnvelopes", &frmEnvelopePrint::PrintEnvelopes);
  Routine("SaveEnvSettings", &frmEnvelopePrint::SaveEnvSettings);
  Routine("LoadEnvSettings", &frmEnvelopePrint::LoadEnvSettings);
  DesignControls();
  Connect();
}

void frmEnvelopePrint::Connect() {
  for (auto& [index, object] : Lbl) {
    Label& own = *object;
    own.Click = [this, &own] {
      board_.Select(own);
      Picture1.SetFocus();
    };
    own.DblClick = [this, &own] { ChooseFont(own); };
  }
  Combo1.Change = [this] { ShowMode(); };
  Combo1.Click = [this] {
    ShowMode();
    Picture1.SetFocus();
  };
  Combo2.Click = [this] {
    if (!Combo2.Visible) return;
    LoadEnvSettings();
    Picture1.SetFocus();
  };
  btnConfig.Click = [this] { OpenFrame(); };
  btnOK.Click = [this] { CloseFrame(); };
  for (auto& [index, check] : Check1) {
    check->Click = [this, own = index] { ShowObjects(own); };
  }
  for (auto& [index, line] : Text1) {
    line->Change = [this, own = index] {
      if (Frame1.Visible) Lbl(kFirstCustom + own).Caption = Text1(own).Text;
    };
  }
}

void frmEnvelopePrint::LoadScreen() {
  PlaceControls();
  Lbl(5).Caption = FromBlock(FirmAsSender());
  DrawGrid();
  LoadEnvSettings();
  const std::string mode = gApp->GetUserSetting(kModeSetting);
  if (mode.empty() || mode == Combo1.Text()) return;
  for (int item = 0; item < Combo1.ListCount(); ++item) {
    if (Combo1.List(item) == mode) Combo1.SetListIndex(item);
  }
  Combo1.SetText(mode);
  Lbl(0).Caption = mode;
}

void frmEnvelopePrint::UnloadScreen() {
  gApp->PutUserSetting(kModeSetting, Combo1.Text());
  fAdLbl.reset();
}

LayoutBoard::Limits frmEnvelopePrint::Limits() const {
  return {ScaleWidth() - kEdge, ScaleHeight() - (BtnBar1.Height + Picture1.Height) - kEdge};
}

void frmEnvelopePrint::FirstShow() {
  ShowWanted();
  if (IsLoaded()) Picture1.SetFocus();
}

void frmEnvelopePrint::ShowWanted() {
  if (asking_) return;
  if (fAdLbl) {
    ShowParty(static_cast<long>(fAdLbl->Get("CurCode").ToInteger()), false);
    return;
  }
  if (AcCode == 0 && !SelectParty()) {
    gRuntime->Unload(*this);
    return;
  }
  ShowParty(AcCode, false);
  BtnBar1.DisableButtons({0, 1, 2});
}

bool frmEnvelopePrint::SelectParty() {
  AccountQuestion question;
  question.Title = "   Select Account";
  question.ListTitle = "Select an Account";
  question.Condition = "(MST<>'' OR MHDA1<>'')";
  asking_ = true;
  std::optional<PickedAccount> picked;
  try {
    picked = PickAccount(*this, question);
  } catch (...) {
    asking_ = false;
    throw;
  }
  asking_ = false;
  if (picked) AcCode = picked->Code;
  return picked.has_value();
}

void frmEnvelopePrint::ShowParty(long code, bool keepShown) {
  if (!keepShown) shownCode_ = code;
  CPartyInfo party;
  party.Code = code;
  FillParty(party);
}

void frmEnvelopePrint::FillParty(CPartyInfo& party) {
  std::vector<std::string> lines;
  if (party.Code != 0) lines = gApp->GetPartyAddress(party);
  const bool found = party.DataSet && !party.DataSet->Eof();
  const auto field = [&](const char* name) {
    return found ? party.DataSet->Field(name).ToText() : std::string();
  };
  const std::string contact = field("mName");
  Lbl(1).Caption = contact.empty() ? field("mhd") : contact;
  Lbl(2).Caption = text::Join(lines, kLineEnd);
  Lbl(3).Caption = Labelled("Phone : ", field("mPhoneOff"));
  Lbl(4).Caption = Labelled("Mobile : ", field("mCellNo"));
}

void frmEnvelopePrint::StepParty(const char* method) {
  if (!fAdLbl) return;
  fAdLbl->Call(method, {});
  const long code = static_cast<long>(fAdLbl->Get("CurCode").ToInteger());
  if (code != 0) ShowParty(code, false);
}

void frmEnvelopePrint::ShowMode() {
  if (!Combo1.Visible) return;
  const std::string mode = Combo1.Text();
  Lbl(0).Caption = mode == kNoMode ? std::string() : mode;
}

void frmEnvelopePrint::SaveEnvSettings() { EnvelopeSettings(Combo2.Text()).Save(*this); }

void frmEnvelopePrint::LoadEnvSettings() { EnvelopeSettings(Combo2.Text()).Load(*this); }

void frmEnvelopePrint::OpenFrame() {
  for (auto& [index, line] : Text1) line->Text = Lbl(kFirstCustom + index).Caption();
  for (auto& [index, check] : Check1) check->CheckValue = Lbl(index).Visible.Own() ? 1 : 0;
  Label2.Caption = "Envelope Configuration - " + Combo2.Text();
  Frame1.Visible = true;
  Picture1.Visible = false;
  BtnBar1.Enabled = false;
  Check1(0).SetFocus();
}

void frmEnvelopePrint::CloseFrame() {
  BtnBar1.Enabled = true;
  Picture1.Visible = true;
  Frame1.Visible = false;
  Picture1.SetFocus();
}

/// The five lines of the user's own are one switch.
void frmEnvelopePrint::ShowObjects(int check) {
  if (!Frame1.Visible) return;
  const bool shown = Check1(check).CheckValue != 0;
  const int last = check == kCustomCheck ? kLastCustom : check;
  for (int object = check; object <= last; ++object) Lbl(object).Visible = shown;
}

void frmEnvelopePrint::ChooseFont(Label& object) {
  quillon::Font chosen = object.Font();
  if (gRuntime->AskFont(chosen)) object.Font = chosen;
}

void frmEnvelopePrint::OnKeyDown(KeyEvent& key) {
  if (!Frame1.Visible && board_.TakeKey(key, Limits())) {
    key.KeyCode = 0;
    return;
  }
  if (key.KeyCode == keys::kSpace && key.Shift == 0 && Picture1.HasFocus() && board_.Selected() != nullptr) {
    key.KeyCode = 0;
    ChooseFont(*board_.Selected());
    return;
  }
  if (key.KeyCode == keys::kEscape && key.Shift == 0) {
    key.KeyCode = 0;
    PressExit();
    return;
  }
  ScreenForm::OnKeyDown(key);
}

void frmEnvelopePrint::ExitPressed(bool& cancel) {
  cancel = Frame1.Visible;
  if (cancel) CloseFrame();
}

void frmEnvelopePrint::Pressed(const std::string& key) {
  if (key == "Previous") {
    StepParty("PreviousCode");
  } else if (key == "Next") {
    StepParty("NextCode");
  } else if (key == "PrintAll") {
    PrintEnvelopes(true);
  } else if (key == "Save") {
    SaveEnvSettings();
    gStd->MsgBox("Settings Saved", "", "I");
  }
}

void frmEnvelopePrint::Print(bool /*print*/) { PrintEnvelopes(false); }

void frmEnvelopePrint::PrintEnvelopes(bool all) {
  const std::shared_ptr<PrintSetup> setup = gReports->Print("Print");
  setup->OE = "X";
  setup->Color = "X";
  setup->PrintStamp = true;
  setup->PageFrom = 1;
  setup->PageTo = all ? kAllPages : 1;
  setup->MaxPage = setup->PageTo;
  setup->Copies = 1;
  setup->Orientation = chkLandscape.CheckValue != 0 ? IPrinter::kLandscape : IPrinter::kPortrait;
  gStd->ShowDialog(setup, Self());
  if (setup->Cancelled) return;
  LayoutRun run(setup.get(), chkLandscape.CheckValue != 0,
                LayoutRun::Margins::OfInches(Text2(1).Text(), Text2(0).Text()));
  try {
    if (all) {
      PrintAll(run, setup->PageFrom, setup->PageTo, setup->Copies);
    } else if (setup->PageFrom <= 1 && setup->PageTo >= 1) {
      PrintCopies(run, setup->Copies);
    }
    run.EndDoc();
  } catch (...) {
    ShowParty(shownCode_, true);
    throw;
  }
  ShowParty(shownCode_, true);
}

/// Pages that are left out still feed a leaf: the numbers count leaves.
void frmEnvelopePrint::PrintAll(LayoutRun& run, int pageFrom, int pageTo, int copies) {
  const auto grid = std::dynamic_pointer_cast<GridModel>(fAdLbl->Get("Grid").ToObject());
  const int columns = static_cast<int>(fAdLbl->Get("ColCount").ToInteger());
  PartiesAhead parties(*grid, columns);
  int row = 0;
  int place = 0;
  for (int page = 1; page <= pageTo; ++page) {
    CPartyInfo party;
    party.Code = parties.CodeAt(row, place);
    if (party.Code != 0) party.DataSet = parties.RecordAt(row, place);
    FillParty(party);
    if (page >= pageFrom) PrintCopies(run, copies);
    if (place < columns - 1) {
      ++place;
    } else if (row < grid->Rows - 1) {
      ++row;
      place = 0;
    } else {
      break;
    }
    if (parties.CodeAt(row, place) == 0) break;
    run.NewPage();
  }
}

void frmEnvelopePrint::PrintCopies(LayoutRun& run, int copies) {
  for (int copy = 1; copy <= copies; ++copy) {
    PrintObjects(run);
    if (copy < copies) run.NewPage();
  }
}

void frmEnvelopePrint::PrintObjects(LayoutRun& run) {
  for (auto& [index, object] : Lbl) {
    if (!object->Visible.Own() || object->Caption->empty()) continue;
    run.Printer().Font = object->Font();
    run.PrintLines(*object, text::Split(object->Caption(), kLineEnd), false);
  }
}

}  // namespace quillon
