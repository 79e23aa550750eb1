#pragma once

#include <cstdint>

#include "host/controls/CSelGrid.h"
#include "host/controls/CheckBox.h"
#include "host/controls/ControlArray.h"
#include "host/controls/Frame.h"
#include "host/controls/Label.h"
#include "host/controls/ListBox.h"
#include "host/controls/OptionButton.h"
#include "host/controls/TextBox.h"
#include "host/forms/DialogForm.h"
#include "maintenance/DateRangeFields.h"
#include "maintenance/EntrySelection.h"

namespace quillon {

class EntryTransfer;

/// "Mass Transfer of Entries": moves the entries of an account to another one, in a range of dates and under
/// filters. Two transports can be merged in their documents instead.
class frmAcMassTransfer : public DialogForm {
 public:
  frmAcMassTransfer();

  /// The account that entries are taken from; set before the form is shown.
  std::int32_t AcCode = 0;

  Label lblTitle;
  Frame Frame3;
  TextBox txtFromAc;  ///< its Tag is the code
  Frame Frame4;
  TextBox txtToAc;  ///< its Tag is the code of the account that was picked; empty while none is
  DateRangeFields Dates;
  Frame Frame2;
  ListBox lstBooks;
  CheckBox chkBooks;
  Frame Frame5;
  ListBox lstTTypes;
  CheckBox chkTTypes;
  Frame Frame6;
  TextBox txtNarration;
  Frame Frame7;
  ControlArray<OptionButton> optDrCr;
  CheckBox chkMergeTpt;
  CSelGrid SelGrid1;

 protected:
  void LoadDialog() override;
  void OnActivate() override;
  bool Confirm() override;

 private:
  void DesignControls();
  void DesignLists(long top);
  void Connect();
  CSelGrid::Room ListRoom() const;
  void PlaceList();
  void LoadList();
  void txtToAc_LostFocus();
  bool IsTransport(std::int64_t account) const;
  std::int64_t Target() const;
  bool Check();
  bool RequireTarget();
  EntrySelection Selection();
  static void Tell(const EntryTransfer& transfer);

  /// Whether it was done.
  bool MergeTransports();
};

}  // namespace quillon
