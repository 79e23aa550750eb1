#pragma once

#include <string>

namespace quillon {

/// The print dialog that gReports->Print gives: set its members, show it, read them back.
class PrintSetup {
 public:
  /// The name under which the choice of printer is remembered.
  std::string PrinterNameSetting;

  /// Odd and even pages: "X" offers no choice.
  std::string OE;
  std::string Color;
  bool PrintStamp = false;
  int PageFrom = 1;
  int PageTo = 9999;
  int MaxPage = 9999;
  int Copies = 1;

  /// 1 upright, 2 landscape.
  int Orientation = 1;
  int ColorMode = 2;

  /// The device chosen; empty keeps the printer at hand.
  std::string PrinterObj;
  bool Cancelled = true;

  /// Asks the user, and sets Cancelled by his answer.
  void Show();
};

}  // namespace quillon
