#pragma once

#include <optional>
#include <string>

#include "host/forms/Form.h"
#include "host/services/IPrinter.h"
#include "host/services/PrinterDevice.h"

namespace quillon {

/// The print dialog that gReports->Print gives, a form of the desk: set its members, show it modally, read
/// them back. It asks no more than the caller can use.
class PrintSetup : public Form {
 public:
  PrintSetup();

  /// The name under which the user's printer, colour and copies are kept for the next time; without a name
  /// nothing is kept and nothing is taken over from another dialog.
  std::string PrinterNameSetting;

  /// "X" offers no choice of odd and even pages; else "" is all, "O" the odd, "E" the even ones. Offered
  /// where there is more than one page.
  std::string OE = "X";

  /// "X" offers no choice between colour and black.
  std::string Color;

  /// Kept for the caller.
  bool PrintStamp = false;

  int PageFrom = 1;
  int PageTo = 1;

  /// With 1 no pages are offered.
  int MaxPage = 1;

  /// 0 offers no copies: the job has one.
  int Copies = 0;

  /// Whether the pages are shown before they are printed; not asked where there is nothing to show.
  bool SeeFirst = false;
  bool OffersSight = true;

  int Orientation = IPrinter::kPortrait;
  int ColorMode = IPrinter::kColor;

  /// The printer chosen: after OK there always is one. What is set before is offered first.
  std::optional<PrinterDevice> PrinterObj;
  bool Cancelled = true;

  /// Asks the user, and sets Cancelled by his answer.
  void Show(int modal = 1);
  bool AskInstead() override;

  /// Makes the chosen printer the Printer, with its colour and the wish to see the pages first; one that is
  /// gone since leaves the Printer as it is.
  void TakePrinter() const;

 private:
  void Recall();
  void Keep() const;
  std::string Key() const { return "PrintSetup." + PrinterNameSetting; }

  std::string printerName_;  // of PrinterObj, for late callers
};

}  // namespace quillon
