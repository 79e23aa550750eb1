#include "desk/screens/frmVoucherEntry.h"

#include "books/SqlText.h"
#include "desk/screens/ModuleScreen.h"
#include "host/services/host_services.h"
#include "host/values/Text.h"

namespace quillon {

namespace {

constexpr ScreenSpec kScreen = {
    .className = "frmVoucherEntry",
    .caption = "   Voucher Entry",
    .titleSuffix = "",
    .rightKey = "vch.entry",
    .registerTitle = "Voucher Entry",
    .iconKey = "Voucher",
    .firstKey = keys::kF2,
    .lastKey = keys::kF9,
    .initForm = true,
    .helpContext = 21,
};

constexpr const char* kLastKind = "VoucherEntry.Kind";

/// The one line that may be the main account's of a kind; the count of lines when there is none, or no single
/// one.
std::size_t MainLineOf(CDbLink& year, const StoredVoucher& voucher, const VoucherKindSpec& spec) {
  std::size_t main = voucher.Lines.size();
  for (std::size_t at = 0; spec.MainSide != 0 && at < voucher.Lines.size(); ++at) {
    const StoredLine& line = voucher.Lines[at];
    const bool isOnSide = spec.MainSide > 0 ? line.Value > Amount() : line.Value < Amount();
    if (!isOnSide || !year.RowExists("Select mcd from FAMaster where mcd=" + books::SqlNumber(line.Account) +
                                     " and mbshno in (" + spec.MainGroups + ")"))
      continue;
    if (main != voucher.Lines.size()) return voucher.Lines.size();
    main = at;
  }
  return main;
}

/// A voucher that has not the form of its kind is shown line by line, as a journal.
VoucherDraft DraftOf(CDbLink& year, const StoredVoucher& voucher) {
  VoucherDraft draft;
  draft.Kind = KindOfType(voucher.Type);
  draft.Day = voucher.Day;
  draft.Number = voucher.Number;
  draft.Narration = voucher.Narration;
  draft.Cheque = voucher.LeafNumber;
  const std::size_t main = MainLineOf(year, voucher, SpecOf(draft.Kind));
  if (main == voucher.Lines.size()) {
    draft.Kind = VoucherKind::kJournal;
  } else {
    draft.Main = voucher.Lines[main].Account;
  }
  for (std::size_t at = 0; at < voucher.Lines.size(); ++at) {
    if (at != main) draft.Lines.push_back({voucher.Lines[at].Account, voucher.Lines[at].Value});
  }
  return draft;
}

}  // namespace

frmVoucherEntry::frmVoucherEntry()
    : ScreenForm(kScreen, Origin::Desk),
      lblKind(*this, "lblKind"),
      cmbKind(*this, "cmbKind"),
      txpDay(*this, "txpDay"),
      txpNumber(*this, "txpNumber"),
      txpMain(*this, "txpMain"),
      Grid(*this, "Grid"),
      txpNarration(*this, "txpNarration"),
      txpChqNo(*this, "txpChqNo"),
      lblMissing(*this, "lblMissing"),
      SelGrid1(*this, "SelGrid1"),
      SelGrid2(*this, "SelGrid2") {
  Member("VoucherID", VoucherID);
  ConnectFields();
  ConnectGrid();
}

void frmVoucherEntry::LoadScreen() {
  DesignControls();
  SetColumns();
  const Date today = Date::Today();
  const FinYear& year = gSession->Year();
  lastDay_ = today >= year.StartDate() && today <= year.EndDate() ? today : year.StartDate();
  cmbKind.Clear();
  int number = 0;
  for (const VoucherKindSpec& spec : VoucherKinds()) {
    cmbKind.AddItem("Ctrl+" + std::to_string(++number) + "   " + spec.Name);
  }
  const long long last = ValInteger(gApp->GetUserSetting(kLastKind));
  if (last > 0 && last <= number) kind_ = VoucherKinds()[static_cast<std::size_t>(last) - 1].Kind;
}

void frmVoucherEntry::FirstShow() {
  LoadLists();
  StartNew();
  if (VoucherID != 0) ShowStored(VoucherID);
}

/// Accounts and leaves may have come in the meantime.
void frmVoucherEntry::ShownAgain() {
  LoadLists();
  if (!stored_ && txpChqNo.Text->empty()) ProposeCheque();
}

void frmVoucherEntry::OnKeyDown(KeyEvent& key) {
  const int number = key.KeyCode - '1';
  if (key.Shift != keys::kCtrl || number < 0 || number >= cmbKind.ListCount()) {
    ScreenForm::OnKeyDown(key);
    return;
  }
  key.KeyCode = 0;
  if (cmbKind.Enabled && EndEditing()) cmbKind.SetListIndex(number);
}

void frmVoucherEntry::Pressed(const std::string& key) {
  if (key == "Save") {
    Save();
  } else if (key == "Delete") {
    Delete();
  } else if (key == "Cheque") {
    OpenChequeForm();
  } else if (key == "NewAccount") {
    AddAccount();
  } else if (key == "Leaves") {
    OpenLeaves();
  } else if (MayLeaveVoucher()) {
    if (key == "New") StartNew();
    if (key == "Previous") Step(-1);
    if (key == "Next") Step(1);
  }
}

/// What is typed in a field is checked as when it is left.
bool frmVoucherEntry::EndEditing() {
  Control* const at = ActiveControl();
  return Grid.EndEdit() && (at == nullptr || at == &Grid || at->MayLeave());
}

// --- Which voucher is on the screen

bool frmVoucherEntry::IsBlank() const {
  const VoucherDraft draft = ReadDraft();
  return !stored_ && draft.Lines.empty() && draft.Narration.empty();
}

bool frmVoucherEntry::IsUnsaved() const { return !IsBlank() && ReadDraft() != start_; }

bool frmVoucherEntry::MayLeaveVoucher() const {
  return !IsUnsaved() || gStd->AskYesNo("This voucher is not saved. Leave it?", "Q", IStd::kNo);
}

void frmVoucherEntry::StartNew() {
  stored_.reset();
  proposedNumber_.clear();
  VoucherDraft draft;
  draft.Kind = kind_;
  draft.Day = lastDay_;
  ShowDraft(draft);
  ProposeMain();
  start_ = ReadDraft();
  gApp->PutUserSetting(kLastKind, std::to_string(static_cast<int>(kind_) + 1));
}

void frmVoucherEntry::ShowStored(std::int64_t id) {
  stored_ = StoredVoucher::Read(gSession->MainDb(), id);
  if (!stored_) {
    gStd->MsgBox("This voucher is no longer in the books.", "", "W");
    StartNew();
    return;
  }
  ShowDraft(DraftOf(gSession->MainDb(), *stored_));
  start_ = ReadDraft();
}

void frmVoucherEntry::ShowDraft(const VoucherDraft& draft) {
  kind_ = draft.Kind;
  ShowKind();
  txpDay.Text = draft.Day.Text();
  txpNumber.Text = draft.Number;
  PutMain(draft.Main);
  ShowLines(draft.Lines);
  txpNarration.Text = draft.Narration;
  txpChqNo.Text = draft.Cheque != 0 ? std::to_string(draft.Cheque) : "";
  ShowSums();
  txpDay.SetFocus();
  txpDay.TextBox.SelectAll();
}

/// Vouchers of the kind at hand in the order in which they were entered; behind the last one stands a new
/// one.
void frmVoucherEntry::Step(int direction) {
  if (!stored_ && direction > 0) {
    gRuntime->Beep();
    return;
  }
  const VoucherKind kind = stored_ ? KindOfType(stored_->Type) : kind_;
  const std::string from =
      !stored_ ? "" : (direction > 0 ? " and VoucherID>" : " and VoucherID<") + books::SqlNumber(stored_->Id);
  CDataSet next;
  next.Open("Select first 1 VoucherID from FAData where dTrnType starting with " +
                books::SqlString(SpecOf(kind).TypePrefix) + " and " + books::InLists() + from +
                " order by VoucherID" + (direction > 0 ? "" : " desc"),
            gSession->MainDb());
  if (!next.Eof()) {
    ShowStored(next.Field("VoucherID").ToInteger());
  } else if (direction > 0) {
    StartNew();
  } else {
    gRuntime->Beep();
  }
}

}  // namespace quillon
