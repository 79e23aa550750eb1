#include "cheques/frmChqPrint.h"

#include "books/SqlText.h"
#include "cheques/ChequePage.h"
#include "cheques/ChequeSettings.h"
#include "host/services/host_services.h"
#include "host/values/Text.h"
#include "layout/LayoutRun.h"
#include "layout/StoredLayout.h"

namespace quillon {

namespace {

constexpr ScreenSpec kScreen = {
    .className = "frmChqPrint",
    .caption = "   Cheque Printing",
    .titleSuffix = "",
    .rightKey = "",
    .registerTitle = "Cheque Print",
    .iconKey = "Cheque",
    .firstKey = keys::kF3,
    .lastKey = keys::kF9,
    .helpContext = 9,
};

constexpr const char* kLastBank = "ChqPrinting.LastBankCode";
constexpr int kPreviewWidth = 40;  // characters of a line of words
constexpr long kEdge = 100;        // twips of an object that stay inside
constexpr const char* kDefaultGap = "225";

std::string FirmField(const char* name) { return gApp->MainWindow().FirmRecord().Field(name).ToText(); }

bool IsSelf(const std::string& payee) { return text::Upper(text::Trim(payee)) == "SELF"; }

}  // namespace

frmChqPrint::frmChqPrint()
    : ScreenForm(kScreen, Origin::Module),
      Lbl(*this, "Lbl", {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10}),
      pic2(*this, "pic2"),
      lblPreview(pic2, "lblPreview"),
      picBankName(pic2, "picBankName"),
      txpBank(picBankName, "txpBank"),
      picCheque(pic2, "picCheque"),
      lblDate0(picCheque, "lblDate0"),
      lblPayTo0(picCheque, "lblPayTo0"),
      lblRupees0(picCheque, "lblRupees0"),
      lblRs0(picCheque, "lblRs0"),
      lblDate2(picCheque, "lblDate2"),
      lblPayTo2(picCheque, "lblPayTo2"),
      lblAmountInWords2(picCheque, "lblAmountInWords2"),
      lblAmountInWords22(picCheque, "lblAmountInWords22"),
      lblAmount2(picCheque, "lblAmount2"),
      lblAcNo2(picCheque, "lblAcNo2"),
      lblAcNo20(picCheque, "lblAcNo20"),
      lblChqNo2(picCheque, "lblChqNo2"),
      lblBankName2(picCheque, "lblBankName2"),
      lblBankAdd2(picCheque, "lblBankAdd2"),
      lblFor2(picCheque, "lblFor2"),
      lblSignatory2(picCheque, "lblSignatory2"),
      lblPayeesAc2(picCheque, "lblPayeesAc2"),
      lblRemarks2(picCheque, "lblRemarks2"),
      lblRemarks20(picCheque, "lblRemarks20"),
      picOpt(*this, "picOpt"),
      Check1(picOpt, "Check1"),
      Check2(picOpt, "Check2"),
      Check3(picOpt, "Check3"),
      Check4(picOpt, "Check4"),
      chkStation(picOpt, "chkStation"),
      chkNotExceeding(picOpt, "chkNotExceeding"),
      chkBankDetails(picOpt, "chkBankDetails"),
      lblDateStyle(picOpt, "lblDateStyle"),
      cmbDateStyle(picOpt, "cmbDateStyle"),
      txpTopMargin(picOpt, "txpTopMargin"),
      txpLeftMargin(picOpt, "txpLeftMargin"),
      txpDateChrGap(picOpt, "txpDateChrGap"),
      lblUnit(picOpt, "lblUnit", {0, 1, 2}),
      btnPayTo(picOpt, "btnPayTo"),
      btnAcNo(picOpt, "btnAcNo"),
      btnRemarks(picOpt, "btnRemarks"),
      btnFont(picOpt, "btnFont"),
      btnAmtWidth(picOpt, "btnAmtWidth"),
      btnSettings(picOpt, "btnSettings", {0, 1, 3, 4}),
      btnOKCancel(picOpt, "btnOKCancel", {0, 1}),
      lblHint(picOpt, "lblHint") {
  Caption = "Cheque Printing";
  Member("fDataForm", fDataForm);
  Member("BankCode", BankCode);
  Member("PartyCode", PartyCode);
  Member("PayTo", PayTo);
  Member("Station", Station);
  Member("Amount", Amount);
  Member("vDate", vDate);
  Member("Narration", Narration);
  Member("ChqNo", ChqNo);
  Member("Remarks", Remarks);
  Member("MultiPrint", MultiPrint);
  Routine("UpdateLabels", &frmChqPrint::UpdateLabels);
  Routine("PrintChq", &frmChqPrint::PrintChq);
  Routine("DrawGrid", &frmChqPrint::DrawGrid);
  Routine("ExportChqSettings", &frmChqPrint::ExportChqSettings);
  DesignControls();
  ConnectOptions();
  ConnectPreview();
  ConnectButtons();
}

void frmChqPrint::LoadScreen() {
  DesignPreview();
  if (BankCode == 0) {
    picBankName.Visible = true;
    BankCode = static_cast<long>(ValInteger(gApp->GetUserSetting(kLastBank)));
  }
  if (BankCode != 0) {
    txpBank.Text = gSession->MainDb().Lookup("FAMASTER", "mhd", "mcd=" + books::SqlNumber(BankCode)).ToText();
    ChequeSettings(ChequeSettings::KeyOf(BankCode)).Load(*this);
  }
  UpdateLabels();
  DrawGrid();
}

void frmChqPrint::UnloadScreen() { fDataForm.reset(); }

LayoutBoard::Limits frmChqPrint::Limits() const {
  return {ScaleWidth() - kEdge, ScaleHeight() - picOpt.Height - kEdge};
}

void frmChqPrint::OnKeyDown(KeyEvent& key) {
  if (picOpt.Visible && board_.TakeKey(key, Limits())) {
    key.KeyCode = 0;
    return;
  }
  if (picOpt.Visible && key.Shift == 0 && (key.KeyCode == keys::kF7 || key.KeyCode == keys::kF9)) {
    CButton& pressed = key.KeyCode == keys::kF7 ? btnSettings(0) : btnOKCancel(0);
    key.KeyCode = 0;
    pressed.Press();
    return;
  }
  ScreenForm::OnKeyDown(key);
}

void frmChqPrint::Pressed(const std::string& key) {
  if (key == "Prev") {
    StepCheque(-1);
  } else if (key == "Next") {
    StepCheque(1);
  } else if (key == "Settings") {
    ShowLayout();
  }
}

void frmChqPrint::Print(bool /*print*/) { PrintChq(true); }

/// There is no way back but to close the form.
void frmChqPrint::ShowLayout() {
  pic2.Visible = false;
  lblTitle.Visible = false;
  QuillonStdButtons1.Visible = false;
  BtnBar1.Visible = false;
  picOpt.Visible = true;
  picOpt.SetFocus();
}

void frmChqPrint::LeaveToPanel() {
  if (picOpt.Visible) picOpt.SetFocus();
}

void frmChqPrint::StepCheque(int direction) {
  if (!fDataForm) return;
  const std::shared_ptr<Object> caller = fDataForm;
  caller->Call("NextCheque", {std::static_pointer_cast<Object>(Self()), direction});
}

int frmChqPrint::DateStyleOf(const std::string& text) {
  const long long style = ValInteger(text);
  return style == kSlashDate || style == kBoxDate ? static_cast<int>(style) : kPlainDate;
}

std::string frmChqPrint::DateText(const std::string& picture) const {
  const Date date = Date::Parse(vDate);
  return date.IsEmpty() ? vDate : date.Format(picture);
}

std::string frmChqPrint::PayeeText() const {
  return chkStation.CheckValue != 0 && !Station.empty() ? PayTo + " - " + Station : PayTo;
}

std::string frmChqPrint::AmountText() const { return "**" + gStd->FormatAmount(Amount, "c2"); }

std::string frmChqPrint::NotExceedingText() const {
  return "NOT EXCEEDING Rs. " + gStd->FormatAmount(Amount::OfInteger(Amount.Floor() + 1), "c0") + "/-";
}

/// The number that is taken out of a narration stays in the caption.
void frmChqPrint::ShowCaption() {
  if (!numberTaken_.empty() && narrationLeft_ == Narration && numberTaken_ == ChqNo) return;
  Caption = Narration.empty() ? "Cheque Printing" : "Cheque Printing - " + Narration;
  lblTitle.Caption = "   " + Caption;
  lblPreview.Caption = lblTitle.Caption;
}

void frmChqPrint::UpdateLabels() {
  ShowCaption();
  if (text::Upper(text::Trim(PayTo)) == "CASH") PayTo = "SELF";
  if (const std::size_t at = Narration.find("::"); at != std::string::npos) {
    PayTo = Narration.substr(at + 2);
    Station.clear();
  }
  ShowPayTo();
  ShowAmounts();
  ShowSigners();
  lblDate2.Caption = DateText("dd-MMM-yyyy");
  ShowChqNo();
  cmbDateStyle.SetListIndex(Kept.DateStyle);
  ShowAcNo();
  ShowRemarks();
  ShowBank();
  ClearPayeesAcOfSelf();
}

void frmChqPrint::ShowPayTo() {
  Lbl(0).Caption = "Pay To : " + PayeeText();
  lblPayTo2.Caption = PayeeText();
}

void frmChqPrint::ShowAmounts() {
  const std::string words = gStd->AmountInWords(Amount, "A");
  Lbl(2).Caption = "Rupees : " + words;
  Lbl(3).Caption = "Rs. : " + AmountText();
  Lbl(10).Caption = NotExceedingText();
  lblAmountInWords2.Caption = gStd->WrapLine(words, kPreviewWidth, 1);
  lblAmountInWords22.Caption = gStd->WrapLine(words, kPreviewWidth, 2);
  lblAmount2.Caption = AmountText();
}

void frmChqPrint::ShowSigners() {
  Lbl(4).Caption = "For " + FirmField("FirmName");
  Lbl(5).Caption = FirmField("AuthDesig");
  lblFor2.Caption = Lbl(4).Caption;
  lblSignatory2.Caption = Lbl(5).Caption;
}

void frmChqPrint::ShowChqNo() {
  const std::string whole = Narration;
  gStd->ChqNoFromNarration(Narration, ChqNo);
  if (whole != Narration) numberTaken_ = ChqNo;
  narrationLeft_ = Narration;
  lblChqNo2.Visible = !ChqNo.empty();
  if (!ChqNo.empty()) lblChqNo2.Caption = "Chq.No: " + ChqNo;
}

void frmChqPrint::ShowBank() {
  if (BankCode == 0) {
    lblBankName2.Caption = "Marrowgate Softwares Pvt. Ltd.";
    lblBankAdd2.Caption = "Harbourton City.";
    return;
  }
  CDataSet bank;
  bank.Open("SELECT MHD,MST FROM FAMASTER WHERE MCD=" + books::SqlNumber(BankCode), gSession->MainDb());
  if (bank.Eof()) return;
  lblBankName2.Caption = gStd->TidyName(bank.Field("MHD").ToText());
  lblBankAdd2.Caption = gStd->TidyName(bank.Field("MST").ToText());
}

/// A cheque to oneself carries no payee's account line.
void frmChqPrint::ClearPayeesAcOfSelf() {
  if (IsSelf(PayTo)) Check3.CheckValue = 0;
}

void frmChqPrint::ShowDateStyle() {
  switch (Kept.DateStyle) {
    case kSlashDate:
      lblDate2.Caption = DateText("dd/MM/yyyy");
      break;
    case kBoxDate:
      lblDate2.Caption = DateText("dd  MM  yyyy");
      break;
    default:
      lblDate2.Caption = vDate;
      break;
  }
  Lbl(1).Caption = "Date : " + lblDate2.Caption;
}

void frmChqPrint::ChooseDateStyle() {
  Kept.DateStyle = cmbDateStyle.ListIndex();
  if (Kept.DateStyle == kBoxDate && Val(txpDateChrGap.Text()) == 0) txpDateChrGap.Text = kDefaultGap;
  ShowDateStyle();
  LeaveToPanel();
}

void frmChqPrint::TakeFonts(const std::string& name, double size, bool bold, StoredLayout& reading) {
  for (auto& [index, object] : Lbl) {
    quillon::Font font = object->Font();
    if (!name.empty()) font.Name = name;
    font.Size = size;
    font.Bold = bold;
    reading.TakeFont(*object, font);
  }
}

void frmChqPrint::PrintChq(bool bPrintSettings) {
  try {
    ChequePage page(*this);
    if (!page.ReadPartyBank()) return;
    std::shared_ptr<PrintSetup> setup;
    if (bPrintSettings) {
      setup = gReports->Print("Print");
      setup->PrinterNameSetting = "ChqPrint";
      setup->MaxPage = 1;
      setup->Orientation = Check2.CheckValue != 0 ? IPrinter::kLandscape : IPrinter::kPortrait;
      setup->Show();
      if (setup->Cancelled) return;
    }
    LayoutRun run(setup.get(), Check2.CheckValue != 0,
                  LayoutRun::Margins::OfInches(txpLeftMargin.Text(), txpTopMargin.Text()));
    page.Print(run);
    run.EndDoc();
  } catch (const std::exception& error) {
    gApp->ReportError(error, this, "PrintChq");
  }
}

}  // namespace quillon
