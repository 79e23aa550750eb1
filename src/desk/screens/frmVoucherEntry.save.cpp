#include "desk/screens/frmVoucherEntry.h"

#include <algorithm>

#include "books/SqlText.h"
#include "desk/screens/BankPayments.h"
#include "desk/screens/ModuleScreen.h"
#include "desk/screens/OutgoingLeaves.h"
#include "desk/screens/VoucherColumns.h"
#include "desk/screens/frmNewAccount.h"
#include "desk/services/SimilarVouchers.h"
#include "desk/services/VoucherBooks.h"
#include "desk/services/VoucherGuard.h"
#include "host/forms/Fields.h"
#include "host/services/host_services.h"
#include "host/values/Text.h"

namespace quillon {

namespace {

constexpr const char* kRight = "vch.entry";

std::string NoWarningFor(std::int64_t account) { return "VoucherEntry.NoSimilar." + std::to_string(account); }

/// The narration without the number of a cheque that no longer pays the voucher.
std::string WithoutCheque(const std::string& narration, std::int64_t number) {
  std::string rest = narration;
  std::string known;
  gStd->ChqNoFromNarration(rest, known);
  return ValInteger(known) == number ? rest : narration;
}

bool PaysFrom(const NewVoucher& voucher, std::int64_t bank) {
  return std::any_of(voucher.Lines.begin(), voucher.Lines.end(), [bank](const VoucherLine& line) {
    return line.Account == bank && line.Value < Amount();
  });
}

std::string NameOf(const VoucherDraft& draft, const std::string& number) {
  return std::string(SpecOf(draft.Kind).Name) + " No. " + number + " of " + draft.Day.Text();
}

}  // namespace

// --- Saving

/// Anything but a clear yes is a no.
bool frmVoucherEntry::MayStore() const {
  bool denied = true;
  gApp->CheckRight(kRight, "N", denied);
  return !denied;
}

bool frmVoucherEntry::Save() {
  if (!MayStore()) return false;
  const VoucherDraft draft = ReadDraft();
  if (stored_ && draft == start_) {
    gRuntime->Say("Nothing was changed.");
    return true;
  }
  return IsFaultless(draft) && MayLoseClearing(draft) && IsNoDouble(draft) && Store(draft);
}

bool frmVoucherEntry::IsFaultless(const VoucherDraft& draft) {
  if (const auto fault = FaultOf(draft)) return RefuseAtFault(*fault);
  const VoucherGuard guard(gSession->Year());
  if (const std::string why = guard.WhyNotOn(draft.Day); !why.empty()) return RefuseAt(txpDay, why, "W");
  if (stored_) {
    if (const std::string why = guard.WhyNotChange(*stored_); !why.empty()) return RefuseAt(txpDay, why, "W");
  }
  const bool isOwnLeaf = stored_ && stored_->LeafBank == draft.Main && stored_->LeafNumber == draft.Cheque;
  if (draft.Cheque == 0 || isOwnLeaf) return true;
  const std::string why = OutgoingLeaves(gSession->MainDb()).WhyNot(draft.Main, draft.Cheque);
  return why.empty() || RefuseAt(txpChqNo, why, "W");
}

bool frmVoucherEntry::RefuseAtFault(const VoucherFault& fault) {
  using Field = VoucherFault::Field;
  switch (fault.Where) {
    case Field::kDay:
      return RefuseAt(txpDay, fault.Why, "W");
    case Field::kNumber:
      return RefuseAt(txpNumber, fault.Why, "W");
    case Field::kMain:
      return RefuseAt(txpMain, fault.Why, "W");
    case Field::kCheque:
      return RefuseAt(txpChqNo, fault.Why, "W");
    default:
      break;
  }
  gStd->MsgBox(fault.Why, "", "W");
  Grid.SetFocus();
  const int column = fault.Where == Field::kAccount ? voucher_col::kHead
                     : fault.Where == Field::kDebit ? voucher_col::kDebit
                                                    : voucher_col::kCredit;
  const int row = std::min(static_cast<int>(fault.Line) + 1, Grid.Rows - 1);
  if (!Grid.SetCell(row, column)) OpenCell(FreeRow(), voucher_col::kHead);
  return false;
}

/// The date on which the bank cleared an entry goes with the entry.
bool frmVoucherEntry::MayLoseClearing(const VoucherDraft& draft) const {
  if (!stored_) return true;
  std::vector<VoucherLine> stay = draft.AllLines();
  for (const StoredLine& line : stored_->Lines) {
    const auto same = std::find(stay.begin(), stay.end(), VoucherLine{line.Account, line.Value});
    if (same != stay.end()) {
      stay.erase(same);
    } else if (!line.Cleared.IsEmpty()) {
      return gStd->AskYesNo("The bank has cleared this entry on " + line.Cleared.Text() +
                                ". Saved like this it is not cleared any more. Save it?",
                            "W", IStd::kNo);
    }
  }
  return true;
}

/// Of one of our own leaves the narration tells the number, which the bank's statement will tell.
NewVoucher frmVoucherEntry::AsStored(const VoucherDraft& draft) {
  CDbLink& year = gSession->MainDb();
  NewVoucher voucher;
  voucher.Day = draft.Day;
  voucher.Number = draft.Number;
  voucher.IsNumberOwn = kind_ != VoucherKind::kPurchase;
  voucher.Lines = draft.AllLines();
  voucher.Party = PartyOf(year, draft);
  voucher.TakesTransporter = kind_ == VoucherKind::kSale;
  const VoucherBook book = VoucherBooks(year).Of(draft);
  const bool keepsBook = stored_ && kind_ != VoucherKind::kContra;
  voucher.Book = keepsBook ? stored_->Book : book.Book;
  voucher.Type = stored_ ? stored_->Type : book.Type;
  voucher.Nature = stored_ ? stored_->Nature : SpecOf(kind_).Nature;
  voucher.Narration = draft.Narration;
  voucher.LeafBank = draft.Main;
  voucher.LeafNumber = draft.Cheque;
  // A voucher that is shown line by line has no field for its cheque.
  if (stored_ && !TakesCheque() && PaysFrom(voucher, stored_->LeafBank)) {
    voucher.LeafBank = stored_->LeafBank;
    voucher.LeafNumber = stored_->LeafNumber;
  }
  if (stored_ && stored_->LeafNumber != 0 && stored_->LeafNumber != voucher.LeafNumber)
    voucher.Narration = WithoutCheque(voucher.Narration, stored_->LeafNumber);
  if (voucher.LeafNumber != 0) voucher.Narration = NarrationWithCheque(voucher.Narration, voucher.LeafNumber);
  return voucher;
}

bool frmVoucherEntry::Store(const VoucherDraft& draft) {
  CDbLink& year = gSession->MainDb();
  VoucherStore store(year);
  try {
    const NewVoucher voucher = AsStored(draft);
    if (stored_) {
      store.Replace(*stored_, voucher);
      lastSaved_ = stored_->Id;
    } else {
      lastSaved_ = store.Store(voucher);
    }
  } catch (const VoucherRefused& refused) {
    using Cause = VoucherRefused::Cause;
    Control& field = refused.Why() == Cause::kNumber ? static_cast<Control&>(txpNumber)
                     : refused.Why() == Cause::kLeaf ? static_cast<Control&>(txpChqNo)
                                                     : txpDay;
    return RefuseAt(field, refused.what(), "W");
  }
  const std::string number =
      year.Lookup("FAData", "dVchNo", "VoucherID=" + books::SqlNumber(lastSaved_)).ToText();
  gRuntime->Say(NameOf(draft, number) + " is saved.");
  StartNew();
  return true;
}

// --- Doubles

/// Whoever wants no more warnings for an account is not asked about it.
bool frmVoucherEntry::IsNoDouble(const VoucherDraft& draft) {
  const SimilarVouchers similar(gSession->MainDb(), draft, stored_ ? stored_->Id : 0);
  const std::int64_t account = similar.Account();
  if (gApp->GetUserSetting(NoWarningFor(account)) == "True") return true;
  const std::vector<SimilarEntry> entries = similar.Find();
  if (entries.empty()) return true;
  const FormPtr warning = ModuleScreen(*this, "similarvoucher");
  if (!warning) return false;
  warning->Set("dTrnType", stored_ ? stored_->Type : SpecOf(kind_).TypePrefix);
  warning->Set("CurVoucherID", stored_ ? stored_->Id : 0);
  for (const SimilarEntry& entry : entries) {
    Array rows;
    rows.emplace_back(Array{entry.Day.Text(), entry.Book, entry.Number, entry.Narration,
                            gStd->FormatAmount(entry.Value.Abs(), "c2")});
    warning->Call("AddEntry", rows);
  }
  dynamic_cast<Label&>(warning->ControlAt("lblAcHead")).Caption = gApp->AccountDetails(account);
  gStd->ShowDialog(warning, Self());
  if (warning->Get("DontShow").ToFlag()) gApp->PutUserSetting(NoWarningFor(account), "True");
  return !warning->Get("Cancelled").ToFlag();
}

// --- The other keys

void frmVoucherEntry::Delete() {
  if (!stored_) {
    gStd->MsgBox("This voucher is not saved yet; F2 begins it anew.", "", "W");
    return;
  }
  if (!MayStore()) return;
  if (const std::string why = VoucherGuard(gSession->Year()).WhyNotChange(*stored_); !why.empty()) {
    RefuseAt(txpDay, why, "W");
    return;
  }
  const std::string name = NameOf(start_, stored_->Number);
  if (!gStd->AskYesNo("Delete " + name + "?", "W", IStd::kNo)) return;
  try {
    VoucherStore(gSession->MainDb()).Delete(*stored_);
  } catch (const VoucherRefused& refused) {
    RefuseAt(txpDay, refused.what(), "W");
    return;
  }
  gRuntime->Say(name + " is deleted.");
  StartNew();
}

/// A voucher that is not saved yet is saved first.
void frmVoucherEntry::OpenChequeForm() {
  const bool isLast = IsBlank() && lastSaved_ != 0;
  if (!isLast && !TakesCheque()) {
    gStd->MsgBox("This voucher pays nothing from a bank account.", "", "W");
    return;
  }
  std::int64_t id = isLast ? lastSaved_ : stored_ ? stored_->Id : 0;
  if (!isLast && (!stored_ || IsUnsaved())) {
    if (!Save()) return;
    id = lastSaved_;
  }
  const std::int64_t bank = BankPayments::BankOf(gSession->MainDb(), id, MainCode());
  if (bank == 0) {
    gStd->MsgBox("This voucher pays nothing from a bank account.", "", "W");
    return;
  }
  OpenCheque(Self(), gSession->CurrentYear(), bank, id);
}

void frmVoucherEntry::OpenLeaves() {
  const FormPtr leaves = ModuleScreen(*this, "chqleaves");
  if (!leaves) return;
  if (TakesCheque()) leaves->Set("BankCode", MainCode());
  gApp->ShowForm(leaves);
}

/// In the lines the new account goes where the cursor was.
void frmVoucherEntry::AddAccount() {
  if (!MayStore()) return;
  const auto dialog = std::make_shared<frmNewAccount>();
  dialog->CallingForm = Self();
  gStd->ShowDialog(dialog, Self());
  const std::int64_t code = dialog->Cancelled ? 0 : dialog->AccountCode;
  gRuntime->Unload(*dialog);
  if (code == 0) return;
  LoadLists();
  const int row = FreeRow();
  for (int line = 1; line < SelGrid1.Grid.Rows; ++line) {
    if (ValInteger(SelGrid1.Cell(line, 1)) != code) continue;
    if (row >= Grid.Rows) Grid.Rows = row + 1;
    PutAccount(row, line);
  }
  Grid.SetFocus();
  OpenCell(row, AmountColumn(row));
}

}  // namespace quillon
