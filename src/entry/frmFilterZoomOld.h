#pragma once

#include <cstdint>
#include <string>

#include "host/controls/CPeriod.h"
#include "host/controls/CSelGrid.h"
#include "host/controls/CheckBox.h"
#include "host/controls/Frame.h"
#include "host/controls/ListBox.h"
#include "host/controls/OptionButton.h"
#include "host/forms/DialogForm.h"

namespace quillon {

/// "Filter": narrows the zoom of a book or ledger by books, transaction types, a period, accounts, a VAT
/// class, amounts, and says how it is to be shown.
class frmFilterZoomOld : public DialogForm {
 public:
  frmFilterZoomOld();

  /// Given in and read back, as texts.
  std::string Date1;
  std::string Date2;

  /// Quoted lists of what is ticked, 'A','B'; empty when all is.
  std::string Books;
  std::string TrnTypes;

  std::string DRCR;  ///< "DR", "CR" or empty

  /// Debits from and to, credits from and to; zero is no limit.
  Amount Amt1;
  Amount Amt2;
  Amount Amt3;
  Amount Amt4;

  /// The host's condition on accounts, and its words; empty for all accounts.
  std::string AcCnd;
  std::string AcCndTxt;

  std::int32_t VATClassNo = 0;
  std::string VATClass;
  bool PrintVouchers = false;
  bool ShowTotals = false;
  bool ShowStock = false;

  CPeriod CPeriod1;
  Frame Frame1;
  ControlArray<OptionButton> Option1;
  Frame Frame2;
  ListBox lstBooks;
  CheckBox chkBooks;
  Frame Frame5;
  ListBox lstTrnTypes;
  CheckBox chkTrnTypes;
  Frame Frame3;
  ControlArray<CTextPlus> txp1;
  CTextPlus txpAcRange;
  CTextPlus txpVATClass;
  CheckBox chkPrintVouchers;
  CheckBox chkShowTotals;
  CheckBox chkShowStock;
  CSelGrid SelGrid1;

 protected:
  void LoadDialog() override;
  void OnActivate() override;
  bool Confirm() override;
  void OnQueryUnload(bool& cancel, UnloadMode mode) override;

 private:
  void MemberChoices();
  void DesignControls();
  void PlaceLists(long top, long height);
  void PlaceAmounts(long top);
  void PlaceRest(long top);
  void PickAccounts();
  void TakeAmounts();

  FormPtr accounts_;  // the host's filter, with what was ticked in it
};

}  // namespace quillon
