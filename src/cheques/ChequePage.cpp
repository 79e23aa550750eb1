#include "cheques/ChequePage.h"

#include "books/SqlText.h"
#include "cheques/ChequeWords.h"
#include "cheques/frmChqPrint.h"
#include "host/services/host_services.h"
#include "host/values/Text.h"

namespace quillon {

namespace {

constexpr const char* kLineEnd = "\r\n";
constexpr double kDetailsFontSize = 10;  // payee and bank details fit the cheque's pay line in it
constexpr double kNarrowestSplit = 2;    // inches
constexpr double kShrinkLimit = 4;       // inches

bool Fail(const std::string& why) {
  gStd->MsgBox(why + " Can't Print Bank Details.", "", "E");
  return false;
}

}  // namespace

bool ChequePage::PrintsBankDetails() const {
  return form_.chkBankDetails.CheckValue != 0 && form_.PayTo != "SELF";
}

bool ChequePage::ReadPartyBank() {
  if (!PrintsBankDetails()) return true;
  CDataSet party;
  party.Open("SELECT MBANKNAME,MBANKBRANCH,MBANKSTN,MIFSCCODE,MBANKACNO FROM FAMASTER WHERE MCD=" +
                 books::SqlNumber(form_.PartyCode),
             gSession->MainDb());
  if (party.Eof()) return Fail("Party Code missing.");
  const auto field = [&](const char* name) { return party.Field(name).ToText(); };
  if (field("MBANKNAME").empty() || field("MBANKBRANCH").empty()) {
    return Fail("Party's Bank Name / Branch not specified.");
  }
  if (field("MIFSCCODE").empty() || field("MBANKACNO").empty()) {
    return Fail("Party's Bank Account No. / IFSC Code not specified.");
  }
  bankDetails_ = std::string(kLineEnd) + "A/c No: " + field("MBANKACNO") + ",  IFSC: " + field("MIFSCCODE") +
                 kLineEnd + "Bank: " + field("MBANKNAME") + ", " + field("MBANKBRANCH");
  if (const std::string station = field("MBANKSTN"); !station.empty()) bankDetails_ += ", " + station;
  return true;
}

void ChequePage::Print(LayoutRun& run) {
  restOfWords_.clear();
  for (auto& [index, object] : form_.Lbl) {
    if (object->Visible.Own()) PrintObject(run, *object);
  }
}

std::string ChequePage::DateText() const {
  switch (form_.Kept.DateStyle) {
    case frmChqPrint::kSlashDate:
      return form_.DateText("dd/MM/yyyy");
    case frmChqPrint::kBoxDate:
      return form_.DateText("ddMMyyyy");
    default:
      return form_.vDate;
  }
}

/// Captions are for the user: only the words that stand on the leaf are printed.
std::string ChequePage::TextOf(const Label& object) const {
  const std::string& tag = object.Tag();
  CDataSet& firm = gApp->MainWindow().FirmRecord();
  if (tag == "PayTo") return form_.PayeeText() + bankDetails_;
  if (tag == "Date") return DateText();
  if (tag == "AmtInWords") return gStd->AmountInWords(form_.Amount, "A");
  if (tag == "AmtInWords2") return restOfWords_;
  if (tag == "Amount") return form_.AmountText();
  if (tag == "ForFirm") return "For " + firm.Field("FirmName").ToText();
  if (tag == "Desig") return firm.Field("AuthDesig").ToText();
  if (tag == "BankAcNo") return form_.Kept.BankAcNo;
  if (tag == "Remarks") return form_.Remarks;
  if (tag == "NotExceeding") return form_.NotExceedingText();
  return object.Caption();
}

void ChequePage::PrintObject(LayoutRun& run, const Label& object) {
  const std::string text = TextOf(object);
  if (text.empty()) return;
  IPrinter& printer = run.Printer();
  const bool italic = printer.Font.Italic;
  printer.Font = object.Font();
  printer.Font.Italic = italic;
  if (object.Tag() == "PayTo" && PrintsBankDetails()) printer.Font.Size = kDetailsFontSize;
  if (object.Tag() == "Date" && form_.Kept.DateStyle == frmChqPrint::kBoxDate) {
    PrintDigits(run, object, text);
  } else if (object.Tag() == "AmtInWords") {
    run.PrintLines(object, FitWords(printer, text), true);
  } else {
    run.PrintLines(object, text::Split(text, kLineEnd), true);
  }
}

std::vector<std::string> ChequePage::FitWords(IPrinter& printer, const std::string& words) {
  if (form_.Kept.AmtWd >= kNarrowestSplit) {
    const ChequeWords split = SplitWords(words, IPrinter::ScaleX(form_.Kept.AmtWd),
                                         [&](const std::string& part) { return printer.TextWidth(part); });
    restOfWords_ = split.Rest;
    return text::Split(split.First, kLineEnd);
  }
  std::vector<std::string> lines = text::Split(words, kLineEnd);
  printer.Font.Size = ShrunkSize(lines, printer.Font.Size, IPrinter::ScaleX(kShrinkLimit),
                                 [&](const std::string& line, double size) {
                                   printer.Font.Size = size;
                                   return printer.TextWidth(line);
                                 });
  return lines;
}

/// Each digit goes into a box of the leaf.
void ChequePage::PrintDigits(LayoutRun& run, const Label& object, const std::string& digits) {
  IPrinter& printer = run.Printer();
  const auto gap = static_cast<double>(ValInteger(form_.txpDateChrGap.Text()));
  printer.CurrentY = static_cast<double>(object.Top) + run.Offset().Top;
  printer.CurrentX = static_cast<double>(object.Left) + run.Offset().Left;
  for (std::size_t at = 0; at < digits.size(); at += text::CharBytes(digits, at)) {
    printer.Print(digits.substr(at, text::CharBytes(digits, at)), false);
    if (gap > 0) printer.CurrentX += gap;
  }
}

}  // namespace quillon
