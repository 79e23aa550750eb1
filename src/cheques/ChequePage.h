#pragma once

#include <string>
#include <vector>

#include "layout/LayoutRun.h"

namespace quillon {

class frmChqPrint;

/// One cheque on paper, printed object by object at the places of the layout.
class ChequePage {
 public:
  explicit ChequePage(frmChqPrint& form) : form_(form) {}

  /// Reads the party's bank details where they are printed. False when they are not there: the user is told.
  bool ReadPartyBank();

  void Print(LayoutRun& run);

 private:
  bool PrintsBankDetails() const;
  std::string BankDetails() const;
  std::string TextOf(const Label& object) const;
  std::string DateText() const;
  void PrintObject(LayoutRun& run, const Label& object);
  std::vector<std::string> FitWords(IPrinter& printer, const std::string& words);
  void PrintDigits(LayoutRun& run, const Label& object, const std::string& digits);

  frmChqPrint& form_;
  std::string bankDetails_;
  std::string restOfWords_;
};

}  // namespace quillon
