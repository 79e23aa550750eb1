#include "desk/screens/frmVoucherEntry.h"

#include "books/BooksNames.h"
#include "books/SqlText.h"
#include "desk/screens/OutgoingLeaves.h"
#include "desk/services/VoucherBooks.h"
#include "desk/services/VoucherGuard.h"
#include "host/services/host_services.h"
#include "host/values/Text.h"

namespace quillon {

namespace {

constexpr long kStationWidth = 2100;

/// The head that a list shows, its code, and its station.
std::string AccountsQuery(const std::string& condition) {
  return "Select mhd,mcd,mst from FAMaster where (mDeactiveDate>" +
         books::SqlDate(gSession->Year().StartDate()) + " or mDeactiveDate is null)" +
         (condition.empty() ? "" : " and " + condition) + " order by mhd,mst";
}

void Load(CSelGrid& list, const std::string& condition) {
  list.Load(AccountsQuery(condition), gSession->MainDb(), false, 0);
  list.Grid.SetColWidth(0, list.Width - kStationWidth);
  list.Grid.SetColWidth(1, 0);
  list.Grid.SetColWidth(2, kStationWidth);
}

std::string KeptMain(VoucherKind kind) { return std::string("VoucherEntry.Main.") + SpecOf(kind).TypePrefix; }

}  // namespace

void frmVoucherEntry::ConnectFields() {
  cmbKind.Click = [this] {
    if (Visible && cmbKind.ListIndex() >= 0)
      ChooseKind(VoucherKinds()[static_cast<std::size_t>(cmbKind.ListIndex())].Kind);
  };
  txpDay.DateMode = true;
  txpDay.Validate = [this](bool& cancel) { cancel = !CheckDay(); };
  txpMain.GotFocus = [this] {
    if (!SelGrid2.Visible && !txpMain.Locked) SelGrid2.OpenUnder(txpMain);
  };
  txpMain.LostFocus = [this] { SelGrid2.Close(); };
  // What is typed over names no account until one is picked again.
  txpMain.Change = [this] { txpMain.Tag = ""; };
  txpMain.Validate = [this](bool& cancel) { cancel = !CheckMain(); };
  SelGrid2.Selected = [this] {
    PutMain(ValInteger(SelGrid2.Cell(SelGrid2.Grid.Row, 1)));
    if (txpMain.HasFocus()) FocusNext(false);
  };
  txpNarration.Validate = [this](bool&) {
    txpNarration.Text = NarrationOfCode(gSession->CommonDb(), txpNarration.Text());
  };
}

void frmVoucherEntry::LoadLists() {
  Load(SelGrid1, "");
  LoadMainAccounts();
}

void frmVoucherEntry::LoadMainAccounts() {
  const std::string groups = SpecOf(kind_).MainGroups;
  if (!groups.empty()) Load(SelGrid2, "mbshno in (" + groups + ")");
}

// --- The kind

void frmVoucherEntry::ChooseKind(VoucherKind kind) {
  if (kind == kind_) return;
  kind_ = kind;
  txpNumber.Text = proposedNumber_ = "";
  ShowKind();
  PutMain(0);
  ProposeMain();
  if (IsBlank()) start_ = ReadDraft();
  txpDay.SetFocus();
}

void frmVoucherEntry::ShowKind() {
  const VoucherKindSpec& spec = SpecOf(kind_);
  {
    const auto item = static_cast<int>(kind_);
    if (cmbKind.ListIndex() != item) cmbKind.SetListIndex(item);
  }
  cmbKind.Enabled = !stored_;
  lblTitle.Caption = std::string("   Voucher Entry: ") + (stored_ ? "" : "New ") + spec.Name;
  txpMain.Visible = spec.MainSide != 0;
  txpMain.Caption = spec.MainCaption;
  LoadMainAccounts();
  // Its book, type and number belong to the bank.
  txpMain.Locked = stored_ && std::string(spec.MainGroups) == "47";
  txpNumber.Locked = stored_ ? kind_ != VoucherKind::kPurchase : !IsBill(kind_);
  txpNumber.TabStop = !txpNumber.Locked;
}

// --- The main account

std::int64_t frmVoucherEntry::MainCode() const { return ValInteger(txpMain.Tag()); }

/// Only where there is nothing to choose the field is passed by.
void frmVoucherEntry::ProposeMain() {
  if (!txpMain.Visible) return;
  const bool isOne = SelGrid2.Grid.Rows == 2;
  if (isOne) {
    PutMain(ValInteger(SelGrid2.Cell(1, 1)));
  } else if (!IsBill(kind_)) {
    PutMain(ValInteger(gApp->GetUserSetting(KeptMain(kind_))));
  }
  txpMain.TabStop = !isOne;
}

void frmVoucherEntry::PutMain(std::int64_t code) {
  const std::string head =
      code == 0 ? "" : gSession->MainDb().Lookup("FAMaster", "mhd", "mcd=" + books::SqlNumber(code)).ToText();
  txpMain.Text = head;
  txpMain.Tag = head.empty() ? "" : std::to_string(code);
  txpMain.TabStop = true;
  if (code != 0) MStrip1.Code = code;
  if (code != 0 && !stored_ && !IsBill(kind_)) gApp->PutUserSetting(KeptMain(kind_), txpMain.Tag());
  ShowNumber();
  ProposeCheque();
  ShowSums();
}

bool frmVoucherEntry::CheckMain() {
  if (!txpMain.Tag->empty() || txpMain.Text->empty()) return true;
  if (SelGrid2.HasChoice()) {
    PutMain(ValInteger(SelGrid2.Cell(SelGrid2.Grid.Row, 1)));
    return true;
  }
  gStd->MsgBox("No account is found by \"" + txpMain.Text() + "\".", "", "W");
  return false;
}

// --- Day, number and cheque

/// A day alone is one of the month of the voucher, or of the last one before a new one; a day and month one
/// of the open year.
Date frmVoucherEntry::TypedDay() const {
  const Date near = stored_ ? stored_->Day : lastDay_;
  const Date day = Date::Parse(gStd->ParseDateText(txpDay.Text(), near.Text()));
  const FinYear& year = gSession->Year();
  if (day >= year.StartDate() && day <= year.EndDate()) return day;
  return Date::Parse(gStd->ParseDateText(txpDay.Text(), ""));
}

bool frmVoucherEntry::CheckDay() {
  if (txpDay.Text->empty()) return true;
  const Date day = TypedDay();
  const std::string why = day.IsEmpty() ? "Invalid Date" : VoucherGuard(gSession->Year()).WhyNotOn(day);
  if (!day.IsEmpty()) {
    txpDay.Text = day.Text();
    ShowSums();
  }
  if (why.empty()) {
    if (!stored_) lastDay_ = day;
    return true;
  }
  gStd->MsgBox(why, "", "W");
  txpDay.TextBox.SelectAll();
  return false;
}

void frmVoucherEntry::ShowNumber() {
  // A number that was typed stays.
  if (stored_ || txpNumber.Text() != proposedNumber_) return;
  const VoucherDraft draft = ReadDraft();
  const bool isKnown = !draft.HasMain() || draft.Main != 0 || IsBill(kind_) || kind_ == VoucherKind::kContra;
  CDbLink& year = gSession->MainDb();
  proposedNumber_ = isKnown ? VoucherStore(year).NextNumber(VoucherBooks(year).Of(draft).Type) : "";
  txpNumber.Text = proposedNumber_;
}

bool frmVoucherEntry::TakesCheque() const {
  const std::int64_t main = MainCode();
  return main != 0 && SpecOf(kind_).MainSide < 0 && !IsBill(kind_) &&
         gSession->MainDb().RowExists(
             "Select mcd from FAMaster where mbshno=" + books::SqlNumber(books::kBankGroup) +
             " and mcd=" + books::SqlNumber(main));
}

/// The lowest leaf of the bank that is neither used, nor cancelled, nor on its way to a printer.
void frmVoucherEntry::ProposeCheque() {
  txpChqNo.Visible = TakesCheque();
  if (stored_) return;
  txpChqNo.Text = "";
  if (!txpChqNo.Visible) return;
  const std::int64_t leaf =
      gSession->MainDb()
          .Lookup("ChqLeaves l", "Min(l.ChqNo)",
                  "l.BankCode=" + books::SqlNumber(MainCode()) +
                      " and l.VoucherID is null and l.Cancelled is distinct from 'Y' and not "
                      "exists (select 1 from ChqGoingOut g where g.LeafID=l.ID)")
          .ToInteger();
  if (leaf != 0) txpChqNo.Text = LeafText(leaf);
}

VoucherDraft frmVoucherEntry::ReadDraft() const {
  VoucherDraft draft;
  draft.Kind = kind_;
  draft.Day = TypedDay();
  draft.Number = stored_ || txpNumber.Text() != proposedNumber_ ? text::Trim(txpNumber.Text()) : "";
  draft.Main = draft.HasMain() ? MainCode() : 0;
  draft.Lines = ReadLines();
  draft.Narration = text::Trim(txpNarration.Text());
  draft.Cheque = txpChqNo.Visible ? ValInteger(txpChqNo.Text()) : 0;
  return draft;
}

}  // namespace quillon
