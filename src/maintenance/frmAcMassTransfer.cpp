#include "maintenance/frmAcMassTransfer.h"

#include "books/SqlText.h"
#include "host/forms/BusyPointer.h"
#include "host/forms/Fields.h"
#include "host/forms/RuntimeBox.h"
#include "host/forms/Unbroken.h"
#include "host/services/host_services.h"
#include "host/values/Text.h"
#include "maintenance/EntryTransfer.h"
#include "maintenance/TransportMerge.h"

namespace quillon {

namespace {

constexpr std::int64_t kTransports = 26;
constexpr int kDebits = 0;
constexpr int kCredits = 1;
constexpr int kHeadWidth = 20;

CDbLink& Db() { return gSession->MainDb(); }

}  // namespace

frmAcMassTransfer::frmAcMassTransfer()
    : DialogForm({.className = "frmAcMassTransfer",
                  .caption = "Mass Transfer of Entries",
                  .width = 9300,
                  .height = 7530}),
      lblTitle(*this, "lblTitle"),
      Frame3(*this, "Frame3"),
      txtFromAc(Frame3, "txtFromAc"),
      Frame4(*this, "Frame4"),
      txtToAc(Frame4, "txtToAc"),
      Dates(*this, "Frame1"),
      Frame2(*this, "Frame2"),
      lstBooks(Frame2, "lstBooks"),
      chkBooks(Frame2, "chkBooks"),
      Frame5(*this, "Frame5"),
      lstTTypes(Frame5, "lstTTypes"),
      chkTTypes(Frame5, "chkTTypes"),
      Frame6(*this, "Frame6"),
      txtNarration(Frame6, "txtNarration"),
      Frame7(*this, "Frame7"),
      optDrCr(Frame7, "optDrCr", {0, 1, 2}),
      chkMergeTpt(*this, "chkMergeTpt"),
      SelGrid1(*this, "SelGrid1") {
  Member("AcCode", AcCode);
  DesignControls();
  Connect();
}

void frmAcMassTransfer::Connect() {
  chkBooks.Click = [this] { TickAll(lstBooks, chkBooks.CheckValue == 1); };
  chkTTypes.Click = [this] { TickAll(lstTTypes, chkTTypes.CheckValue == 1); };
  txtToAc.GotFocus = [this] {
    if (!SelGrid1.Visible) SelGrid1.OpenUnder(txtToAc, ListRoom());
  };
  txtToAc.LostFocus = [this] { txtToAc_LostFocus(); };
  // What is typed over names no account until one is picked again.
  txtToAc.Change = [this] { txtToAc.Tag = ""; };
  SelGrid1.Selected = [this] { txtToAc.Tag = books::SqlNumber(SelGrid1.Cell(SelGrid1.Grid.Row, 1)); };
}

void frmAcMassTransfer::LoadDialog() {
  PlaceList();
  const std::string code = books::SqlNumber(AcCode);
  txtFromAc.Text = Db().Lookup("FAMASTER", "mhd", "mcd=" + code).ToText();
  txtFromAc.Tag = code;
  Dates.txpDate1.Text = gSession->Year().StartDate().Text();
  Dates.txpDate2.Text = gSession->Year().EndDate().Text();
  chkBooks.CheckValue = 1;
  chkTTypes.CheckValue = 1;
  FillCheckList(
      lstBooks,
      FirstColumn("Select distinct dBook From FAData a Where a.DCD=" + code + " And a.dBook<>'0B'", Db()),
      true);
  FillCheckList(
      lstTTypes,
      FirstColumn("Select distinct dTrnType from FAData a Where a.DCD=" + code + " And a.dTrnType<>'0B'",
                  Db()),
      true);
  LoadList();
}

void frmAcMassTransfer::OnActivate() {
  if (ActiveControl() == nullptr) txtToAc.SetFocus();
}

/// Accounts that were out of use before this year begins cannot be chosen.
void frmAcMassTransfer::LoadList() {
  SelGrid1.Load(
      "Select a.Head,a.Code,b.MST,a.PressHead From FAHeads a Inner Join FAMaster b on a.Code=b.MCD Where "
      "a.Code<>" +
          books::SqlNumber(AcCode) + " and (b.mDeactiveDate>" + gStd->SqlDate(gSession->Year().StartDate()) +
          " Or b.mDeactiveDate is null) Order by a.PressHead",
      Db(), false, kHeadWidth);
  for (const int hidden : {1, 3}) SelGrid1.Grid.SetColWidth(hidden, 0);
  SelGrid1.SetBoundText(&txtToAc);
}

std::int64_t frmAcMassTransfer::Target() const {
  return static_cast<std::int32_t>(ValInteger(txtToAc.Tag()));
}

bool frmAcMassTransfer::IsTransport(std::int64_t account) const {
  return Db().Lookup("FAMASTER", "mgrpno", "mcd=" + books::SqlNumber(account)).ToInteger() == kTransports;
}

/// A mark that it had stays, and counts, also while it is off.
void frmAcMassTransfer::txtToAc_LostFocus() {
  SelGrid1.Close();
  chkMergeTpt.Enabled = IsTransport(AcCode) && IsTransport(Target());
}

bool frmAcMassTransfer::Confirm() {
  if (chkMergeTpt.CheckValue == 1) {
    if (MergeTransports()) Close();
    return false;
  }
  if (!Check()) return false;
  EntryTransfer transfer(Db(), AcCode, Target());
  {
    const BusyPointer pointer;
    const Unbroken whole;
    CDataSet entries;
    entries.Open(Selection().Query(), Db(), 3, CDataSet::kLockOptimistic);
    if (entries.Eof()) {
      gRuntime->SetMousePointer(kPointerDefault);
      gStd->MsgBox("No entries found");
      return false;
    }
    transfer.Move(entries);
  }
  Tell(transfer);
  return true;
}

bool frmAcMassTransfer::RequireTarget() { return Target() != 0 || RefuseAt(txtToAc, "Specify To A/c"); }

bool frmAcMassTransfer::Check() {
  if (!Dates.Check() || !RequireTarget()) return false;
  if (lstBooks.SelCount() == 0) return RefuseAt(lstBooks, "Select Book(s)");
  if (lstTTypes.SelCount() == 0) return RefuseAt(lstBooks, "Select Trn. Type(s)");
  const Variant closings = Db().Lookup("FADATA", "Count(VoucherID)",
                                       "dTrnType='zzz' and dVchDate>" + gStd->SqlDate(Dates.First()));
  if (closings.ToInteger() > 0) {
    gStd->MsgBox("Books found closed on greater date. Can't continue.", "", "W");
    return false;
  }
  return gStd->AskYesNo("Are you sure to transfer entries");
}

EntrySelection frmAcMassTransfer::Selection() {
  using Side = EntrySelection::Side;
  EntrySelection selection;
  selection.Account = AcCode;
  selection.Dates = Dates.Sql();
  selection.Books = TickedNames::Of(lstBooks);
  selection.Types = TickedNames::Of(lstTTypes);
  if (optDrCr(kDebits).Chosen) selection.Which = Side::kDebits;
  if (optDrCr(kCredits).Chosen) selection.Which = Side::kCredits;
  selection.Narration = txtNarration.Text();
  return selection;
}

void frmAcMassTransfer::Tell(const EntryTransfer& transfer) {
  if (transfer.Held > 0) {
    gStd->MsgBox(
        std::to_string(transfer.Held) +
        " Entries could not be transferred because they were generated by invoicing / other documents.");
    gRuntime->DoEvents();
  }
  if (transfer.Locked > 0) {
    gStd->MsgBox(std::to_string(transfer.Locked) +
                 " Entries could not be transferred because they were Locked.");
    gRuntime->DoEvents();
  }
  if (transfer.Transferred != 0) {
    gStd->MsgBox(std::to_string(transfer.Transferred) +
                 " Entries transferred.\n\nRefreshing Statement of Account");
  }
}

/// Dates, books and filters play no part in it.
bool frmAcMassTransfer::MergeTransports() {
  if (!RequireTarget() || !gStd->AskYesNo("Are you sure to Transfer / Merge transports ?")) return false;
  quillon::MergeTransports(Db(), AcCode, Target());
  TellInBox(*this, "OK", "I");
  return true;
}

}  // namespace quillon
